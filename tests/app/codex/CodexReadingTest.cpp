#include "app/codex/CloseNames.h"
#include "app/codex/FieldConversion.h"
#include "app/codex/FieldKeys.h"
#include "app/codex/ProjectTextSearch.h"
#include "app/codex/Relationships.h"
#include "app/codex/ValueConversion.h"
#include "core/content/ObjectName.h"
#include "core/document/Document.h"
#include "core/entity/Entity.h"
#include "support/RandomCommands.h"
#include "support/SampleWorld.h"

#include <gtest/gtest.h>

namespace tw::app::codex {

using namespace Qt::Literals::StringLiterals;
using core::content::ContentKind;
using core::entity::Entity;
using core::project::Project;
using core::taxonomy::FieldType;

namespace {

class CodexReadingTest : public testing::Test
{
protected:
    CodexReadingTest() { test::fillSampleWorld(project); }

    QStringList hits(const TextSearch& search) const
    {
        QStringList names;
        const auto found = searchTexts(project, search);
        for (const TextHit& hit : found.value())
            names.append(core::content::objectName(*hit.object) + u": "_s + hit.snippet);
        return names;
    }

    ConversionPlan convert(const QString& key, FieldType type, const QStringList& options = {})
    {
        ConversionPlan plan = planConversion(project, {ids.characters, key, type, options, {}});
        plan.edits.push(project, history);
        return plan;
    }

    QString value(const core::ContentId& id, const QString& key) const
    {
        return project.findAs<Entity>(id)->value(key).value_or(u"unset"_s);
    }

