#include "app/mcp/media/MapTools.h"

#include "app/mcp/references/ReferenceNames.h"
#include "app/mcp/registry/ObjectFinder.h"
#include "app/mcp/registry/Refusals.h"
#include "core/map/Map.h"

namespace tw::app::mcp {

using namespace Qt::Literals::StringLiterals;
using core::map::Map;
using core::map::MapPin;
using core::map::MapPoint;
using core::map::MapRegion;
using core::map::MapRoute;
using core::map::MapToken;
using core::map::TravelSettings;
using workspace::Workspace;

namespace {

constexpr int shownDecimals = 4;

QString numberText(double number)
{
    return QString::number(number, 'g', shownDecimals + 2);
}

QString pointText(const MapPoint& point)
{
    return u"at %1, %2"_s.arg(numberText(point.x), numberText(point.y));
}

QString labelText(const QString& label)
{
    return label.isEmpty() ? u"(unlabelled)"_s : label;
}

/** ", entity Ann", ", layer coast"; nothing for an empty value. */
QString detail(const QString& what, const QString& value)
{
    return value.isEmpty() ? QString() : u", %1 %2"_s.arg(what, value);
}

QStringList section(const QString& heading, const QStringList& lines)
{
    return lines.isEmpty() ? QStringList() : QStringList(heading) + lines;
}

QStringList regionLines(const Workspace& workspace, const Map& map)
{
    QStringList lines;
    for (const MapRegion& region : map.regions()) {
        lines += u"- %1: %2"_s.arg(labelText(region.label), region.isRevealed ? u"revealed"_s : u"hidden"_s) +
                 detail(u"layer"_s, region.layer) +
                 detail(u"entity"_s, referenceName(workspace, region.linkedEntityId)) +
                 detail(u"sub-map"_s, referenceName(workspace, region.linkedMapId));
    }
    return section(u"Regions:"_s, lines);
}

QStringList pinLines(const Workspace& workspace, const Map& map)
{
    QStringList lines;
    for (const MapPin& pin : map.pins()) {
        lines += u"- %1: %2"_s.arg(labelText(pin.label), pointText(pin.position)) +
                 detail(u"layer"_s, pin.layer) +
                 detail(u"entity"_s, referenceName(workspace, pin.linkedEntityId)) +
                 detail(u"sub-map"_s, referenceName(workspace, pin.linkedMapId)) +
                 detail(u"note"_s, pin.note.simplified());
    }
    return section(u"Pins:"_s, lines);
}

QStringList tokenLines(const Workspace& workspace, const Map& map)
{
    QStringList lines;
    for (const MapToken& token : map.tokens()) {
        lines += u"- %1: %2"_s.arg(labelText(token.label), pointText(token.position)) +
                 detail(u"colour"_s, token.color) +
                 detail(u"entity"_s, referenceName(workspace, token.linkedEntityId));
    }
    return section(u"Tokens:"_s, lines);
}

QString travelTime(const TravelSettings& settings, double distance)
{
    const double speed = settings.travelSpeedPerHour.value_or(0);
    return speed > 0 ? u", %1 hours"_s.arg(numberText(distance / speed)) : QString();
}

QStringList routeLines(const Workspace& workspace, const Map& map)
{
    QStringList lines;
    for (const MapRoute& route : map.routes()) {
        const TravelSettings settings = travelSettingsFor(map, route);
        const QString distance = u"%1 %2"_s.arg(numberText(route.distance), settings.distanceUnit).trimmed();
        lines += u"- %1 to %2: %3%4"_s.arg(
            labelText(referenceName(workspace, route.fromEntityId)),
            labelText(referenceName(workspace, route.toEntityId)), distance,
            travelTime(settings, route.distance));
    }
    return section(u"Routes:"_s, lines);
}

QStringList settingLines(const Map& map)
{
    QStringList lines{
        u"Image: %1"_s.arg(map.imageAssetPath().isEmpty() ? u"(none)"_s : map.imageAssetPath())};
    const TravelSettings& travel = map.travelSettings();
    const QString unit = travel.distanceUnit.isEmpty() ? u"units"_s : travel.distanceUnit;
    if (travel.widthDistance)
        lines += u"Scale: the image is %1 %2 wide."_s.arg(numberText(*travel.widthDistance), unit);
    if (travel.travelSpeedPerHour)
        lines += u"Travel speed: %1 %2 an hour."_s.arg(numberText(*travel.travelSpeedPerHour), unit);
    lines += map.grid().kind == core::map::GridKind::None
                 ? u"Grid: none"_s
                 : u"Grid: %1, %2 columns"_s.arg(
                       gridKindName(map.grid().kind), QString::number(map.grid().columns));
    return lines;
}

} // namespace

McpToolResult getMap(ToolContext& context, const ToolArguments& arguments)
{
    const auto found = findToRead<Map>(context.workspace, arguments, u"title");
    if (!found)
        return McpToolResult::failure(found.message());
    const Map& map = *found.value();
    QStringList lines{u"Map '%1'"_s.arg(map.title())};
    if (found.value().library)
        lines += mountedMark(found.value().library->name);
    lines += settingLines(map);
    lines += regionLines(context.workspace, map);
    lines += pinLines(context.workspace, map);
    lines += tokenLines(context.workspace, map);
    lines += routeLines(context.workspace, map);
    return McpToolResult::success(lines.join(u'\n'));
}

} // namespace tw::app::mcp
