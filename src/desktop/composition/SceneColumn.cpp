#include "desktop/composition/SceneColumn.h"

#include "core/document/DocumentTree.h"
#include "desktop/composition/SceneSlot.h"
#include "desktop/shell/AudienceSelector.h"
#include "desktop/shell/Navigator.h"
#include "desktop/shell/ProjectSession.h"

#include <QLabel>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace tw::desktop::composition {

using core::ContentId;
using core::document::Document;

SceneColumn::SceneColumn(const shell::DeskContext& desk, const ContentId& rootId, QWidget* parent)
    : QWidget(parent)
    , m_desk(desk)
    , m_rootId(rootId)
    , m_documentPlaces(desk.session.project())
    , m_layout(new QVBoxLayout(this))
    , m_hint(new QLabel(this))
{
    m_layout->setContentsMargins(0, 0, 0, 0);
    m_layout->setSpacing(0);
    m_layout->addWidget(m_hint);
    m_layout->addStretch();
    m_hint->setAlignment(Qt::AlignCenter);
    m_hint->setForegroundRole(QPalette::PlaceholderText);
    connect(&desk.session, &shell::ProjectSession::changed, this, &SceneColumn::followChanges);
    connect(&desk.navigator, &shell::Navigator::audienceChanged, this, [this] {
        // An editor may be about to go.
        m_desk.session.commitPendingEdits();
        rebuild();
        emit changed();
    });
}

SceneColumn::~SceneColumn()
{
    m_desk.session.disconnect(this);
    m_desk.navigator.disconnect(this);
}

void SceneColumn::settle()
{
    m_layout->activate();
    adjustSize();
}

std::vector<ContentId> SceneColumn::documentsInOrder() const
{
    const core::project::Project& project = m_desk.session.project();
    std::vector<ContentId> ids = m_rootId.isNull() ? core::document::documentsInReadingOrder(project)
                                                   : core::document::documentSubtree(project, m_rootId);
    // Notes are beside the text; a part without words of its own shows as the title above its scenes.
    std::erase_if(ids, [&](const ContentId& id) {
        return id != m_rootId &&
               project.findAs<Document>(id)->documentKind() == core::document::DocumentKind::Note;
    });
    return ids;
}

bool SceneColumn::isWithheld(const ContentId& id) const
{
    const QString& audience = m_desk.navigator.audience();
    const auto* const document = m_desk.session.project().findAs<Document>(id);
    return !audience.isEmpty() && document && !document->isVisibleTo(audience);
}

bool SceneColumn::isAudienceConcerned(const core::project::ProjectChanges& changes) const
{
    return std::ranges::any_of(changes.changed, [this](const ContentId& id) {
        return isWithheld(id) ? m_scenes.contains(id) : m_withheld.contains(id);
    });
}

void SceneColumn::rebuild()
{
    const std::map<ContentId, Scene> former = std::exchange(m_scenes, {});
    for (SceneSlot* const slot : std::exchange(m_slots, {}))
        m_layout->removeWidget(slot);
    m_withheld.clear();
    m_words = 0;
    for (const ContentId& id : documentsInOrder()) {
        if (isWithheld(id)) {
            m_withheld.insert(id);
            continue;
        }
        const auto known = former.find(id);
        SceneSlot* const slot = known != former.end() ? known->second.slot : makeSlot(id);
        m_layout->insertWidget(static_cast<int>(m_slots.size()), slot);
        slot->show();
        m_slots.push_back(slot);
        countWords(m_scenes.emplace(id, Scene{slot}).first->second);
    }
    for (const auto& [id, scene] : former) {
        if (!m_scenes.contains(id))
            scene.slot->deleteLater();
    }
    m_hint->setText(
        m_withheld.empty() ? tr("No documents in here yet. Press Ctrl+Shift+N to write the first one.")
                           : shell::nothingForAudience());
    m_hint->setVisible(m_slots.empty());
}

SceneSlot* SceneColumn::makeSlot(const ContentId& id)
{
    auto* const slot = new SceneSlot(m_desk, id, this);
    emit slotMade(slot);
    return slot;
}

void SceneColumn::countWords(Scene& scene)
{
    m_words -= scene.words;
    scene.words = m_desk.session.words().ofDocument(scene.slot->documentId());
    m_words += scene.words;
}

void SceneColumn::followChanges(const core::project::ProjectChanges& changes)
{
    const bool isOrderConcerned = m_documentPlaces.follow(m_desk.session.project(), changes);
    if (changes.isEverything || isOrderConcerned || isAudienceConcerned(changes))
        rebuild();
    if (changes.isEverything)
        std::ranges::for_each(m_slots, &SceneSlot::refresh);
    const auto refresh = [this](const ContentId& id) {
        const auto scene = m_scenes.find(id);
        if (scene == m_scenes.end())
            return;
        scene->second.slot->refresh();
        countWords(scene->second);
    };
    std::ranges::for_each(changes.added, refresh);
    std::ranges::for_each(changes.changed, refresh);
    emit changed();
}

} // namespace tw::desktop::composition
