// The common ground of the charts that join or mark the points of their
// series: lines and areas, one- and two-dimensional.
//
// A one-dimensional chart lays its points out once, in three vectors of
// device positions: `intervalValuesDC`, one per category, and
// `positiveValuesDC` and `negativeValuesDC`, (nS + 1) rows of nC, whose row
// 0 is the base line and row s + 1 series s. Stacks grow out of the base in
// both directions: a series adds to the side on which its stacked value
// lies. A two-dimensional chart takes each point from its (x, y) pair.
//
// Drawing works series by series on a scratch pair `xDC`, `yDC`, filled by
// `setUpSeriesPolygon`, with a flag per point: runs of valid points make
// the pieces of a line, a gap breaks it.
#pragma once

#include <memory>
#include <vector>

#include "charts/vxBaseChart.h"

namespace Velarix {

class vxGObjectOLD;
class vxLabel;
class vxLabelStyle;
class vxLayer;
class vxLineStyle;
class vxPath2DOLD;
class vxShadowOLD;

class vxPointChart : public vxBaseChart {
public:
    explicit vxPointChart(const wchar_t* className);
    ~vxPointChart() override;

    // The chart function's arguments after the flags: 1D charts take
    // whether their points stand in the middle of the intervals.
    void assign(vxAssign& assign) override;
    void setDefaults() override;
    // The longest series' number of items.
    long getNumOfCategories() const { return numOfCategories; }
    bool doShiftValues() const { return doShiftIntervalValues; }

    // The points of a series into `xDC`, `yDC` and their flags; false for
    // a series without points.
    virtual bool setUpSeriesPolygon(long series);
    bool setUpPairPolygon(long series);
    const std::vector<float>& getXDC() const { return xDC; }
    const std::vector<float>& getYDC() const { return yDC; }
    const std::vector<unsigned char>& getValidDC() const { return validDC; }
    // The stacked or plain value of item c, as the chart shows it.
    double getShownValue(long series, long item) const;

    void dump(short depth, std::ostream& out) const override;

protected:
    bool isOneDimensional() const { return getParameters().getNumOfDimensions() == 1; }
    // ---- layout of 1D values (vxPointChart.cpp) ----
    bool createPolygonVectors();
    bool createSinglePolygonVectors(long count);
    bool startLayout();
    void setUpNonStackedValues();
    void setUpStackedValues();
    size_t rowIndex(long row, long item) const {
        return static_cast<size_t>(row * numOfCategories + item);
    }
    // The row of series s that holds its top edge: positive or negative.
    const std::vector<float>& topRowOf(long series, long item) const;
    bool isPointValid(long series, long item) const;
    // ---- lines, symbols, shadows (vxPointChartLines.cpp) ----
    float widestHalfStroke() const;
    void setUpSeriesShadowClip();
    const vxShadowOLD* getShadowOf(long series) const;
    const vxLineStyle* getDrawnLineStyle(long series) const;
    // The pieces of the series' line over `count` points of the scratch
    // pair from `first`, in the series' line shape.
    void addSmoothedLine(vxPath2DOLD& path, long series, long first, long count) const;
    // The whole line of the series in runs of valid points; null for none.
    std::unique_ptr<vxPath2DOLD> makeSeriesLine(long series) const;
    void addLines(vxLayerManager& layerMng, long series);
    void addLineShadows(vxLayerManager& layerMng, long series);
    void addSymbols(vxLayerManager& layerMng, long series);
    void addSymbolShadows(vxLayerManager& layerMng, long series);
    void addSymbolLayer(vxLayerManager& layerMng, long series, const vxShadowOLD* shadow);
    bool isDrawableSymbol(long series, long item) const;
    // Hands a layer to the manager unless it stayed empty (but for its clip).
    void handOver(vxLayerManager& layerMng, std::unique_ptr<vxLayer> layer);
    // ---- labels (vxPointChartLabels.cpp) ----
    // With symbols shown, a label's anchor moves off the series' symbol by
    // half its size toward the label's keypad place.
    void shiftLabelAroundSymbol(long series, short location, float point[2]) const;
    // One layer a series, or for 1D stacks one layer of them all.
    void addLabels(vxLayerManager& layerMng);
    void addNonStackedLabels(vxLayerManager& layerMng);
    void addStackedLabels(vxLayerManager& layerMng);
    std::unique_ptr<vxLabel> makePointLabel(long series, long item, bool stacked);

    bool doShiftIntervalValues = false;
    long numOfCategories = 0;
    std::vector<float> xDC, yDC;
    std::vector<unsigned char> validDC;
    std::vector<float> intervalValuesDC;
    std::vector<float> positiveValuesDC;
    std::vector<float> negativeValuesDC;
};

}  // namespace Velarix
