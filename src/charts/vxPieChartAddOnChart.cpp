#include "charts/vxPieChartAddOnChart.h"

#include <algorithm>
#include <cmath>

#include "charts/vxChartShapes.h"
#include "charts/vxPieChartWedge2D.h"
#include "graphics/vxPath2DOLD.h"
#include "host/vxLog.h"
#include "script/vxAssign.h"

namespace Velarix {

namespace {

// The share of the frame the add-on takes, and the column's share of that.
constexpr float kShare = 0.25f;
constexpr float kColumnWidth = 0.4f;

}  // namespace

void vxPieChartAddOnChart::assign(vxAssign& a) {
    showAddOnChart = a.getBool(0, true);
    addOnChartThreshold = a.getFloat(1, addOnChartThreshold);
    addOnChartLocation = std::clamp<short>(a.getShort(2, addOnChartLocation), kLeft, kBottom);
    addOnChartType = std::clamp<short>(a.getShort(3, addOnChartType), kColumn, kPie);
}

void vxPieChartAddOnChart::combine(std::vector<double>& slices, std::vector<long>& items, double,
                                   long combinedItem) {
    values.clear();
    indices.clear();
    numOfAddOnItems = 0;
    addOnTotal = 0.0;
    if (!showAddOnChart) return;
    std::vector<double> keptValues;
    std::vector<long> keptItems;
    for (size_t i = 0; i < slices.size(); ++i) {
        const bool small = slices[i] <= addOnChartThreshold;
        (small ? values : keptValues).push_back(slices[i]);
        (small ? indices : keptItems).push_back(items[i]);
        if (small) addOnTotal += slices[i];
    }
    // One small slice alone stays in the pie.
    if (values.size() < 2) return values.clear(), indices.clear(), void(addOnTotal = 0.0);
    numOfAddOnItems = long(values.size());
    keptValues.push_back(addOnTotal);
    keptItems.push_back(combinedItem);
    slices = std::move(keptValues);
    items = std::move(keptItems);
}

void vxPieChartAddOnChart::cutFrame(float frame[4]) {
    std::copy(frame, frame + 4, addOnFrame);
    if (!isShown()) return;
    const float w = (frame[2] - frame[0]) * kShare, h = (frame[3] - frame[1]) * kShare;
    switch (addOnChartLocation) {
        case kLeft:
            addOnFrame[2] = frame[0] += w;
            break;
        case kTop:
            addOnFrame[3] = frame[1] += h;
            break;
        case kBottom:
            addOnFrame[1] = frame[3] -= h;
            break;
        default:
            addOnFrame[0] = frame[2] -= w;
            break;
    }
}

bool vxPieChartAddOnChart::addShapes(Shapes& out,
                                     const std::function<vxBaseChart::Look(long)>& lookOf) const {
    if (!isShown() || addOnTotal <= 0.0) return true;
    return addOnChartType == kPie ? addPie(out, lookOf) : addColumn(out, lookOf);
}

// Boxes stacked from the bottom, the first item lowest, in the middle of
// the add-on's room.
bool vxPieChartAddOnChart::addColumn(Shapes& out,
                                     const std::function<vxBaseChart::Look(long)>& lookOf) const {
    const float* f = addOnFrame;
    const float height = (f[3] - f[1]) * (1.0f - kShare);
    const float width = std::min(f[2] - f[0], f[3] - f[1]) * kColumnWidth;
    const float left = 0.5f * (f[0] + f[2] - width);
    float bottom = 0.5f * (f[1] + f[3] + height);
    try {
        for (size_t i = 0; i < values.size(); ++i) {
            const float top = bottom - float(height * values[i] / addOnTotal);
            const float x[4] = {left, left + width, left + width, left};
            const float y[4] = {bottom, bottom, top, top};
            out.push_back(vxMakeLookedPolygon(x, y, nullptr, 4, lookOf(indices[i])));
            bottom = top;
        }
    } catch (const std::bad_alloc&) {
        return false;
    }
    return true;
}

bool vxPieChartAddOnChart::addPie(Shapes& out,
                                  const std::function<vxBaseChart::Look(long)>& lookOf) const {
    const float* f = addOnFrame;
    const float r = 0.5f * std::min(f[2] - f[0], f[3] - f[1]) * (1.0f - kShare);
    vxPieChartItem::Frame frame;
    frame.cx = 0.5f * (f[0] + f[2]);
    frame.cy = 0.5f * (f[1] + f[3]);
    frame.rx = frame.ry = r;
    float start = 90.0f;
    for (size_t i = 0; i < values.size(); ++i) {
        const float arc = float(-360.0 * values[i] / addOnTotal);
        vxPieChartWedge2D wedge;
        if (!wedge.setUp(frame, start, arc) || !wedge.addShapes(out, lookOf(indices[i]))) {
            return false;
        }
        start += arc;
    }
    return true;
}

void vxPieChartAddOnChart::dump(short depth, std::ostream& out) const {
    if (depth <= 0) return;
    vxDumpHeader(out, "vxPieChartAddOnChart");
    vxDumpLine(out, "bool showAddOnChart:       ", showAddOnChart);
    vxDumpLine(out, "float addOnChartThreshold: ", addOnChartThreshold);
    vxDumpLine(out, "short addOnChartLocation:  ", addOnChartLocation);
    vxDumpLine(out, "short addOnChartType:      ", addOnChartType);
    vxDumpLine(out, "long numOfAddOnItems:      ", numOfAddOnItems);
    vxDumpLine(out, "double addOnTotal:         ", addOnTotal);
    vxDumpLine(out, "float addOnFrame[4]:       ", addOnFrame, 4);
    vxDumpEnd(out);
}

}  // namespace Velarix
