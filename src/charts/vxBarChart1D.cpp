#include "charts/vxBarChart1D.h"

#include <cmath>

#include "axes/vxAxisItem.h"
#include "axes/vxAxisScaling.h"
#include "host/vxLog.h"
#include "script/vxAssign.h"
#include "script/vxFunctionIds.h"

namespace Velarix {

namespace {

// A depth of 100 percent is one bar width along the diagonal.
constexpr float kDiagonalPercent = 0.007071f;
constexpr short kBarChart2DType = 10;

}  // namespace

vxBarChart1D::vxBarChart1D() : vxBarChart1D(L"vxBarChart1D") {}

vxBarChart1D::vxBarChart1D(const wchar_t* className) : vxBaseChart(className) {}

void vxBarChart1D::setDefaults() {
    vxBaseChart::setDefaults();
    categoryGapPercent = 100.0f;
    seriesGapPercent = getParameters().isStacked() ? -100.0f : 0.0f;
    depthPercent = 0.0f;
    useRelativeDepth = true;
    barWidthDC = categoryGapDC = seriesGapDC = 0.0f;
    numOfCategories = 0;
    doForceIntegerBarWidth = showConnectingLines = splitColors = false;
    setDefaultLabelLocation(getParameters().isStacked() ? 5 : 8);
    setDefaultLegendMarkerType(getParameters().doShowSymbols() ? 3 : 1);
}

// After the flags: category gap, series gap, the depth list, relative depth.
void vxBarChart1D::assign(vxAssign& a) {
    setDefaults();
    categoryGapPercent = a.getFloat(0, categoryGapPercent);
    seriesGapPercent = a.getFloat(1, seriesGapPercent);
    useRelativeDepth = a.getBool(3, true);
    a.addToArgumentOffset(2);
    if (useRelativeDepth) {
        const std::vector<float> depth = a.getFloatArray(0);
        depthPercent = depth.empty() ? 0.0f : depth[0];
    } else {
        getDepthInfo().assignDepth(a);
        recede();
    }
    a.addToArgumentOffset(-2);
}

void vxBarChart1D::setOptions(vxAssign& a) {
    if (a.getFunction() != kBarChartOptions) return;
    showConnectingLines = a.getBool(0, showConnectingLines);
    if (!a.isVoid(1)) {
        getParameters().setHasReferenceValue(true);
        getParameters().setReferenceValue(getParameters().isProportional() ? 0.0 : a.getDouble(1));
    }
    splitColors = a.getBool(2, splitColors);
    doForceIntegerBarWidth = a.getBool(3, doForceIntegerBarWidth);
}

void vxBarChart1D::setUp() {
    setUpReferenceValue();
    if (!isError()) setUpAdditions();
    if (!isError()) setUpBarDimensions();
    if (isError()) return;
    if (getParameters().isStacked()) {
        setUpStackedBars();
    } else {
        setUpNonStackedBars();
    }
}

void vxBarChart1D::setUpBarDimensions() {
    const long nS = getNumOfChartSeries();
    long nC = 0;
    for (long s = 0; s < nS; ++s) nC = std::max(nC, getNumOfItems(s));
    numOfCategories = nC;
    setUpBarWidth(categoriesInSpan(), getChartType() == kBarChart2DType ? 2 : 1);
}

void vxBarChart1D::setUpBarWidth(double nC, int errorPlace) {
    const long nS = getNumOfChartSeries();
    const double categoryGaps = nC * 0.01 * categoryGapPercent;
    const double seriesGaps = (nS - 1) * 0.01 * nC * seriesGapPercent;
    const double units = double(nC) * nS + categoryGaps + seriesGaps;
    if (units < 1e-10) {
        return setError(vxErrRuntime::kDivisionByZero, where(L"setUpBarDimensions", errorPlace));
    }
    double scalingFactor = 1.0;
    if (const vxAxisItem* axis = getIntervalAxis()) {
        const double span = axis->getScaling()->getMaxUC() - axis->getScaling()->getMinUC();
        if (std::fabs(span) > 1e-10) scalingFactor = nC / span;
    }
    barWidthDC = float(getIntervalAxisLengthDC() * scalingFactor / units);
    if (doForceIntegerBarWidth) barWidthDC = std::max(1.0f, std::floor(barWidthDC));
    categoryGapDC = categoryGapPercent * 0.01f * barWidthDC;
    seriesGapDC = seriesGapPercent * 0.01f * barWidthDC;
    if (useRelativeDepth) {
        const float d = barWidthDC * kDiagonalPercent * depthPercent;
        getDepthInfo().setDepth(d, d);
        recede();
    }
}

void vxBarChart1D::updateDepth() {
    if (!useRelativeDepth || depthPercent <= 0.0f || !getIntervalAxis()) return;
    setUpBarDimensions();
    clearError();
}

// The script's depths are distances: the back of a box lies up and to the
// right of its front, which the projection reads as negative depths.
void vxBarChart1D::recede() {
    vxBaseChartDepthInfo& depth = getDepthInfo();
    depth.setDepth(-std::fabs(depth.getXDepth()), -std::fabs(depth.getYDepth()));
}

float vxBarChart1D::offsetOf(long s, long c) const {
    const long nS = getNumOfChartSeries();
    return float(nS * c + s) * barWidthDC + float((nS - 1) * c + s) * seriesGapDC +
           (float(c) + 0.5f) * categoryGapDC;
}

bool vxBarChart1D::getBarRect(long series, long item, float rect[4]) const {
    if (series < 0 || item < 0 || item >= numOfCategories) return false;
    const size_t i = indexOf(series, item);
    if (i >= barDirections.size() || barDirections[i] == 0) return false;
    rect[0] = barLeftDC[i];
    rect[1] = barTopDC[i];
    rect[2] = barRightDC[i];
    rect[3] = barBottomDC[i];
    return true;
}

short vxBarChart1D::getBarDirection(long series, long item) const {
    const size_t i = indexOf(series, item);
    return item >= 0 && item < numOfCategories && i < barDirections.size() ? barDirections[i] : 0;
}

bool vxBarChart1D::isDrawable(long series, long item) const {
    if (getBarDirection(series, item) == 0) return false;
    const double v = getParameters().isStacked() && getParameters().isProportional()
                         ? getProportionalValue(series, item)
                         : getValue(series, 1, item);
    return std::fabs(v) > 1e-10;
}

void vxBarChart1D::dump(short depth, std::ostream& out) const {
    if (depth <= 0) return;
    vxBaseChart::dump(depth, out);
    vxDumpHeader(out, "vxBarChart1D");
    vxDumpLine(out, "float categoryGapPercent: ", categoryGapPercent);
    vxDumpLine(out, "float seriesGapPercent:   ", seriesGapPercent);
    vxDumpLine(out, "float depthPercent:       ", depthPercent);
    vxDumpLine(out, "float barWidthDC:         ", barWidthDC);
    vxDumpLine(out, "float categoryGapDC:      ", categoryGapDC);
    vxDumpLine(out, "float seriesGapDC:        ", seriesGapDC);
    vxDumpLine(out, "bool useRelativeDepth:    ", useRelativeDepth);
    vxDumpEnd(out);
}

}  // namespace Velarix
