#include "desktop/finder/GoToFinder.h"

#include "core/document/Document.h"
#include "core/entity/Entity.h"
#include "desktop/codex/CategoryPaths.h"
#include "desktop/icons/IconSet.h"
#include "desktop/manuscript/ManuscriptModel.h"
#include "desktop/shell/LibraryObjects.h"
#include "desktop/shell/Navigator.h"
#include "desktop/shell/ObjectTitles.h"
#include "desktop/shell/ProjectSession.h"
#include "desktop/shell/WorkArea.h"

namespace tw::desktop::finder {

using namespace Qt::Literals::StringLiterals;
using app::search::TitleHit;
using core::ContentId;
using core::content::ContentObject;
using core::document::Document;
using core::entity::Entity;
using core::project::Project;

namespace {

constexpr qsizetype mostRows = 100;
constexpr qsizetype rememberedVisits = 30;

QString documentPath(const Project& project, const Document& document, const QString& audience)
{
    QStringList names;
    std::set<ContentId> seen{document.id()};
    const auto* above = project.findAs<Document>(document.parentId());
    while (above && seen.insert(above->id()).second) {
        const bool isShown = audience.isEmpty() || above->isVisibleTo(audience);
        names.prepend(isShown ? shell::objectTitle(*above) : u"…"_s);
        above = project.findAs<Document>(above->parentId());
    }
    return names.join(u" › "_s);
}

} // namespace

GoToFinder::GoToFinder(const shell::DeskContext& desk, shell::WorkArea& work, QObject* parent)
    : QObject(parent)
    , m_desk(desk)
    , m_work(work)
{
    connect(&desk.session, &shell::ProjectSession::changed, this, &GoToFinder::followChanges);
    connect(&desk.session, &shell::ProjectSession::librariesRead, this, &GoToFinder::forget);
    connect(&desk.navigator, &shell::Navigator::audienceChanged, this, &GoToFinder::forget);
    connect(&work, &shell::WorkArea::currentPageChanged, this, [this](const shell::WorkPage* page) {
        if (page && !page->objectId().isNull())
            noteVisit(page->objectId());
    });
}

QString GoToFinder::title() const
{
    return tr("Go to");
}

QString GoToFinder::hint() const
{
    return tr("Type a few letters of a title – Ctrl+Return opens it in the other pane");
}

QString GoToFinder::emptyText(const QString& typed) const
{
    if (typed.trimmed().isEmpty())
        return tr("Here stands what you have visited. Type to find documents and entities by their titles.");
    return tr("Nothing has these letters in its title. Type fewer, or press Escape and search the texts with "
              "Find in the Project.");
}

void GoToFinder::setVisited(const QStringList& ids)
{
    m_visited = ids.first(std::min(ids.size(), rememberedVisits));
}

void GoToFinder::noteVisit(const ContentId& id)
{
    const QString text = id.toString();
    QStringList visited = m_visited;
    visited.removeAll(text);
    visited.prepend(text);
    setVisited(visited);
}

void GoToFinder::followChanges(const core::project::ProjectChanges& changes)
{
    if (changes.isEverything) {
        forget();
        return;
    }
    if (!m_index)
        return;
    for (const auto* const ids : {&changes.added, &changes.removed, &changes.changed})
        m_moved.insert(ids->begin(), ids->end());
}

void GoToFinder::forget()
{
    m_index.reset();
    m_moved.clear();
    m_hits.clear();
}

void GoToFinder::prepare()
{
    const Project& project = m_desk.session.project();
    if (m_index) {
        m_index->update(project, std::exchange(m_moved, {}));
        return;
    }
    std::vector<const Project*> libraries;
    for (const app::workspace::MountedLibrary& library : m_desk.session.workspace().libraries())
        libraries.push_back(library.project.get());
    m_index.emplace(
        app::search::TitleScope{m_work.shownKinds(), m_desk.navigator.audience()}, project, libraries);
}

bool GoToFinder::isShown(const ContentObject& object) const
{
    const QString& audience = m_desk.navigator.audience();
    return (audience.isEmpty() || object.isVisibleTo(audience)) &&
           m_work.shownKinds().contains(object.kind());
}

std::vector<TitleHit> GoToFinder::visitedHits() const
{
    // Where one is already is nowhere to go: Return alone leads back to where one was before.
    const shell::WorkPage* const page = m_work.currentPage();
    const ContentId here = page ? page->objectId() : ContentId();
    std::vector<TitleHit> hits;
    for (const QString& text : m_visited) {
        const auto id = ContentId::fromString(text);
        const ContentObject* const object = m_desk.session.project().find(id);
        if (object && id != here && isShown(*object))
            hits.push_back({.id = id, .alias = {}});
    }
    return hits;
}

std::vector<FinderRow> GoToFinder::rowsFor(const QString& typed)
{
    const app::search::NameQuery query(typed);
    if (query.isEmpty()) {
        m_hits = visitedHits();
    } else {
        prepare();
        m_hits = m_index->find(query, mostRows);
    }
    std::vector<FinderRow> rows;
    for (const TitleHit& hit : m_hits)
        rows.push_back(rowOf(hit));
    return rows;
}

const Project& GoToFinder::projectOf(const TitleHit& hit) const
{
    if (hit.library < 0)
        return m_desk.session.project();
    return *m_desk.session.workspace().libraries()[static_cast<std::size_t>(hit.library)].project;
}

FinderRow GoToFinder::rowOf(const TitleHit& hit) const
{
    const Project& project = projectOf(hit);
    const ContentObject& object = *project.find(hit.id);
    const auto* const document = core::content::objectCast<Document>(&object);
    FinderRow row;
    row.icon = document ? m_desk.icons.icon(manuscript::iconForDocument(*document, false))
                        : m_desk.icons.icon(object.kind());
    row.text = shell::objectTitle(object);
    if (!hit.alias.isEmpty())
        row.text = hit.alias + u" — "_s + row.text;
    row.place = placeOf(project, object);
    if (hit.library >= 0) {
        const auto& libraries = m_desk.session.workspace().libraries();
        row.note = tr("library %1").arg(libraries[static_cast<std::size_t>(hit.library)].name);
    }
    return row;
}

QString GoToFinder::placeOf(const Project& project, const ContentObject& object) const
{
    const QString& audience = m_desk.navigator.audience();
    if (const auto* const document = core::content::objectCast<Document>(&object))
        return documentPath(project, *document, audience);
    if (const auto* const entity = core::content::objectCast<Entity>(&object))
        return codex::categoryPath(project, entity->categoryId(), audience);
    return {};
}

void GoToFinder::choose(std::size_t row, FinderTarget target)
{
    // The list may have been made anew while it was looked at, when another project took this one's place.
    if (row >= m_hits.size())
        return;
    const TitleHit hit = m_hits[row];
    if (hit.library >= 0) {
        m_desk.navigator.say(shell::libraryNote(m_desk.session, hit.id));
    } else if (target == FinderTarget::OtherPane) {
        m_work.openBeside({hit.id, {}});
    } else {
        m_desk.navigator.open(hit.id);
    }
}

} // namespace tw::desktop::finder
