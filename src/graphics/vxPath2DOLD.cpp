#include "graphics/vxPath2DOLD.h"

#include <algorithm>
#include <cmath>

#include "graphics/vxAllocationGuard.h"
#include "graphics/vxGObjectAppearanceOLD.h"
#include "graphics/vxGObjectState.h"
#include "graphics/vxTransform2DOLD.h"
#include "host/vxLog.h"
#include "output/vxDevice.h"

namespace Velarix {

namespace {

// Two points closer than this in x and in y are the same point.
constexpr float kSamePoint = 0.001f;

bool isSamePoint(float x1, float y1, float x2, float y2) {
    return std::fabs(x1 - x2) < kSamePoint && std::fabs(y1 - y2) < kSamePoint;
}

// The points a verb takes; -1 for an unknown verb.
long pointsOfVerb(long verb) {
    switch (verb) {
        case vxPath2DOLD::kClose:
            return 0;
        case vxPath2DOLD::kMove:
        case vxPath2DOLD::kLine:
            return 1;
        case vxPath2DOLD::kQuad:
            return 2;
        case vxPath2DOLD::kCubic:
            return 3;
        default:
            return -1;
    }
}

}  // namespace

vxPath2DOLD::vxPath2DOLD(vxUserSettings* owner) : vxGObject2D(L"vxPath2DOLD", owner) {}

vxPath2DOLD::~vxPath2DOLD() = default;

long vxPath2DOLD::endOfRange(long start, long count, const std::vector<float>& xs,
                             const std::vector<float>& ys) {
    const long size = static_cast<long>(std::min(xs.size(), ys.size()));
    if (start < 0 || start >= size || count <= 0) return std::max(0L, start);
    return start + std::min(count, size - start);
}

// ---- verbs ------------------------------------------------------------------

void vxPath2DOLD::appendPoint(float px, float py) {
    x.push_back(px);
    y.push_back(py);
}

void vxPath2DOLD::append(short verb, float px, float py) {
    if (verbs.empty()) moveTo(0.0f, 0.0f);
    verbs.push_back(verb);
    appendPoint(px, py);
    invalidateBounds();
}

void vxPath2DOLD::getCurrentPoint(float& cx, float& cy) const {
    if (x.empty()) {
        cx = cy = 0.0f;
    } else if (verbs.back() == kClose) {
        cx = x[startIndex];
        cy = y[startIndex];
    } else {
        cx = x.back();
        cy = y.back();
    }
}

void vxPath2DOLD::moveTo(float px, float py) {
    if (!verbs.empty() && verbs.back() == kMove) {
        x.back() = px;
        y.back() = py;
    } else {
        float cx = 0.0f, cy = 0.0f;
        getCurrentPoint(cx, cy);
        const bool isAtCurrentPoint = !verbs.empty() && isSamePoint(px, py, cx, cy);
        // After a close the current point already is the subpath's start.
        if (isAtCurrentPoint && verbs.back() == kClose) return;
        if (!isAtCurrentPoint) {
            verbs.push_back(kMove);
            appendPoint(px, py);
        }
    }
    startIndex = static_cast<long>(x.size()) - 1;
    invalidateBounds();
}

void vxPath2DOLD::lineTo(float px, float py) {
    append(kLine, px, py);
}

void vxPath2DOLD::quadTo(float x1, float y1, float x2, float y2) {
    if (verbs.empty()) moveTo(0.0f, 0.0f);
    appendPoint(x1, y1);
    append(kQuad, x2, y2);
}

void vxPath2DOLD::cubicTo(float x1, float y1, float x2, float y2, float x3, float y3) {
    if (verbs.empty()) moveTo(0.0f, 0.0f);
    appendPoint(x1, y1);
    appendPoint(x2, y2);
    append(kCubic, x3, y3);
}

void vxPath2DOLD::reflectedControl(float& cx, float& cy) const {
    getCurrentPoint(cx, cy);
    if (verbs.empty() || (verbs.back() != kQuad && verbs.back() != kCubic)) return;
    const size_t control = x.size() - 2;
    cx = 2.0f * cx - x[control];
    cy = 2.0f * cy - y[control];
}

void vxPath2DOLD::smoothQuadTo(float x2, float y2) {
    float x1 = 0.0f, y1 = 0.0f;
    reflectedControl(x1, y1);
    quadTo(x1, y1, x2, y2);
}

void vxPath2DOLD::smoothCubicTo(float x2, float y2, float x3, float y3) {
    float x1 = 0.0f, y1 = 0.0f;
    reflectedControl(x1, y1);
    cubicTo(x1, y1, x2, y2, x3, y3);
}

void vxPath2DOLD::hLineTo(float px) {
    float cx = 0.0f, cy = 0.0f;
    getCurrentPoint(cx, cy);
    lineTo(px, cy);
}

void vxPath2DOLD::vLineTo(float py) {
    float cx = 0.0f, cy = 0.0f;
    getCurrentPoint(cx, cy);
    lineTo(cx, py);
}

void vxPath2DOLD::close() {
    if (verbs.empty() || verbs.back() == kClose) return;
    verbs.push_back(kClose);
}

// ---- relative verbs -----------------------------------------------------------

void vxPath2DOLD::relMoveTo(float dx, float dy) {
    float cx = 0.0f, cy = 0.0f;
    getCurrentPoint(cx, cy);
    moveTo(cx + dx, cy + dy);
}

void vxPath2DOLD::relLineTo(float dx, float dy) {
    float cx = 0.0f, cy = 0.0f;
    getCurrentPoint(cx, cy);
    lineTo(cx + dx, cy + dy);
}

void vxPath2DOLD::relQuadTo(float dx1, float dy1, float dx2, float dy2) {
    float cx = 0.0f, cy = 0.0f;
    getCurrentPoint(cx, cy);
    quadTo(cx + dx1, cy + dy1, cx + dx2, cy + dy2);
}

void vxPath2DOLD::relCubicTo(float dx1, float dy1, float dx2, float dy2, float dx3, float dy3) {
    float cx = 0.0f, cy = 0.0f;
    getCurrentPoint(cx, cy);
    cubicTo(cx + dx1, cy + dy1, cx + dx2, cy + dy2, cx + dx3, cy + dy3);
}

void vxPath2DOLD::relSmoothQuadTo(float dx2, float dy2) {
    float cx = 0.0f, cy = 0.0f;
    getCurrentPoint(cx, cy);
    smoothQuadTo(cx + dx2, cy + dy2);
}

void vxPath2DOLD::relSmoothCubicTo(float dx2, float dy2, float dx3, float dy3) {
    float cx = 0.0f, cy = 0.0f;
    getCurrentPoint(cx, cy);
    smoothCubicTo(cx + dx2, cy + dy2, cx + dx3, cy + dy3);
}

void vxPath2DOLD::relHLineTo(float dx) {
    relLineTo(dx, 0.0f);
}

void vxPath2DOLD::relVLineTo(float dy) {
    relLineTo(0.0f, dy);
}

void vxPath2DOLD::relArcTo(float rx, float ry, float rotation, bool largeArc, bool sweep, float dx,
                           float dy) {
    float cx = 0.0f, cy = 0.0f;
    getCurrentPoint(cx, cy);
    arcTo(rx, ry, rotation, largeArc, sweep, cx + dx, cy + dy);
}

// ---- polygons, other paths, verb lists --------------------------------------------

void vxPath2DOLD::addPolygon(const std::vector<float>& xs, const std::vector<float>& ys,
                             bool doClose) {
    addPolygon(xs, ys, 0, static_cast<long>(std::min(xs.size(), ys.size())), doClose);
}

void vxPath2DOLD::addPolygon(const std::vector<float>& xs, const std::vector<float>& ys, long start,
                             long count, bool doClose) {
    vxGuardAllocation(*this, L"addPolygon", 1,
                      [&] { buildPolygon(xs, ys, start, count, doClose); });
}

void vxPath2DOLD::buildPolygon(const std::vector<float>& xs, const std::vector<float>& ys,
                               long start, long count, bool doClose) {
    const long end = endOfRange(start, count, xs, ys);
    if (end - start < 1) return;
    setCapacity(getNumOfPoints() + (end - start));
    moveTo(xs[start], ys[start]);
    for (long i = start + 1; i < end; ++i) lineTo(xs[i], ys[i]);
    if (doClose) close();
}

void vxPath2DOLD::addPath(const vxPath2DOLD& from) {
    vxGuardAllocation(*this, L"addPath", 1, [&] {
        if (&from == this) {
            const std::vector<short> ownVerbs = verbs;
            const std::vector<float> ownX = x, ownY = y;
            replay(ownVerbs, ownX, ownY);
        } else {
            replay(from.verbs, from.x, from.y);
        }
    });
}

void vxPath2DOLD::replay(const std::vector<short>& vs, const std::vector<float>& xs,
                         const std::vector<float>& ys) {
    // Paths that grow by many pieces grow their storage by doubling.
    const size_t wanted = x.size() + xs.size();
    if (wanted > x.capacity()) setCapacity(static_cast<long>(std::max(wanted, 2 * x.capacity())));
    const size_t count = std::min(xs.size(), ys.size());
    size_t p = 0;
    for (short verb : vs) {
        const long points = pointsOfVerb(verb);
        if (points < 0) return;
        const size_t needed = static_cast<size_t>(points);
        if (p + needed > count) return;
        const float* px = xs.data() + p;
        const float* py = ys.data() + p;
        switch (verb) {
            case kMove:
                moveTo(px[0], py[0]);
                break;
            case kLine:
                lineTo(px[0], py[0]);
                break;
            case kQuad:
                quadTo(px[0], py[0], px[1], py[1]);
                break;
            case kCubic:
                cubicTo(px[0], py[0], px[1], py[1], px[2], py[2]);
                break;
            case kClose:
                close();
                break;
            default:
                break;
        }
        p += needed;
    }
}

void vxPath2DOLD::addVerbList(const std::vector<float>& list) {
    vxGuardAllocation(*this, L"addVerbList", 1, [&] {
        size_t i = 0;
        while (i < list.size()) {
            const long code = std::lround(list[i]);
            const long points = pointsOfVerb(code);
            if (points < 0) return;
            const size_t needed = 2 * static_cast<size_t>(points);
            if (i + 1 + needed > list.size()) return;
            const float* v = list.data() + i + 1;
            switch (code) {
                case kClose:
                    close();
                    break;
                case kMove:
                    moveTo(v[0], v[1]);
                    break;
                case kLine:
                    lineTo(v[0], v[1]);
                    break;
                case kQuad:
                    quadTo(v[0], v[1], v[2], v[3]);
                    break;
                default:
                    cubicTo(v[0], v[1], v[2], v[3], v[4], v[5]);
                    break;
            }
            i += 1 + needed;
        }
    });
}

// ---- contents ---------------------------------------------------------------

void vxPath2DOLD::setCapacity(long numOfPoints) {
    vxGuardAllocation(*this, L"setCapacity", 1, [&] {
        const size_t n = static_cast<size_t>(std::max(0L, numOfPoints));
        x.reserve(n);
        y.reserve(n);
        verbs.reserve(std::max(verbs.size(), n));
    });
}

void vxPath2DOLD::clear() {
    verbs.clear();
    x.clear();
    y.clear();
    startIndex = 0;
    invalidateBounds();
}

void vxPath2DOLD::transform(const vxTransform2DOLD& t) {
    applyTransform(t);
}

void vxPath2DOLD::transformGeometry(const vxTransform2DOLD& t) {
    vxGObject2D::transformGeometry(t);
    t.transform(x, y);
}

void vxPath2DOLD::calculateBounds(float b[4]) const {
    if (x.empty()) {
        std::fill(b, b + 4, 0.0f);
        return;
    }
    const auto [left, right] = std::minmax_element(x.begin(), x.end());
    const auto [top, bottom] = std::minmax_element(y.begin(), y.end());
    b[0] = *left;
    b[1] = *top;
    b[2] = *right;
    b[3] = *bottom;
}

void vxPath2DOLD::copy(const vxPath2DOLD* from) {
    setDefaults();
    if (!from || from == this) return;
    getState()->copy(from->getState());
    getAppearance()->copy(from->getAppearance());
    if (getAppearance()->isError()) copyError(getAppearance()->getError());
    vxGuardAllocation(*this, L"copy", 1, [&] {
        verbs = from->verbs;
        x = from->x;
        y = from->y;
    });
    windingRule = from->windingRule;
    startIndex = from->startIndex;
}

void vxPath2DOLD::setDefaults() {
    vxGObject2D::setDefaults();
    clear();
    windingRule = kNonZero;
}

// ---- drawing ----------------------------------------------------------------

void vxPath2DOLD::fillShape(vxDevice& device, const vxPaintOLD& paint, const float b[4]) {
    if (!verbs.empty()) device.fillPath2D(paint, verbs, x, y, b, windingRule);
}

void vxPath2DOLD::fillShape(vxDevice& device, const vxShadowOLD& shadow, const float b[4]) {
    if (!verbs.empty()) device.fillPath2D(shadow, verbs, x, y, b, windingRule);
}

void vxPath2DOLD::outlineShape(vxDevice& device, const vxStrokeOLD& stroke, const vxPaintOLD& paint,
                               const float b[4]) {
    if (!verbs.empty()) device.drawPath2D(stroke, paint, verbs, x, y, b);
}

void vxPath2DOLD::outlineShape(vxDevice& device, const vxStrokeOLD& stroke,
                               const vxShadowOLD& shadow, const float b[4]) {
    if (!verbs.empty()) device.drawPath2D(stroke, shadow, verbs, x, y, b);
}

void vxPath2DOLD::dump(short depth, std::ostream& out) const {
    if (depth <= 0) return;
    vxGObject2D::dump(depth, out);
    vxDumpHeader(out, "vxPath2DOLD");
    vxDumpLine(out, "short windingRule: ", windingRule);
    vxDumpLine(out, "long startIndex: ", startIndex);
    vxDumpLine(out, "vector<short> verbs: ", verbs);
    vxDumpLine(out, "long numOfPoints: ", getNumOfPoints());
    for (size_t i = 0; i < x.size(); ++i) vxDumpLine(out, "float x,y: ", x[i], y[i]);
    vxDumpEnd(out);
}

}  // namespace Velarix
