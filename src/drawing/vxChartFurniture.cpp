// The title and the legend of a chart: their calls, their measuring, the
// room they take from the plot, their places and their layers.
#include <algorithm>

#include "charts/vxBaseChart.h"
#include "drawing/vxChart.h"
#include "furniture/vxBackgroundManager.h"
#include "furniture/vxChartBoxPlacement.h"
#include "furniture/vxGridManager.h"
#include "furniture/vxLegend.h"
#include "furniture/vxTitle.h"

namespace Velarix {

namespace {

using Placement = vxChartBoxPlacement;

// A legend beside the plot takes at most this share of the graph, so that
// the plot keeps room however many entries there are; a larger legend
// reaches out of the chart.
constexpr float kLegendMaxShare = 2.0f / 3.0f;

// The side `side` of `from` given to `to` when it lies further in (or,
// around a fixed plot, further out) than `to`'s.
void takeSharedSide(Placement::Side side, const float from[4], float to[4], bool outward) {
    const bool lowSide = side == Placement::kLeft || side == Placement::kTop;
    const bool takeMax = lowSide != outward;
    to[side] = takeMax ? std::max(to[side], from[side]) : std::min(to[side], from[side]);
}

}  // namespace

void vxChart::assignLegend(vxAssign& a) {
    if (!legend && !create(legend, L"createLegend", getOwnerSettings())) return;
    legend->assign(a);
    if (legend->isError()) copyError(legend->getError());
    doRecalcBounds = true;
}

void vxChart::assignTitle(vxAssign& a) {
    if (!title && !create(title, L"createTitle", getOwnerSettings())) return;
    title->assign(a);
    if (title->isError()) copyError(title->getError());
    doRecalcBounds = true;
}

// The title is wrapped to the width of the graph, and no text of it
// takes more than a quarter of the graph's height; the legend makes its
// entries for the chart's series.
bool vxChart::setUpBoxes() {
    if (title) {
        title->setUp(graphBounds[2] - graphBounds[0], graphBounds[3] - graphBounds[1]);
        if (title->isError()) copyError(title->getError());
    }
    if (!isError() && legend) {
        legend->setUp(*this);
        if (legend->isError()) copyError(legend->getError());
    }
    return !isError();
}

// Title and legend outside the plot each take a band off the graph (or add
// one around a fixed plot). When both lie on one side they stand in one
// band's room side by side, and the larger takes it.
void vxChart::reserveBoxes(bool aroundFixedPlot) {
    auto reserve = [aroundFixedPlot](const vxChartBox& box, float g[4], float gap, float band[4],
                                     float maxShare) {
        return aroundFixedPlot ? Placement::reserveOutside(box, g, gap, band)
                               : Placement::reserveInside(box, g, gap, band, maxShare);
    };
    const float* gaps = titleLegendGaps;
    float before[4];
    std::copy(graphBounds, graphBounds + 4, before);
    hasTitleBand =
        title && !title->isBoxInside() && reserve(*title, graphBounds, gaps[0], titleBand, 1.0f);
    hasLegendBand = false;
    if (!legend || legend->isBoxInside()) return;
    const Placement::Side side = Placement::sideOf(legend->getBoxLocation());
    if (hasTitleBand && side == Placement::sideOf(title->getBoxLocation())) {
        hasLegendBand = reserve(*legend, before, gaps[1], legendBand, kLegendMaxShare);
        if (hasLegendBand) takeSharedSide(side, before, graphBounds, aroundFixedPlot);
        return;
    }
    hasLegendBand = reserve(*legend, graphBounds, gaps[1], legendBand, kLegendMaxShare);
}

// Boxes in bands run along the plot; boxes inside stand in the inner area.
void vxChart::placeBoxes() {
    float limits[4];
    for (int i = 0; i < 4; ++i) {
        limits[i] = chartBounds[i] + (i < 2 ? chartMargins[i] : -chartMargins[i]);
    }
    for (int i = 0; i < 4; ++i) {
        innerBounds[i] = plotBounds[i] + (i < 2 ? innerMargins[i] : -innerMargins[i]);
    }
    const std::pair<vxChartBox*, const float*> boxes[] = {
        {title.get(), hasTitleBand ? titleBand : nullptr},
        {legend.get(), hasLegendBand ? legendBand : nullptr}};
    for (const auto& [box, band] : boxes) {
        if (!box) continue;
        if (box->isBoxInside()) {
            Placement::placeInArea(*box, innerBounds);
        } else if (band) {
            Placement::placeInBand(*box, band, plotBounds, limits);
        } else {
            Placement::placeInArea(*box, plotBounds);
        }
    }
}

void vxChart::assignChartBackground(vxAssign& a) {
    if (!backgroundManager &&
        !create(backgroundManager, L"createBackgroundManager", getOwnerSettings())) {
        return;
    }
    backgroundManager->assign(a);
    if (backgroundManager->isError()) copyError(backgroundManager->getError());
}

// The planes stand on the plot, and with depth on the box behind it.
void vxChart::setUpBackgrounds() {
    if (!backgroundManager) return;
    backgroundManager->setUp(plotBounds, chartType ? &chartType->getDepthInfo() : nullptr);
    if (backgroundManager->isError()) copyError(backgroundManager->getError());
}

void vxChart::setUpBackgroundLayers(vxLayerManager* layerMng) {
    if (!backgroundManager) return;
    backgroundManager->setUpLayers(layerMng);
    if (backgroundManager->isError()) copyError(backgroundManager->getError());
}

void vxChart::setUpLegendLayer(vxLayerManager* layerMng) {
    if (!legend) return;
    legend->setUpLayer(layerMng);
    if (legend->isError()) copyError(legend->getError());
}

void vxChart::setUpTitleLayer(vxLayerManager* layerMng) {
    if (!title) return;
    title->setUpLayer(layerMng);
    if (title->isError()) copyError(title->getError());
}

}  // namespace Velarix
