// The common ground of the chart classes (bars, lines, areas, pies ...): a
// chart class turns the series of the data manager into graphic objects on
// layers. It owns its parameters and its depth, and borrows the managers
// of its vxChart, which gives it its rectangles before set-up.
//
// The façade reads every value through the chart: the data by series,
// sub-value and item, positions through the axes, and label texts through
// the chart's formats.
#pragma once

#include <memory>
#include <ostream>
#include <string>

#include "charts/vxBaseChartDepthInfo.h"
#include "charts/vxBaseChartParameters.h"
#include "settings/vxErrorHolder.h"

namespace Velarix {

class vxAssign;
class vxAxisItem;
class vxDataManager;
class vxAxisManager;
class vxBasicSymbol;
class vxCurveFittingManager;
class vxFormatSettings;
class vxLayerManager;
class vxPaintOLD;
class vxStrokeOLD;
class vxStyleManager;

class vxBaseChart : public vxErrorHolder {
public:
    // Types of the values a label shows.
    enum LabelValueType : short { kNumber = 1, kCount = 2, kDateTime = 3 };

    // `className` is a literal that outlives the chart.
    explicit vxBaseChart(const wchar_t* className);
    ~vxBaseChart() override;

    virtual short getChartType() const { return parameters.getChartType(); }
    // The chart function's own arguments, after its flags.
    virtual void assign(vxAssign& assign) {}
    virtual void setUp() = 0;
    // A depth that follows from the axes (a share of the bar width) is
    // worked out again for the axes as they stand.
    virtual void updateDepth() {}
    virtual void setUpLayers(vxLayerManager* layerMng) = 0;
    // The chart's ...ChartOptions call.
    virtual void setOptions(vxAssign& assign) {}
    virtual void setDefaults();

    void setManagers(vxDataManager* data, vxAxisManager* axes, vxStyleManager* styles);
    void setFormatSettings(const vxFormatSettings* settings) { formatSettings = settings; }

    vxBaseChartParameters& getParameters() { return parameters; }
    const vxBaseChartParameters& getParameters() const { return parameters; }
    vxBaseChartDepthInfo& getDepthInfo() { return depthInfo; }
    const vxBaseChartDepthInfo& getDepthInfo() const { return depthInfo; }
    vxDataManager* getDataManager() const { return dataManager; }
    vxAxisManager* getAxisManager() const { return axisManager; }
    vxStyleManager* getStyleManager() const { return styleManager; }
    // The chart's curve fits; null when the script asks for none.
    void setCurveFittingManager(vxCurveFittingManager* manager) { curveFittingManager = manager; }
    vxCurveFittingManager* getCurveFittingManager() const { return curveFittingManager; }

    // ---- rectangles (left, top, right, bottom) ---------------------------
    void setChartAreaBounds(const float rect[4]);
    void setPlotBounds(const float rect[4]);
    void setLimitBounds(const float rect[4]);
    const float* getChartAreaBounds() const { return chartAreaBounds; }
    const float* getPlotBounds() const { return plotBounds; }
    const float* getLimitBounds() const { return limitBounds; }
    const float* getExtendedPlotBounds() const { return extendedPlotBounds; }
    const float* getShadowClipRect() const { return shadowClipRect; }
    const float* getLabelClipRect() const { return labelClipRect; }
    bool hasChartAreaBounds() const { return chartAreaBoundsSet; }
    bool hasPlotBounds() const { return plotBoundsSet; }
    // The plot grown by `half` (the widest stroke's half), by the depth and
    // by one unit, within the limit bounds; labels are clipped to the limits.
    void setUpClipRect(float half);
    // The clip of shadows from the shadow's offsets (left, top, right,
    // bottom of the shadow rectangle).
    void setUpShadowClipRect(const float shadowRect[4]);

    // ---- values ------------------------------------------------------------
    long getNumOfChartSeries() const;
    long getNumOfItems(long series) const;
    double getValue(long series, long subValue, long item) const;
    bool isValidValue(long series, long subValue, long item) const;
    double getStackedValue(long series, long item) const;
    double getProportionalValue(long series, long item) const;
    // The totals of item c's values at and above 0 and below it, over the
    // series that hold the item.
    void getStackTotals(long item, double& positive, double& negative) const;
    // Consecutive valid items of sub-value 0 from `firstItem` on.
    long getNumOfValidValues(long series, long firstItem) const;
    // One item in device units: sub-value 0 as x and `subValue` as y,
    // exchanged on a horizontal chart; (0, 0) and false off a Cartesian
    // chart or without axes.
    bool getPointDC(long series, long subValue, long item, float out[2]) const;

