// The shapes of the PDF device: paths, clips, lines, polygons and symbols,
// each with its shadow row. A shadow row writes every coordinate moved by
// the shadow's offsets and paints with the shadow's paint.
#include <algorithm>
#include <cmath>

#include "graphics/vxDashStyle.h"
#include "graphics/vxPaintOLD.h"
#include "graphics/vxPath2DOLD.h"
#include "graphics/vxShadowOLD.h"
#include "graphics/vxStrokeOLD.h"
#include "output/vxDevicePDF.h"
#include "output/vxNumberWriter.h"

namespace Velarix {

namespace {

// The distance of a circle's control points from its axis points, as a
// fraction of the radius.
constexpr float kCircleControl = 0.5522847f;

std::string number(double value) {
    return vxNumberWriter::pdf(value) + " ";
}

std::string point(float x, float y) {
    return number(x) + number(y);
}

const char* operatorOfVerb(short verb) {
    switch (verb) {
        case vxPath2DOLD::kMove:
            return "m ";
        case vxPath2DOLD::kLine:
            return "l ";
        case vxPath2DOLD::kQuad:
        case vxPath2DOLD::kCubic:
            return "c ";
        default:
            return "h ";
    }
}

// The point two thirds of the way from one point towards another: the
// control points of the cubic that runs exactly along a quadratic.
float twoThirds(float from, float towards) {
    return from + (towards - from) * (2.0f / 3.0f);
}

// The points a verb writes; a quadratic from the current point
// becomes its exact cubic, since PDF has no quadratic operator. dx, dy
// move every point written.
std::string verbPoints(short verb, const float* x, const float* y, const float current[2], float dx,
                       float dy) {
    std::string s;
    if (verb == vxPath2DOLD::kQuad) {
        s += point(twoThirds(current[0], x[0]) + dx, twoThirds(current[1], y[0]) + dy);
        s += point(twoThirds(x[1], x[0]) + dx, twoThirds(y[1], y[0]) + dy);
        return s + point(x[1] + dx, y[1] + dy);
    }
    for (size_t i = 0; i < vxShapeDevice::pointsOfVerb(verb); ++i) s += point(x[i] + dx, y[i] + dy);
    return s;
}

}  // namespace

// ---- paths ----------------------------------------------------------------

std::string vxDevicePDF::polygonPath(const Points& x, const Points& y, bool doClose, Offset at) {
    const size_t count = numOfPoints(x, y);
    if (count < 2) return std::string();
    std::string s = point(x[0] + at.dx, y[0] + at.dy) + "m ";
    for (size_t i = 1; i < count; ++i) s += point(x[i] + at.dx, y[i] + at.dy) + "l ";
    if (doClose) s += "h ";
    return s;
}

// A verb whose points are missing ends the path. The current point, which
// a quadratic segment starts from, is the last point written, or the
// start of the figure after a close.
std::string vxDevicePDF::verbPath(const vxVerbs& verbs, const Points& x, const Points& y,
                                  Offset at) {
    const size_t count = numOfPoints(x, y);
    std::string s;
    size_t p = 0;
    float current[2] = {0.0f, 0.0f}, start[2] = {0.0f, 0.0f};
    for (short verb : verbs) {
        const size_t needed = pointsOfVerb(verb);
        if (verb != vxPath2DOLD::kClose && needed == 0) continue;
        if (p + needed > count) break;
        s += verbPoints(verb, x.data() + p, y.data() + p, current, at.dx, at.dy) +
             operatorOfVerb(verb);
        if (verb == vxPath2DOLD::kMove) start[0] = x[p], start[1] = y[p];
        current[0] = needed ? x[p + needed - 1] : start[0];
        current[1] = needed ? y[p + needed - 1] : start[1];
        p += needed;
    }
    return s;
}

std::string vxDevicePDF::rectanglePath(float x, float y, float w, float h) {
    return point(x, y + h) + "m " + point(x + w, y + h) + "l " + point(x + w, y) + "l " +
           point(x, y) + "l ";
}

std::string vxDevicePDF::circlePath(float x, float y, float r) {
    const float k = r * kCircleControl;
    return point(x + r, y) + "m " + point(x + r, y + k) + point(x + k, y + r) + point(x, y + r) +
           "c " + point(x - k, y + r) + point(x - r, y + k) + point(x - r, y) + "c " +
           point(x - r, y - k) + point(x - k, y - r) + point(x, y - r) + "c " +
           point(x + k, y - r) + point(x + r, y - k) + point(x + r, y) + "c h ";
}

// Width, cap, join, miter limit and dash, each left out where PDF's
// default says the same. A dashed line has butt caps.
std::string vxDevicePDF::strokeState(const vxStrokeOLD& stroke) {
    std::string s;
    const float width = stroke.getLineWidth();
    if (std::fabs(width - 1.0f) > 0.001f) s += number(width) + "w ";
    const vxDashStyle* dash = stroke.hasDashStyle() ? stroke.getDashStyle() : nullptr;
    if (dash) {
        s += "0 J ";
    } else if (stroke.getLineCap() == vxStrokeOLD::kRoundCap) {
        s += "1 J ";
    } else if (stroke.getLineCap() == vxStrokeOLD::kSquareCap) {
        s += "2 J ";
    }
    if (stroke.getLineJoin() != vxStrokeOLD::kMiterJoin)
        s += std::to_string(stroke.getLineJoin() - 1) + " j ";
    if (std::fabs(stroke.getMiterLimit() - 10.0f) > 0.001f)
        s += number(stroke.getMiterLimit()) + "M ";
    if (dash) {
        s += "[";
        const std::vector<float>& pattern = dash->getPattern();
        for (size_t i = 0; i < pattern.size(); ++i) {
            if (i > 0) s += " ";
            s += vxNumberWriter::pdf(pattern[i]);
        }
        s += "] " + number(dash->getOffset()) + "d ";
    }
    return s;
}

// ---- clips ----------------------------------------------------------------

void vxDevicePDF::resetClipRegion() {
    pageState.clear();
}

void vxDevicePDF::setClipRegion(float x, float y, float w, float h, short mode) {
    pageState = rectanglePath(x, y, w, h) + "h W* n ";
}

void vxDevicePDF::setClipRegion(const float rect[4]) {
    vxDevice::setClipRegion(rect, static_cast<short>(kIntersect));
}

void vxDevicePDF::setClipRegion(const vxVerbs& verbs, const vxPoints& x, const vxPoints& y,
                                const float bounds[4], short mode) {
    pageState = verbPath(verbs, x, y, Offset{}) + "h W* n ";
}

// ---- stroked and filled shapes after the common rules ----------------------

void vxDevicePDF::strokeLine(const vxStrokeOLD& stroke, const vxPaintOLD& paint, float x1, float y1,
                             float x2, float y2, Offset at) {
    if (drawsNothing(stroke) || drawsNothing(paint) || isDegenerateLine(x1, y1, x2, y2)) return;
    strokeWith(stroke, paint, polygonPath({x1, x2}, {y1, y2}, false, at));
}

void vxDevicePDF::strokeLines(const vxStrokeOLD& stroke, const vxPaintOLD& paint, const Points& x,
                              const Points& y, Offset at) {
    if (drawsNothing(stroke) || drawsNothing(paint)) return;
    std::string path;
    const size_t count = numOfPoints(x, y);
    for (size_t i = 0; i + 1 < count; i += 2) {
        if (isDegenerateLine(x[i], y[i], x[i + 1], y[i + 1])) continue;
        path += polygonPath({x[i], x[i + 1]}, {y[i], y[i + 1]}, false, at);
    }
    if (!path.empty()) strokeWith(stroke, paint, path);
}

void vxDevicePDF::strokePolygon(const vxStrokeOLD& stroke, const vxPaintOLD& paint, const Points& x,
                                const Points& y, const float bounds[4], bool doClose, Offset at) {
    if (drawsNothing(stroke) || drawsNothing(paint)) return;
    const std::string path = polygonPath(x, y, doClose, at);
    if (!path.empty()) strokeWith(stroke, paint, path);
}

void vxDevicePDF::fillPolygon(const vxPaintOLD& paint, const Points& x, const Points& y,
                              const float bounds[4], short windingRule, Offset at) {
    if (drawsNothing(paint)) return;
    const std::string path = polygonPath(x, y, false, at);
    const float moved[4] = {bounds[0] + at.dx, bounds[1] + at.dy, bounds[2] + at.dx,
                            bounds[3] + at.dy};
    if (!path.empty()) fillWith(paint, path, moved, windingRule);
}

void vxDevicePDF::strokePath(const vxStrokeOLD& stroke, const vxPaintOLD& paint,
                             const vxVerbs& verbs, const Points& x, const Points& y,
                             const float bounds[4], Offset at) {
    if (drawsNothing(stroke) || drawsNothing(paint)) return;
    const std::string path = verbPath(verbs, x, y, at);
    if (!path.empty()) strokeWith(stroke, paint, path);
}

void vxDevicePDF::fillPath(const vxPaintOLD& paint, const vxVerbs& verbs, const Points& x,
                           const Points& y, const float bounds[4], short windingRule, Offset at) {
    if (drawsNothing(paint)) return;
    const std::string path = verbPath(verbs, x, y, at);
    const float moved[4] = {bounds[0] + at.dx, bounds[1] + at.dy, bounds[2] + at.dx,
                            bounds[3] + at.dy};
    if (!path.empty()) fillWith(paint, path, moved, windingRule);
}

// ---- symbols --------------------------------------------------------------

// Circles, squares, diamonds and triangles: types 2 to 6 filled and then
// outlined, types 8 to 12 only outlined; the other types are lines. A
// size not above 0 draws nothing.
void vxDevicePDF::drawSymbolAt(const vxStrokeOLD& stroke, const vxPaintOLD& paint,
                               const vxPaintOLD* fillPaint, short symbolType, float size, float x,
                               float y, Offset at) {
    if (!(size > 0.0f)) return;
    const bool isFilled = symbolType >= 2 && symbolType <= 6;
    const bool isOutline = symbolType >= 8 && symbolType <= 12;
    if (!isFilled && !isOutline) return writeSymbolLines(stroke, paint, symbolType, size, x, y, at);
    const short shape = isFilled ? symbolType : static_cast<short>(symbolType - 6);
    const float l = x - size / 2.0f, r = l + size;
    const float t = y - size / 2.0f, b = t + size;
    std::string path;
    if (shape == 2) path = circlePath(x + at.dx, y + at.dy, size / 2.0f);
    if (shape == 3) path = polygonPath({l, r, r, l}, {b, b, t, t}, true, at);
    if (shape == 4) path = polygonPath({x, r, x, l}, {t, y, b, y}, true, at);
    if (shape == 5) path = polygonPath({l, r, x}, {t, t, b}, true, at);
    if (shape == 6) path = polygonPath({x, r, l}, {t, b, b}, true, at);
    const float bounds[4] = {l + at.dx, t + at.dy, r + at.dx, b + at.dy};
    if (isFilled && fillPaint && !drawsNothing(*fillPaint)) fillWith(*fillPaint, path, bounds, 1);
    if (!drawsNothing(stroke) && !drawsNothing(paint)) strokeWith(stroke, paint, path);
}

// The marks made of lines: cross, plus, bars and ticks, in one path.
void vxDevicePDF::writeSymbolLines(const vxStrokeOLD& stroke, const vxPaintOLD& paint,
                                   short symbolType, float size, float x, float y, Offset at) {
    Points lx, ly;
    if (symbolLines(symbolType, size, x, y, lx, ly)) strokeLines(stroke, paint, lx, ly, at);
}

}  // namespace Velarix
