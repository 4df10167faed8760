#include "charts/vxChartTypeTable.h"

#include <iterator>

#include "charts/vxBaseChartParameters.h"
#include "script/vxAssign.h"
#include "script/vxFunctionIds.h"

namespace Velarix {

namespace {

using E = vxChartTypeEntry;
constexpr E::Choice kNo = E::kNo;
constexpr E::Choice kYes = E::kYes;
constexpr E::Choice kScript = E::kFromScript;
constexpr E::Choice kStacked = E::kFromStacked;

// Flag masks, bits shadow 1, label 2, symbol 4, horizontal 8, stacked 16,
// proportional 32, oval 64.
constexpr unsigned char kSLYH = 0x0F;
constexpr unsigned char kSLY = 0x07;
constexpr unsigned char kSLYHKP = 0x3F;
constexpr unsigned char kSLH = 0x0B;
constexpr unsigned char kSLYHK = 0x1F;
constexpr unsigned char kSLO = 0x43;
constexpr unsigned char kSLYO = 0x47;
constexpr unsigned char kSH = 0x09;
constexpr unsigned char kSYH = 0x0D;

// clang-format off
constexpr E kEntries[] = {
    // function            type coord dim axes series sub shift    one    ref      mask    shift hl angle
    {kScatterChart1D,        1, 1, 1, 1, 1, 1, kScript, false, kStacked, kSLYH,   0, -1, -1},
    {kScatterChart2D,        2, 1, 2, 0, 2, 1, kNo,     false, kNo,      kSLY,   -1, -1, -1},
    {kBubbleChart1D,         3, 1, 1, 1, 2, 1, kScript, false, kStacked, kSLYH,   0, -1, -1},
    {kBubbleChart2D,         4, 1, 2, 0, 3, 1, kNo,     false, kNo,      kSLY,   -1, -1, -1},
    {kLineChart1D,           5, 1, 1, 1, 1, 1, kScript, false, kStacked, kSLYH,   0, -1, -1},
    {kLineChart2D,           6, 1, 2, 0, 2, 1, kNo,     false, kNo,      kSLY,   -1, -1, -1},
    {kAreaChart1D,           7, 1, 1, 1, 1, 1, kScript, false, kYes,     kSLYHKP, 0, -1, -1},
    {kAreaChart2D,           8, 1, 2, 0, 2, 1, kNo,     false, kNo,      kSLY,   -1, -1, -1},
    {kBarChart1D,            9, 1, 1, 1, 1, 1, kYes,    false, kYes,     kSLYHKP,-1, -1, -1},
    {kBarChart2D,           10, 1, 2, 0, 2, 1, kYes,    false, kYes,     kSLYHKP,-1, -1, -1},
    {kGanttChart,           11, 1, 1, 1, 1, 2, kYes,    true,  kNo,      kSLH,   -1, -1, -1},
    {kHistogram,            12, 1, 1, 1, 1, 1, kYes,    false, kNo,      kSLYHK, -1, -1, -1},
    {kPieChart,             13, 0, 0, 0, 1, 1, kNo,     false, kNo,      kSLO,   -1, -1, -1},
    {kPolarChart,           14, 2, 2, 0, 2, 1, kNo,     false, kNo,      kSLYO,  -1, -1,  0},
    {kRadarChart,           15, 2, 1, 0, 1, 1, kScript, false, kNo,      kSLYO,   2, -1,  0},
    {kHighLowChart1D,       17, 1, 1, 1, 0, 1, kScript, false, kNo,      kSLYH,   0,  1, -1},
    {kHighLowChart2D,       18, 1, 2, 0, 0, 1, kNo,     false, kNo,      kSLYH,  -1,  0, -1},
    {kCandlestickChart1D,   19, 1, 1, 1, 4, 1, kYes,    false, kNo,      kSH,    -1, -1, -1},
    {kCandlestickChart2D,   20, 1, 2, 0, 5, 1, kNo,     false, kNo,      kSH,    -1, -1, -1},
    {kBoxPlot,              21, 1, 1, 1, 1, 1, kYes,    true,  kNo,      kSYH,   -1, -1, -1},
};
// clang-format on

bool choose(E::Choice choice, bool fromScript, bool stacked) {
    switch (choice) {
        case E::kYes:
            return true;
        case E::kFromScript:
            return fromScript;
        case E::kFromStacked:
            return stacked;
        default:
            return false;
    }
}

// High-low types 1 to 3 draw 2 to 4 quantities; a 2D chart takes the x
// series in front of them.
long highLowSeries(const E& entry, const vxAssign& assign) {
    const long quantities = assign.getShort(entry.highLowTypeArgument, 1) + 1;
    return entry.numOfDimensions == 2 ? quantities + 1 : quantities;
}

}  // namespace

const vxChartTypeEntry* vxChartTypeOf(long functionId) {
    for (const E& entry : kEntries) {
        if (entry.functionId == functionId) return &entry;
    }
    return nullptr;
}

bool vxSetUpChartParameters(long functionId, vxAssign& assign, vxBaseChartParameters& p) {
    const E* entry = vxChartTypeOf(functionId);
    if (!entry) return false;
    p.setDefaults();
    p.setChartType(entry->chartType);
    p.setCoordinateSystem(entry->coordinateSystem);
    p.setNumOfDimensions(entry->numOfDimensions);
    p.setNumOfIntervalAxes(entry->numOfIntervalAxes);
    p.setNumOfSubValues(entry->numOfSubValues);
    p.setShowOneSeriesPerInterval(entry->showOneSeriesPerInterval);

    const long offset = assign.getArgumentOffset();
    p.assignFlags(assign);
    bool mask[vxBaseChartParameters::kNumOfFlags];
    for (int i = 0; i < vxBaseChartParameters::kNumOfFlags; ++i)
        mask[i] = (entry->flagMask >> i) & 1;
    p.maskFlags(mask);

    const bool shiftArgument = entry->shiftArgument >= 0 && assign.getBool(entry->shiftArgument);
    p.setShiftIntervalValues(choose(entry->shiftIntervalValues, shiftArgument, p.isStacked()));
    p.setHasReferenceValue(choose(entry->referenceValue, false, p.isStacked()));
    p.setMinNumOfDataSeries(entry->highLowTypeArgument >= 0 ? highLowSeries(*entry, assign)
                                                            : entry->minNumOfDataSeries);
    if (entry->angleArgument >= 0) {
        p.setStartAngle(assign.getFloat(entry->angleArgument, 0.0f));
        p.setArcAngle(assign.getFloat(entry->angleArgument + 1, 360.0f));
    }
    assign.addToArgumentOffset(offset - assign.getArgumentOffset());
    return true;
}

}  // namespace Velarix
