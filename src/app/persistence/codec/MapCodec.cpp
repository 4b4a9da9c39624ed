#include "app/persistence/codec/KindCodec.h"

#include "core/map/Map.h"

using namespace Qt::Literals::StringLiterals;

namespace tw::app::persistence {

using core::map::GridKind;
using core::map::Map;
using core::map::MapGrid;
using core::map::MapPin;
using core::map::MapPoint;
using core::map::MapRegion;
using core::map::MapRoute;
using core::map::MapToken;
using core::map::TravelSettings;

template <>
struct NamesOf<GridKind>
{
    static constexpr auto name = &core::map::gridKindName;
    static constexpr auto fromName = &core::map::gridKindFromName;
};

template <>
struct RecordOf<MapPoint>
{
    static constexpr auto entries =
        std::tuple(always<Data<&MapPoint::x>>("x"_L1), always<Data<&MapPoint::y>>("y"_L1));
};

template <>
struct RecordOf<MapRegion>
{
    static constexpr auto entries = std::tuple(
        always<Data<&MapRegion::label>>("label"_L1), always<Data<&MapRegion::points>>("points"_L1),
        ifSet<Data<&MapRegion::linkedEntityId>>("linkedEntityId"_L1),
        ifSet<Data<&MapRegion::linkedMapId>>("linkedMapId"_L1), ifSet<Data<&MapRegion::layer>>("layer"_L1),
        always<Data<&MapRegion::isRevealed>>("revealed"_L1), ifSet<Data<&MapRegion::color>>("color"_L1));
};

template <>
struct RecordOf<MapRoute>
{
    static constexpr auto entries = std::tuple(
        always<Data<&MapRoute::fromEntityId>>("fromEntityId"_L1),
        always<Data<&MapRoute::toEntityId>>("toEntityId"_L1),
        always<Data<&MapRoute::distance>>("distance"_L1),
        ifSet<Data<&MapRoute::travel, &TravelSettings::travelSpeedPerHour>>("travelSpeedPerHour"_L1),
        ifSet<Data<&MapRoute::travel, &TravelSettings::distanceUnit>>("distanceUnit"_L1),
        ifSet<Data<&MapRoute::travel, &TravelSettings::widthDistance>>("widthDistance"_L1));
};

template <>
struct RecordOf<MapPin>
{
    static constexpr auto entries = std::tuple(
        always<Data<&MapPin::label>>("label"_L1), ifSet<Data<&MapPin::note>>("note"_L1),
        ifSet<Data<&MapPin::linkedEntityId>>("linkedEntityId"_L1),
        ifSet<Data<&MapPin::linkedMapId>>("linkedMapId"_L1), ifSet<Data<&MapPin::layer>>("layer"_L1),
        always<Data<&MapPin::position, &MapPoint::x>>("x"_L1),
        always<Data<&MapPin::position, &MapPoint::y>>("y"_L1));
};

template <>
struct RecordOf<MapToken>
{
    static constexpr auto entries = std::tuple(
        always<Data<&MapToken::label>>("label"_L1), ifSet<Data<&MapToken::color>>("color"_L1),
        ifSet<Data<&MapToken::linkedEntityId>>("linkedEntityId"_L1),
        always<Data<&MapToken::position, &MapPoint::x>>("x"_L1),
        always<Data<&MapToken::position, &MapPoint::y>>("y"_L1));
};

template <>
struct RecordOf<Map>
{
    static constexpr auto entries = std::tuple(
        always<Property<&Map::title, &Map::setTitle>>("title"_L1),
        ifSet<Property<&Map::imageAssetPath, &Map::setImageAssetPath>>("imageAssetPath"_L1),
        ifSet<Property<&Map::regions, &Map::setRegions>>("regions"_L1),
        ifSet<Property<&Map::routes, &Map::setRoutes>>("routes"_L1),
        ifSet<Property<&Map::pins, &Map::setPins>>("pins"_L1),
        ifSet<Part<&Map::grid, &Map::setGrid, &MapGrid::kind>>("gridKind"_L1),
        ifSet<Part<&Map::grid, &Map::setGrid, &MapGrid::columns>>("gridColumns"_L1),
        ifSet<Property<&Map::tokens, &Map::setTokens>>("tokens"_L1),
        ifSet<Part<&Map::travelSettings, &Map::setTravelSettings, &TravelSettings::travelSpeedPerHour>>(
            "travelSpeedPerHour"_L1),
        ifSet<Part<&Map::travelSettings, &Map::setTravelSettings, &TravelSettings::distanceUnit>>(
            "distanceUnit"_L1),
        ifSet<Part<&Map::travelSettings, &Map::setTravelSettings, &TravelSettings::widthDistance>>(
            "widthDistance"_L1));
};

KindCodec mapCodec()
{
    return objectKindCodec<Map, [](const core::ContentId& id) {
        return std::make_unique<Map>(id, QString());
    }>();
}

} // namespace tw::app::persistence
