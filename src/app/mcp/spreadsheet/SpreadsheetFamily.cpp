#include "app/mcp/ToolFamilies.h"
#include "app/mcp/registry/Schema.h"
#include "app/mcp/spreadsheet/ChartTools.h"
#include "app/mcp/spreadsheet/SheetTools.h"

namespace tw::app::mcp {

using namespace Qt::Literals::StringLiterals;

namespace {

/** What a chart holds, for making and for changing one. */
QJsonObject chartProperties(Default kindDefault)
{
    const QJsonObject series = recordProperty(
        u"A series."_s,
        {{u"name"_s, textProperty(u"Its name in the legend."_s)},
         {u"values"_s, listProperty(u"A value for each category."_s, numberProperty(u"A value."_s))}},
        {u"name"_s, u"values"_s});
    return {
        {u"kind"_s,
         choiceProperty(u"How it is drawn."_s, {u"bar"_s, u"line"_s, u"area"_s, u"pie"_s}, kindDefault)},
        {u"categories"_s,
         listProperty(u"The labels along the axis, in order."_s, textProperty(u"A label."_s))},
        {u"series"_s, listProperty(u"The named data series."_s, series)},
        {u"value_axis_title"_s, textProperty(u"The title of the value axis; null clears it."_s)},
        {u"category_axis_title"_s, textProperty(u"The title of the category axis; null clears it."_s)},
    };
}

QJsonObject createChartSchema()
{
    QJsonObject properties = chartProperties(Default::First);
    properties.insert(u"title"_s, textProperty(u"The chart's title; no other chart may have it."_s));
    return makeObjectSchema(properties, {u"title"_s});
}

QJsonObject updateChartSchema()
{
    QJsonObject properties = chartProperties(Default::None);
    properties.insert(u"new_title"_s, textProperty(u"Renames the chart."_s));
    return makeSubjectSchema(u"title"_s, u"The chart's title."_s, properties);
}

ToolTable sheetTools()
{
    const QJsonObject cell = valueProperty(u"A cell: a value, or a formula that begins with \"=\"."_s);
    return {
        {
            .access = ToolAccess::ReadOnly,
            .title = u"Read a spreadsheet"_s,
            .hints = {.isIdempotent = true},
            .spec =
                {u"get_spreadsheet"_s,
                 u"Reads a spreadsheet as a Markdown table of evaluated values (formula cells show the "
                 u"formula "
                 "beside the value). The columns are headed A, B, C and the rows numbered, so that every "
                 "cell's "
                 "A1 address can be read off. A formula that cannot be worked out shows #DIV/0!, #NAME?, "
                 "#REF!, "
                 "#VALUE!, #NUM!, #N/A, or, when it depends on itself, #CIRC!. Very large sheets are cut and "
                 "the "
                 "answer says so; \"range\" (e.g. \"A200:F400\") reads another part. Call it before "
                 "update_spreadsheet."_s,
                 makeSubjectSchema(
                     u"title"_s, u"The spreadsheet's title."_s,
                     {{u"range"_s, textProperty(u"Only this part, e.g. \"A1:C20\"."_s)}})},
            .subject = u"title"_s,
            .handler = getSpreadsheet,
        },
        {
            .access = ToolAccess::Changing,
            .title = u"Create a spreadsheet"_s,
            .spec =
                {u"create_spreadsheet"_s,
                 u"Creates a spreadsheet, optionally pre-filled with a header row and data rows. \"header\" "
                 "fills row 1 in bold, \"rows\" the rows below it (from row 1 on without a header). Texts "
                 "that "
                 "begin with \"=\" are formulas with A1 references, ranges, + - * / ^ & %, comparisons and "
                 "the "
                 "usual functions (SUM, AVERAGE, IF, COUNTIF, VLOOKUP, ROUND, TEXT, ...); one that cannot be "
                 "read is refused and nothing is created. The sheet has at least 50 rows and 12 columns. "
                 "\"category\" ties it to a codex category by name. A title that another spreadsheet has is "
                 "refused."_s,
                 makeObjectSchema(
                     {{u"title"_s, textProperty(u"The spreadsheet's title."_s)},
                      {u"header"_s, listProperty(u"The first row."_s, cell)},
                      {u"rows"_s,
                       listProperty(
                           u"The rows below, each a list of cells."_s, listProperty(u"A row."_s, cell))},
                      {u"category"_s, textProperty(u"The name of a codex category it belongs to."_s)}},
                     {u"title"_s})},
            .handler = createSpreadsheet,
        },
        {
            .access = ToolAccess::Changing,
            .title = u"Update a spreadsheet"_s,
            .hints = {.isDestructive = true, .isIdempotent = true},
            .spec =
                {u"update_spreadsheet"_s,
                 u"Renames a spreadsheet (\"new_title\") and/or sets individual cells by A1 address. "
                 u"\"cells\" "
                 "maps addresses to values or to formulas that begin with \"=\"; null or \"\" empties a "
                 "cell, "
                 "and cells you leave out stay. Formats stay as well. Addresses outside of the sheet and "
                 "formulas that cannot be read are refused, and then no cell is changed. The answer tells "
                 "what "
                 "the formulas you set come to. Call get_spreadsheet first: it shows the addresses."_s,
                 makeSubjectSchema(
                     u"title"_s, u"The spreadsheet's title."_s,
                     {{u"new_title"_s, textProperty(u"Renames the spreadsheet."_s)},
                      {u"cells"_s, mapProperty(u"What to write, by A1 address."_s, cell)}})},
            .subject = u"title"_s,
            .handler = updateSpreadsheet,
        },
    };
}

ToolTable chartTools()
{
    return {
        {
            .access = ToolAccess::ReadOnly,
            .title = u"Read a chart"_s,
            .hints = {.isIdempotent = true},
            .spec =
                {u"get_chart"_s,
                 u"Reads a chart's data: its kind (bar/line/area/pie), category labels, each named data "
                 u"series' "
                 "values, and axis titles. Values stand in the order of the categories. Call it before "
                 "update_chart, which replaces whole lists."_s,
                 makeSubjectSchema(u"title"_s, u"The chart's title."_s)},
            .subject = u"title"_s,
            .handler = getChart,
        },
        {
            .access = ToolAccess::Changing,
            .title = u"Create a chart"_s,
            .spec =
                {u"create_chart"_s,
                 u"Creates a chart of tabular data. The kind is bar unless you say line, area, or pie. "
                 "\"categories\" are the labels along the axis, \"series\" named lists of numbers with "
                 "exactly "
                 "one value for each category; any other count is refused. A chart keeps its own numbers and "
                 "does not follow a spreadsheet. A title that another chart has is refused."_s,
                 createChartSchema()},
            .handler = createChart,
        },
        {
            .access = ToolAccess::Changing,
            .title = u"Update a chart"_s,
            .hints = {.isDestructive = true, .isIdempotent = true},
            .spec =
                {u"update_chart"_s,
                 u"Sparse update of a chart: only the provided keys change. \"categories\" and \"series\" "
                 u"each "
                 "replace the whole list, so call get_chart first; when their counts no longer fit each "
                 "other, "
                 "pass both. null clears an axis title."_s,
                 updateChartSchema()},
            .subject = u"title"_s,
            .handler = updateChart,
        },
    };
}

} // namespace

ToolTable spreadsheetTools()
{
    ToolTable tools = sheetTools();
    const ToolTable charts = chartTools();
    tools.insert(tools.end(), charts.begin(), charts.end());
    return tools;
}

void registerSpreadsheetTools(McpServer& server, workspace::Workspace& workspace, McpChangeLog& changeLog)
{
    registerTools(server, workspace, changeLog, spreadsheetTools());
}

} // namespace tw::app::mcp
