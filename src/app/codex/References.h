#pragma once

#include "app/codex/EditPlan.h"

#include <set>

namespace tw::app::codex {

/** Everything that refers to an object by its id, made to refer to another one. */
struct RepointPlan
{
    EditPlan edits;
    /** How many places refer to the object. */
    qsizetype referenceCount = 0;
    /** The objects that hold them; what holds for the whole project or a category is not among them. */
    std::set<core::ContentId> holders;
};

/**
 * Looks at every kind of object, the taxonomy and the data of the project: links of all kinds, values of
 * fields now and over time, and ids in texts and links. A list that would name the new object twice, or a
 * line from the new object to itself, loses one. What stands in the two objects themselves, snapshots of
 * documents and pins do not count.
 *
 * A null `to` only counts: its edits would take the references away.
 */
[[nodiscard]] RepointPlan planRepoint(
    const core::project::Project& project, const core::ContentId& from, const core::ContentId& to);

/** A value or text with the ids in it exchanged, and how many there were; one line holds an id once. */
struct RepointedText
{
    QString text;
    qsizetype count = 0;
};
[[nodiscard]] RepointedText repointedValue(
    const QString& value, const core::ContentId& from, const core::ContentId& to);

} // namespace tw::app::codex
