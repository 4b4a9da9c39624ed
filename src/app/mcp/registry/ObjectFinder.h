#pragma once

#include "app/mcp/registry/KindWords.h"
#include "app/mcp/registry/ToolArguments.h"
#include "app/workspace/Workspace.h"
#include "core/content/ContentObject.h"
#include "core/foundation/Result.h"

#include <vector>

namespace tw::app::mcp {

/** What a tool wants of an object. Decides what is refused. */
enum class Purpose
{
    /** To show it: also from a mounted library. What is excluded from AI is not there. */
    Read,
    /** To point at it from elsewhere, as a participant or a place: also from a mounted library. */
    Refer,
    /** To use it without changing it, as the target of a comment: only the open project's own, locked or not.
     */
    Use,
    /** Only the open project's own that are neither locked nor excluded from AI. */
    Change,
};

struct FoundObject
{
    const core::content::ContentObject* object = nullptr;
    /** The mounted library it comes from; null for an object of the open project. */
    const workspace::MountedLibrary* library = nullptr;
};

/**
 * The one object of a kind with that name, ignoring blanks around it and the case of letters. Looks among the
 * open project's objects, then (entities) their aliases, then in the mounted libraries, and stops at the
 * first place that has one. "object" as the kind word means any kind. What comes back holds until the project
 * changes.
 *
 * The message of a failure is the whole answer: nothing or several of that name, or what the purpose refuses.
 */
[[nodiscard]] core::Result<FoundObject> resolveByName(
    const workspace::Workspace& workspace, const QString& name, const QString& kindWord, Purpose forChange);

/** The same by id. */
[[nodiscard]] core::Result<FoundObject> resolveById(
    const workspace::Workspace& workspace, const QString& id, const QString& kindWord, Purpose purpose);

/** What the arguments name: by "id" when that is given, else by the argument `subject`. */
[[nodiscard]] core::Result<FoundObject> resolveSubject(
    const workspace::Workspace& workspace, const ToolArguments& arguments, QStringView subject,
    const QString& kindWord, Purpose purpose);

/** What a purpose refuses of an object that is known already, from a list or by an id of another kind. */
[[nodiscard]] core::Result<void> checkPurpose(const FoundObject& found, Purpose purpose);

/** An object of a kind as its class; the library as in FoundObject. */
template <class Kind>
struct Found
{
    const Kind* object = nullptr;
    const workspace::MountedLibrary* library = nullptr;

    const Kind* operator->() const { return object; }
    const Kind& operator*() const { return *object; }
};

/** What the arguments name, to be read. */
template <class Kind>
[[nodiscard]] core::Result<Found<Kind>> findToRead(
    const workspace::Workspace& workspace, const ToolArguments& arguments, QStringView subject)
{
    const auto found =
        resolveSubject(workspace, arguments, subject, kindWord(Kind::staticKind), Purpose::Read);
    if (!found)
        return core::Failure{found.message()};
    return Found<Kind>{static_cast<const Kind*>(found.value().object), found.value().library};
}

/** What the arguments name, to be changed by commands. */
template <class Kind>
[[nodiscard]] core::Result<Kind*> findForChange(
    workspace::Workspace& workspace, const ToolArguments& arguments, QStringView subject)
{
    const auto found =
        resolveSubject(workspace, arguments, subject, kindWord(Kind::staticKind), Purpose::Change);
    if (!found)
        return core::Failure{found.message()};
    return workspace.projectForEdit().findAsForEdit<Kind>(found.value().object->id());
}

/** The id of an object to point at. */
template <class Kind>
[[nodiscard]] core::Result<core::ContentId> findToRefer(
    const workspace::Workspace& workspace, const QString& name)
{
    const auto found = resolveByName(workspace, name, kindWord(Kind::staticKind), Purpose::Refer);
    if (!found)
        return core::Failure{found.message()};
    return found.value().object->id();
}

/**
 * The same choice among things that are no objects of their own (plot threads, eras, rules): the position of
 * the one with that name.
 */
[[nodiscard]] core::Result<std::size_t> chooseByName(
    const QStringList& names, const QString& name, const QString& kindWord);

/** How many of the names are the same as that one. */
[[nodiscard]] qsizetype countNamed(const QStringList& names, const QString& name);

/** "No %1 named '%2' exists." */
[[nodiscard]] core::Failure noneNamed(const QString& kindWord, const QString& name);
/** "The name '%1' matches %2 %3s: ...", with the candidates as they are to be shown. */
[[nodiscard]] core::Failure severalNamed(
    const QString& kindWord, const QString& name, const QStringList& candidates);

/** Refuses a name that is blank or has several lines: lists give each name a line. */
[[nodiscard]] core::Result<void> checkNameText(const QString& name);

/** Refuses what checkNameText() does, and a name that another object of the kind has. Objects excluded from
 * AI do not count. */
[[nodiscard]] core::Result<void> checkNewName(
    const core::project::Project& project, core::content::ContentKind kind, const QString& name);
/** The same for a rename, where the object's own name does not count. */
[[nodiscard]] core::Result<void> checkRename(
    const core::project::Project& project, const core::content::ContentObject& object,
    const QString& newName);

} // namespace tw::app::mcp
