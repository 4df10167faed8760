#include "furniture/vxLegendItem.h"

#include <algorithm>
#include <cmath>

#include "drawing/vxLayer.h"
#include "graphics/vxBasicSymbol.h"
#include "graphics/vxGObjectAppearanceOLD.h"
#include "graphics/vxLine2DOLD.h"
#include "graphics/vxPath2DOLD.h"
#include "graphics/vxText.h"
#include "graphics/vxTexturePaintOLD.h"
#include "host/vxLog.h"

namespace Velarix {

namespace {

// Where a thing of `size` starts in [from, to] by an alignment of vxText.
float alignIn(float from, float to, float size, short alignment) {
    if (alignment == vxText::kCenter) return from + (to - from - size) * 0.5f;
    if (alignment == vxText::kRight) return to - size;
    return from;
}

short keypadOf(short textLocation) {
    return textLocation >= 1 && textLocation <= 9 ? textLocation : 6;
}

}  // namespace

vxLegendItem::vxLegendItem(vxUserSettings* ownerSettings, const wchar_t* name)
    : vxErrorHolder(name), owner(ownerSettings) {}

vxLegendItem::~vxLegendItem() = default;

bool vxLegendItem::addText(const vxText& reference, const std::wstring& s) {
    if (!create(text, L"addText", owner)) return false;
    if (!text->copy(&reference)) {
        copyError(text->getError());
        return false;
    }
    try {
        text->setText(s);
    } catch (const std::bad_alloc&) {
        setError(vxErrRuntime::kOutOfMemory, where(L"addText"));
        return false;
    }
    text->setAnchor(0.0f, 0.0f);
    text->setVAlignment(vxText::kTop);
    doRecalcBounds = true;
    return true;
}

bool vxLegendItem::hasText() const {
    return text && !text->getText().empty();
}

void vxLegendItem::getTextSize(float size[2]) {
    size[0] = size[1] = 0.0f;
    if (!hasText()) return;
    float b[4];
    text->getBounds(b);
    size[0] = b[2] - b[0];
    size[1] = b[3] - b[1];
}

void vxLegendItem::setMarkerSize(float width, float height) {
    markerBox[0] = markerBox[1] = 0.0f;
    markerBox[2] = width;
    markerBox[3] = height;
    doRecalcBounds = true;
}

// Beside the marker: the sum of the widths and the gap, the larger height;
// above or below it the other way round; over it the larger of each.
void vxLegendItem::getSize(const Layout& layout, float size[2]) {
    float t[2];
    getTextSize(t);
    const float mw = layout.markerWidth, mh = layout.markerHeight, gap = layout.markerGap;
    const short keypad = keypadOf(layout.textLocation);
    if (keypad == 5) {
        size[0] = std::max(mw, t[0]);
        size[1] = std::max(mh, t[1]);
    } else if (keypad == 4 || keypad == 6) {
        size[0] = mw + gap + t[0];
        size[1] = std::max(mh, t[1]);
    } else {
        size[0] = std::max(mw, t[0]);
        size[1] = mh + gap + t[1];
    }
}

void vxLegendItem::place(const float cell[4], const Layout& layout) {
    const short keypad = keypadOf(layout.textLocation);
    const int row = (keypad - 1) / 3, column = (keypad - 1) % 3;
    if (text && row != 1) text->setHAlignment(static_cast<short>(column + 1));
    float t[2];
    getTextSize(t);
    float marker[2], at[2];
    if (row == 1) {
        placeBeside(cell, layout, column, t, marker, at);
    } else {
        placeAcross(cell, layout, row, column, t, marker, at);
    }
    moveMarkerTo(std::round(marker[0]), std::round(marker[1]));
    moveTextTo(std::round(at[0]), std::round(at[1]));
}

// Left of, over or right of the marker, both centred in the cell's height;
// the marker keeps to the cell's edge away from the text.
void vxLegendItem::placeBeside(const float cell[4], const Layout& layout, int column,
                               const float t[2], float marker[2], float at[2]) const {
    const float mw = layout.markerWidth, gap = layout.markerGap;
    marker[1] = cell[1] + (cell[3] - cell[1] - layout.markerHeight) * 0.5f;
    at[1] = cell[1] + (cell[3] - cell[1] - t[1]) * 0.5f;
    float from = cell[0], to = cell[2];
    if (column == 2) {
        marker[0] = cell[0];
        from = marker[0] + mw + gap;
    } else if (column == 0) {
        marker[0] = cell[2] - mw;
        to = marker[0] - gap;
    } else {
        marker[0] = alignIn(cell[0], cell[2], mw, vxText::kCenter);
    }
    const short alignment = text ? text->getHAlignment() : short(vxText::kLeft);
    at[0] = alignIn(from, to, t[0], alignment);
}

// Above (row 0) or below (row 2) the marker, the two centred in the cell's
// height together and aligned by the column across it.
void vxLegendItem::placeAcross(const float cell[4], const Layout& layout, int row, int column,
                               const float t[2], float marker[2], float at[2]) const {
    const float mh = layout.markerHeight, gap = layout.markerGap;
    const float top = cell[1] + (cell[3] - cell[1] - (mh + gap + t[1])) * 0.5f;
    at[1] = row == 0 ? top : top + mh + gap;
    marker[1] = row == 0 ? top + t[1] + gap : top;
    const short alignment = static_cast<short>(column + 1);
    marker[0] = alignIn(cell[0], cell[2], layout.markerWidth, alignment);
    at[0] = alignIn(cell[0], cell[2], t[0], alignment);
}

void vxLegendItem::moveMarkerTo(float left, float top) {
    const float dx = left - markerBox[0], dy = top - markerBox[1];
    if (area) area->shift(dx, dy);
    if (line) line->shift(dx, dy);
    if (symbol) symbol->shift(dx, dy);
    markerBox[0] += dx;
    markerBox[2] += dx;
    markerBox[1] += dy;
    markerBox[3] += dy;
    doRecalcBounds = true;
}

void vxLegendItem::moveTextTo(float left, float top) {
    if (!hasText()) return;
    float b[4];
    text->getBounds(b);
    text->shift(left - b[0], top - b[1]);
    doRecalcBounds = true;
}

void vxLegendItem::shift(float dx, float dy) {
    moveMarkerTo(markerBox[0] + dx, markerBox[1] + dy);
    if (hasText()) text->shift(dx, dy);
}

void vxLegendItem::anchorPicture() {
    vxGObjectAppearanceOLD* look = area ? area->getAppearance() : nullptr;
    const vxPaintOLD* fill = look ? look->getFillPaint() : nullptr;
    if (!fill || fill->getType() != vxPaintOLD::kTexture) return;
    auto* picture = static_cast<vxTexturePaintOLD*>(look->fillPaintOf(vxPaintOLD::kTexture));
    picture->setAnchorBounds(markerBox);
}

bool vxLegendItem::addTo(vxLayer& layer) {
    anchorPicture();
    if (area) layer.addShape(area.get());
    if (line) layer.addShape(line.get());
    if (symbol) layer.addShape(symbol.get());
    if (hasText()) layer.addShape(text.get());
    if (layer.isError()) copyError(layer.getError());
    return !isError();
}

const float* vxLegendItem::getBounds() {
    if (!doRecalcBounds) return bounds;
    std::copy(markerBox, markerBox + 4, bounds);
    if (hasText()) {
        float t[4];
        text->getBounds(t);
        bounds[0] = std::min(bounds[0], t[0]);
        bounds[1] = std::min(bounds[1], t[1]);
        bounds[2] = std::max(bounds[2], t[2]);
        bounds[3] = std::max(bounds[3], t[3]);
    }
    doRecalcBounds = false;
    return bounds;
}

void vxLegendItem::dump(short depth, std::ostream& out) const {
    if (depth <= 0) return;
    vxDumpHeader(out, "vxLegendItem");
    vxDumpLine(out, "float bounds[4]:     ", bounds, 4);
    vxDumpLine(out, "bool doRecalcBounds: ", doRecalcBounds);
    vxDumpLine(out, "float markerBox[4]:  ", markerBox, 4);
    vxDumpEnd(out);
    const short next = static_cast<short>(depth - 1);
    if (text) text->dump(next, out);
    if (area) area->dump(next, out);
    if (line) line->dump(next, out);
    if (symbol) symbol->dump(next, out);
}

}  // namespace Velarix
