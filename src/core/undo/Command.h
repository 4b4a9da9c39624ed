#pragma once

#include <QString>

namespace tw::core::undo {

/**
 * One undoable change. Built with the new value; captures the old one when it runs, so that a command that is
 * executed late, or undone and redone, reverts to what the object held at that moment. Commands do not
 * validate and do not fail: callers check first; a command whose target is gone does nothing, both ways.
 *
 * A command that refers to an object directly relies on the rule that objects die only through the stack
 * (in the command that removed them) or when the whole history is cleared.
 */
class Command
{
public:
    virtual ~Command();

    Command(const Command&) = delete;
    Command& operator=(const Command&) = delete;

    /** Applies the change; also used the first time. */
    virtual void redo() = 0;
    virtual void undo() = 0;
    /** The label for the Edit menu and for lists of changes. */
    [[nodiscard]] virtual QString text() const = 0;

protected:
    Command() = default;
};

} // namespace tw::core::undo
