#include "app/timeline/ContinuityValidator.h"
#include "bench/Measurement.h"
#include "bench/Random.h"
#include "core/entity/Entity.h"
#include "core/map/Map.h"
#include "core/timeline/TimelineEvent.h"
#include "tests/app/timeline/LiteralTimelineCheck.h"

#include <QCommandLineParser>
#include <QCoreApplication>

#include <map>

using namespace Qt::Literals::StringLiterals;

namespace {

using tw::core::ContentId;
using tw::core::project::Project;

/** The program's share of what comparing every pair takes. */
constexpr double aim = 0.01;
constexpr int participantCount = 400;
constexpr int placeCount = 120;
constexpr int routeCount = 300;
constexpr int mostParticipantsOfAnEvent = 11;
constexpr qint64 minutesOfADay = 1440;

/** A long story: one event a day, an hour to three days long, with a cast and its places. */
class LongStory
{
public:
    LongStory(Project& project, int events)
        : m_project(project)
    {
        const std::vector<ContentId> cast = addEntities(participantCount);
        const std::vector<ContentId> places = addEntities(placeCount);
        addRoutes(places);
        const qint64 length = qint64{events} * minutesOfADay;
        for (int index = 0; index < events; ++index)
            addEvent(index, m_random.below(length), cast, places);
    }

    /** Of events that share a participant, counted for each who does. */
    [[nodiscard]] qint64 pairCount() const
    {
        qint64 pairs = 0;
        for (const auto& [id, count] : m_eventsOf)
            pairs += count * (count - 1) / 2;
        return pairs;
    }

private:
    std::vector<ContentId> addEntities(int count)
    {
        std::vector<ContentId> ids;
        for (int index = 0; index < count; ++index) {
            ids.push_back(m_random.id<ContentId>());
            m_project.add(std::make_unique<tw::core::entity::Entity>(
                ids.back(), tw::core::CategoryId(), u"Name %1"_s.arg(index)));
        }
        return ids;
    }

    void addRoutes(const std::vector<ContentId>& places)
    {
        auto map = std::make_unique<tw::core::map::Map>(m_random.id<ContentId>(), u"Map"_s);
        map->setTravelSettings({4.0, u"miles"_s, {}});
        std::vector<tw::core::map::MapRoute> routes;
        for (int index = 0; index < routeCount; ++index)
            routes.push_back(
                {m_random.oneOf(places),
                 m_random.oneOf(places),
                 static_cast<double>(m_random.between(5, 400)),
                 {}});
        map->setRoutes(std::move(routes));
        m_project.add(std::move(map));
    }

    void addEvent(
        int index, qint64 start, const std::vector<ContentId>& cast, const std::vector<ContentId>& places)
    {
        tw::core::timeline::EventDetails details;
        details.title = u"Event %1"_s.arg(index);
        details.startMinute = start;
        details.durationMinutes = m_random.chance(30) ? 0 : m_random.between(60, 3 * minutesOfADay);
        if (m_random.chance(85))
            details.locationId = m_random.oneOf(places);
        for (int count = m_random.count(1, mostParticipantsOfAnEvent); count > 0; --count) {
            const ContentId& id = m_random.oneOf(cast);
            if (std::ranges::find(details.participants, id) != details.participants.end())
                continue;
            details.participants.push_back(id);
            ++m_eventsOf[id];
        }
        m_project.add(std::make_unique<tw::core::timeline::TimelineEvent>(
            m_random.id<ContentId>(), std::move(details)));
    }

    Project& m_project;
    tw::bench::Random m_random{1};
    std::map<ContentId, qint64> m_eventsOf;
};

} // namespace

/** Prints how the continuity check compares with comparing every pair; 1 when the aim is missed. */
int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    QCommandLineParser parser;
    parser.setApplicationDescription(
        u"Measures the check of story time against comparing all pairs of events, both on one thread."_s);
    parser.addHelpOption();
    const QCommandLineOption repetitions(
        u"repetitions"_s, u"Runs, of which the best counts."_s, u"count"_s, u"3"_s);
    const QCommandLineOption events(u"events"_s, u"Events of the story."_s, u"count"_s, u"15000"_s);
    parser.addOptions({repetitions, events});
    parser.process(application);
    if (parser.value(repetitions).toInt() < 1 || parser.value(events).toInt() < 1)
        parser.showHelp(2);

    Project project;
    const LongStory story(project, parser.value(events).toInt());
    std::vector<tw::app::timeline::ContinuityConflict> expected;
    std::vector<tw::app::timeline::ContinuityConflict> found;
    const auto times = tw::bench::compare(
        {parser.value(repetitions).toInt(), tw::bench::Counted::Best},
        {[&] { expected = tw::test::literalTimelineCheck(project); }},
        {[&] { found = tw::app::timeline::validateTimeline(project); }});
    if (found != expected)
        qFatal("all pairs give %zu conflicts, the program %zu or others", expected.size(), found.size());

    tw::bench::ResultTable table;
    table.addTitle(u"%1 events, %2 participants, %3 pairs, %4 conflicts"_s.arg(
        parser.value(events), QString::number(participantCount), QString::number(story.pairCount()),
        QString::number(found.size())));
    table.addTimes(u"check continuity"_s, u"comparing every pair"_s, times, aim);
    return table.areAimsReached() ? 0 : 1;
}
