#include "app/mcp/ToolFamilies.h"
#include "app/mcp/media/ImportableFile.h"
#include "app/mcp/media/MapTools.h"
#include "app/mcp/media/MediaTools.h"
#include "app/mcp/registry/Schema.h"

namespace tw::app::mcp {

using namespace Qt::Literals::StringLiterals;

namespace {

QJsonObject fractionProperty(const QString& axis)
{
    return numberProperty(u"%1 as a fraction of the image, 0 to 1, from the top left."_s.arg(axis));
}

QJsonObject regionProperty()
{
    const QJsonObject point = recordProperty(
        u"A corner of the outline."_s,
        {{u"x"_s, fractionProperty(u"Across,"_s)}, {u"y"_s, fractionProperty(u"Down,"_s)}}, {u"x"_s, u"y"_s});
    return recordProperty(
        u"A region."_s,
        {{u"label"_s, textProperty(u"Its name on the map."_s)},
         {u"points"_s, listProperty(u"The outline, three points or more."_s, point)},
         {u"layer"_s, textProperty(u"The layer it is drawn on."_s)},
         {u"entity"_s, textProperty(u"The name of the entity it shows."_s)},
         {u"map"_s, textProperty(u"The title of the map that it opens."_s)},
         {u"color"_s, textProperty(u"\"#rrggbb\"."_s)},
         {u"revealed"_s, booleanProperty(u"Shown to players."_s)}},
        {u"label"_s, u"points"_s});
}

QJsonObject routeProperty()
{
    return recordProperty(
        u"A direct way between two places."_s,
        {{u"from"_s, textProperty(u"The name of the place entity it starts at."_s)},
         {u"to"_s, textProperty(u"The name of the place entity it leads to."_s)},
         {u"distance"_s, numberProperty(u"In the map's distance unit, 0 or more."_s)}},
        {u"from"_s, u"to"_s, u"distance"_s});
}

QJsonObject createMapSchema()
{
    return makeObjectSchema(
        {{u"title"_s, textProperty(u"The map's title; no other map may have it."_s)},
         {u"image_path"_s, textProperty(u"An image file to copy into the project as the map's picture."_s)},
         {u"grid"_s, choiceProperty(u"The grid over the image."_s, {u"none"_s, u"square"_s}, Default::First)},
         {u"grid_columns"_s, integerProperty(u"Squares across the image, for a square grid."_s)},
         {u"travel_speed"_s,
          numberProperty(u"Distance units an hour, above 0; the continuity check needs it."_s)},
         {u"distance_unit"_s, textProperty(u"What distances are counted in, e.g. \"miles\"."_s)},
         {u"width_distance"_s, numberProperty(u"How wide the image is in distance units."_s)},
         {u"regions"_s, listProperty(u"Regions of the map."_s, regionProperty())},
         {u"routes"_s, listProperty(u"Travel routes between places."_s, routeProperty())}},
        {u"title"_s});
}

QJsonObject updateMapSchema()
{
    return makeSubjectSchema(
        u"title"_s, u"The map's title."_s,
        {{u"action"_s,
          choiceProperty(
              u"What to do."_s,
              {u"add_pin"_s, u"move_pin"_s, u"add_token"_s, u"reveal_region"_s, u"rename"_s}, Default::None)},
         {u"label"_s, textProperty(u"The label of the new pin or token."_s)},
         {u"pin"_s, textProperty(u"The label of the pin to move."_s)},
         {u"x"_s, fractionProperty(u"Across,"_s)},
         {u"y"_s, fractionProperty(u"Down,"_s)},
         {u"note"_s, textProperty(u"A note for the new pin."_s)},
         {u"color"_s, textProperty(u"The new token's colour, \"#rrggbb\"."_s)},
         {u"entity"_s, textProperty(u"The name of the entity that the new pin or token shows."_s)},
         {u"region"_s, textProperty(u"The label of the region to reveal or hide."_s)},
         {u"revealed"_s, booleanProperty(u"False hides the region again."_s, true)},
         {u"new_title"_s, textProperty(u"The map's new title."_s)}},
        {u"action"_s});
}

ToolTable mapTools()
{
    return {
        {
            .access = ToolAccess::ReadOnly,
            .title = u"Read a map"_s,
            .hints = {.isIdempotent = true},
            .spec =
                {u"get_map"_s,
                 u"Reads a map: its regions (with layers, reveal state, linked entities, and sub-maps), "
                 u"pins, "
                 "tokens, travel routes, scale, and grid. Places are fractions of the image from its top "
                 "left "
                 "corner, 0 to 1. Routes show their distance and, where the map has a travel speed, how many "
                 "hours they take. Call it before update_map: pins, tokens and regions are addressed by the "
                 "labels it prints."_s,
                 makeSubjectSchema(u"title"_s, u"The map's title."_s)},
            .subject = u"title"_s,
            .handler = getMap,
        },
        {
            .access = ToolAccess::Changing,
            .title = u"Create a map"_s,
            .hints = {.isOpenWorld = true},
            .spec =
                {u"create_map"_s,
                 u"Creates a map. Only \"title\" is required; without \"image_path\" the map has no picture "
                 u"yet. "
                 "The image is copied into the project's assets: png, jpg, gif, webp, bmp or svg, at most 20 "
                 "MB, "
                 "a relative path starting at the project folder, no part of it beginning with a dot. "
                 "Regions "
                 "and routes point at entities by name, so create those first with create_entity. Give "
                 "\"travel_speed\" along with routes: get_conflicts then finds journeys that take longer "
                 "than "
                 "there is time. Refused are a title that another map has, points outside 0 to 1, and routes "
                 "from a place to itself."_s,
                 createMapSchema()},
            .handler = createMap,
        },
        {
            .access = ToolAccess::Changing,
            .title = u"Edit a map"_s,
            .spec =
                {u"update_map"_s,
                 u"Edits a map with one action: add_pin (label, x, y, optional note), move_pin (pin, x, y), "
                 "add_token (label, x, y, optional color and entity), reveal_region (region, optional "
                 "revealed=false to hide), or rename (new_title). A pin may name an \"entity\" as well. "
                 "Labels "
                 "of pins, and of tokens, have to differ from each other. Call get_map first for the labels. "
                 "Places are fractions of the image from its top left corner, 0 to 1; anything else is "
                 "refused. "
                 "Nothing is removed by this tool."_s,
                 updateMapSchema()},
            .subject = u"title"_s,
            .handler = updateMap,
        },
    };
}

ToolTable mediaTools()
{
    return {
        {
            .access = ToolAccess::ReadOnly,
            .title = u"List media"_s,
            .hints = {.isIdempotent = true},
            .spec =
                {u"list_media"_s,
                 u"Lists the project's media assets: caption, kind (image/audio/video/pdf/other), and asset "
                 "path. Give \"kind\" to list only one. Assets of mounted libraries and assets excluded from "
                 "AI "
                 "are not listed."_s,
                 makeObjectSchema(
                     {{u"kind"_s,
                       choiceProperty(u"Only assets of this kind."_s, mediaKinds(), Default::None)}})},
            .handler = listMedia,
        },
        {
            .access = ToolAccess::Changing,
            .title = u"Add a media asset"_s,
            .hints = {.isOpenWorld = true},
            .spec =
                {u"add_media"_s,
                 u"Imports an on-disk file into the project's assets/ folder and creates a media asset "
                 "(portrait, map base image, reference art, gallery image). A relative path starts at the "
                 "project folder; a file that lies in assets/ already is not copied again. Images, sound, "
                 "film "
                 "and PDF of the usual extensions are taken, at most 20 MB, and no part of the path may "
                 "begin "
                 "with a dot. The caption defaults to the file's name and has to be new, because assets are "
                 "addressed by it; the kind follows from the extension. With \"entity\" an image also joins "
                 "that entity's gallery; the entity must belong to the open project."_s,
                 makeObjectSchema(
                     {{u"path"_s, textProperty(u"The file to import."_s)},
                      {u"caption"_s, textProperty(u"The asset's caption."_s)},
                      {u"kind"_s,
                       choiceProperty(
                           u"In place of what the extension says."_s, mediaKinds(), Default::None)},
                      {u"entity"_s,
                       textProperty(u"The name of the entity whose gallery receives the image."_s)}},
                     {u"path"_s})},
            .handler = addMedia,
        },
        {
            .access = ToolAccess::Changing,
            .title = u"Recaption a media asset"_s,
            .hints = {.isIdempotent = true},
            .spec =
                {u"set_media_caption"_s,
                 u"Recaptions a media asset, addressed by its current caption. An asset without a caption is "
                 "addressed by the \"id\" that list_media prints. A caption that another asset has is "
                 "refused. "
                 "The file and its path stay as they are."_s,
                 makeSubjectSchema(
                     u"caption"_s, u"The current caption."_s,
                     {{u"new_caption"_s, textProperty(u"The new caption."_s)}}, {u"new_caption"_s})},
            .subject = u"caption"_s,
            .handler = setMediaCaption,
        },
    };
}

} // namespace

ToolTable mapMediaTools()
{
    ToolTable tools = mapTools();
    const ToolTable media = mediaTools();
    tools.insert(tools.end(), media.begin(), media.end());
    return tools;
}

void registerMapMediaTools(McpServer& server, workspace::Workspace& workspace, McpChangeLog& changeLog)
{
    registerTools(server, workspace, changeLog, mapMediaTools());
}

} // namespace tw::app::mcp
