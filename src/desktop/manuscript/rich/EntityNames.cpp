#include "desktop/manuscript/rich/EntityNames.h"

#include "core/entity/Entity.h"
#include "desktop/shell/ProjectSession.h"

#include <QWidget>

#include <algorithm>
#include <chrono>

namespace tw::desktop::manuscript::rich {

using namespace std::chrono_literals;

EntityNames::EntityNames(shell::ProjectSession& session, QWidget& page)
    : QObject(&page)
    , m_session(session)
    , m_page(page)
{
    m_rest.setSingleShot(true);
    connect(&m_rest, &QTimer::timeout, this, &EntityNames::read);
    connect(&session, &shell::ProjectSession::changed, this, &EntityNames::follow);
}

void EntityNames::wake()
{
    if (m_isStale)
        m_rest.start(0ms);
}

void EntityNames::follow(const core::project::ProjectChanges& changes)
{
    const auto& project = m_session.project();
    const auto isEntity = [&project](const core::ContentId& id) {
        return project.findAs<core::entity::Entity>(id) != nullptr;
    };
    const bool isConcerned = changes.isEverything || !changes.removed.empty() ||
                             std::ranges::any_of(changes.added, isEntity) ||
                             std::ranges::any_of(changes.changed, isEntity);
    if (!isConcerned)
        return;
    m_isStale = true;
    if (m_page.isVisible())
        m_rest.start(300ms);
}

void EntityNames::read()
{
    if (!m_page.isVisible())
        return;
    m_isStale = false;
    m_names = app::typing::entityNames(m_session.project());
    m_matcher = app::typing::NameMatcher(m_names);
    emit changed();
}

QStringList EntityNames::completions(const QString& text, qsizetype most) const
{
    QStringList beginning;
    QStringList containing;
    for (const app::typing::Name& name : m_names) {
        const qsizetype place = name.text.indexOf(text, 0, Qt::CaseInsensitive);
        if (place == 0)
            beginning.append(name.text);
        else if (place > 0 && !name.text[place - 1].isLetterOrNumber())
            containing.append(name.text);
    }
    for (QStringList* const list : {&beginning, &containing}) {
        list->sort(Qt::CaseInsensitive);
        list->removeDuplicates();
    }
    const QStringList all = beginning + containing;
    return all.first(std::min(most, all.size()));
}

} // namespace tw::desktop::manuscript::rich
