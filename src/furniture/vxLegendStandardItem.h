// The entry of a series: its marker shows the series' look. The marker
// type is a sum of bits: 1 an area filled and bordered as the series'
// areas (its bars, say), 2 the series' symbol in the middle, 4 its line
// across the middle, 8 the area as an oval, 16 the area as a diamond. The
// parts draw in that order, the area at the bottom.
//
// Shapes of the area, in the marker box:
//   1 rectangle, 2 oval, 3 rounded rectangle (the radii 12 percent of the
//   box's sides), and polygons whose corners lie on the box's ellipse:
//   4 four corners, one at the top (a diamond); 5 six corners, turned by a
//   twelfth of a turn, so that the top and bottom are flat; 6 eight
//   corners, turned by a sixteenth; 7 three corners, one at the top.
// Shape 0 takes it from the marker type: a diamond, else an oval, else a
// rectangle.
//
// A symbol keeps its size as long as it fits the box, and is made smaller
// otherwise; it stands in the middle of the box whatever its offsets.
#pragma once

#include "charts/vxBaseChart.h"
#include "furniture/vxLegendItem.h"

namespace Velarix {

class vxLegendStandardItem : public vxLegendItem {
public:
    enum MarkerBits : short { kArea = 1, kSymbol = 2, kLine = 4, kOval = 8, kDiamond = 16 };
    enum Shape : short {
        kAutomaticShape = 0,
        kRectangle = 1,
        kOvalShape = 2,
        kRoundRect = 3,
        kDiamondShape = 4,
        kHexagon = 5,
        kOctagon = 6,
        kTriangle = 7,
    };

    explicit vxLegendStandardItem(vxUserSettings* owner);
    ~vxLegendStandardItem() override;

    // The parts of the marker type for the look, in a box of the given
    // size; false with error 5000 when memory runs out.
    bool createMarker(const vxBaseChart::SeriesLook& look, short markerType, short markerShape,
                      float width, float height);
    // The shape the area takes for a marker type and a shape (0 automatic).
    static short shapeOf(short markerType, short markerShape);

    // The parts one by one, in the box from (0, 0) of the size given.
    bool createArea(short shape, float width, float height, const vxBaseChart::Look& look);
    bool createLine(float width, float height, const vxBaseChart::Look& look);
    bool createSymbol(float width, float height, const vxBasicSymbol& from);
};

}  // namespace Velarix
