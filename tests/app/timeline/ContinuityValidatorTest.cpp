#include "app/timeline/ContinuityValidator.h"

#include "app/timeline/LiteralTimelineCheck.h"
#include "core/entity/Entity.h"
#include "core/map/Map.h"
#include "core/timeline/TimelineEvent.h"

#include <gtest/gtest.h>

#include <deque>
#include <limits>
#include <random>

using namespace Qt::Literals::StringLiterals;

namespace tw::app::timeline {

using core::CategoryId;
using core::ContentId;
using core::entity::Entity;
using core::entity::Lifespan;
using core::map::Map;
using core::project::Project;
using core::timeline::ConstraintKind;
using core::timeline::ContinuityRule;
using core::timeline::EventDetails;
using core::timeline::TimelineEvent;

namespace {

/** Ids that sort by their number, whatever the run. */
ContentId idOf(int number)
{
    return ContentId::fromString(u"00000000-0000-4000-8000-%1"_s.arg(number, 12, 10, QChar(u'0')));
}

struct Timing
{
    qint64 start = 0;
    qint64 duration = 0;
};

/** A small world: Ann (1), the quay (2), the tower (3), the mill (4), and events in the order of adding. */
class ContinuityValidatorTest : public testing::Test
{
protected:
    ContinuityValidatorTest()
    {
        addEntity(1, u"Ann"_s);
        addEntity(2, u"the quay"_s);
        addEntity(3, u"the tower"_s);
        addEntity(4, u"the mill"_s);
    }

    Entity& addEntity(int number, const QString& name, Lifespan lifespan = {})
    {
        auto entity = std::make_unique<Entity>(idOf(number), CategoryId(), name);
        entity->setLifespan(lifespan);
        Entity& added = *entity;
        m_project.add(std::move(entity));
        return added;
    }

    EventDetails& event(const QString& title, qint64 start, qint64 duration, int place)
    {
        EventDetails& details = m_details.emplace_back();
        details.title = title;
        details.startMinute = start;
        details.durationMinutes = duration;
        if (place != 0)
            details.locationId = idOf(place);
        details.participants = {idOf(1)};
        return details;
    }

    void route(int from, int to, double distance, double speed)
    {
        auto map = std::make_unique<Map>(ContentId::create(), u"Map"_s);
        map->setTravelSettings({speed, {}, {}});
        map->setRoutes({{idOf(from), idOf(to), distance, {}}});
        m_project.add(std::move(map));
    }

    QStringList messages(const codex::ObjectScope& scope = {})
    {
        int number = 100;
        for (EventDetails& details : m_details) {
            while (m_project.contains(idOf(number)))
                ++number;
            m_project.add(std::make_unique<TimelineEvent>(idOf(number), std::move(details)));
        }
        m_details.clear();
        QStringList texts;
        for (const ContinuityConflict& conflict : validateTimeline(m_project, scope))
            texts << conflict.message;
        return texts;
    }

