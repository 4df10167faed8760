// One chart of a view. It routes the calls of its subject groups to the
// chart type and the managers that own them; the chart type is made from
// the chart function (BarChart, LineChart, ...) and replaced by a later one.
#pragma once

#include <map>
#include <memory>
#include <vector>

#include "drawing/vxComponent.h"

namespace Velarix {

class vxBaseChartParameters;
class vxDataManager;

class vxChart : public vxComponent {
public:
    vxChart(vxUserSettings* owner, const float frame[4], bool hasFixedPlotArea);
    ~vxChart() override;

    short getType() const override { return kTypeChart; }
    void assign(vxAssign& assign) override;
    // An Add... call inside the chart; positions are relative to the point
    // (originX, originY) of the view.
    void assignAddition(vxAssign& assign, float originX, float originY);
    // Prepares the chart's series: every value of the data is read here.
    void setUp(const float bounds[4]) override;
    void setUpLayers(vxLayerManager* layerMng) override;
    long getNumOfAdditions() const { return static_cast<long>(additions.size()); }
    // -1: no limit.
    void setMaxNumOfAdditions(long value) { maxNumOfAdditions = value; }

    bool hasFixedPlotArea() const { return fixedPlotArea; }
    // The chart function that made the chart type; -1 for none yet.
    long getChartFunction() const { return chartFunction; }
    // How many calls of a group the chart has taken.
    long getNumOfCalls(short group) const;
    // Null until the chart has a chart type, or data.
    const vxBaseChartParameters* getParameters() const { return parameters.get(); }
    vxDataManager* getDataManager() const { return dataManager.get(); }

    void dump(short depth, std::ostream& out) const override;

private:
    void setChart(vxAssign& assign);
    void assignChartOptions(vxAssign& assign);
    void assignData(vxAssign& assign);
    void setUpSeries();
    // Calls of any chart subject but the added shapes.
    bool hasChartCalls() const;
    bool tooManyAdditions();

    bool fixedPlotArea;
    long chartFunction = -1;
    std::map<short, long> callsByGroup;
    long maxNumOfAdditions = -1;
    std::vector<std::unique_ptr<vxGObjectOLD>> additions;
    std::unique_ptr<vxBaseChartParameters> parameters;
    std::unique_ptr<vxDataManager> dataManager;
};

}  // namespace Velarix
