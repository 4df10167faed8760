// The hatches of fill patterns 3 to 64: bitmaps of 8 by 8 pixels. A set bit
// takes the paint's colour, a clear bit is white at the paint's alpha.
#pragma once

#include <cstdint>

namespace Velarix {

constexpr int kNumOfHatchPatterns = 64;
constexpr short kFirstHatchIndex = 3;
constexpr short kLastHatchIndex = 64;

// Row r (counted from 1) at index r - 1. A row holds the top line of the
// bitmap in its most significant byte and the left pixel of a line in the
// byte's most significant bit.
extern const uint64_t kHatchPatterns[kNumOfHatchPatterns];

// The bitmap of a paint's pattern number: pattern i is row i - 1. False,
// with `lines` untouched, for a number that isn't a hatch.
bool vxHatchLines(short patternIndex, uint8_t lines[8]);

}  // namespace Velarix
