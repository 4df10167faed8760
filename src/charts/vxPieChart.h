// Pies and doughnuts, flat or with depth: one series drawn as slices, the
// angle of each in whole degrees by its share of the total.
//
// The chart function gives, after the flags: the depths of the slices in
// percent of half the pie's width (a list that repeats; none for a flat
// pie), the hole in percent of the radius (a doughnut above 0), the start
// angle and the arc in degrees (360 a whole pie; a negative arc runs
// clockwise), and the shape (0). The script's start angle is counted
// clockwise from three o'clock.
//
// Slices are the positive values of the first series; a value within the
// tolerance of the total makes none. Slice i keeps the item it shows, so
// that its look is the look of that item: the item's own style of series
// 1 (FillStyle(1; i; ...)), else the style of series i + 1 (its default
// colour, or what the script gave that series), which the legend shows for
// entry i.
#pragma once

#include <memory>
#include <vector>

#include "charts/vxBaseChart.h"
#include "charts/vxPieChartLabels.h"

namespace Velarix {

class vxLabel;
class vxLayer;
class vxPieChartAddOnChart;
class vxPieChartExplodeManager;
class vxPieChartItem;

class vxPieChart : public vxBaseChart {
public:
    vxPieChart();
    ~vxPieChart() override;

    void assign(vxAssign& assign) override;
    // Every PieChart... call after the chart function.
    void setOptions(vxAssign& assign) override;
    void setDefaults() override;
    void setUp() override;
    void setUpLayers(vxLayerManager* layerMng) override;
    SeriesLook getSeriesLook(long entry) const override;
    long getNumOfLegendEntries() const override { return getNumOfItems(0); }
    // The look of the slices of item `item`.
    Look getWedgeLook(long item) const;

    // ---- the steps of setUp ----------------------------------------------
    void setUpSliceArrays();
    void setUpAngles();
    void setDrawingOrder();
    void setUpPieGeometry();
    void setUpPieLimits();
    void setUpItems();

    long getNumOfSlices() const { return long(values.size()); }
    const std::vector<double>& getValues() const { return values; }
    const std::vector<long>& getIndices() const { return indices; }
    const std::vector<long>& getDrawingIndices() const { return drawingIndices; }
    const std::vector<float>& getAngles() const { return angles; }
    const std::vector<float>& getStartAngles() const { return startAngles; }
    const std::vector<float>& getMidAngles() const { return midAngles; }
    double getTotal() const { return total; }
    const vxPieChartItem* getItem(long slice) const;
    const float* getPieFrame() const { return pieFrame; }
    const float* getPieCenter() const { return pieCenter; }
    float getPieWidth() const { return pieWidth; }
    float getPieHeight() const { return pieHeight; }
    float getInnerRadiusPercent() const { return innerRadiusPercent; }
    bool isDepth3D() const { return !pieDepthPercents.empty(); }
    bool isClockwise() const;
    // The labels of the slices, in slice order (null where a slice shows
    // none), placed by setUp: outer and inner.
    const std::vector<vxLabel*>& getOuterLabels() const { return outerLabels; }
    const std::vector<vxLabel*>& getInnerLabels() const { return innerLabels; }

    void dump(short depth, std::ostream& out) const override;

private:
    bool createExplodes();
    bool createLabels();
    bool createAddOnChart();
    float maxExplodePercent() const;
    // ---- geometry (vxPieChartGeometry.cpp) ----
    void squareFrame(float frame[4]) const;
    void centreFrame(float frame[4], float width, float height) const;
    void reserveLabelRoom(float frame[4]);
    void setUpDepths();
    void fitDepth(float frame[4]);
    void getSliceFrame(long slice, float& cx, float& cy, float& depth) const;
    std::unique_ptr<vxPieChartItem> makeItem() const;
    // ---- layers (vxPieChartLayers.cpp) ----
    void addSliceShadows(vxLayerManager& layerMng);
    void addSlices(vxLayerManager& layerMng);
    void addLabels(vxLayerManager& layerMng);
    void addAddOnChart(vxLayerManager& layerMng);
    // ---- labels (vxPieChartLabelTexts.cpp) ----
    void makeLabels();
    void makeOuterLabels();
    void makeInnerLabels();
    std::unique_ptr<vxLabel> makeLabel(const vxLabel& look, const std::wstring& text);
    void placeLabels();
    void handOver(vxLayerManager& layerMng, std::unique_ptr<vxLayer> layer);
    vxPieChartLabels::Pie getLabelPie() const;
    std::vector<vxPieChartLabels::Slice> getLabelSlices() const;

    std::vector<std::unique_ptr<vxPieChartItem>> items;
    std::unique_ptr<vxPieChartExplodeManager> explodes;
    std::unique_ptr<vxPieChartLabels> labels;
    std::unique_ptr<vxPieChartAddOnChart> addOnChart;
    std::vector<long> indices;
    std::vector<long> drawingIndices;
    std::vector<double> values;
    std::vector<float> angles, startAngles, midAngles;
    std::vector<float> pieDepthPercents;
    std::vector<float> pieDepthsDC;
    short outlineFlag = 0;
    short pieShape = 0;
    float innerRadiusPercent = 0.0f;
    float startAngle = 0.0f;
    float arcAngle = 360.0f;
    float pieFrame[4] = {};
    float pieInnerFrame[4] = {};
    float pieLimits[4] = {};
    float pieCenter[2] = {};
    float pieWidth = 0.0f;
    float pieHeight = 0.0f;
    float maxPieDepth = 0.0f;
    double total = 0.0;
    double threshold = 0.0;
    std::vector<std::unique_ptr<vxLabel>> outerOwned, innerOwned;
    std::unique_ptr<vxLabel> centerLabel;
    std::vector<vxLabel*> outerLabels, innerLabels;
};

}  // namespace Velarix
