// The rows and columns of a legend's entries. Entries fill the grid row by
// row (or column by column) in reading order; a reversed grid takes them
// from its last place backward, so that the first entry stands in the last
// place and the places left over are the first ones: a short row (or
// column) then comes first.
//
// The number of rows and columns for n entries, each -1 for "as many as
// needed" (arrange):
//   - no entries, or 0 rows or 0 columns: an empty grid;
//   - both -1: the columns are the square root of n, rounded up, and the
//     rows as many as these need; column by column it is the other way
//     round;
//   - one of them -1: the given count stands, the other follows from it,
//     and the given one is then cut to what the entries need;
//   - both given: a grid too small for n shows its first rows * columns
//     entries and drops the others; a larger one is cut as above, the rows
//     first.
// So 12 entries in at most 10 rows take 2 columns of 6 rows.
#pragma once

#include <vector>

namespace Velarix {

class vxLegendGrid {
public:
    // A count of rows or columns that follows from the other one.
    static constexpr long kAsNeeded = -1;

    vxLegendGrid() = default;
    static vxLegendGrid arrange(long numOfEntries, long rows, long columns, bool byColumn,
                                bool reversed);

    long getNumOfRows() const { return rows; }
    long getNumOfColumns() const { return columns; }
    // The entries shown, the first ones of those arranged.
    long getNumOfEntries() const { return entries; }
    bool isByColumn() const { return byColumn; }
    bool isReversed() const { return reversed; }

    // The place of an entry in reading order, and its row and column.
    long getPlace(long entry) const;
    long getRow(long entry) const;
    long getColumn(long entry) const;
    // The entry at a row and column; -1 for an empty place.
    long getEntry(long row, long column) const;

    // The largest extent of the entries in each column (or row): the
    // widths of the columns from the widths of the entries, the heights of
    // the rows from their heights. With `equal` each takes the largest of
    // all. Throws std::bad_alloc.
    std::vector<float> getColumnExtents(const std::vector<float>& widths, bool equal) const;
    std::vector<float> getRowExtents(const std::vector<float>& heights, bool equal) const;

    // Whether the row (column by column: the column) of the entry holds
    // fewer entries than the others may.
    bool isInShortLine(long entry) const;
    // The first and last column (row by column) that the entries of the
    // entry's line take.
    void getLineSpan(long entry, long& first, long& last) const;

private:
    std::vector<float> extents(const std::vector<float>& sizes, bool ofColumns, bool equal) const;

    long rows = 0;
    long columns = 0;
    long entries = 0;
    bool byColumn = false;
    bool reversed = false;
};

}  // namespace Velarix
