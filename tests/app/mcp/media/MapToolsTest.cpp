#include "app/mcp/ChangingToolFixture.h"
#include "app/mcp/ToolFamilies.h"
#include "core/entity/Entity.h"
#include "core/map/Map.h"

namespace tw::app::mcp {

using namespace Qt::Literals::StringLiterals;
using core::entity::Entity;
using core::map::Map;

namespace {

class MapToolsTest : public ChangingToolFixture
{
protected:
    MapToolsTest()
        : ChangingToolFixture({registerMapMediaTools})
    {
        add<Entity>(core::CategoryId(), u"Quay"_s);
        add<Entity>(core::CategoryId(), u"Tower"_s);
        add<Entity>(core::CategoryId(), u"Secret"_s).setAiExcluded(true);
    }

    /** A map with a region, a pin and a token, and a name that means something to arg(). */
    Map& addCoast()
    {
        Map& map = add<Map>(u"Coast %1"_s);
        map.setRegions({{u"Bay"_s, {{0, 0}, {1, 0}, {1, 1}}, {}, {}, u"sea"_s, false, {}}});
        map.setPins({{u"Light"_s, u"a note"_s, {}, {}, {}, {0.25, 0.5}}});
        map.setTokens({{u"Fleet"_s, u"#102030"_s, {}, {0.5, 0.5}}});
        return map;
    }

    [[nodiscard]] core::ContentId idOf(const QString& name) const
    {
        return project().names().named(name).front();
    }
};

const QString notAPoint =
    u"\"x\" and \"y\" are fractions of the image from its top left corner, from 0 to 1."_s;

} // namespace

TEST_F(MapToolsTest, createsAMapWithEverythingOnIt)
{
    expectChange(
        "create_map", u"MCP: create map"_s,
        {R"({"title":" Isle ","grid":"square","grid_columns":12,"travel_speed":4,"distance_unit":"miles","width_distance":80,
             "regions":[{"label":"Bay","points":[{"x":0,"y":0},{"x":1,"y":0},{"x":1,"y":1}],"entity":"quay","revealed":true}],
             "routes":[{"from":"Quay","to":"tower","distance":10}]})",
         u"Created map 'Isle'."_s});
    const QString text = call("get_map", R"({"title":"isle"})").text;
    for (const QString& part :
         {u"Map 'Isle'"_s, u"Image: (none)"_s, u"the image is 80 miles wide"_s, u"4 miles an hour"_s,
          u"Grid: square, 12 columns"_s, u"- Bay: revealed, entity Quay"_s,
          u"- Quay to Tower: 10 miles, 2.5 hours"_s})
        EXPECT_TRUE(text.contains(part)) << part.toStdString() << "\n" << text.toStdString();
}

TEST_F(MapToolsTest, refusesMapsThatMakeNoSense)
{
    addCoast();
    expectRefused(
        "create_map",
        {{"{}", u"create_map needs \"title\"."_s},
         {R"({"title":" "})", u"A non-empty name is required."_s},
         {R"({"title":"COAST %1"})", u"A map titled 'COAST %1' already exists."_s},
         {R"({"title":"M","grid":"hexes"})", u"Unknown \"grid\" 'hexes'; use none (default) or square."_s},
         {R"({"title":"M","grid":"square"})", u"A square grid needs \"grid_columns\" from 1 to 1000."_s},
         {R"({"title":"M","travel_speed":0})", u"\"travel_speed\" must be above 0."_s},
         {R"({"title":"M","width_distance":-1})", u"\"width_distance\" must be above 0."_s},
         {R"({"title":"M","regions":[{"label":"R","points":[{"x":0,"y":0}]}]})",
          u"Region 'R' needs at least three points."_s},
         {R"({"title":"M","regions":[{"label":"R","points":[{"x":0,"y":2}]}]})", notAPoint},
         {R"({"title":"M","regions":[{"label":"R"}]})",
          u"Entry 1 of \"regions\" needs \"label\" and \"points\"."_s},
         {R"({"title":"M","routes":[{"from":"Quay","to":"Moon","distance":1}]})",
          u"No entity named 'Moon' exists."_s},
         {R"({"title":"M","routes":[{"from":"Quay","to":"Secret","distance":1}]})",
          u"'Secret' is excluded from AI and cannot be used here."_s},
         {R"({"title":"M","routes":[{"from":"Quay","to":"Quay","distance":1}]})",
          u"A route joins two different places; 'Quay' is given for both ends."_s},
         {R"({"title":"M","routes":[{"from":"","to":"Quay","distance":1}]})",
          u"A route needs a place at both ends: \"from\" and \"to\" name entities."_s},
         {R"({"title":"Two\nlines"})", u"A name is one line; 'Two lines' holds a line break."_s},
         {R"({"title":"M","routes":[{"from":"Quay","to":"Tower","distance":-1}]})",
          u"A route's \"distance\" cannot be below 0."_s},
         {R"({"title":"M","image_path":"nowhere.png"})",
          u"There is no file 'nowhere.png'. Relative paths start at the project folder."_s}});
}

