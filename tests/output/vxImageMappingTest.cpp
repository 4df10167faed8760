// Expected destinations worked out by hand for a 40 by 20 picture in the
// box 100, 50 to 300, 150 (200 by 100) unless a case says otherwise.
#include "output/vxImageMapping.h"

#include <gtest/gtest.h>

#include <vector>

namespace Velarix {
namespace {

const float kBox[4] = {100, 50, 300, 150};

vxImageMapping mapped(long w, long h, short adjustment, short location = 1,
                      bool proportional = false, const float* box = kBox) {
    vxImageMapping m;
    m.setSourceSize(w, h);
    m.setAnchor(box);
    m.setAdjustment(adjustment);
    m.setLocation(location);
    m.setIsProportional(proportional);
    return m;
}

void expectDest(const vxImageMapping& m, float left, float top, float width, float height) {
    EXPECT_FLOAT_EQ(m.getDestLeft(), left);
    EXPECT_FLOAT_EQ(m.getDestTop(), top);
    EXPECT_FLOAT_EQ(m.getDestWidth(), width);
    EXPECT_FLOAT_EQ(m.getDestHeight(), height);
    EXPECT_EQ(m.getNumOfRows(), 1);
    EXPECT_EQ(m.getNumOfColumns(), 1);
}

TEST(vxImageMapping, AdjustmentsSizeTheDestination) {
    const struct {
        long w, h;
        short adjustment;
        bool proportional;
        float width, height;
    } cases[] = {
        {40, 20, 1, false, 40, 20},      // keep
        {400, 20, 1, false, 400, 20},    // keep, larger than the box
        {40, 20, 2, false, 40, 20},      // shrink: smaller, kept
        {400, 50, 2, false, 200, 25},    // shrink by 200 / 400
        {400, 400, 2, false, 100, 100},  // shrink by 100 / 400, the smaller factor
        {40, 20, 3, false, 200, 100},    // grow by min(5, 5)
        {40, 25, 3, false, 160, 100},    // grow by min(5, 4)
        {400, 20, 3, false, 400, 20},    // grow: wider than the box, kept
        {40, 20, 4, false, 200, 100},    // fit, each direction alone
        {40, 40, 4, false, 200, 100},   {40, 40, 4, true, 100, 100},   // fit keeping the ratio
        {400, 100, 4, true, 200, 50},   {40, 20, 5, false, 200, 100},  // fill
        {40, 40, 5, true, 200, 100},                                   // fill ignores the ratio
        {40, 20, 0, false, 200, 100},                                  // unknown codes fill
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(testing::Message() << c.w << "x" << c.h << " code " << c.adjustment);
        const vxImageMapping m = mapped(c.w, c.h, c.adjustment, 1, c.proportional);
        expectDest(m, 100, 50, c.width, c.height);
    }
}

TEST(vxImageMapping, LocationsPlaceOnTheThreeByThreeGrid) {
    // A kept 40 by 20 picture: free space 160 across and 80 down.
    const float lefts[] = {100, 180, 260};
    const float tops[] = {50, 90, 130};
    for (short location = 1; location <= 9; ++location) {
        const vxImageMapping m = mapped(40, 20, vxImageMapping::kKeep, location);
        expectDest(m, lefts[(location - 1) % 3], tops[(location - 1) / 3], 40, 20);
    }
    // Automatic centres a single picture; out of range is middle left.
    expectDest(mapped(40, 20, vxImageMapping::kKeep, 0), 180, 90, 40, 20);
    expectDest(mapped(40, 20, vxImageMapping::kKeep, 12), 100, 90, 40, 20);
    vxImageMapping defaults;
    EXPECT_EQ(defaults.getLocation(), 4);
    EXPECT_EQ(defaults.getAdjustment(), 5);
}

TEST(vxImageMapping, SmallerPictureThatMayOnlyShrinkKeepsItsSizeAndCentres) {
    expectDest(mapped(40, 20, vxImageMapping::kShrink, vxImageMapping::kCenter), 180, 90, 40, 20);
    // Shrunk to 200 by 25, then centred in height.
    expectDest(mapped(400, 50, vxImageMapping::kShrink, vxImageMapping::kCenter), 100, 87.5f, 200,
               25);
}

TEST(vxImageMapping, TilesCoverTheAnchorFromTheLocationsCorner) {
    // 200 / 60 and 100 / 30 need 4 columns and 4 rows: a 240 by 120 block.
    vxImageMapping m = mapped(60, 30, vxImageMapping::kTile, 1);
    EXPECT_EQ(m.getNumOfColumns(), 4);
    EXPECT_EQ(m.getNumOfRows(), 4);
    float x = 0, y = 0;
    m.getFirstTile(x, y);
    EXPECT_FLOAT_EQ(x, 100);
    EXPECT_FLOAT_EQ(y, 50);
    float tile[4];
    m.getTile(2, 3, tile);
    EXPECT_FLOAT_EQ(tile[0], 100 + 3 * 60);
    EXPECT_FLOAT_EQ(tile[1], 50 + 2 * 30);
    EXPECT_FLOAT_EQ(tile[2], 60);
    EXPECT_FLOAT_EQ(tile[3], 30);

    // Bottom right: the block ends at the anchor's corner.
    m.setLocation(9);
    m.getFirstTile(x, y);
    EXPECT_FLOAT_EQ(x, 300 - 240);
    EXPECT_FLOAT_EQ(y, 150 - 120);
    m.setLocation(5);
    m.getFirstTile(x, y);
    EXPECT_FLOAT_EQ(x, 80);
    EXPECT_FLOAT_EQ(y, 40);
    // Automatic tiles from the top left.
    m.setLocation(0);
    m.getFirstTile(x, y);
    EXPECT_FLOAT_EQ(x, 100);

    // Tiles that fit exactly add no further row or column.
    const vxImageMapping exact = mapped(50, 25, vxImageMapping::kTile);
    EXPECT_EQ(exact.getNumOfColumns(), 4);
    EXPECT_EQ(exact.getNumOfRows(), 4);
}

TEST(vxImageMapping, NothingToDrawWithoutSizeOrAnchor) {
    const float flat[4] = {100, 50, 300, 50};
    for (const vxImageMapping& m :
         {mapped(0, 20, vxImageMapping::kFill), mapped(40, 0, vxImageMapping::kTile),
          mapped(40, 20, vxImageMapping::kFill, 1, false, flat),
          mapped(40, 20, vxImageMapping::kTile, 1, false, flat)}) {
        EXPECT_TRUE(m.isEmpty());
        EXPECT_EQ(m.getNumOfRows(), 0);
        EXPECT_EQ(m.getNumOfColumns(), 0);
        EXPECT_FLOAT_EQ(m.getDestWidth(), 0);
    }
}

TEST(vxImageMapping, TwoRectanglesRoundTheirFarEdges) {
    vxImageMapping m;
    m.setAdjustment(vxImageMapping::kKeep);
    m.setLocation(9);
    // 10.4 - 0.001 rounds to 10; 20.5 - 0.001 to 20; 110.0 - 0.001 to 110.
    const float source[4] = {0, 0, 10.4f, 20.5f};
    const float dest[4] = {5, 5, 110.0f, 60.6f};
    m.set(source, dest);
    EXPECT_EQ(m.getSourceWidth(), 10);
    EXPECT_EQ(m.getSourceHeight(), 20);
    EXPECT_EQ(m.getAdjustment(), vxImageMapping::kFill);
    expectDest(m, 5, 5, 105, 56);
}

}  // namespace
}  // namespace Velarix
