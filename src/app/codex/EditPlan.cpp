#include "app/codex/EditPlan.h"

#include <iterator>

namespace tw::app::codex {

void EditPlan::append(EditPlan other)
{
    m_makers.insert(
        m_makers.end(), std::move_iterator(other.m_makers.begin()), std::move_iterator(other.m_makers.end()));
}

void EditPlan::push(core::project::Project& project, core::undo::UndoStack& undoStack) const
{
    for (const Maker& maker : m_makers)
        undoStack.push(maker(project));
}

} // namespace tw::app::codex
