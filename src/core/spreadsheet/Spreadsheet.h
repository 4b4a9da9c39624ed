#pragma once

#include "core/content/ContentObject.h"

#include <compare>
#include <map>
#include <optional>
#include <vector>

namespace tw::core::spreadsheet {

/** Zero-based. */
struct CellPosition
{
    qint32 row = 0;
    qint32 column = 0;

    friend auto operator<=>(const CellPosition&, const CellPosition&) = default;
};

/** How a cell looks. Empty texts and zero mean "as the sheet does". */
struct CellFormat
{
    bool isBold = false;
    bool isItalic = false;
    bool isUnderlined = false;
    bool isStruckOut = false;
    QString fontFamily;
    double fontPointSize = 0;
    QString textColor;
    QString backgroundColor;
    QString alignment;
    QString numberFormat;
    /** None for as many as the value has. */
    std::optional<qint32> decimalPlaces;

    [[nodiscard]] bool isDefault() const { return *this == CellFormat(); }

    friend bool operator==(const CellFormat&, const CellFormat&) = default;
};

struct Cell
{
    /** A value, or a formula when it starts with "=". */
    QString text;
    CellFormat format;

    [[nodiscard]] bool isEmpty() const { return text.isEmpty() && format.isDefault(); }

    friend bool operator==(const Cell&, const Cell&) = default;
};

/** Only cells that hold text or a format are kept, also outside the grid's size. */
using CellMap = std::map<CellPosition, Cell>;

struct SheetGrid
{
    qint32 rowCount = 0;
    qint32 columnCount = 0;
    CellMap cells;

    friend bool operator==(const SheetGrid&, const SheetGrid&) = default;
};

/** Pixels at 100 %; 0 is the default; trailing zeros are dropped. */
struct SheetSizes
{
    std::vector<qint32> columnWidths;
    std::vector<qint32> rowHeights;

    friend bool operator==(const SheetSizes&, const SheetSizes&) = default;
};

class Spreadsheet final : public content::ContentObject
{
public:
    static constexpr auto staticKind = content::ContentKind::Spreadsheet;

    Spreadsheet(ContentId id, QString title);
    ~Spreadsheet() override;

    [[nodiscard]] const QString& title() const { return m_title; }
    void setTitle(QString title) { m_title = std::move(title); }

    [[nodiscard]] const SheetGrid& grid() const { return m_grid; }
    /** Empty cells are dropped. */
    void setGrid(SheetGrid grid);

    /** The cell at a position; an empty one where nothing is kept. */
    [[nodiscard]] Cell cell(CellPosition position) const;
    /** An empty cell removes what was kept there. */
    void setCell(CellPosition position, Cell cell);

    [[nodiscard]] const SheetSizes& sizes() const { return m_sizes; }
    void setSizes(SheetSizes sizes);

    /** The codex category whose entities are the rows; null for a free sheet. */
    [[nodiscard]] const CategoryId& linkedCategoryId() const { return m_linkedCategoryId; }
    void setLinkedCategoryId(CategoryId id) { m_linkedCategoryId = id; }

    friend bool operator==(const Spreadsheet& left, const Spreadsheet& right);

private:
    QString m_title;
    SheetGrid m_grid;
    SheetSizes m_sizes;
    CategoryId m_linkedCategoryId;
};

} // namespace tw::core::spreadsheet
