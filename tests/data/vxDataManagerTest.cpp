// A chart's series as the data manager builds them from the data texts for
// each kind of chart: how many there are, how long, in which date order,
// and the stacks, positions and frequencies derived from them.
#include <gtest/gtest.h>

#include <cmath>

#include "Utilities/Sources/vxDateFormatIDs.h"
#include "charts/vxBaseChartParameters.h"
#include "charts/vxChartTypeTable.h"
#include "data/vxDataChartSeries.h"
#include "data/vxDataManager.h"
#include "data/vxDataRawInput.h"
#include "data/vxDataTestSupport.h"
#include "data/vxDataValueSeries.h"
#include "settings/vxError.h"
#include "settings/vxFormatSettings.h"
#include "settings/vxUserSettings.h"

namespace Velarix::test {
namespace {

struct Chart {
    vxUserSettings settings{L"", L"", 1, 1};
    vxDataManager data{&settings};
    vxBaseChartParameters parameters;

    // A chart function with its flags (the sum of the option bits).
    Chart(long function, short flags, const std::vector<std::wstring>& texts) {
        vxAssign chart;
        chart.setFunction(function);
        chart.addShort(flags);
        EXPECT_TRUE(vxSetUpChartParameters(function, chart, parameters));
        vxAssign values;
        setTexts(values, kChartData, texts);
        data.assign(values);
    }

    void setUp() {
        data.setUp(parameters);
        data.setUpChartSeries(parameters);
        if (!data.isError()) data.setUpStackedValues(parameters);
        if (!data.isError()) data.insertIntervalValues(parameters);
    }

    std::vector<double> values(long series, long valueSeries) {
        std::vector<double> out;
        for (long i = 0; i < data.getNumOfItems(series); ++i) {
            out.push_back(data.getValue(series, valueSeries, i));
        }
        return out;
    }