    Project m_project;
    std::deque<EventDetails> m_details;
};

} // namespace

TEST_F(ContinuityValidatorTest, onlySpansThatShareTimeClash)
{
    const struct
    {
        const char* name;
        Timing first;
        Timing second;
        bool isClash;
    } cases[] = {
        {"equal moments", {10, 0}, {10, 0}, true},
        {"moments a minute apart", {10, 0}, {11, 0}, false},
        {"a moment at the start of a span", {10, 0}, {10, 5}, true},
        {"a moment at the end of a span", {15, 0}, {10, 5}, false},
        {"a span around a moment", {10, 5}, {12, 0}, true},
        {"a span that ends at a moment", {10, 5}, {15, 0}, false},
        {"spans that touch", {0, 720}, {720, 60}, false},
        {"spans that share a minute", {0, 721}, {720, 60}, true},
        {"one span within another", {0, 100}, {40, 10}, true},
        {"spans beyond the end of time",
         {std::numeric_limits<qint64>::max() - 1, 100},
         {std::numeric_limits<qint64>::max() - 2, 100},
         true},
        {"a length below zero counts as none", {10, -50}, {10, 0}, true},
    };
    for (const auto& row : cases) {
        SCOPED_TRACE(row.name);
        for (const ContentId& id : {idOf(100), idOf(101)})
            static_cast<void>(m_project.take(id));
        event(u"A"_s, row.first.start, row.first.duration, 2);
        event(u"B"_s, row.second.start, row.second.duration, 3);
        const QStringList expected =
            row.isClash ? QStringList(u"Ann is in two places at once: \"A\" and \"B\"."_s) : QStringList();
        EXPECT_EQ(messages(), expected);
    }
}

TEST_F(ContinuityValidatorTest, aJourneyMayFillTheGapButNotMore)
{
    const struct
    {
        const char* name;
        std::vector<std::pair<double, double>> distanceAndSpeed;
        qint64 secondStart;
        bool isConflict;
    } cases[] = {
        {"exactly the gap", {{10, 10}}, 70, false},
        {"a minute less", {{10, 10}}, 69, true},
        {"the faster of two routes decides", {{10, 10}, {10, 20}}, 40, false},
        {"also when it comes first", {{10, 20}, {10, 10}}, 39, true},
        {"a map without a speed has no routes", {{10, 0}}, 11, false},
        {"nor one with a speed below zero", {{10, -1}}, 11, false},
        {"a distance below zero is none", {{-10, 1}}, 11, false},
        {"spans that touch leave no time", {{0.01, 10}}, 10, true},
        {"no way takes no time", {{0, 10}}, 10, false},
    };
    for (const auto& row : cases) {
        SCOPED_TRACE(row.name);
        Project& project = m_project;
        for (const auto* map : objectsOf<Map>(project))
            static_cast<void>(project.take(map->id()));
        for (const ContentId& id : {idOf(100), idOf(101)})
            static_cast<void>(project.take(id));
        for (const auto& [distance, speed] : row.distanceAndSpeed)
            route(3, 2, distance, speed);
        // The later event stands first in the project.
        event(u"B"_s, row.secondStart, 5, 3);
        event(u"A"_s, 0, 10, 2);
        const QStringList expected =
            row.isConflict
                ? QStringList(
                      u"Ann cannot travel from the quay to the tower in time between \"A\" and \"B\"."_s)
                : QStringList();
        EXPECT_EQ(messages(), expected);
    }
}

TEST_F(ContinuityValidatorTest, theStagesComeInTheirOrder)
{
    addEntity(5, QString(), {100, 200});
    route(2, 3, 100, 1);
    event(u"Feast"_s, 90, 20, 9).participants = {idOf(5), idOf(8), idOf(5), ContentId(), idOf(7)};
    event(QString(), 100, 150, 2).participants = {idOf(5), idOf(1)};
    event(u"Storm"_s, 300, 0, 3);
    event(u"Storm"_s, 100, 0, 3).constraints = {
        {idOf(103), ConstraintKind::StartsAfter}, {idOf(100), ConstraintKind::StartsAfter},
        {idOf(77), ConstraintKind::EndsBefore},   {idOf(100), ConstraintKind::EndsBefore},
        {idOf(100), ConstraintKind(9)},           {idOf(102), ConstraintKind::HappensDuring}};
    EXPECT_EQ(
        messages(),
        QStringList(
            {u"\"Feast\" happens at a location that no longer exists."_s,
             u"\"Feast\" lists a participant that no longer exists."_s,
             u"\"Feast\" lists a participant that no longer exists."_s,
             u"Ann is in two places at once: \"Untitled event\" and \"Storm\"."_s,
             u"An entity is in two places at once: \"Feast\" and \"Untitled event\"."_s,
             u"An entity takes part in \"Feast\" before being born."_s,
             u"An entity takes part in \"Untitled event\" after death."_s,
             u"Ann cannot travel from the quay to the tower in time between \"Untitled event\" and \"Storm\"."_s,
             u"\"Storm\" must start after \"Feast\", but does not."_s,
             u"\"Storm\" must end before \"Feast\", but does not."_s,
             u"\"Storm\" must happen during \"Storm\", but does not."_s}));
}

TEST_F(ContinuityValidatorTest, whatIsHiddenIsNeitherNamedNorMissed)
{
    addEntity(5, u"Secret"_s, {100, 100}).setAiExcluded(true);
    route(2, 5, 1000, 1);
    event(u"A"_s, 0, 10, 2).participants = {idOf(1), idOf(5)};
    event(u"B"_s, 20, 10, 5);
    event(u"C"_s, 5, 10, 3).constraints = {{idOf(100), ConstraintKind::StartsAfter}};
    const codex::ObjectScope hiding{{}, [](const auto& object) { return object.isAiExcluded(); }};
    const QString clash = u"Ann is in two places at once: \"A\" and \"C\"."_s;
    const QString order = u"\"C\" must start after \"A\", but does not."_s;
    EXPECT_EQ(messages(hiding), QStringList({clash, order}));
    EXPECT_TRUE(messages().contains(u"Secret takes part in \"A\" before being born."_s));
    m_project.findForEdit(idOf(100))->setAiExcluded(true);
    EXPECT_EQ(messages(hiding), QStringList());

    route(3, 4, 1000, 1);
    event(u"D"_s, 50, 0, 4);
    EXPECT_EQ(
        messages(hiding),
        QStringList(u"Ann cannot travel from the tower to the mill in time between \"C\" and \"D\"."_s));
    for (const auto* map : objectsOf<Map>(m_project))
        m_project.findForEdit(map->id())->setAiExcluded(true);
    EXPECT_EQ(messages(hiding), QStringList());
}

TEST_F(ContinuityValidatorTest, librariesAnswerForWhatTheProjectDoesNotHold)
{
    Project library;
    EventDetails elsewhere;
    elsewhere.locationId = idOf(8);
    library.add(std::make_unique<Entity>(idOf(9), CategoryId(), u"Far Isle"_s));
    library.add(std::make_unique<TimelineEvent>(idOf(200), std::move(elsewhere)));
    event(u"A"_s, 0, 10, 9).participants = {idOf(9)};
    event(u"B"_s, 0, 10, 2).participants = {idOf(9)};
    EXPECT_EQ(messages().size(), 3) << "missing without the library";
    EXPECT_EQ(
        messages({{&library}, {}}), QStringList(u"Far Isle is in two places at once: \"A\" and \"B\"."_s));
}

namespace {

/** Few names, places and times, so that everything happens often; times also at the ends of the axis. */
class RandomTimeline
{
public:
    explicit RandomTimeline(quint32 seed)
        : m_random(seed)
    {}

