#pragma once

#include "core/foundation/Id.h"
#include "core/project/Project.h"
#include "core/undo/UndoStack.h"

#include <functional>
#include <memory>
#include <type_traits>
#include <vector>

namespace tw::app::codex {

/**
 * Edits that are decided but not made: new values, and by their ids the objects they are for. An engine makes
 * one from a project it only reads; a tool shows what it says, or has it run on the same project before
 * anything else changes there.
 */
class EditPlan
{
public:
    /** Called when its turn comes: what earlier edits of the plan added is there then. */
    using Maker = std::function<std::unique_ptr<core::undo::Command>(core::project::Project&)>;

    /** Sets one field by its command; nothing happens when the object is gone by then. */
    template <class Command>
    void set(const core::ContentId& id, typename Command::Value value)
    {
        using Owner = typename Command::Owner;
        add([id, value = std::move(value)](core::project::Project& project) -> CommandPointer {
            Owner* owner = nullptr;
            if constexpr (std::is_same_v<Owner, core::content::ContentObject>)
                owner = project.findForEdit(id);
            else
                owner = project.findAsForEdit<Owner>(id);
            return owner ? std::make_unique<Command>(*owner, value) : nullptr;
        });
    }

    /** The same for the data of the whole project. */
    template <class Command>
    void setInProject(typename Command::Value value)
    {
        add([value = std::move(value)](core::project::Project& project) -> CommandPointer {
            return std::make_unique<Command>(project, value);
        });
    }

    void add(Maker maker) { m_makers.push_back(std::move(maker)); }
    void append(EditPlan other);

    [[nodiscard]] bool isEmpty() const { return m_makers.empty(); }

    using Runner = std::function<void(std::unique_ptr<core::undo::Command>)>;

    /** Has the edits run in order, each before the next is made; none is null. The caller makes them one
     * step. */
    void push(core::project::Project& project, const Runner& run) const;
    void push(core::project::Project& project, core::undo::UndoStack& undoStack) const;

private:
    using CommandPointer = std::unique_ptr<core::undo::Command>;

    std::vector<Maker> m_makers;
};

} // namespace tw::app::codex
