// Where the pie stands: its frame in the plot, the depth of its slices,
// the room its explodes and labels take, and the slices themselves.
#include <algorithm>
#include <cmath>

#include "charts/vxPieChart.h"
#include "charts/vxPieChartAddOnChart.h"
#include "charts/vxPieChartDoughnut2D.h"
#include "charts/vxPieChartDoughnut3D.h"
#include "charts/vxPieChartExplodeManager.h"
#include "charts/vxPieChartWedge2D.h"
#include "charts/vxPieChartWedge3D.h"
#include "graphics/vxLabel.h"
#include "graphics/vxShadowOLD.h"
#include "styles/vxShadowStyle.h"
#include "styles/vxStyleManager.h"

namespace Velarix {

namespace {

constexpr double kDegree = 3.14159265358979323846 / 180.0;
// A pie keeps at least this much of its frame's height for its top.
constexpr float kLeastTopShare = 0.1f;
constexpr float kSmallest = 1.0f;

}  // namespace

float vxPieChart::maxExplodePercent() const {
    return explodes ? explodes->getMaxRadialPercent() : 0.0f;
}

// 1. The plot, less the add-on's room and the outer labels' room. 2. A
// circle's square unless "oval". 3. Room for the shadow. 4. With depth, the
// top is squeezed to leave room for the walls. 5. Room for explodes.
void vxPieChart::setUpPieGeometry() {
    float frame[4];
    std::copy(getPlotBounds(), getPlotBounds() + 4, frame);
    if (addOnChart) addOnChart->cutFrame(frame);
    reserveLabelRoom(frame);
    if (!getParameters().isOval()) squareFrame(frame);
    const vxStyleManager* styles = getStyleManager();
    const vxShadowStyle* shadow = styles ? styles->getShadowStyle(1, 1) : nullptr;
    if (getParameters().doShowShadows() && shadow && shadow->getShadow()) {
        const float dx = shadow->getShadow()->getXOffset(), dy = shadow->getShadow()->getYOffset();
        frame[dx > 0 ? 2 : 0] -= dx;
        frame[dy > 0 ? 3 : 1] -= dy;
    }
    std::copy(frame, frame + 4, pieFrame);
    pieWidth = std::max(kSmallest, frame[2] - frame[0]);
    pieHeight = std::max(kSmallest, frame[3] - frame[1]);
    if (isDepth3D()) fitDepth(frame);
    if (isError()) return;
    const float e = maxExplodePercent();
    if (e > 0.0f) {
        const float width = pieWidth / (1.0f + e * 0.01f), height = pieHeight / (1.0f + e * 0.01f);
        centreFrame(frame, width, height + maxPieDepth * width / pieWidth);
        pieWidth = width;
        pieHeight = height;
        setUpDepths();
    }
    pieCenter[0] = 0.5f * (frame[0] + frame[2]);
    pieCenter[1] = frame[1] + pieHeight / 2;
    std::copy(frame, frame + 4, pieInnerFrame);
}

void vxPieChart::squareFrame(float frame[4]) const {
    const float side = std::max(kSmallest, std::min(frame[2] - frame[0], frame[3] - frame[1]));
    centreFrame(frame, side, side);
}

void vxPieChart::centreFrame(float frame[4], float width, float height) const {
    const float cx = 0.5f * (frame[0] + frame[2]), cy = 0.5f * (frame[1] + frame[3]);
    frame[0] = cx - width / 2;
    frame[2] = cx + width / 2;
    frame[1] = cy - height / 2;
    frame[3] = cy + height / 2;
}

// Outer labels stand beside the pie, which gives them the room of the
// widest and of the highest.
void vxPieChart::reserveLabelRoom(float frame[4]) {
    std::vector<float> sizes;
    for (const auto& label : outerOwned) {
        if (!label) continue;
        float size[2];
        label->getLabelSize(size);
        sizes.insert(sizes.end(), {size[0], size[1]});
    }
    if (sizes.empty()) return;
    const float half = 0.5f * std::min(frame[2] - frame[0], frame[3] - frame[1]);
    float room[2];
    labels->getOuterRoom(sizes, half, room);
    // The room stays within a third of the frame on each side.
    room[0] = std::min(room[0], (frame[2] - frame[0]) / 3);
    room[1] = std::min(room[1], (frame[3] - frame[1]) / 3);
    frame[0] += room[0];
    frame[2] -= room[0];
    frame[1] += room[1];
    frame[3] -= room[1];
}

// The depth of each slice: its percentage (the list repeats) of half the
// pie's width.
void vxPieChart::setUpDepths() {
    maxPieDepth = 0.0f;
    pieDepthsDC.assign(values.size(), 0.0f);
    if (pieDepthPercents.empty()) return;
    for (size_t i = 0; i < values.size(); ++i) {
        const float d = pieWidth * 0.005f * pieDepthPercents[i % pieDepthPercents.size()];
        pieDepthsDC[i] = d;
        maxPieDepth = std::max(maxPieDepth, d);
    }
}

// The walls take their depth from the frame's height; a pie too deep for
// its frame is made narrower until its top keeps a tenth of the height.
void vxPieChart::fitDepth(float frame[4]) {
    setUpDepths();
    const float e = std::max(maxExplodePercent(), explodes ? explodes->getMaxDepthPercent() : 0.0f);
    const float room = pieHeight - maxPieDepth - e * 0.01f * maxPieDepth;
    if (room < kLeastTopShare * pieHeight) {
        const float s = *std::max_element(pieDepthPercents.begin(), pieDepthPercents.end());
        const float denominator = (1.0f + e * 0.01f) * s * 0.01f;
        if (denominator < 1e-6f) {
            return setError(vxErrRuntime::kDivisionByZero, where(L"setUpPieGeometry"));
        }
        pieWidth = std::min(pieWidth, (1.0f - kLeastTopShare) * pieHeight * 2.0f / denominator);
        centreFrame(frame, pieWidth, frame[3] - frame[1]);
        setUpDepths();
    }
    pieHeight = std::max(kSmallest, pieHeight - (e * 0.01f + 1.0f) * maxPieDepth);
    if (!getParameters().isOval()) pieHeight = std::min(pieHeight, pieWidth);
    frame[1] = frame[3] - pieHeight - maxPieDepth;
}

// A part of a pie fills the frame: the box of its arc (with its centre)
// grows to the frame's extent and moves into its middle.
void vxPieChart::setUpPieLimits() {
    const double rx = pieWidth / 2, ry = pieHeight / 2;
    double u[2] = {0.0, 0.0}, v[2] = {0.0, 0.0};
    const double extent = std::min(360.0, std::fabs(double(arcAngle)));
    const double from = startAngles.empty() ? 0.0 : startAngles[0] - (isClockwise() ? extent : 0.0);
    // The ends of the arc and the axes it passes.
    std::vector<double> at = {from, from + extent};
    for (double a = std::ceil(from / 90.0) * 90.0; a < from + extent; a += 90.0) at.push_back(a);
    for (const double a : at) {
        u[0] = std::min(u[0], std::cos(a * kDegree));
        u[1] = std::max(u[1], std::cos(a * kDegree));
        v[0] = std::min(v[0], -std::sin(a * kDegree));
        v[1] = std::max(v[1], -std::sin(a * kDegree));
    }
    pieLimits[0] = float(pieCenter[0] + rx * u[0]);
    pieLimits[1] = float(pieCenter[1] + ry * v[0]);
    pieLimits[2] = float(pieCenter[0] + rx * u[1]);
    pieLimits[3] = float(pieCenter[1] + ry * v[1]);
    if (extent >= 360.0 - 1e-6 || isDepth3D()) return;
    const double scale =
        std::min(2.0 / std::max(1e-3, u[1] - u[0]), 2.0 / std::max(1e-3, v[1] - v[0]));
    const double frameX = pieCenter[0], frameY = pieCenter[1];
    pieWidth = float(pieWidth * scale);
    pieHeight = float(pieHeight * scale);
    pieCenter[0] = float(frameX - pieWidth / 2 * (u[0] + u[1]) / 2);
    pieCenter[1] = float(frameY - pieHeight / 2 * (v[0] + v[1]) / 2);
    pieLimits[0] = float(pieCenter[0] + pieWidth / 2 * u[0]);
    pieLimits[1] = float(pieCenter[1] + pieHeight / 2 * v[0]);
    pieLimits[2] = float(pieCenter[0] + pieWidth / 2 * u[1]);
    pieLimits[3] = float(pieCenter[1] + pieHeight / 2 * v[1]);
}

std::unique_ptr<vxPieChartItem> vxPieChart::makeItem() const {
    const bool ring = getParameters().hasInnerRadius();
    if (isDepth3D()) {
        if (ring) return std::make_unique<vxPieChartDoughnut3D>();
        return std::make_unique<vxPieChartWedge3D>();
    }
    if (ring) return std::make_unique<vxPieChartDoughnut2D>();
    return std::make_unique<vxPieChartWedge2D>();
}

// The centre of slice i, moved by its explodes, and its depth.
void vxPieChart::getSliceFrame(long i, float& cx, float& cy, float& depth) const {
    cx = pieCenter[0];
    cy = pieCenter[1];
    depth = isDepth3D() ? pieDepthsDC[size_t(i)] : 0.0f;
    if (!explodes) return;
    float offset[2];
    explodes->getRadialOffset(i, midAngles[size_t(i)], pieWidth / 2, pieHeight / 2, offset);
    cx += offset[0];
    cy += offset[1] - explodes->getDepthPercent(i) * 0.01f * maxPieDepth;
}

// One item a slice; a single slice or one pulled out has its own border.
void vxPieChart::setUpItems() {
    items.clear();
    const std::wstring place = where(isDepth3D() ? L"setUpWedge3DItems" : L"setUpWedge2DItems");
    try {
        for (size_t i = 0; i < values.size(); ++i) {
            std::unique_ptr<vxPieChartItem> item = makeItem();
            vxPieChartItem::Frame f;
            getSliceFrame(long(i), f.cx, f.cy, f.depth);
            f.rx = pieWidth / 2;
            f.ry = pieHeight / 2;
            f.innerFraction = getParameters().hasInnerRadius() ? innerRadiusPercent * 0.01f : 0.0f;
            if (!item->setUp(f, startAngles[i], angles[i])) throw std::bad_alloc();
            const bool alone = outlineFlag == 1 || values.size() == 1 ||
                               (explodes && explodes->isExploded(long(i)));
            item->setOutlineType(alone ? vxPieChartItem::kEveryFace : vxPieChartItem::kBothEdges);
            items.push_back(std::move(item));
        }
    } catch (const std::bad_alloc&) {
        items.clear();
        setError(vxErrRuntime::kOutOfMemory, place);
    }
}

}  // namespace Velarix
