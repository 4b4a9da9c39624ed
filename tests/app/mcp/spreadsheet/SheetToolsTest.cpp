#include "app/mcp/ChangingToolFixture.h"
#include "app/mcp/ToolFamilies.h"
#include "core/chart/Chart.h"
#include "core/spreadsheet/Spreadsheet.h"

namespace tw::app::mcp {

using namespace Qt::Literals::StringLiterals;
using core::chart::Chart;
using core::spreadsheet::SheetGrid;
using core::spreadsheet::Spreadsheet;

namespace {

class SheetToolsTest : public ChangingToolFixture
{
protected:
    SheetToolsTest()
        : ChangingToolFixture({registerSpreadsheetTools})
    {}

    Spreadsheet& addSheet()
    {
        Spreadsheet& sheet = add<Spreadsheet>(u"Costs %2"_s);
        SheetGrid grid{20, 4, {}};
        grid.cells[{0, 0}].text = u"a|b"_s;
        grid.cells[{1, 0}].text = u"7"_s;
        grid.cells[{1, 1}].text = u"=A2*2"_s;
        grid.cells[{1, 1}].format.isBold = true;
        grid.cells[{30, 30}].text = u"outside"_s;
        sheet.setGrid(std::move(grid));
        return sheet;
    }
};

} // namespace

TEST_F(SheetToolsTest, showsFormulasBesideTheirValues)
{
    addSheet();
    EXPECT_EQ(
        call("get_spreadsheet", R"({"title":"costs %2"})").text,
        u"Spreadsheet 'Costs %2': 20 rows, 4 columns.\n\n|  | A | B |\n| --- | --- | --- |\n| 1 | a\\|b |  |\n| 2 | 7 | =A2*2 → 14 |"_s);
    EXPECT_EQ(
        call("get_spreadsheet", R"({"title":"Costs %2","range":"b2:b2"})").text,
        u"Spreadsheet 'Costs %2': 20 rows, 4 columns.\n\n|  | B |\n| --- | --- |\n| 2 | =A2*2 → 14 |"_s);
    expectRefused(
        "get_spreadsheet", {{R"({"title":"Costs %2","range":"all"})",
                             u"'all' is not a range of cells; write it like \"A1:C20\"."_s},
                            {R"({"title":"Costs %2","range":"E1:F2"})",
                             u"'E1:F2' lies outside of this sheet of 20 rows and 4 columns."_s},
                            {R"({"title":"Nothing"})", u"No spreadsheet named 'Nothing' exists."_s}});
    add<Spreadsheet>(u"Empty"_s);
    EXPECT_EQ(
        call("get_spreadsheet", R"({"title":"Empty"})").text,
        u"Spreadsheet 'Empty': 0 rows, 0 columns. All cells are empty."_s);
}

TEST_F(SheetToolsTest, aHugeSheetIsShownInPart)
{
    Spreadsheet& sheet = add<Spreadsheet>(u"Huge"_s);
    SheetGrid grid{1'000'000, 16'000, {}};
    grid.cells[{999'999, 15'999}].text = u"end"_s;
    sheet.setGrid(std::move(grid));
    const QString text = call("get_spreadsheet", R"({"title":"Huge"})").text;
    EXPECT_TRUE(text.endsWith(u"NOTE: only A1:EWV1 of A1:WQJ1000000 is shown (4000 of 16000000000 cells). "
                              u"Call get_spreadsheet again "
                              "with \"range\" for the rest."))
        << text.right(160).toStdString();
    const auto noteOf = [this](const char* arguments) {
        return call("get_spreadsheet", arguments).text.section(u"\n\n"_s, 2).section(u'.', 0, 0);
    };
    EXPECT_EQ(
        noteOf(R"({"title":"Huge","range":"A1:C2000"})"),
        u"NOTE: only A1:C1333 of A1:C2000 is shown (3999 of 6000 cells)"_s);
    EXPECT_EQ(noteOf(R"({"title":"Huge","range":"A1:D1000"})"), QString());
    EXPECT_EQ(noteOf(R"({"title":"Huge","range":"A999999:B2000000"})"), QString());
    EXPECT_TRUE(call("get_spreadsheet", R"({"title":"Huge","range":"WQJ1000000"})").text.contains(u"end"));
}

TEST_F(SheetToolsTest, aSheetOfALibraryBelongsToACategoryThere)
{
    mountLibrary(u"Atlas"_s, [](core::project::Project& library) {
        const auto category = core::CategoryId::create();
        library.taxonomyForEdit().insert({category, u"Ports"_s, {}, {}, {}, {}, 0, {}});
        auto sheet = std::make_unique<Spreadsheet>(core::ContentId::create(), u"Tolls"_s);
        sheet->setLinkedCategoryId(category);
        library.add(std::move(sheet));
    });
    EXPECT_EQ(
        call("get_spreadsheet", R"({"title":"Tolls"})").text,
        u"Spreadsheet 'Tolls': 0 rows, 0 columns. From the mounted library 'Atlas'. It belongs to the "
        u"category "
        "'Ports'. All cells are empty."_s);
}

TEST_F(SheetToolsTest, createsSheetsWithRows)
{
    core::taxonomy::Category category;
    category.id = core::CategoryId::create();
    category.name = u"Ships"_s;
    workspace.projectForEdit().taxonomyForEdit().insert(category);
    ASSERT_TRUE(workspace.save());
    expectChange(
        "create_spreadsheet", u"MCP: create spreadsheet"_s,
        {R"json({"title":"Tolls","header":["Gate","Coins"],"rows":[["North",5],["South",2.5,true],["Sum","=SUM(B2:B3)"]],"category":"ships"})json",
         u"Created spreadsheet 'Tolls'."_s});
    const Spreadsheet& sheet = *objectsOf<Spreadsheet>(project())[0];
    EXPECT_EQ(sheet.grid().rowCount, 50);
    EXPECT_EQ(sheet.grid().columnCount, 12);
    EXPECT_TRUE(sheet.cell({0, 0}).format.isBold);
    EXPECT_EQ(sheet.linkedCategoryId(), category.id);
    const QString text = call("get_spreadsheet", R"({"title":"Tolls"})").text;
    EXPECT_TRUE(text.contains(u"| 4 | Sum | =SUM(B2:B3) → 7.5 |  |")) << text.toStdString();
    EXPECT_TRUE(text.contains(u"| 3 | South | 2.5 | TRUE |")) << text.toStdString();
    expectRefused(
        "create_spreadsheet",
        {{"{}", u"create_spreadsheet needs \"title\"."_s},
         {R"({"title":"tolls"})", u"A spreadsheet titled 'tolls' already exists."_s},
         {R"({"title":""})", u"A non-empty name is required."_s},
         {R"({"title":"X","rows":["a"]})", u"Entry 1 of \"rows\" must be a list."_s},
         {R"({"title":"X","category":"Moons"})", u"No category named 'Moons' exists."_s},
         {R"({"title":"X","rows":[["=1+"]]})",
          u"The formula '=1+' for A1 cannot be read: The formula ends too early."_s}});
}

TEST_F(SheetToolsTest, setsCellsAndKeepsTheirFormats)
{
    Spreadsheet& sheet = addSheet();
    expectChange(
        "update_spreadsheet", u"MCP: update spreadsheet"_s,
        {R"({"title":"Costs %2","new_title":"Prices","cells":{"a2":8,"$B$2":"=A2/0","C3":"=B2","A1":null}})",
         u"Updated spreadsheet 'Prices'. B2 is now #DIV/0!; C3 is now #DIV/0!."_s});
    EXPECT_TRUE(sheet.cell({1, 1}).format.isBold);
    EXPECT_TRUE(sheet.cell({0, 0}).text.isEmpty());
    expectNothingToDo(
        "update_spreadsheet",
        {{R"({"title":"Prices"})", u"Spreadsheet 'Prices' already matches; nothing changed."_s},
         {R"({"title":"Prices","cells":{"A2":"8"}})",
          u"Spreadsheet 'Prices' already matches; nothing changed."_s}});
    add<Spreadsheet>(u"Other"_s);
    expectRefused(
        "update_spreadsheet",
        {{R"({"cells":{"A1":"x"}})", u"update_spreadsheet needs \"title\" (or \"id\")."_s},
         {R"({"title":"Prices","cells":{"A1":"x","E1":"y"}})",
          u"'E1' is not a cell within this sheet (A1 to D20)."_s},
         {R"({"title":"Prices","cells":{"A0":"y"}})", u"'A0' is not a cell within this sheet (A1 to D20)."_s},
         {R"({"title":"Prices","cells":{"A1":"x","a1":"y"}})", u"A1 is given twice."_s},
         {R"({"title":"Prices","cells":{"A1":[]}})",
          u"\"A1\" in \"cells\" must be a text, a number, or true or false."_s},
         {R"({"title":"Prices","cells":{"A1":"=("}})",
          u"The formula '=(' for A1 cannot be read: The formula ends too early."_s},
         {R"({"title":"Prices","new_title":null})", u"A non-empty name is required."_s},
         {R"({"title":"Prices","new_title":"other"})",
          u"A spreadsheet titled 'other' already exists; renaming onto it would leave both unreachable by name."_s}});
}

TEST_F(SheetToolsTest, chartsHaveAValueForEachCategory)
{
    expectChange(
        "create_chart", u"MCP: create chart"_s,
        {R"({"title":"Crowd","categories":["Spring","Fall"],"series":[{"name":"Men","values":[1,2.5]}],"value_axis_title":"Heads"})",
         u"Created chart 'Crowd'."_s});
    EXPECT_EQ(
        call("get_chart", R"({"title":"crowd"})").text,
        u"Chart 'Crowd' (bar)\nCategories: Spring, Fall\nSeries 'Men': 1, 2.5\nValue axis: Heads"_s);
    const QString label = u"MCP: update chart"_s;
    expectChange("update_chart", label, {R"({"title":"Crowd","kind":"pie"})", u"Updated chart 'Crowd'."_s});
    expectChange(
        "update_chart", label,
        {R"({"title":"Crowd","new_title":"People","value_axis_title":null,"categories":[],"series":[]})",
         u"Updated chart 'People'."_s});
    EXPECT_TRUE(objectsOf<Chart>(project())[0]->details().valueAxisTitle.isEmpty());
    expectNothingToDo(
        "update_chart",
        {{R"({"title":"People","kind":"pie"})", u"Chart 'People' already matches; nothing changed."_s}});
    expectRefused(
        "update_chart", {{"{}", u"update_chart needs \"title\" (or \"id\")."_s},
                         {R"({"title":"People","series":[{"name":"A","values":[1]}]})",
                          u"Series 'A' has 1 values for 0 categories."_s},
                         {R"({"title":"People","series":[{"name":"A"}]})",
                          u"Entry 1 of \"series\" needs \"name\" and \"values\"."_s},
                         {R"({"title":"People","kind":"tower"})",
                          u"Unknown \"kind\" 'tower'; use bar, line, area, or pie."_s},
                         {R"({"title":"People","new_title":""})", u"A non-empty name is required."_s}});
    expectRefused(
        "create_chart", {{"{}", u"create_chart needs \"title\"."_s},
                         {R"({"title":"PEOPLE"})", u"A chart titled 'PEOPLE' already exists."_s},
                         {R"({"title":"X","categories":["A"],"series":[{"name":"S","values":[1,2]}]})",
                          u"Series 'S' has 2 values for 1 categories."_s}});
}

} // namespace tw::app::mcp
