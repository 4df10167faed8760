// The handles of a selected object: up to eight points, the corners and,
// when asked for, the middles of the sides. Only the raster device shows
// them.
#pragma once

namespace Velarix {

class vxSelectionKnobs {
public:
    void reset() { *this = vxSelectionKnobs(); }
    // The corners of a rectangle (left, top, right, bottom), then the
    // middles of its sides when doShowMidKnobs is set.
    void setFromBounds(const float bounds[4]);

    bool doShowMidKnobs = false;
    short numOfKnobs = 0;
    float x[8] = {};
    float y[8] = {};
};

}  // namespace Velarix
