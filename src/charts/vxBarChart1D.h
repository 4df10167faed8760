// Bars, one per series and category, side by side or stacked, upright or
// horizontal. The dimension step works out the width of a bar and of the
// gaps from the interval axis; the geometry step fills four edge vectors and
// a direction for every bar (index series * numOfCategories + item); the
// layer step draws them so that later bars lie over earlier ones.
//
// The chart function gives, after the flags: the category gap and the
// series gap in percent of a bar's width (100 and 0, or -100 when stacked),
// the depth, and whether the depth is relative: then the first number is a
// percentage of the bar width along the diagonal; otherwise the numbers
// are the x and y depth and the tilt.
#pragma once

#include <memory>
#include <vector>

#include "charts/vxBaseChart.h"

namespace Velarix {

class vxGObjectOLD;
class vxLabel;
class vxLabelStyle;
class vxLayer;
class vxPaintOLD;
class vxPath2DOLD;
class vxShadowOLD;

class vxBarChart1D : public vxBaseChart {
public:
    // Which way a bar grows from its base to its value.
    enum Direction : short { kUp = 1, kDown = 2, kToLeft = 3, kToRight = 4 };

    vxBarChart1D();
    explicit vxBarChart1D(const wchar_t* className);

    // The chart function's arguments after the flags.
    void assign(vxAssign& assign) override;
    // BarChartOptions: connecting lines, reference value, split colours,
    // whole-number bar widths.
    void setOptions(vxAssign& assign) override;
    void setDefaults() override;
    void setUp() override;
    void setUpLayers(vxLayerManager* layerMng) override;
    void updateDepth() override;

    // Bar width and gaps in device units; error 5010 when no width is left.
    void setUpBarDimensions();
    // Bar width and gaps for a span of the interval axis that holds
    // `categories`; error 5010 at the given place when no width is left.
    void setUpBarWidth(double categories, int errorPlace = 1);
    void setUpNonStackedBars();
    void setUpStackedBars();
    // A bar that exists and whose value is not 0.
    virtual bool isDrawable(long series, long item) const;
    // With split colours a series shows the look of its bars at or above
    // the reference.
    SeriesLook getSeriesLook(long series) const override;
    // The middle of the series' bars along the interval axis, less the
    // items' points, taken at the first bar drawn.
    float getItemOffsetDC(long series) const override;

    long getNumOfCategories() const { return numOfCategories; }
    float getBarWidthDC() const { return barWidthDC; }
    float getCategoryGapDC() const { return categoryGapDC; }
    float getSeriesGapDC() const { return seriesGapDC; }
    float getCategoryGapPercent() const { return categoryGapPercent; }
    float getSeriesGapPercent() const { return seriesGapPercent; }
    bool doShowConnectingLines() const { return showConnectingLines; }
    bool doSplitColors() const { return splitColors; }
    // The bar's rectangle (left, top, right, bottom); false for none.
    bool getBarRect(long series, long item, float rect[4]) const;
    short getBarDirection(long series, long item) const;

    void dump(short depth, std::ostream& out) const override;

protected:
    // The distance of bar (s, c) from the position of 0 on the interval
    // axis.
    float offsetOf(long series, long item) const;
    // How many categories the interval axis's span holds, for the width.
    virtual double categoriesInSpan() const { return double(numOfCategories); }
    // Where bar (s, c) begins along the interval axis, given the position
    // of 0 there and the way offsets run.
    virtual float barStart(long series, long item, float zero, float sign) const {
        return zero + sign * offsetOf(series, item);
    }
    // Stores bar (s, c) between two positions on the value axis, whose
    // interval range starts at `along`.
    void storeBar(long series, long item, float along, float valueFrom, float valueTo, bool upward);
    bool createBarVectors();
    bool startBars(float& zero, float& sign);
    void recede();
    // The look of bar (s, c): with split colours, series s takes the
    // styles 2s and 2s + 1 for values at or above and below the reference.
    Look getBarLook(long series, long item) const;
    long getStyleSeries(long series, long item) const;
    bool doUseAliasedShapes() const;
    // ---- layers (vxBarChart1DLayers.cpp) ----
    void addFlatBars(vxLayerManager& layerMng, long series);
    void addDepthBars(vxLayerManager& layerMng);
    std::unique_ptr<vxGObjectOLD> makeFlatBar(long series, long item) const;
    bool haveOneLook(long series) const;
    std::unique_ptr<vxGObjectOLD> makeMergedBars(long series, long from, long to) const;
    void outlineBar(vxPath2DOLD& path, long series, long item) const;
    void addDepthBar(vxLayer& layer, long series, long item) const;
    void addBox(vxLayer& layer, const float rect[4], const Look& look) const;
    // A picture fill laid over the bar: stretched to it, or one picture a
    // stack unit from the base. Null for other fills.
    std::unique_ptr<vxPaintOLD> barPicture(long series, long item, const Look& look) const;
    // ---- shadows, symbols, connecting lines (vxBarChart1DExtras.cpp) ----
    void addShadows(vxLayerManager& layerMng);
    std::unique_ptr<vxGObjectOLD> makeShadow(long series, long item,
                                             const vxShadowOLD& shadow) const;
    void addSymbols(vxLayerManager& layerMng, long series);
    void addConnectingLines(vxLayerManager& layerMng);
    std::unique_ptr<vxGObjectOLD> makeConnectingLine(long series, const vxPaintOLD* paint) const;
    // The middle of the bar's value end.
    void getValueEnd(long series, long item, float point[2]) const;
    // Hands a layer to the manager unless it stayed empty (but for its clip).
    void handOver(vxLayerManager& layerMng, std::unique_ptr<vxLayer> layer);
    // ---- labels (vxBarChart1DLabels.cpp) ----
    void addLabels(vxLayerManager& layerMng);
    void addTotals(vxLayer& layer);
    std::unique_ptr<vxLabel> makeLabel(long series, long item);
    std::unique_ptr<vxLabel> placeLabel(const vxLabelStyle& style, const std::wstring& text,
                                        float rect[4], short location, short direction, float gap);
    size_t indexOf(long series, long item) const {
        return static_cast<size_t>(series * numOfCategories + item);
    }

    float categoryGapPercent = 100.0f;
    float seriesGapPercent = 0.0f;
    float depthPercent = 0.0f;
    bool useRelativeDepth = true;
    float barWidthDC = 0.0f;
    float categoryGapDC = 0.0f;
    float seriesGapDC = 0.0f;
    long numOfCategories = 0;
    std::vector<float> barLeftDC, barTopDC, barRightDC, barBottomDC;
    std::vector<short> barDirections;  // 0: no bar
    bool doForceIntegerBarWidth = false;
    bool showConnectingLines = false;
    bool splitColors = false;
};

}  // namespace Velarix
