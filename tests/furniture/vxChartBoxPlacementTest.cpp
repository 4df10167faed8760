// Where a title or a legend goes: the band each place takes off the graph
// (or adds around a fixed plot), the box's place in its band along the
// plot, and its corner inside an area.
#include <gtest/gtest.h>

#include <vector>

#include "furniture/vxChartBox.h"
#include "furniture/vxChartBoxPlacement.h"

namespace Velarix::test {
namespace {

using Rect = std::vector<float>;

struct FakeBox : vxChartBox {
    short location = 2;
    bool inside = false;
    float size[2] = {40, 20};
    float offsets[2] = {0, 0};
    float left = -1, top = -1;
    short getBoxLocation() const override { return location; }
    bool isBoxInside() const override { return inside; }
    void getBoxOffsets(float o[2]) const override { o[0] = offsets[0], o[1] = offsets[1]; }
    void getBoxSize(float s[2]) const override { s[0] = size[0], s[1] = size[1]; }
    void moveBoxTo(float l, float t) override { left = l, top = t; }
};

Rect rectOf(const float* r) {
    return {r[0], r[1], r[2], r[3]};
}

TEST(ChartBoxPlacement, EachPlaceTakesItsSide) {
    struct Case {
        short location;
        Rect graphAfter, band, outwardGraph, outwardBand;
    };
    // A box of 40 by 20 and a gap of 8, in a graph of (10, 10, 390, 290).
    const Case cases[] = {
        {1, {10, 38, 390, 290}, {10, 10, 390, 30}, {10, -18, 390, 290}, {10, -18, 390, 2}},
        {2, {10, 38, 390, 290}, {10, 10, 390, 30}, {10, -18, 390, 290}, {10, -18, 390, 2}},
        {9, {10, 10, 390, 262}, {10, 270, 390, 290}, {10, 10, 390, 318}, {10, 298, 390, 318}},
        {4, {58, 10, 390, 290}, {10, 10, 50, 290}, {-38, 10, 390, 290}, {-38, 10, 2, 290}},
        {6, {10, 10, 342, 290}, {350, 10, 390, 290}, {10, 10, 438, 290}, {398, 10, 438, 290}},
    };
    for (const Case& c : cases) {
        FakeBox box;
        box.location = c.location;
        float graph[4] = {10, 10, 390, 290}, band[4];
        ASSERT_TRUE(vxChartBoxPlacement::reserveInside(box, graph, 8, band));
        EXPECT_EQ(rectOf(graph), c.graphAfter) << c.location;
        EXPECT_EQ(rectOf(band), c.band) << c.location;
        float around[4] = {10, 10, 390, 290};
        ASSERT_TRUE(vxChartBoxPlacement::reserveOutside(box, around, 8, band));
        EXPECT_EQ(rectOf(around), c.outwardGraph) << c.location;
        EXPECT_EQ(rectOf(band), c.outwardBand) << c.location;
    }
    // The centre and an empty box take nothing.
    FakeBox centre;
    centre.location = 5;
    float graph[4] = {10, 10, 390, 290}, band[4];
    EXPECT_FALSE(vxChartBoxPlacement::reserveInside(centre, graph, 8, band));
    FakeBox empty;
    empty.size[1] = 0;
    EXPECT_FALSE(vxChartBoxPlacement::reserveInside(empty, graph, 8, band));
    EXPECT_EQ(rectOf(graph), Rect({10, 10, 390, 290}));
}

TEST(ChartBoxPlacement, BoxRunsAlongThePlotInsideTheLimits) {
    const float band[4] = {10, 10, 390, 30}, plot[4] = {60, 50, 380, 260};
    const float limits[4] = {10, 10, 390, 290};
    struct Case {
        short location;
        float width, left;
    };
    // Left, centred and right on the plot; a box wider than the room left
    // of the plot's centre is pushed back inside the limits.
    for (const Case& c : {Case{1, 40, 60}, Case{2, 40, 200}, Case{3, 40, 340}, Case{3, 60, 320},
                          Case{2, 370, 20}, Case{2, 500, 10}}) {
        FakeBox box;
        box.location = c.location;
        box.size[0] = c.width;
        vxChartBoxPlacement::placeInBand(box, band, plot, limits);
        EXPECT_EQ(box.left, c.left) << c.location << " " << c.width;
        EXPECT_EQ(box.top, 10);
    }
    // A side band centres the box on the plot's height; offsets shift it.
    FakeBox side;
    side.location = 6;
    side.offsets[0] = 5;
    side.offsets[1] = -3;
    const float right[4] = {350, 10, 390, 290};
    vxChartBoxPlacement::placeInBand(side, right, plot, limits);
    EXPECT_EQ(side.left, 355);
    EXPECT_EQ(side.top, 145 - 3);
}

TEST(ChartBoxPlacement, InsideBoxesStandInTheCornersOfTheArea) {
    const float area[4] = {100, 100, 300, 200};
    const float lefts[3] = {100, 180, 260}, tops[3] = {100, 140, 180};
    for (short location = 1; location <= 9; ++location) {
        FakeBox box;
        box.location = location;
        vxChartBoxPlacement::placeInArea(box, area);
        EXPECT_EQ(box.left, lefts[(location - 1) % 3]) << location;
        EXPECT_EQ(box.top, tops[(location - 1) / 3]) << location;
    }
}

}  // namespace
}  // namespace Velarix::test
