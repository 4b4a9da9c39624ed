#include "app/mcp/spreadsheet/SheetTools.h"

#include "app/mcp/registry/CategoryFinder.h"
#include "app/mcp/registry/ObjectFinder.h"
#include "app/mcp/registry/Refusals.h"
#include "app/mcp/registry/UndoStep.h"
#include "app/mcp/spreadsheet/SheetText.h"
#include "core/content/ContentCommands.h"

#include <algorithm>

namespace tw::app::mcp {

using namespace Qt::Literals::StringLiterals;
using core::Failure;
using core::Result;
using core::content::ContentKind;
using core::spreadsheet::SheetGrid;
using core::spreadsheet::Spreadsheet;
using spreadsheet::CellPosition;
using spreadsheet::CellRange;

namespace {

/** A new sheet has at least as many. */
constexpr qint32 fewestRows = 50;
constexpr qint32 fewestColumns = 12;

/** The part to show: what was asked for, or what is used, cut to the grid and to what one answer may hold. */
Result<CellRange> rangeToShow(const SheetGrid& grid, const QString& wanted)
{
    auto range = wanted.isEmpty() ? usedRange(grid) : rangeFromText(wanted);
    if (!range && !wanted.isEmpty())
        return Failure{u"'%1' is not a range of cells; write it like \"A1:C20\"."_s.arg(wanted)};
    CellRange shown = range.value_or(CellRange());
    if (shown.first.row >= grid.rowCount || shown.first.column >= grid.columnCount)
        return Failure{u"'%1' lies outside of this sheet of %2 rows and %3 columns."_s.arg(
            wanted, QString::number(grid.rowCount), QString::number(grid.columnCount))};
    shown.last.row = std::min(shown.last.row, grid.rowCount - 1);
    shown.last.column = std::min(shown.last.column, grid.columnCount - 1);
    const auto columns = std::min(shown.columnCount(), mostShownCells);
    const auto rows = std::max<qint64>(1, std::min(shown.rowCount(), mostShownCells / columns));
    shown.last.column = shown.first.column + static_cast<qint32>(columns) - 1;
    shown.last.row = shown.first.row + static_cast<qint32>(rows) - 1;
    return shown;
}

QString partNote(const SheetGrid& grid, const CellRange& shown, const QString& wanted)
{
    const auto used = usedRange(grid);
    const bool isAllShown = !used || (shown.contains(used->first) && shown.contains(used->last));
    if (isAllShown || !wanted.isEmpty())
        return {};
    return u"\n\nNOTE: only %1 of %2 is shown. Call get_spreadsheet again with \"range\" for the rest."_s.arg(
        rangeText(shown), rangeText(*used));
}

/** The header, in bold, and the rows below it as cells. */
Result<SheetGrid> gridFrom(const ToolArguments& arguments)
{
    SheetGrid grid;
    qint32 row = 0;
    const auto addRow = [&grid, &row](const QStringList& texts, bool isBold) -> Result<void> {
        if (row >= spreadsheet::mostRows || texts.size() > spreadsheet::mostColumns)
            return Failure{u"A sheet holds at most %1 rows and %2 columns."_s.arg(
                QString::number(spreadsheet::mostRows), QString::number(spreadsheet::mostColumns))};
        qint32 column = 0;
        for (const QString& text : texts) {
            const CellPosition position{row, column++};
            if (auto checked = checkCellText(position, text); !checked)
                return checked;
            core::spreadsheet::Cell cell;
            cell.text = text;
            cell.format.isBold = isBold && !text.isEmpty();
            grid.cells.emplace(position, std::move(cell));
        }
        grid.columnCount = std::max(grid.columnCount, column);
        grid.rowCount = ++row;
        return {};
    };

    if (const QStringList header = arguments.textList(u"header"); !header.isEmpty()) {
        if (const auto added = addRow(header, true); !added)
            return Failure{added.message()};
    }
    for (const QStringList& texts : arguments.textRows(u"rows")) {
        if (const auto added = addRow(texts, false); !added)
            return Failure{added.message()};
    }
    grid.rowCount = std::max(grid.rowCount, fewestRows);
    grid.columnCount = std::max(grid.columnCount, fewestColumns);
    return grid;
}

} // namespace

McpToolResult getSpreadsheet(ToolContext& context, const ToolArguments& arguments)
{
    const auto found = findToRead<Spreadsheet>(context.workspace, arguments, u"title");
    if (!found)
        return McpToolResult::failure(found.message());
    const Spreadsheet& sheet = *found.value();
    QString text = u"Spreadsheet '%1': %2 rows, %3 columns."_s.arg(
        sheet.title(), QString::number(sheet.grid().rowCount), QString::number(sheet.grid().columnCount));
    if (found.value().library)
        text += u' ' + mountedMark(found.value().library->name);
    const auto* category = context.workspace.project().taxonomy().category(sheet.linkedCategoryId());
    if (category)
        text += u" It belongs to the category '%1'."_s.arg(category->name);
    if (!usedRange(sheet.grid()))
        return McpToolResult::success(text + u" All cells are empty."_s);
    const QString wanted = arguments.text(u"range").trimmed();
    const auto range = rangeToShow(sheet.grid(), wanted);
    if (!range)
        return McpToolResult::failure(range.message());
    return McpToolResult::success(
        text + u"\n\n"_s + markdownTable(sheet.grid(), range.value()) +
        partNote(sheet.grid(), range.value(), wanted));
}

McpToolResult createSpreadsheet(ToolContext& context, const ToolArguments& arguments)
{
    core::project::Project& project = context.workspace.projectForEdit();
    const QString title = arguments.text(u"title").trimmed();
    if (const auto checked = checkNewName(project, ContentKind::Spreadsheet, title); !checked)
        return McpToolResult::failure(checked.message());
    auto grid = gridFrom(arguments);
    if (!grid)
        return McpToolResult::failure(grid.message());
    auto sheet = std::make_unique<Spreadsheet>(core::ContentId::create(), title);
    sheet->setGrid(std::move(grid).value());
    if (const QString category = arguments.text(u"category"); !category.isEmpty()) {
        const auto resolved = resolveCategory(context.workspace, category);
        if (!resolved)
            return McpToolResult::failure(resolved.message());
        sheet->setLinkedCategoryId(resolved.value());
    }
    return applyAsUndoStep(context.workspace, context.changeLog, u"MCP: create spreadsheet"_s, [&] {
        context.workspace.undoStack().push(
            std::make_unique<core::content::AddObjectCommand>(project, std::move(sheet)));
        return McpToolResult::success(u"Created spreadsheet '%1'."_s.arg(title));
    });
}

} // namespace tw::app::mcp
