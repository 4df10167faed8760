// Where the chart puts a title or a legend. Outside the plot a box first
// takes a band off one side of the graph (or, around a fixed plot, adds a
// band beyond it); once the plot has settled, the box moves into its band,
// along the plot by the column or row of its place. Inside the plot a box
// stands in the corner or at the side of the inner area its place names.
#pragma once

namespace Velarix {

class vxChartBox;

class vxChartBoxPlacement {
public:
    enum Side : short { kNoSide = -1, kLeft = 0, kTop = 1, kRight = 2, kBottom = 3 };

    // The side of the plot a keypad place takes outside it.
    static Side sideOf(short location);
    // Takes the band of the box and `gap` off the graph's side; the band
    // is left, top, right, bottom. False for a box that takes no room. The
    // band takes at most `maxShare` of the graph's extent across the side;
    // a larger box reaches out of it, away from the plot.
    static bool reserveInside(const vxChartBox& box, float graph[4], float gap, float band[4],
                              float maxShare = 1.0f);
    // Adds the band of the box and `gap` beyond the graph's side, which
    // grows by both.
    static bool reserveOutside(const vxChartBox& box, float graph[4], float gap, float band[4]);
    // Moves the box into its band, along `plot` by its place's column (top
    // and bottom bands) or row (side bands), kept inside `limits` where it
    // fits; the box's offsets then shift it. A box larger than its band
    // keeps to the band's edge at the plot.
    static void placeInBand(vxChartBox& box, const float band[4], const float plot[4],
                            const float limits[4]);
    // Moves the box to its place in `area`, then by its offsets.
    static void placeInArea(vxChartBox& box, const float area[4]);
};

}  // namespace Velarix
