#pragma once

#include "core/project/Project.h"
#include "core/undo/SetFieldCommand.h"

namespace tw::core::project {

class SetProjectNameCommand final : public undo::SetFieldCommand<&Project::name, &Project::setName>
{
public:
    using SetFieldCommand::SetFieldCommand;
    [[nodiscard]] QString text() const override;
};

class SetSavedSearchesCommand final
    : public undo::SetFieldCommand<&Project::savedSearches, &Project::setSavedSearches>
{
public:
    using SetFieldCommand::SetFieldCommand;
    [[nodiscard]] QString text() const override;
};

class SetLibraryMountsCommand final
    : public undo::SetFieldCommand<&Project::libraryMounts, &Project::setLibraryMounts>
{
public:
    using SetFieldCommand::SetFieldCommand;
    [[nodiscard]] QString text() const override;
};

class SetPropertyMigrationAnswerCommand final
    : public undo::SetFieldCommand<&Project::propertyMigration, &Project::setPropertyMigration>
{
public:
    using SetFieldCommand::SetFieldCommand;
    [[nodiscard]] QString text() const override;
};

} // namespace tw::core::project
