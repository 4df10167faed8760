// Where an axis line stands on the drawing, as its parts need it to place
// themselves: the marks and labels of a straight axis run along one
// coordinate (x for a horizontal axis, y for a vertical one) and stand off
// the line across it, toward the plot or away from it.
#pragma once

namespace Velarix {

struct vxAxisGeometry {
    // Where marks and labels stand: toward the plot, across the line, or
    // away from the plot.
    enum Place : short { kIn = 1, kCenter = 2, kOut = 3 };

    bool horizontal = true;
    // The line's position across its direction: y of a horizontal axis,
    // x of a vertical one.
    float across = 0.0f;
    // +1 or -1: the direction across the line that leads away from the
    // plot (down for an axis under the plot, left for one beside it).
    float outward = 1.0f;
    // The line's ends along its direction, in device units.
    float start = 0.0f;
    float end = 0.0f;
    // How far the tick marks reach beyond the line on each side.
    float marksOutward = 0.0f;
    float marksInward = 0.0f;
    // Room taken beyond the marks by labels nearer the line: the minor
    // labels' row, which the major labels stand beyond.
    float labelsOutward = 0.0f;
    float labelsInward = 0.0f;
};

}  // namespace Velarix
