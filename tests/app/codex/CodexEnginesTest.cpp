#include "app/codex/EntityMerge.h"
#include "app/codex/ObjectRemoval.h"
#include "app/codex/ProjectRename.h"
#include "app/codex/References.h"
#include "core/content/ContentCommands.h"
#include "core/content/ObjectName.h"
#include "core/document/Document.h"
#include "core/map/Map.h"
#include "core/research/Comment.h"
#include "core/timeline/TimelineEvent.h"
#include "support/SampleWorld.h"

#include <gtest/gtest.h>

namespace tw::app::codex {

using namespace Qt::Literals::StringLiterals;
using core::ContentId;
using core::document::Document;
using core::entity::Entity;
using core::project::Project;

namespace {

/** The sample world, what it was at first, and its history. */
class CodexEnginesTest : public testing::Test
{
protected:
    CodexEnginesTest()
    {
        test::fillSampleWorld(project);
        test::fillSampleWorld(first);
    }

    /** Runs a plan as one step. */
    void run(const EditPlan& plan)
    {
        history.beginMacro({});
        plan.push(project, history);
        history.endMacro();
    }

    void expectUndone()
    {
        history.undo();
        EXPECT_TRUE(project == first);
    }

    const Entity& entity(const ContentId& id) const { return *project.findAs<Entity>(id); }

