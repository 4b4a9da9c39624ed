#include "app/mcp/ToolFamilies.h"
#include "app/mcp/core/HistoryTools.h"
#include "app/mcp/core/PropertyMigrationTool.h"
#include "app/mcp/registry/Schema.h"

namespace tw::app::mcp {

using namespace Qt::Literals::StringLiterals;

ToolTable coreTools()
{
    return {
        {
            .access = ToolAccess::Changing,
            .title = u"Save the project"_s,
            .hints = {.isIdempotent = true},
            .spec =
                {u"save_project"_s,
                 u"Saves the project to disk immediately. Every tool that changes the project saves by "
                 u"itself, so this is needed only after an answer said that saving failed, or to save edits "
                 "the writer has made in the app. Refused, with nothing written, when the project changed on "
                 "disk since it was opened. Within the app the writer reviews those changes first; where no "
                 "app has the project open, call undo_last until nothing of this session is unsaved: the "
                 "project is then read again, and the changes can be repeated."_s,
                 makeObjectSchema({})},
            .handler = saveProject,
        },
        {
            .access = ToolAccess::Changing,
            .title = u"Undo the last changes"_s,
            .hints = {.isDestructive = true},
            .spec =
                {u"undo_last"_s,
                 u"Undoes the most recent change(s) made in this session and saves the project. Each "
                 u"changing tool call "
                 "is one change; \"count\" undoes several, newest first (default 1), and stops early when "
                 "nothing is "
                 "left. The history is shared with the desktop app: an edit that the writer made after your "
                 "last call "
                 "is undone before it, so call get_recent_changes first and undo only what you know to be yours."_s,
                 makeObjectSchema(
                     {{u"count"_s, integerProperty(u"How many changes to undo, newest first."_s, 1)}})},
            .handler = undoLast,
        },
        {
            .access = ToolAccess::ReadOnly,
            .title = u"Recent changes"_s,
            .spec =
                {u"get_recent_changes"_s,
                 u"Lists what this session has changed so far, oldest first -- the honest transcript of the "
                 u"server's "
                 "own edits. Holds the answer of every successful changing call and of every undo_last; "
                 "edits that the "
                 "writer makes in the app are not in it. Empty again when another project is opened."_s,
                 makeObjectSchema({})},
            .handler = getRecentChanges,
        },
        {
            .access = ToolAccess::Changing,
            .title = u"Back up the project"_s,
            .spec =
                {u"backup_project"_s,
                 u"Writes a timestamped .twbackup ZIP of the whole project into the user's backups folder "
                 u"(the same "
                 "place the desktop app backs up to), keeping the 15 most recent. Unsaved edits are saved "
                 "first, so "
                 "that the backup holds them. Call it before a change that is hard to take back, such as a "
                 "rename "
                 "across the project; restoring a backup is done in the desktop app."_s,
                 makeObjectSchema({})},
            .handler = backupProject,
        },
        {
            .access = ToolAccess::Changing,
            .title = u"Tidy up old properties"_s,
            .hints = {.isDestructive = true},
            .spec =
                {u"property_migration"_s,
                 u"The one-off tidy-up for a project built before codex properties became INHERITED rather "
                 u"than shared. "
                 "The rule is a count: a category property for which exactly one entity holds a value moves "
                 "down to "
                 "that entity and becomes its own; with no holder, or two or more, it stays. No value is "
                 "read, written "
                 "or deleted; only definitions move. \"preview\" (the default) lists what would move; show "
                 "it to the "
                 "writer before anything else. \"apply\" takes a full backup, then moves everything as one "
                 "undo step. "
                 "\"decline\" records that the writer does not want it. \"duplicates\" lists categories "
                 "whose names "
                 "differ only by HTML escaping; \"merge_duplicates\" takes a backup and makes one category "
                 "of each such "
                 "group, or only of the one called \"name\". Properties and categories whose entities are "
                 "locked or "
                 "excluded from AI are left alone."_s,
                 makeObjectSchema(
                     {{u"action"_s,
                       choiceProperty(
                           u"What to do."_s,
                           {u"preview"_s, u"apply"_s, u"decline"_s, u"duplicates"_s, u"merge_duplicates"_s},
                           Default::First)},
                      {u"name"_s,
                       textProperty(u"With \"merge_duplicates\": merge only the categories of this name, "
                                    "escaped or not. All groups when left out."_s)}})},
            .handler = propertyMigration,
        },
    };
}

void registerMcpCoreTools(McpServer& server, workspace::Workspace& workspace, McpChangeLog& changeLog)
{
    registerTools(server, workspace, changeLog, coreTools());
}

} // namespace tw::app::mcp
