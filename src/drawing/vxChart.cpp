#include "drawing/vxChart.h"

#include "axes/vxAxisManager.h"
#include "charts/vxBaseChart.h"
#include "charts/vxBaseChartParameters.h"
#include "charts/vxChartClasses.h"
#include "charts/vxChartLayerTypes.h"
#include "charts/vxChartTypeTable.h"
#include "data/vxDataManager.h"
#include "drawing/vxAdditionBuilder.h"
#include "drawing/vxLayer.h"
#include "drawing/vxLayerManager.h"
#include "furniture/vxBackgroundManager.h"
#include "furniture/vxGridManager.h"
#include "furniture/vxLegend.h"
#include "furniture/vxTitle.h"
#include "host/vxLog.h"
#include "overlays/vxCurveFittingManager.h"
#include "script/vxAssign.h"
#include "script/vxFunctionIds.h"
#include "settings/vxUserSettings.h"
#include "styles/vxStyleManager.h"

namespace Velarix {

// A chart always has its style manager.
vxChart::vxChart(vxUserSettings* owner, const float frame[4], bool hasFixedPlotArea)
    : vxComponent(L"vxChart", owner, frame), fixedPlotArea(hasFixedPlotArea) {
    if (!create(styleManager, L"createStyleManager", owner)) return;
    if (styleManager->isError()) copyError(styleManager->getError());
}

vxChart::~vxChart() = default;

void vxChart::assign(vxAssign& a) {
    const short group = a.getFunctionGroup();
    ++callsByGroup[group];
    switch (group) {
        case kGroupCharts:
            return setChart(a);
        case kGroupChartOptions:
            return assignChartOptions(a);
        case kGroupData:
            return assignData(a);
        case kGroupAxes:
            return assignAxes(a);
        case kGroupStyles:
            return assignStyle(a);
        case kGroupLegend:
            return assignLegend(a);
        case kGroupTitle:
            return assignTitle(a);
        case kGroupChartBackground:
            return assignChartBackground(a);
        case kGroupGrids:
            return assignGrids(a);
        case kGroupCurveFittings:
            return assignCurveFittings(a);
        default:
            return;
    }
}

void vxChart::setChart(vxAssign& a) {
    chartFunction = a.getFunction();
    if (!create(parameters, L"setChart")) return;
    vxSetUpChartParameters(chartFunction, a, *parameters);
    createChart(a);
}

// The chart class of the chart function, given the parameters and the
// function's own arguments; the chart kinds without a class yet draw their
// axes only.
void vxChart::createChart(vxAssign& a) {
    chartType.reset();
    std::unique_ptr<vxBaseChart> chart;
    try {
        chart = vxNewChartClass(chartFunction);
    } catch (const std::bad_alloc&) {
        return setError(vxErrRuntime::kOutOfMemory, where(L"createChart"));
    }
    if (!chart) return;
    chart->getParameters().copyFrom(parameters.get());
    a.addToArgumentOffset(1);
    chart->assign(a);
    a.addToArgumentOffset(-1);
    chartType = std::move(chart);
}

void vxChart::assignChartOptions(vxAssign& a) {
    if (chartFunction < 0) {
        return setError(vxErrLayout::kNoChartFunction, where(L"assignChartOptions"));
    }
    if (!chartType) return;
    // Options may set the reference value, which the axes' spans read.
    chartType->setOptions(a);
    parameters->copyFrom(&chartType->getParameters());
}

void vxChart::assignData(vxAssign& a) {
    if (!dataManager && !create(dataManager, L"createDataManager", getOwnerSettings())) return;
    dataManager->assign(a);
    if (dataManager->isError()) copyError(dataManager->getError());
}

// A style error names the call.
void vxChart::assignStyle(vxAssign& a) {
    if (!styleManager) return;
    styleManager->assign(a);
    if (!styleManager->isError()) return;
    copyError(styleManager->getError());
    const vxAssign::CallPlace& place = a.getCallPlace();
    if (error && place.line > 0) error->setCallPlace(place.line, place.fnName, place.scriptPart);
}

void vxChart::assignCurveFittings(vxAssign& a) {
    if (!curveFittingManager &&
        !create(curveFittingManager, L"createCurveFittingManager", getOwnerSettings())) {
        return;
    }
    curveFittingManager->assign(a);
    if (curveFittingManager->isError()) copyError(curveFittingManager->getError());
}

void vxChart::setUpCurveFittingData(vxCurveFittingData* data) {
    if (!data || !curveFittingManager || isError()) return;
    curveFittingManager->addResults(*data, objectIndex);
    if (curveFittingManager->isError()) copyError(curveFittingManager->getError());
}

void vxChart::assignAxes(vxAssign& a) {
    if (!axisManager && !create(axisManager, L"createAxisManager", getOwnerSettings())) return;
    axisManager->assign(a);
    if (axisManager->isError()) copyError(axisManager->getError());
}

void vxChart::setUp(const float bounds[4]) {
    std::copy(bounds, bounds + 4, viewBounds);
    if (!parameters) {
        if (hasChartCalls()) setError(vxErrLayout::kNoChartFunction, where(L"setUp"));
        return;
    }
    setUpSeries();
    if (!isError() && doRecalcBounds) setUpBounds();
    if (!isError()) setUpChartType();
    if (!isError()) setUpBackgrounds();
}

// The chart class gets the managers and the rectangles, then sets up its
// shapes.
void vxChart::setUpChartType() {
    if (!chartType) return;
    chartType->setManagers(dataManager.get(), axisManager.get(), styleManager.get());
    chartType->setCurveFittingManager(curveFittingManager.get());
    vxUserSettings* settings = getOwnerSettings();
    chartType->setFormatSettings(settings ? settings->getFormatSettings() : nullptr);
    chartType->setPlotBounds(plotBounds);
    chartType->setChartAreaBounds(chartBounds);
    chartType->setLimitBounds(viewBounds);
    chartType->setUp();
    if (chartType->isError()) copyError(chartType->getError());
}

// 1. The data manager reads the series for the chart type.
// 2. Stacks, then the positions of the items.
// 3. ChartDataWrite writes what was read.
void vxChart::setUpSeries() {
    if (!dataManager && !create(dataManager, L"createDataManager", getOwnerSettings())) return;
    dataManager->setUp(*parameters);
    dataManager->setUpChartSeries(*parameters);
    if (!dataManager->isError()) dataManager->setUpStackedValues(*parameters);
    if (!dataManager->isError()) dataManager->insertIntervalValues(*parameters);
    if (!dataManager->isError()) dataManager->writeData();
    if (dataManager->isError()) copyError(dataManager->getError());
}

bool vxChart::hasChartCalls() const {
    for (const auto& [group, count] : callsByGroup) {
        if (group != kGroupPrimitives && count > 0) return true;
    }
    return false;
}

bool vxChart::tooManyAdditions() {
    if (maxNumOfAdditions == -1 || getNumOfAdditions() < maxNumOfAdditions) return false;
    setError(vxErrLimits::kTooManyAdditions, L"vxChart/tooManyAdditions/1");
    return true;
}

void vxChart::assignAddition(vxAssign& a, float originX, float originY) {
    if (tooManyAdditions()) return;
    vxAdditionBuilder builder(getOwnerSettings(), originX, originY);
    std::unique_ptr<vxGObjectOLD> object = builder.build(a);
    if (!object) return copyError(builder.getError());
    try {
        additions.push_back(std::move(object));
    } catch (const std::bad_alloc&) {
        setError(vxErrRuntime::kOutOfMemory, where(L"assignAddition"));
    }
}

// From the back to the front: the additions, the backgrounds and the grids
// behind the series, the axes, the series (with the axes drawn "front"
// over them), the legend, the additions again, the title and the additions
// a third time. So additions show behind the chart and over its legend and
// title alike: drawn three times, a half-transparent one darkens.
void vxChart::setUpLayers(vxLayerManager* layerMng) {
    if (!layerMng) return;
    objectIndex = layerMng->getCurrentObjectIndex();
    setUpAdditionLayers(layerMng);
    if (!isError()) setUpBackgroundLayers(layerMng);
    if (!isError()) setUpPlotLayers(layerMng);
    if (!isError()) setUpLegendLayer(layerMng);
    if (!isError()) setUpAdditionLayers(layerMng);
    if (!isError()) setUpTitleLayer(layerMng);
    if (!isError()) setUpAdditionLayers(layerMng);
}

// The backgrounds of the plot and the grids come first, when they exist;
// then the axes and the series, the grids in front, the axes in front.
void vxChart::setUpPlotLayers(vxLayerManager* layerMng) {
    // A chart without axes is drawn by its chart class alone.
    if (chartType && !hasAxes()) {
        chartType->setUpLayers(layerMng);
        if (chartType->isError()) copyError(chartType->getError());
        return;
    }
    if (!axisManager || !hasAxes()) return;
    const float* clip = layerMng->getCurrentClipRect();
    setUpGridLayers(layerMng, false);
    if (isError()) return;
    axisManager->setUpLayers(layerMng, clip, false);
    if (axisManager->isError()) return copyError(axisManager->getError());
    if (chartType) {
        chartType->setUpLayers(layerMng);
        if (chartType->isError()) return copyError(chartType->getError());
    }
    setUpGridLayers(layerMng, true);
    if (isError()) return;
    axisManager->setUpLayers(layerMng, clip, true);
    if (axisManager->isError()) copyError(axisManager->getError());
}

void vxChart::setUpAdditionLayers(vxLayerManager* layerMng) {
    if (additions.empty()) return;
    std::unique_ptr<vxLayer> layer;
    const long subtype = parameters ? parameters->getChartType() : 0;
    if (!create(layer, L"setUpAdditionLayers", long(kAdditionLayer), subtype,
                layerMng->getCurrentClipRect())) {
        return;
    }
    layer->addClipShape(getOwnerSettings());
    for (auto& addition : additions) layer->addAddition(addition.get());
    if (layer->isError()) return copyError(layer->getError());
    layerMng->addLayer(std::move(layer));
    if (layerMng->isError()) copyError(layerMng->getError());
}

long vxChart::getNumOfCalls(short group) const {
    auto it = callsByGroup.find(group);
    return it == callsByGroup.end() ? 0 : it->second;
}

void vxChart::dump(short depth, std::ostream& out) const {
    if (depth <= 0) return;
    vxDumpHeader(out, "vxChart");
    vxDumpLine(out, "float left,top:      ", frame[0], frame[1]);
    vxDumpLine(out, "float right,bottom:  ", frame[2], frame[3]);
    vxDumpLine(out, "bool hasFixedPlotArea: ", fixedPlotArea);
    vxDumpLine(out, "long chartFunction:  ", chartFunction);
    vxDumpEnd(out);
    if (parameters) parameters->dump(static_cast<short>(depth - 1), out);
    if (dataManager) dataManager->dump(static_cast<short>(depth - 1), out);
    if (backgroundManager) backgroundManager->dump(static_cast<short>(depth - 1), out);
    if (gridManager) gridManager->dump(static_cast<short>(depth - 1), out);
    if (curveFittingManager) curveFittingManager->dump(static_cast<short>(depth - 1), out);
    if (legend) legend->dump(static_cast<short>(depth - 1), out);
    if (title) title->dump(static_cast<short>(depth - 1), out);
}

}  // namespace Velarix
