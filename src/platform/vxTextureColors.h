// The colours of the built-in texture pictures: for each of the 64 a dark
// and a light colour, between which the picture's pattern blends.
#pragma once

#include "platform/vxGradientSettings.h"

namespace Velarix {

struct vxTextureColors {
    vxRGB dark;
    vxRGB light;
};

constexpr int kNumOfTextures = 64;

// Row i for the texture of pattern index 65 + i.
extern const vxTextureColors kTextureColors[kNumOfTextures];

}  // namespace Velarix
