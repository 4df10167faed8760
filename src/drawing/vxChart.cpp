#include "drawing/vxChart.h"

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
