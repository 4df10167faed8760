#include "graphics/vxSelectionKnobs.h"

namespace Velarix {

void vxSelectionKnobs::setFromBounds(const float b[4]) {
    const float xs[8] = {b[0], b[2], b[2], b[0], (b[0] + b[2]) * 0.5f, b[2], (b[0] + b[2]) * 0.5f,
                         b[0]};
    const float ys[8] = {
        b[1], b[1], b[3], b[3], b[1], (b[1] + b[3]) * 0.5f, b[3], (b[1] + b[3]) * 0.5f};
    numOfKnobs = doShowMidKnobs ? 8 : 4;
    for (int i = 0; i < numOfKnobs; ++i) {
        x[i] = xs[i];
        y[i] = ys[i];
    }
}

}  // namespace Velarix
