#pragma once

#include <Qt>

namespace tw::desktop::trees {

/** What the tree models give beside Qt's own roles. */
enum TreeRole
{
    /** What the row stands for, as text that stays the same across changes of the model. */
    IdRole = Qt::UserRole,
    /** Quiet text at the end of the row: words, a number of things. */
    CountRole,
    /** The colour of a dot before the count; none for no dot. */
    DotRole,
    /** First role that a model may use for itself. */
    FirstOwnRole,
};

} // namespace tw::desktop::trees
