#pragma once

#include <QString>

namespace tw::app::workspace {
struct MountedLibrary;
}

/** What tools say about content they must not touch, word for word in one place. */
namespace tw::app::mcp {

[[nodiscard]] QString mountedNotEdited(const QString& name, const QString& library);
[[nodiscard]] QString mountedNotChanged(const QString& name, const QString& library);
[[nodiscard]] QString mountedNotOwn(const QString& name, const QString& library);
/** "From the mounted library '%1'.", for what is read. */
[[nodiscard]] QString mountedMark(const QString& library);
/** The same as a line of its own above an answer; nothing for the open project's own. */
[[nodiscard]] QString mountedHeading(const workspace::MountedLibrary* library);

[[nodiscard]] QString excludedFromChange(const QString& name);
[[nodiscard]] QString excludedFromUse(const QString& name);
[[nodiscard]] QString excluded(const QString& name);
/** "%1 entity(ies) excluded from AI were omitted." */
[[nodiscard]] QString excludedEntitiesOmitted(qsizetype count);

[[nodiscard]] QString locked(const QString& name);

} // namespace tw::app::mcp
