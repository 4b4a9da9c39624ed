#pragma once

#include "app/codex/EditPlan.h"
#include "app/codex/NameOccurrences.h"

namespace tw::app::codex {

/** Something in which a name stands. */
struct NameHolder
{
    enum class Kind
    {
        Object,
        PlotThread,
        Category,
        ContinuityRule,
        EntityTemplate,
    };

    Kind kind = Kind::Object;
    /** Null for what is no object. */
    core::ContentId id;
    /** Its own name before the rename; empty for comments. */
    QString name;
    qsizetype count = 0;
};

struct RenamePlan
{
    EditPlan edits;
    /** What is changed, and how often the name stands there. */
    std::vector<NameHolder> renamed;
    /** Locked objects, and rules about them, in which the name stands and stays. */
    std::vector<NameHolder> locked;
    /** How many objects excluded from AI, and rules about them, hold the name, which stays there. */
    qsizetype excludedCount = 0;

    [[nodiscard]] qsizetype occurrenceCount() const;
};

/**
 * Every place in a project where a name stands as a whole word: names and aliases of objects; bodies of
 * documents with their variants and footnotes (snapshots are history and stay), synopses, points of view and
 * statuses; values of entities now and over time, and the choices and fixed values that categories give them;
 * descriptions of tasks and timeline events; comments, with the words of a text that they are about; names
 * and descriptions of plot threads; names of continuity rules and entity templates and the values in them.
 * Values that are no text (references, dates, numbers, booleans, addresses) stay.
 */
[[nodiscard]] RenamePlan planRename(const core::project::Project& project, const NameChange& change);

} // namespace tw::app::codex
