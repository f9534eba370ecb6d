// Where the cells of a table stand, what they show, and the picture of all of them.
#include <algorithm>
#include <cmath>

#include "platform/qt/Conversions.h"
#include "platform/qt/GridCells.h"
#include "qt/Recorders.h"

namespace tessarin {
namespace {

constexpr uint32_t kWhite = 0xffffffff;

GridTable TwoColumns(std::vector<GridRow> rows) {
    return {{{1500}, kGridColumnWidth}, std::move(rows)};
}

GridTable ThreeColumns(std::vector<GridRow> rows) {
    return {{{1500}, kGridColumnWidth, kGridColumnWidth}, std::move(rows)};
}

// "text @ left right" of each cell of a row.
Log Cells(const GridTable& table, int row) {
    Log cells;
    for (const SeenCell& cell : GridCells(table).Row(row)) {
        cells.push_back(FromQt(cell.text) + " @ " + std::to_string(cell.place.left()) + " " +
                        std::to_string(cell.place.right()));
    }
    return cells;
}

// Whether all of a part of a picture, given in pixels of the window, is plain white.
bool IsBlank(const Bitmap& picture, const QRect& part) {
    const auto at = [&](int place) { return static_cast<int>(place * picture.ratio); };
    for (int y = at(part.top()); y < at(part.bottom() + 1); ++y) {
        for (int x = at(part.left()); x < at(part.right() + 1); ++x) {
            if (picture.At(x, y) != kWhite) {
                return false;
            }
        }
    }
    return true;
}

TEST(GridCellsTest, ColumnsAndRowsHaveTheirTwips) {
    const GridTable table = ThreeColumns({{{"", "Number", "% of vis"}}, {{"Visible", "5", "100"}}});
    EXPECT_EQ(Cells(table, 0), (Log{" @ 1 99", "Number @ 101 163", "% of vis @ 165 227"}));
    EXPECT_EQ(Cells(table, 1), (Log{"Visible @ 1 99", "5 @ 101 163", "100 @ 165 227"}));
    EXPECT_EQ(GridCells(table).Row(1)[2].place, QRect(165, 17, 63, 15));
    EXPECT_EQ(GridCells(table).Size(), QSize(100 + 64 + 64 + 1, 2 * 16 + 1));
    EXPECT_TRUE(GridCells(ThreeColumns({})).Size().isEmpty());
    EXPECT_TRUE(GridCells({{}, {{}, {}}}).Size().isEmpty());
}

TEST(GridCellsTest, OnlyEqualNeighboursOfAMergedRowAreOne) {
    const GridTable table = ThreeColumns({{{"File name", "a.fcs ", "a.fcs "}, true},
                                          {{"File name", "a.fcs ", ""}, true},
                                          {{"", "", "x"}, true},
                                          {{"x", "", "x"}, true},
                                          {{"", "", ""}, true},
                                          {{"5", "5", "5"}, false}});
    EXPECT_EQ(Cells(table, 0), (Log{"File name @ 1 99", "a.fcs  @ 101 227"}));
    EXPECT_EQ(Cells(table, 1), (Log{"File name @ 1 99", "a.fcs  @ 101 163", " @ 165 227"}));
    EXPECT_EQ(Cells(table, 2), (Log{" @ 1 163", "x @ 165 227"}));
    EXPECT_EQ(Cells(table, 3), (Log{"x @ 1 99", " @ 101 163", "x @ 165 227"}));
    EXPECT_EQ(Cells(table, 4), (Log{" @ 1 227"}));
    EXPECT_EQ(Cells(table, 5), (Log{"5 @ 1 99", "5 @ 101 163", "5 @ 165 227"}));
}

TEST(GridCellsTest, NumbersStandToTheRight) {
    const GridTable table = ThreeColumns({{{"7", "12.5", "X mean"}},
                                          {{"File name", "60909", "60909"}, true},
                                          {{"Poly-1", "-1.5E-20", "NaN"}},
                                          {{"", "5 %", ""}}});
    std::string numbers;
    for (int row = 0; row < table.Rows(); ++row) {
        for (const SeenCell& cell : GridCells(table).Row(row)) {
            numbers += cell.number ? "n" : "t";
        }
        numbers += " ";
    }
    EXPECT_EQ(numbers, "tnt tt tnn ttt ") << "names and merged cells never are";
    for (const double ratio : {1.0, 1.5, 2.0}) {
        const Bitmap picture = GridCells(table).Picture(ratio);
        EXPECT_TRUE(IsBlank(picture, QRect(103, 2, 20, 13)));
        EXPECT_FALSE(IsBlank(picture, QRect(140, 2, 21, 13)));
        EXPECT_FALSE(IsBlank(picture, QRect(2, 2, 20, 13)));
        EXPECT_TRUE(IsBlank(picture, QRect(40, 2, 58, 13)));
        EXPECT_FALSE(IsBlank(picture, QRect(167, 2, 20, 13))) << "a head is no number";
    }
}

TEST(GridCellsTest, LinesCanBeTakenHoldOfWhereTheyAreDrawn) {
    const GridCells cells(
        ThreeColumns({{{"File name", "a.fcs", "a.fcs"}, true}, {{"", "Number", "% of vis"}}}));
    for (const int row : {8, 24, 32}) {
        EXPECT_EQ(cells.LineAt({99, row}), 0);
        EXPECT_EQ(cells.LineAt({103, row}), 0);
        EXPECT_EQ(cells.LineAt({104, row}), -1);
        EXPECT_EQ(cells.LineAt({228, row}), 2);
    }
    EXPECT_EQ(cells.LineAt({164, 8}), -1) << "no line through a merged cell";
    EXPECT_EQ(cells.LineAt({164, 24}), 1);
    EXPECT_EQ(cells.LineAt({100, -1}), -1);
    EXPECT_EQ(cells.LineAt({100, 33}), -1);
}

TEST(GridCellsTest, AWidthThatTheUserGaveStaysWithItsColumn) {
    const GridTable three = ThreeColumns({{{"", "Number", "X mean"}}, {{"Visible", "5", "7"}}});
    GridCells before(three);
    before.SetColumnWidth(0, 180);
    before.SetColumnWidth(2, 90);
    EXPECT_EQ(before.Size().width(), 180 + 64 + 90 + 1);
    EXPECT_EQ(before.Row(1)[2].place, QRect(245, 17, 89, 15));
    before.SetColumnWidth(1, -500);
    EXPECT_EQ(before.ColumnWidth(1), 16) << "it can be taken hold of again";
    before.SetColumnWidth(1, 64);

    GridCells same(ThreeColumns({{{"File name", "5", "5"}, true}, {{"FAST DRAW", "a", "b"}}}));
    same.KeepWidths(before);
    EXPECT_EQ(same.Size(), QSize(335, 33));
    GridCells fewer(TwoColumns({{{"", "X mean"}}}));
    fewer.KeepWidths(same);
    fewer.KeepWidths(before);
    EXPECT_EQ(fewer.ColumnWidth(0), 180);
    EXPECT_EQ(fewer.ColumnWidth(1), 90) << "the column that was the third";
    GridCells none;
    none.KeepWidths(before);
    EXPECT_TRUE(none.Size().isEmpty());
}

TEST(GridCellsTest, NamesAreShownAsTheyAreInOneLine) {
    const GridTable table =
        TwoColumns({{{"<b>R&D</b> &x", "\xc3\xa4\xc3\xb6"}}, {{"a\tb\r\nc", "a  b"}}});
    EXPECT_EQ(Cells(table, 0), (Log{"<b>R&D</b> &x @ 1 99", "\xc3\xa4\xc3\xb6 @ 101 163"}));
    EXPECT_EQ(Cells(table, 1), (Log{"a b  c @ 1 99", "a  b @ 101 163"}));
}

TEST(GridCellsTest, OnlyTextThatIsCutHasAToolTip) {
    const std::string longName = "A population with a long and <b>bold</b> name";
    const GridCells cells(
        ThreeColumns({{{longName, longName, "5"}}, {{"Sample ID", longName, longName}, true}}));
    EXPECT_EQ(FromQt(cells.CutTextAt({50, 8})), longName);
    EXPECT_EQ(FromQt(cells.CutTextAt({150, 8})), longName);
    EXPECT_EQ(FromQt(cells.CutTextAt({220, 24})), longName);  // the far end of a merged cell
    for (const QPoint place : {QPoint(200, 8), QPoint(50, 24), QPoint(-1, 8), QPoint(50, 33),
                               QPoint(229, 8), QPoint(50, 32), QPoint(100, 8)}) {
        EXPECT_EQ(cells.CutTextAt(place), QString()) << place.x() << " " << place.y();
    }
}

TEST(GridCellsTest, ThePictureHasLinesAroundCellsAndInkInThoseWithText) {
    for (const double ratio : {1.0, 1.5, 2.0}) {
        const Bitmap picture =
            GridCells(ThreeColumns({{{"Comments", "stained  ", "stained  "}, true},
                                    {{"", "MMMMMMMMMMMMMMMMMMMM", ""}}}))
                .Picture(ratio);
        EXPECT_EQ(picture.ratio, ratio);
        EXPECT_EQ(picture.width, std::lrint(229 * ratio));
        EXPECT_EQ(picture.height, std::lrint(33 * ratio));
        ASSERT_EQ(picture.pixels.size(), static_cast<std::size_t>(picture.width) *
                                             static_cast<std::size_t>(picture.height));
        const uint32_t line = picture.At(0, 0);
        EXPECT_NE(line, kWhite);
        EXPECT_EQ(picture.At(picture.width - 1, picture.height - 1), line);

        EXPECT_FALSE(IsBlank(picture, QRect(2, 2, 97, 13)));
        EXPECT_FALSE(IsBlank(picture, QRect(102, 2, 61, 13)));
        EXPECT_TRUE(IsBlank(picture, QRect(160, 2, 8, 13)));  // no line through a merged cell
        EXPECT_FALSE(IsBlank(picture, QRect(160, 18, 8, 13)));
        EXPECT_TRUE(IsBlank(picture, QRect(2, 18, 97, 13)));
        EXPECT_TRUE(IsBlank(picture, QRect(166, 18, 61, 13)));  // long text stays in its cell
    }
}

TEST(GridCellsTest, EachOfThousandsOfRowsIsInThePicture) {
    constexpr int kRows = 2500;
    constexpr int kPeriod = 7;  // no divisor of any round number of rows
    std::vector<GridRow> rows;
    rows.reserve(kRows);
    for (int row = 0; row < kRows; ++row) {
        rows.push_back({{"Lymphocytes", std::to_string(row % kPeriod)}});
    }
    const Bitmap picture = GridCells(TwoColumns(std::move(rows))).Picture(2);
    ASSERT_EQ(picture.height, kRows * 32 + 2);
    const auto rowPixels = 32 * static_cast<std::ptrdiff_t>(picture.width);
    const auto pixelsOf = [&](int row) { return picture.pixels.begin() + row * rowPixels; };
    const auto areEqual = [&](int a, int b) {
        return std::equal(pixelsOf(a), pixelsOf(a) + rowPixels, pixelsOf(b));
    };
    ASSERT_FALSE(areEqual(0, 1));
    for (int row = kPeriod; row < kRows; ++row) {
        ASSERT_TRUE(areEqual(row, row % kPeriod)) << row;
    }
}

TEST(GridCellsTest, OddTablesDoNoHarm) {
    const GridTable table{{{-500}, {0}, {2000000000}}, {{{"a", "b", "c"}}, {{"only one"}}}};
    const GridCells cells(table);
    EXPECT_LE(cells.Size().width(), 3 * 8192);
    EXPECT_GT(cells.Picture(1).pixels.size(), 0U);
    EXPECT_TRUE(GridCells().Picture(2).pixels.empty());
}

}  // namespace
}  // namespace tessarin
