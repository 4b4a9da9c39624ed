#pragma once

#include "core/undo/Command.h"

#include <memory>
#include <vector>

namespace tw::core::undo {

/** Several commands as one step: redone first to last, undone last to first. Owns its children. */
class CompositeCommand final : public Command
{
public:
    explicit CompositeCommand(QString label);
    ~CompositeCommand() override;

    void redo() override;
    void undo() override;
    [[nodiscard]] QString text() const override;

    /** Appends a command; null is ignored. Does not run it. */
    void add(std::unique_ptr<Command> command);
    /** Undoes and destroys the newest children until `count` are left. */
    void undoBackTo(qsizetype count);

    [[nodiscard]] bool isEmpty() const { return m_children.empty(); }
    [[nodiscard]] qsizetype count() const { return static_cast<qsizetype>(m_children.size()); }

private:
    QString m_label;
    std::vector<std::unique_ptr<Command>> m_children;
};

} // namespace tw::core::undo
