#include "data/vxDataValueSeries.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <memory>
#include <vector>

namespace Velarix {
namespace {

constexpr double kInvalid = vxDataValueSeries::kInvalidValue;
constexpr double kLower = vxDataValueSeries::kDefaultLowerLimit;
constexpr double kUpper = vxDataValueSeries::kDefaultUpperLimit;
constexpr short kNumber = vxDataValueSeries::kNumberType;
constexpr short kDateTime = vxDataValueSeries::kDateTimeType;

std::unique_ptr<vxDataValueSeries> makeSeries(std::vector<double> values, short option = 0,
                                              short type = kNumber, double lower = kLower,
                                              double upper = kUpper) {
    auto series = std::make_unique<vxDataValueSeries>();
    series->fill(std::move(values), type, lower, upper, option);
    return series;
}

TEST(vxDataValueSeriesTest, FillMovesTheValuesInAndKeepsGaps) {
    std::vector<double> values = {1, kInvalid, 3, 4, 5};
    const double* storage = values.data();
    vxDataValueSeries series;
    series.fill(std::move(values), kNumber, 3, 4, 0);
    EXPECT_EQ(series.getValues().data(), storage);
    EXPECT_EQ(series.size(), 5);
    EXPECT_EQ(series.value(1), kInvalid);
    // Both limits belong to the valid range.
    const bool valid[] = {false, false, true, true, false};
    for (long i = 0; i < 5; ++i) EXPECT_EQ(series.isValid(i), valid[i]) << i;
    EXPECT_EQ(series.getNumOfValidValues(), 2);
    EXPECT_EQ(series.getMean(), 3.5);
    EXPECT_EQ(series.value(-1), kInvalid);
    EXPECT_EQ(series.value(5), kInvalid);
    EXPECT_FALSE(series.isValid(5));
    EXPECT_EQ(series.getNumOfDateComponents(), -1);
    EXPECT_EQ(series.getNumOfTimeComponents(), -1);

    // The default limits leave only the invalid value outside.
    auto wide = makeSeries({kLower, kInvalid, kUpper, -1e308});
    EXPECT_EQ(wide->getNumOfInvalidValues(), 1);
    EXPECT_FALSE(wide->isValid(1));
}

TEST(vxDataValueSeriesTest, DateTimeValuesLoseTheirMarkAndAreCounted) {
    const double day = 2451545.0;          // 1 January 2000
    auto series = makeSeries({-day,        // written with date and time 00:00
                              day,         // a date
                              0.5,         // a time
                              day + 1.25,  // a date with a time
                              kInvalid,    // stays as it is
                              1.0,         // the end of a day: neither
                              0.0,         // no sign to tell: taken as marked
                              day + 55},
                             0, kDateTime);
    const std::vector<double> expected = {day, day, 0.5, day + 1.25, kInvalid, 1.0, 0.0, day + 55};
    EXPECT_EQ(series->getValues(), expected);
    EXPECT_FALSE(std::signbit(series->value(6)));
    EXPECT_EQ(series->getNumOfDateComponents(), 5);
    EXPECT_EQ(series->getNumOfTimeComponents(), 4);

    // The mark goes before the limits look at a value: a lower limit of 0
    // keeps a date written with a time; the missing value stays missing.
    auto limited = makeSeries({-day, day + 0.5, kInvalid}, 0, kDateTime, 0.0, kUpper);
    EXPECT_EQ(limited->value(0), day);
    EXPECT_EQ(limited->value(2), kInvalid);
    EXPECT_EQ(limited->getNumOfDateComponents(), 2);
    EXPECT_EQ(limited->getNumOfTimeComponents(), 2);

    // The counts are taken before the option and kept by it.
    auto unique = makeSeries({day + 0.5, day + 0.5, day}, 6, kDateTime);
    EXPECT_EQ(unique->size(), 2);
    EXPECT_EQ(unique->getNumOfDateComponents(), 3);
    EXPECT_EQ(unique->getNumOfTimeComponents(), 2);
    unique->applyOption(1);
    EXPECT_EQ(unique->getNumOfDateComponents(), 3);

    EXPECT_EQ(makeSeries({-day})->value(0), -day);
}

TEST(vxDataValueSeriesTest, EachOptionReordersAndThinsTheValues) {
    struct OptionCase {
        short option;
        std::vector<double> values;
        bool ascending, descending, unique;
    } cases[] = {
        {0, {3, 1, kInvalid, 3, 2, 1}, false, false, false},
        {1, {1, 2, 3, kInvalid, 1, 3}, false, false, false},
        {2, {kInvalid, 1, 1, 2, 3, 3}, true, false, false},
        {3, {3, 3, 2, 1, 1, kInvalid}, false, true, false},
        {4, {3, 1, kInvalid, 2}, false, false, true},
        {5, {2, kInvalid, 1, 3}, false, false, true},
        {6, {kInvalid, 1, 2, 3}, true, false, true},
        {7, {3, 2, 1, kInvalid}, false, true, true},
        {8, {3, 1, kInvalid, 3, 2, 1}, false, false, false},
        {-1, {3, 1, kInvalid, 3, 2, 1}, false, false, false},
    };
    for (const OptionCase& c : cases) {
        auto series = makeSeries({3, 1, kInvalid, 3, 2, 1}, c.option);
        EXPECT_EQ(series->getValues(), c.values) << "option " << c.option;
        EXPECT_EQ(series->isAscendingSorted(), c.ascending) << "option " << c.option;
        EXPECT_EQ(series->isDescendingSorted(), c.descending) << "option " << c.option;
        EXPECT_EQ(series->isUnique(), c.unique) << "option " << c.option;
        EXPECT_EQ(series->getSum(), c.unique ? 6.0 : 10.0) << "option " << c.option;
    }
}

TEST(vxDataValueSeriesTest, DuplicatesGoInEachSortStateAndReversingTurnsTheOrder) {
    auto ascending = makeSeries({2, 9, 2, kInvalid, 9, kInvalid}, 2);
    ascending->applyOption(4);
    EXPECT_EQ(ascending->getValues(), (std::vector<double>{kInvalid, 2, 9}));
    EXPECT_TRUE(ascending->isAscendingSorted());

    auto descending = makeSeries({2, 9, 2, kInvalid, 9, kInvalid}, 3);
    descending->applyOption(4);
    EXPECT_EQ(descending->getValues(), (std::vector<double>{9, 2, kInvalid}));
    EXPECT_TRUE(descending->isDescendingSorted());
    EXPECT_TRUE(descending->isUnique());
    // Reversed again, it is ascending; statistics read it in either order.
    descending->applyOption(1);
    EXPECT_TRUE(descending->isAscendingSorted());
    EXPECT_EQ(descending->getMedian(), 5.5);

    // Unsorted, the first occurrence stays where it was; 0 and -0 are equal.
    auto unsorted = makeSeries({0.0, 5, -0.0, 7, 5, 0.0, -1, 7}, 4);
    EXPECT_EQ(unsorted->getValues(), (std::vector<double>{0, 5, 7, -1}));
    EXPECT_FALSE(std::signbit(unsorted->value(0)));
    auto negativeFirst = makeSeries({-0.0, 0.0}, 4);
    ASSERT_EQ(negativeFirst->size(), 1);
    EXPECT_TRUE(std::signbit(negativeFirst->value(0)));
}

TEST(vxDataValueSeriesTest, ResizeCutsOrPadsWithInvalidValues) {
    auto series = makeSeries({1, 2, 3, 4}, 6);
    EXPECT_EQ(series->getSum(), 10.0);
    series->resize(2);
    EXPECT_EQ(series->getValues(), (std::vector<double>{1, 2}));
    EXPECT_EQ(series->getSum(), 3.0);
    EXPECT_TRUE(series->isAscendingSorted());
    series->resize(4);
    EXPECT_EQ(series->getValues(), (std::vector<double>{1, 2, kInvalid, kInvalid}));
    EXPECT_EQ(series->getNumOfInvalidValues(), 2);
    EXPECT_EQ(series->getMedian(), 1.5);
    EXPECT_FALSE(series->isAscendingSorted());
    EXPECT_FALSE(series->isUnique());
    series->resize(-3);
    EXPECT_EQ(series->size(), 0);
    EXPECT_EQ(series->getSum(), 0.0);
}

TEST(vxDataValueSeriesTest, DropFractionsKeepsTheWholePartOfValidValues) {
    auto series = makeSeries({1.75, -2.5, kInvalid, 3.9, 2.25}, 0, kNumber, kLower, 3);
    EXPECT_DOUBLE_EQ(series->getSum(), 1.5);
    series->dropFractions();
    EXPECT_EQ(series->getValues(), (std::vector<double>{1, -2, kInvalid, 3.9, 2}));
    EXPECT_EQ(series->getSum(), 1.0);
}

TEST(vxDataValueSeriesTest, FillAndLimitsClearTheStatistics) {
    vxDataValueSeries series;
    series.fill({1, 2, 3, 10}, kNumber, kLower, kUpper, 0);
    EXPECT_EQ(series.getSum(), 16.0);
    EXPECT_EQ(series.getMedian(), 2.5);
    EXPECT_EQ(series.getMinDifference(), 1.0);
    series.fill({10, 20}, kNumber, kLower, kUpper, 0);
    EXPECT_EQ(series.getSum(), 30.0);
    EXPECT_EQ(series.getMedian(), 15.0);
    EXPECT_EQ(series.getMinDifference(), 10.0);
    EXPECT_EQ(series.getNumOfInvalidValues(), 0);

    series.fill({1, 2, 3, 10}, kNumber, kLower, kUpper, 0);
    EXPECT_EQ(series.getStandardDeviation(), std::sqrt(12.5));
    series.setLowerLimit(2);
    EXPECT_EQ(series.getLowerLimit(), 2.0);
    EXPECT_EQ(series.getSum(), 15.0);
    EXPECT_EQ(series.getMedian(), 3.0);
    EXPECT_EQ(series.getStandardDeviation(), std::sqrt(38.0 / 3.0));
    EXPECT_EQ(series.getNumOfInvalidValues(), 1);
    series.setUpperLimit(3);
    EXPECT_EQ(series.getUpperLimit(), 3.0);
    EXPECT_EQ(series.getMaxValue(), 3.0);
    EXPECT_EQ(series.getMinDifference(), 1.0);
    EXPECT_EQ(series.percentile(100), 3.0);
    EXPECT_EQ(series.getNumOfValidValues(), 2);
}

TEST(vxDataValueSeriesTest, CopyTakesEveryFieldAndNullClears) {
    auto from = makeSeries({5, kInvalid, 1, 3}, 0, kDateTime, 0, 4);
    from->setUpCategories();
    vxDataValueSeries to;
    to.copy(from.get());
    EXPECT_EQ(to.getValues(), from->getValues());
    EXPECT_EQ(to.getCategories(), (std::vector<double>{1, 3}));
    EXPECT_EQ(to.getUpperLimit(), 4.0);
    EXPECT_EQ(to.getNumOfDateComponents(), 1);
    EXPECT_EQ(to.percentile(100), 3.0);
    to.copy(nullptr);
    EXPECT_EQ(to.size(), 0);
    EXPECT_EQ(to.getLowerLimit(), kLower);
    EXPECT_EQ(to.getNumOfDateComponents(), -1);
}

}  // namespace
}  // namespace Velarix
