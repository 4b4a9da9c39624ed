#include "app/spreadsheet/SheetCalculator.h"

#include "app/spreadsheet/GridChange.h"

#include <gtest/gtest.h>

#include <random>
#include <set>

using namespace Qt::Literals::StringLiterals;

namespace tw::app::spreadsheet {

using core::spreadsheet::SheetGrid;

namespace {

CellPosition at(const QString& address)
{
    return referenceFromText(address)->position;
}

SheetGrid gridOf(qint32 rows, qint32 columns, std::initializer_list<std::pair<QString, QString>> cells)
{
    SheetGrid grid{rows, columns, {}};
    for (const auto& [address, text] : cells)
        grid.cells[at(address)].text = text;
    return grid;
}

} // namespace

TEST(SheetCalculator, onlyWhatDependsOnAChangeIsTold)
{
    SheetCalculator sheet(gridOf(
        10, 5,
        {{u"A1"_s, u"1"_s},
         {u"A2"_s, u"2"_s},
         {u"B1"_s, u"=SUM(A1:A3)"_s},
         {u"B2"_s, u"=B1*2"_s},
         {u"B3"_s, u"=A2"_s}}));
    EXPECT_EQ(displayText(sheet.value(at(u"B2"_s))), u"6");
    const auto changed = sheet.setText(at(u"A1"_s), u"5"_s);
    EXPECT_EQ(std::set(changed.begin(), changed.end()), (std::set{at(u"A1"_s), at(u"B1"_s), at(u"B2"_s)}));
    EXPECT_EQ(displayText(sheet.value(at(u"B2"_s))), u"14");
    EXPECT_TRUE(sheet.setText(at(u"A1"_s), u"5.0"_s).empty()) << "the same value";
    EXPECT_TRUE(sheet.setText(at(u"A11"_s), u"5"_s).empty()) << "outside of the grid";
}

TEST(SheetCalculator, cyclesComeAndGo)
{
    SheetCalculator sheet(gridOf(
        10, 5,
        {{u"A1"_s, u"=B1"_s},
         {u"B1"_s, u"=C1"_s},
         {u"C1"_s, u"7"_s},
         {u"D1"_s, u"=A1+1"_s},
         {u"E1"_s, u"=IFERROR(D1,0)"_s}}));
    sheet.setText(at(u"C1"_s), u"=A1"_s);
    for (const QString& address : {u"A1"_s, u"B1"_s, u"C1"_s, u"D1"_s})
        EXPECT_EQ(displayText(sheet.value(at(address))), u"#CIRC!") << address.toStdString();
    EXPECT_EQ(displayText(sheet.value(at(u"E1"_s))), u"0");
    sheet.setText(at(u"B1"_s), u"3"_s);
    EXPECT_EQ(displayText(sheet.value(at(u"C1"_s))), u"3");
    EXPECT_EQ(displayText(sheet.value(at(u"E1"_s))), u"4");
}

TEST(SheetCalculator, longChainsNeedNoStack)
{
    constexpr qint32 length = 10'000;
    SheetGrid grid{length, 1, {}};
    grid.cells[{0, 0}].text = u"1"_s;
    for (qint32 row = 1; row < length; ++row)
        grid.cells[{row, 0}].text = u"=A%1+1"_s.arg(row);
    SheetCalculator sheet(grid);
    EXPECT_EQ(displayText(sheet.value({length - 1, 0})), QString::number(length));
    sheet.setText({0, 0}, u"=A%1"_s.arg(length));
    EXPECT_EQ(displayText(sheet.value({length / 2, 0})), u"#CIRC!");
    sheet.setText({0, 0}, u"11"_s);
    EXPECT_EQ(displayText(sheet.value({length - 1, 0})), QString::number(length + 10));
}

TEST(SheetCalculator, sizesFromFilesAreNotTrusted)
{
    constexpr qint32 huge = std::numeric_limits<qint32>::max();
    SheetGrid grid{huge, huge, {}};
    grid.cells[{0, 0}].text = u"=SUM(B1:XFD1048576)+COUNTBLANK(B1:XFD1048576)*0"_s;
    grid.cells[{5, 5}].text = u"4"_s;
    grid.cells[{huge, huge}].text = u"=A1"_s;
    grid.cells[{-1, 2}].text = u"5"_s;
    EXPECT_EQ(displayText(SheetCalculator(grid).value({0, 0})), u"4");
    for (const qint32 size : {0, -5}) {
        grid.rowCount = size;
        EXPECT_EQ(displayText(SheetCalculator(grid).value({0, 0})), QString());
    }
}

TEST(SheetCalculator, changesOneByOneEqualAFreshStart)
{
    std::mt19937 random(7);
    const auto below = [&random](int limit) {
        return static_cast<int>(random() % static_cast<quint32>(limit));
    };
    const auto address = [&] { return addressText({below(12), below(6)}); };
    const auto text = [&]() -> QString {
        switch (below(9)) {
        case 0:
            return {};
        case 1:
            return u"word"_s;
        case 2:
            return u"="_s + address();
        case 3:
            return u"=%1+%2"_s.arg(address(), address());
        case 4:
            return u"=SUM(%1:%2)"_s.arg(address(), address());
        case 5:
            return u"=IFERROR(%1,COUNTIF(%2:%3,\">3\"))"_s.arg(address(), address(), address());
        case 6:
            return u"=SUMIF(%1:%2,\"<5\",%3:%4)"_s.arg(address(), address(), address(), address());
        default:
            return QString::number(below(9));
        }
    };
    SheetGrid grid{12, 6, {}};
    SheetCalculator sheet(grid);
    for (int step = 0; step < 1'000; ++step) {
        const CellPosition position{below(12), below(6)};
        grid.cells[position].text = text();
        const auto values = [](const SheetCalculator& calculator) {
            std::vector<QString> shown;
            for (qint32 row = 0; row < 12; ++row) {
                for (qint32 column = 0; column < 6; ++column)
                    shown.push_back(displayText(calculator.value({row, column})));
            }
            return shown;
        };
        const std::vector<QString> before = values(sheet);
        const auto changed = sheet.setText(position, grid.cells[position].text);
        const std::vector<QString> after = values(sheet);
        ASSERT_EQ(after, values(SheetCalculator(grid))) << "step " << step;
        for (std::size_t index = 0; index < after.size(); ++index) {
            const CellPosition cell{static_cast<qint32>(index / 6), static_cast<qint32>(index % 6)};
            if (before[index] != after[index]) {
                ASSERT_NE(std::ranges::find(changed, cell), changed.end()) << "step " << step;
            }
        }
    }
}

TEST(GridChange, formulasFollowTheirCells)
{
    const auto rows = [](GridChangeKind kind, qint32 at, qint32 count) {
        return GridChange{GridAxis::Rows, kind, at, count};
    };
    const auto columns = [](GridChangeKind kind, qint32 at, qint32 count) {
        return GridChange{GridAxis::Columns, kind, at, count};
    };
    constexpr auto inserted = GridChangeKind::Inserted;
    constexpr auto removed = GridChangeKind::Removed;
    const struct
    {
        QString before;
        GridChange change;
        QString after;
    } cases[] = {
        {u"=A1 + $B$3*a5"_s, rows(inserted, 2, 2), u"=A1 + $B$5*A7"_s},
        {u"=SUM(A1:A3)"_s, rows(inserted, 1, 1), u"=SUM(A1:A4)"_s},
        {u"=SUM(A1:A3)"_s, rows(inserted, 3, 1), u"=SUM(A1:A3)"_s},
        {u"=SUM(A2:A5)"_s, rows(removed, 0, 1), u"=SUM(A1:A4)"_s},
        {u"=SUM(A2:A5)"_s, rows(removed, 3, 9), u"=SUM(A2:A3)"_s},
        {u"=SUM(A2:A5)"_s, rows(removed, 0, 3), u"=SUM(A1:A2)"_s},
        {u"=SUM(A2:A5)+A1"_s, rows(removed, 1, 4), u"=SUM(#REF!)+A1"_s},
        {u"=SUM(A5:A2)"_s, rows(removed, 3, 9), u"=SUM(A3:A2)"_s},
        {u"=A3"_s, rows(removed, 2, 1), u"=#REF!"_s},
        {u"=$C$1:D2"_s, columns(inserted, 0, 1), u"=$D$1:E2"_s},
        {u"=C1+\"C1\"+LOG10(C1)"_s, columns(removed, 0, 1), u"=B1+\"C1\"+LOG10(B1)"_s},
        {u"=A1048576"_s, rows(inserted, 0, 1), u"=#REF!"_s},
        {u"=\"open"_s, rows(inserted, 0, 1), u"=\"open"_s},
        {u"A1"_s, rows(inserted, 0, 1), u"A1"_s},
    };
    for (const auto& row : cases)
        EXPECT_EQ(followedText(row.before, row.change), row.after) << row.before.toStdString();
}

TEST(GridChange, cellsMoveWithTheirFormats)
{
    SheetGrid grid = gridOf(4, 3, {{u"A1"_s, u"1"_s}, {u"A2"_s, u"2"_s}, {u"A4"_s, u"=SUM(A1:A2)"_s}});
    grid.cells[at(u"A2"_s)].format.isBold = true;
    const SheetGrid inserted = changedGrid(grid, {GridAxis::Rows, GridChangeKind::Inserted, 1, 2});
    EXPECT_EQ(inserted.rowCount, 6);
    EXPECT_TRUE(inserted.cells.at(at(u"A4"_s)).format.isBold);
    EXPECT_EQ(inserted.cells.at(at(u"A6"_s)).text, u"=SUM(A1:A4)");
    EXPECT_EQ(changedGrid(inserted, {GridAxis::Rows, GridChangeKind::Removed, 1, 2}), grid);

    const SheetGrid emptied = changedGrid(grid, {GridAxis::Columns, GridChangeKind::Removed, 0, 99});
    EXPECT_EQ(emptied.columnCount, 1) << "a sheet keeps a column";
    EXPECT_EQ(changedGrid(grid, {GridAxis::Rows, GridChangeKind::Inserted, 99, 1}).rowCount, 5);
}

} // namespace tw::app::spreadsheet
