// Bars with depth in round and many-sided profiles: their silhouettes
// against the box, the faces drawn for opaque and see-through fills, the
// symmetry of the four directions and bars of no size.
#include "charts/vxBarSolid.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
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

Bounds boundsOf(const vxGObjectOLD& shape) {
    Bounds b;
    const_cast<vxGObjectOLD&>(shape).getBounds(b.data());
    return b;
}

const vxPaintOLD* fillOf(const vxGObjectOLD& face) {
    return const_cast<vxGObjectOLD&>(face).getAppearance()->getFillPaint();
}

float darkeningOf(const vxGObjectOLD& face) {
    return 1.0f - fillOf(face)->getColor()->getRed() / kRed;
}

bool isInside(const Bounds& b, const Bounds& box) {
    return b[0] >= box[0] - 1e-3f && b[1] >= box[1] - 1e-3f && b[2] <= box[2] + 1e-3f &&
           b[3] <= box[3] + 1e-3f;
}

void expectBounds(const Bounds& b, const Bounds& expected) {
    for (int i = 0; i < 4; ++i) EXPECT_NEAR(b[i], expected[i], 0.05f) << i;
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

TEST_F(BarSolid, TheSilhouetteSpansTheProfileAndMeetsTheBoxWhereTheProfileMeetsItsSquare) {
    const float s = std::sqrt(3.0f) / 4, p = 0.5f * std::cos(0.1f * 3.14159265f);
    const float d = 0.5f * std::sqrt(0.5f);
    const struct {
        short shape;
        float angle, lo, hi;  // the span across the width
        bool front;           // whether the profile touches the front
    } cases[] = {
        {1, 0, 0, 1, true},
        {2, 0, 0, 1, true},
        {3, 0, 0.5f - s, 0.5f + s, false},
        {4, 0, 0, 1, true},
        {5, 0, 0.5f - p, 0.5f + p, false},
        {6, 0, 0.5f - s, 0.5f + s, true},
        // Turned clockwise seen from the far end, the back corner of a
        // triangle goes right and its front-left corner to the left side.
        {3, 30, 0, 0.75f, false},
        {3, -30, 0.25f, 1, false},
        {4, 45, 0.5f - d, 0.5f + d, false},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(testing::Message() << "shape " << c.shape << " angle " << c.angle);
        const vxBaseChartDepthInfo flat;
        expectBounds(silhouette(kRect, 1, c.shape, flat, c.angle),
                     {100 + 60 * c.lo, 100, 100 + 60 * c.hi, 300});
        // With depth, unturned profiles reach the top of the back with a
        // corner.
        const Bounds b = silhouette(kRect, 1, c.shape, receding(24, 16), c.angle);
        EXPECT_TRUE(isInside(b, {100, 84, 184, 300}));
        EXPECT_TRUE(c.angle != 0 || std::fabs(b[1] - 84) < 1e-3f);
        EXPECT_EQ(std::fabs(b[3] - 300) < 1e-3f, c.front);
    }
}

TEST_F(BarSolid, OpaqueFillsShowTheSeenSidesThenTheEndSeeThroughFillsEveryFace) {
    const vxBaseChartDepthInfo depth = receding(24, 16);
    // Seen from the front, the right and above: the sides that turn
    // toward the front or the right, and the top.
    const size_t seen[7] = {3, 2, 5, 2, 3, 3, 4}, all[7] = {6, 4, 10, 5, 6, 7, 8};
    for (short shape = 0; shape <= 6; ++shape) {
        SCOPED_TRACE(shape);
        const Objects opaque = faces(kRect, 1, shape, depth);
        ASSERT_EQ(opaque.size(), seen[shape]);
        EXPECT_NEAR(darkeningOf(*opaque.back()), 0.13f, 0.01f);
        for (size_t i = shape == 1 ? 1 : 0; i < opaque.size(); ++i)
            EXPECT_LE(darkeningOf(*opaque[i]), 0.25f + 0.01f);
        const Objects clear = faces(kRect, 1, shape, depth, false);
        ASSERT_EQ(clear.size(), all[shape]);
        EXPECT_NEAR(darkeningOf(*clear.back()), 0.13f, 0.01f);
    }
    // A cylinder's side is shaded across, from the front's colour to that
    // of a side; a hatch keeps its pattern, darkened as one side.
    const Objects cylinder = faces(kRect, 1, 1, depth);
    const auto* shading = dynamic_cast<const vxGradientPaint*>(fillOf(*cylinder[0]));
    ASSERT_TRUE(shading);
    std::vector<short> reds;
    for (long i = 0; i < shading->getNumOfColors(); ++i)
        reds.push_back(shading->getColor(i)->getRed());
    EXPECT_GE(*std::max_element(reds.begin(), reds.end()), 196);
    EXPECT_LE(*std::min_element(reds.begin(), reds.end()), 160);
    fill.setPatternIndex(5);
    EXPECT_EQ(fillOf(*faces(kRect, 1, 1, depth)[0])->getType(), vxPaintOLD::kBasic);
}

TEST_F(BarSolid, TheSquareProfileIsTheBox) {
    const vxBaseChartDepthInfo depth = receding(24, 16);
    const Objects opaque = faces(kRect, 1, 0, depth);
    ASSERT_EQ(opaque.size(), 3u);
    const Bounds seen[3] = {{160, 84, 184, 300}, {100, 100, 160, 300}, {100, 84, 184, 100}};
    const float darkening[3] = {0.25f, 0, 0.13f};  // right side, front, top
    for (int i = 0; i < 3; ++i) {
        expectBounds(boundsOf(*opaque[i]), seen[i]);
        EXPECT_NEAR(darkeningOf(*opaque[i]), darkening[i], 0.01f);
    }
    // See-through: the back, the left and the bottom first, from the back.
    const Objects clear = faces(kRect, 1, 0, depth, false);
    ASSERT_EQ(clear.size(), 6u);
    const Bounds hidden[3] = {{124, 84, 184, 284}, {100, 84, 124, 300}, {100, 284, 184, 300}};
    for (int i = 0; i < 3; ++i) expectBounds(boundsOf(*clear[i]), hidden[i]);
}

// The faces' bounds after a mirror (and a swap of the axes), sorted.
std::vector<Bounds> mirrored(const Objects& faces, float sx, float sy, bool swap = false) {
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
    const float right[4] = {100, 100, 300, 160}, left[4] = {-300, 100, -100, 160};
    for (short shape = 1; shape <= 6; ++shape) {
        for (const bool opaque : {true, false}) {
            SCOPED_TRACE(testing::Message() << shape << (opaque ? " opaque" : " clear"));
            // Mirrored, a turn of the profile runs the other way.
            const Objects a = faces(up, 1, shape, receding(24, 16), opaque, 20);
            const Objects b = faces(down, 2, shape, receding(24, -16), opaque, -20);
            EXPECT_EQ(mirrored(a, 1, 1), mirrored(b, 1, -1));
            const Objects c = faces(right, 4, shape, receding(16, 24), opaque, 20);
            const Objects d = faces(left, 3, shape, receding(-16, 24), opaque, -20);
            EXPECT_EQ(mirrored(c, 1, 1), mirrored(d, -1, 1));
            // Across the diagonal, an upright bar is a bar to the left.
            const Objects e = faces(right, 3, shape, receding(-16, -24), opaque, -20);
            EXPECT_EQ(mirrored(a, 1, 1), mirrored(e, 1, 1, true));
        }
    }
}

TEST_F(BarSolid, BarsOfAnySizeGiveFiniteFacesInsideTheirBox) {
    const float rects[][4] = {
        {100, 100, 160, 300}, {100, 200, 160, 200}, {100, 100, 100, 300}, {50, 50, 50, 50}};
    for (const auto& rect : rects) {
        for (const auto& depth : {receding(24, 16), receding(0, 0), receding(24, 16, 0.4f)}) {
            float x[8], y[8];
            depth.project(rect, 0, 0, x, y);
            const Bounds box = {*std::min_element(x, x + 8), *std::min_element(y, y + 8),
                                *std::max_element(x, x + 8), *std::max_element(y, y + 8)};
            for (short direction = 1; direction <= 4; ++direction) {
                for (short shape = 0; shape <= 6; ++shape) {
                    SCOPED_TRACE(testing::Message() << rect[2] - rect[0] << "x" << rect[3] - rect[1]
                                                    << " dir " << direction << " shape " << shape);
                    Objects all = faces(rect, direction, shape, depth, false, 15);
                    all.push_back(vxBarSolid::outline(rect, direction, *profile(shape), depth));
                    for (const auto& object : all) {
                        ASSERT_TRUE(object);
                        const Bounds b = boundsOf(*object);
                        for (float v : b) ASSERT_TRUE(std::isfinite(v));
                        EXPECT_TRUE(isInside(b, box));
                    }
                }
            }
        }
    }
}

}  // namespace
}  // namespace Velarix
