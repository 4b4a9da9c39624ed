#include "core/undo/CompositeCommand.h"

namespace tw::core::undo {

CompositeCommand::CompositeCommand(QString label)
    : m_label(std::move(label))
{}

CompositeCommand::~CompositeCommand() = default;

void CompositeCommand::redo()
{
    for (const auto& child : m_children)
        child->redo();
}

void CompositeCommand::undo()
{
    for (auto child = m_children.rbegin(); child != m_children.rend(); ++child)
        (*child)->undo();
}

QString CompositeCommand::text() const
{
    return m_label;
}

void CompositeCommand::add(std::unique_ptr<Command> command)
{
    if (command)
        m_children.push_back(std::move(command));
}

void CompositeCommand::undoBackTo(qsizetype count)
{
    while (this->count() > count) {
        const std::unique_ptr<Command> newest = std::move(m_children.back());
        m_children.pop_back();
        newest->undo();
    }
}

} // namespace tw::core::undo
