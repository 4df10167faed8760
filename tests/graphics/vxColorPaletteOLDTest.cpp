#include <gtest/gtest.h>

#include <set>
#include <vector>

#include "graphics/vxColorPaletteOLD.h"

namespace Velarix {
namespace {

// The colour at an index as 0xrrggbb.
long colorAt(const vxColorPaletteOLD& palette, short index) {
    short rgb[3] = {-1, -1, -1};
    palette.getColor(index, rgb);
    return (long{rgb[0]} << 16) | (long{rgb[1]} << 8) | rgb[2];
}

TEST(vxColorPaletteOLD, DefaultPaletteHasEightyEightColours) {
    vxColorPaletteOLD palette;
    EXPECT_EQ(palette.getPaletteID(), 1);
    EXPECT_EQ(palette.getNumOfColors(), 88);
    EXPECT_EQ(colorAt(palette, 0), 0xffffff);
    EXPECT_EQ(colorAt(palette, 1), 0x000000);
    EXPECT_EQ(colorAt(palette, 10), 0x660066);
    EXPECT_EQ(colorAt(palette, 11), 0x888888);  // first of row 1
    EXPECT_EQ(colorAt(palette, 3 * 11 + 7), 0x0099ff);
    EXPECT_EQ(colorAt(palette, 87), 0xffccff);
}

TEST(vxColorPaletteOLD, IndexOutsideBuiltInPalettesIsBlack) {
    vxColorPaletteOLD palette;
    EXPECT_EQ(colorAt(palette, -1), 0);
    EXPECT_EQ(colorAt(palette, 88), 0);
    palette.setPaletteID(2);
    EXPECT_EQ(colorAt(palette, -1), 0);
    EXPECT_EQ(colorAt(palette, 216), 0);
    EXPECT_EQ(colorAt(palette, 32767), 0);
}

TEST(vxColorPaletteOLD, WebPaletteFollowsItsStoredOrder) {
    vxColorPaletteOLD palette;
    palette.setPaletteID(2);
    EXPECT_EQ(palette.getNumOfColors(), 216);
    EXPECT_EQ(colorAt(palette, 0), 0x000000);
    EXPECT_EQ(colorAt(palette, 5), 0x0000ff);
    EXPECT_EQ(colorAt(palette, 6), 0x3300ff);  // red 33 steps blue downward
    EXPECT_EQ(colorAt(palette, 11), 0x330000);
    EXPECT_EQ(colorAt(palette, 12), 0x660000);
    EXPECT_EQ(colorAt(palette, 17), 0x6600ff);
    EXPECT_EQ(colorAt(palette, 18), 0x003300);  // next block: green 33
    EXPECT_EQ(colorAt(palette, 100), 0x33ff33);
    EXPECT_EQ(colorAt(palette, 107), 0x66ffff);
    EXPECT_EQ(colorAt(palette, 108), 0x990000);  // second half: reds 99, cc, ff
    EXPECT_EQ(colorAt(palette, 150), 0xcc66ff);
    EXPECT_EQ(colorAt(palette, 215), 0xffffff);
}

TEST(vxColorPaletteOLD, WebPaletteHoldsEachCubeColourOnce) {
    vxColorPaletteOLD palette;
    palette.setPaletteID(2);
    std::set<long> seen;
    for (short i = 0; i < 216; ++i) {
        short rgb[3];
        palette.getColor(i, rgb);
        for (short c : rgb) EXPECT_EQ(c % 0x33, 0) << "index " << i;
        seen.insert(colorAt(palette, i));
    }
    EXPECT_EQ(seen.size(), 216u);
}

TEST(vxColorPaletteOLD, UnknownCodesSelectTheDefaultPalette) {
    for (short id : {0, 3, -2, 88}) {
        vxColorPaletteOLD palette;
        palette.setPaletteID(2);
        palette.setPaletteID(id);
        EXPECT_EQ(palette.getPaletteID(), 1) << id;
        EXPECT_EQ(palette.getNumOfColors(), 88) << id;
    }
}

TEST(vxColorPaletteOLD, UserPaletteReadsThreeNumbersAColour) {
    vxColorPaletteOLD palette;
    palette.setPaletteID(-1);
    palette.setColors(std::vector<short>{10, 20, 30, 40, 50, 60});
    EXPECT_EQ(palette.getNumOfColors(), 2);
    EXPECT_EQ(colorAt(palette, 0), 0x0a141e);
    EXPECT_EQ(colorAt(palette, 1), 0x28323c);
    // Just past the last colour, and past a colour left incomplete.
    EXPECT_EQ(colorAt(palette, 2), 0);
    EXPECT_EQ(colorAt(palette, -1), 0);
    palette.setColors(std::vector<short>{10, 20, 30, 40});
    EXPECT_EQ(colorAt(palette, 1), 0);
}

TEST(vxColorPaletteOLD, ShortUserListBecomesBlackAndWhite) {
    for (const std::vector<short>& list : {std::vector<short>{}, std::vector<short>{7}}) {
        vxColorPaletteOLD palette;
        palette.setPaletteID(-1);
        palette.setColors(std::vector<short>{1, 2, 3, 4, 5, 6, 7, 8, 9});
        palette.setColors(list);
        EXPECT_EQ(palette.getNumOfColors(), 2);
        EXPECT_EQ(colorAt(palette, 0), 0x000000);
        EXPECT_EQ(colorAt(palette, 1), 0xffffff);
    }
}

TEST(vxColorPaletteOLD, UserPaletteStopsAt1024Colours) {
    vxColorPaletteOLD palette;
    palette.setPaletteID(-1);
    std::vector<short> list(3 * 1030, 0);
    list[3 * 1023] = 255;
    list[3 * 1024] = 255;
    palette.setColors(list);
    EXPECT_EQ(palette.getNumOfColors(), 1024);
    EXPECT_EQ(colorAt(palette, 1023), 0xff0000);
    EXPECT_EQ(colorAt(palette, 1024), 0);
}

TEST(vxColorPaletteOLD, CopyTakesCodeAndColoursAndNullResets) {
    vxColorPaletteOLD from;
    from.setPaletteID(-1);
    from.setColors(std::vector<short>{1, 2, 3, 4, 5, 6, 7, 8, 9});
    vxColorPaletteOLD to;
    to.set(&from);
    EXPECT_EQ(to.getPaletteID(), -1);
    EXPECT_EQ(to.getColors(), from.getColors());
    EXPECT_EQ(colorAt(to, 2), 0x070809);
    to.set(nullptr);
    EXPECT_EQ(to.getPaletteID(), 1);
    EXPECT_EQ(to.getColors(), (std::vector<short>{0, 0, 0, 255, 255, 255}));
}

}  // namespace
}  // namespace Velarix
