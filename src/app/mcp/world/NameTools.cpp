#include "app/codex/CloseNames.h"
#include "app/codex/ProjectRename.h"
#include "app/mcp/registry/Schema.h"
#include "app/mcp/registry/UndoStep.h"
#include "app/mcp/world/WorldLookup.h"
#include "app/mcp/world/WorldTools.h"
#include "core/content/ObjectName.h"

#include <algorithm>

namespace tw::app::mcp {

using namespace Qt::Literals::StringLiterals;
using codex::CloseName;
using codex::NameChange;
using codex::NameHolder;
using codex::RenamePlan;
using core::Failure;
using core::Result;
using core::project::Project;
using workspace::Workspace;

namespace {

constexpr qint64 defaultDistance = 2;
/** Names further apart than this have nothing to do with each other. */
constexpr qint64 mostDistance = 10;

QString holderText(const Project& project, const NameHolder& holder)
{
    switch (holder.kind) {
    case NameHolder::Kind::PlotThread:
        return u"plot thread '%1'"_s.arg(holder.name);
    case NameHolder::Kind::Category:
        return u"category '%1'"_s.arg(holder.name);
    case NameHolder::Kind::ContinuityRule:
        return u"continuity rule '%1'"_s.arg(holder.name);
    case NameHolder::Kind::EntityTemplate:
        return u"entity template '%1'"_s.arg(holder.name);
    case NameHolder::Kind::Object:
        break;
    }
    return u"%1 '%2'"_s.arg(
        kindWord(project.find(holder.id)->kind()),
        holder.name.isEmpty() ? holder.id.toString() : holder.name);
}

/** Refuses what would be called like another of those that are no objects. */
template <class Named>
Result<void> checkNamesake(
    const std::vector<Named>& others, QStringView kindWord, const QString& oldName, const QString& newName)
{
    const auto isTaken = [&](const Named& other) {
        return other.name != oldName &&
               core::content::foldedName(other.name) == core::content::foldedName(newName);
    };
    if (std::ranges::none_of(others, isTaken))
        return {};
    return Failure{
        u"A %1 named '%2' already exists; renaming onto it would leave both unreachable by name."_s.arg(
            kindWord, newName)};
}

/** Refuses a rename after which something could no longer be called by its name. */
Result<void> checkCollisions(const Project& project, const RenamePlan& plan, const NameChange& change)
{
    for (const NameHolder& holder : plan.renamed) {
        const QString newName = codex::renamedText(holder.name, change).text;
        if (newName == holder.name)
            continue;
        Result<void> checked;
        if (holder.kind == NameHolder::Kind::Object)
            checked = checkRename(project, *project.find(holder.id), newName);
        else if (holder.kind == NameHolder::Kind::PlotThread)
            checked = checkNamesake(project.plotThreads(), u"plot thread", holder.name, newName);
        else if (holder.kind == NameHolder::Kind::ContinuityRule)
            checked = checkNamesake(project.continuityRules(), u"continuity rule", holder.name, newName);
        if (!checked)
            return checked;
    }
    return {};
}

/** What the name still stands in afterwards, each on a line of its own. */
QString leftAlone(const Workspace& workspace, const RenamePlan& plan, const NameChange& change)
{
    QString text;
    for (const NameHolder& holder : plan.locked) {
        text += u"\nLeft alone because it is locked: %1 (%2 occurrence(s))."_s.arg(
            holderText(workspace.project(), holder), QString::number(holder.count));
    }
    if (plan.excludedCount > 0) {
        text += u"\nLeft alone because they are excluded from AI: %1 object(s)."_s.arg(
            QString::number(plan.excludedCount));
    }
    for (const workspace::MountedLibrary& library : workspace.libraries()) {
        const qsizetype count = codex::planRename(*library.project, change).occurrenceCount();
        if (count > 0) {
            text += u"\nLeft alone in the mounted library '%1': %2 occurrence(s)."_s.arg(
                library.name, QString::number(count));
        }
    }
    return text;
}

QString counts(const QString& sentence, const NameChange& change, const RenamePlan& plan)
{
    return sentence.arg(
        change.oldName, change.newName, QString::number(plan.occurrenceCount()),
        QString::number(plan.renamed.size()));
}

McpToolResult renameObject(ToolContext& context, const ToolArguments& arguments)
{
    const auto oldName = readNewName(arguments, u"old_name");
    if (!oldName)
        return McpToolResult::failure(oldName.message());
    const auto newName = readNewName(arguments, u"new_name");
    if (!newName)
        return McpToolResult::failure(newName.message());
    const NameChange change{oldName.value(), newName.value()};
    const Project& project = context.workspace.project();
    const RenamePlan plan = codex::planRename(project, change);
    const QString rest = leftAlone(context.workspace, plan, change);
    if (plan.renamed.empty() || change.oldName == change.newName) {
        const QString found = rest.isEmpty() ? u"'%1' occurs nowhere; nothing changed."_s
                                             : u"'%1' occurs nowhere else; nothing changed."_s;
        const QString same = u"'%1' is the same name; nothing changed."_s;
        return McpToolResult::success((plan.renamed.empty() ? found : same).arg(change.oldName) + rest);
    }
    if (const auto checked = checkCollisions(project, plan, change); !checked)
        return McpToolResult::failure(checked.message());
    if (arguments.boolean(u"dry_run")) {
        QString text = counts(
            u"Would rename '%1' to '%2': %3 occurrence(s) in %4 object(s). Nothing has been changed."_s,
            change, plan);
        for (const NameHolder& holder : plan.renamed)
            text += u"\n- %1: %2"_s.arg(holderText(project, holder), QString::number(holder.count));
        return McpToolResult::success(text + rest);
    }
    const QString label = u"MCP: rename '%1' to '%2'"_s.arg(change.oldName, change.newName);
    return applyAsUndoStep(context.workspace, context.changeLog, label, [&] {
        plan.edits.push(context.workspace.projectForEdit(), context.workspace.undoStack());
        return McpToolResult::success(
            counts(u"Renamed '%1' to '%2': %3 occurrence(s) in %4 object(s)."_s, change, plan) + rest);
    });
}

QString closeNameText(const CloseName& name, const workspace::MountedLibrary* library)
{
    QString what = kindWord(name.object->kind());
    if (name.isAlias)
        what = u"alias of '%1'"_s.arg(core::content::objectName(*name.object));
    if (library)
        what += u" in the mounted library '%1'"_s.arg(library->name);
    if (name.distance == 0)
        return u"- %1 (%2) -- ALREADY IN USE"_s.arg(name.text, what);
    return u"- %1 (%2) -- %3 edit(s) away"_s.arg(name.text, what, QString::number(name.distance));
}

McpToolResult checkName(ToolContext& context, const ToolArguments& arguments)
{
    const QString name = arguments.text(u"name").trimmed();
    if (name.isEmpty())
        return McpToolResult::failure(u"check_name needs \"name\"."_s);
    const auto most = static_cast<int>(arguments.integer(u"max_distance", defaultDistance, 0, mostDistance));
    std::vector<std::pair<CloseName, const workspace::MountedLibrary*>> close;
    const auto collect = [&](const Project& project, const workspace::MountedLibrary* library) {
        for (const CloseName& found : codex::closeNames(project, name, most))
            close.emplace_back(found, library);
    };
    collect(context.workspace.project(), nullptr);
    for (const workspace::MountedLibrary& library : context.workspace.libraries())
        collect(*library.project, &library);
    if (close.empty()) {
        return McpToolResult::success(
            u"Nothing within %1 edit(s) of '%2'; the name looks clear."_s.arg(QString::number(most), name));
    }
    std::ranges::stable_sort(close, [](const auto& left, const auto& right) {
        return left.first.distance != right.first.distance
                   ? left.first.distance < right.first.distance
                   : left.first.text.compare(right.first.text, Qt::CaseInsensitive) < 0;
    });
    QString text = u"Names close to '%1':"_s.arg(name);
    for (const auto& [found, library] : close)
        text += u'\n' + closeNameText(found, library);
    return McpToolResult::success(text);
}

} // namespace

Tool renameObjectTool()
{
    return {
        .access = ToolAccess::Changing,
        .title = u"Rename across the project"_s,
        .hints = {.isDestructive = true},
        .spec =
            {u"rename_object"_s,
             u"Renames every textual occurrence of a name across the whole project -- object names and "
             "aliases, document bodies, synopses, points of view and statuses, entity field values and "
             "state-over-time values, task and timeline-event descriptions, comment text, and plot-thread "
             "names and descriptions. Matches whole words in exactly the case given, so renaming 'Marda' "
             "never touches 'Mardana' or 'MARDA'; a possessive or a name in italics is matched. Variants and "
             "footnotes of documents, the words that a comment is anchored to, and the names and values of "
             "continuity rules and entity templates are included, version snapshots are history and stay, "
             "and so do "
             "formatting, link targets, and values that are no text (references follow the object by "
             "themselves). Locked objects, objects excluded from AI and mounted libraries are left alone, "
             "and the answer says where the name remains. Refused when an object would get a name that "
             "another one of its kind already has. Call it with \"dry_run\": true first to see every object "
             "it would change, and call check_name for the new name. The whole rename is one undo step. To "
             "change only one entity's name and nothing else use update_entity."_s,
             makeObjectSchema(
                 {{u"old_name"_s, textProperty(u"The name as it stands in the text, in its exact case."_s)},
                  {u"new_name"_s, textProperty(u"What takes its place everywhere."_s)},
                  {u"dry_run"_s, booleanProperty(u"Only report what would change."_s)}},
                 {u"old_name"_s, u"new_name"_s})},
        .handler = renameObject,
    };
}

Tool checkNameTool()
{
    return {
        // It only reads, but the list of what read mode offers is closed and does not hold it.
        .access = ToolAccess::Changing,
        .title = u"Check a name"_s,
        .hints = {.isIdempotent = true},
        .spec =
            {u"check_name"_s,
             u"Near-matches for a proposed name across every object title and entity alias, by edit "
             "distance. Call it before create_entity, create_document or rename_object, so that readers are "
             "not left with a Mara and a Marra. Upper and lower case do not count. \"max_distance\" (default "
             "2, at most 10) is how many letters may be inserted, removed or replaced; 0 lists only names "
             "that are the same. Nearest names come first, and one that is already taken is marked ALREADY "
             "IN USE. Mounted libraries are included, objects excluded from AI are not."_s,
             makeObjectSchema(
                 {{u"name"_s, textProperty(u"The proposed name."_s)},
                  {u"max_distance"_s,
                   integerProperty(u"How many edits away still counts."_s, defaultDistance)}},
                 {u"name"_s})},
        .handler = checkName,
    };
}

} // namespace tw::app::mcp
