#include "charts/vxPieChart.h"

#include <algorithm>
#include <cmath>

#include "charts/vxPieChartAddOnChart.h"
#include "charts/vxPieChartExplodeManager.h"
#include "charts/vxPieChartItem.h"
#include "graphics/vxLabel.h"
#include "host/vxLog.h"
#include "script/vxAssign.h"
#include "script/vxFunctionIds.h"
#include "styles/vxStyleManager.h"

namespace Velarix {

namespace {

// The relative and the absolute part of the tolerance of a comparison with
// the total.
constexpr double kRelativeTolerance = 2.220446049250313e-16;
constexpr double kAbsoluteTolerance = 1e-10;
constexpr float kNoAngle = 1e-10f;

}  // namespace

vxPieChart::vxPieChart() : vxBaseChart(L"vxPieChart") {}

vxPieChart::~vxPieChart() = default;

void vxPieChart::setDefaults() {
    vxBaseChart::setDefaults();
    pieDepthPercents.clear();
    innerRadiusPercent = 0.0f;
    startAngle = 0.0f;
    arcAngle = 360.0f;
    pieShape = outlineFlag = 0;
    // A pie's legend shows the slices' areas.
    setDefaultLabelLocation(5);
    setDefaultLegendMarkerType(1);
}

// After the flags: the depths, the hole, the start angle, the arc, the shape.
void vxPieChart::assign(vxAssign& a) {
    setDefaults();
    pieDepthPercents = a.getFloatArray(0);
    if (pieDepthPercents.empty() && !a.isVoid(0) && a.isFloat(0)) {
        pieDepthPercents.push_back(a.getFloat(0));
    }
    const bool flat = std::all_of(pieDepthPercents.begin(), pieDepthPercents.end(),
                                  [](float d) { return d <= 0.0f; });
    if (flat) pieDepthPercents.clear();
    innerRadiusPercent = std::clamp(a.getFloat(1, 0.0f), 0.0f, 100.0f);
    startAngle = a.getFloat(2, 0.0f);
    arcAngle = a.getFloat(3, 360.0f);
    if (std::fabs(arcAngle) < kNoAngle) arcAngle = 360.0f;
    pieShape = a.getShort(4, 0);
    getParameters().setStartAngle(startAngle);
    getParameters().setArcAngle(arcAngle);
    getParameters().setInnerRadiusPercent(innerRadiusPercent);
}

void vxPieChart::setOptions(vxAssign& a) {
    switch (a.getFunction()) {
        case kPieChartExplodeRadials:
        case kPieChartExplodeDepths:
            if (explodes || createExplodes()) explodes->assign(a);
            return;
        case kPieChartAddOn:
            if (addOnChart || createAddOnChart()) addOnChart->assign(a);
            return;
        default:
            if (!labels && !createLabels()) return;
            labels->assign(a);
            if (labels->isError()) copyError(labels->getError());
            return;
    }
}

bool vxPieChart::createExplodes() {
    return create(explodes, L"createExplodes");
}

// Options come before the chart has its styles: the labels then take the
// engine's own defaults for their fonts.
bool vxPieChart::createLabels() {
    const vxStyleManager* styles = getStyleManager();
    const vxLabelStyle* style = styles ? styles->getLabelStyle(1, 1) : nullptr;
    if (!create(labels, L"createLabels", style ? style->getOwnerSettings() : nullptr)) {
        return false;
    }
    if (labels->isError()) copyError(labels->getError());
    return !isError();
}

bool vxPieChart::createAddOnChart() {
    return create(addOnChart, L"createAddOnChart");
}

bool vxPieChart::isClockwise() const {
    return arcAngle < 0.0f;
}

// 1. The slices and their angles. 2. What is pulled out and labelled.
// 3. The order of drawing, the pie's place and its slices.
void vxPieChart::setUp() {
    setUpSliceArrays();
    if (!isError() && addOnChart) addOnChart->combine(values, indices, total, getNumOfItems(0));
    if (!isError()) setUpAngles();
    if (isError()) return;
    if (explodes) explodes->setUp(values, indices);
    if (!labels && !createLabels()) return;
    labels->setUpLabelFlags(values, total);
    makeLabels();
    if (isError()) return;
    setDrawingOrder();
    setUpPieGeometry();
    if (!isError()) setUpPieLimits();
    if (!isError()) setUpItems();
    if (!isError()) placeLabels();
}

// The positive valid values of the first series; one within the tolerance
// of the total is no slice.
void vxPieChart::setUpSliceArrays() {
    values.clear();
    indices.clear();
    total = 0.0;
    const long n = getNumOfItems(0);
    for (long i = 0; i < n; ++i) {
        const double v = getValue(0, 0, i);
        if (isValidValue(0, 0, i) && v > 0.0 && std::isfinite(v)) total += v;
    }
    threshold = std::fabs(total) * kRelativeTolerance + kAbsoluteTolerance;
    for (long i = 0; i < n; ++i) {
        const double v = getValue(0, 0, i);
        if (!isValidValue(0, 0, i) || !(v > threshold) || !std::isfinite(v)) continue;
        values.push_back(v);
        indices.push_back(i);
    }
    if (values.empty() || !std::isfinite(total)) {
        return setError(vxErrScript::kNotEnoughData, where(L"setUpSliceArrays"),
                        L"All values in ChartData() are less or equal zero.");
    }
    total = 0.0;
    for (const double v : values) total += v;
}

// Whole degrees that add up to the arc: each slice's exact angle rounded;
// the degrees the rounding lost or won go to the slices whose remainders,
// weighted by their shares, come first in ascending order.
void vxPieChart::setUpAngles() {
    const size_t n = values.size();
    const double arc = std::min(360.0, std::fabs(double(arcAngle)));
    angles.assign(n, 0.0f);
    std::vector<double> remainders(n);
    double sum = 0.0;
    for (size_t i = 0; i < n; ++i) {
        const double exact = arc * values[i] / total;
        angles[i] = float(std::round(exact));
        remainders[i] = (exact - angles[i]) * values[i] / total;
        sum += angles[i];
    }
    const double d = arc - sum;
    if (std::fabs(d) > 0.5) {
        const double sign = d > 0.0 ? 1.0 : -1.0;
        std::vector<size_t> keyed;
        for (size_t i = 0; i < n; ++i) {
            if (sign * remainders[i] > 0.0) keyed.push_back(i);
        }
        std::stable_sort(keyed.begin(), keyed.end(), [&](size_t a, size_t b) {
            return sign * remainders[a] < sign * remainders[b];
        });
        const size_t count = std::min(keyed.size(), size_t(std::lround(std::fabs(d))));
        for (size_t k = 0; k < count; ++k) angles[keyed[k]] += float(sign);
    }
    if (isClockwise()) {
        for (float& a : angles) a = -a;
    }
    startAngles.assign(n, 0.0f);
    midAngles.assign(n, 0.0f);
    for (size_t i = 0; i < n; ++i) {
        startAngles[i] =
            i == 0 ? float(std::round(std::fmod(360.0 - startAngle + 360.0, 360.0)))
                   : float(std::fmod(double(startAngles[i - 1]) + angles[i - 1] + 360.0, 360.0));
        midAngles[i] = float(std::fmod(double(startAngles[i]) + angles[i] / 2.0 + 360.0, 360.0));
    }
}

// Flat pies in the order of their items, empty slices last. Slices with
// depth from the back of the pie to its front: by how near the page's
// bottom their middle lies, so that each slice covers the sides of those
// behind it.
void vxPieChart::setDrawingOrder() {
    drawingIndices.resize(values.size());
    for (size_t i = 0; i < values.size(); ++i) drawingIndices[i] = long(i);
    if (isDepth3D()) {
        std::stable_sort(drawingIndices.begin(), drawingIndices.end(), [this](long a, long b) {
            return std::sin(midAngles[size_t(a)] * 0.017453292519943295) >
                   std::sin(midAngles[size_t(b)] * 0.017453292519943295);
        });
    }
    std::stable_partition(drawingIndices.begin(), drawingIndices.end(),
                          [this](long i) { return std::fabs(angles[size_t(i)]) > kNoAngle; });
}

const vxPieChartItem* vxPieChart::getItem(long slice) const {
    return slice >= 0 && size_t(slice) < items.size() ? items[size_t(slice)].get() : nullptr;
}

void vxPieChart::dump(short depth, std::ostream& out) const {
    if (depth <= 0) return;
    vxBaseChart::dump(depth, out);
    vxDumpHeader(out, "vxPieChart");
    vxDumpLine(out, "short outlineFlag:    ", outlineFlag);
    vxDumpLine(out, "short pieShape:       ", pieShape);
    vxDumpLine(out, "float pieFrame[4]:    ", pieFrame, 4);
    vxDumpLine(out, "float pieLimits[4]:   ", pieLimits, 4);
    vxDumpLine(out, "float pieCenter[2]:   ", pieCenter, 2);
    vxDumpLine(out, "float pieWidth:       ", pieWidth);
    vxDumpLine(out, "float pieHeight:      ", pieHeight);
    vxDumpLine(out, "double total:         ", total);
    vxDumpLine(out, "double threshold:     ", threshold);
    vxDumpLine(out, "long numOfSlices:     ", getNumOfSlices());
    vxDumpEnd(out);
    for (const auto& item : items) item->dump(short(depth - 1), out);
    if (explodes) explodes->dump(short(depth - 1), out);
    if (labels) labels->dump(short(depth - 1), out);
}

}  // namespace Velarix