    void fill(Project& project)
    {
        for (int number = 1; number <= 8; ++number) {
            auto entity = std::make_unique<Entity>(
                idOf(number), CategoryId(), below(8) == 0 ? QString() : QString::number(number));
            if (below(3) == 0)
                entity->setLifespan({instant(), instant()});
            project.add(std::move(entity));
        }
        for (int count = below(3); count > 0; --count)
            project.add(map());
        for (int number = 100; number < 100 + 25; ++number)
            project.add(std::make_unique<TimelineEvent>(idOf(number), details()));
    }

private:
    int below(int limit) { return static_cast<int>(m_random() % static_cast<quint32>(limit)); }

    qint64 instant()
    {
        if (below(40) == 0)
            return std::numeric_limits<qint64>::max() - below(4);
        if (below(40) == 0)
            return std::numeric_limits<qint64>::min() + below(4);
        return below(60) - 20;
    }

    EventDetails details()
    {
        EventDetails details;
        details.title = below(10) == 0 ? QString() : QChar(u'A' + below(26));
        details.startMinute = instant();
        details.durationMinutes = below(2) * below(15);
        // Numbers 9 and 10 are nobody.
        details.locationId = below(6) == 0 ? ContentId() : idOf(1 + below(9));
        for (int count = below(5); count > 0; --count)
            details.participants.push_back(below(12) == 0 ? ContentId() : idOf(1 + below(10)));
        for (int count = below(3); count > 0; --count)
            details.constraints.push_back({idOf(100 + below(27)), ConstraintKind(below(4))});
        return details;
    }

    std::unique_ptr<Map> map()
    {
        auto map = std::make_unique<Map>(ContentId::create(), QString());
        map->setAiExcluded(below(4) == 0);
        map->setTravelSettings({static_cast<double>(below(5) - 1), {}, {}});
        std::vector<core::map::MapRoute> routes;
        for (int count = below(12); count > 0; --count)
            routes.push_back({idOf(1 + below(9)), idOf(1 + below(9)), below(8) / 4.0 - 0.25, {}});
        map->setRoutes(std::move(routes));
        return map;
    }

