// The rectangle that holds several others, each left, top, right, bottom.
#pragma once

#include <algorithm>

namespace Velarix {

// Widens `into` to hold `part`; while `hasBounds` is false `into` holds
// nothing yet and becomes `part`.
inline void vxUniteBounds(float into[4], const float part[4], bool& hasBounds) {
    if (!hasBounds) {
        std::copy(part, part + 4, into);
        hasBounds = true;
        return;
    }
    into[0] = std::min(into[0], part[0]);
    into[1] = std::min(into[1], part[1]);
    into[2] = std::max(into[2], part[2]);
    into[3] = std::max(into[3], part[3]);
}

}  // namespace Velarix
