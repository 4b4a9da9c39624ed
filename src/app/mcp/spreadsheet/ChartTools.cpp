#include "app/mcp/spreadsheet/ChartTools.h"

#include "app/mcp/registry/ObjectFinder.h"
#include "app/mcp/registry/Refusals.h"
#include "app/mcp/registry/UndoStep.h"
#include "core/chart/ChartCommands.h"
#include "core/content/ContentCommands.h"

namespace tw::app::mcp {

using namespace Qt::Literals::StringLiterals;
using core::Failure;
using core::Result;
using core::chart::Chart;
using core::chart::ChartDetails;
using core::chart::ChartSeries;
using core::content::ContentKind;

namespace {

QString joinedValues(const std::vector<double>& values)
{
    QStringList texts;
    for (const double value : values)
        texts += QString::number(value, 'g', QLocale::FloatingPointShortest);
    return texts.join(u", "_s);
}

/** Every series has a value for each category. */
Result<void> checkSeries(const ChartDetails& details)
{
    for (const ChartSeries& series : details.series) {
        if (std::ssize(series.values) != details.categories.size())
            return Failure{u"Series '%1' has %2 values for %3 categories."_s.arg(
                series.name, QString::number(series.values.size()),
                QString::number(details.categories.size()))};
    }
    return {};
}

/** The details with what the arguments give in place of what was there. */
Result<ChartDetails> updated(ChartDetails details, const ToolArguments& arguments)
{
    details.chartKind = arguments.text(u"kind", details.chartKind);
    details.categories = arguments.givenTextList(u"categories").value_or(details.categories);
    if (arguments.has(u"series")) {
        details.series.clear();
        for (const ToolArguments& series : arguments.records(u"series"))
            details.series.push_back({series.text(u"name"), series.numberList(u"values")});
    }
    details.valueAxisTitle = arguments.givenText(u"value_axis_title").value_or(details.valueAxisTitle);
    details.categoryAxisTitle =
        arguments.givenText(u"category_axis_title").value_or(details.categoryAxisTitle);
    if (auto checked = checkSeries(details); !checked)
        return Failure{checked.message()};
    return details;
}

} // namespace

McpToolResult getChart(ToolContext& context, const ToolArguments& arguments)
{
    const auto found = findToRead<Chart>(context.workspace, arguments, u"title");
    if (!found)
        return McpToolResult::failure(found.message());
    const ChartDetails& details = found.value()->details();
    QStringList lines{u"Chart '%1' (%2)"_s.arg(details.title, details.chartKind)};
    if (found.value().library)
        lines += mountedMark(found.value().library->name);
    lines += u"Categories: %1"_s.arg(details.categories.join(u", "_s));
    for (const ChartSeries& series : details.series)
        lines += u"Series '%1': %2"_s.arg(series.name, joinedValues(series.values));
    if (!details.valueAxisTitle.isEmpty())
        lines += u"Value axis: %1"_s.arg(details.valueAxisTitle);
    if (!details.categoryAxisTitle.isEmpty())
        lines += u"Category axis: %1"_s.arg(details.categoryAxisTitle);
    return McpToolResult::success(lines.join(u'\n'));
}

McpToolResult createChart(ToolContext& context, const ToolArguments& arguments)
{
    core::project::Project& project = context.workspace.projectForEdit();
    ChartDetails details;
    details.title = arguments.text(u"title").trimmed();
    if (const auto checked = checkNewName(project, ContentKind::Chart, details.title); !checked)
        return McpToolResult::failure(checked.message());
    auto complete = updated(std::move(details), arguments);
    if (!complete)
        return McpToolResult::failure(complete.message());
    return applyAsUndoStep(context.workspace, context.changeLog, u"MCP: create chart"_s, [&] {
        const QString title = complete.value().title;
        context.workspace.undoStack().push(std::make_unique<core::content::AddObjectCommand>(
            project, std::make_unique<Chart>(core::ContentId::create(), std::move(complete).value())));
        return McpToolResult::success(u"Created chart '%1'."_s.arg(title));
    });
}

McpToolResult updateChart(ToolContext& context, const ToolArguments& arguments)
{
    const auto found = findForChange<Chart>(context.workspace, arguments, u"title");
    if (!found)
        return McpToolResult::failure(found.message());
    Chart& chart = *found.value();
    ChartDetails details = chart.details();
    if (const auto title = arguments.givenText(u"new_title")) {
        if (const auto checked = checkRename(context.workspace.project(), chart, *title); !checked)
            return McpToolResult::failure(checked.message());
        details.title = title->trimmed();
    }
    auto complete = updated(std::move(details), arguments);
    if (!complete)
        return McpToolResult::failure(complete.message());
    const QString title = complete.value().title;
    if (complete.value() == chart.details())
        return McpToolResult::success(u"Chart '%1' already matches; nothing changed."_s.arg(title));
    return applyAsUndoStep(context.workspace, context.changeLog, u"MCP: update chart"_s, [&] {
        context.workspace.undoStack().push(
            std::make_unique<core::chart::SetChartCommand>(chart, std::move(complete).value()));
        return McpToolResult::success(u"Updated chart '%1'."_s.arg(title));
    });
}

} // namespace tw::app::mcp