    const test::SampleWorld ids = test::sampleWorldIds();
    Project project;
    core::undo::UndoStack history;
};

} // namespace

TEST_F(CodexReadingTest, findsTextsOfEveryKindNamesFirst)
{
    EXPECT_EQ(hits({u"THE QUAY"_s, {}, 50}), QStringList{u"The Quay: The Quay"_s});
    const struct
    {
        QString text;
        QString expected;
    } cases[] = {
        {u"rum"_s, u"Cargo of Marda: barrels of rum"_s},
        {u"squall"_s, u"Weather: a squall"_s},
        {u"knots1"_s, u"Knots: knots1"_s},
        {u"too old"_s, u": Is Marda too old?"_s},
        {u"marda's guard"_s, u"Marda: Marda's guard"_s},
        {u"stays"_s, u"Marda at Sea: Marda stays."_s},
        {u"marda met marda"_s, u"Marda at Sea: Out Then Marda met Marda and Mardana. Marda"_s},
        {u"glow"_s, QString()},
        {u"drowns"_s, QString()},
        {ids.marda.toString(), QString()},
    };
    for (const auto& sample : cases)
        EXPECT_EQ(hits({sample.text, {}, 50}).join(u" / "_s), sample.expected) << sample.text.toStdString();
    EXPECT_EQ(hits({u"marda"_s, ContentKind::Task, 50}).size(), 1);
    EXPECT_EQ(hits({u"marda"_s, {}, 3}).size(), 3);
    EXPECT_FALSE(searchTexts(project, {QString(), {}, 50}));

    project.findForEdit(ids.chapter)->setAiExcluded(true);
    EXPECT_TRUE(hits({u"stays"_s, {}, 50}).isEmpty());
}

TEST_F(CodexReadingTest, listsCloseNamesNearestFirst)
{
    QStringList close;
    for (const CloseName& name : closeNames(project, u"mardan"_s, 2))
        close.append(u"%1 %2"_s.arg(name.text, QString::number(name.distance)));
    EXPECT_EQ(close, (QStringList{u"Marda 1"_s, u"Mardana 1"_s}));
    EXPECT_TRUE(closeNames(project, u"the gull"_s, 0).front().isAlias);
}

TEST_F(CodexReadingTest, convertsValuesAndKeepsWhatDoesNotSuit)
{
    ConversionPlan plan = convert(u"age"_s, FieldType::Text);
    EXPECT_EQ(plan.migratedCount, 3); // Marda, Tom beneath the branch that drops it, the template.
    plan = convert(u"age"_s, FieldType::Number);
    EXPECT_EQ(plan.migratedCount, 2);
    EXPECT_EQ(plan.kept, QStringList{u"old"_s});
    EXPECT_EQ(value(ids.tom, u"age"_s), u"old"_s);

    plan = convert(u"spouse"_s, FieldType::Text);
    EXPECT_EQ(value(ids.tom, u"spouse"_s), u"Marda\nMardana"_s);
    project.findAsForEdit<Entity>(ids.marda)->setValue(u"spouse"_s, u"the gull, TOM"_s);
    project.findAsForEdit<Entity>(ids.mardana)->setValue(u"spouse"_s, u"Marda, Nobody"_s);
    plan = convert(u"spouse"_s, FieldType::Reference);
    EXPECT_EQ(value(ids.tom, u"spouse"_s), ids.marda.toString() + u'\n' + ids.mardana.toString());
    EXPECT_EQ(value(ids.marda, u"spouse"_s), ids.marda.toString() + u'\n' + ids.tom.toString());
    EXPECT_EQ(plan.kept, QStringList{u"Marda, Nobody"_s});

    plan = convert(u"rank"_s, FieldType::Choice, {u"CAPTAIN"_s});
    EXPECT_EQ(value(ids.marda, u"rank"_s), u"CAPTAIN"_s);
    EXPECT_EQ(plan.kept, QStringList{u"Marda's guard"_s});

    project.findForEdit(ids.marda)->setLocked(true);
    EXPECT_EQ(convert(u"met"_s, FieldType::Text).untouchedCount, 1);
    EXPECT_EQ(value(ids.marda, u"met"_s), u"1250"_s);
}

TEST_F(CodexReadingTest, rulesGoOnComparingWithConvertedValues)
{
    const QString marda = ids.marda.toString();
    const QString mardana = ids.mardana.toString();
    const struct
    {
        core::ContentId entity;
        QString comparison;
        QString value;
        QString asText;
    } rules[] = {
        {ids.tom, u"equals"_s, marda + u'\n' + mardana, u"Marda\nMardana"_s},
        {ids.mardana, u"oneOf"_s, mardana + u'|' + marda, u"Mardana|Marda"_s},
        {ids.mardana, u"contains"_s, marda, u"Marda"_s},
        {ids.mardana, u"isEmpty"_s, marda, marda},
        {ids.mardana, u"rhymes"_s, marda, marda},
        {ids.vaertis, u"equals"_s, marda, marda},
        {core::ContentId::create(), u"equals"_s, marda, marda},
        {ids.marda, u"equals"_s, marda, marda},
    };
    std::vector<core::timeline::ContinuityRule> stored;
    for (const auto& rule : rules)
        stored.push_back({rule.comparison, rule.entity, u"spouse"_s, rule.comparison, rule.value, {}});
    project.setContinuityRules(stored);
    project.findForEdit(ids.marda)->setLocked(true);

    const ConversionPlan toText = convert(u"spouse"_s, FieldType::Text);
    for (std::size_t rule = 0; rule < stored.size(); ++rule)
        EXPECT_EQ(project.continuityRules()[rule].value, rules[rule].asText) << rule;
    EXPECT_EQ(toText.ruleCount, 3);
    EXPECT_EQ(toText.untouchedCount, 1);

    project.setContinuityRules({{u"Kin"_s, ids.mardana, u"spouse"_s, u"oneOf"_s, u"Tom|Nobody"_s, {}}});
    const ConversionPlan back = convert(u"spouse"_s, FieldType::Reference);
    EXPECT_EQ(project.continuityRules()[0].value, ids.tom.toString() + u"|Nobody"_s);
    ASSERT_EQ(back.keptOperands.size(), 1U);
    EXPECT_EQ(back.keptOperands[0].rule, u"Kin"_s);
    EXPECT_EQ(back.keptOperands[0].value, u"Nobody"_s);
}

TEST_F(CodexReadingTest, libraryEntitiesAreNamedAndFoundWhenValuesAreConverted)
{
    Project library;
    const auto guest = core::ContentId::create();
    library.insert(std::make_unique<Entity>(guest, core::CategoryId::create(), u"Guest"_s));
    library.insert(std::make_unique<Entity>(core::ContentId::create(), core::CategoryId::create(), u"tom"_s));
    const ObjectScope scope{{&library}, {}};
    const ValueConversion values(project, scope);
    const core::taxonomy::Field spouse = project.taxonomy().category(ids.characters)->fields[1];
    EXPECT_EQ(values.inWords(spouse, guest.toString()), u"Guest"_s);
    EXPECT_EQ(values.stored(spouse, u"guest"_s), guest.toString());
    EXPECT_EQ(values.stored(spouse, u"Tom"_s), ids.tom.toString());
    const ObjectScope hiding{{&library}, [](const auto&) { return true; }};
    EXPECT_EQ(ValueConversion(project, hiding).stored(spouse, u"Guest"_s), std::nullopt);
    EXPECT_EQ(ValueConversion(project, hiding).inWords(spouse, guest.toString()), guest.toString());
}

TEST_F(CodexReadingTest, datesBecomeTextAndComeBack)
{
    const qint64 instant = project.calendar().minutesFromParts({1250, 3, 4, 5, 6});
    project.findAsForEdit<Entity>(ids.marda)->setValue(u"met"_s, QString::number(instant));
    core::calendar::Calendar ofEras = project.calendar();
    // The label of all years is that of the era too, so that its count could pass for theirs.
    ofEras.setEraName(u"AF"_s);
    ofEras.setEras({{u"AF"_s, 100, false}});
    for (const core::calendar::Calendar& calendar : {project.calendar(), ofEras}) {
        project.setCalendar(calendar);
        convert(u"met"_s, FieldType::Text);
        EXPECT_TRUE(value(ids.marda, u"met"_s).startsWith(calendar.formatInstant(instant)));
        EXPECT_EQ(convert(u"met"_s, FieldType::Date).kept, QStringList());
        EXPECT_EQ(value(ids.marda, u"met"_s), QString::number(instant));
    }
}

TEST_F(CodexReadingTest, relationshipsSpanProjects)
{
    Project library;
    const auto inLibrary = core::ContentId::create();
    library.insert(std::make_unique<Entity>(inLibrary, core::CategoryId(), u"Queen"_s));
    project.findAsForEdit<Entity>(ids.mardana)
        ->setValue(
            u"spouse"_s, inLibrary.toString() + u"\nnobody\n"_s + core::ContentId::create().toString());
    const std::array projects{static_cast<const Project*>(&project), static_cast<const Project*>(&library)};
    QStringList lines;
    for (const Relationship& link : relationships(projects)) {
        lines.append(u"%1 %2 %3"_s.arg(link.from->name(), link.field, link.to ? link.to->name() : u"?"_s));
    }
    EXPECT_EQ(
        lines, (QStringList{
                   u"Mardana Spouse Queen"_s, u"Mardana Spouse ?"_s, u"Tom Spouse Marda"_s,
                   u"Tom Spouse Mardana"_s, u"Tom Liege Marda"_s}));
}

TEST_F(CodexReadingTest, searchingAnythingSurvivesRandomEdits)
{
    test::fillWithEveryKind(project);
    test::RandomCommands commands(project, 11);
    for (int round = 0; round < 300; ++round)
        history.push(commands.next());
    for (const QString& text : {u"a"_s, u"*"_s, u" "_s, u"é"_s, commands.text()}) {
        const auto found = searchTexts(project, {text, {}, 10'000});
        EXPECT_EQ(found.isOk(), !text.isEmpty());
    }
}

} // namespace tw::app::codex
