#include <gtest/gtest.h>

#include <cmath>
#include <memory>
#include <vector>

#include "data/vxDataValueSeries.h"
#include "settings/vxErrorCodes.h"

namespace Velarix {
namespace {

constexpr double kInvalid = vxDataValueSeries::kInvalidValue;
constexpr double kLower = vxDataValueSeries::kDefaultLowerLimit;
constexpr double kUpper = vxDataValueSeries::kDefaultUpperLimit;

std::unique_ptr<vxDataValueSeries> makeSeries(std::vector<double> values, double lower = kLower,
                                              double upper = kUpper, short option = 0) {
    auto series = std::make_unique<vxDataValueSeries>();
    series->fill(std::move(values), vxDataValueSeries::kNumberType, lower, upper, option);
    return series;
}

TEST(vxDataFrequenciesTest, CategoriesAreTheDistinctValidValuesInOrder) {
    auto series = makeSeries({3, kInvalid, 1, 3, 2, 1, 9}, kLower, 5);
    series->setUpCategories();
    EXPECT_EQ(series->getCategories(), (std::vector<double>{1, 2, 3}));
    // The values keep their order.
    EXPECT_EQ(series->value(0), 3.0);

    auto descending = makeSeries({4, 8, 4, 6}, kLower, kUpper, 3);
    descending->setUpCategories();
    EXPECT_EQ(descending->getCategories(), (std::vector<double>{4, 6, 8}));

    auto zeros = makeSeries({0.0, -0.0, 1});
    zeros->setUpCategories();
    EXPECT_EQ(zeros->getCategories().size(), 2u);

    vxDataValueSeries other;
    other.attachCategories(*series);
    EXPECT_EQ(other.getCategories(), series->getCategories());
    EXPECT_EQ(other.size(), 0);
}

TEST(vxDataFrequenciesTest, DataFrequenciesCountEachCategory) {
    auto series = makeSeries({2, 5, 2, kInvalid, 7, 2, 5, 9}, kLower, 8);
    series->setUpDataFrequencies({1, 2, 5, 7, 9});
    EXPECT_EQ(series->getValues(), (std::vector<double>{0, 3, 2, 1, 0}));
    EXPECT_EQ(series->getCategories(), (std::vector<double>{1, 2, 5, 7, 9}));
    EXPECT_EQ(series->getLowerLimit(), kLower);
    EXPECT_EQ(series->getUpperLimit(), kUpper);
    EXPECT_EQ(series->getSum(), 6.0);
    EXPECT_EQ(series->getDataType(), vxDataValueSeries::kNumberType);

    // Equality is exact, and the series' own categories may be passed.
    auto own = makeSeries({0.5, 0.1 + 0.2, 0.3, 0.5});
    own->setUpCategories();
    own->setUpDataFrequencies(own->getCategories());
    EXPECT_EQ(own->getValues(), (std::vector<double>{1, 1, 2}));
}

struct RangeCase {
    bool leftClosed;
    bool openEnds;
    std::vector<double> counts;
    std::vector<double> categories;
};

TEST(vxDataFrequenciesTest, RangeFrequenciesPlaceValuesOnEdgesByTheClosure) {
    // Range 0 to 10 in five classes of 2; worked out by hand.
    const RangeCase cases[] = {
        // [0,2) [2,4) [4,6) [6,8) [8,10): 10 lies beyond the last class.
        {true, false, {2, 2, 1, 0, 1}, {0, 2, 4, 6, 8}},
        {true, true, {1, 2, 2, 1, 0, 1, 2}, {0, 2, 4, 6, 8, 10, 12}},
        // (0,2] (2,4] (4,6] (6,8] (8,10]: 0 lies before the first class.
        {false, false, {2, 2, 0, 0, 2}, {0, 2, 4, 6, 8}},
        {false, true, {2, 2, 2, 0, 0, 2, 1}, {0, 2, 4, 6, 8, 10, 12}},
    };
    for (const RangeCase& c : cases) {
        auto series = makeSeries({-1, 0, 1, 2, 3.999, 4, 9, 10, 11, kInvalid, 40}, kLower, 20);
        series->setUpRangeFrequencies(c.leftClosed, c.openEnds, 0, 10, 5);
        EXPECT_FALSE(series->isError());
        EXPECT_EQ(series->getValues(), c.counts) << c.leftClosed << c.openEnds;
        EXPECT_EQ(series->getCategories(), c.categories) << c.leftClosed << c.openEnds;
        EXPECT_EQ(series->getUpperLimit(), kUpper);
    }
}

TEST(vxDataFrequenciesTest, ARangeWithoutWidthHoldsItsValue) {
    auto closed = makeSeries({5, 4, 6, 5});
    closed->setUpRangeFrequencies(true, false, 5, 5, 1);
    EXPECT_EQ(closed->getValues(), (std::vector<double>{2}));
    auto open = makeSeries({5, 4, 6, 5});
    open->setUpRangeFrequencies(true, true, 5, 5, 1);
    EXPECT_EQ(open->getValues(), (std::vector<double>{1, 2, 1}));
}

TEST(vxDataFrequenciesTest, RangeFrequenciesReportAClassBeyondTheLast) {
    struct ErrorCase {
        bool leftClosed;
        double value;
        long intervals;
        short code;
        const wchar_t* location;
    } cases[] = {
        // Shifted onto the upper end, the value falls into a class past it.
        {true, 1 - 1e-9, 1, vxErrRuntime::kIndexOutOfRange,
         L"vxDataValueSeries/setUpRangeFrequencies/2"},
        {false, 1 + 1e-9, 1, vxErrRuntime::kIndexOutOfRange,
         L"vxDataValueSeries/setUpRangeFrequencies/3"},
        {true, 0.5, 0, vxErrRuntime::kDivisionByZero, L"vxDataValueSeries/setUpRangeFrequencies/4"},
    };
    for (const ErrorCase& c : cases) {
        auto series = makeSeries({0.5, c.value});
        series->setUpRangeFrequencies(c.leftClosed, false, 0, 1, c.intervals);
        ASSERT_TRUE(series->isError());
        EXPECT_EQ(series->getError()->getErrorCode(), c.code);
        EXPECT_EQ(series->getError()->getLocation(), c.location);
        EXPECT_EQ(series->getValues(), (std::vector<double>{0.5, c.value}));
    }
}

}  // namespace
}  // namespace Velarix
