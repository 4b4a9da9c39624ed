#include "core/undo/UndoStack.h"

#include <algorithm>

namespace tw::core::undo {

UndoStack::UndoStack() = default;
UndoStack::~UndoStack() = default;

void UndoStack::push(std::unique_ptr<Command> command)
{
    if (!command)
        return;
    forgetUnreachableCleanState();
    command->redo();
    if (m_openMacro)
        m_openMacro->add(std::move(command));
    else
        m_undoList.push_back(std::move(command));
    m_redoList.clear();
    update();
}

void UndoStack::undo()
{
    if (!canUndo())
        return;
    std::unique_ptr<Command> command = std::move(m_undoList.back());
    m_undoList.pop_back();
    command->undo();
    m_redoList.push_back(std::move(command));
    update();
}

void UndoStack::redo()
{
    if (!canRedo())
        return;
    std::unique_ptr<Command> command = std::move(m_redoList.back());
    m_redoList.pop_back();
    command->redo();
    m_undoList.push_back(std::move(command));
    update();
}

bool UndoStack::canUndo() const
{
    return !m_undoList.empty() && !m_openMacro;
}

bool UndoStack::canRedo() const
{
    return !m_redoList.empty() && !m_openMacro;
}

QString UndoStack::undoText() const
{
    return canUndo() ? m_undoList.back()->text() : QString();
}

QString UndoStack::redoText() const
{
    return canRedo() ? m_redoList.back()->text() : QString();
}

void UndoStack::beginMacro(const QString& label)
{
    if (m_openMacro) {
        ++m_macroDepth;
        return;
    }
    m_openMacro = std::make_unique<CompositeCommand>(label);
    m_macroDepth = 1;
    update();
}

void UndoStack::endMacro()
{
    if (!m_openMacro || --m_macroDepth >= 1)
        return;
    std::unique_ptr<CompositeCommand> macro = std::move(m_openMacro);
    const auto childCount = static_cast<qint32>(macro->count());
    const bool wasSavedInside = m_cleanMacroCount >= 0 && m_cleanIndex == undoLength();
    const bool wasSavedAtEnd = wasSavedInside && m_cleanMacroCount == childCount;
    // Saved between two children: once the macro is one step, no undo stops there any more.
    const bool wasSavedHalfWay = wasSavedInside && m_cleanMacroCount >= 1 && !wasSavedAtEnd;
    m_cleanMacroCount = noCleanCount;
    if (childCount > 0) {
        m_undoList.push_back(std::move(macro));
        if (wasSavedAtEnd)
            m_cleanIndex = undoLength();
    }
    if (wasSavedHalfWay)
        m_cleanIndex = noCleanState;
    update();
}

UndoStack::Position UndoStack::position() const
{
    return {static_cast<qsizetype>(m_undoList.size()), m_openMacro ? m_openMacro->count() : -1};
}

void UndoStack::rollbackTo(const Position& position)
{
    if (m_openMacro) {
        const qsizetype childrenLeft = std::max<qsizetype>(position.macroChildCount, 0);
        m_openMacro->undoBackTo(childrenLeft);
        if (m_cleanMacroCount > childrenLeft) {
            m_cleanMacroCount = noCleanCount;
            m_cleanIndex = noCleanState;
        }
        if (position.macroChildCount < 0) {
            m_openMacro.reset();
            m_macroDepth = 0;
            m_cleanMacroCount = noCleanCount;
        }
    }
    if (static_cast<qsizetype>(m_undoList.size()) > position.undoLength) {
        // What was undone before continues a history that is about to end earlier.
        m_redoList.clear();
        while (static_cast<qsizetype>(m_undoList.size()) > position.undoLength) {
            const std::unique_ptr<Command> newest = std::move(m_undoList.back());
            m_undoList.pop_back();
            newest->undo();
        }
        if (m_cleanIndex > undoLength())
            m_cleanIndex = noCleanState;
    }
    update();
}

void UndoStack::setClean()
{
    m_cleanIndex = undoLength();
    m_cleanMacroCount = m_openMacro ? static_cast<qint32>(m_openMacro->count()) : noCleanCount;
    update();
}

void UndoStack::markModified()
{
    m_cleanIndex = noCleanState;
    update();
}

bool UndoStack::isModified() const
{
    if (undoLength() != m_cleanIndex)
        return true;
    return m_openMacro && m_openMacro->count() != std::max(m_cleanMacroCount, 0);
}

void UndoStack::clear()
{
    m_undoList.clear();
    m_redoList.clear();
    m_openMacro.reset();
    m_macroDepth = 0;
    m_cleanMacroCount = noCleanCount;
    m_cleanIndex = 0;
    update();
}

void UndoStack::setModifiedCallback(std::function<void()> callback)
{
    m_modifiedCallback = std::move(callback);
    m_modified = isModified();
}

void UndoStack::forgetUnreachableCleanState()
{
    // The saved state lies among the undone commands, which are about to be destroyed.
    if (m_cleanIndex >= 1 && m_cleanIndex > undoLength())
        m_cleanIndex = noCleanState;
}

void UndoStack::update()
{
    const bool modified = isModified();
    if (modified == m_modified)
        return;
    m_modified = modified;
    if (m_modifiedCallback)
        m_modifiedCallback();
}

} // namespace tw::core::undo
