#include <gtest/gtest.h>

#include <cfloat>
#include <cmath>
#include <vector>

#include "Utilities/Sources/vxDateTime.h"
#include "axes/vxAxisScaling.h"
#include "axes/vxAxisScalingTestSupport.h"

namespace Velarix {
namespace {

using S = vxAxisScaling;

struct MapRow {
    const char* name;
    vxScaleSpec spec;
    double value;
    float dc;  // on 0 to 300
};

// The device coordinate is F (t(v) - t(minUC)), F = 300 / (t(maxUC) - t(minUC)).
const MapRow kMapRows[] = {
    {"linear", {.minData = 3, .maxData = 97}, 25, 75.0f},
    // Percent 20 to 60 maps 40 to 50 %.
    {"percent", {.type = S::kPercent, .minData = 20, .maxData = 60}, 40, 150.0f},
    // 1 to 100: log 10 is half.
    {"log",
     {.type = S::kLogarithmic, .minData = 3, .maxData = 97, .equidistant = true},
     10,
     150.0f},
    {"log of 0", {.type = S::kLogarithmic, .minData = 3, .maxData = 97}, 0, 0.0f},
    // 10^0 to 10^3: (100 - 1) / 999 of the axis.
    {"exponential", {.type = S::kExponential, .minData = 0, .maxData = 3}, 2, 300.0f * 99 / 999},
    // 0 to 100 squared: 50^2 is a quarter.
    {"power", {.type = S::kPower, .minData = 0, .maxData = 97}, 50, 75.0f},
    // 100 (P(v) - P(0.1)) x 300 / 99.8; P(0.1) = 0.5398278, P(99.9) = 1.
    {"probability low", {.type = S::kProbability, .minData = 1, .maxData = 9}, 0.1, 0.0f},
    {"probability top", {.type = S::kProbability, .minData = 1, .maxData = 9}, 99.9, 138.3283f},
};

TEST(vxAxisScalingMappingTest, DeviceCoordinatesOfEachType) {
    for (const MapRow& row : kMapRows) {
        SCOPED_TRACE(row.name);
        auto scale = vxMakeScale(row.spec);
        ASSERT_EQ(vxErrorAt(*scale), L"");
        EXPECT_NEAR(scale->toDC(row.value), row.dc, 1e-3);
        // Reversed, the axis runs from its far end.
        scale->toggleReverseScaling();
        const float reversed = row.dc == 0.0f && row.value <= 0.0 ? 0.0f : 300.0f - row.dc;
        EXPECT_NEAR(scale->toDC(row.value), reversed, 1e-3);
    }
    // The factor is a division of floats.
    auto scale = vxMakeScale({.min = 0, .max = 7});
    EXPECT_EQ(scale->getFactor(), double(300.0f / 7.0f));
}

// toUC undoes toDC over each axis, reversed or not, and toDC of a list is
// toDC of each value.
TEST(vxAxisScalingMappingTest, InverseAndListMappingAgreeWithTheValueMapping) {
    const vxScaleSpec specs[] = {
        {.minData = -12.5, .maxData = 48.3},
        {.type = S::kPercent, .minData = -20, .maxData = 60},
        {.type = S::kPercent, .minData = 20, .maxData = 60},
        {.type = S::kPercent, .minData = -60, .maxData = -20},
        {.type = S::kLogarithmic, .minData = 3, .maxData = 97},
        {.type = S::kExponential, .minData = 0, .maxData = 3},
        {.type = S::kPower, .minData = 0, .maxData = 97, .basis = 3},
        {.type = S::kProbability, .minData = 1, .maxData = 9},  // flat above 6
    };
    for (const vxScaleSpec& spec : specs) {
        auto scale = vxMakeScale(spec);
        const double low = scale->getMinUC(), span = scale->getMaxUC() - low;
        const double high = spec.type == S::kProbability ? 3.0 : scale->getMaxUC();
        std::vector<double> values;
        for (int i = 0; i <= 20; ++i) values.push_back(low + (high - low) * i / 20);
        for (bool reversed : {false, true}) {
            if (reversed) scale->toggleReverseScaling();
            std::vector<float> out;
            scale->toDC(values, out);
            ASSERT_EQ(out.size(), values.size());
            for (size_t i = 0; i < values.size(); ++i) {
                EXPECT_EQ(out[i], scale->toDC(values[i]));
                EXPECT_NEAR(scale->toUC(out[i]), values[i], span * 1e-5) << spec.type;
            }
        }
    }
    // No number lies at the start of the axis, beyond the floats at their end.
    auto scale = vxMakeScale({.minData = 0, .maxData = 10});
    EXPECT_EQ(scale->toDC(NAN), 0.0f);
    EXPECT_EQ(scale->toDC(INFINITY), FLT_MAX);
    EXPECT_EQ(scale->toDC(-1.7976931348623157e308), -FLT_MAX);
    scale = vxMakeScale({.type = S::kPower, .minData = 1, .maxData = 9, .basis = 0.5});
    EXPECT_EQ(scale->toDC(-4.0), 0.0f);
}

TEST(vxAxisScalingMappingTest, ScaleTestAndCutOfTicks) {
    auto scale = vxMakeScale({.minData = 3, .maxData = 97, .minor = 2});
    EXPECT_TRUE(scale->isInScale(100 + 5e-11));
    EXPECT_FALSE(scale->isInScale(100 + 2e-10));
    EXPECT_TRUE(scale->isInScale(-5e-11));
    EXPECT_FALSE(scale->isInScale(-2e-10));
    auto percent = vxMakeScale({.type = S::kPercent, .minData = 20, .maxData = 60});
    EXPECT_TRUE(percent->isInScale(60));
    EXPECT_FALSE(percent->isInScale(61));
    // The closed range keeps its ends.
    scale->removeTicksOutside(15, 85);
    EXPECT_EQ(scale->getMajorValues(), (std::vector<double>{20, 30, 40, 50, 60, 70, 80}));
    EXPECT_EQ(scale->getMinorValues(), (std::vector<double>{15, 25, 35, 45, 55, 65, 75, 85}));
    EXPECT_EQ(scale->getNumOfMajorIntervals(), 6);
    EXPECT_EQ(scale->getMajorValue(7), 0.0);
    scale->removeTicksOutside(200, 300);
    EXPECT_FALSE(scale->hasMajorValues());
    EXPECT_EQ(scale->getNumOfMajorIntervals(), 0);
}

// A date axis keeps plain days; values come and go in the stored form.
TEST(vxAxisScalingMappingTest, DateAxisWorksInPlainDays) {
    const double noon = vxDateTime::toStoredForm(2451545.5);
    auto scale = vxMakeScale(
        {.minData = 2451545, .maxData = 2451546, .min = 2451545, .max = 2451546 + 0.432},
        S::kDateTimeAxis);
    ASSERT_EQ(vxErrorAt(*scale), L"");
    EXPECT_EQ(scale->getMaxUC(), 2451546.5);
    EXPECT_NEAR(scale->toDC(noon), 100.0f, 1e-3);
    EXPECT_NEAR(scale->toDC(-noon), 100.0f, 1e-3);
    EXPECT_NEAR(scale->toUC(100.0f), noon, 1e-6);
    EXPECT_TRUE(scale->isInScale(2451546.432));
    EXPECT_FALSE(scale->isInScale(2451546.8));
}

}  // namespace
}  // namespace Velarix
