// Symbols and selection knobs of the raster device.
#include <algorithm>
#include <cmath>

#include "graphics/vxBasicPaint.h"
#include "graphics/vxBasicStroke.h"
#include "graphics/vxSelectionKnobs.h"
#include "graphics/vxShadowOLD.h"
#include "output/vxDeviceGDIPlus.h"

namespace Velarix {

namespace {

constexpr short kCircle = 2;
constexpr short kSquare = 3;
constexpr short kDiamond = 4;
constexpr short kTriangleDown = 5;
constexpr short kTriangleUp = 6;

// The knobs' frame and squares.
constexpr short kKnobFrameGray = 0xA9;
constexpr float kKnobBefore = 3.0f;  // a knob runs from x - 3 to x + 2
constexpr float kKnobSize = 5.0f;

}  // namespace

// Types 2 to 6 are filled and then outlined, 8 to 12 only outlined; the
// marks made of lines are lines.
void vxDeviceGDIPlus::drawSymbolAt(const vxStrokeOLD& stroke, const vxPaintOLD& paint,
                                   const vxPaintOLD* fillPaint, short symbolType, float size,
                                   float x, float y, Offset at) {
    x += at.dx;
    y += at.dy;
    if (!isDrawing() || strokeSymbolLines(stroke, paint, symbolType, size, x, y, Offset{})) return;
    const bool isFilled = symbolType >= kCircle && symbolType <= kTriangleUp;
    const bool isOutline = symbolType >= kCircle + 6 && symbolType <= kTriangleUp + 6;
    if (!isFilled && !isOutline) return;
    const short shape = isFilled ? symbolType : static_cast<short>(symbolType - 6);
    const float half = size / 2.0f;
    const float bounds[4] = {x - half, y - half, x - half + size, y - half + size};
    if (isFilled && fillPaint && !drawsNothing(*fillPaint)) {
        addSymbolOutline(shape, size, x, y);
        fillShape(*fillPaint, bounds, 1);
    }
    if (!drawsNothing(stroke) && !drawsNothing(paint)) {
        addSymbolOutline(shape, size, x, y);
        strokeShape(stroke, paint, bounds);
    }
    checkStatus(L"drawSymbol");
}

// The outline of a shape as a new path: the circle is the ellipse of its
// box, which on a bitmap has whole-pixel edges.
void vxDeviceGDIPlus::addSymbolOutline(short shape, float size, float x, float y) {
    const float l = x - size / 2.0f, r = l + size;
    const float t = y - size / 2.0f, b = t + size;
    cairo_t* c = cr.get();
    if (shape == kCircle) {
        cairo_new_path(c);
        const double left = at(l), right = at(r), top = at(t), bottom = at(b);
        if (!(right > left) || !(bottom > top)) return;
        cairo_matrix_t plain;
        cairo_get_matrix(c, &plain);
        cairo_translate(c, (left + right) / 2.0, (top + bottom) / 2.0);
        cairo_scale(c, (right - left) / 2.0, (bottom - top) / 2.0);
        cairo_arc(c, 0.0, 0.0, 1.0, 0.0, 2.0 * M_PI);
        cairo_close_path(c);
        cairo_set_matrix(c, &plain);
        return;
    }
    Points px, py;
    switch (shape) {
        case kSquare:
            px = {l, r, r, l}, py = {b, b, t, t};
            break;
        case kDiamond:
            px = {x, r, x, l}, py = {t, y, b, y};
            break;
        case kTriangleDown:
            px = {l, r, x}, py = {t, t, b};
            break;
        default:  // triangle up
            px = {x, r, l}, py = {t, b, b};
            break;
    }
    addPolyline(px, py, true, Offset{});
}

// Knobs are marks on the screen's pixels: they stand on whole pixels on
// either route.
void vxDeviceGDIPlus::drawSelectionKnobs(const vxSelectionKnobs& knobs) {
    if (!isDrawing()) return;
    const int count = std::min<int>(knobs.numOfKnobs, 8);
    if (count > 3) {
        const Points x = {std::round(knobs.x[0]), std::round(knobs.x[1]), std::round(knobs.x[2]),
                          std::round(knobs.x[3])};
        const Points y = {std::round(knobs.y[0]), std::round(knobs.y[1]), std::round(knobs.y[2]),
                          std::round(knobs.y[3])};
        const float bounds[4] = {x[0], y[0], x[2], y[2]};
        addPolyline(x, y, true, Offset{});
        strokeShape(vxBasicStroke(1.0f),
                    vxBasicPaint(kKnobFrameGray, kKnobFrameGray, kKnobFrameGray), bounds);
    }
    const vxBasicPaint black(0, 0, 0);
    cairo_new_path(cr.get());
    for (int i = 0; i < count; ++i) {
        cairo_rectangle(cr.get(), std::round(knobs.x[i]) - kKnobBefore,
                        std::round(knobs.y[i]) - kKnobBefore, kKnobSize, kKnobSize);
    }
    const float none[4] = {0, 0, 1, 1};
    fillShape(black, none, 0);
    checkStatus(L"drawSelectionKnobs");
}

}  // namespace Velarix
