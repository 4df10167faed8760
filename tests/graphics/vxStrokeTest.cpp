#include <gtest/gtest.h>

#include <memory>
#include <vector>

#include "graphics/vxBasicStroke.h"
#include "graphics/vxCombinedStroke.h"
#include "graphics/vxDashStyle.h"
#include "graphics/vxWaveStroke.h"

namespace Velarix {
namespace {

TEST(vxBasicStroke, DefaultsAndClamping) {
    vxBasicStroke stroke;
    EXPECT_EQ(stroke.getType(), 1);
    EXPECT_FLOAT_EQ(stroke.getLineWidth(), 1.0f);
    EXPECT_EQ(stroke.getLineCap(), 2);
    EXPECT_EQ(stroke.getLineJoin(), 1);
    EXPECT_FLOAT_EQ(stroke.getMiterLimit(), 10.0f);
    EXPECT_FALSE(stroke.hasDashStyle());
    stroke.setLineWidth(20000.0f);
    EXPECT_FLOAT_EQ(stroke.getLineWidth(), 10000.0f);
    stroke.setMiterLimit(-3.0f);
    EXPECT_FLOAT_EQ(stroke.getMiterLimit(), 0.0f);
    stroke.setLineWidth(-1.0f);
    EXPECT_FLOAT_EQ(stroke.getLineWidth(), 0.0f);
}

TEST(vxBasicStroke, UnknownCapsAndJoinsFallBack) {
    vxBasicStroke stroke;
    for (short code : {1, 2, 3}) {
        stroke.setLineCap(code);
        EXPECT_EQ(stroke.getLineCap(), code);
        stroke.setLineJoin(code);
        EXPECT_EQ(stroke.getLineJoin(), code);
    }
    for (short code : {0, 4, -2}) {
        stroke.setLineCap(code);
        EXPECT_EQ(stroke.getLineCap(), 2);
        stroke.setLineJoin(code);
        EXPECT_EQ(stroke.getLineJoin(), 1);
    }
}

TEST(vxBasicStroke, DrawsOnlyAboveTheZeroWidth) {
    EXPECT_TRUE(vxBasicStroke(0.0f).isZeroWidth());
    EXPECT_TRUE(vxBasicStroke(1e-11f).isZeroWidth());
    EXPECT_FALSE(vxBasicStroke(1e-9f).isZeroWidth());
}

TEST(vxBasicStroke, CloneAndCopyKeepTheirOwnDash) {
    vxBasicStroke stroke(2.5f);
    stroke.setLineCap(3);
    stroke.setDashStyle(6);
    std::unique_ptr<vxStrokeOLD> clone = stroke.clone();
    stroke.setDashStyle(1);
    stroke.setLineWidth(7.0f);
    ASSERT_TRUE(clone->hasDashStyle());
    EXPECT_EQ(clone->getDashStyle()->getPattern(), (std::vector<float>{10, 2, 5, 2}));
    EXPECT_FLOAT_EQ(clone->getLineWidth(), 2.5f);
    EXPECT_EQ(clone->getLineCap(), 3);
    EXPECT_NE(clone->getDashStyle(), stroke.getDashStyle());
    stroke.setDefaults();
    EXPECT_FALSE(stroke.hasDashStyle());
    EXPECT_FLOAT_EQ(stroke.getLineWidth(), 1.0f);
}

TEST(vxDashStyle, StandardPatternsByIndex) {
    const std::vector<std::vector<float>> expected = {
        {5, 2},  {5, 2, 2, 2},  {5, 2, 2, 2, 2, 2}, {2, 2},
        {10, 2}, {10, 2, 5, 2}, {10, 2, 2, 2},      {10, 2, 2, 2, 2, 2}};
    vxDashStyle dash;
    for (short index = 1; index <= 8; ++index) {
        dash.setPattern(index);
        EXPECT_EQ(dash.getPattern(), expected[static_cast<size_t>(index - 1)]) << index;
    }
    EXPECT_FLOAT_EQ(dash.getPatternLength(), 20.0f);
    for (short index : {0, 9, -1}) {
        dash.setPattern(index);
        EXPECT_TRUE(dash.isEmpty());
        EXPECT_FLOAT_EQ(dash.getPatternLength(), 0.0f);
    }
}

TEST(vxDashStyle, UnknownIndexLeavesTheStrokeSolid) {
    vxBasicStroke stroke;
    EXPECT_TRUE(stroke.setDashStyle(42));
    ASSERT_NE(stroke.getDashStyle(), nullptr);
    EXPECT_TRUE(stroke.getDashStyle()->isEmpty());
    EXPECT_FALSE(stroke.hasDashStyle());
}

TEST(vxDashStyle, CountIsClampedAndNegativeLengthsAreZero) {
    const std::vector<float> many(150, 1.0f);
    vxDashStyle dash;
    dash.setPattern(150, many.data());
    EXPECT_EQ(dash.getNumOfSegments(), 100);
    EXPECT_FLOAT_EQ(dash.getPatternLength(), 100.0f);
    dash.setPattern(-4, many.data());
    EXPECT_TRUE(dash.isEmpty());
    const float lengths[2] = {3.0f, -1.0f};
    dash.setPattern(2, lengths);
    EXPECT_FLOAT_EQ(dash.getPatternLength(), 3.0f);
}

TEST(vxDashStyle, WalkingThePattern) {
    vxDashStyle dash;
    dash.setPattern(2);  // 5 on, 2 off, 2 on, 2 off
    struct Case {
        float position;
        float rest;
        bool inGap;
    };
    for (Case c : {Case{0.0f, 5.0f, false}, Case{4.0f, 1.0f, false}, Case{5.0f, 2.0f, true},
                   Case{8.5f, 0.5f, false}, Case{10.0f, 1.0f, true}, Case{11.0f, 5.0f, false},
                   Case{27.0f, 2.0f, true}, Case{-1.0f, 1.0f, true}}) {
        EXPECT_FLOAT_EQ(dash.getSegmentLength(c.position), c.rest) << c.position;
        EXPECT_EQ(dash.isDashAt(c.position), c.inGap) << c.position;
    }
    dash.clearPattern();
    EXPECT_FLOAT_EQ(dash.getSegmentLength(3.0f), 0.0f);
    EXPECT_FALSE(dash.isDashAt(3.0f));
}

TEST(vxCombinedStroke, DrawsWhenAnyPartDrawsAndAnswersDefaults) {
    vxCombinedStroke combined;
    EXPECT_EQ(combined.getType(), 3);
    EXPECT_TRUE(combined.isZeroWidth());
    vxBasicStroke thin(0.0f);
    thin.setLineJoin(3);
    EXPECT_TRUE(combined.addStroke(thin));
    EXPECT_TRUE(combined.isZeroWidth());
    EXPECT_TRUE(combined.addStroke(vxBasicStroke(4.0f)));
    EXPECT_FALSE(combined.isZeroWidth());
    EXPECT_EQ(combined.getNumOfStrokes(), 2);
    EXPECT_EQ(combined.getLineCap(), 2);
    EXPECT_EQ(combined.getLineJoin(), 2);
    EXPECT_EQ(combined.getStroke(0)->getLineJoin(), 3);
    EXPECT_EQ(combined.getStroke(2), nullptr);
    std::unique_ptr<vxStrokeOLD> clone = combined.clone();
    combined.clearStrokes();
    const auto* copy = dynamic_cast<const vxCombinedStroke*>(clone.get());
    ASSERT_NE(copy, nullptr);
    EXPECT_EQ(copy->getNumOfStrokes(), 2);
    EXPECT_FLOAT_EQ(copy->getStroke(1)->getLineWidth(), 4.0f);
}

TEST(vxWaveStroke, AnswersDefaultsAndKeepsItsClass) {
    vxWaveStroke wave;
    EXPECT_EQ(wave.getType(), 3);
    EXPECT_FALSE(wave.isZeroWidth());
    EXPECT_EQ(wave.getLineCap(), 2);
    EXPECT_EQ(wave.getLineJoin(), 2);
    EXPECT_NE(dynamic_cast<vxWaveStroke*>(wave.clone().get()), nullptr);
    vxCombinedStroke combined;
    EXPECT_FALSE(wave.copy(&combined));  // same kind code, another class
}

}  // namespace
}  // namespace Velarix