    const test::SampleWorld ids = test::sampleWorldIds();
    Project project;
    Project first;
    core::undo::UndoStack history;
};

} // namespace

TEST_F(CodexEnginesTest, aRenameReachesEveryTextAndNothingElse)
{
    const NameChange change{u"Marda"_s, u"Ysolde"_s};
    const RenamePlan plan = planRename(project, change);
    run(plan.edits);

    const auto& chapter = *project.findAs<Document>(ids.chapter);
    EXPECT_EQ(chapter.title(), u"Ysolde at Sea"_s);
    EXPECT_EQ(
        chapter.body().text,
        u"# Out\n\nThen *Ysolde* met [Ysolde]{.tw color=Marda glow} and Mardana.\n\n[Ysolde](entity:%1)"_s
            .arg(ids.marda.toString()));
    EXPECT_EQ(chapter.variants().list[0].body, u"Ysolde stays."_s);
    EXPECT_EQ(chapter.versions()[0].body, u"Marda drowns."_s);
    EXPECT_EQ(
        project.findAs<Document>(ids.scene)->body().text, u"EXT. QUAY\n\n_Ysolde_ waits.\n\nTOM\nYsolde?"_s);
    EXPECT_EQ(entity(ids.marda).aliases().first(), u"Captain Ysolde"_s);
    EXPECT_EQ(entity(ids.marda).value(u"summary"_s), u"Ysolde sails. MARDA drinks; Mardana does not."_s);
    EXPECT_EQ(entity(ids.marda).timedValues().at(u"rank"_s)[0].value, u"Ysolde's guard"_s);
    EXPECT_EQ(project.taxonomy().category(ids.characters)->fields[2].options[1], u"Ysolde's guard"_s);
    EXPECT_EQ(entity(ids.mardana).name(), u"Mardana"_s);
    EXPECT_EQ(project.plotThreads()[0].name, u"The fall of Ysolde"_s);
    EXPECT_EQ(project.findAs<core::map::Map>(ids.map)->pins()[0].label, u"Marda's Rest"_s);

    // 9 in the chapter, 2 in the scene, 4 in Marda, 1 each in Mardana, choice, caption, sheet and comment, 2
    // each in event, task and thread.
    EXPECT_EQ(plan.occurrenceCount(), 26);
    EXPECT_EQ(planRename(project, change).occurrenceCount(), 0);
    expectUndone();
}

TEST_F(CodexEnginesTest, aRenameLeavesAloneWhatMustNotBeChanged)
{
    project.findForEdit(ids.chapter)->setLocked(true);
    project.findForEdit(ids.marda)->setAiExcluded(true);
    const RenamePlan plan = planRename(project, {u"Marda"_s, u"Ysolde"_s});
    run(plan.edits);
    EXPECT_EQ(project.findAs<Document>(ids.chapter)->title(), u"Marda at Sea"_s);
    EXPECT_EQ(entity(ids.marda).name(), u"Marda"_s);
    ASSERT_EQ(plan.locked.size(), 1U);
    EXPECT_EQ(plan.locked[0].id, ids.chapter);
    EXPECT_EQ(plan.excludedCount, 1);
}

TEST_F(CodexEnginesTest, aRenameKeepsCommentsAndRulesWithTheTextsTheyAreAbout)
{
    const auto anchored = [&](const ContentId& target, const QString& body) {
        auto comment = std::make_unique<core::research::Comment>(
            ContentId::create(), core::research::CommentTarget{target, u"met Marda and"_s},
            core::research::CommentDetails{u"Ada"_s, body, {}, {}, false});
        const ContentId id = comment->id();
        project.insert(std::move(comment));
        return id;
    };
    const auto anchorOf = [&](const ContentId& id) {
        return project.findAs<core::research::Comment>(id)->target().anchor;
    };
    const ContentId onChapter = anchored(ids.chapter, u"Why?"_s);
    const ContentId onLocked = anchored(ids.scene, u"Marda?"_s);
    project.findForEdit(ids.scene)->setLocked(true);
    const auto rule = [](const QString& name, const ContentId& entity, const char* field,
                         const QString& value) {
        return core::timeline::ContinuityRule{name,       entity, QString::fromLatin1(field),
                                              u"oneOf"_s, value,  {}};
    };
    project.setContinuityRules(
        {rule(u"Marda's rank"_s, ids.mardana, "rank", u"Captain|Marda's guard"_s),
         rule(u"Text"_s, ids.mardana, "summary", u"MARDA|Marda"_s),
         rule(u"Age"_s, ids.mardana, "age", u"Marda"_s),
         rule(u"Gone"_s, ContentId::create(), "summary", u"Marda"_s),
         rule(u"Locked"_s, ids.vaertis, "ruler", u"Marda"_s),
         rule(u"Out"_s, ids.tom, "summary", u"Marda"_s)});
    project.findForEdit(ids.vaertis)->setLocked(true);
    project.findForEdit(ids.tom)->setAiExcluded(true);
    project.setEntityTemplates(
        {{u"Marda's crew"_s, ids.characters, {{u"summary"_s, u"Serves Marda."_s}, {u"age"_s, u"Marda"_s}}}});
    const auto rulesBefore = project.continuityRules();
    const auto templatesBefore = project.entityTemplates();

    const RenamePlan plan = planRename(project, {u"Marda"_s, u"Ysolde"_s});
    run(plan.edits);
    EXPECT_EQ(anchorOf(onChapter), u"met Ysolde and"_s);
    EXPECT_EQ(anchorOf(onLocked), u"met Marda and"_s);
    EXPECT_EQ(project.findAs<core::research::Comment>(onLocked)->details().body, u"Ysolde?"_s);
    QStringList rules;
    for (const auto& each : project.continuityRules())
        rules += each.name + u": "_s + each.value;
    EXPECT_EQ(
        rules, (QStringList{
                   u"Ysolde's rank: Captain|Ysolde's guard"_s, u"Text: MARDA|Ysolde"_s, u"Age: Marda"_s,
                   u"Gone: Marda"_s, u"Locked: Marda"_s, u"Out: Marda"_s}));
    const auto& sailor = project.entityTemplates()[0];
    EXPECT_EQ(sailor.name, u"Ysolde's crew"_s);
    EXPECT_EQ(sailor.fieldValues.at(u"summary"_s), u"Serves Ysolde."_s);
    EXPECT_EQ(sailor.fieldValues.at(u"age"_s), u"Marda"_s);
    ASSERT_EQ(plan.locked.size(), 2U);
    EXPECT_EQ(plan.locked[1].name, u"Locked"_s);
    EXPECT_EQ(plan.excludedCount, 1);
    history.undo();
    EXPECT_EQ(anchorOf(onChapter), u"met Marda and"_s);
    EXPECT_EQ(project.continuityRules(), rulesBefore);
    EXPECT_EQ(project.entityTemplates(), templatesBefore);
}

TEST_F(CodexEnginesTest, aRenamePassesOverValuesThatAreNoText)
{
    project.findAsForEdit<Entity>(ids.marda)->setValue(u"age"_s, u"1250"_s);
    // "1250" stands in a date and a number; part of an id stands in references.
    EXPECT_EQ(planRename(project, {u"1250"_s, u"1"_s}).occurrenceCount(), 0);
    EXPECT_EQ(planRename(project, {u"4222"_s, u"1"_s}).occurrenceCount(), 0);
}

TEST_F(CodexEnginesTest, aMergeLeavesNoReferenceToTheSource)
{
    const auto merge = planMerge(project, entity(ids.marda), entity(ids.mardana));
    ASSERT_TRUE(merge) << merge.message().toStdString();
    run(merge.value().edits);

    EXPECT_FALSE(project.contains(ids.marda));
    EXPECT_EQ(planRepoint(project, ids.marda, {}).referenceCount, 0);
    const Entity& target = entity(ids.mardana);
    EXPECT_EQ(target.value(u"summary"_s), u"Lives with Marda's brother."_s);
    EXPECT_EQ(target.value(u"age"_s), u"41"_s);
    EXPECT_EQ(target.aliases(), (QStringList{u"Marda"_s, u"Captain Marda"_s, u"The Gull"_s}));
    EXPECT_EQ(target.tags(), (core::content::NameSet{u"crew"_s, u"shore"_s}));
    EXPECT_EQ(target.lifespan(), (core::entity::Lifespan{0, 5000}));
    EXPECT_TRUE(project.isPinned(ids.mardana));
    // Nobody is there twice, and no way leads from a place to itself.
    EXPECT_EQ(entity(ids.tom).value(u"spouse"_s), ids.mardana.toString());
    EXPECT_EQ(
        project.findAs<core::timeline::TimelineEvent>(ids.event)->details().participants,
        std::vector{ids.mardana});
    EXPECT_EQ(project.findAs<core::map::Map>(ids.map)->routes().size(), 1U);
    expectUndone();
}

TEST_F(CodexEnginesTest, aMergeCountsEveryPlaceThatRefersToTheSource)
{
    const auto merge = planMerge(project, entity(ids.marda), entity(ids.mardana));
    // Tom: 1 + 1; liege, template, thread, rule: 1 each and 2; chapter 1; event 2; map 1 + 1 + 1 + 2; canvas
    // 1 + 1; comment, language and task 1 each.
    EXPECT_EQ(merge.value().repointedCount, 20);
    EXPECT_TRUE(merge.value().holders.contains(ids.canvas));
    EXPECT_FALSE(merge.value().holders.contains(ids.mardana));
}

TEST_F(CodexEnginesTest, aMergeTakesCategoriesAlongUnlessTheyHoldTheTarget)
{
    const auto moved = planMerge(project, entity(ids.vaertis), entity(ids.tom));
    ASSERT_TRUE(moved);
    run(moved.value().edits);
    EXPECT_EQ(project.taxonomy().category(ids.cities)->parentEntityId, ids.tom);
    EXPECT_EQ(project.taxonomy().category(ids.cities)->inheritedKeys, QStringList{u"ruler"_s});
    expectUndone();

    EXPECT_EQ(
        planMerge(project, entity(ids.vaertis), entity(ids.salthaven)).message(),
        u"Can't hang 'Cities' from 'Salthaven': that entity is already somewhere beneath it, so the tree would loop."_s);
    // Without a category of its own, it would be given the one that hangs under it.
    project.findAsForEdit<Entity>(ids.vaertis)->setCategoryId({});
    EXPECT_TRUE(planMerge(project, entity(ids.salthaven), entity(ids.vaertis))
                    .message()
                    .startsWith(u"Can't give 'Vaertis' the category 'Cities' of 'Salthaven':"_s));
    EXPECT_EQ(
        planMerge(project, entity(ids.tom), entity(ids.tom)).message(),
        u"An entity cannot be merged into itself."_s);
}

TEST_F(CodexEnginesTest, whatIsMergedOrSplitNeverRefersToItself)
{
    project.findAsForEdit<Entity>(ids.marda)->setValue(u"spouse"_s, ids.mardana.toString());
    project.findAsForEdit<Entity>(ids.mardana)->setValue(u"liege"_s, ids.marda.toString());
    run(planMerge(project, entity(ids.marda), entity(ids.mardana)).value().edits);
    EXPECT_FALSE(entity(ids.mardana).value(u"spouse"_s));
    EXPECT_EQ(entity(ids.mardana).value(u"liege"_s), QString());

    const auto split = splitOff(entity(ids.tom), {u"Tomas"_s, {u"spouse"_s, u"none"_s}, true});
    EXPECT_EQ(split->categoryId(), ids.nobles);
    EXPECT_EQ(split->values().size(), 1U);
    EXPECT_EQ(split->timedValues().at(u"spouse"_s).size(), 2U);
}

TEST_F(CodexEnginesTest, aRemovalSaysWhatItLeavesBehind)
{
    const RemovalPlan chapter = planRemoval(project, *project.find(ids.chapter));
    EXPECT_EQ(chapter.danglingCount, 1);
    EXPECT_EQ(chapter.unreachableCount, 1);
    const RemovalPlan place = planRemoval(project, *project.find(ids.vaertis));
    EXPECT_EQ(place.danglingCount, 1);
    EXPECT_EQ(place.rescuedCategoryCount, 1);
    run(place.edits);
    EXPECT_EQ(project.taxonomy().category(ids.cities)->parentId, ids.places);
    expectUndone();
}

} // namespace tw::app::codex
