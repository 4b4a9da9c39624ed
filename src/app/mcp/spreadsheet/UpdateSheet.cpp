#include "app/mcp/registry/ObjectFinder.h"
#include "app/mcp/registry/UndoStep.h"
#include "app/mcp/spreadsheet/SheetText.h"
#include "app/mcp/spreadsheet/SheetTools.h"
#include "app/spreadsheet/FormulaTokens.h"
#include "app/spreadsheet/SheetCalculator.h"
#include "core/spreadsheet/SpreadsheetCommands.h"

#include <algorithm>

namespace tw::app::mcp {

using namespace Qt::Literals::StringLiterals;
using core::Failure;
using core::Result;
using core::spreadsheet::SheetGrid;
using core::spreadsheet::Spreadsheet;
using spreadsheet::CellPosition;

namespace {

/** The answer tells the values of so many formulas at most. */
constexpr qsizetype mostToldFormulas = 20;

using CellTexts = std::map<CellPosition, QString>;

Result<CellPosition> positionIn(const SheetGrid& grid, const QString& address)
{
    const auto reference = spreadsheet::referenceFromText(address.trimmed());
    if (!reference || reference->position.row >= grid.rowCount ||
        reference->position.column >= grid.columnCount) {
        const CellPosition last{std::max(grid.rowCount, 1) - 1, std::max(grid.columnCount, 1) - 1};
        return Failure{u"'%1' is not a cell within this sheet (A1 to %2)."_s.arg(
            address, spreadsheet::addressText(last))};
    }
    return reference->position;
}

/** The texts to set, of those cells alone that hold another one. */
Result<CellTexts> changedCells(const Spreadsheet& sheet, const ToolArguments& cells)
{
    CellTexts all;
    for (const QString& address : cells.names()) {
        const auto position = positionIn(sheet.grid(), address);
        if (!position)
            return Failure{position.message()};
        const QString text = cells.text(address);
        if (auto checked = checkCellText(position.value(), text); !checked)
            return Failure{checked.message()};
        if (!all.emplace(position.value(), text).second)
            return Failure{u"%1 is given twice."_s.arg(spreadsheet::addressText(position.value()))};
    }
    std::erase_if(all, [&sheet](const auto& entry) { return sheet.cell(entry.first).text == entry.second; });
    return all;
}

/** " B4 is now 12; B5 is now #DIV/0!." for the formulas among the cells. */
QString formulaValues(const SheetGrid& grid, const CellTexts& cells)
{
    if (std::ranges::none_of(cells, [](const auto& entry) { return spreadsheet::isFormula(entry.second); }))
        return {};
    const spreadsheet::SheetCalculator sheet(grid);
    QStringList values;
    for (const auto& [position, text] : cells) {
        if (spreadsheet::isFormula(text) && values.size() < mostToldFormulas)
            values +=
                u"%1 is now %2"_s.arg(spreadsheet::addressText(position), displayText(sheet.value(position)));
    }
    return u' ' + values.join(u"; "_s) + u'.';
}

} // namespace

McpToolResult updateSpreadsheet(ToolContext& context, const ToolArguments& arguments)
{
    const auto found = findForChange<Spreadsheet>(context.workspace, arguments, u"title");
    if (!found)
        return McpToolResult::failure(found.message());
    Spreadsheet& sheet = *found.value();
    const QString former = sheet.title();
    const auto title = arguments.givenText(u"new_title");
    if (title) {
        if (const auto checked = checkRename(context.workspace.project(), sheet, *title); !checked)
            return McpToolResult::failure(checked.message());
    }
    const auto cells = changedCells(sheet, arguments.record(u"cells"));
    if (!cells)
        return McpToolResult::failure(cells.message());
    const QString newTitle = title.value_or(former).trimmed();
    if (newTitle == former && cells.value().empty())
        return McpToolResult::success(u"Spreadsheet '%1' already matches; nothing changed."_s.arg(former));

    return applyAsUndoStep(context.workspace, context.changeLog, u"MCP: update spreadsheet"_s, [&] {
        core::undo::UndoStack& history = context.workspace.undoStack();
        if (newTitle != former)
            history.push(std::make_unique<core::spreadsheet::SetSpreadsheetTitleCommand>(sheet, newTitle));
        for (const auto& [position, text] : cells.value())
            history.push(
                std::make_unique<core::spreadsheet::SetSpreadsheetCellCommand>(sheet, position, text));
        return McpToolResult::success(
            u"Updated spreadsheet '%1'."_s.arg(newTitle) + formulaValues(sheet.grid(), cells.value()));
    });
}

} // namespace tw::app::mcp
