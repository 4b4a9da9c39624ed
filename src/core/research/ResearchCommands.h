#pragma once

#include "core/research/Comment.h"
#include "core/research/Source.h"
#include "core/undo/SetFieldCommand.h"

namespace tw::core::research {

class SetSourceCommand final : public undo::SetFieldCommand<&Source::details, &Source::setDetails>
{
public:
    using SetFieldCommand::SetFieldCommand;
    [[nodiscard]] QString text() const override;
};

class SetCommentCommand final : public undo::SetFieldCommand<&Comment::details, &Comment::setDetails>
{
public:
    using SetFieldCommand::SetFieldCommand;
    [[nodiscard]] QString text() const override;
};

class SetCommentTargetCommand final : public undo::SetFieldCommand<&Comment::target, &Comment::setTarget>
{
public:
    using SetFieldCommand::SetFieldCommand;
    [[nodiscard]] QString text() const override;
};

} // namespace tw::core::research
