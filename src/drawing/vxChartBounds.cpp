// The rectangles of a chart: the frame, the graph inside the margins, and
// the plot inside the axes, fitted against the axes' labels.
#include <algorithm>
#include <cmath>

#include "axes/vxAxisManager.h"
#include "charts/vxBaseChart.h"
#include "charts/vxBaseChartParameters.h"
#include "drawing/vxChart.h"
#include "furniture/vxBackgroundManager.h"
#include "furniture/vxGridManager.h"
#include "furniture/vxLegend.h"
#include "furniture/vxTitle.h"
#include "graphics/vxBoundsUnion.h"
#include "settings/vxUserSettings.h"

namespace Velarix {

namespace {

// The smallest graph and plot a chart is drawn in.
constexpr float kMinGraphSize = 20.0f;
constexpr float kMinPlotSize = 10.0f;
constexpr short kPieChart = 13;
constexpr short kBarChart2DType = 10;
constexpr short kLastRoundChart = 16;
constexpr int kFittingRounds = 3;

bool isBarOrAreaDateTimeChart(short chartType) {
    return chartType == 9 || chartType == 10 || chartType == 11 || chartType == 18 ||
           chartType == 20;
}

}  // namespace

bool vxChart::hasAxes() const {
    return parameters && parameters->getChartType() != kPieChart &&
           parameters->getCoordinateSystem() == 1;
}

void vxChart::setUpBounds() {
    std::copy(frame, frame + 4, chartBounds);
    if (chartType) {
        chartType->setManagers(dataManager.get(), axisManager.get(), styleManager.get());
    }
    if (hasAxes()) {
        setUpAxisItems();
        if (!isError()) setUpAxisLimits();
        if (isError()) return;
    }
    if (fixedPlotArea) {
        setUpBoundsOfFixedPlot();
    } else {
        setUpBoundsInFrame();
    }
    if (isError()) return;
    doRecalcBounds = false;
}

void vxChart::setUpBoundsInFrame() {
    for (int i = 0; i < 4; ++i) {
        graphBounds[i] = chartBounds[i] + (i < 2 ? chartMargins[i] : -chartMargins[i]);
    }
    if (!setUpBoxes()) return;
    reserveBoxes(false);
    if (isGraphAreaTooSmall()) return;
    fitPlot(kFittingRounds);
    if (isError()) return;
    placeBoxes();
    isPlotAreaTooSmall();
}

// The frame given is the plot; graph and chart lie around it.
void vxChart::setUpBoundsOfFixedPlot() {
    std::copy(frame, frame + 4, plotBounds);
    for (int i = 0; i < 4; ++i) graphBounds[i] = plotBounds[i] + (i < 2 ? -1 : 1) * graphMargins[i];
    if (!setUpBoxes()) return;
    reserveBoxes(true);
    for (int i = 0; i < 4; ++i)
        chartBounds[i] = graphBounds[i] + (i < 2 ? -1 : 1) * chartMargins[i];
    if (isPlotAreaTooSmall() || isGraphAreaTooSmall()) return;
    // The plot stays; a second round scales the axes for the front of a
    // plot whose depth follows from the first.
    fitPlot(2);
    if (!isError()) placeBoxes();
}

bool vxChart::isGraphAreaTooSmall() {
    if (graphBounds[2] - graphBounds[0] >= kMinGraphSize &&
        graphBounds[3] - graphBounds[1] >= kMinGraphSize) {
        return false;
    }
    setError(vxErrChart::kFrameTooSmall, L"vxChart/isGraphAreaTooSmall/1");
    return true;
}

bool vxChart::isPlotAreaTooSmall() {
    if (plotBounds[2] - plotBounds[0] >= kMinPlotSize &&
        plotBounds[3] - plotBounds[1] >= kMinPlotSize) {
        return false;
    }
    setError(vxErrChart::kFrameTooSmall, L"vxChart/isPlotAreaTooSmall/1");
    return true;
}

// Labels that stick out of the plot move it inward; as the axes scale
// again for the smaller plot their labels change, and three rounds settle
// it. A fixed plot keeps its place: one round finds the graph around it.
void vxChart::fitPlot(int rounds) {
    const bool fixed = fixedPlotArea;
    if (!fixed) std::copy(graphBounds, graphBounds + 4, plotBounds);
    float g[4];
    std::copy(graphBounds, graphBounds + 4, g);
    for (int round = 0; round < rounds; ++round) {
        if (!fixed) {
            plotBounds[0] += std::round(std::fabs(g[0] - graphBounds[0]));
            plotBounds[1] += std::round(std::fabs(g[1] - graphBounds[1]));
            plotBounds[2] -= std::round(std::fabs(g[2] - graphBounds[2]));
            plotBounds[3] -= std::round(std::fabs(g[3] - graphBounds[3]));
        }
        squarePlot();
        if (!hasAxes()) return;
        if (plotBounds[2] - plotBounds[0] < 1.0f || plotBounds[3] - plotBounds[1] < 1.0f) return;
        float front[4];
        frontOfPlot(front);
        setUpAxisScalings(front);
        if (isError()) return;
        if (chartType) chartType->updateDepth();
        float outer[4];
        if (!fixed) std::copy(plotBounds, plotBounds + 4, graphBounds);
        bool hasBounds = true;
        if (axisManager->getOuterBounds(outer)) vxUniteBounds(graphBounds, outer, hasBounds);
    }
    squarePlot();
    if (hasAxes()) {
        float front[4];
        frontOfPlot(front);
        std::copy(front, front + 4, plotBounds);
    }
}

// The plot of a chart with depth is its front face: the backs of its
// bars stand in the room the depth leaves behind it.
void vxChart::frontOfPlot(float front[4]) const {
    std::copy(plotBounds, plotBounds + 4, front);
    if (!chartType || !chartType->getDepthInfo().isDepth()) return;
    const float dx = chartType->getDepthInfo().getXDepth();
    const float dy = chartType->getDepthInfo().getYDepth();
    front[0] += std::max(0.0f, dx);
    front[2] -= std::max(0.0f, -dx);
    front[1] += std::max(0.0f, -dy);
    front[3] -= std::max(0.0f, dy);
    // A depth larger than the plot leaves a sliver.
    if (front[2] - front[0] < 1.0f) front[2] = front[0] + 1.0f;
    if (front[3] - front[1] < 1.0f) front[3] = front[1] + 1.0f;
}

// Pies and the round charts stand in the largest centred square of the
// plot, unless they may be ovals. The side is the even one of the two
// whole numbers around the smaller extent; an odd whole number goes down,
// so that the square stays inside the plot.
void vxChart::squarePlot() {
    if (!needsSquarePlot()) return;
    const float width = plotBounds[2] - plotBounds[0];
    const float height = plotBounds[3] - plotBounds[1];
    const double extent = std::max(0.0f, std::min(width, height));
    const double below = std::floor(extent);
    const bool belowIsEven = std::fmod(below, 2.0) == 0.0;
    double side = below;
    if (!belowIsEven) side = below == extent ? below - 1.0 : below + 1.0;
    const double cx = 0.5 * (double(plotBounds[0]) + plotBounds[2]);
    const double cy = 0.5 * (double(plotBounds[1]) + plotBounds[3]);
    plotBounds[0] = float(std::round(cx - side / 2.0));
    plotBounds[1] = float(std::round(cy - side / 2.0));
    plotBounds[2] = plotBounds[0] + float(side);
    plotBounds[3] = plotBounds[1] + float(side);
}

bool vxChart::needsSquarePlot() const {
    if (!parameters || parameters->isOval()) return false;
    const short type = parameters->getChartType();
    return type >= kPieChart && type <= kLastRoundChart;
}

void vxChart::setUpAxisScalings(const float plot[4]) {
    std::vector<vxAxisManager::AxisSpan> spans;
    for (size_t k = 0; k < axisMinValues.size(); ++k) {
        vxAxisManager::AxisSpan span;
        span.min = axisMinValues[k];
        span.max = axisMaxValues[k];
        span.dataType = axisDataTypes[k];
        span.hasDate = axisHasDate[k] != 0;
        span.hasTime = axisHasTime[k] != 0;
        spans.push_back(std::move(span));
        if (long(k) == categoryAxis) {
            spans.back().categories = categoryPositions;
            if (parameters->getChartType() == kBarChart2DType) spans.back().categoryShift = -0.5;
        }
    }
    axisManager->setIsHorizontal(parameters->isHorizontal());
    vxUserSettings* settings = getOwnerSettings();
    axisManager->setUpCartesian(plot, spans, parameters->getChartType(),
                                isBarOrAreaDateTimeChart(parameters->getChartType()),
                                settings ? settings->getFormatSettings() : nullptr);
    if (axisManager->isError()) copyError(axisManager->getError());
}

}  // namespace Velarix
