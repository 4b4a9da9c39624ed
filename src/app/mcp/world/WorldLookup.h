// What the tools of this family look up and say alike.
#pragma once

#include "app/codex/ScopedLookup.h"
#include "app/mcp/registry/ObjectFinder.h"
#include "app/mcp/registry/ToolTable.h"

#include <optional>
#include <set>

namespace tw::app::mcp {

/** The "type" argument that narrows a name to one kind of object; readObjectType() refuses other words. */
[[nodiscard]] QJsonObject objectTypeProperty(const QString& description);
/** The kind it names, as in files ("timeline_event") or in words; none when it is absent. */
[[nodiscard]] core::Result<std::optional<core::content::ContentKind>> readObjectType(
    const ToolArguments& arguments);
/** What `type` narrows the argument `subject` to. */
[[nodiscard]] core::Result<FoundObject> findOfType(
    const workspace::Workspace& workspace, const ToolArguments& arguments, QStringView subject,
    Purpose purpose);

/** A category to read, with the project it belongs to. */
struct FoundCategory
{
    const core::taxonomy::Category* category = nullptr;
    const core::project::Project* project = nullptr;
    /** Null for one of the open project. */
    const workspace::MountedLibrary* library = nullptr;
};

/** The open project's category of that name or id, else that of a mounted library. */
[[nodiscard]] core::Result<FoundCategory> findCategoryToRead(
    const workspace::Workspace& workspace, const QString& name);
/** Only the open project's; those of libraries are refused. What comes back holds until the taxonomy changes.
 */
[[nodiscard]] core::Result<const core::taxonomy::Category*> findCategoryForChange(
    const workspace::Workspace& workspace, const QString& name);

/** Where engines look on behalf of an assistant: the libraries too, and nothing that is excluded from AI. */
[[nodiscard]] codex::ObjectScope assistantScope(const workspace::Workspace& workspace);

/** The object's name as answers give it: the id of one that has none. */
[[nodiscard]] QString shownName(const core::content::ContentObject& object);

/** A reference in words, also to mounted libraries: the name, "(an entity excluded from AI)" or "(missing)".
 */
[[nodiscard]] QString entityText(const workspace::Workspace& workspace, const core::ContentId& id);
/** A stored value in words: references as names, dates in the calendar. */
[[nodiscard]] QString valueText(
    const workspace::Workspace& workspace, const core::taxonomy::Field& field, const QString& value);

/** Refuses a change of other objects on the way, when one is locked or excluded from AI; `change` says what
 * for. */
[[nodiscard]] core::Result<void> checkHolders(
    const core::project::Project& project, const std::set<core::ContentId>& holders, const QString& change);

/** Each name in single quotes, parted by commas. */
[[nodiscard]] QString quotedList(const QStringList& names);

/** The trimmed name that an argument gives; blank names and those of several lines are refused. */
[[nodiscard]] core::Result<QString> readNewName(const ToolArguments& arguments, QStringView argument);

} // namespace tw::app::mcp
