// Bars with depth in round and many-sided profiles: their silhouettes
// against the box, the faces drawn for opaque and see-through fills, the
// symmetry of the four directions and bars of no size.
#include "charts/vxBarSolid.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "graphics/vxBasicPaint.h"
#include "graphics/vxBasicStroke.h"
#include "graphics/vxGObjectAppearanceOLD.h"
#include "graphics/vxGradientPaint.h"
#include "graphics/vxPath2DOLD.h"
#include "script/vxAssign.h"
#include "styles/vxBarStyle.h"

namespace Velarix {
namespace {

using Objects = std::vector<std::unique_ptr<vxGObjectOLD>>;
using Bounds = std::array<float, 4>;

constexpr float kRect[4] = {100, 100, 160, 300};  // 60 wide, 200 high
constexpr float kRed = 200;

std::unique_ptr<vxBarStyle> profile(short shape, float angle = 0) {
    auto style = std::make_unique<vxBarStyle>(nullptr);
    vxAssign a;
    for (int i = 0; i < 4; ++i) a.addVoid();
    a.addShort(shape);
    a.addFloat(angle);
    style->assign(a);
    return style;
}

// The back lies `x` to the right of the front and `y` above it.
vxBaseChartDepthInfo receding(float x, float y, float tilt = 0) {
    vxBaseChartDepthInfo depth;
    depth.setDepth(-x, -y);
    depth.setTilt(tilt);
    return depth;
}

Bounds boundsOf(vxGObjectOLD& shape) {
    Bounds b;
    shape.getBounds(b.data());
    return b;
}

// The darkening of a face with a plain fill, read from its red.
float darkeningOf(const vxGObjectOLD& face) {
    const vxPaintOLD* fill = const_cast<vxGObjectOLD&>(face).getAppearance()->getFillPaint();
    return 1.0f - fill->getColor()->getRed() / kRed;
}

class BarSolid : public ::testing::Test {
protected:
    Objects faces(const float rect[4], short direction, short shape,
                  const vxBaseChartDepthInfo& depth, bool opaque = true, float angle = 0) {
        Objects out;
        const vxBaseChart::Look look{opaque ? &fill : &glass, &stroke, &border};
        EXPECT_TRUE(
            vxBarSolid::addFaces(out, rect, direction, *profile(shape, angle), look, depth));
        return out;
    }
    Bounds silhouette(const float rect[4], short direction, short shape,
                      const vxBaseChartDepthInfo& depth, float angle = 0) {
        auto path = vxBarSolid::outline(rect, direction, *profile(shape, angle), depth);
        EXPECT_TRUE(path && path->getVerbs().back() == vxPath2DOLD::kClose);
        return path ? boundsOf(*path) : Bounds{};
    }
    vxBasicPaint fill{short(kRed), 40, 40};
    vxBasicPaint glass{short(kRed), 40, 40, 128};
    vxBasicPaint border{0, 0, 0};
    vxBasicStroke stroke{1.0f};
};

void expectBounds(const Bounds& b, float l, float t, float r, float bottom, const char* what) {
    EXPECT_NEAR(b[0], l, 0.05f) << what;
    EXPECT_NEAR(b[1], t, 0.05f) << what;
    EXPECT_NEAR(b[2], r, 0.05f) << what;
    EXPECT_NEAR(b[3], bottom, 0.05f) << what;
}

TEST_F(BarSolid, WithoutDepthTheSilhouetteSpansTheProfileAcrossTheBar) {
    const float s = std::sqrt(3.0f) / 4, p = 0.5f * std::cos(0.1f * 3.14159265f);
    const struct {
        short shape;
        float angle, lo, hi;
    } cases[] = {
        {1, 0, 0, 1},
        {2, 0, 0, 1},
        {3, 0, 0.5f - s, 0.5f + s},
        {4, 0, 0, 1},
        {5, 0, 0.5f - p, 0.5f + p},
        {6, 0, 0.5f - s, 0.5f + s},
        // Turned clockwise seen from the far end: the back corner of a
        // triangle goes right, its front-left corner to the left side.
        {3, 30, 0, 0.75f},
        {3, -30, 0.25f, 1},
        {4, 45, 0.5f - 0.5f * std::sqrt(0.5f), 0.5f + 0.5f * std::sqrt(0.5f)},
    };
    const vxBaseChartDepthInfo flat;
    for (const auto& c : cases) {
        SCOPED_TRACE(testing::Message() << "shape " << c.shape << " angle " << c.angle);
        expectBounds(silhouette(kRect, 1, c.shape, flat, c.angle), 100 + 60 * c.lo, 100,
                     100 + 60 * c.hi, 300, "upright");
        // A bar to the right is the upright one turned clockwise: its width
        // runs downward.
        expectBounds(silhouette(kRect, 4, c.shape, flat, c.angle), 100, 100 + 200 * c.lo, 160,
                     100 + 200 * c.hi, "to the right");
    }
}

TEST_F(BarSolid, TheSilhouetteStaysInTheBoxAndMeetsItWhereTheProfileMeetsItsSquare) {
    const vxBaseChartDepthInfo depth = receding(24, 16);
    for (short shape = 0; shape <= 6; ++shape) {
        SCOPED_TRACE(shape);
        const Bounds b = silhouette(kRect, 1, shape, depth);
        EXPECT_GE(b[0], 100 - 1e-3f);
        EXPECT_LE(b[2], 184 + 1e-3f);
        // Every profile has a corner at the back; triangle and pentagon
        // stay off the front side of the square.
        EXPECT_NEAR(b[1], 84, 1e-3f);
        const bool front = shape != 3 && shape != 5;
        EXPECT_EQ(std::fabs(b[3] - 300) < 1e-3f, front);
        EXPECT_LE(b[3], 300 + 1e-3f);
    }
    // Tilted, in every direction.
    const vxBaseChartDepthInfo tilted = receding(24, 16, 0.3f);
    float x[8], y[8];
    tilted.project(kRect, 0, 0, x, y);
    const auto [left, right] = std::minmax_element(x, x + 8);
    const auto [top, bottom] = std::minmax_element(y, y + 8);
    for (short direction = 1; direction <= 4; ++direction) {
        for (short shape = 1; shape <= 6; ++shape) {
            const Bounds b = silhouette(kRect, direction, shape, tilted, 20);
            EXPECT_TRUE(b[0] >= *left - 1e-3f && b[2] <= *right + 1e-3f && b[1] >= *top - 1e-3f &&
                        b[3] <= *bottom + 1e-3f)
                << direction << " " << shape;
        }
    }
}

TEST_F(BarSolid, OpaqueFillsShowTheSeenSidesThenTheEndSeeThroughFillsEveryFace) {
    const vxBaseChartDepthInfo depth = receding(24, 16);
    // The viewer sees the front, the right and the top; sides that face
    // the front or the right at least half-way are seen.
    const int seen[7] = {3, 2, 5, 2, 3, 3, 4};
    const int all[7] = {6, 4, 10, 5, 6, 7, 8};
    for (short shape = 0; shape <= 6; ++shape) {
        SCOPED_TRACE(shape);
        const Objects opaque = faces(kRect, 1, shape, depth);
        ASSERT_EQ(opaque.size(), size_t(seen[shape]));
        EXPECT_NEAR(darkeningOf(*opaque.back()), 0.13f, 0.01f);  // the top
        for (const auto& face : opaque) EXPECT_LE(darkeningOf(*face), 0.25f + 0.01f);
        const Objects clear = faces(kRect, 1, shape, depth, false);
        ASSERT_EQ(clear.size(), size_t(all[shape]));
        EXPECT_NEAR(darkeningOf(*clear.back()), 0.13f, 0.01f);
    }
}

TEST_F(BarSolid, TheSquareProfileIsTheBox) {
    const vxBaseChartDepthInfo depth = receding(24, 16);
    const Objects opaque = faces(kRect, 1, 0, depth);
    ASSERT_EQ(opaque.size(), 3u);
    // Right side, front, top, as the box's faces and darkenings.
    expectBounds(boundsOf(*opaque[0]), 160, 84, 184, 300, "right");
    EXPECT_NEAR(darkeningOf(*opaque[0]), 0.25f, 0.01f);
    expectBounds(boundsOf(*opaque[1]), 100, 100, 160, 300, "front");
    EXPECT_NEAR(darkeningOf(*opaque[1]), 0.0f, 0.01f);
    expectBounds(boundsOf(*opaque[2]), 100, 84, 184, 100, "top");
    // See-through: the back, the left and the bottom first, back to front.
    const Objects clear = faces(kRect, 1, 0, depth, false);
    ASSERT_EQ(clear.size(), 6u);
    expectBounds(boundsOf(*clear[0]), 124, 84, 184, 284, "back");
    expectBounds(boundsOf(*clear[1]), 100, 84, 124, 300, "left");
    expectBounds(boundsOf(*clear[2]), 100, 284, 184, 300, "bottom");
    for (int i = 0; i < 3; ++i) EXPECT_NEAR(darkeningOf(*clear[i]), 0.25f, 0.01f);
}

// Each face's bounds, sorted, after a map of the drawing.
std::vector<Bounds> faceBounds(const Objects& faces, float sx, float sy, bool swap) {
    std::vector<Bounds> all;
    for (const auto& face : faces) {
        Bounds b = boundsOf(*face);
        if (swap) b = {b[1], b[0], b[3], b[2]};
        Bounds m = {std::min(sx * b[0], sx * b[2]), std::min(sy * b[1], sy * b[3]),
                    std::max(sx * b[0], sx * b[2]), std::max(sy * b[1], sy * b[3])};
        for (float& v : m) v = std::round(v * 100) / 100;
        all.push_back(m);
    }
    std::sort(all.begin(), all.end());
    return all;
}

TEST_F(BarSolid, TheFourDirectionsAreMirrorsOfEachOther) {
    const float up[4] = {100, 100, 160, 300}, down[4] = {100, -300, 160, -100};
    const float left[4] = {-300, 100, -100, 160}, rightRect[4] = {100, 100, 300, 160};
    const float across[4] = {100, 100, 300, 160};  // the upright bar, transposed
    for (short shape = 1; shape <= 6; ++shape) {
        for (const bool opaque : {true, false}) {
            SCOPED_TRACE(testing::Message() << shape << (opaque ? " opaque" : " clear"));
            const Objects a = faces(up, 1, shape, receding(24, 16), opaque, 20);
            // Upside down: the back lies below, the turn runs the other way.
            const Objects b = faces(down, 2, shape, receding(24, -16), opaque, -20);
            EXPECT_EQ(faceBounds(a, 1, 1, false), faceBounds(b, 1, -1, false));
            // Bars along x, mirrored left to right.
            const Objects c = faces(rightRect, 4, shape, receding(16, 24), opaque, 20);
            const Objects d = faces(left, 3, shape, receding(-16, 24), opaque, -20);
            EXPECT_EQ(faceBounds(c, 1, 1, false), faceBounds(d, -1, 1, false));
            // The upright bar across the diagonal is a bar to the left.
            const Objects e = faces(across, 3, shape, receding(-16, -24), opaque, -20);
            EXPECT_EQ(faceBounds(a, 1, 1, false), faceBounds(e, 1, 1, true));
        }
    }
}

TEST_F(BarSolid, BarsOfNoSizeGiveFiniteFacesInsideTheirBox) {
    const float rects[][4] = {{100, 200, 160, 200}, {100, 100, 100, 300}, {50, 50, 50, 50}};
    for (const auto& rect : rects) {
        for (const auto& depth : {receding(24, 16), receding(0, 0), receding(24, 16, 0.4f)}) {
            float x[8], y[8];
            depth.project(rect, 0, 0, x, y);
            const Bounds box = {*std::min_element(x, x + 8), *std::min_element(y, y + 8),
                                *std::max_element(x, x + 8), *std::max_element(y, y + 8)};
            for (short direction = 1; direction <= 4; ++direction) {
                for (short shape = 0; shape <= 6; ++shape) {
                    SCOPED_TRACE(testing::Message() << rect[0] << " " << rect[1] << " dir "
                                                    << direction << " shape " << shape);
                    Objects all = faces(rect, direction, shape, depth, false);
                    auto path = vxBarSolid::outline(rect, direction, *profile(shape), depth);
                    ASSERT_TRUE(path);
                    all.push_back(std::move(path));
                    for (const auto& shape : all) {
                        const Bounds b = boundsOf(*shape);
                        for (float v : b) ASSERT_TRUE(std::isfinite(v));
                        EXPECT_TRUE(b[0] >= box[0] - 1e-3f && b[1] >= box[1] - 1e-3f &&
                                    b[2] <= box[2] + 1e-3f && b[3] <= box[3] + 1e-3f);
                    }
                }
            }
        }
    }
}

TEST_F(BarSolid, ACylinderIsShadedAcrossWhenItsFillIsAPlainColour) {
    const Objects cylinder = faces(kRect, 1, 1, receding(24, 16));
    ASSERT_EQ(cylinder.size(), 2u);
    const auto* shading = dynamic_cast<const vxGradientPaint*>(
        const_cast<vxGObjectOLD&>(*cylinder[0]).getAppearance()->getFillPaint());
    ASSERT_TRUE(shading);
    short lightest = 0, darkest = 255;
    for (long i = 0; i < shading->getNumOfColors(); ++i) {
        lightest = std::max(lightest, shading->getColor(i)->getRed());
        darkest = std::min(darkest, shading->getColor(i)->getRed());
    }
    EXPECT_GE(lightest, 196);  // almost facing the front
    EXPECT_LE(darkest, 160);   // the silhouettes turn away
    // A hatched fill keeps its pattern, darkened as a side.
    fill.setPatternIndex(5);
    const Objects hatched = faces(kRect, 1, 1, receding(24, 16));
    EXPECT_EQ(hatched[0]->getAppearance()->getFillPaint()->getType(), vxPaintOLD::kBasic);
}

}  // namespace
}  // namespace Velarix
