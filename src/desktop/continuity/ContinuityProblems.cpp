#include "desktop/continuity/ContinuityProblems.h"

#include "app/timeline/ConflictFinder.h"
#include "core/entity/Entity.h"
#include "core/timeline/TimelineEvent.h"
#include "desktop/shell/LibraryObjects.h"
#include "desktop/shell/Navigator.h"
#include "desktop/shell/ProjectSession.h"
#include "desktop/theme/ThemeManager.h"

#include <QCoreApplication>

#include <algorithm>
#include <chrono>
#include <memory>
#include <utility>

namespace tw::desktop::continuity {

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;
using app::timeline::ContinuityConflict;
using core::content::ContentKind;
using problems::Problem;

namespace {

constexpr auto checkRest = 900ms;

/** An event has no page of its own: it stands on those of who takes part, and of its place. */
core::ContentId pageOf(const core::project::Project& project, const core::ContentId& object)
{
    const auto* const event = project.findAs<core::timeline::TimelineEvent>(object);
    if (!event)
        return object;
    std::vector<core::ContentId> entities = event->details().participants;
    entities.push_back(event->details().locationId);
    const auto shown = std::ranges::find_if(entities, [&project](const core::ContentId& id) {
        return project.findAs<core::entity::Entity>(id) != nullptr;
    });
    return shown == entities.end() ? object : *shown;
}

} // namespace

ContinuityProblems::ContinuityProblems(const shell::DeskContext& desk, QObject* parent)
    : ProblemSource(parent)
    , m_desk(desk)
{
    m_pool.setMaxThreadCount(1);
    m_rest.setSingleShot(true);
    m_rest.setInterval(checkRest);
    connect(&m_rest, &QTimer::timeout, this, &ContinuityProblems::checkNow);
    connect(&desk.session, &shell::ProjectSession::changed, this, &ContinuityProblems::followChanges);
    connect(&desk.session, &shell::ProjectSession::librariesRead, &m_rest, qOverload<>(&QTimer::start));
    m_rest.start();
}

ContinuityProblems::~ContinuityProblems()
{
    m_pool.waitForDone();
}

std::vector<problems::ProblemCategory> ContinuityProblems::categories() const
{
    return {{u"continuity"_s, tr("Continuity")}};
}

QColor ContinuityProblems::colorOf(const QString& /*categoryId*/) const
{
    return m_desk.themes.theme().color(theme::Role::Thread2);
}

const std::vector<Problem>& ContinuityProblems::problemsOf(const core::ContentId& object) const
{
    static const std::vector<Problem> none;
    const auto known = m_problems.find(object);
    return known == m_problems.end() ? none : known->second;
}

bool ContinuityProblems::mayMatter(const core::project::ProjectChanges& changes) const
{
    // What is gone may have been anything; edits of texts, which come all the time, change nothing here.
    const auto matters = [this](const core::ContentId& id) {
        const auto* const object = m_desk.session.project().find(id);
        return object && (object->kind() == ContentKind::TimelineEvent ||
                          object->kind() == ContentKind::Entity || object->kind() == ContentKind::Map);
    };
    return changes.isEverything || changes.isTaxonomyChanged || changes.areSettingsChanged ||
           !changes.removed.empty() || std::ranges::any_of(changes.added, matters) ||
           std::ranges::any_of(changes.changed, matters);
}

void ContinuityProblems::followChanges(const core::project::ProjectChanges& changes)
{
    if (!mayMatter(changes))
        return;
    m_isStale = m_isChecking;
    if (changes.isEverything) {
        m_problems.clear();
        m_order.clear();
        emit ownObjectsChanged();
    }
    m_rest.start();
}

void ContinuityProblems::checkNow()
{
    m_rest.stop();
    if (m_isChecking) {
        m_isStale = true;
        return;
    }
    m_isChecking = true;
    m_isStale = false;
    emit busyChanged(true);
    // The rules are few and read the schema, which is no copy; the events may be many, and are one.
    const core::project::Project& project = m_desk.session.project();
    const app::codex::ObjectScope scope = shell::libraryScope(m_desk.session);
    ConflictList broken = app::timeline::validateRules(project, project.continuityRules(), scope);
    const auto facts =
        std::make_shared<const app::timeline::TimelineFacts>(app::timeline::gatherFacts(project, scope));
    m_pool.start([this, facts, broken = std::move(broken)] {
        auto found = findConflicts(*facts);
        const auto end = [this, facts, found = std::move(found), broken] {
            m_isChecking = false;
            if (m_isStale) {
                checkNow();
                return;
            }
            // Words need the project, which is still as it was.
            ConflictList conflicts = wordConflicts(m_desk.session.project(), *facts, found);
            conflicts.insert(conflicts.end(), broken.begin(), broken.end());
            list(conflicts);
            emit busyChanged(false);
            emit checked(std::ssize(conflicts));
        };
        QMetaObject::invokeMethod(this, end, Qt::QueuedConnection);
    });
}

void ContinuityProblems::list(const ConflictList& conflicts)
{
    const auto former = std::exchange(m_problems, {});
    const auto formerOrder = std::exchange(m_order, {});
    for (const ContinuityConflict& conflict : conflicts) {
        const core::ContentId object = conflict.ids.empty() ? core::ContentId() : conflict.ids.front();
        auto& problems = m_problems[object];
        if (problems.empty())
            m_order.push_back(object);
        Problem problem;
        problem.categoryId = u"continuity"_s;
        problem.message = conflict.message;
        problem.ordinal = static_cast<int>(problems.size());
        problems.push_back(std::move(problem));
    }
    std::vector<core::ContentId> changed;
    for (const core::ContentId& object : formerOrder) {
        if (problemsOf(object) != former.at(object))
            changed.push_back(object);
    }
    for (const core::ContentId& object : m_order) {
        if (!former.contains(object))
            changed.push_back(object);
    }
    if (!changed.empty())
        emit problemsChanged(changed);
    if (m_order != formerOrder)
        emit ownObjectsChanged();
}

void ContinuityProblems::finishNow()
{
    checkNow();
    while (m_isChecking) {
        m_pool.waitForDone();
        QCoreApplication::sendPostedEvents(this, QEvent::MetaCall);
    }
}

void ContinuityProblems::show(const core::ContentId& object, const Problem& problem)
{
    if (object.isNull()) {
        m_desk.navigator.say(problem.message);
        return;
    }
    if (!m_desk.session.project().contains(object)) {
        m_desk.navigator.say(shell::libraryNote(m_desk.session, object));
        return;
    }
    m_desk.navigator.open(pageOf(m_desk.session.project(), object));
    m_desk.navigator.setCurrent(object);
}

QStringList ContinuityProblems::suggestions(const core::ContentId& /*object*/, const Problem& /*problem*/)
{
    return {};
}

void ContinuityProblems::replace(
    const core::ContentId& /*object*/, const Problem& /*problem*/, const QString& /*suggestion*/)
{}

void ContinuityProblems::ignore(const core::ContentId& /*object*/, const Problem& /*problem*/) {}

bool ContinuityProblems::hasIgnored(const core::ContentId& /*object*/)
{
    return false;
}

void ContinuityProblems::restoreIgnored(const core::ContentId& /*object*/) {}

} // namespace tw::desktop::continuity
