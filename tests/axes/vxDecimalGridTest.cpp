#include "axes/vxDecimalGrid.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <vector>

#include "axes/vxAxisScalingTestSupport.h"

namespace Velarix {
namespace {

using S = vxAxisScaling;

TEST(vxDecimalGridTest, RoundsToTheDoubleNearestTheDecimal) {
    EXPECT_EQ(vxDecimalGrid::lastDigitExponent(200.0), 2);
    EXPECT_EQ(vxDecimalGrid::lastDigitExponent(0.25), -2);
    EXPECT_EQ(vxDecimalGrid::lastDigitExponent(0.1 + 0.2), -17);
    EXPECT_EQ(vxDecimalGrid::roundToPowerOfTen(0.1 + 0.2, -1), 0.3);
    EXPECT_EQ(vxDecimalGrid::roundToPowerOfTen(0.9999999999999999, -1), 1.0);
    EXPECT_EQ(vxDecimalGrid::roundToPowerOfTen(-1e-17, -1), 0.0);
    EXPECT_FALSE(std::signbit(vxDecimalGrid::roundToPowerOfTen(-1e-17, -1)));
    // Beyond the exact powers of ten, through a text.
    EXPECT_EQ(vxDecimalGrid::roundToPowerOfTen(3.0000000000000004e-30, -31), 3e-30);
    EXPECT_EQ(vxDecimalGrid::roundToPowerOfTen(6e-31, -30), 1e-30);
    EXPECT_EQ(vxDecimalGrid::roundToPowerOfTen(4e-31, -30), 0.0);
    EXPECT_EQ(vxDecimalGrid::roundToPowerOfTen(1.2345e40, 38), 1.23e40);
    EXPECT_EQ(vxDecimalGrid::niceAbove(0.3, 5.0), 0.5);
    EXPECT_EQ(vxDecimalGrid::niceAbove(20.0, 2.0), 20.0);
    EXPECT_EQ(vxDecimalGrid::scaled(5.0, -2), 0.05);
}

// Every tick printed with 15 significant digits reads back as itself.
void expectDecimalTicks(const vxAxisScaling& scale, const char* what) {
    for (const auto* list : {&scale.getMajorValues(), &scale.getMinorValues()}) {
        for (double v : *list) {
            char text[40];
            std::snprintf(text, sizeof text, "%.15g", v);
            ASSERT_EQ(std::strtod(text, nullptr), v) << what << ": " << text;
        }
    }
}

// Spans tiny to huge, negative, across zero, from a list and at random, on
// the scales that build their ticks by sums. Spans under about 1e-9 meet
// the fixed tolerance of 1e-10 and are not axes.
TEST(vxDecimalGridTest, TicksOfManySpansHaveNoDust) {
    std::vector<std::pair<double, double>> spans;
    for (int e = -9; e <= 12; e += 3) {
        const double unit = std::pow(10.0, e);
        for (double a : {-7.3, -1.0, 0.0, 0.02, 0.1, 0.33, 3.0}) {
            for (double width : {0.15, 0.7, 1.0, 2.9, 7.0, 13.0, 99.0}) {
                spans.push_back({a * unit, (a + width) * unit});
            }
        }
    }
    unsigned seed = 11;
    auto next = [&seed]() {
        return double((seed = seed * 1103515245u + 12345u) / 65536u % 32768u);
    };
    for (int i = 0; i < 300; ++i) {
        const double unit = std::pow(10.0, next() / 32768.0 * 18.0 - 8.0);
        const double low = (next() - 16384.0) / 1000.0 * unit;
        spans.push_back({low, low + (1.0 + next()) / 100.0 * unit});
    }
    // Limits as a script writes them.
    auto written = [](double v) {
        char text[40];
        std::snprintf(text, sizeof text, "%.6g", v);
        return std::strtod(text, nullptr);
    };
    char what[80];
    for (auto [rawLow, rawHigh] : spans) {
        const double low = written(rawLow), high = written(rawHigh);
        for (short type : {S::kLinear, S::kPercent, S::kExponential, S::kLogarithmic}) {
            if (type == S::kLogarithmic && low <= 0.0) continue;
            if (type == S::kExponential && (high > 300.0 || low < -300.0)) continue;
            for (long minor : {0L, 3L}) {
                std::snprintf(what, sizeof what, "type %d, %.17g to %.17g", type, low, high);
                auto scale =
                    vxMakeScale({.type = type, .minData = low, .maxData = high, .minor = minor});
                ASSERT_EQ(vxErrorAt(*scale), L"") << what;
                expectDecimalTicks(*scale, what);
            }
        }
        // Given decimal limits, and an explicit count.
        for (vxScaleSpec spec : {vxScaleSpec{.min = low, .max = high, .minor = 2},
                                 vxScaleSpec{.minData = low, .maxData = high, .count = 7},
                                 vxScaleSpec{.minData = low, .maxData = high, .min = low}}) {
            std::snprintf(what, sizeof what, "given, %.17g to %.17g", low, high);
            auto scale = vxMakeScale(spec);
            ASSERT_EQ(vxErrorAt(*scale), L"") << what;
            expectDecimalTicks(*scale, what);
        }
    }
}

}  // namespace
}  // namespace Velarix
