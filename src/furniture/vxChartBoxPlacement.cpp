#include "furniture/vxChartBoxPlacement.h"

#include <algorithm>
#include <cmath>

#include "furniture/vxChartBox.h"

namespace Velarix {

namespace {

// Where a box of extent `size` starts along [from, to] for a column or row
// 0 (start), 1 (centre) or 2 (end), kept inside [lo, hi] where it fits.
float alongSpan(int slot, float size, float from, float to, float lo, float hi) {
    float start = slot == 0 ? from : slot == 2 ? to - size : (from + to - size) * 0.5f;
    if (start + size > hi) start = hi - size;
    if (start < lo) start = lo;
    return std::round(start);
}

}  // namespace

vxChartBoxPlacement::Side vxChartBoxPlacement::sideOf(short location) {
    if (location >= 1 && location <= 3) return kTop;
    if (location >= 7 && location <= 9) return kBottom;
    if (location == 4) return kLeft;
    if (location == 6) return kRight;
    return kNoSide;
}

bool vxChartBoxPlacement::reserveInside(const vxChartBox& box, float g[4], float gap, float band[4],
                                        float maxShare) {
    float size[2];
    box.getBoxSize(size);
    const Side side = sideOf(box.getBoxLocation());
    if (side == kNoSide || size[0] <= 0.0f || size[1] <= 0.0f) return false;
    size[0] = std::min(size[0], std::round(maxShare * std::max(0.0f, g[2] - g[0])));
    size[1] = std::min(size[1], std::round(maxShare * std::max(0.0f, g[3] - g[1])));
    std::copy(g, g + 4, band);
    switch (side) {
        case kTop:
            band[3] = g[1] + size[1];
            g[1] = band[3] + gap;
            break;
        case kBottom:
            band[1] = g[3] - size[1];
            g[3] = band[1] - gap;
            break;
        case kLeft:
            band[2] = g[0] + size[0];
            g[0] = band[2] + gap;
            break;
        default:
            band[0] = g[2] - size[0];
            g[2] = band[0] - gap;
            break;
    }
    return true;
}

bool vxChartBoxPlacement::reserveOutside(const vxChartBox& box, float g[4], float gap,
                                         float band[4]) {
    float size[2];
    box.getBoxSize(size);
    const Side side = sideOf(box.getBoxLocation());
    if (side == kNoSide || size[0] <= 0.0f || size[1] <= 0.0f) return false;
    std::copy(g, g + 4, band);
    switch (side) {
        case kTop:
            band[3] = g[1] - gap;
            g[1] = band[1] = band[3] - size[1];
            break;
        case kBottom:
            band[1] = g[3] + gap;
            g[3] = band[3] = band[1] + size[1];
            break;
        case kLeft:
            band[2] = g[0] - gap;
            g[0] = band[0] = band[2] - size[0];
            break;
        default:
            band[0] = g[2] + gap;
            g[2] = band[2] = band[0] + size[0];
            break;
    }
    return true;
}

void vxChartBoxPlacement::placeInBand(vxChartBox& box, const float band[4], const float plot[4],
                                      const float limits[4]) {
    float size[2], offsets[2];
    box.getBoxSize(size);
    box.getBoxOffsets(offsets);
    const short location = box.getBoxLocation();
    const Side side = sideOf(location);
    // A box larger than its band reaches out of it away from the plot.
    float left = side == kLeft ? band[2] - size[0] : band[0];
    float top = side == kTop ? band[3] - size[1] : band[1];
    if (side == kTop || side == kBottom) {
        left = alongSpan((location - 1) % 3, size[0], plot[0], plot[2], limits[0], limits[2]);
    } else {
        top = alongSpan((location - 1) / 3, size[1], plot[1], plot[3], limits[1], limits[3]);
    }
    box.moveBoxTo(left + offsets[0], top + offsets[1]);
}

void vxChartBoxPlacement::placeInArea(vxChartBox& box, const float area[4]) {
    float size[2], offsets[2];
    box.getBoxSize(size);
    box.getBoxOffsets(offsets);
    const short location = box.getBoxLocation();
    const int column = (location - 1) % 3, row = (location - 1) / 3;
    const float left = alongSpan(column, size[0], area[0], area[2], -1e30f, 1e30f);
    const float top = alongSpan(row, size[1], area[1], area[3], -1e30f, 1e30f);
    box.moveBoxTo(left + offsets[0], top + offsets[1]);
}

}  // namespace Velarix