    short code() const { return data.getError()->getErrorCode(); }
};

TEST(DataManager, ChartSeriesByChartType) {
    struct Case {
        long function;
        std::vector<std::wstring> texts;
        long chartSeries;
        long valueSeries;  // interval series included
    };
    const Case cases[] = {
        {kBarChart1D, {L"1 2", L"3 4", L"5 6"}, 3, 2},
        {kBarChart2D, {L"1 2", L"3 4", L"5 6"}, 1, 2},  // the odd series is left over
        {kScatterChart2D, {L"1 2", L"3 4", L"5 6", L"7 8"}, 2, 2},
        {kBubbleChart2D, {L"1", L"2", L"3"}, 1, 3},
        {kCandlestickChart1D, {L"1", L"2", L"3", L"4"}, 1, 5},
        {kPieChart, {L"1 2 3"}, 1, 1},
        {kRadarChart, {L"1 2 3", L"4 5 6"}, 2, 2},
        {kPolarChart, {L"0 90", L"1 2"}, 1, 2},
    };
    for (const Case& c : cases) {
        Chart chart(c.function, 0, c.texts);
        chart.setUp();
        ASSERT_FALSE(chart.data.isError()) << c.function;
        EXPECT_EQ(chart.data.getNumOfChartSeries(), c.chartSeries) << c.function;
        EXPECT_EQ(chart.data.getNumOfValueSeries(0), c.valueSeries) << c.function;
    }
}

TEST(DataManager, TooLittleDataForOneChartSeries) {
    for (long function : {kBarChart1D, kScatterChart2D, kCandlestickChart1D}) {
        Chart chart(function, 0, {L"1 2 3"});
        if (function == kBarChart1D) chart.data.getRawInput()->getInputStrings().clear();
        chart.setUp();
        EXPECT_EQ(chart.code(), 1170) << function;
        EXPECT_EQ(chart.data.getError()->getLocation(), L"vxDataManager/setUpChartSeries/1");
    }
}

TEST(DataManager, ItemsAreTheShortestSeriesInWholeRecords) {
    Chart xy(kLineChart2D, 0, {L"1 2 3 4 5", L"6 7 8"});
    xy.setUp();
    EXPECT_EQ(xy.data.getNumOfItems(0), 3);
    EXPECT_EQ(xy.data.getValueSeries(0, 0)->size(), 3);

    Chart gantt(kGanttChart, 0, {L"1 2 3 4 5", L"1 2 3 4"});  // start and end pairs
    gantt.setUp();
    EXPECT_EQ(gantt.data.getNumOfItems(0), 4);
    EXPECT_EQ(gantt.data.getNumOfItems(1), 4);

    // Each chart series keeps its own length; the smallest count stays 0.
    Chart bars(kBarChart1D, 0, {L"1 2 3 4 5", L"1 2 3"});
    bars.setUp();
    EXPECT_EQ(bars.data.getNumOfItems(0), 5);
    EXPECT_EQ(bars.data.getNumOfItems(1), 3);
    EXPECT_EQ(bars.data.getMaxNumOfItems(), 5);
    EXPECT_EQ(bars.data.getMinNumOfItems(), 0);
}

TEST(DataManager, IntervalPositions) {
    Chart bars(kBarChart1D, 0, {L"5 6 7"});
    bars.setUp();
    EXPECT_EQ(bars.values(0, 0), (std::vector<double>{0.5, 1.5, 2.5}));  // between the ticks
    EXPECT_EQ(bars.data.getDataType(0, 0), 1);

    Chart lines(kLineChart1D, 0, {L"5 6 7"});
    lines.setUp();
    EXPECT_EQ(lines.values(0, 0), (std::vector<double>{1, 2, 3}));

    Chart boxes(kBoxPlot, 0, {L"5 6 7", L"1 2"});  // one interval per series
    boxes.setUp();
    EXPECT_EQ(boxes.values(0, 0), (std::vector<double>{0.5, 0.5, 0.5}));
    EXPECT_EQ(boxes.values(1, 0), (std::vector<double>{1.5, 1.5}));
}

TEST(DataManager, RadarAnglesSpreadOverTheArc) {
    Chart full(kRadarChart, 0, {L"1 2 3 4"});
    full.setUp();
    const std::vector<double> angles = full.values(0, 0);
    ASSERT_EQ(angles.size(), 4u);
    for (int i = 0; i < 4; ++i) EXPECT_NEAR(angles[i], i * M_PI / 2, 1e-12);

    Chart part(kRadarChart, 0, {L"1 2 3"});
    part.parameters.setStartAngle(90);
    part.parameters.setArcAngle(180);
    part.setUp();
    const std::vector<double> half = part.values(0, 0);
    ASSERT_EQ(half.size(), 3u);
    EXPECT_NEAR(half[0], M_PI / 2, 1e-12);
    EXPECT_NEAR(half[1], M_PI, 1e-12);
    EXPECT_NEAR(half[2], 3 * M_PI / 2, 1e-12);
}

TEST(DataManager, StackedAndProportionalBars) {
    const short stacked = 16, proportional = 32;
    Chart split(kBarChart1D, stacked, {L"5 1", L"-3 null", L"2 4"});
    split.setUp();
    ASSERT_EQ(split.data.getNumOfStackedSeries(), 2);
    EXPECT_EQ(split.data.getStackedValue(0, 0), 5);
    EXPECT_EQ(split.data.getStackedValue(1, 0), -3);
    EXPECT_EQ(split.data.getStackedValue(2, 0), 7);
    EXPECT_EQ(split.data.getStackedValue(2, 1), 5);
    EXPECT_EQ(split.data.getMaxPositiveStackedSum(), 7);
    EXPECT_EQ(split.data.getMinNegativeStackedSum(), -3);
    // The positions of a stack are one per item.
    EXPECT_EQ(split.values(0, 0), (std::vector<double>{0.5, 1.5}));

    Chart parts(kBarChart1D, proportional, {L"1 3", L"3 1"});
    parts.setUp();
    EXPECT_TRUE(parts.parameters.isStacked());
    EXPECT_DOUBLE_EQ(parts.data.getProportionalValue(0, 0), 0.25);
    EXPECT_DOUBLE_EQ(parts.data.getProportionalValue(1, 0), 1.0);
    EXPECT_DOUBLE_EQ(parts.data.getProportionalValue(0, 1), 0.75);

    // Charts whose mask forbids stacking don't stack.
    Chart lines(kLineChart2D, stacked, {L"1 2", L"3 4"});
    lines.setUp();
    EXPECT_EQ(lines.data.getNumOfStackedSeries(), 0);
}

TEST(DataManager, DateOrderSettledForTheWholeChart) {
    struct Case {
        std::vector<std::wstring> texts;
        short settingsOrder;
        double firstMinusSecond;  // days between the first two dates
        short foundOrder;
    };
    const Case cases[] = {
        // The second series shows day first; the first series follows it.
        {{L"1/2/2004 1/3/2004", L"13/5/2004 14/5/2004"}, -1, -29, 3},
        {{L"1/2/2004 1/3/2004"}, -1, -1, 2},   // open: month first
        {{L"1.2.2004 1.3.2004"}, -1, -29, 3},  // a point: day first
        {{L"1/2/2004 1/3/2004"}, 3, -29, 3},   // the settings' order
        {{L"2004-2-1 2004-3-1"}, -1, -29, 1},  // year first
    };
    for (const Case& c : cases) {
        Chart chart(kLineChart1D, 0, c.texts);
        chart.settings.getFormatSettings()->setDateOrderID(c.settingsOrder);
        chart.setUp();
        ASSERT_FALSE(chart.data.isError()) << chart.data.getError()->getAddlInfo();
        EXPECT_EQ(chart.data.getValue(0, 1, 0) - chart.data.getValue(0, 1, 1), c.firstMinusSecond)
            << c.texts[0];
        EXPECT_EQ(chart.settings.getFormatSettings()->getDateOrderID(), c.foundOrder);
    }
}

TEST(DataManager, OpenDateOrderAgainstYearFirstSettings) {
    Chart chart(kLineChart1D, 0, {L"1/2/2004"});
    chart.settings.getFormatSettings()->setDateOrderID(1);
    chart.setUp();
    EXPECT_EQ(chart.code(), 2010);
    EXPECT_EQ(chart.data.getError()->getLocation(), L"vxDataManager/determineDateTimeOrder/1");
}

TEST(DataManager, SeparatorsAndYearFormatGoToTheSettings) {
    Chart chart(kLineChart1D, 0, {L"13-5-04&10'30"});
    chart.setUp();
    ASSERT_FALSE(chart.data.isError());
    const vxFormatSettings* format = chart.settings.getFormatSettings();
    EXPECT_EQ(format->getDateSeparatorID(), 0);
    EXPECT_EQ(format->getTimeSeparatorID(), 1);
    EXPECT_EQ(format->getYearFormatID(), vxDateFormatID::kYY);
    EXPECT_EQ(format->getMonthFormatID(), vxDateFormatID::kMM);
    // The mark of a date with a time is gone from the series.
    EXPECT_GT(chart.data.getValue(0, 1, 0), 0.0);
}

TEST(DataManager, DataFrequencies) {
    Chart chart(kHistogram, 0, {L"1 2 2 3 3 3", L"3 5 5"});
    chart.setUp();
    chart.data.setUpDataFrequencies();
    ASSERT_FALSE(chart.data.isError());
    EXPECT_EQ(chart.values(0, 1), (std::vector<double>{1, 2, 3, 0}));
    EXPECT_EQ(chart.values(1, 1), (std::vector<double>{0, 0, 1, 2}));
}

TEST(DataManager, RangeFrequenciesOverAllSeries) {
    Chart chart(kHistogram, 0, {L"0 1 2 3 4", L"5 6 7 8 9 10"});
    chart.setUp();
    chart.data.setUpRangeFrequencies(0, 0, false, false, 2, false, true);
    ASSERT_FALSE(chart.data.isError());
    // Bins [0, 5) and [5, 10): 10 lies beyond the last and no open end
    // takes it.
    EXPECT_EQ(chart.values(0, 1), (std::vector<double>{5, 0}));
    EXPECT_EQ(chart.values(1, 1), (std::vector<double>{0, 5}));
}

TEST(DataManager, SortIndices) {
    Chart chart(kBarChart1D, 0, {L"3 null 1 2", L"1 1 1 1"});
    chart.setUp();
    chart.data.sortChartSeries(0, 1, false);
    EXPECT_EQ(chart.data.getSortIndex(0), 2);
    EXPECT_EQ(chart.data.getSortIndex(1), 3);
    EXPECT_EQ(chart.data.getSortIndex(2), 0);
    EXPECT_EQ(chart.data.getSortIndex(3), 1);  // the invalid value last
    chart.data.sortChartSeries(0, 2, true);    // by the totals 4, 1, 2, 3
    EXPECT_EQ(chart.data.getSortIndex(0), 0);
    EXPECT_EQ(chart.data.getSortIndex(3), 1);
}

TEST(DataManager, MillionValuesInOneSeries) {
    std::wstring text;
    for (int i = 0; i < 1'000'000; ++i) text += std::to_wstring(i % 1000) + L' ';
    Chart chart(kLineChart1D, 0, {text});
    chart.setUp();
    ASSERT_FALSE(chart.data.isError());
    ASSERT_EQ(chart.data.getNumOfItems(0), 1'000'000);
    vxDataValueSeries* values = chart.data.getValueSeries(0, 1);
    EXPECT_EQ(values->getSum(), 499'500'000.0);
    EXPECT_EQ(values->getMedian(), 499.5);
}

// Values at the ends of what a double and the calendar hold are read, and
// those beyond the default limits are gaps.
TEST(DataManager, ValuesAtTheEdges) {
    Chart numbers(kLineChart1D, 0, {L"1e308 1e309 -1e309 4.9e-324 -0 0.0000001"});
    numbers.setUp();
    ASSERT_FALSE(numbers.data.isError());
    vxDataValueSeries* n = numbers.data.getValueSeries(0, 1);
    EXPECT_EQ(n->size(), 6);
    EXPECT_EQ(n->getNumOfInvalidValues(), 2);
    EXPECT_EQ(n->getMaxValue(), 1e308);
    EXPECT_EQ(n->value(3), 4.9e-324);

    Chart dates(kLineChart1D, 0, {L"1/1/0001 31/12/9999 29/2/2000 1/1/1900&23:59:59.999"});
    dates.setUp();
    ASSERT_FALSE(dates.data.isError()) << dates.data.getError()->getAddlInfo();
    vxDataValueSeries* d = dates.data.getValueSeries(0, 1);
    EXPECT_EQ(d->value(0), 1721426.0);  // 1 January of the year 1
    EXPECT_EQ(d->value(1), 5373484.0);  // 31 December 9999
    EXPECT_EQ(d->value(2), 2451604.0);
    EXPECT_DOUBLE_EQ(d->value(3), 2415021.0 + 86399999e-8);
}

TEST(DataManager, FirstBadValueStopsTheSeries) {
    Chart chart(kBarChart1D, 0, {L"1 2", L"3 x 5"});
    chart.setUp();
    EXPECT_EQ(chart.code(), 2010);
    EXPECT_EQ(chart.data.getError()->getAddlInfo(), L"Series 2, Element 2: x");
    EXPECT_EQ(chart.data.getNumOfChartSeries(), 1);
}

}  // namespace
}  // namespace Velarix::test
