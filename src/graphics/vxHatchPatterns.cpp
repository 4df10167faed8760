#include "graphics/vxHatchPatterns.h"

namespace Velarix {

// clang-format off
const uint64_t kHatchPatterns[kNumOfHatchPatterns] = {
    // 1 to 8: full, empty, then a greying sequence
    0xffffffffffffffff, 0x0000000000000000, 0x8000000008000000, 0x8000080080000800,
    0x0011004400110044, 0x8822882288228822, 0x55aa55aa55aa55aa, 0x77dd77dd77dd77dd,
    // 9 to 12: horizontal lines, every 8th, 4th and 2nd line, and wide ones
    0xff00000000000000, 0xff000000ff000000, 0xff00ff00ff00ff00, 0xffff0000ffff0000,
    // 13 to 16: vertical lines in the same densities
    0x8080808080808080, 0x8888888888888888, 0xaaaaaaaaaaaaaaaa, 0xcccccccccccccccc,
    // 17 to 20: rising diagonals, thin and wide
    0x0102040810204080, 0x1122448811224488, 0x03060c183060c081, 0x3366cc993366cc99,
    // 21 to 24: falling diagonals, thin and wide
    0x8040201008040201, 0x8844221188442211, 0xc06030180c060381, 0xcc663399cc663399,
    // 25 to 28: square grids and diagonal crosses
    0xff80808080808080, 0xff888888ff888888, 0x8142241818244281, 0x9966669999666699,
    // 29 to 34: checks, weave, plaid, trellis, shingles
    0xf0f0f0f00f0f0f0f, 0xcccc3333cccc3333, 0x8854224588152251, 0xaa55aa55f0f0f0f0,
    0xff66ff99ff66ff99, 0x038448300c020101,
    // 35 to 38: bricks: horizontal, diagonal, vertical, half height
    0xff808080ff080808, 0x0102040818244281, 0x8f888888f8888888, 0xff80ff08ff80ff08,
    // 39 to 44: dots: sparse, grid of 4, grid of 2, large, pairs, round
    0x8000000000000000, 0x8800000088000000, 0xaa00aa00aa00aa00, 0x0000183c3c180000,
    0xc0c000000c0c0000, 0x10387c3810000000,
    // 45 to 48: dashes: horizontal, vertical, staggered, diagonal
    0xf00000000f000000, 0x8080808008080808, 0xf0000f00f0000f00, 0x0102000010200000,
    // 49 to 56: diamonds, zigzag, waves, boxes, small crosses
    0x183c7eff7e3c1800, 0x1824428142241800, 0x8142241881422418, 0x0018244281000000,
    0xff818181818181ff, 0x007e424242427e00, 0x10101010ff101010, 0x0044281028440000,
    // 57 to 62: more greys, from light to nearly full
    0x1000000001000000, 0x8800220088002200, 0xaa44aa11aa44aa11, 0x55ff55ff55ff55ff,
    0xff77ffddff77ffdd, 0x7ffffffff7ffffff,
    // 63, 64: half stripes, vertical and horizontal
    0x0f0f0f0f0f0f0f0f, 0xffffffff00000000,
};
// clang-format on

bool vxHatchLines(short patternIndex, uint8_t lines[8]) {
    if (patternIndex < kFirstHatchIndex || patternIndex > kLastHatchIndex) return false;
    const uint64_t row = kHatchPatterns[patternIndex - 2];
    for (int i = 0; i < 8; ++i) lines[i] = static_cast<uint8_t>(row >> (56 - 8 * i));
    return true;
}

}  // namespace Velarix
