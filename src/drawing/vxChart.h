// One chart of a view. It routes the calls of its subject groups to the
// chart type and the managers that own them; the chart type is made from
// the chart function (BarChart, LineChart, ...) and replaced by a later one.
#pragma once

#include <map>
#include <memory>
#include <vector>

#include "drawing/vxComponent.h"

namespace Velarix {

class vxChart : public vxComponent {
public:
    vxChart(vxUserSettings* owner, const float frame[4], bool hasFixedPlotArea);
    ~vxChart() override;

    short getType() const override { return kTypeChart; }
    void assign(vxAssign& assign) override;
    // An Add... call inside the chart; positions are relative to the point
    // (originX, originY) of the view.
    void assignAddition(vxAssign& assign, float originX, float originY);
    void setUpLayers(vxLayerManager* layerMng) override;
    long getNumOfAdditions() const { return static_cast<long>(additions.size()); }
    // -1: no limit.
    void setMaxNumOfAdditions(long value) { maxNumOfAdditions = value; }

    bool hasFixedPlotArea() const { return fixedPlotArea; }
    // The chart function that made the chart type; -1 for none yet.
    long getChartFunction() const { return chartFunction; }
    // How many calls of a group the chart has taken.
    long getNumOfCalls(short group) const;

    void dump(short depth, std::ostream& out) const override;

private:
    void setChart(vxAssign& assign);
    void assignChartOptions(vxAssign& assign);
    bool tooManyAdditions();

    bool fixedPlotArea;
    long chartFunction = -1;
    std::map<short, long> callsByGroup;
    long maxNumOfAdditions = -1;
    std::vector<std::unique_ptr<vxGObjectOLD>> additions;
};

}  // namespace Velarix
