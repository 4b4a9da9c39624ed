#pragma once

#include "core/spreadsheet/Spreadsheet.h"
#include "core/undo/SetFieldCommand.h"

namespace tw::core::spreadsheet {

class SetSpreadsheetTitleCommand final
    : public undo::SetFieldCommand<&Spreadsheet::title, &Spreadsheet::setTitle>
{
public:
    using SetFieldCommand::SetFieldCommand;
    [[nodiscard]] QString text() const override;
};

/** Size and cells together: insertion and removal of rows and columns. */
class SetSpreadsheetGridCommand final
    : public undo::SetFieldCommand<&Spreadsheet::grid, &Spreadsheet::setGrid>
{
public:
    using SetFieldCommand::SetFieldCommand;
    [[nodiscard]] QString text() const override;
};

class SetSpreadsheetSizesCommand final
    : public undo::SetFieldCommand<&Spreadsheet::sizes, &Spreadsheet::setSizes>
{
public:
    using SetFieldCommand::SetFieldCommand;
    [[nodiscard]] QString text() const override;
};

class SetSpreadsheetLinkedCategoryCommand final
    : public undo::SetFieldCommand<&Spreadsheet::linkedCategoryId, &Spreadsheet::setLinkedCategoryId>
{
public:
    using SetFieldCommand::SetFieldCommand;
    [[nodiscard]] QString text() const override;
};

/** Sets the text of one cell; its format stays. */
class SetSpreadsheetCellCommand final : public undo::Command
{
public:
    SetSpreadsheetCellCommand(Spreadsheet& sheet, CellPosition position, QString text);

    void redo() override;
    void undo() override;
    [[nodiscard]] QString text() const override;

private:
    Spreadsheet& m_sheet;
    CellPosition m_position;
    QString m_text;
    Cell m_oldCell;
};

/** Sets the formats of some cells; the label says what was done to them ("Bold", "Align right"). */
class SetCellFormatsCommand final : public undo::Command
{
public:
    using FormatMap = std::map<CellPosition, CellFormat>;

    SetCellFormatsCommand(Spreadsheet& sheet, FormatMap formats, QString label);

    void redo() override;
    void undo() override;
    [[nodiscard]] QString text() const override;

private:
    Spreadsheet& m_sheet;
    FormatMap m_formats;
    QString m_label;
    CellMap m_oldCells;
};

} // namespace tw::core::spreadsheet