    // ---- axes ----------------------------------------------------------------
    vxAxisItem* getXAxis() const;
    vxAxisItem* getYAxis() const;
    vxAxisItem* getIntervalAxis() const;
    vxAxisItem* getValueAxis() const;
    bool isXReversed() const;
    bool isYReversed() const;
    float getIntervalAxisLengthDC() const;
    // The distance of two neighbouring intervals: of the first two series'
    // first values when each series takes an interval, else of the first
    // two items of the longest series; the axis's length with fewer.
    float getIntervalWidthDC() const;
    bool isInAxisRange(double value) const;
    // A reference value a logarithmic value axis can't show moves onto it:
    // to the axis's minimum, else 1, else the maximum over the base.
    void setUpReferenceValue();

    // ---- looks ---------------------------------------------------------------
    // The look of an item from the style manager; null where the style has
    // no such part (or there is no style manager).
    struct Look {
        const vxPaintOLD* fill = nullptr;
        const vxStrokeOLD* stroke = nullptr;
        const vxPaintOLD* border = nullptr;
    };
    virtual Look getAreaLook(long series, long item) const;
    // The look of a whole series, as a legend shows it: its areas (fill and
    // border), its line (the stroke and its paint, as `line.stroke` and
    // `line.border`) and its symbol. Item styles don't count; a part that
    // draws nothing is null (vxBaseChartLooks.cpp).
    struct SeriesLook {
        Look area;
        Look line;
        const vxBasicSymbol* symbol = nullptr;
    };
    virtual SeriesLook getSeriesLook(long series) const;
    // How many entries a legend shows without texts of its own: one a
    // series (a pie's, one an item).
    virtual long getNumOfLegendEntries() const { return getNumOfChartSeries(); }
    // The same from a style manager alone, for a chart without a chart
    // class; null gives an empty look.
    static SeriesLook getSeriesLook(const vxStyleManager* styles, long series);

    // ---- additions (vxBaseChartAdditions.cpp) ---------------------------
    // The overlays a chart class draws with each of its series: drop lines,
    // error bars, curve fittings and moving averages. Set up once after the
    // chart's values, drawn by the class in its layer order: `series`
    // counts from 0. A shadow is drawn only when the chart shows shadows
    // and the series' shadow style has a paint.
    void setUpAdditions();
    // How far along the interval axis the middle of what the class draws
    // for an item of the series lies from the item's point (a bar that
    // stands beside its value); the overlays of the series move with it.
    virtual float getItemOffsetDC(long series) const { return 0.0f; }
    void addCurveFitting(vxLayerManager& layerMng, long series);
    void addCurveFittingShadow(vxLayerManager& layerMng, long series);

    // ---- labels --------------------------------------------------------------
    short getDefaultLabelLocation() const { return defaultLabelLocation; }
    void setDefaultLabelLocation(short value) { defaultLabelLocation = value; }
    short getDefaultLegendMarkerType() const { return defaultLegendMarkerType; }
    void setDefaultLegendMarkerType(short value) { defaultLegendMarkerType = value; }
    // A value in a label format; "DEFAULT_FORMAT" takes the plain form of
    // numbers or the default form of the date. Another value type copies
    // the format: it is a literal text. A format that doesn't parse raises
    // its code at "/formatLabelString/1" (numbers, counts 2, dates 3).
    std::wstring formatLabelString(short valueType, double value, const std::wstring& format);

    virtual void dump(short depth, std::ostream& out) const;

private:
    vxBaseChartParameters parameters;
    vxBaseChartDepthInfo depthInfo;
    vxDataManager* dataManager = nullptr;
    vxAxisManager* axisManager = nullptr;
    vxStyleManager* styleManager = nullptr;
    vxCurveFittingManager* curveFittingManager = nullptr;
    const vxFormatSettings* formatSettings = nullptr;
    bool chartAreaBoundsSet = false;
    float chartAreaBounds[4] = {};
    bool plotBoundsSet = false;
    float plotBounds[4] = {};
    float limitBounds[4] = {};
    float extendedPlotBounds[4] = {};
    float shadowClipRect[4] = {};
    float labelClipRect[4] = {};
    short gridShape = 0;
    short defaultLabelLocation = 3;
    short defaultLegendMarkerType = 1;
};

}  // namespace Velarix
