#include "app/persistence/codec/KindCodec.h"

#include "core/spreadsheet/Spreadsheet.h"

using namespace Qt::Literals::StringLiterals;

namespace tw::app::persistence {

using core::spreadsheet::Cell;
using core::spreadsheet::CellFormat;
using core::spreadsheet::CellPosition;
using core::spreadsheet::SheetGrid;
using core::spreadsheet::SheetSizes;
using core::spreadsheet::Spreadsheet;

/** A cell with its place, as files have it. */
struct CellRecord
{
    CellPosition position;
    Cell cell;

    friend bool operator==(const CellRecord&, const CellRecord&) = default;
};

template <>
struct RecordOf<CellFormat>
{
    static constexpr auto entries = std::tuple(
        ifSet<Data<&CellFormat::isBold>>("bold"_L1), ifSet<Data<&CellFormat::isItalic>>("italic"_L1),
        ifSet<Data<&CellFormat::isUnderlined>>("underline"_L1),
        ifSet<Data<&CellFormat::isStruckOut>>("strikeOut"_L1),
        ifSet<Data<&CellFormat::fontFamily>>("fontFamily"_L1),
        ifSet<Data<&CellFormat::fontPointSize>>("fontPointSize"_L1),
        ifSet<Data<&CellFormat::textColor>>("textColor"_L1),
        ifSet<Data<&CellFormat::backgroundColor>>("backgroundColor"_L1),
        ifSet<Data<&CellFormat::alignment>>("alignment"_L1),
        ifSet<Data<&CellFormat::numberFormat>>("numberFormat"_L1),
        ifSet<Data<&CellFormat::decimalPlaces>>("decimalPlaces"_L1));
};

template <>
struct RecordOf<CellRecord>
{
    static constexpr auto entries = std::tuple(
        always<Data<&CellRecord::position, &CellPosition::row>>("row"_L1),
        always<Data<&CellRecord::position, &CellPosition::column>>("column"_L1),
        always<Data<&CellRecord::cell, &Cell::text>>("text"_L1),
        ifSet<Data<&CellRecord::cell, &Cell::format>>("formats"_L1));
};

struct CellList
{
    static std::vector<CellRecord> get(const Spreadsheet& sheet)
    {
        std::vector<CellRecord> records;
        records.reserve(sheet.grid().cells.size());
        for (const auto& [position, cell] : sheet.grid().cells)
            records.push_back({position, cell});
        return records;
    }
    static void edit(Spreadsheet& sheet, auto change)
    {
        std::vector<CellRecord> records;
        change(records);
        SheetGrid grid = sheet.grid();
        for (CellRecord& record : records)
            grid.cells.insert_or_assign(record.position, std::move(record.cell));
        sheet.setGrid(std::move(grid));
    }
};

template <>
struct RecordOf<Spreadsheet>
{
    static constexpr auto entries = std::tuple(
        always<Property<&Spreadsheet::title, &Spreadsheet::setTitle>>("title"_L1),
        always<Part<&Spreadsheet::grid, &Spreadsheet::setGrid, &SheetGrid::rowCount>>("rowCount"_L1),
        always<Part<&Spreadsheet::grid, &Spreadsheet::setGrid, &SheetGrid::columnCount>>("columnCount"_L1),
        ifSet<CellList>("cells"_L1),
        ifSet<Part<&Spreadsheet::sizes, &Spreadsheet::setSizes, &SheetSizes::columnWidths>>(
            "columnWidths"_L1),
        ifSet<Part<&Spreadsheet::sizes, &Spreadsheet::setSizes, &SheetSizes::rowHeights>>("rowHeights"_L1),
        ifSet<Property<&Spreadsheet::linkedCategoryId, &Spreadsheet::setLinkedCategoryId>>(
            "linkedCategoryId"_L1));
};

KindCodec spreadsheetCodec()
{
    return objectKindCodec<Spreadsheet, [](const core::ContentId& id) {
        return std::make_unique<Spreadsheet>(id, QString());
    }>();
}

} // namespace tw::app::persistence
