// How the outline of an area, a bar or a slice looks: a stroke, its paint,
// and for the top line of an area the way it runs between the points. It
// reads a script call as a line style does: the interpolation list, the
// line widths, the colour and the pattern.
#pragma once

#include "styles/vxLineStyle.h"

namespace Velarix {

class vxBorderStyle : public vxLineStyle {
public:
    // The record numbered `number`: a solid line of width 1 in the colour
    // of that number, black for record 1 in the standard palette.
    explicit vxBorderStyle(vxUserSettings* owner, long number = 1);
    ~vxBorderStyle() override;

    bool set(const vxBorderStyle* from) { return vxLineStyle::set(from); }
};

}  // namespace Velarix
