// The names of the chart language's functions as scripts write them, with
// the group of each.
#include <algorithm>
#include <cstddef>

#include "script/vxFunctionTable.h"

namespace Velarix {

namespace {

struct vxFunctionEntry {
    const wchar_t* name;
    vxFunctionGroup group;
};

// Indexed by id: sorted by the lower-case names in code-unit order.
constexpr vxFunctionEntry kFunctions[kNumOfFunctions] = {
    {L"AddArc", kGroupPrimitives},
    {L"AddArrow", kGroupPrimitives},
    {L"AddClipOval", kGroupPrimitives},
    {L"AddClipPath", kGroupPrimitives},
    {L"AddClipPolygon", kGroupPrimitives},
    {L"AddClipRect", kGroupPrimitives},
    {L"AddClipReset", kGroupPrimitives},
    {L"AddClipRoundRect", kGroupPrimitives},
    {L"AddClipSlice", kGroupPrimitives},
    {L"AddClipSmoothPolygon", kGroupPrimitives},
    {L"AddEllipse", kGroupPrimitives},
    {L"AddFrame", kGroupPrimitives},
    {L"AddLine", kGroupPrimitives},
    {L"AddOval", kGroupPrimitives},
    {L"AddPath", kGroupPrimitives},
    {L"AddPicture", kGroupPrimitives},
    {L"AddPolygon", kGroupPrimitives},
    {L"AddPolyline", kGroupPrimitives},
    {L"AddRect", kGroupPrimitives},
    {L"AddRoundFrame", kGroupPrimitives},
    {L"AddRoundRect", kGroupPrimitives},
    {L"AddSlice", kGroupPrimitives},
    {L"AddSmoothPolygon", kGroupPrimitives},
    {L"AddSmoothPolyline", kGroupPrimitives},
    {L"AddSymbol", kGroupPrimitives},
    {L"AddText", kGroupPrimitives},
    {L"AreaChart", kGroupCharts},
    {L"AreaChart2D", kGroupCharts},
    {L"AreaChartOptions", kGroupChartOptions},
    {L"ArrowStyle", kGroupStyles},
    {L"AxisLabelBackground", kGroupAxes},
    {L"AxisLabelBackgroundOptions", kGroupAxes},
    {L"AxisLabelOptions", kGroupAxes},
    {L"AxisLabelStyle", kGroupAxes},
    {L"AxisLabelText", kGroupAxes},
    {L"AxisLine", kGroupAxes},
    {L"AxisMajorTickLabelBackground", kGroupAxes},
    {L"AxisMajorTickLabelBackgroundOptions", kGroupAxes},
    {L"AxisMajorTickLabelOptions", kGroupAxes},
    {L"AxisMajorTickLabelStyle", kGroupAxes},
    {L"AxisMajorTickLabelTexts", kGroupAxes},
    {L"AxisMajorTicks", kGroupAxes},
    {L"AxisMinorTickLabelBackground", kGroupAxes},
    {L"AxisMinorTickLabelBackgroundOptions", kGroupAxes},
    {L"AxisMinorTickLabelOptions", kGroupAxes},
    {L"AxisMinorTickLabelStyle", kGroupAxes},
    {L"AxisMinorTickLabelTexts", kGroupAxes},
    {L"AxisMinorTicks", kGroupAxes},
    {L"AxisOptions", kGroupAxes},
    {L"Background", kGroupBackground},
    {L"BackgroundOptions", kGroupBackground},
    {L"BackgroundPict", kGroupBackground},
    {L"BarChart", kGroupCharts},
    {L"BarChart2D", kGroupCharts},
    {L"BarChartOptions", kGroupChartOptions},
    {L"BarStyle", kGroupStyles},
    {L"BorderStyle", kGroupStyles},
    {L"BoxPlot", kGroupCharts},
    {L"BoxPlotOptions", kGroupChartOptions},
    {L"BubbleChart", kGroupCharts},
    {L"BubbleChart2D", kGroupCharts},
    {L"BubbleChartOptions", kGroupChartOptions},
    {L"CandlestickChart", kGroupCharts},
    {L"CandlestickChart2D", kGroupCharts},
    {L"CandlestickChartOptions", kGroupChartOptions},
    {L"ChartBackground", kGroupChartBackground},
    {L"ChartBackgroundOptions", kGroupChartBackground},
    {L"ChartBackgroundPict", kGroupChartBackground},
    {L"ChartData", kGroupData},
    {L"ChartDataLowerLimits", kGroupData},
    {L"ChartDataOptions", kGroupData},
    {L"ChartDataRead", kGroupData},
    {L"ChartDataTypes", kGroupData},
    {L"ChartDataUpperLimits", kGroupData},
    {L"ChartDataWrite", kGroupData},
    {L"CloseCalendarBeta", kGroupCalendars},
    {L"CloseChart", kGroupLayout},
    {L"CloseDrawing", kGroupLayout},
    {L"CloseTableBeta", kGroupTables},
    {L"CloseView", kGroupLayout},
    {L"CurveFitting", kGroupCurveFittings},
    {L"CurveFittingLineStyle", kGroupCurveFittings},
    {L"CurveFittingOptions", kGroupCurveFittings},
    {L"CurveFittingSymbolStyle", kGroupCurveFittings},
    {L"DateTimeOptions", kGroupMisc},
    {L"DropLineReferenceLine", kGroupDropLines},
    {L"DropLineReferencePoint", kGroupDropLines},
    {L"DropLineReferenceSeries", kGroupDropLines},
    {L"DropLineStyle", kGroupDropLines},
    {L"ErrorBarData", kGroupErrorBars},
    {L"ErrorBars", kGroupErrorBars},
    {L"ErrorBarStyle", kGroupErrorBars},
    {L"ErrorBarStyle2D", kGroupErrorBars},
    {L"FillStyle", kGroupStyles},
    {L"GanttChart", kGroupCharts},
    {L"GanttChartOptions", kGroupChartOptions},
    {L"GridFrame", kGroupGrids},
    {L"GridLocation", kGroupGrids},
    {L"HighLowChart", kGroupCharts},
    {L"HighLowChart2D", kGroupCharts},
    {L"HighLowChartOption", kGroupChartOptions},
    {L"Histogram", kGroupCharts},
    {L"HistogramOptions", kGroupChartOptions},
    {L"HistogramRange", kGroupChartOptions},
    {L"LabelBackground", kGroupStyles},
    {L"LabelBackgroundOptions", kGroupStyles},
    {L"LabelOptions", kGroupStyles},
    {L"LabelStyle", kGroupStyles},
    {L"LabelTexts", kGroupStyles},
    {L"LegendBackground", kGroupLegend},
    {L"LegendBackgroundOptions", kGroupLegend},
    {L"LegendOptions", kGroupLegend},
    {L"LegendStyle", kGroupLegend},
    {L"LegendTexts", kGroupLegend},
    {L"LineChart", kGroupCharts},
    {L"LineChart2D", kGroupCharts},
    {L"LineChartOptions", kGroupChartOptions},
    {L"LineStyle", kGroupStyles},
    {L"MajorGridLineColors", kGroupGrids},
    {L"MajorGridLinePatterns", kGroupGrids},
    {L"MajorGridLineWidths", kGroupGrids},
    {L"MajorGridStripeColors", kGroupGrids},
    {L"MajorGridStripePatterns", kGroupGrids},
    {L"MinorGridLineColors", kGroupGrids},
    {L"MinorGridLinePatterns", kGroupGrids},
    {L"MinorGridLineWidths", kGroupGrids},
    {L"MinorGridStripeColors", kGroupGrids},
    {L"MinorGridStripePatterns", kGroupGrids},
    {L"MovingAverage", kGroupMovingAverages},
    {L"MovingAverageLineStyle", kGroupMovingAverages},
    {L"MovingAverageOptions", kGroupMovingAverages},
    {L"MovingAverageSymbolStyle", kGroupMovingAverages},
    {L"NumberOptions", kGroupMisc},
    {L"OpenCalendarBeta", kGroupCalendars},
    {L"OpenChart", kGroupLayout},
    {L"OpenDrawing", kGroupLayout},
    {L"OpenTableBeta", kGroupTables},
    {L"OpenView", kGroupLayout},
    {L"PictureStyle", kGroupStyles},
    {L"PieChart", kGroupCharts},
    {L"PieChartAddOn", kGroupChartOptions},
    {L"PieChartAuxLines", kGroupChartOptions},
    {L"PieChartCenterLabelBackground", kGroupChartOptions},
    {L"PieChartCenterLabelBackgroundOptions", kGroupChartOptions},
    {L"PieChartCenterLabelOptions", kGroupChartOptions},
    {L"PieChartCenterLabelStyle", kGroupChartOptions},
    {L"PieChartCenterLabelText", kGroupChartOptions},
    {L"PieChartExplodeDepths", kGroupChartOptions},
    {L"PieChartExplodes", kGroupChartOptions},
    {L"PieChartInnerLabelBackground", kGroupChartOptions},
    {L"PieChartInnerLabelBackgroundOptions", kGroupChartOptions},
    {L"PieChartInnerLabelOptions", kGroupChartOptions},
    {L"PieChartInnerLabelStyle", kGroupChartOptions},
    {L"PieChartInnerLabelTexts", kGroupChartOptions},
    {L"PieChartLabelOptions", kGroupChartOptions},
    {L"PieChartOptions", kGroupChartOptions},
    {L"PolarChart", kGroupCharts},
    {L"PolarChartOptions", kGroupChartOptions},
    {L"RadarChart", kGroupCharts},
    {L"RadarChartOptions", kGroupChartOptions},
    {L"SaveAsBMPFile", kGroupOutput},
    {L"SaveAsEMFFile", kGroupOutput},
    {L"SaveAsGIFFile", kGroupOutput},
    {L"SaveAsJPGFile", kGroupOutput},
    {L"SaveAsPDFFile", kGroupOutput},
    {L"SaveAsPICTFile", kGroupOutput},
    {L"SaveAsPNGFile", kGroupOutput},
    {L"SaveAsSVGFile", kGroupOutput},
    {L"SaveAsSWFFile", kGroupOutput},
    {L"SaveAsTIFFile", kGroupOutput},
    {L"Scaling", kGroupAxes},
    {L"ScalingOptions", kGroupAxes},
    {L"ScatterChart", kGroupCharts},
    {L"ScatterChart2D", kGroupCharts},
    {L"ScatterChartOptions", kGroupChartOptions},
    {L"SendToClipboard", kGroupOutput},
    {L"SetDateFormat", kGroupMisc},
    {L"SetDecimalPoint", kGroupMisc},
    {L"SetThousandsSep", kGroupMisc},
    {L"SetTimeFormat", kGroupMisc},
    {L"ShadowStyle", kGroupStyles},
    {L"SymbolStyle", kGroupStyles},
    {L"TitleBackground", kGroupTitle},
    {L"TitleBackgroundOptions", kGroupTitle},
    {L"TitleOptions", kGroupTitle},
    {L"TitleStyle", kGroupTitle},
    {L"TitleSubStyle", kGroupTitle},
    {L"TitleText", kGroupTitle},
};

// Names beyond this length are never looked up.
constexpr std::size_t kMaxNameLength = 90;

wchar_t toLowerAscii(wchar_t c) {
    return (c >= L'A' && c <= L'Z') ? c + (L'a' - L'A') : c;
}

// Compares in code-unit order of the lower-case forms; `key` is lower case.
int compareLowered(const wchar_t* name, const std::wstring& key) {
    std::size_t i = 0;
    for (; name[i] != 0 && i < key.size(); ++i) {
        const wchar_t a = toLowerAscii(name[i]);
        if (a != key[i]) return a < key[i] ? -1 : 1;
    }
    if (name[i] == 0) return i == key.size() ? 0 : -1;
    return 1;
}

}  // namespace

const wchar_t* vxFunctionName(long id) {
    if (id < 0 || id >= kNumOfFunctions) return nullptr;
    return kFunctions[id].name;
}

long vxFindFunction(const std::wstring& name) {
    if (name.empty() || name.size() > kMaxNameLength) return kUnknown;
    std::wstring key(name);
    std::transform(key.begin(), key.end(), key.begin(), toLowerAscii);
    long low = 0;
    long high = kNumOfFunctions - 1;
    while (low <= high) {
        const long mid = (low + high) / 2;
        const int cmp = compareLowered(kFunctions[mid].name, key);
        if (cmp == 0) return mid;
        if (cmp < 0) {
            low = mid + 1;
        } else {
            high = mid - 1;
        }
    }
    return kUnknown;
}

short getFunctionGroup(long id) {
    if (id < 0 || id >= kNumOfFunctions) return -1;
    return kFunctions[id].group;
}

}  // namespace Velarix
