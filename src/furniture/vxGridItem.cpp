#include "furniture/vxGridItem.h"

#include <algorithm>
#include <cmath>

#include "drawing/vxLayer.h"
#include "graphics/vxBasicPaint.h"
#include "graphics/vxColorOLD.h"
#include "graphics/vxGObjectOLD.h"
#include "host/vxLog.h"
#include "script/vxAssign.h"

namespace Velarix {

namespace {

constexpr short kMajorGray = 136;
constexpr short kMinorGray = 221;
// Ends closer than this across a line make it run along x or y.
constexpr float kAlongTolerance = 0.001f;

}  // namespace

vxGridItem::vxGridItem(const wchar_t* className, vxUserSettings* owner, short planeIndex,
                       short direction, short order)
    : vxErrorHolder(className),
      owner(owner),
      planeIndex(planeIndex),
      gridDirection(direction),
      gridOrder(order) {}

vxGridItem::~vxGridItem() = default;

bool vxGridItem::add(vxLayer& layer, const vxGridPlane& plane, short shape) {
    switch (shape) {
        case kRect:
            return setUpRects(layer, plane.rect);
        case kPolygon:
            return setUpPolygons(layer, plane.polar);
        case kOval:
            return setUpOvals(layer, plane.polar);
        default:
            return true;
    }
}

float vxGridItem::alignLine(float position, float width, float low, float high) {
    const long pixels = std::max(1L, std::lround(width));
    const float half = 0.5f * float(pixels);
    const float at = pixels % 2 ? std::floor(position) + 0.5f : std::round(position);
    const float first = std::ceil(low) + half;
    const float last = std::floor(high) - half;
    return first <= last ? std::clamp(at, first, last) : at;
}

void vxGridItem::alignLine(float line[4], float width, const float extent[4]) {
    if (std::fabs(line[0] - line[2]) < kAlongTolerance) {
        line[0] = line[2] = alignLine(line[0], width, extent[0], extent[2]);
    } else if (std::fabs(line[1] - line[3]) < kAlongTolerance) {
        line[1] = line[3] = alignLine(line[1], width, extent[1], extent[3]);
    }
}

// The corners are the ends of the first axis, each moved as far as the
// ends of the second lie from the crossing.
void vxGridItem::getExtent(const vxGridRectPlane& plane, float extent[4]) {
    const float* a = plane.axes[0].ends;
    const float* b = plane.axes[1].ends;
    const float* c = plane.crossing;
    extent[0] = extent[2] = a[0];
    extent[1] = extent[3] = a[1];
    for (int i = 0; i < 4; i += 2) {
        for (int j = 0; j < 4; j += 2) {
            const float x = a[i] + b[j] - c[0];
            const float y = a[i + 1] + b[j + 1] - c[1];
            extent[0] = std::min(extent[0], x);
            extent[1] = std::min(extent[1], y);
            extent[2] = std::max(extent[2], x);
            extent[3] = std::max(extent[3], y);
        }
    }
}

float vxGridItem::alignEdge(float position) {
    return std::round(position);
}

vxColorOLD vxGridItem::defaultColor() const {
    const short gray = gridOrder == kMinor ? kMinorGray : kMajorGray;
    return vxColorOLD(gray, gray, gray);
}

bool vxGridItem::setDefaultPaints(std::vector<std::unique_ptr<vxBasicPaint>>& paints) {
    try {
        paints.clear();
        paints.push_back(std::make_unique<vxBasicPaint>(defaultColor()));
    } catch (const std::bad_alloc&) {
        setError(vxErrRuntime::kOutOfMemory, where(L"setDefaults"));
        return false;
    }
    return true;
}

bool vxGridItem::readColors(vxAssign& a, std::vector<std::unique_ptr<vxBasicPaint>>& paints) {
    paints.clear();
    const long count = a.getNumOfArguments() - a.getArgumentOffset();
    bool any = false;
    try {
        for (long i = 0; i < count; ++i) {
            auto paint = std::make_unique<vxBasicPaint>(defaultColor());
            vxColorOLD color = defaultColor();
            if (vxBasicPaint::readColor(a, i, owner, color)) {
                paint->setColor(color);
                any = true;
            }
            paints.push_back(std::move(paint));
        }
    } catch (const std::bad_alloc&) {
        paints.clear();
        setError(vxErrRuntime::kOutOfMemory, where(L"assignColors"));
        return false;
    }
    if (!any) paints.clear();
    return true;
}

bool vxGridItem::readPatterns(vxAssign& a, std::vector<short>& patterns) {
    patterns.clear();
    const long count = a.getNumOfArguments() - a.getArgumentOffset();
    bool any = false;
    try {
        for (long i = 0; i < count; ++i) {
            any = any || !a.isVoid(i);
            patterns.push_back(a.getShort(i, 0));
        }
    } catch (const std::bad_alloc&) {
        patterns.clear();
        setError(vxErrRuntime::kOutOfMemory, where(L"assignPatterns"));
        return false;
    }
    if (!any) patterns.clear();
    return true;
}

std::unique_ptr<vxBasicPaint> vxGridItem::paintAt(
    const std::vector<std::unique_ptr<vxBasicPaint>>& paints, const std::vector<short>& patterns,
    long index) const {
    std::unique_ptr<vxBasicPaint> paint;
    try {
        paint = std::make_unique<vxBasicPaint>(defaultColor());
    } catch (const std::bad_alloc&) {
        return nullptr;
    }
    if (!paints.empty()) {
        const vxColorOLD* color = paints[size_t(index) % paints.size()]->getColor();
        if (color) paint->setColor(*color);
    }
    if (!patterns.empty()) paint->setPatternIndex(patterns[size_t(index) % patterns.size()]);
    return paint;
}

bool vxGridItem::handOverShape(vxLayer& layer, std::unique_ptr<vxGObjectOLD> shape) {
    if (!shape->hasBorder() && !shape->hasFill()) return true;
    if (layer.addShape(std::move(shape))) return true;
    return takeError(layer);
}

bool vxGridItem::takeError(const vxErrorHolder& part) {
    if (!isError()) copyError(part.getError());
    return false;
}

void vxGridItem::dump(short depth, std::ostream& out) const {
    if (depth <= 0) return;
    vxDumpLine(out, "short planeIndex:    ", planeIndex);
    vxDumpLine(out, "short gridDirection: ", gridDirection);
    vxDumpLine(out, "short gridOrder:     ", gridOrder);
}

}  // namespace Velarix
