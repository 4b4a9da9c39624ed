#include "desktop/codex/MentionSearch.h"

#include "core/document/ActiveText.h"
#include "core/document/DocumentTree.h"
#include "core/document/markup/LegacyHtml.h"
#include "desktop/shell/ProjectSession.h"

#include <QElapsedTimer>

#include <chrono>

namespace tw::desktop::codex {

using namespace std::chrono_literals;
using core::ContentId;
using core::document::Document;
using core::document::DocumentTree;

namespace {

constexpr auto rest = 600ms;
/** Short enough for a key stroke to come through in between. */
constexpr qint64 sliceMilliseconds = 6;

bool isPartOfWord(QStringView text, qsizetype index)
{
    return index >= 0 && index < text.size() && (text[index].isLetterOrNumber() || text[index].isMark());
}

int countName(const QString& text, const QString& name)
{
    const bool hasSeveralWords = name.contains(u' ');
    const auto sensitivity = hasSeveralWords ? Qt::CaseInsensitive : Qt::CaseSensitive;
    int count = 0;
    qsizetype place = text.indexOf(name, 0, sensitivity);
    while (place >= 0) {
        if (!isPartOfWord(text, place - 1) && !isPartOfWord(text, place + name.size()))
            ++count;
        place = text.indexOf(name, place + name.size(), sensitivity);
    }
    return count;
}

void collect(const DocumentTree& tree, const std::map<ContentId, int>& counts, std::vector<Mention>& mentions)
{
    std::vector<ContentId> open{ContentId()};
    while (!open.empty()) {
        const ContentId id = open.back();
        open.pop_back();
        if (const auto count = counts.find(id); count != counts.end() && count->second > 0)
            mentions.push_back({id, count->second});
        if (const auto children = tree.find(id); children != tree.end())
            open.insert(open.end(), children->second.rbegin(), children->second.rend());
    }
}

} // namespace

int countMentions(const QString& text, const QStringList& names)
{
    int count = 0;
    for (const QString& name : names)
        count += countName(text, name);
    return count;
}

MentionSearch::MentionSearch(shell::ProjectSession& session, QObject* parent)
    : QObject(parent)
    , m_session(session)
{
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, [this] { read(Pace::Slice); });
    connect(&session, &shell::ProjectSession::changed, this, &MentionSearch::follow);
}

void MentionSearch::setNames(const QStringList& names)
{
    QStringList searched;
    for (const QString& name : names) {
        const QString trimmed = name.trimmed();
        if (!trimmed.isEmpty() && !searched.contains(trimmed))
            searched.append(trimmed);
    }
    if (searched == m_names)
        return;
    m_names = searched;
    m_counts.clear();
    m_isComplete = false;
    restart();
}

void MentionSearch::setActive(bool active)
{
    m_isActive = active;
    if (active && !m_isComplete)
        m_timer.start(0ms);
    else if (!active)
        m_timer.stop();
}

void MentionSearch::follow(const core::project::ProjectChanges& changes)
{
    if (changes.isEverything)
        m_counts.clear();
    bool isConcerned = changes.isEverything;
    for (const auto* ids : {&changes.added, &changes.removed, &changes.changed}) {
        for (const ContentId& id : *ids) {
            const bool wasCounted = m_counts.erase(id) > 0;
            isConcerned = isConcerned || wasCounted || m_session.project().findAs<Document>(id) != nullptr;
        }
    }
    if (isConcerned)
        restart();
}

void MentionSearch::restart()
{
    m_isComplete = false;
    if (m_isActive)
        m_timer.start(rest);
}

void MentionSearch::finishNow()
{
    m_timer.stop();
    read(Pace::AtOnce);
}

void MentionSearch::read(Pace pace)
{
    QElapsedTimer clock;
    clock.start();
    for (const Document* const document : core::project::objectsOf<Document>(m_session.project())) {
        if (m_counts.contains(document->id()))
            continue;
        if (pace == Pace::Slice && clock.elapsed() >= sliceMilliseconds) {
            m_timer.start(0ms);
            return;
        }
        m_counts.emplace(
            document->id(),
            countMentions(
                core::document::markup::markdownOf(core::document::activeText(*document)), m_names));
    }
    m_isComplete = true;
    emit finished();
}

std::vector<Mention> MentionSearch::mentions() const
{
    std::vector<Mention> mentions;
    collect(core::document::documentTree(m_session.project()), m_counts, mentions);
    return mentions;
}

} // namespace tw::desktop::codex
