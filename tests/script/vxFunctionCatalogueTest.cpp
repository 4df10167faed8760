#include <gtest/gtest.h>

#include <cwctype>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "script/vxConstants.h"
#include "script/vxFunction.h"
#include "script/vxFunctionTable.h"

using namespace Velarix;

namespace {

constexpr double kNone = 9E99;

struct Row {
    short type;
    double minValue;
    double maxValue;
    long maxRepeat;
    bool isRequired;
    short constantType;
};

std::wstring lowered(const wchar_t* name) {
    std::wstring s(name);
    for (wchar_t& c : s) c = static_cast<wchar_t>(std::towlower(c));
    return s;
}

vxFunction makeFunction(long id) {
    return vxFunction(getFunctionGroup(id), id);
}

std::vector<Row> rowsOf(const vxFunction& fn) {
    std::vector<Row> rows;
    for (long k = 0; k < fn.getNumOfArguments(); ++k) {
        rows.push_back({fn.getArgumentType(k), fn.getMinValue(k), fn.getMaxValue(k),
                        fn.getMaxRepeat(k), fn.isArgumentRequired(k), fn.getConstantType(k)});
    }
    return rows;
}

}  // namespace

TEST(vxFunctionCatalogue, IdsAreIndexesOfTheSortedLowerCaseNames) {
    ASSERT_EQ(kNumOfFunctions, 188);
    std::wstring previous;
    for (long id = 0; id < kNumOfFunctions; ++id) {
        const wchar_t* name = vxFunctionName(id);
        ASSERT_NE(name, nullptr) << id;
        const std::wstring low = lowered(name);
        if (id > 0) {
            EXPECT_LT(previous, low) << "order broken at id " << id;
        }
        EXPECT_EQ(vxFindFunction(name), id);
        EXPECT_EQ(vxFindFunction(low), id);
        previous = low;
    }
    EXPECT_EQ(vxFunctionName(kUnknown), nullptr);
    EXPECT_EQ(vxFunctionName(kNumOfFunctions), nullptr);
}

TEST(vxFunctionCatalogue, ConstantsNameTheScriptWords) {
    const std::vector<std::pair<long, std::wstring>> cases = {
        {kAddArc, L"AddArc"},
        {kAreaChart1D, L"AreaChart"},
        {kBarChart1D, L"BarChart"},
        {kBarChart2D, L"BarChart2D"},
        {kBubbleChart1D, L"BubbleChart"},
        {kCandlestickChart1D, L"CandlestickChart"},
        {kHighLowChart1D, L"HighLowChart"},
        {kLineChart1D, L"LineChart"},
        {kScatterChart1D, L"ScatterChart"},
        {kOpenTable, L"OpenTableBeta"},
        {kCloseTable, L"CloseTableBeta"},
        {kOpenCalendar, L"OpenCalendarBeta"},
        {kCloseCalendar, L"CloseCalendarBeta"},
        {kHighLowChartOptions, L"HighLowChartOption"},
        {kPieChartExplodeRadials, L"PieChartExplodes"},
        {kSaveAsPCTFile, L"SaveAsPICTFile"},
        {kSaveAsPDFFile, L"SaveAsPDFFile"},
        {kTitleText, L"TitleText"},
    };
    for (const auto& [id, name] : cases) EXPECT_EQ(vxFunctionName(id), name) << id;
}

TEST(vxFunctionCatalogue, LookupIgnoresCaseOfAsciiLetters) {
    const std::vector<std::pair<std::wstring, long>> cases = {
        {L"BarChart", kBarChart1D},
        {L"barchart", kBarChart1D},
        {L"BARCHART", kBarChart1D},
        {L"bArChArT2d", kBarChart2D},
        {L"saveaspictfile", kSaveAsPCTFile},
        {L"PieChartCenterLabelBackgroundOptions", kPieChartCenterLabelBackgroundOptions},
        {L"HighLowChartOptions", kUnknown},
        {L"SaveAsPCTFile", kUnknown},
        {L"OpenTable", kUnknown},
        {L"BarChart1D", kUnknown},
        {L"BarChar", kUnknown},
        {L"Bar Chart", kUnknown},
        {L"B\u00C4rChart", kUnknown},
        {L"", kUnknown},
        {L"zzz", kUnknown},
        {std::wstring(91, L'a'), kUnknown},
        {L"addarc" + std::wstring(85, L'x'), kUnknown},
    };
    for (const auto& [name, id] : cases) EXPECT_EQ(vxFindFunction(name), id) << name.size();
}

