// Bars with depth in a profile other than the box: ovals (cylinders),
// plates and regular many-sided prisms standing on the bar's front face.
//
// The solid grows from its base to its far end in the bar's direction; its
// cross section is the profile of the bar style, fitted to the square
// spanned by the bar's width and the depth (see vxBarSolidProfile).
//
// Faces are darkened as a box's are: a side by how far it turns away from
// the front, up to 0.25 for a side at a right angle to the front; the end
// that faces the viewer by 0.13, the hidden end by 0.25. The visible side of
// a cylinder is one shape, shaded across by a gradient of the same rule
// when its fill is a plain colour.
#pragma once

#include <memory>
#include <vector>

#include "charts/vxBaseChart.h"

namespace Velarix {

class vxBarStyle;
class vxBaseChartDepthInfo;
class vxGObjectOLD;
class vxPath2DOLD;

class vxBarSolid {
public:
    // Appends to `out`, in painting order, the faces of the bar whose front
    // face is `rect` (left, top, right, bottom) and that grows in
    // `direction` (1 toward smaller y, 2 toward larger y, 3 toward smaller
    // x, 4 toward larger x), in the profile of `style`, in `look`. An opaque
    // fill gives the visible sides from the back to the front and then the
    // end that faces the viewer; any other fill first the hidden faces, from
    // the back, and then those. Returns false when memory ran out; `out`
    // then keeps what was added.
    static bool addFaces(std::vector<std::unique_ptr<vxGObjectOLD>>& out, const float rect[4],
                         short direction, const vxBarStyle& style, const vxBaseChart::Look& look,
                         const vxBaseChartDepthInfo& depth);

    // The bar's silhouette as one closed convex path, in no look; null when
    // memory ran out.
    static std::unique_ptr<vxPath2DOLD> outline(const float rect[4], short direction,
                                                const vxBarStyle& style,
                                                const vxBaseChartDepthInfo& depth);
};

}  // namespace Velarix