    std::mt19937 m_random;
};

} // namespace

TEST(ContinuityValidator, saysWhatTheLiteralRulesSay)
{
    std::size_t found = 0;
    for (quint32 seed = 1; seed <= 2'000; ++seed) {
        Project project;
        RandomTimeline(seed).fill(project);
        const auto conflicts =
            validateTimeline(project, {{}, [](const auto& object) { return object.isAiExcluded(); }});
        const auto expected = test::literalTimelineCheck(project);
        found += conflicts.size();
        ASSERT_EQ(conflicts.size(), expected.size()) << "seed " << seed;
        for (std::size_t index = 0; index < conflicts.size(); ++index) {
            ASSERT_EQ(conflicts[index].message, expected[index].message) << "seed " << seed;
            ASSERT_EQ(conflicts[index].ids, expected[index].ids) << "seed " << seed;
        }
    }
    EXPECT_GT(found, 20'000U);
}

TEST_F(ContinuityValidatorTest, rulesSayWhatTheyExpectAndWhatIs)
{
    Entity& ann = *m_project.findAsForEdit<Entity>(idOf(1));
    ann.setValues({{u"age"_s, u"ten"_s}, {u"mood"_s, u"green"_s}, {u"height"_s, u" 1.75 "_s}});
    ann.setTimedValues({{u"mood"_s, {{10, u"Green"_s}, {20, u"100%2"_s}}}});
    const struct
    {
        QString field;
        QString comparison;
        QString operand;
        std::optional<qint64> instant;
        QString expected;
    } cases[] = {
        {u"mood"_s, u"equals"_s, u"green"_s, {}, {}},
        {u"mood"_s, u"equals"_s, u"Green"_s, {}, u"Ann's mood must be \"Green\", but is \"green\"."_s},
        {u"hair"_s, u"equals"_s, {}, {}, u"Ann's hair must be \"\", but is \"(unset)\"."_s},
        {u"hair"_s, u"notEquals"_s, u"red"_s, {}, {}},
        {u"mood"_s, u"notEquals"_s, u"green"_s, {}, u"Ann's mood must not be \"green\", but is \"green\"."_s},
        {u"mood"_s, u"contains"_s, u"REE"_s, {}, {}},
        {u"hair"_s, u"contains"_s, {}, {}, {}},
        {u"mood"_s,
         u"notContains"_s,
         u"REE"_s,
         {},
         u"Ann's mood must not contain \"REE\", but is \"green\"."_s},
        {u"age"_s, u"lessThan"_s, u"10"_s, {}, u"Ann's age must be less than \"10\", but is \"ten\"."_s},
        {u"height"_s, u"lessThan"_s, u"1.76"_s, {}, {}},
        {u"height"_s, u"lessOrEqual"_s, u"1.75"_s, {}, {}},
        {u"height"_s,
         u"greaterThan"_s,
         u"1.75"_s,
         {},
         u"Ann's height must be greater than \"1.75\", but is \" 1.75 \"."_s},
        {u"height"_s, u"greaterOrEqual"_s, u"175e-2"_s, {}, {}},
        {u"height"_s,
         u"lessThan"_s,
         u"inf"_s,
         {},
         u"Ann's height must be less than \"inf\", but is \" 1.75 \"."_s},
        {u"hair"_s, u"isEmpty"_s, u"x"_s, {}, {}},
        {u"mood"_s, u"isEmpty"_s, u"x"_s, {}, u"Ann's mood must be empty, but is \"green\"."_s},
        {u"hair"_s, u"isNonEmpty"_s, {}, {}, u"Ann's hair must be non-empty, but is \"(unset)\"."_s},
        {u"mood"_s, u"oneOf"_s, u"red|green||blue"_s, {}, {}},
        {u"mood"_s, u"oneOf"_s, u"red|green||blue"_s, 10,
         u"Ann's mood must be one of \"red, green, blue\", but is \"Green\"."_s},
        {u"mood"_s, u"equals"_s, u"green"_s, 9, {}},
        {u"mood"_s, u"equals"_s, u"%1"_s, 21, u"Ann's mood must be \"%1\", but is \"100%2\"."_s},
        {u"mood"_s, u"rhymesWith"_s, u"green"_s, {}, u"Ann's mood rhymesWith \"green\", but is \"green\"."_s},
    };
    for (const auto& row : cases) {
        SCOPED_TRACE((row.comparison + u' ' + row.operand).toStdString());
        const ContinuityRule rule{u"R"_s, idOf(1), row.field, row.comparison, row.operand, row.instant};
        const auto conflicts = validateRules(m_project, std::span(&rule, 1));
        ASSERT_EQ(conflicts.size(), row.expected.isEmpty() ? 0U : 1U);
        if (!conflicts.empty()) {
            EXPECT_EQ(conflicts[0].message, u"Rule \"R\": "_s + row.expected);
            EXPECT_EQ(conflicts[0].ids, std::vector{idOf(1)});
        }
    }
    const std::vector<ContinuityRule> lost{{u"L"_s, idOf(99), {}, {}, {}, {}}, {u"M"_s, {}, {}, {}, {}, {}}};
    const auto conflicts = validateRules(m_project, lost);
    ASSERT_EQ(conflicts.size(), 2U);
    EXPECT_EQ(conflicts[0].message, u"Rule \"L\" refers to an entity that is no longer in the project."_s);
}

TEST_F(ContinuityValidatorTest, aFixedFieldIsReadAsItsCategoryGivesIt)
{
    core::taxonomy::Field field;
    field.key = u"blood"_s;
    field.isFixed = true;
    field.fixedValue = u"red"_s;
    core::taxonomy::Category category;
    category.id = CategoryId::create();
    category.fields = {field};
    m_project.taxonomyForEdit().insert(category);
    Entity& ann = *m_project.findAsForEdit<Entity>(idOf(1));
    ann.setCategoryId(category.id);
    ann.setTimedValues({{u"blood"_s, {{0, u"blue"_s}}}});
    ann.setValue(u"blood"_s, u"blue"_s);
    const ContinuityRule rule{u"R"_s, idOf(1), u"blood"_s, u"equals"_s, u"red"_s, 5};
    EXPECT_TRUE(validateRules(m_project, std::span(&rule, 1)).empty());
}

} // namespace tw::app::timeline
