#include "WorldFixture.h"
#include "core/document/Document.h"
#include "core/research/Comment.h"

#include <algorithm>
#include <array>

namespace tw::app::mcp {

using namespace Qt::Literals::StringLiterals;
using core::ContentId;
using core::entity::Entity;
using core::research::Comment;

namespace {

class ObjectToolsTest : public WorldFixture
{
protected:
    /** Arguments with the sample comment's id. */
    QByteArray onComment(const char* rest) const
    {
        return R"({"comment_id": ")" + ids.comment.toString().toUtf8() + '"' + rest + '}';
    }
};

} // namespace

TEST_F(ObjectToolsTest, objectsOfAnyKindAreDeleted)
{
    expectCalls({
        {"delete_object", R"({"name": "weather"})", oneStep, u"Deleted the random table 'Weather'."_s},
        {"delete_object", R"({"name": "Marda at Sea"})", oneStep,
         u"Deleted the document 'Marda at Sea'. 1 reference(s) to it elsewhere are now dangling. 1 "
         "document(s) under it are now unreachable from the manuscript; move them or undo. Until then they "
         "stand at the top level."_s},
        {"delete_object", R"({"name": "Vaertis", "type": "entity"})", oneStep,
         u"Deleted the entity 'Vaertis'. 1 reference(s) to it elsewhere are now dangling. 1 category(ies) "
         "that hung under it moved up to its own category."_s},
        {"delete_object", R"({"name": "Vaertis", "type": "map"})", failure,
         u"No map named 'Vaertis' exists."_s},
        {"delete_object", R"({"name": "Vaertis", "type": "ship"})", failure,
         u"Unknown object type 'ship'; use one of: document, entity, spreadsheet, chart, map, timeline, "
         "timeline_event, media, source, task, canvas, comment, language, random_table, stat_block."_s},
        {"delete_object", R"({"name": "nothing"})", failure, u"No object named 'nothing' exists."_s},
        {"delete_object", "{}", failure, u"delete_object needs \"name\" (or \"id\")."_s},
        {"delete_object", R"({"name": false})", failure, u"delete_object needs \"name\" (or \"id\")."_s},
        {"delete_object", R"({"id": ")" + ids.comment.toString().toUtf8() + "\"}", failure,
         u"Comments have no title and are not deleted by tools; close one with resolve_comment."_s},
    });
    // Several kinds may share a name.
    add<Entity>(ids.characters, u"Coast"_s);
    expectCalls({
        {"delete_object", R"({"name": "coast"})", failure,
         u"The name 'coast' matches 2 objects: 'Coast'; 'Coast'. Make the name unique in the desktop app, or "
         "use a more specific name."_s},
        {"delete_object", R"({"name": "coast", "type": "map"})", oneStep, u"Deleted the map 'Coast'."_s},
    });
}

TEST_F(ObjectToolsTest, visibilityTakesOnlyAudiencesOfTheProject)
{
    expectCalls({
        {"set_visibility", R"({"name": "Marda", "audiences": ["Players", "Editors", "Players"]})", oneStep,
         u"'Marda' is now visible to Editors, Players."_s},
        {"set_visibility", R"({"name": "Marda", "audiences": []})", none,
         u"The visibility of 'Marda' already matches; nothing changed."_s},
        {"set_visibility", R"({"name": "Marda", "audiences": ["Spies"]})", failure,
         u"Unknown audience 'Spies'; use one of: Players, Editors."_s},
        {"set_visibility", R"({"name": "Marda"})", failure,
         u"set_visibility needs \"name\" (or \"id\") and \"audiences\"."_s},
        {"set_visibility", R"({"name": "Marda", "audiences": [1]})", failure,
         u"Entry 1 of \"audiences\" must be a text."_s},
    });
    run("set_visibility", R"({"name": "Marda", "audiences": ["Players"]})");
    const QString blank =
        u"\"audiences\" holds a blank entry; name every audience, or pass an empty array to "
        "make the object visible to everyone."_s;
    expectCalls({
        {"set_visibility", R"({"name": "Marda", "audiences": [""]})", failure, blank},
        {"set_visibility", R"({"name": "Marda", "audiences": ["Players", " "]})", failure, blank},
        {"set_visibility", R"({"name": "Marda", "audiences": []})", oneStep,
         u"'Marda' is now visible to everyone."_s},
    });
}

TEST_F(ObjectToolsTest, exclusionFromAiIsSetAndTakenBack)
{
    expectCalls({
        {"set_ai_exclusion", R"({"name": "Marda at Sea"})", oneStep,
         u"'Marda at Sea' is now excluded from AI features (its content is withheld from the agent snapshot, "
         "the world index, and consistency checks)."_s},
        {"set_ai_exclusion", R"({"name": "Tom", "excluded": false})", none,
         u"'Tom' is already included in AI features."_s},
        {"set_ai_exclusion", R"({"name": "nobody"})", failure, u"No object named 'nobody' exists."_s},
        {"set_ai_exclusion", R"({"name": "Tom", "excluded": "no"})", failure,
         u"\"excluded\" must be true or false."_s},
    });
    run("set_ai_exclusion", R"({"name": "Tom"})");
    expectCalls({
        {"set_ai_exclusion", R"({"name": "tom"})", none, u"'Tom' is already excluded from AI."_s},
        {"delete_object", R"({"name": "Tom"})", failure,
         u"'Tom' is excluded from AI and cannot be changed."_s},
        {"set_ai_exclusion", R"({"name": "Tom", "excluded": false})", oneStep,
         u"'Tom' is included in AI features again."_s},
    });
}

