#include "data/vxDataChartSeries.h"

#include <gtest/gtest.h>

#include <sstream>
#include <vector>

#include "settings/vxErrorCodes.h"

namespace Velarix {
namespace {

constexpr double kInvalid = vxDataValueSeries::kInvalidValue;
constexpr double kLower = vxDataValueSeries::kDefaultLowerLimit;
constexpr double kUpper = vxDataValueSeries::kDefaultUpperLimit;

// An interval series and a data series of three items.
void fillChartSeries(vxDataChartSeries& chartSeries) {
    vxDataValueSeries* interval = chartSeries.addValueSeries();
    vxDataValueSeries* data = chartSeries.addValueSeries();
    ASSERT_NE(interval, nullptr);
    ASSERT_NE(data, nullptr);
    interval->fill({1, 2, 3}, vxDataValueSeries::kIntervalType, kLower, kUpper, 0);
    data->fill({1, kInvalid, 3}, vxDataValueSeries::kNumberType, kLower, kUpper, 0);
    chartSeries.setNumOfItems(3);
}

TEST(vxDataChartSeriesTest, ForwardsReachTheValueSeriesByIndexOrGiveZero) {
    vxDataChartSeries chartSeries;
    fillChartSeries(chartSeries);
    EXPECT_EQ(chartSeries.getNumOfValueSeries(), 2);
    EXPECT_EQ(chartSeries.getNumOfItems(), 3);
    EXPECT_EQ(chartSeries.getDataType(0), vxDataValueSeries::kIntervalType);
    EXPECT_EQ(chartSeries.getValue(1, 1), kInvalid);
    EXPECT_FALSE(chartSeries.isValidValue(1, 1));
    EXPECT_TRUE(chartSeries.isValidValue(1, 2));
    EXPECT_EQ(chartSeries.getNumOfValues(1), 3);
    EXPECT_EQ(chartSeries.getNumOfValidValues(1), 2);
    EXPECT_EQ(chartSeries.getSum(0), 6.0);
    EXPECT_EQ(chartSeries.getSum(1), 4.0);
    EXPECT_EQ(chartSeries.getMedian(1), 2.0);
    EXPECT_EQ(chartSeries.getMoment(1, 2), 5.0);
    EXPECT_EQ(chartSeries.getMomentOrigin(1, 1, 1.0), 1.0);
    EXPECT_EQ(chartSeries.percentile(1, 100), 3.0);
    EXPECT_EQ(chartSeries.getUpperLimit(1), kUpper);

    for (long series : {-1L, 2L}) {
        EXPECT_EQ(chartSeries.getValueSeries(series), nullptr);
        EXPECT_EQ(chartSeries.getValue(series, 0), 0.0);
        EXPECT_FALSE(chartSeries.isValidValue(series, 0));
        EXPECT_EQ(chartSeries.getNumOfValues(series), 0);
        EXPECT_EQ(chartSeries.getMinValue(series), 0.0);
        EXPECT_EQ(chartSeries.getMomentMean(series, 2), 0.0);
        EXPECT_EQ(chartSeries.percentile(series, 50), 0.0);
    }
    EXPECT_FALSE(chartSeries.isError());
}

TEST(vxDataChartSeriesTest, AStatisticsErrorReachesTheChartSeries) {
    vxDataChartSeries chartSeries;
    fillChartSeries(chartSeries);
    chartSeries.getValueSeries(0)->fill({0, 2}, 2, kLower, kUpper, 0);
    EXPECT_EQ(chartSeries.getHarmonicMean(0), 0.0);
    ASSERT_TRUE(chartSeries.isError());
    EXPECT_EQ(chartSeries.getError()->getErrorCode(), vxErrRuntime::kDivisionByZero);
    EXPECT_EQ(chartSeries.getError()->getLocation(), L"vxDataValueSeries/calculateHarmonicMean/1");
}

TEST(vxDataChartSeriesTest, CopyIsDeepAndDumpGoesDown) {
    vxDataChartSeries from;
    fillChartSeries(from);
    vxDataChartSeries to;
    to.copy(&from);
    from.getValueSeries(1)->resize(1);
    EXPECT_EQ(to.getNumOfItems(), 3);
    ASSERT_EQ(to.getNumOfValueSeries(), 2);
    EXPECT_EQ(to.getNumOfValues(1), 3);
    EXPECT_EQ(to.getValue(1, 2), 3.0);

    std::ostringstream shallow, deep;
    to.dump(1, shallow);
    to.dump(2, deep);
    EXPECT_NE(shallow.str().find("long numOfItems:"), std::string::npos);
    EXPECT_EQ(shallow.str().find("vxDataValueSeries"), std::string::npos);
    EXPECT_NE(deep.str().find("vector<double> values:         1 -1.797693135e+308 3"),
              std::string::npos);
    EXPECT_NE(deep.str().find("bool hasSum:"), std::string::npos);

    to.copy(nullptr);
    EXPECT_EQ(to.getNumOfValueSeries(), 0);
    EXPECT_EQ(to.getNumOfItems(), 0);
}

}  // namespace
}  // namespace Velarix
