#include "output/vxImageMapping.h"

#include <algorithm>
#include <cmath>

#include "host/vxLog.h"

namespace Velarix {

namespace {

// A box or a tile smaller than this counts as empty.
constexpr float kEmpty = 1e-4f;
// Tiles that would reach past the anchor by less than this aren't added.
constexpr double kTileSlack = 1e-4;

long tilesOver(float anchor, long tile) {
    return static_cast<long>(std::ceil(static_cast<double>(anchor) / tile - kTileSlack));
}

// A right or bottom edge as the two-rectangle setter takes it.
long wholeEdge(float edge) {
    return std::lround(edge - 0.001f);
}

}  // namespace

void vxImageMapping::setSourceSize(long width, long height) {
    sourceWidth = std::max(0L, width);
    sourceHeight = std::max(0L, height);
    calculate();
}

void vxImageMapping::setAnchor(const float bounds[4]) {
    setAnchor(bounds[0], bounds[1], bounds[2] - bounds[0], bounds[3] - bounds[1]);
}

void vxImageMapping::setAnchor(float left, float top, float width, float height) {
    anchorLeft = left;
    anchorTop = top;
    anchorWidth = width;
    anchorHeight = height;
    calculate();
}

void vxImageMapping::setAdjustment(short code) {
    adjustment = (code >= kKeep && code <= kTile) ? code : kDefaultAdjustment;
    calculate();
}

void vxImageMapping::setLocation(short code) {
    location = (code >= kAutomatic && code <= kBottomRight) ? code : kDefaultLocation;
    calculate();
}

void vxImageMapping::setIsProportional(bool value) {
    isProportional = value;
    calculate();
}

void vxImageMapping::set(const float sourceBounds[4], const float destBounds[4]) {
    sourceWidth = std::max(0L, wholeEdge(sourceBounds[2]) - std::lround(sourceBounds[0]));
    sourceHeight = std::max(0L, wholeEdge(sourceBounds[3]) - std::lround(sourceBounds[1]));
    anchorLeft = destBounds[0];
    anchorTop = destBounds[1];
    anchorWidth = static_cast<float>(wholeEdge(destBounds[2])) - destBounds[0];
    anchorHeight = static_cast<float>(wholeEdge(destBounds[3])) - destBounds[1];
    adjustment = kFill;
    calculate();
}

void vxImageMapping::setDefaults() {
    *this = vxImageMapping();
}

void vxImageMapping::getFirstTile(float& x, float& y) const {
    x = destLeft;
    y = destTop;
}

void vxImageMapping::getTile(long row, long column, float rect[4]) const {
    rect[0] = destLeft + static_cast<float>(column) * destWidth;
    rect[1] = destTop + static_cast<float>(row) * destHeight;
    rect[2] = destWidth;
    rect[3] = destHeight;
}

void vxImageMapping::calculate() {
    numOfRows = 0;
    numOfColumns = 0;
    destLeft = destTop = destWidth = destHeight = 0.0f;
    if (sourceWidth < 1 || sourceHeight < 1 || anchorWidth < kEmpty || anchorHeight < kEmpty) {
        return;
    }
    float blockWidth = 0.0f, blockHeight = 0.0f;
    if (adjustment == kTile) {
        numOfColumns = tilesOver(anchorWidth, sourceWidth);
        numOfRows = tilesOver(anchorHeight, sourceHeight);
        destWidth = static_cast<float>(sourceWidth);
        destHeight = static_cast<float>(sourceHeight);
        blockWidth = destWidth * static_cast<float>(numOfColumns);
        blockHeight = destHeight * static_cast<float>(numOfRows);
    } else {
        numOfColumns = numOfRows = 1;
        calculateSize(destWidth, destHeight);
        blockWidth = destWidth;
        blockHeight = destHeight;
    }
    short cell = location;
    if (cell == kAutomatic) cell = adjustment == kTile ? kTopLeft : kCenter;
    destLeft = place(anchorLeft, anchorWidth, blockWidth, (cell - 1) % 3);
    destTop = place(anchorTop, anchorHeight, blockHeight, (cell - 1) / 3);
}

void vxImageMapping::calculateSize(float& width, float& height) const {
    const float w = static_cast<float>(sourceWidth);
    const float h = static_cast<float>(sourceHeight);
    const float fx = anchorWidth / w;
    const float fy = anchorHeight / h;
    const float smaller = std::min(fx, fy);
    float sx = 1.0f, sy = 1.0f;
    switch (adjustment) {
        case kShrink:
            sx = sy = std::min(smaller, 1.0f);
            break;
        case kGrow:
            sx = sy = std::max(smaller, 1.0f);
            break;
        case kFit:
            sx = isProportional ? smaller : fx;
            sy = isProportional ? smaller : fy;
            break;
        case kFill:
            width = anchorWidth;
            height = anchorHeight;
            return;
        default:
            break;
    }
    width = w * sx;
    height = h * sy;
}

float vxImageMapping::place(float anchorStart, float anchorLength, float length, int cell) {
    switch (cell) {
        case 1:
            return anchorStart + (anchorLength - length) * 0.5f;
        case 2:
            return anchorStart + anchorLength - length;
        default:
            return anchorStart;
    }
}

void vxImageMapping::dump(short depth, std::ostream& out) const {
    if (depth <= 0) return;
    vxDumpHeader(out, "vxImageMapping");
    vxDumpLine(out, "long sourceWidth:     ", sourceWidth);
    vxDumpLine(out, "long sourceHeight:    ", sourceHeight);
    vxDumpLine(out, "float anchorLeft:     ", anchorLeft);
    vxDumpLine(out, "float anchorTop:      ", anchorTop);
    vxDumpLine(out, "float anchorWidth:    ", anchorWidth);
    vxDumpLine(out, "float anchorHeight:   ", anchorHeight);
    vxDumpLine(out, "float destLeft:       ", destLeft);
    vxDumpLine(out, "float destTop:        ", destTop);
    vxDumpLine(out, "float destWidth:      ", destWidth);
    vxDumpLine(out, "float destHeight:     ", destHeight);
    vxDumpLine(out, "short adjustment:     ", adjustment);
    vxDumpLine(out, "short location:       ", location);
    vxDumpLine(out, "bool  isProportional: ", isProportional);
    vxDumpEnd(out);
}

}  // namespace Velarix