TEST_F(ObjectToolsTest, commentsAreWrittenAnsweredAndResolved)
{
    const QString id = ids.comment.toString();
    expectCalls({
        {"add_comment", R"({"target": "Marda", "body": " "})", failure,
         u"A non-empty \"body\" is required."_s},
        {"add_comment", R"({"target": "Marda at Sea", "body": "x", "anchor": "no such words"})", failure,
         u"The words of \"anchor\" do not stand in 'Marda at Sea'. Quote them exactly as get_document shows "
         "them, or leave \"anchor\" out to comment on the whole."_s},
        {"add_comment", R"({"id": ")" + id.toUtf8() + R"(", "body": "x"})", failure,
         u"To answer a comment call reply_comment with its id."_s},
        {"add_comment", R"({"body": "x"})", failure,
         u"add_comment needs \"target\" (or \"id\") and \"body\"."_s},
        {"reply_comment", onComment(R"(, "body": "No.")"), oneStep, u"Replied to comment %1."_s.arg(id)},
        {"reply_comment", onComment(""), failure, u"reply_comment needs \"comment_id\" and \"body\"."_s},
        {"reply_comment", R"({"comment_id": "x", "body": "y"})", failure,
         u"No comment with id 'x' exists."_s},
        {"resolve_comment", onComment(""), oneStep, u"Comment %1 is now resolved."_s.arg(id)},
        {"resolve_comment", onComment(R"(, "resolved": false)"), none,
         u"Comment %1 is already open; nothing changed."_s.arg(id)},
        {"list_comments", R"({"target": "Vaertis"})", none, u"There are no open comments on 'Vaertis'."_s},
        {"list_comments", R"({"target": "Marda", "type": "entity"})", none,
         u"On the entity 'Marda'\n- [%1] Ada, open: Is Marda too old?"_s.arg(id)},
    });
    const QString added = run(
        "add_comment", R"({"target": "Marda at Sea", "body": "Why?\nTell.", "anchor": "Then Marda met"})");
    const QString addedId = added.section(u' ', 2, 2);
    EXPECT_EQ(added, u"Added comment %1 on 'Marda at Sea'."_s.arg(addedId));
    const auto* const comment = project().findAs<Comment>(core::ContentId::fromString(addedId));
    ASSERT_TRUE(comment);
    EXPECT_EQ(comment->details().author, u"Assistant"_s);
    run("reply_comment", onComment(R"(, "body": "No.", "author": "Bo")"));
    const QString list = run("list_comments", "{}");
    EXPECT_TRUE(
        list.contains(u"On the entity 'Marda'\n- [%1] Ada, open: Is Marda too old?\n  - ["_s.arg(id)));
    EXPECT_TRUE(list.contains(u"on \"Then Marda met\": Why? Tell."_s));
    run("resolve_comment", onComment(""));
    EXPECT_FALSE(run("list_comments", "{}").contains(id));
    EXPECT_TRUE(run("list_comments", R"({"include_resolved": true})").contains(id));

    entity(ids.marda).setAiExcluded(true);
    save();
    EXPECT_FALSE(run("list_comments", R"({"include_resolved": true})").contains(id));
    expectCall(
        {"resolve_comment", onComment(""), failure,
         u"'%1' is excluded from AI and cannot be changed."_s.arg(id)});
}

