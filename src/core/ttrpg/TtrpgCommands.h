#pragma once

#include "core/ttrpg/RandomTable.h"
#include "core/ttrpg/StatBlock.h"
#include "core/undo/SetFieldCommand.h"

namespace tw::core::ttrpg {

class SetRandomTableCommand final
    : public undo::SetFieldCommand<&RandomTable::details, &RandomTable::setDetails>
{
public:
    using SetFieldCommand::SetFieldCommand;
    [[nodiscard]] QString text() const override;
};

class SetStatBlockCommand final : public undo::SetFieldCommand<&StatBlock::details, &StatBlock::setDetails>
{
public:
    using SetFieldCommand::SetFieldCommand;
    [[nodiscard]] QString text() const override;
};

} // namespace tw::core::ttrpg
