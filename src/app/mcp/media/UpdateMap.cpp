#include "app/mcp/media/MapArguments.h"
#include "app/mcp/media/MapTools.h"
#include "app/mcp/registry/UndoStep.h"
#include "core/entity/Entity.h"
#include "core/map/MapCommands.h"

namespace tw::app::mcp {

using namespace Qt::Literals::StringLiterals;
using core::Failure;
using core::Result;
using core::entity::Entity;
using core::map::Map;
using core::map::MapPin;
using core::map::MapRegion;
using core::map::MapToken;
using workspace::Workspace;

namespace {

/** One action: what changes, and what the answer says. Without a command nothing changes. */
struct MapChange
{
    std::unique_ptr<core::undo::Command> command;
    QString answer;
};

/** What one action works on. */
struct MapCall
{
    const Workspace& workspace;
    Map& map;
    const ToolArguments& arguments;
};

template <class Marked>
QStringList labelsOf(const std::vector<Marked>& marks)
{
    QStringList labels;
    for (const Marked& mark : marks)
        labels += mark.label;
    return labels;
}

/** The label of a new mark, which has to be there and to tell it from the others. */
template <class Marked>
Result<QString> newLabel(const MapCall& call, const std::vector<Marked>& marks, const QString& word)
{
    const QString label = call.arguments.text(u"label").trimmed();
    if (label.isEmpty())
        return Failure{u"A non-empty \"label\" is required."_s};
    if (const auto checked = checkNameText(label); !checked)
        return Failure{checked.message()};
    if (countNamed(labelsOf(marks), label) > 0)
        return Failure{u"A %1 named '%2' already exists."_s.arg(word, label)};
    return label;
}

Result<MapChange> addPin(const MapCall& call)
{
    auto label = newLabel(call, call.map.pins(), u"pin"_s);
    if (!label)
        return Failure{label.message()};
    const auto position = readPoint(call.arguments);
    if (!position)
        return Failure{position.message()};
    const auto entity = readLink<Entity>(call.workspace, call.arguments, u"entity");
    if (!entity)
        return Failure{entity.message()};
    MapPin pin;
    pin.label = label.value();
    pin.note = call.arguments.text(u"note");
    pin.linkedEntityId = entity.value();
    pin.position = position.value();
    std::vector<MapPin> pins = call.map.pins();
    pins.push_back(std::move(pin));
    return MapChange{
        std::make_unique<core::map::SetMapPinsCommand>(call.map, std::move(pins)),
        u"Added pin '%1' to map '%2'."_s.arg(label.value(), call.map.title())};
}

Result<MapChange> movePin(const MapCall& call)
{
    std::vector<MapPin> pins = call.map.pins();
    const auto chosen = chooseByName(labelsOf(pins), call.arguments.text(u"pin"), u"pin"_s);
    if (!chosen)
        return Failure{chosen.message()};
    const auto position = readPoint(call.arguments);
    if (!position)
        return Failure{position.message()};
    MapPin& pin = pins[chosen.value()];
    const QString label = pin.label;
    if (pin.position == position.value())
        return MapChange{nullptr, u"Pin '%1' already stands there; nothing changed."_s.arg(label)};
    pin.position = position.value();
    return MapChange{
        std::make_unique<core::map::SetMapPinsCommand>(call.map, std::move(pins)),
        u"Moved pin '%1' on map '%2'."_s.arg(label, call.map.title())};
}

Result<MapChange> addToken(const MapCall& call)
{
    auto label = newLabel(call, call.map.tokens(), u"token"_s);
    if (!label)
        return Failure{label.message()};
    const auto position = readPoint(call.arguments);
    if (!position)
        return Failure{position.message()};
    auto color = readColor(call.arguments);
    if (!color)
        return Failure{color.message()};
    const auto entity = readLink<Entity>(call.workspace, call.arguments, u"entity");
    if (!entity)
        return Failure{entity.message()};
    std::vector<MapToken> tokens = call.map.tokens();
    tokens.push_back({label.value(), color.value(), entity.value(), position.value()});
    return MapChange{
        std::make_unique<core::map::SetMapTokensCommand>(call.map, std::move(tokens)),
        u"Added token '%1' to map '%2'."_s.arg(label.value(), call.map.title())};
}

Result<MapChange> revealRegion(const MapCall& call)
{
    std::vector<MapRegion> regions = call.map.regions();
    const auto chosen = chooseByName(labelsOf(regions), call.arguments.text(u"region"), u"region"_s);
    if (!chosen)
        return Failure{chosen.message()};
    MapRegion& region = regions[chosen.value()];
    const bool isRevealed = call.arguments.boolean(u"revealed", true);
    const QString state = isRevealed ? u"revealed"_s : u"hidden"_s;
    const QString label = region.label;
    if (region.isRevealed == isRevealed)
        return MapChange{nullptr, u"Region '%1' is already %2; nothing changed."_s.arg(label, state)};
    region.isRevealed = isRevealed;
    return MapChange{
        std::make_unique<core::map::SetMapRegionsCommand>(call.map, std::move(regions)),
        u"Region '%1' of map '%2' is now %3."_s.arg(label, call.map.title(), state)};
}

Result<MapChange> rename(const MapCall& call)
{
    const QString title = call.arguments.text(u"new_title").trimmed();
    const QString former = call.map.title();
    if (const auto checked = checkRename(call.workspace.project(), call.map, title); !checked)
        return Failure{checked.message()};
    if (title == former)
        return MapChange{nullptr, u"Map '%1' already matches; nothing changed."_s.arg(title)};
    return MapChange{
        std::make_unique<core::map::SetMapTitleCommand>(call.map, title),
        u"Renamed map '%1' to '%2'."_s.arg(former, title)};
}

Result<MapChange> changeFor(const QString& action, const MapCall& call)
{
    if (action == u"add_pin")
        return addPin(call);
    if (action == u"move_pin")
        return movePin(call);
    if (action == u"add_token")
        return addToken(call);
    if (action == u"reveal_region")
        return revealRegion(call);
    return rename(call);
}

} // namespace

McpToolResult updateMap(ToolContext& context, const ToolArguments& arguments)
{
    const auto map = findForChange<Map>(context.workspace, arguments, u"title");
    if (!map)
        return McpToolResult::failure(map.message());
    auto change = changeFor(arguments.text(u"action"), {context.workspace, *map.value(), arguments});
    if (!change)
        return McpToolResult::failure(change.message());
    return applyAsUndoStep(context.workspace, context.changeLog, u"MCP: update map"_s, [&] {
        context.workspace.undoStack().push(std::move(change.value().command));
        return McpToolResult::success(change.value().answer);
    });
}

} // namespace tw::app::mcp