TEST(vxFunctionCatalogue, GroupsOfFunctions) {
    const std::vector<std::pair<long, short>> cases = {
        {kOpenDrawing, kGroupLayout},
        {kCloseView, kGroupLayout},
        {kAddArc, kGroupPrimitives},
        {kAddText, kGroupPrimitives},
        {kBackgroundOptions, kGroupBackground},
        {kSendToClipboard, kGroupOutput},
        {kSaveAsPCTFile, kGroupOutput},
        {kSetTimeFormat, kGroupMisc},
        {kBarChart1D, kGroupCharts},
        {kScatterChart2D, kGroupCharts},
        {kHighLowChartOptions, kGroupChartOptions},
        {kPieChartExplodeRadials, kGroupChartOptions},
        {kSymbolStyle, kGroupStyles},
        {kChartDataWrite, kGroupData},
        {kScaling, kGroupAxes},
        {kMinorGridStripePatterns, kGroupGrids},
        {kDropLineStyle, kGroupDropLines},
        {kErrorBarStyle2D, kGroupErrorBars},
        {kCurveFitting, kGroupCurveFittings},
        {kMovingAverageSymbolStyle, kGroupMovingAverages},
        {kLegendTexts, kGroupLegend},
        {kTitleSubStyle, kGroupTitle},
        {kChartBackgroundPict, kGroupChartBackground},
        {kOpenTable, kGroupTables},
        {kCloseCalendar, kGroupCalendars},
        {kUnknown, -1},
        {kNumOfFunctions, -1},
    };
    for (const auto& [id, group] : cases) EXPECT_EQ(getFunctionGroup(id), group) << id;
}

TEST(vxFunctionCatalogue, NoFunctionInGlobalsOrChartLayers) {
    for (long id = 0; id < kNumOfFunctions; ++id) {
        const short group = getFunctionGroup(id);
        EXPECT_GE(group, kGroupLayout) << id;
        EXPECT_LE(group, kGroupCalendars) << id;
        EXPECT_NE(group, kGroupChartLayers) << id;
    }
}

