// The settings of the built-in gradient resources: two colour stops at 0
// and 1 and the geometry. Unless a row says otherwise the colours are white
// (255, 255, 255) and grey (184, 184, 184), the first point is the centre
// (0.5, 0.5) and the radius 0.5.
#pragma once

#include <cstdint>

namespace Velarix {

struct vxRGB {
    uint8_t red, green, blue;
};

struct vxGradientSetting {
    // 2 linear: from (x1, y1) to (x2, y2). 3 radial: centre (x1, y1),
    // focus (x2, y2), radius.
    short kind;
    float x1, y1, x2, y2;
    float radius;
    short spread;  // 1 pad, 2 repeat, 3 reflect
    vxRGB first;
    vxRGB last;
};

constexpr int kNumOfGradientSettings = 42;

// The row of an index code from 1 to 42.
extern const vxGradientSetting kGradientSettings[kNumOfGradientSettings];

}  // namespace Velarix
