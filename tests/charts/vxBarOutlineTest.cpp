// Outlines of flat bars with their caps: cap sizes, each cap's points
// worked out by hand on an upright bar, the end cap as the mirror of the
// start cap, the four directions as mirror images, and outlines that stay
// one closed figure inside the bar however small or far out it is.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <functional>
#include <string>
#include <vector>

#include "charts/vxBarOutline.h"
#include "graphics/vxPathTestSupport.h"
#include "script/vxAssign.h"
#include "styles/vxBarStyle.h"

namespace Velarix::test {
namespace {

constexpr short kNumOfCapTypes = 11;

// The tests' one bar style, given these caps as BarStyle gives them; each
// call fills it anew.
const vxBarStyle& capStyle(short startType, float startPercent, short endType, float endPercent) {
    static vxBarStyle style(nullptr);
    vxAssign assign;
    assign.addShort(startType);
    assign.addFloat(startPercent);
    assign.addShort(endType);
    assign.addFloat(endPercent);
    style.assign(assign);
    return style;
}

std::vector<Point> pointsOf(const vxPath2DOLD& path) {
    std::vector<Point> points;
    for (long i = 0; i < path.getNumOfPoints(); ++i)
        points.emplace_back(path.getX()[i], path.getY()[i]);
    return points;
}

// The points that verbs end at, and the middle of each cubic.
void anchorsOf(const vxPath2DOLD& path, std::vector<Point>& anchors, std::vector<Point>& middles) {
    size_t p = 0;
    for (short verb : path.getVerbs()) {
        if (verb == vxPath2DOLD::kClose) continue;
        if (verb == vxPath2DOLD::kCubic) middles.push_back(cubicAt(path, p - 1, 0.5f));
        p += verb == vxPath2DOLD::kCubic ? 3 : 1;
        anchors.emplace_back(path.getX()[p - 1], path.getY()[p - 1]);
    }
}

::testing::AssertionResult samePoints(const std::vector<Point>& got,
                                      const std::vector<Point>& expected) {
    bool same = got.size() == expected.size();
    for (size_t i = 0; same && i < got.size(); ++i) {
        same = std::fabs(got[i].first - expected[i].first) < 1e-3f &&
               std::fabs(got[i].second - expected[i].second) < 1e-3f;
    }
    if (same) return ::testing::AssertionSuccess();
    ::testing::AssertionResult failure = ::testing::AssertionFailure() << "got";
    for (const Point& p : got) failure << " (" << p.first << ", " << p.second << ")";
    return failure;
}

TEST(vxBarOutline, CapSizesComeFromTheWidthsAndShrinkTogetherToTheHeight) {
    struct Row {
        float h, w, wTop, startPercent, endPercent, start, end;
    };
    const Row rows[] = {
        {100, 10, 10, 50, 50, 5, 5},   // room enough
        {100, 10, 20, 50, 50, 5, 10},  // the end cap from the width at the far end
        {6, 10, 10, 50, 50, 3, 3},     // shrunk together
        {6, 10, 10, 100, 50, 4, 2},    // in proportion
        {10, 10, 10, 0, 250, 0, 10},   // one cap takes the whole bar
        {0, 10, 10, 50, 50, 0, 0},     // no height
        {-5, 10, 10, 50, 50, 0, 0},    // a negative height counts as none
        {10, 0, 0, 50, 50, 0, 0},      // no width
        {10, 10, 10, -20, 50, 0, 5},   // a negative size counts as none
    };
    for (const Row& row : rows) {
        float start = -1, end = -1;
        vxBarOutline::getCapSizes(row.h, row.w, row.wTop,
                                  capStyle(1, row.startPercent, 1, row.endPercent), start, end);
        EXPECT_NEAR(start, row.start, 1e-5f) << row.h << " " << row.startPercent;
        EXPECT_NEAR(end, row.end, 1e-5f) << row.h << " " << row.endPercent;
    }
}

TEST(vxBarOutline, StraightCapsGiveTheFourCornersFromTheBase) {
    // Corners that are no round numbers come out as they went in.
    const float rect[4] = {0.1f, 0.7f, 1.3f, 23.9f};
    const float l = rect[0], t = rect[1], r = rect[2], b = rect[3];
    const std::vector<Point> expected[4] = {
        {{l, b}, {r, b}, {r, t}, {l, t}},  // up
        {{l, t}, {r, t}, {r, b}, {l, b}},  // down
        {{r, b}, {r, t}, {l, t}, {l, b}},  // to the left
        {{l, b}, {l, t}, {r, t}, {r, b}},  // to the right
    };
    vxPath2DOLD path;
    path.moveTo(99, 99);  // emptied first
    for (short direction = 1; direction <= 4; ++direction) {
        vxBarOutline::build(path, rect, direction, capStyle(0, 50, 0, 50));
        EXPECT_EQ(path.getVerbs(), (Verbs{2, 3, 3, 3, 1})) << direction;
        EXPECT_EQ(pointsOf(path), expected[direction - 1]) << direction;
    }
    // A rectangle given the wrong way round, or an unknown direction, draws
    // the upright bar.
    const float turned[4] = {r, b, l, t};
    vxBarOutline::build(path, turned, 0, capStyle(0, 50, 0, 50));
    EXPECT_EQ(pointsOf(path), expected[0]);
}

TEST(vxBarOutline, EachStartCapOfAnUprightBar) {
    // The bar x 10..30, y 20..80 grows up: its base is y = 80, its far end
    // straight. 25 % of the width 20 is a cap of 5, 75 % one of 15 and
    // 125 % one of 25.
    const float rect[4] = {10, 20, 30, 80};
    struct Row {
        short type;
        float percent;
        Verbs verbs;
        std::vector<Point> anchors;
        std::vector<Point> arcMiddles;
    };
    const float a = 3.5355339f, b = 14.142136f;  // 5 and 20 times sin 45
    // clang-format off
    const Row rows[] = {
        {0, 25, {2, 3, 3, 3, 1}, {{10, 80}, {30, 80}}, {}},
        {1, 25, {2, 3, 3, 3, 3, 1}, {{10, 75}, {20, 80}, {30, 75}}, {}},
        {2, 25, {2, 3, 3, 3, 1}, {{10, 80}, {30, 75}}, {}},
        {3, 25, {2, 3, 3, 3, 1}, {{10, 75}, {30, 80}}, {}},
        {4, 25, {2, 3, 3, 3, 3, 1}, {{10, 80}, {20, 75}, {30, 80}}, {}},
        // round: two quarter circles joined by the base, or a half ellipse
        {5, 25, {2, 5, 3, 5, 3, 3, 1}, {{10, 75}, {15, 80}, {25, 80}, {30, 75}},
         {{15 - a, 75 + a}, {25 + a, 75 + a}}},
        {5, 75, {2, 5, 5, 3, 3, 1}, {{10, 65}, {20, 80}, {30, 65}},
         {{20 - 2 * a, 65 + 3 * a}, {20 + 2 * a, 65 + 3 * a}}},
        // round up: the right corner; from 100 % a quarter ellipse over the width
        {6, 25, {2, 3, 5, 3, 3, 1}, {{10, 80}, {25, 80}, {30, 75}}, {{25 + a, 75 + a}}},
        {6, 125, {2, 5, 3, 3, 1}, {{10, 80}, {30, 55}}, {{10 + b, 55 + 5 * a}}},
        // round down: the left corner
        {7, 25, {2, 5, 3, 3, 3, 1}, {{10, 75}, {15, 80}, {30, 80}}, {{15 - a, 75 + a}}},
        {7, 125, {2, 5, 3, 3, 1}, {{10, 55}, {30, 80}}, {{30 - b, 55 + 5 * a}}},
        // beaks: hollow quarter ellipses of radii 20 and 5 over the width
        {8, 25, {2, 5, 3, 3, 1}, {{10, 80}, {30, 75}}, {{30 - b, 80 - a}}},
        {9, 25, {2, 5, 3, 3, 1}, {{10, 75}, {30, 80}}, {{10 + b, 80 - a}}},
        // round notch: a half ellipse of radii 10 and 5 cut into the base
        {10, 25, {2, 5, 5, 3, 3, 1}, {{10, 80}, {20, 75}, {30, 80}},
         {{20 - 2 * a, 80 - a}, {20 + 2 * a, 80 - a}}},
        // an unknown type is straight
        {11, 25, {2, 3, 3, 3, 1}, {{10, 80}, {30, 80}}, {}},
    };
    // clang-format on
    vxPath2DOLD path;
    for (const Row& row : rows) {
        vxBarOutline::build(path, rect, vxBarOutline::kUp, capStyle(row.type, row.percent, 0, 0));
        std::vector<Point> expected = row.anchors, anchors, middles;
        expected.insert(expected.end(), {{30, 20}, {10, 20}});
        anchorsOf(path, anchors, middles);
        EXPECT_EQ(path.getVerbs(), row.verbs) << row.type << " at " << row.percent;
        EXPECT_TRUE(samePoints(anchors, expected)) << row.type << " at " << row.percent;
        EXPECT_TRUE(samePoints(middles, row.arcMiddles)) << row.type << " at " << row.percent;
    }
}

TEST(vxBarOutline, TheEndCapIsTheStartCapMirroredAcrossTheBar) {
    // With the other cap straight, the start cap's points mirrored across
    // y = 50 and read backward are the end cap's points.
    const float rect[4] = {10, 20, 30, 80};
    for (short type = 0; type < kNumOfCapTypes; ++type) {
        for (float percent : {25.0f, 75.0f, 125.0f}) {
            vxPath2DOLD start, end;
            vxBarOutline::build(start, rect, vxBarOutline::kUp, capStyle(type, percent, 0, 0));
            vxBarOutline::build(end, rect, vxBarOutline::kUp, capStyle(0, 0, type, percent));
            std::vector<Point> cap = pointsOf(start);
            cap.resize(cap.size() - 2);  // the straight end's two corners
            for (Point& p : cap) p.second = 100 - p.second;
            std::vector<Point> mirrored(cap.rbegin(), cap.rend());
            std::vector<Point> endCap = pointsOf(end);
            endCap.erase(endCap.begin(), endCap.begin() + 2);  // the straight base
            EXPECT_TRUE(samePoints(endCap, mirrored)) << type << " at " << percent;
        }
    }
}

TEST(vxBarOutline, TheFourDirectionsAreMirrorImages) {
    // The bar x 10..30, y 20..80 growing up or down, and the same bar laid
    // on its side, x 100..160, y 40..60, growing right or left.
    const float upright[4] = {10, 20, 30, 80}, lying[4] = {100, 40, 160, 60};
    using Map = std::function<Point(Point)>;
    const Map flipDown = [](Point p) { return Point{p.first, 100 - p.second}; };
    const Map toRight = [](Point p) { return Point{100 + (80 - p.second), 60 - (p.first - 10)}; };
    const Map toLeft = [&](Point p) {
        const Point q = toRight(p);
        return Point{260 - q.first, q.second};
    };
    const struct {
        short direction;
        const float* rect;
        const Map& map;
    } images[] = {{2, upright, flipDown}, {4, lying, toRight}, {3, lying, toLeft}};
    for (short startType = 0; startType < kNumOfCapTypes; ++startType) {
        for (short endType = 0; endType < kNumOfCapTypes; ++endType) {
            const vxBarStyle& style = capStyle(startType, 40, endType, 120);
            vxPath2DOLD up;
            vxBarOutline::build(up, upright, vxBarOutline::kUp, style);
            for (const auto& image : images) {
                vxPath2DOLD other;
                vxBarOutline::build(other, image.rect, image.direction, style);
                std::vector<Point> expected = pointsOf(up);
                for (Point& p : expected) p = image.map(p);
                EXPECT_EQ(other.getVerbs(), up.getVerbs());
                EXPECT_TRUE(samePoints(pointsOf(other), expected))
                    << "direction " << image.direction << ", caps " << startType << " and "
                    << endType;
            }
        }
    }
}

// What is wrong with an outline: more than one figure, an open one, NaN
// or a point (control points too) outside its bar. Empty when nothing.
std::string flawOf(const float rect[4], short direction, const vxBarStyle& style) {
    vxPath2DOLD path;
    vxBarOutline::build(path, rect, direction, style);
    if (path.isError()) return "error";
    if (path.isEmpty()) return "";
    const Verbs& verbs = path.getVerbs();
    if (std::count(verbs.begin(), verbs.end(), vxPath2DOLD::kMove) != 1) return "figures";
    if (verbs.back() != vxPath2DOLD::kClose) return "open";
    // A float's own step far out.
    const float slack = 1e-4f + 4e-7f * std::max(std::fabs(rect[2]), std::fabs(rect[3]));
    for (const auto& [x, y] : pointsOf(path)) {
        if (!(x >= rect[0] - slack && x <= rect[2] + slack && y >= rect[1] - slack &&
              y <= rect[3] + slack)) {
            return "outside at " + std::to_string(x) + ", " + std::to_string(y);
        }
    }
    return "";
}

TEST(vxBarOutline, EveryCapStaysInsideItsBarAsOneClosedFigure) {
    const float rects[][4] = {
        {10, 20, 30, 80},                          // tall
        {10, 20, 90, 26},                          // flat
        {0.5f, 0.5f, 1.5f, 1.5f},                  // square and small
        {20000.3f, 30000.7f, 20013.9f, 30107.1f},  // far out, where floats are coarse
        {10, 20, 10, 80},                          // no width
        {10, 20, 30, 20},                          // no height
        {10, 20, 10, 20},                          // neither
        {10, 20, 10.000001f, 80},                  // next to nothing
        {10, 20, 30, 20.000002f},
    };
    for (const auto& rect : rects) {
        for (short direction = 1; direction <= 4; ++direction) {
            for (short startType = 0; startType < kNumOfCapTypes; ++startType) {
                for (short endType = 0; endType < kNumOfCapTypes; ++endType) {
                    for (float percent : {10.0f, 50.0f, 100.0f, 300.0f}) {
                        EXPECT_EQ(
                            flawOf(rect, direction, capStyle(startType, percent, endType, percent)),
                            "")
                            << rect[0] << " " << rect[1] << ", direction " << direction << ", caps "
                            << startType << " and " << endType << " at " << percent;
                    }
                }
            }
        }
    }
    // The bar of no height keeps its four corners.
    vxPath2DOLD path;
    vxBarOutline::build(path, rects[5], vxBarOutline::kUp, capStyle(5, 50, 5, 50));
    EXPECT_EQ(path.getVerbs(), (Verbs{2, 3, 3, 3, 1}));
}

}  // namespace
}  // namespace Velarix::test
