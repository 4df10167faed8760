#include "drawing/vxChart.h"

#include "drawing/vxAdditionBuilder.h"
#include "drawing/vxLayer.h"
#include "drawing/vxLayerManager.h"
#include "host/vxLog.h"
#include "script/vxAssign.h"
#include "script/vxFunctionIds.h"

namespace Velarix {

vxChart::vxChart(vxUserSettings* owner, const float frame[4], bool hasFixedPlotArea)
    : vxComponent(L"vxChart", owner, frame), fixedPlotArea(hasFixedPlotArea) {}

vxChart::~vxChart() = default;

void vxChart::assign(vxAssign& a) {
    const short group = a.getFunctionGroup();
    ++callsByGroup[group];
    switch (group) {
        case kGroupCharts:
            return setChart(a);
        case kGroupChartOptions:
            return assignChartOptions(a);
        default:
            return;
    }
}

void vxChart::setChart(vxAssign& a) {
    chartFunction = a.getFunction();
}

void vxChart::assignChartOptions(vxAssign&) {
    if (chartFunction < 0) setError(vxErrLayout::kNoChartFunction, where(L"assignChartOptions"));
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

// The additions lie behind what the chart draws of its own.
void vxChart::setUpLayers(vxLayerManager* layerMng) {
    if (!layerMng || additions.empty()) return;
    std::unique_ptr<vxLayer> layer;
    if (!create(layer, L"setUpAdditionLayers", kTypeChart, 0, layerMng->getCurrentClipRect())) {
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
}

}  // namespace Velarix
