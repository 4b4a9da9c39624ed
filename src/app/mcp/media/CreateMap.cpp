#include "app/mcp/media/ImportableFile.h"
#include "app/mcp/media/MapArguments.h"
#include "app/mcp/media/MapTools.h"
#include "app/mcp/registry/ObjectFinder.h"
#include "app/mcp/registry/UndoStep.h"
#include "core/content/ContentCommands.h"
#include "core/entity/Entity.h"

namespace tw::app::mcp {

using namespace Qt::Literals::StringLiterals;
using core::ContentId;
using core::Failure;
using core::Result;
using core::content::ContentKind;
using core::entity::Entity;
using core::map::GridKind;
using core::map::Map;
using core::map::MapGrid;
using core::map::MapRegion;
using core::map::MapRoute;
using core::map::TravelSettings;
using workspace::Workspace;

namespace {

constexpr std::size_t fewestRegionPoints = 3;
constexpr qint64 mostGridColumns = 1000;

Result<MapGrid> readGrid(const ToolArguments& arguments)
{
    const GridKind kind =
        core::map::gridKindFromName(arguments.text(u"grid", u"none"_s)).value_or(GridKind::None);
    const auto columns = arguments.integer(u"grid_columns");
    if (kind == GridKind::None)
        return MapGrid{};
    if (!columns || *columns < 1 || *columns > mostGridColumns)
        return Failure{u"A square grid needs \"grid_columns\" from 1 to %1."_s.arg(mostGridColumns)};
    return MapGrid{kind, static_cast<qint32>(*columns)};
}

Result<TravelSettings> readTravelSettings(const ToolArguments& arguments)
{
    TravelSettings settings;
    settings.travelSpeedPerHour = arguments.number(u"travel_speed");
    settings.widthDistance = arguments.number(u"width_distance");
    settings.distanceUnit = arguments.text(u"distance_unit").trimmed();
    if (settings.travelSpeedPerHour.value_or(1) <= 0)
        return Failure{u"\"travel_speed\" must be above 0."_s};
    if (settings.widthDistance.value_or(1) <= 0)
        return Failure{u"\"width_distance\" must be above 0."_s};
    return settings;
}

Result<MapRegion> readRegion(const Workspace& workspace, const ToolArguments& arguments)
{
    MapRegion region;
    region.label = arguments.text(u"label").trimmed();
    region.layer = arguments.text(u"layer");
    region.isRevealed = arguments.boolean(u"revealed");
    for (const ToolArguments& point : arguments.records(u"points")) {
        auto read = readPoint(point);
        if (!read)
            return Failure{read.message()};
        region.points.push_back(read.value());
    }
    if (region.points.size() < fewestRegionPoints)
        return Failure{u"Region '%1' needs at least three points."_s.arg(region.label)};
    const auto color = readColor(arguments);
    if (!color)
        return Failure{color.message()};
    region.color = color.value();
    auto entity = readLink<Entity>(workspace, arguments, u"entity");
    if (!entity)
        return Failure{entity.message()};
    region.linkedEntityId = entity.value();
    auto subMap = readLink<Map>(workspace, arguments, u"map");
    if (!subMap)
        return Failure{subMap.message()};
    region.linkedMapId = subMap.value();
    return region;
}

Result<MapRoute> readRoute(const Workspace& workspace, const ToolArguments& arguments)
{
    MapRoute route;
    const auto from = readLink<Entity>(workspace, arguments, u"from");
    if (!from)
        return Failure{from.message()};
    const auto to = readLink<Entity>(workspace, arguments, u"to");
    if (!to)
        return Failure{to.message()};
    route.fromEntityId = from.value();
    route.toEntityId = to.value();
    if (route.fromEntityId.isNull() || route.toEntityId.isNull())
        return Failure{u"A route needs a place at both ends: \"from\" and \"to\" name entities."_s};
    route.distance = arguments.number(u"distance").value_or(0);
    if (route.distance < 0)
        return Failure{u"A route's \"distance\" cannot be below 0."_s};
    if (route.fromEntityId == route.toEntityId)
        return Failure{u"A route joins two different places; '%1' is given for both ends."_s.arg(
            arguments.text(u"from"))};
    return route;
}

/** The map as the arguments describe it, but for its image. */
Result<std::unique_ptr<Map>> readMap(const Workspace& workspace, const ToolArguments& arguments)
{
    auto map = std::make_unique<Map>(ContentId::create(), arguments.text(u"title").trimmed());
    if (const auto checked = checkNewName(workspace.project(), ContentKind::Map, map->title()); !checked)
        return Failure{checked.message()};
    const auto grid = readGrid(arguments);
    if (!grid)
        return Failure{grid.message()};
    map->setGrid(grid.value());
    auto travel = readTravelSettings(arguments);
    if (!travel)
        return Failure{travel.message()};
    map->setTravelSettings(std::move(travel).value());

    std::vector<MapRegion> regions;
    for (const ToolArguments& record : arguments.records(u"regions")) {
        auto region = readRegion(workspace, record);
        if (!region)
            return Failure{region.message()};
        regions.push_back(std::move(region).value());
    }
    map->setRegions(std::move(regions));
    std::vector<MapRoute> routes;
    for (const ToolArguments& record : arguments.records(u"routes")) {
        auto route = readRoute(workspace, record);
        if (!route)
            return Failure{route.message()};
        routes.push_back(std::move(route).value());
    }
    map->setRoutes(std::move(routes));
    return map;
}

Result<std::optional<ImportableFile>> findImage(const Workspace& workspace, const ToolArguments& arguments)
{
    const QString path = arguments.text(u"image_path");
    if (path.isEmpty())
        return std::optional<ImportableFile>();
    auto file = findImportableFile(workspace, path);
    if (!file)
        return Failure{file.message()};
    if (file.value().mediaKind != u"image")
        return Failure{u"'%1' is not an image."_s.arg(path)};
    return std::optional(std::move(file).value());
}

} // namespace

McpToolResult createMap(ToolContext& context, const ToolArguments& arguments)
{
    Workspace& workspace = context.workspace;
    auto map = readMap(workspace, arguments);
    if (!map)
        return McpToolResult::failure(map.message());
    const auto image = findImage(workspace, arguments);
    if (!image)
        return McpToolResult::failure(image.message());
    return applyAsUndoStep(workspace, context.changeLog, u"MCP: create map"_s, [&] {
        if (image.value()) {
            const auto imported = importIntoAssets(workspace, *image.value());
            if (!imported)
                return McpToolResult::failure(imported.message());
            map.value()->setImageAssetPath(imported.value());
        }
        const QString title = map.value()->title();
        workspace.undoStack().push(std::make_unique<core::content::AddObjectCommand>(
            workspace.projectForEdit(), std::move(map).value()));
        return McpToolResult::success(u"Created map '%1'."_s.arg(title));
    });
}

} // namespace tw::app::mcp
