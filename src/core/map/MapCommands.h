#pragma once

#include "core/map/Map.h"
#include "core/undo/SetFieldCommand.h"

namespace tw::core::map {

class SetMapTitleCommand final : public undo::SetFieldCommand<&Map::title, &Map::setTitle>
{
public:
    using SetFieldCommand::SetFieldCommand;
    [[nodiscard]] QString text() const override;
};

class SetMapImageCommand final : public undo::SetFieldCommand<&Map::imageAssetPath, &Map::setImageAssetPath>
{
public:
    using SetFieldCommand::SetFieldCommand;
    [[nodiscard]] QString text() const override;
};

class SetMapGridCommand final : public undo::SetFieldCommand<&Map::grid, &Map::setGrid>
{
public:
    using SetFieldCommand::SetFieldCommand;
    [[nodiscard]] QString text() const override;
};

class SetMapPinsCommand final : public undo::SetFieldCommand<&Map::pins, &Map::setPins>
{
public:
    using SetFieldCommand::SetFieldCommand;
    [[nodiscard]] QString text() const override;
};

class SetMapRegionsCommand final : public undo::SetFieldCommand<&Map::regions, &Map::setRegions>
{
public:
    using SetFieldCommand::SetFieldCommand;
    [[nodiscard]] QString text() const override;
};

class SetMapRoutesCommand final : public undo::SetFieldCommand<&Map::routes, &Map::setRoutes>
{
public:
    using SetFieldCommand::SetFieldCommand;
    [[nodiscard]] QString text() const override;
};

class SetMapTokensCommand final : public undo::SetFieldCommand<&Map::tokens, &Map::setTokens>
{
public:
    using SetFieldCommand::SetFieldCommand;
    [[nodiscard]] QString text() const override;
};

class SetMapTravelSettingsCommand final
    : public undo::SetFieldCommand<&Map::travelSettings, &Map::setTravelSettings>
{
public:
    using SetFieldCommand::SetFieldCommand;
    [[nodiscard]] QString text() const override;
};

} // namespace tw::core::map