TEST(vxFunctionCatalogue, DescriptorsOfSampleFunctions) {
    const std::vector<std::pair<long, std::vector<Row>>> cases = {
        {kOpenDrawing,
         {{4, 1, 10000, 1, true, 0},
          {4, 1, 10000, 1, true, 0},
          {2, -1, 1, 1, false, 0},
          {2, 0, 3, 1, false, 0},
          {2, 0, 1, 1, false, 0}}},
        {kAddText,
         {{4, -kNone, kNone, 1, true, 0},
          {4, -kNone, kNone, 1, true, 0},
          {1, 0, 10000, 1, false, 0},
          {15, 0, 255, 1, false, 0},
          {2, 0, 1023, 1, false, 0},
          {2, 0, 7, 1, false, 1105},
          {20, 0, 255, 1, false, 1102},
          {2, 1, 3, 1, false, 1200},
          {2, 1, 4, 1, false, 1202},
          {7, -360, 360, 1, false, 0},
          {4, -1, 10000, 1, false, 0},
          {4, -1, 10000, 1, false, 0},
          {2, 0, 4, 1, false, 0}}},
        {kAddClipPolygon,
         {{2, 1, 3, 1, false, 2600}, {2, 1, 2, 1, false, 1702}, {23, -kNone, kNone, 1, true, 0}}},
        {kSetDecimalPoint, {{1, 1, 1, 1, true, 0}}},
        {kPieChartAddOn,
         {{2, 0, 1, 1, false, 1001},
          {5, -kNone, kNone, 1, true, 0},
          {2, 1, 4, 1, false, 0},
          {2, 1, 2, 1, false, 0},
          {3, 1, 1000, 1000, false, 0}}},
        {kPieChartExplodeRadials, {{4, 0, 100, 1, false, 0}, {3, -3, 1000, 1000, false, 1401}}},
        {kBoxPlotOptions,
         {{4, -100, 1000, 1, false, 0},
          {2, 0, 1, 1, false, 1000},
          {2, 0, 1, 1, false, 1000},
          {2, 0, 1, 1, false, 1000},
          {2, 0, 1, 1, false, 1000},
          {2, 0, 1, 1, false, 1000},
          {2, 0, 1, 1, false, 1000},
          {4, 0, 1000, 1, false, 0},
          {5, 0, 99.9999, 1, false, 0},
          {4, 0, 50, 1, false, 0}}},
        {kScaling,
         {{3, 0, 10000, 1, false, 1800},
          {2, 1, 3, 1, false, 1803},
          {6, -kNone, kNone, 1, false, 0},
          {6, -kNone, kNone, 1, false, 0},
          {3, -18, 1000, 1, false, 1804},
          {3, -18, 1000, 1, false, 1804},
          {5, 1.0001, kNone, 1, false, 1003},
          {2, 0, 1, 1, false, 1000}}},
        {kAxisMajorTickLabelOptions,
         {{3, 0, 10000, 1, false, 1800},
          {2, 1, 3, 1, false, 1802},
          {4, -10000, 10000, 1, false, 0},
          {4, -10000, 10000, 1, false, 0},
          {10, 1, 1e6, 1, false, 0},
          {3, 1, 1e6, 1, false, 0}}},
        {kErrorBars,
         {{24, 0, 10000, 1, false, 1700},
          {2, 0, 3, 1, false, 1800},
          {2, 0, 3, 1, false, 2301},
          {2, 0, 5, 1, false, 2300},
          {5, 0, kNone, 4, false, 0}}},
        {kMovingAverageLineStyle,
         {{3, 0, 10000, 1, false, 1700},
          {3, 1, 10000, 1, false, 0},
          {2, 0, 3, 1, false, 2400},
          {18, 0, 5, 1, false, 1106},
          {19, 0, 100, 1, false, 0},
          {20, 0, 255, 1, false, 1102},
          {21, 1, 128, 1, false, 1103}}},
        {kLegendOptions,
         {{2, 0, 9, 1, false, 1203},
          {2, 0, 1, 1, false, 1000},
          {4, -10000, 10000, 1, false, 0},
          {4, -10000, 10000, 1, false, 0},
          {9, -1, 1000, 7, false, 0},
          {2, 0, 7, 1, false, 2000},
          {4, 0, 10000, 1, false, 0},
          {4, 0, 10000, 1, false, 0},
          {4, -10000, 10000, 1, false, 0},
          {4, -10000, 10000, 1, false, 0},
          {4, -10000, 10000, 1, false, 0},
          {2, 1, 9, 1, false, 1203},
          {2, 1, 6, 1, false, 0}}},
        {kSaveAsPDFFile,
         {{17, 1, 1000, 1, true, 0},
          {2, 1, 3, 1, false, 2200},
          {1, 4, 4, 1, false, 0},
          {1, 1, 1000, 1, false, 0},
          {1, 1, 1000, 1, false, 0},
          {1, 1, 1000, 1, false, 0},
          {1, 1, 1000, 1, false, 0},
          {1, 1, 1000, 1, false, 0}}},
        {kChartData, {{13, -kNone, kNone, 10000, false, 0}}},
        {kChartDataRead,
         {{16, 1, 1000, 1, true, 0},
          {2, 0, 1, 1, false, 1000},
          {1, 1, 1, 1, false, 0},
          {1, 1, 1, 1, false, 0}}},
    };
    for (const auto& [id, expected] : cases) {
        const std::vector<Row> actual = rowsOf(makeFunction(id));
        ASSERT_EQ(actual.size(), expected.size()) << vxFunctionName(id);
        for (std::size_t k = 0; k < expected.size(); ++k) {
            const Row& a = actual[k];
            const Row& e = expected[k];
            SCOPED_TRACE(testing::Message() << vxFunctionName(id) << " argument " << k);
            EXPECT_EQ(a.type, e.type);
            EXPECT_EQ(a.minValue, e.minValue);
            EXPECT_EQ(a.maxValue, e.maxValue);
            EXPECT_EQ(a.maxRepeat, e.maxRepeat);
            EXPECT_EQ(a.isRequired, e.isRequired);
            EXPECT_EQ(a.constantType, e.constantType);
        }
    }
}

