#include "core/spreadsheet/SpreadsheetCommands.h"

#include <QCoreApplication>

namespace tw::core::spreadsheet {

QString SetSpreadsheetTitleCommand::text() const
{
    return QCoreApplication::translate("UndoCommand", "Rename spreadsheet");
}

QString SetSpreadsheetGridCommand::text() const
{
    return QCoreApplication::translate("UndoCommand", "Update spreadsheet");
}

QString SetSpreadsheetSizesCommand::text() const
{
    return QCoreApplication::translate("UndoCommand", "Resize");
}

QString SetSpreadsheetLinkedCategoryCommand::text() const
{
    return QCoreApplication::translate("UndoCommand", "Bind spreadsheet to category");
}

SetSpreadsheetCellCommand::SetSpreadsheetCellCommand(Spreadsheet& sheet, CellPosition position, QString text)
    : m_sheet(sheet)
    , m_position(position)
    , m_text(std::move(text))
{}

void SetSpreadsheetCellCommand::redo()
{
    m_oldCell = m_sheet.cell(m_position);
    m_sheet.setCell(m_position, {m_text, m_oldCell.format});
    m_sheet.touch();
}

void SetSpreadsheetCellCommand::undo()
{
    m_sheet.setCell(m_position, m_oldCell);
    m_sheet.touch();
}

QString SetSpreadsheetCellCommand::text() const
{
    return QCoreApplication::translate("UndoCommand", "Edit cell");
}

SetCellFormatsCommand::SetCellFormatsCommand(Spreadsheet& sheet, FormatMap formats, QString label)
    : m_sheet(sheet)
    , m_formats(std::move(formats))
    , m_label(std::move(label))
{}

void SetCellFormatsCommand::redo()
{
    m_oldCells.clear();
    for (const auto& [position, format] : m_formats) {
        const Cell old = m_sheet.cell(position);
        m_oldCells.emplace(position, old);
        m_sheet.setCell(position, {old.text, format});
    }
    m_sheet.touch();
}

void SetCellFormatsCommand::undo()
{
    for (const auto& [position, cell] : m_oldCells)
        m_sheet.setCell(position, cell);
    m_sheet.touch();
}

QString SetCellFormatsCommand::text() const
{
    return m_label;
}

} // namespace tw::core::spreadsheet
