// The layout of a legend: the grid of its entries, the widths of the
// columns and the heights of the rows, the cells of the entries and the
// box around them, and its place in the chart.
#include <algorithm>
#include <cmath>
#include <numeric>

#include "furniture/vxLegend.h"
#include "graphics/vxLabel.h"

namespace Velarix {

namespace {

// The starts of extents laid one after the other with a gap between.
std::vector<float> startsOf(const std::vector<float>& extents, float gap) {
    std::vector<float> starts(extents.size(), 0.0f);
    for (size_t k = 1; k < extents.size(); ++k) starts[k] = starts[k - 1] + extents[k - 1] + gap;
    return starts;
}

float totalOf(const std::vector<float>& extents, float gap) {
    if (extents.empty()) return 0.0f;
    const float sum = std::accumulate(extents.begin(), extents.end(), 0.0f);
    return sum + gap * static_cast<float>(extents.size() - 1);
}

}  // namespace

void vxLegend::clearEntries() {
    texts.clear();
    items.clear();
    columnWidthsDC.clear();
    rowHeightsDC.clear();
    std::fill(bounds, bounds + 4, 0.0f);
}

void vxLegend::setUpBounds() {
    if (!createBackground()) return;
    grid = vxLegendGrid::arrange(getNumOfEntries(), numOfRows, numOfColumns, arrangeColumnByColumn,
                                 arrangeReversed);
    dropEntriesBeyondGrid();
    if (grid.getNumOfEntries() == 0) {
        clearEntries();
        doRecalcBounds = false;
        return;
    }
    const vxLegendItem::Layout layout = getItemLayout();
    std::vector<float> widths, heights;
    if (!measureItems(layout, widths, heights)) return;
    setUpColumnsWidths(widths);
    if (!isError()) setUpRowHeights(heights);
    if (isError()) return;
    // Whole points, so that a legend without a border stands on them.
    const float width = std::ceil(totalOf(columnWidthsDC, getColumnGapDC()));
    const float height = std::ceil(totalOf(rowHeightsDC, getRowGapDC()));
    placeItems(layout, width, height);
    setUpBackground(width, height);
    if (!isError()) doRecalcBounds = false;
}

bool vxLegend::measureItems(const vxLegendItem::Layout& layout, std::vector<float>& widths,
                            std::vector<float>& heights) {
    try {
        widths.reserve(items.size());
        heights.reserve(items.size());
        for (auto& item : items) {
            float size[2];
            item->getSize(layout, size);
            widths.push_back(size[0]);
            heights.push_back(size[1]);
        }
    } catch (const std::bad_alloc&) {
        setError(vxErrRuntime::kOutOfMemory, where(L"measureItems"));
    }
    return !isError();
}

// A grid too small for all entries shows the first ones.
void vxLegend::dropEntriesBeyondGrid() {
    const size_t shown = static_cast<size_t>(grid.getNumOfEntries());
    if (items.size() > shown) items.resize(shown);
    if (texts.size() > shown) texts.resize(shown);
}

void vxLegend::setUpColumnsWidths(const std::vector<float>& widths) {
    try {
        columnWidthsDC = grid.getColumnExtents(widths, useEquidstantColumnWidths);
    } catch (const std::bad_alloc&) {
        setError(vxErrRuntime::kOutOfMemory, where(L"setUpColumnsWidths"));
    }
}

void vxLegend::setUpRowHeights(const std::vector<float>& heights) {
    try {
        rowHeightsDC = grid.getRowExtents(heights, useEquidstantRowHeights);
    } catch (const std::bad_alloc&) {
        setError(vxErrRuntime::kOutOfMemory, where(L"setUpRowHeights"));
    }
}

// Each entry in the cell of its column and row, from (0, 0).
void vxLegend::placeItems(const vxLegendItem::Layout& layout, float contentWidth,
                          float contentHeight) {
    std::vector<float> lefts, tops;
    try {
        lefts = startsOf(columnWidthsDC, getColumnGapDC());
        tops = startsOf(rowHeightsDC, getRowGapDC());
    } catch (const std::bad_alloc&) {
        return setError(vxErrRuntime::kOutOfMemory, where(L"placeItems"));
    }
    for (long i = 0; i < getNumOfEntries(); ++i) {
        const size_t column = static_cast<size_t>(grid.getColumn(i));
        const size_t row = static_cast<size_t>(grid.getRow(i));
        float cell[4] = {lefts[column], tops[row], lefts[column] + columnWidthsDC[column],
                         tops[row] + rowHeightsDC[row]};
        if (centerIfIncomplete && grid.isInShortLine(i)) {
            centerInLine(i, cell, lefts, tops, contentWidth, contentHeight);
        }
        items[static_cast<size_t>(i)]->place(cell, layout);
    }
}

// The entries of a short row take the middle of the legend's width, those
// of a short column (column by column) the middle of its height.
void vxLegend::centerInLine(long entry, float cell[4], const std::vector<float>& lefts,
                            const std::vector<float>& tops, float contentWidth,
                            float contentHeight) const {
    long first = 0, last = 0;
    grid.getLineSpan(entry, first, last);
    const size_t f = static_cast<size_t>(first), l = static_cast<size_t>(last);
    const bool byColumn = grid.isByColumn();
    const std::vector<float>& starts = byColumn ? tops : lefts;
    const std::vector<float>& extents = byColumn ? rowHeightsDC : columnWidthsDC;
    const float span = starts[l] + extents[l] - starts[f];
    const float shift = ((byColumn ? contentHeight : contentWidth) - span) * 0.5f - starts[f];
    const int at = byColumn ? 1 : 0;
    cell[at] += shift;
    cell[at + 2] += shift;
}

// The background's box around the grid, its margins in points.
void vxLegend::setUpBackground(float contentWidth, float contentHeight) {
    background->setMargins(
        toDC(margins[0], useRelativeMargins), toDC(margins[1], useRelativeMargins),
        toDC(margins[2], useRelativeMargins), toDC(margins[3], useRelativeMargins));
    background->setUseRelativeMargins(false);
    const float content[4] = {0.0f, 0.0f, contentWidth, contentHeight};
    background->setContentBounds(content);
    background->getLabelBounds(bounds);
    if (background->isError()) copyError(background->getError());
}

short vxLegend::getBoxLocation() const {
    return location >= 1 && location <= 9 ? location : kAutomaticLocation;
}

void vxLegend::getBoxOffsets(float offsets[2]) const {
    offsets[0] = xOffsetDC;
    offsets[1] = yOffsetDC;
}

void vxLegend::getBoxSize(float size[2]) const {
    const bool empty = getNumOfEntries() == 0;
    size[0] = empty ? 0.0f : bounds[2] - bounds[0];
    size[1] = empty ? 0.0f : bounds[3] - bounds[1];
}

void vxLegend::moveBoxTo(float left, float top) {
    if (getNumOfEntries() == 0 || !background) return;
    const float dx = left - bounds[0], dy = top - bounds[1];
    for (auto& item : items) item->shift(dx, dy);
    background->setLocation(left, top);
    background->getLabelBounds(bounds);
}

}  // namespace Velarix
