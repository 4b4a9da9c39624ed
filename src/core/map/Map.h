#pragma once

#include "core/content/ContentObject.h"

#include <optional>
#include <vector>

namespace tw::core::map {

/** A place on the image: fractions of its width and height, 0..1 from the top left. */
struct MapPoint
{
    double x = 0;
    double y = 0;

    friend bool operator==(const MapPoint&, const MapPoint&) = default;
};

struct MapPin
{
    QString label;
    QString note;
    ContentId linkedEntityId;
    ContentId linkedMapId;
    QString layer;
    MapPoint position;

    friend bool operator==(const MapPin&, const MapPin&) = default;
};

struct MapRegion
{
    QString label;
    std::vector<MapPoint> points;
    ContentId linkedEntityId;
    ContentId linkedMapId;
    QString layer;
    /** Shown to players. */
    bool isRevealed = false;
    QString color;

    friend bool operator==(const MapRegion&, const MapRegion&) = default;
};

struct MapToken
{
    QString label;
    QString color;
    ContentId linkedEntityId;
    MapPoint position;

    friend bool operator==(const MapToken&, const MapToken&) = default;
};

/** How distances on the map become hours. Unset values fall back to the next source. */
struct TravelSettings
{
    /** Distance units an hour. */
    std::optional<double> travelSpeedPerHour;
    QString distanceUnit;
    /** The image's width in distance units. */
    std::optional<double> widthDistance;

    friend bool operator==(const TravelSettings&, const TravelSettings&) = default;
};

struct MapRoute
{
    ContentId fromEntityId;
    ContentId toEntityId;
    /** In the map's distance unit. */
    double distance = 0;
    /** Kept from files that store the settings on the route; used where the map has none. */
    TravelSettings travel;

    friend bool operator==(const MapRoute&, const MapRoute&) = default;
};

enum class GridKind : qint32
{
    None = 0,
    Square = 1,
};

[[nodiscard]] QLatin1String gridKindName(GridKind kind);
[[nodiscard]] std::optional<GridKind> gridKindFromName(QStringView name);

struct MapGrid
{
    GridKind kind = GridKind::None;
    /** Squares across the image; 0 when there is no grid. */
    qint32 columns = 0;

    friend bool operator==(const MapGrid&, const MapGrid&) = default;
};

class Map final : public content::ContentObject
{
public:
    static constexpr auto staticKind = content::ContentKind::Map;

    Map(ContentId id, QString title);
    ~Map() override;

    [[nodiscard]] const QString& title() const { return m_title; }
    void setTitle(QString title) { m_title = std::move(title); }

    /** Relative to the project, "assets/..."; empty for none. */
    [[nodiscard]] const QString& imageAssetPath() const { return m_imageAssetPath; }
    void setImageAssetPath(QString path) { m_imageAssetPath = std::move(path); }

    [[nodiscard]] const std::vector<MapRegion>& regions() const { return m_regions; }
    void setRegions(std::vector<MapRegion> regions) { m_regions = std::move(regions); }

    [[nodiscard]] const std::vector<MapRoute>& routes() const { return m_routes; }
    void setRoutes(std::vector<MapRoute> routes) { m_routes = std::move(routes); }

    [[nodiscard]] const std::vector<MapPin>& pins() const { return m_pins; }
    void setPins(std::vector<MapPin> pins) { m_pins = std::move(pins); }

    [[nodiscard]] const MapGrid& grid() const { return m_grid; }
    void setGrid(MapGrid grid) { m_grid = grid; }

    [[nodiscard]] const std::vector<MapToken>& tokens() const { return m_tokens; }
    void setTokens(std::vector<MapToken> tokens) { m_tokens = std::move(tokens); }

    [[nodiscard]] const TravelSettings& travelSettings() const { return m_travelSettings; }
    void setTravelSettings(TravelSettings settings) { m_travelSettings = std::move(settings); }

    friend bool operator==(const Map& left, const Map& right);

private:
    QString m_title;
    QString m_imageAssetPath;
    std::vector<MapRegion> m_regions;
    std::vector<MapRoute> m_routes;
    std::vector<MapPin> m_pins;
    MapGrid m_grid;
    std::vector<MapToken> m_tokens;
    TravelSettings m_travelSettings;
};

/** The settings that hold for a route: the map's, else the route's own. */
[[nodiscard]] TravelSettings travelSettingsFor(const Map& map, const MapRoute& route);

} // namespace tw::core::map
