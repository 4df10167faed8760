// The built-in colour palettes, one 0xrrggbb value per colour.
#pragma once

#include <cstdint>

namespace Velarix {

constexpr int kColorPalette88Size = 88;
constexpr int kColorPalette216Size = 216;

extern const uint32_t kColorPalette88[kColorPalette88Size];
extern const uint32_t kColorPalette216[kColorPalette216Size];

}  // namespace Velarix
