#include "charts/vxPieChartItem.h"

#include <algorithm>
#include <cmath>

#include "graphics/vxGObjectOLD.h"
#include "graphics/vxPath2DOLD.h"
#include "host/vxLog.h"

namespace Velarix {

namespace {

constexpr double kDegree = 3.14159265358979323846 / 180.0;
constexpr float kFullCircle = 360.0f - 1e-4f;

// The quadrant, 1 to 4, of an angle in degrees.
int quadrantOf(double angle) {
    const double a = std::fmod(std::fmod(angle, 360.0) + 360.0, 360.0);
    return std::min(4, int(a / 90.0) + 1);
}

}  // namespace

vxPieChartItem::~vxPieChartItem() = default;

bool vxPieChartItem::setUp(const Frame& f, float start, float arc) {
    frame = f;
    startAngle = start;
    arcAngle = arc;
    widthDC = 2.0f * f.rx;
    heightDC = 2.0f * f.ry;
    arcSegmentType = quadrantCode(start, arc);
    try {
        reserveArcPoints();
    } catch (const std::bad_alloc&) {
        return false;
    }
    return true;
}

float vxPieChartItem::getMidAngle() const {
    return float(std::fmod(double(startAngle) + arcAngle / 2.0 + 360.0, 360.0));
}

void vxPieChartItem::getCounterClockwiseArc(float& from, float& extent) const {
    from = arcAngle >= 0.0f ? startAngle : startAngle + arcAngle;
    from = float(std::fmod(std::fmod(double(from), 360.0) + 360.0, 360.0));
    extent = std::min(360.0f, std::fabs(arcAngle));
}

bool vxPieChartItem::isFullCircle() const {
    return std::fabs(arcAngle) >= kFullCircle;
}

short vxPieChartItem::quadrantCode(float start, float arc) {
    const double from = arc >= 0.0f ? start : double(start) + arc;
    const double extent = std::fabs(double(arc));
    const int first = quadrantOf(from);
    const int last = quadrantOf(from + extent);
    // Past the rest of its first quadrant and three more, an arc is back.
    const double rest = 90.0 * first - std::fmod(std::fmod(from, 360.0) + 360.0, 360.0);
    const bool wraps = extent > rest + 270.0;
    return short(first * 10 + last + (wraps ? first * 100 : 0));
}

void vxPieChartItem::sampleArc(float cx, float cy, float rx, float ry, float from, float arc,
                               std::vector<float>& xs, std::vector<float>& ys) {
    const int steps = std::max(1, int(std::ceil(std::fabs(arc) / kArcStep)));
    xs.resize(size_t(steps) + 1);
    ys.resize(size_t(steps) + 1);
    for (int i = 0; i <= steps; ++i) {
        const double a = (double(from) + double(arc) * i / steps) * kDegree;
        xs[size_t(i)] = float(cx + rx * std::cos(a));
        ys[size_t(i)] = float(cy - ry * std::sin(a));
    }
}

void vxPieChartItem::dump(short depth, std::ostream& out) const {
    if (depth <= 0) return;
    vxDumpHeader(out, "vxPieChartItem");
    vxDumpLine(out, "float arcAngle:    ", arcAngle);
    vxDumpLine(out, "float startAngle:  ", startAngle);
    vxDumpLine(out, "float widthDC:     ", widthDC);
    vxDumpLine(out, "float heightDC:    ", heightDC);
    vxDumpLine(out, "short arcSegmentType: ", arcSegmentType);
    vxDumpLine(out, "short outlineType: ", outlineType);
    vxDumpEnd(out);
}

}  // namespace Velarix
