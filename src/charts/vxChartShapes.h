// Shapes of chart items in an item's look: the fill and the border of the
// style, darkened for the faces of solids that turn away from the light.
#pragma once

#include <memory>

#include "charts/vxBaseChart.h"

namespace Velarix {

class vxGObjectOLD;
class vxPath2DOLD;

// Gives a shape the look's fill and border, each darkened by `darkening`
// (0 keeps the colours). Faces of solids (`isFace`) meet cleanly: their
// border joins and ends round.
void vxApplyLook(vxGObjectOLD& shape, const vxBaseChart::Look& look, float darkening = 0.0f,
                 bool isFace = false);

// A closed polygon through n points of x and y, taken in the order of
// `corners` (or as they stand when it is null), in the look.
std::unique_ptr<vxPath2DOLD> vxMakeLookedPolygon(const float* x, const float* y, const int* corners,
                                                 int n, const vxBaseChart::Look& look,
                                                 float darkening = 0.0f, bool isFace = false);

}  // namespace Velarix
