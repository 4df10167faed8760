// One chart of a view. It routes the calls of its subject groups to the
// chart type and the managers that own them; the chart type is made from
// the chart function (BarChart, LineChart, ...) and replaced by a later one.
#pragma once

#include <map>
#include <vector>

#include "drawing/vxComponent.h"

namespace Velarix {

class vxChart : public vxComponent {
public:
    vxChart(vxUserSettings* owner, const float frame[4], bool hasFixedPlotArea);
    ~vxChart() override;

    short getType() const override { return kTypeChart; }
    void assign(vxAssign& assign) override;

    bool hasFixedPlotArea() const { return fixedPlotArea; }
    // The chart function that made the chart type; -1 for none yet.
    long getChartFunction() const { return chartFunction; }
    // How many calls of a group the chart has taken.
    long getNumOfCalls(short group) const;

    void dump(short depth, std::ostream& out) const override;

private:
    void setChart(vxAssign& assign);
    void assignChartOptions(vxAssign& assign);

    bool fixedPlotArea;
    long chartFunction = -1;
    std::map<short, long> callsByGroup;
};

}  // namespace Velarix
