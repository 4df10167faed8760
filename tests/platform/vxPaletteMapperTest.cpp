#include "platform/vxPaletteMapper.h"

#include <gtest/gtest.h>

#include <climits>
#include <random>

namespace Velarix {
namespace {

int distance(uint32_t a, uint32_t b) {
    int d = 0;
    for (int shift : {0, 8, 16}) {
        int c = int(a >> shift & 0xFF) - int(b >> shift & 0xFF);
        d += c * c;
    }
    return d;
}

TEST(vxPaletteMapper, FindsNearestEntriesAndBreaksTiesByIndex) {
    vxPaletteMapper mapper({0xFFFFFF, 0xFF0000, 0x000000, 0x0000FF});
    EXPECT_EQ(mapper.nearest(0xFF0000), 1);
    EXPECT_EQ(mapper.nearest(0x202060), 2);
    EXPECT_EQ(mapper.nearest(0x2020A0), 3);
    EXPECT_EQ(mapper.nearest(0xFFC0C0C0), 0);  // bits above the colour are ignored
    // Three entries at the same distance from black, in both orders.
    EXPECT_EQ(vxPaletteMapper({0x100000, 0x000010, 0x001000}).nearest(0), 0);
    EXPECT_EQ(vxPaletteMapper({0x001000, 0x000010, 0x100000}).nearest(0), 0);
}

// The pruned search and its cache against trying every entry, over random
// palettes and colours; cache slots are shared by many colours here.
TEST(vxPaletteMapper, AgreesWithTryingEveryEntry) {
    std::mt19937 random(20240611);
    for (int round = 0; round < 3; ++round) {
        std::vector<uint32_t> palette(1 + random() % 256);
        for (uint32_t& c : palette) c = random() & 0xFFFFFF;
        vxPaletteMapper mapper(palette);
        for (int i = 0; i < 10000; ++i) {
            uint32_t colour = random() & 0xFFFFFF;
            int best = INT_MAX;
            for (uint32_t c : palette) best = std::min(best, distance(c, colour));
            ASSERT_EQ(distance(palette[mapper.nearest(colour)], colour), best)
                << std::hex << colour;
        }
    }
}

}  // namespace
}  // namespace Velarix