TEST_F(MapToolsTest, editsOneThingAtATime)
{
    Map& map = addCoast();
    const QString label = u"MCP: update map"_s;
    expectChange(
        "update_map", label,
        {R"({"title":"Coast %1","action":"add_pin","label":"Wreck","x":0.5,"y":1,"note":"deep","entity":"Quay"})",
         u"Added pin 'Wreck' to map 'Coast %1'."_s});
    EXPECT_EQ(map.pins().back().linkedEntityId, idOf(u"Quay"_s));
    expectChange(
        "update_map", label,
        {R"({"title":"Coast %1","action":"move_pin","pin":"light","x":0,"y":0})",
         u"Moved pin 'Light' on map 'Coast %1'."_s});
    expectChange(
        "update_map", label,
        {R"({"title":"Coast %1","action":"add_token","label":"Ship","x":0.1,"y":0.2,"color":"#AABBCC"})",
         u"Added token 'Ship' to map 'Coast %1'."_s});
    expectChange(
        "update_map", label,
        {R"({"title":"Coast %1","action":"reveal_region","region":"Bay"})",
         u"Region 'Bay' of map 'Coast %1' is now revealed."_s});
    expectChange(
        "update_map", label,
        {R"({"title":"Coast %1","action":"reveal_region","region":"Bay","revealed":false})",
         u"Region 'Bay' of map 'Coast %1' is now hidden."_s});
    expectNothingToDo(
        "update_map", {{R"({"title":"Coast %1","action":"reveal_region","region":"Bay","revealed":false})",
                        u"Region 'Bay' is already hidden; nothing changed."_s},
                       {R"({"title":"Coast %1","action":"move_pin","pin":"Light","x":0,"y":0})",
                        u"Pin 'Light' already stands there; nothing changed."_s}});
    expectChange(
        "update_map", label,
        {R"({"title":"Coast %1","action":"rename","new_title":"Shore"})",
         u"Renamed map 'Coast %1' to 'Shore'."_s});
}

TEST_F(MapToolsTest, refusesEditsWithoutTheirArguments)
{
    Map& map = addCoast();
    add<Map>(u"Other"_s);
    expectRefused(
        "update_map",
        {{"{}", u"update_map needs \"title\" (or \"id\") and \"action\"."_s},
         {R"({"title":"Coast %1","action":"burn"})",
          u"Unknown \"action\" 'burn'; use add_pin, move_pin, add_token, reveal_region, or rename."_s},
         {R"({"title":"Moon","action":"rename"})", u"No map named 'Moon' exists."_s},
         {R"({"title":"Coast %1","action":"add_pin","x":0,"y":0})", u"A non-empty \"label\" is required."_s},
         {R"({"title":"Coast %1","action":"add_pin","label":"P","x":0})", notAPoint},
         {R"({"title":"Coast %1","action":"add_pin","label":"P","x":0,"y":1.1})", notAPoint},
         {R"({"title":"Coast %1","action":"add_pin","label":"LIGHT","x":0,"y":0})",
          u"A pin named 'LIGHT' already exists."_s},
         {R"({"title":"Coast %1","action":"add_pin","label":"P","x":0,"y":0,"entity":"Secret"})",
          u"'Secret' is excluded from AI and cannot be used here."_s},
         {R"({"title":"Coast %1","action":"move_pin","pin":"Fire","x":0,"y":0})",
          u"No pin named 'Fire' exists."_s},
         {R"({"title":"Coast %1","action":"add_token","label":"Fleet","x":0,"y":0})",
          u"A token named 'Fleet' already exists."_s},
         {R"({"title":"Coast %1","action":"add_token","label":"T","x":0,"y":0,"color":"red"})",
          u"'red' is not a color; write \"#rrggbb\", e.g. \"#a03020\"."_s},
         {R"({"title":"Coast %1","action":"reveal_region"})", u"No region named '' exists."_s},
         {R"({"title":"Coast %1","action":"rename"})", u"A non-empty name is required."_s},
         {R"({"title":"Coast %1","action":"rename","new_title":"other"})",
          u"A map titled 'other' already exists; renaming onto it would leave both unreachable by name."_s}});
    map.setLocked(true);
    expectRefused(
        "update_map",
        {{R"({"title":"Coast %1","action":"rename","new_title":"X"})",
          u"'Coast %1' is locked. Only the person writing it can unlock it, from the app -- there is no tool for that."_s}});
}

TEST_F(MapToolsTest, hiddenAndForeignThingsAreMarked)
{
    Map& map = addCoast();
    map.setPins({{u"P"_s, {}, idOf(u"Secret"_s), core::ContentId::create(), {}, {}}});
    const QString text = call("get_map", R"({"title":"Coast %1"})").text;
    EXPECT_TRUE(text.contains(u"- P: at 0, 0, entity (an entity excluded from AI), sub-map (missing)"))
        << text.toStdString();

    mountLibrary(u"Atlas"_s, [](core::project::Project& library) {
        library.add(std::make_unique<Map>(core::ContentId::create(), u"World"_s));
    });
    EXPECT_TRUE(call("get_map", R"({"title":"World"})").text.contains(u"From the mounted library 'Atlas'."));
    expectRefused(
        "update_map",
        {{R"({"title":"World","action":"rename","new_title":"X"})",
          u"'World' lives in the mounted library 'Atlas'; this server edits only the open project. Open the library as its own project to change it."_s}});
}

} // namespace tw::app::mcp
