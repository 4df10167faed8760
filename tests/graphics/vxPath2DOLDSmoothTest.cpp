// Smooth curves against control points worked out by hand from the
// coefficient rows.
#include <gtest/gtest.h>

#include "graphics/vxPathTestSupport.h"

namespace Velarix::test {
namespace {

TEST(vxPath2DOLDSmooth, FewerThanThreePointsGiveOneStraightSegment) {
    vxPath2DOLD two;
    two.addSmoothPolygon({0, 10}, {0, 5}, false);
    EXPECT_EQ(two.getVerbs(), (Verbs{2, 3}));
    EXPECT_TRUE(hasPoints(two, {{0, 0}, {10, 5}}));

    // Closed by its ends meeting: a curve of two points falls back too.
    vxPath2DOLD ring;
    ring.addSmoothPolygon({0, 10, 0.0005f}, {0, 5, 0}, false);
    EXPECT_EQ(ring.getVerbs(), (Verbs{2, 3}));
    EXPECT_TRUE(hasPoints(ring, {{0, 0}, {10, 5}}));

    vxPath2DOLD one;
    one.addSmoothPolygon({0}, {0}, true);
    EXPECT_TRUE(one.isEmpty());
}

// Points 0,0 10,10 20,30 30,60: three segments read the row of m = 3,
// 0.2677 and 0.0667, with neighbours reflected at the ends:
//   D1 = 0.2677 (p2 - p0) - 0.0667 (p3 - p1) = (4.02, 4.696)
//   D2 = 0.2677 (p3 - p1) - 0.0667 (p4 = p2 - p0) = (4.02, 11.384)
// and D0 = D3 = 0, since a reflected neighbour cancels its mirror.
TEST(vxPath2DOLDSmooth, FourOpenPointsUseTheRowOfThree) {
    vxPath2DOLD path;
    path.addSmoothPolygon({0, 10, 20, 30}, {0, 10, 30, 60}, false);
    EXPECT_EQ(path.getVerbs(), (Verbs{2, 5, 5, 5}));
    EXPECT_TRUE(hasPoints(path, {{0, 0},
                                 {0, 0},
                                 {5.98f, 5.304f},
                                 {10, 10},
                                 {14.02f, 14.696f},
                                 {15.98f, 18.616f},
                                 {20, 30},
                                 {24.02f, 41.384f},
                                 {30, 60},
                                 {30, 60}}));

    // Tension scales the tangents.
    vxPath2DOLD slack;
    slack.addSmoothPolygon({0, 10, 20, 30}, {0, 10, 30, 60}, false, 0.5f);
    EXPECT_NEAR(slack.getX()[2], 7.99f, 1e-4f);
    EXPECT_NEAR(slack.getY()[5], 24.308f, 1e-4f);
}

// Three points 0,0 10,20 30,10: two segments read the row of m = 2, the
// single coefficient 0.25. D1 = 0.25 (p2 - p0) = (7.5, 2.5); the ends have
// no tangent, their reflected neighbours being equal.
TEST(vxPath2DOLDSmooth, ThreeOpenPointsUseTheRowOfTwo) {
    vxPath2DOLD path;
    path.addSmoothPolygon({0, 10, 30}, {0, 20, 10}, false);
    EXPECT_EQ(path.getVerbs(), (Verbs{2, 5, 5}));
    EXPECT_TRUE(hasPoints(
        path, {{0, 0}, {0, 0}, {2.5f, 17.5f}, {10, 20}, {17.5f, 22.5f}, {30, 10}, {30, 10}}));
}

// Six points x = 10 i, y = i * i: five segments read the row of m = 5,
// 0.2679, 0.0718, 0.0191, 0.0048, reflecting at the ends (p-2 = p2,
// p6 = p4, p7 = p3):
//   D1 = 0.2679 (p2 - p0) - 0.0718 (p3 - p1) + 0.0191 (p4 - p2)
//        - 0.0048 (p5 - p3) = (4.208, 0.6496)
//   D2 = 0.2679 (p3 - p1) - 0.0718 (p4 - p0) + 0.0191 (p5 - p1)
//        - 0.0048 (p4 - p2) = (3.154, 1.3952)
//   D3 = 0.2679 (p4 - p2) - 0.0718 (p5 - p1) + 0.0191 (p4 - p0)
//        - 0.0048 (p3 - p1) = (3.154, 1.7588)
// The row of m = 4 would give D2 = (3.218, 1.4304) and D3 = (3.218, 1.7876).
TEST(vxPath2DOLDSmooth, SixOpenPointsUseTheRowOfFive) {
    std::vector<float> xs, ys;
    for (int i = 0; i < 6; ++i) {
        xs.push_back(10.0f * static_cast<float>(i));
        ys.push_back(static_cast<float>(i * i));
    }
    vxPath2DOLD path;
    path.addSmoothPolygon(xs, ys, false);
    EXPECT_EQ(path.getVerbs(), (Verbs{2, 5, 5, 5, 5, 5}));
    // Points 1 to 3 with their control points, indices 2 to 10.
    const std::vector<Point> expected = {
        {10 - 4.208f, 1 - 0.6496f}, {10, 1}, {10 + 4.208f, 1 + 0.6496f},
        {20 - 3.154f, 4 - 1.3952f}, {20, 4}, {20 + 3.154f, 4 + 1.3952f},
        {30 - 3.154f, 9 - 1.7588f}, {30, 9}, {30 + 3.154f, 9 + 1.7588f}};
    for (size_t k = 0; k < expected.size(); ++k) {
        EXPECT_NEAR(path.getX()[k + 2], expected[k].first, 1e-4f) << k + 2;
        EXPECT_NEAR(path.getY()[k + 2], expected[k].second, 1e-4f) << k + 2;
    }
}

// Nine points x = i, y = i * i: eight segments read the full row of seven
// terms. At point 4, with reflection past the ends (p9 = p7, p-1 = p1):
//   Dx = 0.2679*2 - 0.0718*4 + 0.0192*6 - 0.0052*8 + 0.0014*6 - 0.0004*4
//        + 0.0001*2 = 0.3292
//   Dy = 0.2679*16 - 0.0718*32 + 0.0192*48 - 0.0052*64 + 0.0014*48
//        - 0.0004*32 + 0.0001*16 = 2.6336
// The row of seven terms would give Dy = 2.6352.
TEST(vxPath2DOLDSmooth, NinePointsUseTheRowOfEight) {
    std::vector<float> xs, ys;
    for (int i = 0; i < 9; ++i) {
        xs.push_back(static_cast<float>(i));
        ys.push_back(static_cast<float>(i * i));
    }
    vxPath2DOLD path;
    path.addSmoothPolygon(xs, ys, false);
    ASSERT_EQ(path.getNumOfPoints(), 3 * 9 - 2);
    // Before point 4 at index 11, point 4 at 12, after it at 13.
    EXPECT_NEAR(path.getX()[11], 4 - 0.3292f, 1e-4f);
    EXPECT_NEAR(path.getY()[11], 16 - 2.6336f, 1e-4f);
    EXPECT_NEAR(path.getY()[13], 16 + 2.6336f, 1e-4f);
    EXPECT_EQ(path.getY()[12], 16.0f);
}

// A closed square reads the row of N = 4, 0.25, with indices wrapping:
// D0 = 0.25 (p1 - p3) = (2.5, -2.5), and so on round the square.
TEST(vxPath2DOLDSmooth, ClosedCurvesWrapAndRepeatTheirStart) {
    const std::vector<Point> expected = {{0, 0},        {2.5f, -2.5f}, {7.5f, -2.5f}, {10, 0},
                                         {12.5f, 2.5f}, {12.5f, 7.5f}, {10, 10},      {7.5f, 12.5f},
                                         {2.5f, 12.5f}, {0, 10},       {-2.5f, 7.5f}, {-2.5f, 2.5f},
                                         {0, 0}};
    vxPath2DOLD closed;
    closed.addSmoothPolygon({0, 10, 10, 0}, {0, 0, 10, 10}, true);
    EXPECT_EQ(closed.getVerbs(), (Verbs{2, 5, 5, 5, 5, 1}));
    EXPECT_TRUE(hasPoints(closed, expected));

    // An open list whose ends meet is the same closed curve.
    vxPath2DOLD meeting;
    meeting.addSmoothPolygon({0, 10, 10, 0, 0}, {0, 0, 10, 10, 0}, false);
    EXPECT_EQ(meeting.getVerbs(), closed.getVerbs());
    EXPECT_TRUE(hasPoints(meeting, expected));
}

// Five points round a house shape, 0,0 10,0 20,10 10,20 0,10, read the
// row of N = 5, 0.2727 and 0.0909, with indices wrapping:
//   D0 = 0.2727 (p1 - p4) - 0.0909 (p2 - p3) = (1.818, -1.818)
//   D1 = 0.2727 (p2 - p0) - 0.0909 (p3 - p4) = (4.545, 1.818)
//   D2 = 0.2727 (p3 - p1) - 0.0909 (p4 - p0) = (0, 4.545)
//   D3 = 0.2727 (p4 - p2) - 0.0909 (p0 - p1) = (-4.545, 0)
//   D4 = 0.2727 (p0 - p3) - 0.0909 (p1 - p2) = (-1.818, -4.545)
TEST(vxPath2DOLDSmooth, FiveClosedPointsUseTheirOwnRow) {
    vxPath2DOLD path;
    path.addSmoothPolygon({0, 10, 20, 10, 0}, {0, 0, 10, 20, 10}, true);
    EXPECT_EQ(path.getVerbs(), (Verbs{2, 5, 5, 5, 5, 5, 1}));
    EXPECT_TRUE(hasPoints(path, {{0, 0},
                                 {1.818f, -1.818f},
                                 {5.455f, -1.818f},
                                 {10, 0},
                                 {14.545f, 1.818f},
                                 {20, 5.455f},
                                 {20, 10},
                                 {20, 14.545f},
                                 {14.545f, 20},
                                 {10, 20},
                                 {5.455f, 20},
                                 {1.818f, 14.545f},
                                 {0, 10},
                                 {-1.818f, 5.455f},
                                 {-1.818f, 1.818f},
                                 {0, 0}}));
}

// Seven points 0,0 10,0 20,0 30,10 20,20 10,20 0,10, closed, read the row
// of N = 7, 0.2683, 0.0732, 0.0244; the third term reaches round the ends:
//   D0 = 0.2683 (p1 - p6) - 0.0732 (p2 - p5) + 0.0244 (p3 - p4)
//      = (2.195, -1.463)
//   D1 = 0.2683 (p2 - p0) - 0.0732 (p3 - p6) + 0.0244 (p4 - p5) = (3.414, 0)
//   D3 = 0.2683 (p4 - p2) - 0.0732 (p5 - p1) + 0.0244 (p6 - p0) = (0, 4.146)
// The row of N = 8 would give D1 = (3.395, 0).
TEST(vxPath2DOLDSmooth, SevenClosedPointsUseThreeTerms) {
    vxPath2DOLD path;
    path.addSmoothPolygon({0, 10, 20, 30, 20, 10, 0}, {0, 0, 0, 10, 20, 20, 10}, true);
    ASSERT_EQ(path.getNumOfPoints(), 3 * 7 + 1);
    // index: after p0, before p1, after p1, before p3, after p3, before p0.
    const std::vector<std::pair<size_t, Point>> expected = {
        {1, {2.195f, -1.463f}}, {2, {6.586f, 0}},    {4, {13.414f, 0}},
        {8, {30, 5.854f}},      {10, {30, 14.146f}}, {20, {-2.195f, 1.463f}}};
    for (const auto& [k, p] : expected) {
        EXPECT_NEAR(path.getX()[k], p.first, 1e-4f) << k;
        EXPECT_NEAR(path.getY()[k], p.second, 1e-4f) << k;
    }
}

TEST(vxPath2DOLDSmooth, ASubRangeIsSmoothedOnItsOwn) {
    const std::vector<float> xs = {-50, 0, 10, 20, 30, 99}, ys = {7, 0, 10, 30, 60, 7};
    vxPath2DOLD whole, range;
    whole.addSmoothPolygon({0, 10, 20, 30}, {0, 10, 30, 60}, false);
    range.addSmoothPolygon(xs, ys, 1, 4, false);
    EXPECT_EQ(range.getVerbs(), whole.getVerbs());
    EXPECT_EQ(range.getX(), whole.getX());
    EXPECT_EQ(range.getY(), whole.getY());

    // Two points left in the range are joined straight; a range past the
    // end is cut to the points there are.
    vxPath2DOLD tail;
    tail.addSmoothPolygon(xs, ys, 4, 10, false);
    EXPECT_EQ(tail.getVerbs(), (Verbs{2, 3}));
    EXPECT_TRUE(hasPoints(tail, {{30, 60}, {99, 7}}));
}

}  // namespace
}  // namespace Velarix::test
