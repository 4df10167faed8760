// The standard dash patterns by index (1 to 8): on and off lengths in turn.
#pragma once

namespace Velarix {

struct vxDashPattern {
    short count;
    float lengths[6];
};

constexpr short kNumOfDashPatterns = 8;

extern const vxDashPattern kDashPatterns[kNumOfDashPatterns];

}  // namespace Velarix