TEST_F(ObjectToolsTest, namesAreSearchedCheckedAndRenamed)
{
    expectCalls({
        {"search", R"({"query": "rum"})", none, u"- spreadsheet 'Cargo of Marda': barrels of rum"_s},
        {"search", R"({"query": "marda", "limit": 1, "type": "timeline_event"})", none,
         u"- timeline event 'Marda returns': Marda returns"_s},
        {"search", R"({"query": "unheard of"})", none, u"No matches for 'unheard of'."_s},
        {"search", R"({"query": " "})", failure, u"search needs \"query\"."_s},
        {"search", "{}", failure, u"search needs \"query\"."_s},
        {"check_name", R"({"name": "Mard", "max_distance": 1})", none,
         u"Names close to 'Mard':\n- Marda (entity) -- 1 edit(s) away"_s},
        {"check_name", R"({"name": "the gull", "max_distance": 0})", none,
         u"Names close to 'the gull':\n- The Gull (alias of 'Marda') -- ALREADY IN USE"_s},
        {"check_name", R"({"name": "Zebulon"})", none,
         u"Nothing within 2 edit(s) of 'Zebulon'; the name looks clear."_s},
        {"check_name", "{}", failure, u"check_name needs \"name\"."_s},
        {"check_name", R"({"name": ""})", failure, u"check_name needs \"name\"."_s},
        {"rename_object", R"({"old_name": "Marda", "new_name": "Ysolde %1"})", oneStep,
         u"Renamed 'Marda' to 'Ysolde %1': 26 occurrence(s) in 11 object(s)."_s},
        {"rename_object", R"({"old_name": "Mardi", "new_name": "X"})", none,
         u"'Mardi' occurs nowhere; nothing changed."_s},
        {"rename_object", R"({"old_name": "Marda", "new_name": "Marda"})", none,
         u"'Marda' is the same name; nothing changed."_s},
        {"rename_object", R"({"old_name": "Marda", "new_name": "Tom"})", failure,
         u"An entity named 'Tom' already exists; renaming onto it would leave both unreachable by name."_s},
        {"rename_object", R"({"old_name": "Wed", "new_name": "Wife"})", oneStep,
         u"Renamed 'Wed' to 'Wife': 1 occurrence(s) in 1 object(s)."_s},
        {"rename_object", R"({"old_name": "Sailor", "new_name": "Sailor's mate", "dry_run": true})", none,
         u"Would rename 'Sailor' to 'Sailor's mate': 1 occurrence(s) in 1 object(s). Nothing has been "
         "changed.\n- entity template 'Sailor': 1"_s},
        {"rename_object", R"({"old_name": "Marda", "new_name": " "})", failure,
         u"A non-empty name is required."_s},
        {"rename_object", R"({"old_name": "Marda"})", failure,
         u"rename_object needs \"old_name\" and \"new_name\"."_s},
        {"rename_object", R"({"old_name": "squall", "new_name": "x", "dry_run": 1})", failure,
         u"\"dry_run\" must be true or false."_s},
    });
    const QString dry =
        run("rename_object", R"({"old_name": "Marda", "new_name": "Ysolde", "dry_run": true})");
    EXPECT_TRUE(dry.startsWith(
        u"Would rename 'Marda' to 'Ysolde': 26 occurrence(s) in 11 object(s). Nothing has been changed.\n- "_s));
    EXPECT_TRUE(dry.contains(u"\n- document 'Marda at Sea': 9"_s));
    EXPECT_EQ(steps(), 0);

    workspace.projectForEdit().findForEdit(ids.scene)->setLocked(true);
    workspace.projectForEdit().findForEdit(ids.task)->setAiExcluded(true);
    save();
    expectCall(
        {"rename_object", R"({"old_name": "Marda", "new_name": "Ysolde"})", oneStep,
         u"Renamed 'Marda' to 'Ysolde': 22 occurrence(s) in 9 object(s).\nLeft alone because it is locked: "
         "document 'The Quay' (2 occurrence(s)).\nLeft alone because they are excluded from AI: 1 "
         "object(s)."_s});
}

TEST_F(ObjectToolsTest, commentsOnWhatIsHiddenTakeNoPlaceAmongTheResults)
{
    entity(ids.mardana).setAiExcluded(true);
    std::array<ContentId, 4> comments{
        ContentId::create(), ContentId::create(), ContentId::create(), ContentId::create()};
    // They are looked through in the order of their ids.
    std::ranges::sort(comments);
    for (std::size_t index = 0; index < comments.size(); ++index) {
        const core::research::CommentTarget target{index < 2 ? ids.mardana : ids.tom, {}};
        workspace.projectForEdit().add(std::make_unique<Comment>(
            comments.at(index), target, core::research::CommentDetails{{}, u"a lamprey"_s, {}, {}, false}));
    }
    save();
    const QString first = u"- comment '%1': a lamprey"_s.arg(comments.at(2).toString());
    expectCalls({
        {"search", R"({"query": "lamprey", "limit": 1})", none,
         first + u"\n\nOnly the first 1 are shown. Narrow the query, pass \"type\", or raise \"limit\" (at "
                 "most 500)."_s},
        {"search", R"({"query": "lamprey", "limit": 2})", none,
         first + u"\n- comment '%1': a lamprey"_s.arg(comments.at(3).toString())},
    });
}

TEST_F(ObjectToolsTest, theOverviewNamesEverythingByItsPlace)
{
    const QString text = run("get_project_overview", "{}");
    for (const QString& line :
         {u"# Tides"_s, u"- entity: 5"_s, u"- Characters: 2\n  - Nobles: 1"_s,
          u"- Cities: 1 (under the entity Vaertis)"_s, u"- Players\n- Editors"_s,
          u"Mounted libraries\n- none"_s, u"Calendar\n- months: "_s})
        EXPECT_TRUE(text.contains(line)) << line.toStdString() << "\n" << text.toStdString();
}

TEST_F(ObjectToolsTest, aSaveThatFailsIsSaidAndTheChangeStays)
{
    spoilSaving();
    const McpToolResult result = call("set_ai_exclusion", R"({"name": "Tom"})");
    EXPECT_FALSE(result.ok);
    EXPECT_TRUE(result.text.contains(u"can be undone, but saving failed: "_s));
    EXPECT_TRUE(entity(ids.tom).isAiExcluded());
}

} // namespace tw::app::mcp
