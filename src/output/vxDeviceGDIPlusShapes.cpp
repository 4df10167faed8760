// The shapes of the raster device: lines, polygons and paths, each with its
// shadow row, which moves every point by the shadow's offsets and paints
// with the shadow's paint.
#include <algorithm>
#include <cfloat>
#include <cmath>

#include "graphics/vxCombinedStroke.h"
#include "graphics/vxPaintOLD.h"
#include "graphics/vxPath2DOLD.h"
#include "graphics/vxShadowOLD.h"
#include "graphics/vxStrokeOLD.h"
#include "output/vxDeviceGDIPlus.h"

namespace Velarix {

namespace {

// The box of the points moved by the offsets, for a gradient along lines,
// which come without bounds.
void boundsOf(const std::vector<float>& x, const std::vector<float>& y, float dx, float dy,
              float bounds[4]) {
    bounds[0] = bounds[1] = FLT_MAX;
    bounds[2] = bounds[3] = -FLT_MAX;
    for (size_t i = 0; i < vxShapeDevice::numOfPoints(x, y); ++i) {
        bounds[0] = std::min(bounds[0], x[i] + dx);
        bounds[1] = std::min(bounds[1], y[i] + dy);
        bounds[2] = std::max(bounds[2], x[i] + dx);
        bounds[3] = std::max(bounds[3], y[i] + dy);
    }
}

// On a bitmap the whole numbers that the coordinates are rounded to stand
// for the centres of pixels, as the integer forms of drawing take them: a
// stroke of an odd number of pixels moves by half a pixel, so that it
// covers whole rows or columns instead of blurring over two.
double pixelCentreShift(bool isBitmapRoute, double width) {
    if (!isBitmapRoute) return 0.0;
    return std::max(1L, std::lround(width)) % 2 == 1 ? 0.5 : 0.0;
}

// Strokes the current path moved by `shift` in x and y, and leaves the
// path as it was for the next stroke.
void strokeMoved(cairo_t* c, double shift) {
    if (shift == 0.0) {
        cairo_stroke_preserve(c);
        return;
    }
    vxCairoPath path(cairo_copy_path(c));
    cairo_new_path(c);
    cairo_translate(c, shift, shift);
    cairo_append_path(c, path.get());
    cairo_translate(c, -shift, -shift);
    cairo_stroke(c);
    cairo_append_path(c, path.get());
}

}  // namespace

// ---- paths ----------------------------------------------------------------

void vxDeviceGDIPlus::addPolyline(const Points& x, const Points& y, bool doClose, Offset offset) {
    cairo_t* c = cr.get();
    cairo_new_path(c);
    const size_t count = numOfPoints(x, y);
    for (size_t i = 0; i < count; ++i) {
        const double px = at(x[i] + offset.dx);
        const double py = at(y[i] + offset.dy);
        if (i == 0) {
            cairo_move_to(c, px, py);
        } else {
            cairo_line_to(c, px, py);
        }
    }
    if (doClose && count > 0) cairo_close_path(c);
}

// A quadratic segment becomes the cubic one that draws the same curve. A
// verb whose points are missing ends the path.
void vxDeviceGDIPlus::addPath(const vxVerbs& verbs, const Points& x, const Points& y,
                              Offset offset) {
    cairo_t* c = cr.get();
    cairo_new_path(c);
    const size_t count = numOfPoints(x, y);
    auto px = [&](size_t i) { return at(x[i] + offset.dx); };
    auto py = [&](size_t i) { return at(y[i] + offset.dy); };
    size_t p = 0;
    for (short verb : verbs) {
        const size_t needed = pointsOfVerb(verb);
        if (p + needed > count) break;
        switch (verb) {
            case vxPath2DOLD::kClose:
                cairo_close_path(c);
                break;
            case vxPath2DOLD::kMove:
                cairo_move_to(c, px(p), py(p));
                break;
            case vxPath2DOLD::kLine:
                cairo_line_to(c, px(p), py(p));
                break;
            case vxPath2DOLD::kQuad: {
                double x0 = px(p), y0 = py(p);
                if (cairo_has_current_point(c)) cairo_get_current_point(c, &x0, &y0);
                const double qx = px(p), qy = py(p), ex = px(p + 1), ey = py(p + 1);
                cairo_curve_to(c, x0 + 2.0 / 3.0 * (qx - x0), y0 + 2.0 / 3.0 * (qy - y0),
                               ex + 2.0 / 3.0 * (qx - ex), ey + 2.0 / 3.0 * (qy - ey), ex, ey);
                break;
            }
            case vxPath2DOLD::kCubic:
                cairo_curve_to(c, px(p), py(p), px(p + 1), py(p + 1), px(p + 2), py(p + 2));
                break;
            default:
                break;
        }
        p += needed;
    }
}

// ---- drawing the current path ---------------------------------------------

void vxDeviceGDIPlus::beginShape() {
    if (clipMask) cairo_push_group(cr.get());
}

void vxDeviceGDIPlus::endShape() {
    if (!clipMask) return;
    cairo_pop_group_to_source(cr.get());
    cairo_mask_surface(cr.get(), clipMask.get(), 0.0, 0.0);
    forgetContextState();
}

// Every basic stroke of a combined stroke in turn, the first one lowest.
void vxDeviceGDIPlus::strokeShape(const vxStrokeOLD& stroke, const vxPaintOLD& paint,
                                  const float bounds[4]) {
    cairo_t* c = cr.get();
    if (!setUpBrush(paint, bounds)) {
        cairo_new_path(c);
        return;
    }
    beginShape();
    const auto* combined = dynamic_cast<const vxCombinedStroke*>(&stroke);
    if (combined) {
        for (long i = 0; i < combined->getNumOfStrokes(); ++i) {
            const vxBasicStroke* part = combined->getStroke(i);
            if (!part || part->isZeroWidth()) continue;
            setUpPen(*part);
            strokeMoved(c, pixelCentreShift(isBitmapRoute, part->getLineWidth()));
        }
    } else {
        setUpPen(stroke);
        strokeMoved(c, pixelCentreShift(isBitmapRoute, stroke.getLineWidth()));
    }
    cairo_new_path(c);
    endShape();
}

// Winding rule 1 is even-odd, others non-zero.
void vxDeviceGDIPlus::fillShape(const vxPaintOLD& paint, const float bounds[4], short windingRule) {
    cairo_t* c = cr.get();
    if (!setUpBrush(paint, bounds)) {
        cairo_new_path(c);
        return;
    }
    beginShape();
    const short rule = windingRule == 1 ? 1 : 0;
    if (rule != fillRule) {
        cairo_set_fill_rule(c, rule == 1 ? CAIRO_FILL_RULE_EVEN_ODD : CAIRO_FILL_RULE_WINDING);
        fillRule = rule;
    }
    cairo_fill(c);
    endShape();
}

// ---- the shapes after the common rules ------------------------------------

void vxDeviceGDIPlus::strokeLine(const vxStrokeOLD& stroke, const vxPaintOLD& paint, float x1,
                                 float y1, float x2, float y2, Offset offset) {
    if (!isDrawing() || drawsNothing(stroke) || drawsNothing(paint) ||
        isDegenerateLine(x1, y1, x2, y2)) {
        return;
    }
    const Points x = {x1, x2}, y = {y1, y2};
    float bounds[4];
    boundsOf(x, y, offset.dx, offset.dy, bounds);
    addPolyline(x, y, false, offset);
    strokeShape(stroke, paint, bounds);
    checkStatus(L"drawLine2D");
}

// All pairs in one path, stroked at once. The rule that a line whose ends
// meet draws nothing holds for a single line only: here such a pair leaves
// the dot of its caps, square or round (a flat cap leaves nothing).
void vxDeviceGDIPlus::strokeLines(const vxStrokeOLD& stroke, const vxPaintOLD& paint,
                                  const Points& x, const Points& y, Offset offset) {
    if (!isDrawing() || drawsNothing(stroke) || drawsNothing(paint) || numOfPoints(x, y) < 2) {
        return;
    }
    cairo_t* c = cr.get();
    cairo_new_path(c);
    // cairo leaves out the square caps of a line without length: such a
    // pair is drawn a 256th of a pixel long, the least length cairo keeps.
    const bool isSquareCapped =
        !stroke.hasDashStyle() && stroke.getLineCap() == vxStrokeOLD::kSquareCap;
    const size_t count = numOfPoints(x, y);
    for (size_t i = 0; i + 1 < count; i += 2) {
        const double x1 = at(x[i] + offset.dx), y1 = at(y[i] + offset.dy);
        double x2 = at(x[i + 1] + offset.dx);
        const double y2 = at(y[i + 1] + offset.dy);
        if (isSquareCapped && std::fabs(x2 - x1) < 0.001 && std::fabs(y2 - y1) < 0.001)
            x2 = x1 + 1.0 / 256.0;
        cairo_move_to(c, x1, y1);
        cairo_line_to(c, x2, y2);
    }
    float bounds[4];
    boundsOf(x, y, offset.dx, offset.dy, bounds);
    strokeShape(stroke, paint, bounds);
    checkStatus(L"drawLineArray2D");
}

void vxDeviceGDIPlus::strokePolygon(const vxStrokeOLD& stroke, const vxPaintOLD& paint,
                                    const Points& x, const Points& y, const float bounds[4],
                                    bool doClose, Offset offset) {
    if (!isDrawing() || drawsNothing(stroke) || drawsNothing(paint) || numOfPoints(x, y) == 0) {
        return;
    }
    addPolyline(x, y, doClose, offset);
    strokeShape(stroke, paint, bounds);
    checkStatus(L"drawPolygon2D");
}

void vxDeviceGDIPlus::fillPolygon(const vxPaintOLD& paint, const Points& x, const Points& y,
                                  const float bounds[4], short windingRule, Offset offset) {
    if (!isDrawing() || drawsNothing(paint) || numOfPoints(x, y) == 0) return;
    addPolyline(x, y, true, offset);
    fillShape(paint, bounds, windingRule);
    checkStatus(L"fillPolygon2D");
}

void vxDeviceGDIPlus::strokePath(const vxStrokeOLD& stroke, const vxPaintOLD& paint,
                                 const vxVerbs& verbs, const Points& x, const Points& y,
                                 const float bounds[4], Offset offset) {
    if (!isDrawing() || drawsNothing(stroke) || drawsNothing(paint) || verbs.empty()) return;
    addPath(verbs, x, y, offset);
    strokeShape(stroke, paint, bounds);
    checkStatus(L"drawPath2D");
}

void vxDeviceGDIPlus::fillPath(const vxPaintOLD& paint, const vxVerbs& verbs, const Points& x,
                               const Points& y, const float bounds[4], short windingRule,
                               Offset offset) {
    if (!isDrawing() || drawsNothing(paint) || verbs.empty()) return;
    addPath(verbs, x, y, offset);
    fillShape(paint, bounds, windingRule);
    checkStatus(L"fillPath2D");
}

}  // namespace Velarix
