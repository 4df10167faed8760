// The hatch table: the rows that the colour rules give, and the mapping of
// pattern numbers to rows.
#include <gtest/gtest.h>

#include <set>

#include "graphics/vxHatchPatterns.h"

namespace Velarix {
namespace {

TEST(vxHatchPatterns, FirstRowsAreTheGreyingSequence) {
    const uint64_t given[8] = {0xffffffffffffffff, 0x0000000000000000, 0x8000000008000000,
                               0x8000080080000800, 0x0011004400110044, 0x8822882288228822,
                               0x55aa55aa55aa55aa, 0x77dd77dd77dd77dd};
    for (int i = 0; i < 8; ++i) EXPECT_EQ(kHatchPatterns[i], given[i]) << "row " << i + 1;
}

// Pattern i is row i - 1, top line first, for 3 to 64 only.
TEST(vxHatchPatterns, PatternNumbersPickRows) {
    uint8_t lines[8] = {1, 1, 1, 1, 1, 1, 1, 1};
    ASSERT_TRUE(vxHatchLines(3, lines));
    for (uint8_t line : lines) EXPECT_EQ(line, 0);
    ASSERT_TRUE(vxHatchLines(4, lines));
    const uint8_t third[8] = {0x80, 0x00, 0x00, 0x00, 0x08, 0x00, 0x00, 0x00};
    for (int i = 0; i < 8; ++i) EXPECT_EQ(lines[i], third[i]) << i;
    ASSERT_TRUE(vxHatchLines(64, lines));
    EXPECT_EQ(lines[0], static_cast<uint8_t>(kHatchPatterns[62] >> 56));
    for (short outside : {0, 1, 2, 65, 128, -3}) EXPECT_FALSE(vxHatchLines(outside, lines));
}

// Every pattern of our own is a pattern: neither empty nor full, and no
// two are alike.
TEST(vxHatchPatterns, OwnRowsAreDistinctPatterns) {
    std::set<uint64_t> seen(kHatchPatterns, kHatchPatterns + 8);
    for (int i = 8; i < kNumOfHatchPatterns; ++i) {
        EXPECT_NE(kHatchPatterns[i], 0u) << "row " << i + 1;
        EXPECT_NE(kHatchPatterns[i], ~uint64_t{0}) << "row " << i + 1;
        EXPECT_TRUE(seen.insert(kHatchPatterns[i]).second) << "row " << i + 1;
    }
}

}  // namespace
}  // namespace Velarix
