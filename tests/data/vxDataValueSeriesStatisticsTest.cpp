#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <memory>
#include <string>
#include <vector>

#include "data/vxDataValueSeries.h"
#include "settings/vxErrorCodes.h"

namespace Velarix {
namespace {

constexpr double kInvalid = vxDataValueSeries::kInvalidValue;
constexpr double kLower = vxDataValueSeries::kDefaultLowerLimit;
constexpr double kUpper = vxDataValueSeries::kDefaultUpperLimit;
constexpr double kLargest = std::numeric_limits<double>::max();

std::unique_ptr<vxDataValueSeries> makeSeries(std::vector<double> values, double lower = kLower,
                                              double upper = kUpper) {
    auto series = std::make_unique<vxDataValueSeries>();
    series->fill(std::move(values), vxDataValueSeries::kNumberType, lower, upper, 0);
    return series;
}

using Statistic = double (*)(vxDataValueSeries&);

// The statistics in the order of the expected values below.
const Statistic kStatistics[] = {
    [](vxDataValueSeries& s) { return s.getSum(); },
    [](vxDataValueSeries& s) { return s.getAbsoluteSum(); },
    [](vxDataValueSeries& s) { return s.getPositiveSum(); },
    [](vxDataValueSeries& s) { return s.getNegativeSum(); },
    [](vxDataValueSeries& s) { return s.getMinValue(); },
    [](vxDataValueSeries& s) { return s.getMaxValue(); },
    [](vxDataValueSeries& s) { return s.getAbsoluteMinValue(); },
    [](vxDataValueSeries& s) { return s.getAbsoluteMaxValue(); },
    [](vxDataValueSeries& s) { return s.getPositiveMinValue(); },
    [](vxDataValueSeries& s) { return s.getPositiveMaxValue(); },
    [](vxDataValueSeries& s) { return s.getNegativeMinValue(); },
    [](vxDataValueSeries& s) { return s.getNegativeMaxValue(); },
    [](vxDataValueSeries& s) { return s.getMinDifference(); },
    [](vxDataValueSeries& s) { return s.getMean(); },
    [](vxDataValueSeries& s) { return s.getRootMeanSquare(); },
    [](vxDataValueSeries& s) { return s.getMedian(); },
    [](vxDataValueSeries& s) { return s.getMeanDeviation(); },
    [](vxDataValueSeries& s) { return s.getMedianDeviation(); },
    [](vxDataValueSeries& s) { return s.getStandardDeviation(); },
    [](vxDataValueSeries& s) { return s.getStandardError(); },
    [](vxDataValueSeries& s) { return s.getVariance(); },
    [](vxDataValueSeries& s) { return s.getMoment(1); },
    [](vxDataValueSeries& s) { return s.getMoment(2); },
    [](vxDataValueSeries& s) { return s.getMoment(3); },
    [](vxDataValueSeries& s) { return s.getMoment(4); },
    [](vxDataValueSeries& s) { return s.getMomentMean(1); },
    [](vxDataValueSeries& s) { return s.getMomentMean(2); },
    [](vxDataValueSeries& s) { return s.getMomentMean(3); },
    [](vxDataValueSeries& s) { return s.getMomentMean(4); },
};

struct StatisticCase {
    const char* name;
    std::vector<double> values;
    double lower, upper;
    std::vector<double> expected;
};

// Expected values from a short script of the textbook definitions over the
// valid values (divisor n), run outside the engine. In order: sum, |sum|,
// positive and negative sums; min, max, |min|, |max|; positive min and max,
// negative min and max; min difference, mean, RMS, median; mean and median
// deviation, SD, SE, variance; moments 1 to 4 about 0, then about the mean.
// clang-format off
const StatisticCase kCases[] = {
    {"gaps", {3, kInvalid, -2, 5, kInvalid, 4, -1, 0}, kLower, kUpper,
     {9, 15, 12, -3,  -2, 5, 0, 5,  3, 5, -2, -1,  1, 1.5, 3.0276503540974917, 1.5,
      2.5, 2.5, 2.6299556396765835, 1.0736748938937606, 6.916666666666668,
      1.5, 9.166666666666666, 34.5, 163.16666666666666,  0, 6.916666666666667, 0, 64.72916666666667}},
    {"limits exclude values", {-4, 1, 2, 8, 3, 10, 2}, 0, 9,
     {16, 16, 16, 0,  1, 8, 1, 8,  1, 8, 0, 0,  1, 3.2, 4.049691346263317, 2,
      1.92, 1.6, 2.4819347291981715, 1.1099549540409286, 6.16,
      3.2, 16.4, 111.2, 842,  0, 6.16, 19.296, 111.6832}},
    {"all negative", {-5, -1.5, -3, -0.5}, kLower, kUpper,
     {-10, 10, 0, -10,  -5, -0.5, 0.5, 5,  0, 0, -5, -0.5,  1, -2.5, 3.020761493398643, -2.25,
      1.5, 1.5, 1.695582495781317, 0.8477912478906585, 2.875,
      -2.5, 9.125, -38.875, 177.78125,  0, 2.875, -1.6875, 14.03125}},
    {"standard deviation 2", {2, 4, 4, 4, 5, 5, 7, 9}, kLower, kUpper,
     {40, 40, 40, 0,  2, 9, 2, 9,  2, 9, 0, 0,  1, 5, 5.385164807134504, 4.5,
      1.5, 1.5, 2, 0.7071067811865475, 4,
      5, 29, 190.25, 1374.5,  0, 4, 5.25, 44.5}},
};
// clang-format on

TEST(vxDataValueSeriesStatisticsTest, EveryStatisticOverTheValidValues) {
    for (const StatisticCase& c : kCases) {
        ASSERT_EQ(c.expected.size(), std::size(kStatistics)) << c.name;
        // A fresh series per statistic computes its own group first; the
        // shared one answers the later ones from its cache.
        auto shared = makeSeries(c.values, c.lower, c.upper);
        for (std::size_t i = 0; i < std::size(kStatistics); ++i) {
            auto alone = makeSeries(c.values, c.lower, c.upper);
            const double tolerance = 1e-12 * std::max(1.0, std::fabs(c.expected[i]));
            EXPECT_NEAR(kStatistics[i](*alone), c.expected[i], tolerance) << c.name << " " << i;
            EXPECT_NEAR(kStatistics[i](*shared), c.expected[i], tolerance) << c.name << " " << i;
        }
        EXPECT_FALSE(shared->isError()) << c.name;
    }
    EXPECT_EQ(makeSeries({2, 4, 4, 4, 5, 5, 7, 9})->getStandardDeviation(), 2.0);
}

TEST(vxDataValueSeriesStatisticsTest, MomentsAboutAnOriginAndOrdersOutOfRange) {
    auto series = makeSeries({1, 2, kInvalid, 6});
    // (1-2)^k, (2-2)^k, (6-2)^k over 3.
    EXPECT_DOUBLE_EQ(series->getMomentOrigin(1, 2.0), 1.0);
    EXPECT_DOUBLE_EQ(series->getMomentOrigin(2, 2.0), 17.0 / 3.0);
    EXPECT_DOUBLE_EQ(series->getMomentOrigin(3, 2.0), 63.0 / 3.0);
    EXPECT_DOUBLE_EQ(series->getMomentOrigin(4, 2.0), 257.0 / 3.0);
    EXPECT_EQ(series->getMomentOrigin(0, 2.0), 0.0);
    EXPECT_EQ(series->getMomentOrigin(5, 2.0), 0.0);
    EXPECT_EQ(series->getMoment(0), 0.0);
    EXPECT_EQ(series->getMoment(5), 0.0);
    EXPECT_EQ(series->getMomentMean(-1), 0.0);
    EXPECT_FALSE(series->isError());
}

TEST(vxDataValueSeriesStatisticsTest, MedianOfOddAndEvenCounts) {
    EXPECT_EQ(makeSeries({5, 1, 3})->getMedian(), 3.0);
    EXPECT_EQ(makeSeries({4, 1, 3, 2})->getMedian(), 2.5);
    EXPECT_EQ(makeSeries({7})->getMedian(), 7.0);
    // The invalid values are no part of the count.
    EXPECT_EQ(makeSeries({kInvalid, 4, 1, kInvalid, 3})->getMedian(), 3.0);
    EXPECT_EQ(makeSeries({9, 4, 1, 3}, kLower, 8)->getMedian(), 3.0);
    // Halves are taken before the sum, which would overflow.
    EXPECT_DOUBLE_EQ(makeSeries({1.5e308, 1.7e308})->getMedian(), 1.6e308);
}

TEST(vxDataValueSeriesStatisticsTest, MinDifferenceSkipsEqualNeighbours) {
    EXPECT_EQ(makeSeries({1, 1, 2})->getMinDifference(), 1.0);
    EXPECT_EQ(makeSeries({10, 4, 4, 7.5, 10, 4})->getMinDifference(), 2.5);
    // A gap below the relative tolerance of the range counts as none.
    const double next = 1.0 + std::numeric_limits<double>::epsilon();
    EXPECT_EQ(makeSeries({0, 1, next})->getMinDifference(), 1.0);
    EXPECT_EQ(makeSeries({3})->getMinDifference(), -1.0);
    EXPECT_EQ(makeSeries({3, 3, 3})->getMinDifference(), -1.0);
    EXPECT_EQ(makeSeries({3, kInvalid, 5})->getMinDifference(), 2.0);
}

TEST(vxDataValueSeriesStatisticsTest, PercentileInterpolatesAndHoldsItsEnds) {
    // Sorted: 2 4 4 4 5 5 7 9; q = trunc(p * 0.01 * 8).
    struct PercentileCase {
        double p;
        double expected;
    } cases[] = {
        {-30, 0},  // q < 0
        {-5, 2},   // q truncates to 0: the first value
        {0, 2},     {10, 2},  {12.5, 2}, {25, 4}, {50, 4}, {80, 5.8},  // 5 + (7 - 5) * 0.4
        {99, 8.84},                                                    // 7 + (9 - 7) * 0.92
        {100, 9},   {150, 9},
    };
    auto series = makeSeries({9, 4, 7, 2, 5, 4, 5, 4});
    for (const PercentileCase& c : cases) {
        EXPECT_NEAR(series->percentile(c.p), c.expected, 1e-12) << "p = " << c.p;
    }
    // Invalid values and values beyond the limits play no part:
    // -2 -1 0 3 4 5 at 60 is 0 + 3 * 0.6; 1 2 2 3 8 at 30 is 1 + 1 * 0.5.
    EXPECT_NEAR(makeSeries({3, kInvalid, -2, 5, kInvalid, 4, -1, 0})->percentile(60), 1.8, 1e-12);
    EXPECT_NEAR(makeSeries({-4, 1, 2, 8, 3, 10, 2}, 0, 9)->percentile(30), 1.5, 1e-12);
    EXPECT_EQ(makeSeries({kInvalid})->percentile(50), 0.0);
    EXPECT_EQ(series->percentile(std::nan("")), 0.0);
}

TEST(vxDataValueSeriesStatisticsTest, GeometricAndHarmonicMeans) {
    auto series = makeSeries({1, 2, 4, 8, kInvalid});
    EXPECT_DOUBLE_EQ(series->getGeometricMean(), 2.82842712474619);
    EXPECT_DOUBLE_EQ(series->getHarmonicMean(), 2.1333333333333333);
    EXPECT_DOUBLE_EQ(makeSeries({-1, -2})->getHarmonicMean(), -4.0 / 3.0);
    // A value outside the limits raises nothing.
    EXPECT_DOUBLE_EQ(makeSeries({0, 4, 9}, 1, kUpper)->getGeometricMean(), 6.0);
    EXPECT_FALSE(series->isError());
}

TEST(vxDataValueSeriesStatisticsTest, MeansThatCannotBeTakenRaiseTheirErrors) {
    struct ErrorCase {
        std::vector<double> values;
        bool geometric;
        short code;
        const wchar_t* location;
    } cases[] = {
        {{4, 0, 2}, true, vxErrRuntime::kLogarithm, L"vxDataValueSeries/calculateGeometricMean/1"},
        {{4, -2}, true, vxErrRuntime::kLogarithm, L"vxDataValueSeries/calculateGeometricMean/1"},
        {{4, 5e-11}, true, vxErrRuntime::kLogarithm, L"vxDataValueSeries/calculateGeometricMean/1"},
        {{4, -5e-11},
         false,
         vxErrRuntime::kDivisionByZero,
         L"vxDataValueSeries/calculateHarmonicMean/1"},
        {{2, -2},
         false,
         vxErrRuntime::kDivisionByZero,
         L"vxDataValueSeries/calculateHarmonicMean/2"},
    };
    for (const ErrorCase& c : cases) {
        auto series = makeSeries(c.values);
        double result = c.geometric ? series->getGeometricMean() : series->getHarmonicMean();
        EXPECT_EQ(result, 0.0);
        ASSERT_TRUE(series->isError());
        EXPECT_EQ(series->getError()->getErrorCode(), c.code);
        EXPECT_EQ(series->getError()->getLocation(), c.location);
    }
}

TEST(vxDataValueSeriesStatisticsTest, NoValidValueLeavesTheInitialValues) {
    struct NoneValid {
        std::vector<double> values;
        double upper;
    } cases[] = {{{}, kUpper}, {{kInvalid, kInvalid}, kUpper}, {{1, 2}, 0}};
    for (const NoneValid& c : cases) {
        auto series = makeSeries(c.values, kLower, c.upper);
        EXPECT_EQ(series->getMinValue(), kLargest);
        EXPECT_EQ(series->getMaxValue(), -kLargest);
        EXPECT_EQ(series->getMinDifference(), -1.0);
        EXPECT_EQ(series->getSum(), 0.0);
        EXPECT_EQ(series->getMean(), 0.0);
        EXPECT_EQ(series->getMedian(), 0.0);
        EXPECT_EQ(series->getStandardDeviation(), 0.0);
        EXPECT_EQ(series->getMedianDeviation(), 0.0);
        EXPECT_EQ(series->getGeometricMean(), 0.0);
        EXPECT_EQ(series->getHarmonicMean(), 0.0);
        EXPECT_EQ(series->getMomentOrigin(2, 1.0), 0.0);
        EXPECT_EQ(series->getNumOfValidValues(), 0);
        EXPECT_FALSE(series->isError());
    }
}

}  // namespace
}  // namespace Velarix
