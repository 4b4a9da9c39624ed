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

/** What was asked for, or what is used, within the grid; and as much of it as one answer may hold. */
struct ShownPart
{
    CellRange asked;
    CellRange shown;
};

Result<ShownPart> partToShow(const SheetGrid& grid, const QString& wanted)
{
    auto range = wanted.isEmpty() ? usedRange(grid) : rangeFromText(wanted);
    if (!range && !wanted.isEmpty())
        return Failure{u"'%1' is not a range of cells; write it like \"A1:C20\"."_s.arg(wanted)};
    ShownPart part{range.value_or(CellRange()), {}};
    if (part.asked.first.row >= grid.rowCount || part.asked.first.column >= grid.columnCount)
        return Failure{u"'%1' lies outside of this sheet of %2 rows and %3 columns."_s.arg(
            wanted, QString::number(grid.rowCount), QString::number(grid.columnCount))};
    part.asked.last.row = std::min(part.asked.last.row, grid.rowCount - 1);
    part.asked.last.column = std::min(part.asked.last.column, grid.columnCount - 1);
    const auto columns = std::min(part.asked.columnCount(), mostShownCells);
    const auto rows = std::max<qint64>(1, std::min(part.asked.rowCount(), mostShownCells / columns));
    part.shown = part.asked;
    part.shown.last.column = part.shown.first.column + static_cast<qint32>(columns) - 1;
    part.shown.last.row = part.shown.first.row + static_cast<qint32>(rows) - 1;
    return part;
}

QString partNote(const ShownPart& part)
{
    if (part.shown == part.asked)
        return {};
    const QString shown = QString::number(part.shown.rowCount() * part.shown.columnCount());
    const QString all = QString::number(part.asked.rowCount() * part.asked.columnCount());
    return u"\n\nNOTE: only %1 of %2 is shown (%3 of %4 cells). "
           u"Call get_spreadsheet again with \"range\" for the rest."_s.arg(
               rangeText(part.shown), rangeText(part.asked), shown, all);
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
    const core::project::Project& owner =
        found.value().library ? *found.value().library->project : context.workspace.project();
    const auto* category = owner.taxonomy().category(sheet.linkedCategoryId());
    if (category)
        text += u" It belongs to the category '%1'."_s.arg(category->name);
    if (!usedRange(sheet.grid()))
        return McpToolResult::success(text + u" All cells are empty."_s);
    const QString wanted = arguments.text(u"range").trimmed();
    const auto part = partToShow(sheet.grid(), wanted);
    if (!part)
        return McpToolResult::failure(part.message());
    return McpToolResult::success(
        text + u"\n\n"_s + markdownTable(sheet.grid(), part.value().shown) + partNote(part.value()));
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
