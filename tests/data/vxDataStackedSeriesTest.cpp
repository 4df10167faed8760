#include "data/vxDataStackedSeries.h"

#include <gtest/gtest.h>

#include <vector>

#include "settings/vxErrorCodes.h"

namespace Velarix {
namespace {

constexpr double kSkip = 1e300;  // marks a chart series without a value

struct StackCase {
    const char* name;
    double reference;
    bool split;
    std::vector<double> values;
    std::vector<double> stacked;
    double positiveSum, negativeSum;
    long maxPositiveIndex, maxNegativeIndex;
    long numOfPositive, numOfNegative;
};

// Worked out by hand: split, a value goes on the nearest element before it
// on its own side of the reference; without split the sum runs on.
const StackCase kCases[] = {
    {"mixed, split", 0, true, {5, -3, 2}, {0, 5, -3, 7}, 7, -3, 2, 1, 2, 1},
    {"mixed, running", 0, false, {5, -3, 2}, {0, 5, 2, 4}, 5, 0, 0, -1, 2, 1},
    {"gaps, split", 0, true, {5, kSkip, -3, 2, kSkip}, {0, 5, 0, -3, 7, 0}, 7, -3, 3, 2, 2, 1},
    {"gaps, running", 0, false, {5, kSkip, -3, 2, kSkip}, {0, 5, 5, 2, 4, 4}, 5, 0, 1, -1, 2, 1},
    {"negative first, split",
     0,
     true,
     {-2, 4, -1, kSkip, 3},
     {0, -2, 4, -3, 0, 7},
     7,
     -3,
     4,
     2,
     2,
     2},
    {"negative first, running",
     0,
     false,
     {-2, 4, -1, kSkip, 3},
     {0, -2, 2, 1, 1, 4},
     4,
     -2,
     4,
     0,
     2,
     2},
    {"positive, running", 0, false, {1, 2, 3}, {0, 1, 3, 6}, 6, 0, 2, -1, 3, 0},
    {"reference 10, split", 10, true, {5, -3, 2}, {10, 15, 7, 17}, 17, 7, 2, 1, 2, 1},
    {"zero stacks with the positives", 0, true, {0, 3, 0}, {0, 0, 3, 3}, 3, 0, 2, -1, 1, 0},
    {"nothing", 0, true, {kSkip, kSkip}, {0, 0, 0}, 0, 0, -1, -1, 0, 0},
};

void stackUp(vxDataStackedSeries& stack, const std::vector<double>& values, double reference,
             bool split) {
    stack.init(static_cast<long>(values.size()), reference, split);
    for (long i = 0; i < static_cast<long>(values.size()); ++i) {
        if (values[i] == kSkip) {
            stack.skip(i);
        } else {
            stack.add(i, values[i]);
        }
    }
    stack.setUpExtremes();
}

TEST(vxDataStackedSeriesTest, StackingWithAndWithoutSplit) {
    for (const StackCase& c : kCases) {
        vxDataStackedSeries stack;
        stackUp(stack, c.values, c.reference, c.split);
        EXPECT_EQ(stack.getStackedValues(), c.stacked) << c.name;
        EXPECT_EQ(stack.getPositiveStackedSum(), c.positiveSum) << c.name;
        EXPECT_EQ(stack.getNegativeStackedSum(), c.negativeSum) << c.name;
        EXPECT_EQ(stack.getMaxPositiveSeriesIndex(), c.maxPositiveIndex) << c.name;
        EXPECT_EQ(stack.getMaxNegativeSeriesIndex(), c.maxNegativeIndex) << c.name;
        EXPECT_EQ(stack.getNumOfPositiveValues(), c.numOfPositive) << c.name;
        EXPECT_EQ(stack.getNumOfNegativeValues(), c.numOfNegative) << c.name;
        EXPECT_EQ(stack.getStackedValue(0), c.stacked[1]) << c.name;
        EXPECT_FALSE(stack.isError()) << c.name;
    }
}

TEST(vxDataStackedSeriesTest, ProportionalValuesScaleByTheLongerSide) {
    struct ProportionalCase {
        std::vector<double> values;
        std::vector<double> proportional;
        double positiveSum, negativeSum;
    } cases[] = {
        {{5, -3, 2}, {0, 5.0 / 7.0, -3.0 / 7.0, 1}, 1, -3.0 / 7.0},
        {{-8, 2}, {0, -1, 0.25}, 0.25, -1},
        {{1e-12}, {0, 0}, 0, 0},  // nothing to scale by
    };
    for (const ProportionalCase& c : cases) {
        vxDataStackedSeries stack;
        stackUp(stack, c.values, 0, true);
        stack.setUpProportionalValues();
        ASSERT_EQ(stack.getProportionalValues().size(), c.proportional.size());
        for (std::size_t i = 0; i < c.proportional.size(); ++i) {
            EXPECT_DOUBLE_EQ(stack.getProportionalValues()[i], c.proportional[i]) << i;
        }
        EXPECT_DOUBLE_EQ(stack.getPositiveProportionalSum(), c.positiveSum);
        EXPECT_DOUBLE_EQ(stack.getNegativeProportionalSum(), c.negativeSum);
    }
}

TEST(vxDataStackedSeriesTest, InitStartsAgainAndIndicesAreChecked) {
    vxDataStackedSeries stack;
    EXPECT_EQ(stack.getStackedValue(0), 0.0);
    stackUp(stack, {4, 5}, 3, false);
    stack.init(2, 1, true);
    EXPECT_EQ(stack.getStackedValues(), (std::vector<double>{1, 1, 1}));
    EXPECT_EQ(stack.getNumOfPositiveValues(), 0);
    EXPECT_EQ(stack.getStackedValue(-1), 0.0);
    EXPECT_EQ(stack.getStackedValue(2), 0.0);
    stack.add(2, 1);
    ASSERT_TRUE(stack.isError());
    EXPECT_EQ(stack.getError()->getErrorCode(), vxErrRuntime::kIndexOutOfRange);
    EXPECT_EQ(stack.getError()->getLocation(), L"vxDataStackedSeries/add/1");
    EXPECT_EQ(stack.getStackedValues(), (std::vector<double>{1, 1, 1}));
}

}  // namespace
}  // namespace Velarix
