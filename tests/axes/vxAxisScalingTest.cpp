#include "axes/vxAxisScaling.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <sstream>
#include <string>
#include <vector>

#include "axes/vxAxisScalingTestSupport.h"
#include "script/vxAssign.h"

namespace Velarix {
namespace {

using S = vxAxisScaling;
constexpr short kPct = S::kPercent, kLog = S::kLogarithmic, kExp = S::kExponential;
constexpr short kPow = S::kPower, kProb = S::kProbability;
constexpr double kInf = std::numeric_limits<double>::infinity();

struct TickRow {
    const char* name;
    vxScaleSpec spec;
    const char* major;  // the decimal values, blank-separated
    const char* minor = "";
};

// Worked by hand. "Row 12" is the candidate row of twelve intervals, where
// each factor has its least waste unless said otherwise; a tie there goes
// to the least waste, then to the smallest interval.
// clang-format off
const TickRow kTickRows[] = {
    // Row 12: 10, 20, 50 all waste 6: the smallest.
    {"3 to 97", {.minData = 3, .maxData = 97}, "0 10 20 30 40 50 60 70 80 90 100"},
    {"-12.5 to 48.3", {.minData = -12.5, .maxData = 48.3}, "-20 -10 0 10 20 30 40 50"},
    // 1000 and 500 waste 556, 2000 wastes 1556.
    {"1234 to 5678", {.minData = 1234, .maxData = 5678},
     "1000 1500 2000 2500 3000 3500 4000 4500 5000 5500 6000"},
    // 0.1, 0.02, 0.05 waste 0.05, 0.01, 0.05.
    {"0.02 to 0.17", {.minData = 0.02, .maxData = 0.17},
     "0.02 0.04 0.06 0.08 0.1 0.12 0.14 0.16 0.18"},
    {"5 to 7", {.minData = 5, .maxData = 7}, "5 5.2 5.4 5.6 5.8 6 6.2 6.4 6.6 6.8 7"},
    // 1e-9, 2e-10, 5e-10 waste nothing.
    {"tiny", {.minData = 1e-9, .maxData = 3e-9},
     "1e-9 1.2e-9 1.4e-9 1.6e-9 1.8e-9 2e-9 2.2e-9 2.4e-9 2.6e-9 2.8e-9 3e-9"},
    {"huge", {.minData = 0, .maxData = 1e12},
     "0 1e11 2e11 3e11 4e11 5e11 6e11 7e11 8e11 9e11 1e12"},
    // 2e6 wastes 2e6 (-8e6 to -2e6), 1e6 and 5e5 nothing.
    {"negative", {.minData = -7e6, .maxData = -3e6},
     "-7e6 -6.5e6 -6e6 -5.5e6 -5e6 -4.5e6 -4e6 -3.5e6 -3e6"},
    // The sums of 0.1 from -0.3 miss 0 by 5.6e-17.
    {"zero on the way", {.minData = -0.3, .maxData = 0.9},
     "-0.3 -0.2 -0.1 0 0.1 0.2 0.3 0.4 0.5 0.6 0.7 0.8 0.9"},
    // 0.1 and 0.2 waste 0.06 (to -66.6), 0.05 wastes 0.01.
    {"-67 to -66.66", {.minData = -67, .maxData = -66.66},
     "-67 -66.95 -66.9 -66.85 -66.8 -66.75 -66.7 -66.65"},
    // The given -67 is tested against the intervals at positions 0, 12, 24
    // of the table: 1 (row 1), 0.1 (row 5), 0.1 (row 9). fmod(-67, 0.1) is
    // a hair under 0.1: only the factor 1 stays.
    {"given min -67", {.maxData = -66.66, .min = -67}, "-67 -66.9 -66.8 -66.7 -66.6"},
    // Limits 4 and 6; the mantissas print "2" at i = 1 and 10, "1" at 2,
    // "5" at 4, "4" at 5: the last, 10.
    {"all 5", {.minData = 5, .maxData = 5}, "4 4.2 4.4 4.6 4.8 5 5.2 5.4 5.6 5.8 6"},
    {"all 0", {.minData = 0, .maxData = 0}, "-1 -0.8 -0.6 -0.4 -0.2 0 0.2 0.4 0.6 0.8 1"},
    // 2 to 3: "5" at i = 2 and "2" at 5; 1 and 0.1 print "10".
    {"all 2.5", {.minData = 2.5, .maxData = 2.5}, "2 2.2 2.4 2.6 2.8 3"},
    // "5" at i = 2 and "2" at 5; "7" at i = 1 and 10.
    {"given 0 and 100", {.min = 0, .max = 100}, "0 20 40 60 80 100"},
    {"given 0 and 7", {.min = 0, .max = 7}, "0 0.7 1.4 2.1 2.8 3.5 4.2 4.9 5.6 6.3 7"},
    // 97 is on no candidate's grid, so all stay: 10 from 0, cut at 97.
    {"given max 97", {.minData = 3, .maxData = 80, .max = 97}, "0 10 20 30 40 50 60 70 80 90 97"},
    // The same count from 0, from the given 3.
    {"given min 3", {.minData = 3, .maxData = 97, .min = 3}, "3 13 23 33 43 53 63 73 83 93 103"},
    // Count 4: 100 and 50 waste 6, 200 wastes 106.
    {"count 4", {.minData = 3, .maxData = 97, .count = 4}, "0 50 100"},
    {"one interval across 0", {.minData = -3, .maxData = 80, .maxN = 1}, "-3 80"},
    // 1, 0.5, 0.5 waste nothing: 0.5, raised to 1.
    {"integers", {.minData = 0, .maxData = 3, .integers = true}, "0 1 2 3"},
    {"minor halves", {.minData = 0, .maxData = 1, .minor = 2},
     "0 0.1 0.2 0.3 0.4 0.5 0.6 0.7 0.8 0.9 1",
     "0.05 0.15 0.25 0.35 0.45 0.55 0.65 0.75 0.85 0.95"},
    // Percent values 100 v / 60 from -33.3: 100, 20, 50 waste 66.7, 6.7, 16.7.
    {"percent mixed", {.type = kPct, .minData = -20, .maxData = 60}, "-40 -20 0 20 40 60 80 100"},
    // 0 to 100 by 10; q = 10 / 3, p = 1, s = 4: 10 / 5. Minors by 2 from
    // each major.
    {"log", {.type = kLog, .minData = 3, .maxData = 97, .minor = 5},
     "2 10 20 30 40 50 60 70 80 90 100", "4 6 8 12 14 16 18 22 24 26 28 32 34 36 38 42 44 46 48 52 "
     "54 56 58 62 64 66 68 72 74 76 78 82 84 86 88 92 94 96 98"},
    // q = 20, p = 10, s = 2: 10 / 2 / 10; raised to 1.
    {"log start", {.type = kLog, .minData = 0.5, .maxData = 97},
     "0.5 10 20 30 40 50 60 70 80 90 100"},
    {"log integers", {.type = kLog, .minData = 0.5, .maxData = 97, .integers = true},
     "1 10 20 30 40 50 60 70 80 90 100"},
    {"log powers", {.type = kLog, .minData = 3, .maxData = 97, .minor = 2, .equidistant = true},
     "1 10 100", "5.5 55"},
    // a = floor(-0.30) = -1, b = ceil(3.70) = 4; the ends as given.
    {"log given ends", {.type = kLog, .min = 0.5, .max = 5000, .equidistant = true},
     "0.5 1 10 100 1000 5000"},
    {"exponential", {.type = kExp, .minData = 0, .maxData = 3}, "0 0.5 1 1.5 2 2.5 3"},
    // Roots 0 to 10 by 1; of the minors 0.5 ... 9.5 the first three are
    // squared.
    {"power", {.type = kPow, .minData = 0, .maxData = 97, .minor = 2},
     "0 1 4 9 16 25 36 49 64 81 100", "0.25 2.25 6.25 3.5 4.5 5.5 6.5 7.5 8.5 9.5"},
    // Roots 1 to 10: 1 wastes nothing, 2 and 5 (from 0) waste 1.
    {"power 3", {.type = kPow, .minData = 1, .maxData = 1000, .basis = 3},
     "1 8 27 64 125 216 343 512 729 1000"},
    {"probability", {.type = kProb, .minData = 20, .maxData = 30},
     "0.1 1 5 10 20 30 50 70 80 90 95 99 99.9"},
    {"probability count", {.type = kProb, .min = 1, .max = 99, .count = 4, .minor = 2},
     "0.1 10 50 90 99.9", "5.05 30 70 94.95"},
    // Beyond the table its last row.
    {"probability long", {.type = kProb, .minData = 20, .maxData = 30, .maxN = 40},
     "0.1 0.5 1 5 10 20 30 40 50 60 70 80 90 95 99 99.5 99.9"},
};
// clang-format on

std::vector<double> valuesOf(const char* text) {
    std::istringstream in(text);
    std::vector<double> values;
    for (double v; in >> v;) values.push_back(v);
    return values;
}

TEST(vxAxisScalingTest, TicksAndLimitsOfEachType) {
    for (const TickRow& row : kTickRows) {
        SCOPED_TRACE(row.name);
        auto scale = vxMakeScale(row.spec);
        ASSERT_EQ(vxErrorAt(*scale), L"");
        const std::vector<double> major = valuesOf(row.major);
        EXPECT_EQ(scale->getMajorValues(), major);
        EXPECT_EQ(scale->getMinorValues(), valuesOf(row.minor));
        EXPECT_EQ(scale->getNumOfMajorIntervals(), long(major.size()) - 1);
        EXPECT_EQ(scale->getMinUC(), major.front());
        EXPECT_EQ(scale->getMaxUC(), major.back());
        // Set up again with the data limits of the chart, from what the
        // script asked.
        scale->setMinDataUC(row.spec.minData);
        scale->setMaxDataUC(row.spec.maxData);
        scale->setUp(1, 2);
        EXPECT_EQ(scale->getMajorValues(), major);
    }
}

TEST(vxAxisScalingTest, EqualDataBecomePredefinedLimitsAndBarChartsRoundThemDown) {
    auto scale = vxMakeScale({.minData = 5, .maxData = 5});
    EXPECT_TRUE(scale->getHasPredefinedMinUC() && scale->getHasPredefinedMaxUC());
    EXPECT_EQ(scale->getMinDataUC(), 4.0);
    scale = vxMakeScale({.min = 0.7, .max = 9.6});
    scale->setUp(S::kBarChart2DKind, 2);
    EXPECT_EQ(scale->getMinUC(), 0.0);
    EXPECT_EQ(scale->getMaxUC(), 9.0);
}

struct ErrorRow {
    vxScaleSpec spec;
    const wchar_t* location;
};

const ErrorRow kErrorRows[] = {
    {{.min = 10, .max = 5}, L"verifyScalingLimits/1"},
    {{.min = 5, .max = 5}, L"verifyScalingLimits/1"},
    {{.minData = 3, .maxData = 97, .min = 100}, L"verifyScalingLimits/2"},
    {{.minData = 3, .maxData = 97, .max = 2}, L"verifyScalingLimits/3"},
    {{.type = kLog, .minData = 1, .maxData = 9, .basis = -1}, L"verifyScalingLimits/4"},
    {{.type = kLog, .maxData = 9, .min = 0}, L"verifyScalingLimits/5"},
    {{.type = kLog, .minData = 0, .maxData = 9}, L"verifyScalingLimits/6"},
    // Equal data: limits 0 and 1, then given.
    {{.type = kLog, .minData = 0.5, .maxData = 0.5}, L"verifyScalingLimits/5"},
    {{.type = kExp, .maxData = 9, .basis = -2}, L"verifyScalingLimits/9"},
    {{.type = kPow, .maxData = 9, .min = -1, .basis = 0.5}, L"verifyScalingLimits/10"},
    {{.type = kPow, .minData = -1, .maxData = 9, .basis = 0.5}, L"verifyScalingLimits/11"},
    {{.type = kProb, .maxData = 9, .min = 0}, L"verifyScalingLimits/14"},
    {{.type = kProb, .minData = 0, .maxData = 9}, L"verifyScalingLimits/15"},
    {{.type = kProb, .min = 1, .max = 100}, L"verifyScalingLimits/16"},
    {{.type = kProb, .minData = 1, .maxData = 100}, L"verifyScalingLimits/17"},
    {{.minData = kNone, .maxData = 1}, L"verifyScalingLimits/18"},
    {{.minData = 0, .maxData = kInf}, L"verifyScalingLimits/18"},
    {{.minData = -1e308, .maxData = 1e308}, L"verifyScalingLimits/18"},
    {{.type = kLog, .minData = 1, .maxData = 9, .basis = 1}, L"verifyScalingLimits/19"},
    {{.minData = 5, .maxData = 3}, L"verifyScalingLimits/20"},
    {{.maxData = 9, .count = -3}, L"calculateIntervalLength/1"},
    {{.maxData = 9, .minor = -1}, L"calculateIntervalLength/1"},
    {{.maxData = 9, .maxN = 0}, L"calculateIntervalLength/2"},
    {{.maxData = 9, .maxN = 20000}, L"calculateIntervalLength/2"},
    {{.min = 0, .max = 1e12, .count = 1000000000}, L"calculateIntervalLength/2"},
    // 20 is under half a unit in the last place of 1e18: the sums stand.
    {{.minData = 1e18, .maxData = 1e18 + 128}, L"countMajorIntervals/1"},
    // Positions count up to max - 1e-10: none here, and one tick is no axis.
    {{.minData = 1e-11, .maxData = 3e-11}, L"calculateScalingFactor/1"},
    {{.min = 0, .max = 1000, .count = 1000, .minor = 100}, L"setUpMinorValues/1"},
    {{.type = kLog, .minData = 1e-10, .maxData = 1e10, .equidistant = true, .basis = 1.0001},
     L"setUpLogarithmicScaling/1"},
    {{.type = kPow, .minData = -4, .maxData = 9}, L"setUpPowerScaling/1"},
    {{.type = kProb, .min = 1, .max = 99, .count = -2}, L"setUpProbabilityScaling/1"},
    {{.type = 7, .maxData = 1}, L"setUp/1"},
    {{.type = kExp, .maxData = 9, .basis = 1}, L"calculateScalingFactor/1"},
};

TEST(vxAxisScalingTest, BadInputRaisesErrorAtItsPlaceWithBoundedTicksAndNoNaN) {
    for (const ErrorRow& row : kErrorRows) {
        auto scale = vxMakeScale(row.spec);
        EXPECT_EQ(vxErrorAt(*scale), std::wstring(L"2100 vxAxisScaling/") + row.location);
        EXPECT_LE(scale->getNumOfMajorValues(), S::kMaxNumOfIntervals + 1);
        EXPECT_LE(scale->getNumOfMinorValues(), S::kMaxNumOfMinorValues);
        for (double v : {-1e300, -1.0, 0.0, 0.5, 7.0, 1e300, kNone, kInf}) {
            EXPECT_FALSE(std::isnan(scale->toDC(v))) << v;
        }
    }
}

// Random spans, counts and limits, good and bad: a set-up always ends, its
// lists stay bounded and no device coordinate is NaN.
TEST(vxAxisScalingTest, AnyInputEndsWithBoundedListsAndNumbers) {
    const double values[] = {kNone, -kInf, -1e300, -1e18,   -7.5,    -1,   0,    1e-300, 0.25,
                             0.1,   1,     3,      2453006, 2453371, 1e15, 1e18, 1e300,  kInf};
    const long counts[] = {-19, -13, -5, -1, 0, 1, 3, 1000, 100000};
    unsigned seed = 7;
    auto pick = [&seed](unsigned n) { return (seed = seed * 1103515245u + 12345u) / 65536u % n; };
    for (int i = 0; i < 3000; ++i) {
        vxScaleSpec spec{.type = short(1 + pick(6)),
                         .minData = values[pick(18)],
                         .maxData = values[pick(18)],
                         .count = counts[pick(9)],
                         .minor = counts[pick(9)],
                         .maxN = counts[pick(9)],
                         .equidistant = pick(2) == 0,
                         .integers = pick(4) == 0};
        if (pick(3) == 0) spec.min = values[pick(18)];
        if (pick(3) == 0) spec.max = values[pick(18)];
        if (pick(3) == 0) spec.basis = values[pick(18)];
        auto scale = vxMakeScale(spec, short(2 + pick(2)));
        ASSERT_LE(scale->getNumOfMajorValues(), S::kMaxNumOfIntervals + 1) << i;
        ASSERT_LE(scale->getNumOfMinorValues(), S::kMaxNumOfMinorValues) << i;
        for (double v : {values[pick(18)], 0.5, scale->getMinUC()}) {
            ASSERT_FALSE(std::isnan(scale->toDC(v))) << i;
        }
    }
}

// Arguments as the parser leaves them; NaN for one left empty.
void fill(vxAssign& a, std::initializer_list<double> values) {
    a.clear();
    for (double v : values) std::isnan(v) ? a.addVoid() : a.addDouble(v);
}

TEST(vxAxisScalingTest, ScriptArgumentsAndCopies) {
    vxAssign a;
    fill(a, {kLog, 0.5, 2451545.5, -3, -5, 2.0, 1});  // month, day
    a.setNote(2, L"1/1/2000 12:00");
    S scale;
    scale.assign(a);
    EXPECT_EQ(scale.getOrigMinUC(), 0.5);
    EXPECT_EQ(scale.getOrigMaxUC(), 2451545.5);
    EXPECT_TRUE(scale.getOrigHasPredefinedMinUC() && scale.getOrigHasPredefinedMaxUC());
    EXPECT_TRUE(scale.getHasTimeComponents());
    EXPECT_EQ(scale.getOrigMajorScalingBase(), -4);
    EXPECT_EQ(scale.getOrigMinorScalingBase(), -6);
    EXPECT_EQ(scale.getMaxNumOfMajorIntervals(), 1000);
    EXPECT_EQ(scale.getBase(), 2.0);
    EXPECT_EQ(scale.getPower(), 2.0);
    EXPECT_TRUE(scale.getUseEquidistantLogScaling());
    EXPECT_EQ(vxErrorAt(scale), L"");
    S wrongPair;  // day, month
    fill(a, {1, kNone, kNone, -5, -3});
    wrongPair.assign(a);
    EXPECT_EQ(vxErrorAt(wrongPair), L"2100 vxAxisScaling/verifyDateTimeScales/3");
    // The same slot is the power of a power scale; an empty limit clears.
    fill(a, {kPow, 1.0, kNone, kNone, kNone, 3.0});
    scale.assign(a);
    EXPECT_EQ(scale.getPower(), 3.0);
    EXPECT_EQ(scale.getBase(), 2.0);
    EXPECT_FALSE(scale.getOrigHasPredefinedMaxUC());
    EXPECT_EQ(scale.getOrigMajorScalingBase(), 1);
    fill(a, {1, 0, 1});
    scale.assignOptions(a);
    EXPECT_TRUE(scale.getDoReverseScaling() && scale.getDoSuppressZeroLabel());
    EXPECT_FALSE(scale.getUseIntegersOnly());
    // A copy writes the same log; a copy of null is a new scale.
    auto dumped = [](const S& s) {
        std::ostringstream out;
        s.dump(1, out);
        return out.str();
    };
    auto set = vxMakeScale({.minData = 3, .maxData = 97, .minor = 2});
    EXPECT_TRUE(scale.set(set.get()));
    EXPECT_EQ(dumped(scale), dumped(*set));
    EXPECT_NE(dumped(scale).find("0 10 20 30"), std::string::npos);
    EXPECT_TRUE(scale.set(nullptr));
    EXPECT_EQ(dumped(scale), dumped(S()));
}

}  // namespace
}  // namespace Velarix
