// One chart of a view. It routes the calls of its subject groups to the
// chart type and the managers that own them; the chart type is made from
// the chart function (BarChart, LineChart, ...) and replaced by a later one.
#pragma once

#include <map>
#include <memory>
#include <vector>

#include "drawing/vxComponent.h"

namespace Velarix {

class vxAxisManager;
class vxBackgroundManager;
class vxBaseChart;
class vxCurveFittingManager;
class vxGridManager;
class vxStyleManager;
class vxBaseChartParameters;
class vxDataManager;
class vxLegend;
class vxTitle;

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
    // The results of the chart's curve fits, under the chart's index in its
    // view (as the layers have it).
    void setUpCurveFittingData(vxCurveFittingData* data) override;
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
    vxAxisManager* getAxisManager() const { return axisManager.get(); }
    // The chart class of the chart function; null for kinds drawn by their
    // axes only.
    vxBaseChart* getChartType() const { return chartType.get(); }
    vxStyleManager* getStyleManager() const { return styleManager.get(); }
    // Null until the script calls a function of their group.
    vxLegend* getLegend() const { return legend.get(); }
    vxTitle* getTitle() const { return title.get(); }
    vxBackgroundManager* getBackgroundManager() const { return backgroundManager.get(); }
    vxCurveFittingManager* getCurveFittingManager() const { return curveFittingManager.get(); }
    const float* getChartBounds() const { return chartBounds; }
    const float* getGraphBounds() const { return graphBounds; }
    const float* getPlotBounds() const { return plotBounds; }
    const float* getInnerBounds() const { return innerBounds; }
    // The span, data type and date and time flags of each axis.
    const std::vector<double>& getAxisMinValues() const { return axisMinValues; }
    const std::vector<double>& getAxisMaxValues() const { return axisMaxValues; }
    const std::vector<short>& getAxisDataTypes() const { return axisDataTypes; }

    void dump(short depth, std::ostream& out) const override;

private:
    void setChart(vxAssign& assign);
    void createChart(vxAssign& assign);
    void setUpChartType();
    void assignChartOptions(vxAssign& assign);
    void assignData(vxAssign& assign);
    void setUpSeries();
    void assignAxes(vxAssign& assign);
    void assignStyle(vxAssign& assign);
    void assignCurveFittings(vxAssign& assign);
    // The limits that extrapolated curves need (vxChartAxisLimits.cpp).
    void setUpCurveFittingLimits();
    // The grids (vxChartGrids.cpp): the manager is made at the first call
    // of its group; the layers of the grids behind the series, or over them.
    void assignGrids(vxAssign& assign);
    void setUpGridLayers(vxLayerManager* layerMng, bool front);
    void setUpAdditionLayers(vxLayerManager* layerMng);
    void setUpPlotLayers(vxLayerManager* layerMng);
    // The rectangles of the chart, from its frame inward (vxChartBounds.cpp).
    void setUpBounds();
    void setUpBoundsInFrame();
    void setUpBoundsOfFixedPlot();
    bool isGraphAreaTooSmall();
    bool isPlotAreaTooSmall();
    bool hasAxes() const;
    // The plot inside the graph, fitted against the axes' labels.
    void fitPlot(int rounds);
    void squarePlot();
    bool needsSquarePlot() const;
    void setUpAxisScalings(const float plot[4]);
    void frontOfPlot(float front[4]) const;
    // The span of each axis by chart type (vxChartAxisLimits.cpp).
    bool createAuxScalingVectors(long count);
    void setUpAxisItems();
    void setUpAxisLimits();
    void setUpDefaultLimits();
    void setUpDateTimeFlags();
    bool takesReferenceValue() const;
    void setUpCategoryPositions();
    // Calls of any chart subject but the added shapes.
    bool hasChartCalls() const;
    bool tooManyAdditions();
    // Title and legend (vxChartFurniture.cpp): made at their group's first
    // call, measured before the plot is fitted, placed after it.
    void assignLegend(vxAssign& assign);
    void assignTitle(vxAssign& assign);
    void assignChartBackground(vxAssign& assign);
    void setUpBackgrounds();
    void setUpBackgroundLayers(vxLayerManager* layerMng);
    bool setUpBoxes();
    void reserveBoxes(bool aroundFixedPlot);
    void placeBoxes();
    void setUpLegendLayer(vxLayerManager* layerMng);
    void setUpTitleLayer(vxLayerManager* layerMng);

    bool fixedPlotArea;
    long chartFunction = -1;
    std::map<short, long> callsByGroup;
    long maxNumOfAdditions = -1;
    std::vector<std::unique_ptr<vxGObjectOLD>> additions;
    std::unique_ptr<vxBaseChartParameters> parameters;
    std::unique_ptr<vxDataManager> dataManager;
    std::unique_ptr<vxAxisManager> axisManager;
    std::unique_ptr<vxBaseChart> chartType;
    std::unique_ptr<vxStyleManager> styleManager;
    std::unique_ptr<vxLegend> legend;
    std::unique_ptr<vxTitle> title;
    std::unique_ptr<vxBackgroundManager> backgroundManager;
    std::unique_ptr<vxGridManager> gridManager;
    std::unique_ptr<vxCurveFittingManager> curveFittingManager;
    long objectIndex = -1;

    float viewBounds[4] = {};
    float chartBounds[4] = {};
    float graphBounds[4] = {};
    float plotBounds[4] = {};
    float innerBounds[4] = {};
    float chartMargins[4] = {10.0f, 10.0f, 10.0f, 10.0f};
    float graphMargins[4] = {8.0f, 8.0f, 8.0f, 8.0f};
    float innerMargins[4] = {8.0f, 8.0f, 8.0f, 8.0f};
    // The gaps between the plot's room and the title's, and the legend's.
    float titleLegendGaps[2] = {8.0f, 8.0f};
    // The bands of a title and a legend outside the plot.
    float titleBand[4] = {};
    float legendBand[4] = {};
    bool hasTitleBand = false;
    bool hasLegendBand = false;
    bool doRecalcBounds = true;
    std::vector<double> axisMinValues;
    std::vector<double> axisMaxValues;
    std::vector<short> axisDataTypes;
    std::vector<short> axisHasDate;
    std::vector<short> axisHasTime;
    // The places of items that stand between the marks of the interval
    // axis, where its labels go; empty when they stand on the marks.
    std::vector<double> categoryPositions;
    long categoryAxis = -1;
};

}  // namespace Velarix
