// The grid of a legend's entries: how many rows and columns n entries take,
// which entries a grid too small drops, where each entry stands, and the
// widths of the columns and heights of the rows that follow, reversed and
// column by column too.
#include <gtest/gtest.h>

#include <vector>

#include "furniture/vxLegendGrid.h"

namespace Velarix::test {
namespace {

constexpr long A = vxLegendGrid::kAsNeeded;

struct Arrangement {
    long n, rows, columns;
    bool byColumn;
    long expectedRows, expectedColumns, shown;
};

TEST(LegendGrid, ArrangesRowsAndColumns) {
    const Arrangement cases[] = {
        // The default of at most 10 rows grows columns.
        {12, 10, A, false, 6, 2, 12},
        {3, 10, A, false, 3, 1, 3},
        {10, 10, A, false, 10, 1, 10},
        {11, 10, A, false, 6, 2, 11},
        {300, 10, A, false, 10, 30, 300},
        // As many as needed both ways: the square root, rounded up, gives
        // the columns; column by column it gives the rows.
        {9, A, A, false, 3, 3, 9},
        {10, A, A, false, 3, 4, 10},
        {10, A, A, true, 4, 3, 10},
        {1, A, A, false, 1, 1, 1},
        // Given columns: the rows follow, the columns are cut to them.
        {5, A, 3, false, 2, 3, 5},
        {4, A, 3, false, 2, 2, 4},
        {7, A, 1, true, 7, 1, 7},
        // Both given: a grid too small drops the entries beyond it; a
        // larger one is cut, the rows first.
        {5, 2, 2, false, 2, 2, 4},
        {5, 2, 2, true, 2, 2, 4},
        {4, 3, 3, false, 2, 2, 4},
        {4, 2, 5, false, 1, 4, 4},
        // Nothing to arrange, or no room: an empty grid.
        {0, 10, A, false, 0, 0, 0},
        {5, 0, A, false, 0, 0, 0},
        {5, A, 0, false, 0, 0, 0},
        {5, 0, 0, true, 0, 0, 0},
    };
    for (const Arrangement& c : cases) {
        const vxLegendGrid grid = vxLegendGrid::arrange(c.n, c.rows, c.columns, c.byColumn, false);
        SCOPED_TRACE(testing::Message() << "n " << c.n << ", rows " << c.rows << ", columns "
                                        << c.columns << (c.byColumn ? ", by column" : ""));
        EXPECT_EQ(grid.getNumOfRows(), c.expectedRows);
        EXPECT_EQ(grid.getNumOfColumns(), c.expectedColumns);
        EXPECT_EQ(grid.getNumOfEntries(), c.shown);
    }
}

// The entries of each row, top to bottom, -1 for an empty place.
std::vector<std::vector<long>> layoutOf(const vxLegendGrid& grid) {
    std::vector<std::vector<long>> rows;
    for (long r = 0; r < grid.getNumOfRows(); ++r) {
        rows.emplace_back();
        for (long c = 0; c < grid.getNumOfColumns(); ++c)
            rows.back().push_back(grid.getEntry(r, c));
    }
    return rows;
}

using Layout = std::vector<std::vector<long>>;

TEST(LegendGrid, PlacesEntriesInReadingOrderOrFromTheEnd) {
    // Five entries in three rows of two.
    EXPECT_EQ(layoutOf(vxLegendGrid::arrange(5, 3, A, false, false)),
              Layout({{0, 1}, {2, 3}, {4, -1}}));
    EXPECT_EQ(layoutOf(vxLegendGrid::arrange(5, 3, A, true, false)),
              Layout({{0, 3}, {1, 4}, {2, -1}}));
    // Reversed, the first entry takes the last place, and the place left
    // over is the first: the first row stays short.
    EXPECT_EQ(layoutOf(vxLegendGrid::arrange(5, 3, A, false, true)),
              Layout({{-1, 4}, {3, 2}, {1, 0}}));
    EXPECT_EQ(layoutOf(vxLegendGrid::arrange(5, 3, A, true, true)),
              Layout({{-1, 2}, {4, 1}, {3, 0}}));
    // Dropped entries have no place, reversed or not.
    const vxLegendGrid small = vxLegendGrid::arrange(5, 2, 2, false, true);
    EXPECT_EQ(layoutOf(small), Layout({{3, 2}, {1, 0}}));
    // The row and column of an entry agree with the entry at that place.
    for (bool byColumn : {false, true}) {
        for (bool reversed : {false, true}) {
            const vxLegendGrid grid = vxLegendGrid::arrange(7, A, 3, byColumn, reversed);
            for (long i = 0; i < grid.getNumOfEntries(); ++i) {
                EXPECT_EQ(grid.getEntry(grid.getRow(i), grid.getColumn(i)), i);
            }
        }
    }
}

TEST(LegendGrid, ColumnWidthsAndRowHeightsFollowTheEntries) {
    const std::vector<float> widths = {10, 20, 30, 40, 50};
    const std::vector<float> heights = {5, 1, 2, 3, 4};
    // Row by row in two columns: 0 2 4 left, 1 3 right.
    vxLegendGrid grid = vxLegendGrid::arrange(5, 3, A, false, false);
    EXPECT_EQ(grid.getColumnExtents(widths, false), std::vector<float>({50, 40}));
    EXPECT_EQ(grid.getRowExtents(heights, false), std::vector<float>({5, 3, 4}));
    // Reversed: -1 4 / 3 2 / 1 0.
    grid = vxLegendGrid::arrange(5, 3, A, false, true);
    EXPECT_EQ(grid.getColumnExtents(widths, false), std::vector<float>({40, 50}));
    EXPECT_EQ(grid.getRowExtents(heights, false), std::vector<float>({4, 3, 5}));
    // Column by column: 0 1 2 left, 3 4 right.
    grid = vxLegendGrid::arrange(5, 3, A, true, false);
    EXPECT_EQ(grid.getColumnExtents(widths, false), std::vector<float>({30, 50}));
    EXPECT_EQ(grid.getRowExtents(heights, false), std::vector<float>({5, 4, 2}));
    // Reversed column by column: -1 2 / 4 1 / 3 0.
    grid = vxLegendGrid::arrange(5, 3, A, true, true);
    EXPECT_EQ(grid.getColumnExtents(widths, false), std::vector<float>({50, 30}));
    EXPECT_EQ(grid.getRowExtents(heights, false), std::vector<float>({2, 4, 5}));
    // Equal extents take the largest of all.
    EXPECT_EQ(grid.getColumnExtents(widths, true), std::vector<float>({50, 50}));
    EXPECT_EQ(grid.getRowExtents(heights, true), std::vector<float>({5, 5, 5}));
    // Entries a grid too small drops count for nothing.
    grid = vxLegendGrid::arrange(5, 2, 2, false, false);
    EXPECT_EQ(grid.getColumnExtents(widths, false), std::vector<float>({30, 40}));
    EXPECT_TRUE(vxLegendGrid().getColumnExtents(widths, true).empty());
}

TEST(LegendGrid, ShortLinesAndTheirSpans) {
    long first = 0, last = 0;
    // Row by row, 5 in rows of 3: the second row holds 3 and 4 in its
    // first two columns.
    vxLegendGrid grid = vxLegendGrid::arrange(5, A, 3, false, false);
    EXPECT_FALSE(grid.isInShortLine(2));
    EXPECT_TRUE(grid.isInShortLine(4));
    grid.getLineSpan(4, first, last);
    EXPECT_EQ(first, 0);
    EXPECT_EQ(last, 1);
    // Reversed, the short row comes first and ends at the last column.
    grid = vxLegendGrid::arrange(5, A, 3, false, true);
    EXPECT_TRUE(grid.isInShortLine(4));
    EXPECT_FALSE(grid.isInShortLine(0));
    grid.getLineSpan(4, first, last);
    EXPECT_EQ(first, 1);
    EXPECT_EQ(last, 2);
    // Column by column the lines are the columns.
    grid = vxLegendGrid::arrange(5, 2, A, true, false);
    EXPECT_TRUE(grid.isInShortLine(4));
    grid.getLineSpan(4, first, last);
    EXPECT_EQ(first, 0);
    EXPECT_EQ(last, 0);
}

}  // namespace
}  // namespace Velarix::test