TEST(vxFunctionCatalogue, ExactlyTheseFunctionsTakeNoArgument) {
    const std::set<long> expected = {
        kAddClipReset,        kBackgroundOptions, kCandlestickChartOptions,
        kCloseCalendar,       kCloseChart,        kCloseDrawing,
        kCloseTable,          kCloseView,         kGanttChartOptions,
        kHighLowChartOptions, kOpenCalendar,      kOpenTable,
        kSendToClipboard};
    std::set<long> actual;
    long descriptors = 0;
    for (long id = 0; id < kNumOfFunctions; ++id) {
        const vxFunction fn = makeFunction(id);
        EXPECT_FALSE(fn.isError());
        if (fn.getNumOfArguments() == 0) actual.insert(id);
        descriptors += fn.getNumOfArguments();
    }
    EXPECT_EQ(actual, expected);
    EXPECT_EQ(descriptors, 857);
}

TEST(vxFunctionCatalogue, EveryConstantTableNamedExists) {
    for (long id = 0; id < kNumOfFunctions; ++id) {
        const vxFunction fn = makeFunction(id);
        for (long k = 0; k < fn.getNumOfArguments(); ++k) {
            const short table = fn.getConstantType(k);
            if (table != 0) {
                EXPECT_GT(vxConstants::getCount(table), 0) << id << "/" << k;
            }
        }
    }
}

TEST(vxFunctionCatalogue, IndexBeyondLastDescriptorReadsTheLast) {
    const vxFunction addOn = makeFunction(kPieChartAddOn);
    EXPECT_EQ(addOn.getMaxNumOfArguments(), 1004);
    EXPECT_EQ(addOn.getNumOfRequiredArguments(), 1);
    EXPECT_EQ(addOn.getArgumentType(500), 3);
    EXPECT_EQ(addOn.getMaxValue(500), 1000);
    EXPECT_EQ(addOn.getMaxRepeat(500), 1000);
    EXPECT_EQ(addOn.getArgument(500), addOn.getArgument(4));

    // A repeated descriptor in the middle raises the count only: the next
    // argument is read by the next descriptor.
    const vxFunction legend = makeFunction(kLegendOptions);
    EXPECT_EQ(legend.getMaxNumOfArguments(), 19);
    EXPECT_EQ(legend.getArgumentType(4), 9);
    EXPECT_EQ(legend.getArgumentType(5), 2);
    EXPECT_EQ(legend.getConstantType(5), 2000);
    EXPECT_EQ(legend.getArgumentType(40), 2);
    EXPECT_EQ(legend.getMaxValue(40), 6);
}

TEST(vxFunctionCatalogue, FunctionWithoutDescriptors) {
    const vxFunction fn = makeFunction(kCloseChart);
    EXPECT_EQ(fn.getGroup(), kGroupLayout);
    EXPECT_EQ(fn.getId(), kCloseChart);
    EXPECT_EQ(fn.getNumOfArguments(), 0);
    EXPECT_EQ(fn.getMaxNumOfArguments(), 0);
    EXPECT_EQ(fn.getNumOfRequiredArguments(), 0);
    EXPECT_EQ(fn.getArgument(0), nullptr);
    EXPECT_EQ(fn.getArgumentType(0), 0);
    EXPECT_FALSE(fn.isArgumentRequired(0));
}

TEST(vxFunctionCatalogue, FunctionAskedForUnderAnotherGroupIsEmpty) {
    EXPECT_EQ(vxFunction(kGroupCharts, kOpenDrawing).getNumOfArguments(), 0);
    EXPECT_EQ(vxFunction(kGroupLayout, kNumOfFunctions).getNumOfArguments(), 0);
    EXPECT_EQ(vxFunction(kGroupLayout, kOpenDrawing).getNumOfArguments(), 5);
}

TEST(vxFunctionCatalogue, DumpListsTheDescriptors) {
    std::ostringstream out;
    makeFunction(kSetDecimalPoint).dump(1, out);
    const std::string text = out.str();
    for (const char* label :
         {"short  type:         ", "double minValue:     ", "double maxValue:     ",
          "long   maxRepeat:    ", "bool   isRequired:   "}) {
        EXPECT_NE(text.find(label), std::string::npos) << label;
    }
}
