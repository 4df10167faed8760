// The oblique projection of charts with depth.
#include "charts/vxBaseChartDepthInfo.h"

#include <gtest/gtest.h>

#include <cmath>

#include "script/vxAssign.h"

namespace Velarix {
namespace {

constexpr float kPi = 3.14159265f;

TEST(vxBaseChartDepthInfo, DepthAnglesFromTheArcsine) {
    struct Case {
        float x, y;
        float depth, angle;
        bool isDepth;
    } cases[] = {
        {0, 0, 0, 0, false},
        {0.05f, 0.05f, 0.0707107f, 0, false},  // under 0.1: flat, x kept
        {10, 10, 14.142136f, 1.25f * kPi, true},
        {-10, 10, 14.142136f, 1.25f * kPi, true},  // the sign of x plays no part
        {10, -10, 14.142136f, 0.75f * kPi, true},
        {0, 12, 12, 1.5f * kPi, true},
    };
    for (const Case& c : cases) {
        vxBaseChartDepthInfo info;
        info.setDepth(c.x, c.y);
        EXPECT_FLOAT_EQ(info.getXDepth(), c.x);
        EXPECT_NEAR(info.getDepth(), c.depth, 1e-5f);
        EXPECT_NEAR(info.getDepthAngle(), c.angle, 1e-5f) << c.x << " " << c.y;
        EXPECT_NEAR(info.getSinSigma(), std::sin(c.angle), 1e-6f);
        EXPECT_EQ(info.isDepth(), c.isDepth);
    }
}

TEST(vxBaseChartDepthInfo, ScriptListsGiveDepthAndTilt) {
    struct Case {
        std::vector<float> list;
        float x, y, tilt;
    } cases[] = {
        {{}, 0, 0, 0}, {{8}, 8, 8, 0}, {{8, 4}, 8, 4, 0}, {{8, 4, -0.5f}, 8, 4, 2 * kPi - 0.5f}};
    for (const Case& c : cases) {
        vxAssign assign;
        if (c.list.empty()) {
            assign.addVoid();
        } else {
            assign.addFloatArray(c.list);
        }
        vxBaseChartDepthInfo info;
        info.setDepth(99, 99);
        info.assignDepth(assign);
        EXPECT_FLOAT_EQ(info.getXDepth(), c.x);
        EXPECT_FLOAT_EQ(info.getYDepth(), c.y);
        EXPECT_NEAR(info.getTiltAngle(), c.tilt, 1e-5f);
    }
}

TEST(vxBaseChartDepthInfo, BoxesHaveAFrontAndAnObliqueBack) {
    vxBaseChartDepthInfo info;
    info.setDepth(6, 4);
    const float rect[4] = {10, 20, 30, 50};
    float x[8], y[8];
    info.project(rect, 1, 2, x, y);
    // Untilted: the front face is the rectangle moved by (-1, +2), from
    // the bottom left counter-clockwise; the back lies 6 left and 4 down.
    const float frontX[4] = {9, 29, 29, 9}, frontY[4] = {52, 52, 22, 22};
    for (int i = 0; i < 4; ++i) {
        EXPECT_FLOAT_EQ(x[i], frontX[i]);
        EXPECT_FLOAT_EQ(y[i], frontY[i]);
        EXPECT_FLOAT_EQ(x[4 + i], frontX[i] - 6);
        EXPECT_FLOAT_EQ(y[4 + i], frontY[i] + 4);
    }
    // A tilt scales x by its cosine and shears y by its sine.
    info.setTilt(kPi / 6);
    info.project(rect, 0, 0, x, y);
    EXPECT_NEAR(x[1], 30 * std::cos(kPi / 6), 1e-4f);
    EXPECT_NEAR(y[1], 50 - 30 * std::sin(kPi / 6), 1e-4f);
    EXPECT_NEAR(y[3], 20 - 10 * std::sin(kPi / 6), 1e-4f);
}

}  // namespace
}  // namespace Velarix
