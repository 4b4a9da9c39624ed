#include "core/map/Map.h"

#include "core/foundation/NameTable.h"

namespace tw::core::map {

using namespace Qt::Literals::StringLiterals;

namespace {

using GridName = foundation::NamedValue<GridKind>;

constexpr std::array gridKindNames{
    GridName{GridKind::None, "none"_L1},
    GridName{GridKind::Square, "square"_L1},
};

} // namespace

QLatin1String gridKindName(GridKind kind)
{
    return foundation::nameOf(gridKindNames, kind);
}

std::optional<GridKind> gridKindFromName(QStringView name)
{
    return foundation::valueNamed(gridKindNames, name);
}

Map::Map(ContentId id, QString title)
    : ContentObject(id, staticKind)
    , m_title(std::move(title))
{}

Map::~Map() = default;

bool operator==(const Map& left, const Map& right)
{
    return static_cast<const content::ContentObject&>(left) ==
               static_cast<const content::ContentObject&>(right) &&
           left.m_title == right.m_title && left.m_imageAssetPath == right.m_imageAssetPath &&
           left.m_regions == right.m_regions && left.m_routes == right.m_routes &&
           left.m_pins == right.m_pins && left.m_grid == right.m_grid && left.m_tokens == right.m_tokens &&
           left.m_travelSettings == right.m_travelSettings;
}

TravelSettings travelSettingsFor(const Map& map, const MapRoute& route)
{
    TravelSettings settings = map.travelSettings();
    if (!settings.travelSpeedPerHour)
        settings.travelSpeedPerHour = route.travel.travelSpeedPerHour;
    if (settings.distanceUnit.isEmpty())
        settings.distanceUnit = route.travel.distanceUnit;
    if (!settings.widthDistance)
        settings.widthDistance = route.travel.widthDistance;
    return settings;
}

} // namespace tw::core::map
