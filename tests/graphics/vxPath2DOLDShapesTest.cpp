// Steps, jumps, multigons and the figures of the script's Add functions,
// against points worked out by hand.
#include <gtest/gtest.h>

#include <cmath>

#include "graphics/vxPathTestSupport.h"

namespace Velarix::test {
namespace {

constexpr float kPi = 3.14159265f;

const std::vector<float> kXs = {0, 10, 20}, kYs = {0, 10, 5};

TEST(vxPath2DOLDSteps, StepsRunAlongThenAcrossWithOutdents) {
    vxPath2DOLD path;
    path.addStepPolygon(kXs, kYs, vxPath2DOLD::kHorizontal, 0.5f, 0.5f, 0.5f);
    EXPECT_EQ(path.getVerbs(), (Verbs{2, 3, 3, 3, 3, 3}));
    EXPECT_TRUE(hasPoints(path, {{-5, 0}, {5, 0}, {5, 10}, {15, 10}, {15, 5}, {25, 5}}));

    // Falling x outdents the other way; the steps run along y when
    // vertical.
    vxPath2DOLD falling;
    falling.addStepPolygon({20, 10}, {0, 10}, vxPath2DOLD::kHorizontal, 1, 2, 0.5f);
    EXPECT_TRUE(hasPoints(falling, {{30, 0}, {15, 0}, {15, 10}, {-10, 10}}));
    vxPath2DOLD vertical;
    vertical.addStepPolygon({0, 10}, {0, 10}, vxPath2DOLD::kVertical, 0, 0, 0.5f);
    EXPECT_TRUE(hasPoints(vertical, {{0, 0}, {0, 5}, {10, 5}, {10, 10}}));
}

TEST(vxPath2DOLDSteps, OutdentsNeverReachPastTheFirstAndLastStep) {
    vxPath2DOLD inset;
    inset.addStepPolygon(kXs, kYs, vxPath2DOLD::kHorizontal, -1, -1, 0.5f);
    EXPECT_TRUE(hasPoints(inset, {{5, 0}, {5, 10}, {15, 10}, {15, 5}}));

    // Steps at the start of each gap: nothing runs twice over a point.
    vxPath2DOLD early;
    early.addStepPolygon(kXs, kYs, vxPath2DOLD::kHorizontal, 0, 0, 0);
    EXPECT_TRUE(hasPoints(early, {{0, 0}, {0, 10}, {10, 10}, {10, 5}, {20, 5}}));
}

TEST(vxPath2DOLDSteps, ALonePointGetsAFlatLineWhateverTheOrientation) {
    vxPath2DOLD none, line, upright, clipped;
    none.addStepPolygon({5}, {5}, vxPath2DOLD::kVertical, 0, 0, 0.5f);
    EXPECT_TRUE(none.isEmpty());
    line.addStepPolygon({5}, {8}, vxPath2DOLD::kHorizontal, 3, 4, 0.5f);
    EXPECT_EQ(line.getVerbs(), (Verbs{2, 3}));
    EXPECT_TRUE(hasPoints(line, {{2, 8}, {9, 8}}));
    // Stepping along y still draws across x.
    upright.addStepPolygon({5}, {8}, vxPath2DOLD::kVertical, 3, 4, 0.5f);
    EXPECT_TRUE(hasPoints(upright, {{2, 8}, {9, 8}}));
    // A negative outdent counts as none; the jump line does the same.
    clipped.addJumpPolygon({5}, {8}, vxPath2DOLD::kVertical, -2, 4, 0.5f, 1);
    EXPECT_EQ(clipped.getVerbs(), (Verbs{2, 3}));
    EXPECT_TRUE(hasPoints(clipped, {{5, 8}, {9, 8}}));
}

TEST(vxPath2DOLDJumps, EachPointGetsItsOwnPiece) {
    vxPath2DOLD path;
    path.addJumpPolygon(kXs, kYs, vxPath2DOLD::kHorizontal, 0.5f, 0.5f, 0.5f, 1);
    EXPECT_EQ(path.getVerbs(), (Verbs{2, 3, 2, 3, 2, 3}));
    EXPECT_TRUE(hasPoints(path, {{-5, 0}, {5, 0}, {5, 10}, {15, 10}, {15, 5}, {25, 5}}));

    // Half length, a quarter ahead: back 0.375, ahead 0.125 of each gap.
    vxPath2DOLD short_;
    short_.addJumpPolygon(kXs, kYs, vxPath2DOLD::kHorizontal, 0, 0, 0.25f, 0.5f);
    EXPECT_TRUE(
        hasPoints(short_, {{0, 0}, {1.25f, 0}, {6.25f, 10}, {11.25f, 10}, {16.25f, 5}, {20, 5}}));

    vxPath2DOLD skipped;
    skipped.addJumpPolygon(kXs, kYs, vxPath2DOLD::kHorizontal, 1, 1, 0.5f, 0.00005f);
    EXPECT_TRUE(skipped.isEmpty());
}

TEST(vxPath2DOLDJumps, APieceOfNoLengthIsKept) {
    // Nothing ahead: the first piece has no length (no outdent), the others
    // reach back over the whole gap.
    vxPath2DOLD back;
    back.addJumpPolygon(kXs, kYs, vxPath2DOLD::kHorizontal, 0, 0, 0, 1);
    EXPECT_EQ(back.getVerbs(), (Verbs{2, 3, 2, 3, 2, 3}));
    EXPECT_TRUE(hasPoints(back, {{0, 0}, {0, 0}, {0, 10}, {10, 10}, {10, 5}, {20, 5}}));

    // Nothing back: the last piece has no length; along y when vertical.
    vxPath2DOLD ahead;
    ahead.addJumpPolygon(kYs, kXs, vxPath2DOLD::kVertical, 0, 0, 1, 1);
    EXPECT_EQ(ahead.getVerbs(), (Verbs{2, 3, 2, 3, 2, 3}));
    EXPECT_TRUE(hasPoints(ahead, {{0, 0}, {0, 10}, {10, 10}, {10, 20}, {5, 20}, {5, 20}}));
}

// ---- multigons -------------------------------------------------------------------

TEST(vxPath2DOLDMultigon, PolygonStarAndSpokes) {
    vxPath2DOLD square;
    square.addMultigon(4, 0, 50, 50, 10, 20, 1, 0);
    EXPECT_EQ(square.getVerbs(), (Verbs{2, 3, 3, 3, 1}));
    EXPECT_TRUE(hasPoints(square, {{50, 30}, {60, 50}, {50, 70}, {40, 50}}, 1e-3f));

    // Inner corners half a step on, at half the radius.
    vxPath2DOLD star;
    star.addMultigon(4, 0, 50, 50, 10, 10, 0.5f, 0.5f);
    EXPECT_EQ(star.getNumOfVerbs(), 9);
    const float d = 5 * std::sqrt(0.5f);
    EXPECT_TRUE(hasPoints(star,
                          {{50, 40},
                           {50 + d, 50 - d},
                           {60, 50},
                           {50 + d, 50 + d},
                           {50, 60},
                           {50 - d, 50 + d},
                           {40, 50},
                           {50 - d, 50 - d}},
                          1e-3f));

    vxPath2DOLD spokes;
    spokes.addMultigon(3, kPi / 2, 0, 0, 10, 10, -0.5f, 0);
    EXPECT_EQ(spokes.getVerbs(), (Verbs{2, 3, 2, 3, 2, 3}));
    EXPECT_NEAR(spokes.getX()[0], 10, 1e-4f);
    EXPECT_NEAR(spokes.getX()[1], 5, 1e-4f);
    EXPECT_NEAR(spokes.getY()[1], 0, 1e-4f);

    vxPath2DOLD nothing;
    nothing.addMultigon(0, 0, 0, 0, 10, 10, 1, 0);
    EXPECT_TRUE(nothing.isEmpty());
}

// ---- rectangles, ovals, arcs, slices ------------------------------------------------

TEST(vxPath2DOLDShapes, RectanglesRunClockwiseFromTopLeft) {
    vxPath2DOLD rect;
    rect.addRect(1, 2, 3, 4);
    EXPECT_EQ(rect.getVerbs(), (Verbs{2, 3, 3, 3, 1}));
    EXPECT_TRUE(hasPoints(rect, {{1, 2}, {3, 2}, {3, 4}, {1, 4}}));

    vxPath2DOLD plain, round, limited;
    plain.addRoundRect(1, 2, 3, 4, 0, 5);
    EXPECT_EQ(plain.getX(), rect.getX());
    round.addRoundRect(0, 0, 100, 50, 10, 5);
    EXPECT_EQ(round.getVerbs(), (Verbs{2, 3, 5, 3, 5, 3, 5, 3, 5, 1}));
    EXPECT_TRUE(hasBounds(round, {0, 0, 100, 50}));
    EXPECT_EQ(round.getX()[0], 10.0f);
    EXPECT_EQ(round.getX()[1], 90.0f);
    EXPECT_NEAR(round.getY()[4], 5, 1e-4f);  // end of the top right corner: 100, 5
    EXPECT_NEAR(round.getX()[4], 100, 1e-4f);
    // Radii beyond half the sides meet in the middle: no straight sides.
    limited.addRoundRect(0, 0, 100, 50, 80, 80);
    EXPECT_EQ(limited.getVerbs(), (Verbs{2, 5, 5, 5, 5, 1}));
    EXPECT_TRUE(hasBounds(limited, {0, 0, 100, 50}));
}

TEST(vxPath2DOLDShapes, OvalIsFourQuarterCubicsFromTheTop) {
    vxPath2DOLD oval;
    oval.addOval(0, 0, 200, 100);
    EXPECT_EQ(oval.getVerbs(), (Verbs{2, 5, 5, 5, 5, 1}));
    ASSERT_EQ(oval.getNumOfPoints(), 13);
    EXPECT_TRUE(hasBounds(oval, {0, 0, 200, 100}));
    // Ends of the quarters: top, right, bottom, left, top; the first
    // control point lies kappa = 0.5523 of the radius along the tangent.
    const std::vector<size_t> ends = {0, 3, 6, 9, 12};
    const std::vector<Point> expected = {{100, 0}, {200, 50}, {100, 100}, {0, 50}, {100, 0}};
    for (size_t i = 0; i < ends.size(); ++i) {
        EXPECT_NEAR(oval.getX()[ends[i]], expected[i].first, 1e-4f);
        EXPECT_NEAR(oval.getY()[ends[i]], expected[i].second, 1e-4f);
    }
    EXPECT_NEAR(oval.getX()[1], 100 + 0.5523f * 100, 0.01f);
    EXPECT_NEAR(oval.getY()[1], 0, 1e-4f);
    // Half way along a quarter the curve lies on the ellipse.
    const Point mid = cubicAt(oval, 0, 0.5f);
    const float dx = (mid.first - 100) / 100, dy = (mid.second - 50) / 50;
    EXPECT_NEAR(dx * dx + dy * dy, 1, 1e-3f);
}

TEST(vxPath2DOLDShapes, ArcsTurnClockwiseOrBackInQuarters) {
    vxPath2DOLD quarter;
    quarter.addArc(0, 0, 100, 100, 0, kPi / 2);
    EXPECT_EQ(quarter.getVerbs(), (Verbs{2, 5}));
    EXPECT_NEAR(quarter.getX()[0], 50, 1e-4f);
    EXPECT_NEAR(quarter.getY()[0], 0, 1e-4f);
    EXPECT_NEAR(quarter.getX()[3], 100, 1e-4f);
    EXPECT_NEAR(quarter.getY()[3], 50, 1e-4f);

    // Half a turn backwards from the top passes the left at 50 and ends at
    // the bottom.
    vxPath2DOLD back;
    back.addArc(0, 0, 100, 100, 0, -kPi);
    EXPECT_EQ(back.getVerbs(), (Verbs{2, 5, 5}));
    EXPECT_NEAR(back.getX()[3], 0, 1e-4f);
    EXPECT_NEAR(back.getY()[3], 50, 1e-4f);
    EXPECT_NEAR(back.getX()[6], 50, 1e-4f);
    EXPECT_NEAR(back.getY()[6], 100, 1e-4f);
    EXPECT_TRUE(hasBounds(back, {0, 0, 50, 100}, 0.01f));

    vxPath2DOLD third, whole, none;
    third.addArc(0, 0, 100, 100, 0, 2 * kPi / 3);
    EXPECT_EQ(third.getVerbs(), (Verbs{2, 5, 5}));
    EXPECT_NEAR(cubicAt(third, 3, 1).first, 50 + 50 * std::sin(2 * kPi / 3), 1e-3f);
    whole.addArc(0, 0, 100, 100, kPi / 2, -7);
    EXPECT_EQ(whole.getVerbs(), (Verbs{2, 5, 5, 5, 5, 1}));
    EXPECT_TRUE(hasBounds(whole, {0, 0, 100, 100}));
    none.addArc(0, 0, 100, 100, 0, 0.0001f);
    EXPECT_TRUE(none.isEmpty());
}

TEST(vxPath2DOLDShapes, SlicesPiesAndRings) {
    vxPath2DOLD pie;
    pie.addSlice(0, 0, 100, 100, 0, kPi / 2, 0);
    EXPECT_EQ(pie.getVerbs(), (Verbs{2, 3, 5, 1}));
    EXPECT_EQ(pie.getX()[0], 50.0f);
    EXPECT_EQ(pie.getY()[0], 50.0f);
    EXPECT_TRUE(hasBounds(pie, {50, 0, 100, 50}));

    // A ring segment: outer arc, in to the inner arc's end, back along it.
    vxPath2DOLD segment;
    segment.addSlice(0, 0, 100, 100, 0, kPi / 2, 0.5f);
    EXPECT_EQ(segment.getVerbs(), (Verbs{2, 5, 3, 5, 1}));
    EXPECT_NEAR(segment.getX()[4], 75, 1e-4f);  // inner end at three o'clock
    EXPECT_NEAR(segment.getY()[4], 50, 1e-4f);
    EXPECT_NEAR(segment.getX()[7], 50, 1e-4f);  // inner start at twelve
    EXPECT_NEAR(segment.getY()[7], 25, 1e-4f);

    vxPath2DOLD ring, full;
    ring.addSlice(0, 0, 100, 100, 0, 2 * kPi, 0.5f);
    EXPECT_EQ(ring.getVerbs(), (Verbs{2, 5, 5, 5, 5, 1, 2, 5, 5, 5, 5, 1}));
    EXPECT_EQ(ring.getWindingRule(), vxPath2DOLD::kEvenOdd);
    full.addSlice(0, 0, 100, 100, 0, 2 * kPi, 0);
    EXPECT_EQ(full.getVerbs(), (Verbs{2, 5, 5, 5, 5, 1}));
    EXPECT_EQ(full.getWindingRule(), vxPath2DOLD::kNonZero);
}

// ---- SVG arcs ---------------------------------------------------------------------

TEST(vxPath2DOLDArc, HalfCircleThroughTheTop) {
    // From 0, 0 to 100, 0 on a circle of 50 with the sweep flag: y grows
    // downward, so the arc passes over the top at 50, -50.
    vxPath2DOLD path, small;
    path.moveTo(0, 0);
    path.arcTo(50, 50, 0, false, true, 100, 0);
    EXPECT_EQ(path.getVerbs(), (Verbs{2, 5, 5}));
    EXPECT_NEAR(path.getX()[3], 50, 1e-3f);
    EXPECT_NEAR(path.getY()[3], -50, 1e-3f);
    EXPECT_EQ(path.getX()[6], 100.0f);
    EXPECT_EQ(path.getY()[6], 0.0f);

    // Radii too small to reach grow to the same circle.
    small.moveTo(0, 0);
    small.arcTo(10, 10, 0, false, true, 100, 0);
    ASSERT_EQ(small.getNumOfPoints(), path.getNumOfPoints());
    for (long i = 0; i < path.getNumOfPoints(); ++i) {
        EXPECT_NEAR(small.getX()[i], path.getX()[i], 1e-3f);
        EXPECT_NEAR(small.getY()[i], path.getY()[i], 1e-3f);
    }
}

TEST(vxPath2DOLDArc, FlagsChooseOneOfFourArcs) {
    // From 0, 0 to 50, 50 on circles of 50: centres 50, 0 and 0, 50.
    auto arc = [](vxPath2DOLD& path, bool large, bool sweep) {
        path.moveTo(0, 0);
        path.arcTo(50, 50, 0.3f, large, sweep, 50, 50);
    };
    vxPath2DOLD small, large, other;
    arc(small, false, true);
    arc(large, true, true);
    arc(other, false, false);
    EXPECT_EQ(small.getNumOfVerbs(), 2);  // a quarter turn
    EXPECT_EQ(large.getNumOfVerbs(), 4);  // three quarters
    EXPECT_EQ(large.getX().back(), 50.0f);
    // The small clockwise arc bulges right of the chord, round centre 0, 50.
    const Point mid = cubicAt(small, 0, 0.5f);
    EXPECT_NEAR(std::hypot(mid.first, mid.second - 50), 50, 0.05f);
    EXPECT_GT(mid.first, 25);
    const Point back = cubicAt(other, 0, 0.5f);
    EXPECT_NEAR(std::hypot(back.first - 50, back.second), 50, 0.05f);
    EXPECT_LT(back.first, 25);
}

TEST(vxPath2DOLDArc, DegenerateArcsDrawNothing) {
    vxPath2DOLD path;
    path.moveTo(10, 10);
    path.arcTo(50, 50, 0, false, true, 10.005f, 10);   // same point
    path.arcTo(0.00005f, 50, 0, false, true, 60, 10);  // no radius
    path.arcTo(50, 50, 0, false, true, 10.05f, 10);    // too small to see
    EXPECT_EQ(path.getVerbs(), (Verbs{2}));
    path.relArcTo(5, 5, 0, false, false, 10, 0);
    EXPECT_EQ(path.getVerbs(), (Verbs{2, 5, 5}));
    EXPECT_EQ(path.getX().back(), 20.0f);
}

}  // namespace
}  // namespace Velarix::test
