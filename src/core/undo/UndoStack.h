#pragma once

#include "core/undo/CompositeCommand.h"

#include <functional>
#include <memory>
#include <vector>

namespace tw::core::undo {

/**
 * The history of one open project: owns every command from its execution until clear(). No depth limit, no
 * merging: each push is one step, or one child of the open macro. Main thread only.
 */
class UndoStack
{
public:
    /** A point of the history to come back to; see rollbackTo(). */
    struct Position
    {
        qsizetype undoLength = 0;
        /** Children of the open macro; -1 when none is open. */
        qsizetype macroChildCount = -1;

        friend bool operator==(const Position&, const Position&) = default;
    };

    UndoStack();
    ~UndoStack();

    UndoStack(const UndoStack&) = delete;
    UndoStack& operator=(const UndoStack&) = delete;

    /** Executes and records a command; null is ignored. Commands that were undone are destroyed. */
    void push(std::unique_ptr<Command> command);

    /** Nothing happens when there is nothing to revert or a macro is open. */
    void undo();
    void redo();
    [[nodiscard]] bool canUndo() const;
    [[nodiscard]] bool canRedo() const;
    /** The label of the step that undo() or redo() would take; empty when there is none. */
    [[nodiscard]] QString undoText() const;
    [[nodiscard]] QString redoText() const;

    /** Opens a macro, or deepens the open one, whose label then holds for the whole step. */
    void beginMacro(const QString& label);
    /** Closes one level; the outermost makes the macro one step, or nothing when it is empty. */
    void endMacro();
    [[nodiscard]] bool isMacroOpen() const { return m_openMacro != nullptr; }

    [[nodiscard]] Position position() const;
    /**
     * Undoes and destroys what came after `position`, also inside the open macro. A macro that was opened
     * after `position` is discarded with all its levels. The steps cannot be redone.
     */
    void rollbackTo(const Position& position);

    /** The present state is the saved one. */
    void setClean();
    /** No state counts as saved until the next setClean(). */
    void markModified();
    [[nodiscard]] bool isModified() const;
    /** Whether all that keeps the present state from being the saved one is that steps were undone. */
    [[nodiscard]] bool isSavedStateAhead() const { return !m_openMacro && m_cleanIndex > undoLength(); }

    /** Drops all history; not modified afterwards. */
    void clear();

    /** Called once on every change of isModified(). Installing it calls nothing. */
    void setModifiedCallback(std::function<void()> callback);

private:
    using CommandList = std::vector<std::unique_ptr<Command>>;

    static constexpr qint32 noCleanState = -1;
    static constexpr qint32 noCleanCount = -1;

    [[nodiscard]] qint32 undoLength() const { return static_cast<qint32>(m_undoList.size()); }
    void forgetUnreachableCleanState();
    void update();

    CommandList m_undoList;
    CommandList m_redoList;
    qint32 m_cleanIndex = 0;
    std::unique_ptr<CompositeCommand> m_openMacro;
    qint32 m_macroDepth = 0;
    qint32 m_cleanMacroCount = noCleanCount;
    std::function<void()> m_modifiedCallback;
    bool m_modified = false;
};

} // namespace tw::core::undo
