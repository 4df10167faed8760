// A box of chart furniture that the chart places around or inside its
// plot: the title and the legend. The box measures itself in its set-up;
// the chart then reserves room for it and moves it to its place.
//
// Places are keypad codes: 1 top left, 2 top centre, 3 top right, 4 centre
// left, 5 centre, 6 centre right, 7 bottom left, 8 bottom centre, 9 bottom
// right. Outside the plot, the top and bottom rows take room above and
// below it, 4 and 6 beside it; 5 takes no room.
#pragma once

namespace Velarix {

class vxChartBox {
public:
    virtual ~vxChartBox() = default;

    // The keypad place, 1 to 9, automatic resolved to the box's default.
    virtual short getBoxLocation() const = 0;
    // True for a box that lies inside the plot.
    virtual bool isBoxInside() const = 0;
    // The box's own shift, x and y, from its place.
    virtual void getBoxOffsets(float offsets[2]) const = 0;
    // Width and height as measured by the last set-up; 0 for an empty box.
    virtual void getBoxSize(float size[2]) const = 0;
    // Moves the box so that its top left corner is at left, top.
    virtual void moveBoxTo(float left, float top) = 0;
};

}  // namespace Velarix
