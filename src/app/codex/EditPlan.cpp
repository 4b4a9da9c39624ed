#include "app/codex/EditPlan.h"

#include <iterator>

namespace tw::app::codex {

void EditPlan::append(EditPlan other)
{
    m_makers.insert(
        m_makers.end(), std::move_iterator(other.m_makers.begin()), std::move_iterator(other.m_makers.end()));
}

void EditPlan::push(core::project::Project& project, const Runner& run) const
{
    for (const Maker& maker : m_makers) {
        if (auto command = maker(project))
            run(std::move(command));
    }
}

void EditPlan::push(core::project::Project& project, core::undo::UndoStack& undoStack) const
{
    push(project, [&undoStack](auto command) { undoStack.push(std::move(command)); });
}

} // namespace tw::app::codex
