#include "furniture/vxLegendGrid.h"

#include <algorithm>
#include <cmath>

namespace Velarix {

namespace {

long ceilDiv(long a, long b) {
    return (a + b - 1) / b;
}

// Rows and columns for n entries by the rule of the header; `first` is the
// count that the square root gives when both are as needed.
void fitCounts(long n, long& first, long& second) {
    const long kAsNeeded = vxLegendGrid::kAsNeeded;
    if (first == kAsNeeded && second == kAsNeeded) {
        first = static_cast<long>(std::ceil(std::sqrt(double(n)) - 1e-10));
        second = ceilDiv(n, first);
    } else if (first == kAsNeeded) {
        first = ceilDiv(n, second);
        second = ceilDiv(n, first);
    } else if (second == kAsNeeded) {
        second = ceilDiv(n, first);
        first = ceilDiv(n, second);
    }
}

}  // namespace

vxLegendGrid vxLegendGrid::arrange(long n, long rows, long columns, bool byColumn, bool reversed) {
    vxLegendGrid grid;
    grid.byColumn = byColumn;
    grid.reversed = reversed;
    rows = std::max(rows, kAsNeeded);
    columns = std::max(columns, kAsNeeded);
    if (n <= 0 || rows == 0 || columns == 0) return grid;
    grid.entries = n;
    if (rows != kAsNeeded && columns != kAsNeeded) {
        if (rows * columns < n) {
            grid.entries = rows * columns;
        } else {
            rows = ceilDiv(n, columns);
            columns = ceilDiv(n, rows);
        }
    } else if (byColumn) {
        fitCounts(n, rows, columns);
    } else {
        fitCounts(n, columns, rows);
    }
    grid.rows = rows;
    grid.columns = columns;
    return grid;
}

long vxLegendGrid::getPlace(long entry) const {
    return reversed ? rows * columns - 1 - entry : entry;
}

long vxLegendGrid::getRow(long entry) const {
    const long place = getPlace(entry);
    return byColumn ? place % rows : place / columns;
}

long vxLegendGrid::getColumn(long entry) const {
    const long place = getPlace(entry);
    return byColumn ? place / rows : place % columns;
}

long vxLegendGrid::getEntry(long row, long column) const {
    if (row < 0 || row >= rows || column < 0 || column >= columns) return -1;
    const long place = byColumn ? column * rows + row : row * columns + column;
    const long entry = reversed ? rows * columns - 1 - place : place;
    return entry < entries ? entry : -1;
}

std::vector<float> vxLegendGrid::getColumnExtents(const std::vector<float>& widths,
                                                  bool equal) const {
    return extents(widths, true, equal);
}

std::vector<float> vxLegendGrid::getRowExtents(const std::vector<float>& heights,
                                               bool equal) const {
    return extents(heights, false, equal);
}

std::vector<float> vxLegendGrid::extents(const std::vector<float>& sizes, bool ofColumns,
                                         bool equal) const {
    std::vector<float> result(static_cast<size_t>(ofColumns ? columns : rows), 0.0f);
    const long n = std::min(entries, static_cast<long>(sizes.size()));
    for (long i = 0; i < n; ++i) {
        float& extent = result[static_cast<size_t>(ofColumns ? getColumn(i) : getRow(i))];
        extent = std::max(extent, sizes[static_cast<size_t>(i)]);
    }
    if (equal && !result.empty()) {
        std::fill(result.begin(), result.end(), *std::max_element(result.begin(), result.end()));
    }
    return result;
}

// The places of a line are those from line * length on; the filled places
// run from 0 (or, reversed, from the places left over) for all entries.
void vxLegendGrid::getLineSpan(long entry, long& first, long& last) const {
    const long length = byColumn ? rows : columns;
    const long line = getPlace(entry) / length;
    const long filledFrom = reversed ? rows * columns - entries : 0;
    const long filledTo = filledFrom + entries - 1;
    first = std::max(line * length, filledFrom) - line * length;
    last = std::min((line + 1) * length - 1, filledTo) - line * length;
}

bool vxLegendGrid::isInShortLine(long entry) const {
    long first = 0, last = 0;
    getLineSpan(entry, first, last);
    return last - first + 1 < (byColumn ? rows : columns);
}

}  // namespace Velarix
