// A graphic object with an outline: its shadow, fill and border follow the
// draw protocol of vxGObjectOLD, and each class says how its shape is
// filled and outlined on a device.
#pragma once

#include "graphics/vxGObjectOLD.h"

namespace Velarix {

class vxGObject2D : public vxGObjectOLD {
public:
    using vxGObjectOLD::vxGObjectOLD;
    ~vxGObject2D() override;

    // When visible and with a shadow: the fill, then the outline, moved by
    // the shadow's offsets and in the shadow's paint.
    void drawShadow(vxDevice& device) override;
    // When visible: the fill, then the outline.
    void drawBody(vxDevice& device) override;

protected:
    // The shape in the device's terms; `bounds` are the object's bounds,
    // moved by the shadow's offsets in the shadow forms.
    virtual void fillShape(vxDevice& device, const vxPaintOLD& paint, const float bounds[4]) {}
    virtual void fillShape(vxDevice& device, const vxShadowOLD& shadow, const float bounds[4]) {}
    virtual void outlineShape(vxDevice& device, const vxStrokeOLD& stroke, const vxPaintOLD& paint,
                              const float bounds[4]) {}
    virtual void outlineShape(vxDevice& device, const vxStrokeOLD& stroke,
                              const vxShadowOLD& shadow, const float bounds[4]) {}

private:
    // The border stroke, made with its defaults when the script gave none.
    const vxStrokeOLD* borderStrokeForDrawing();
};

}  // namespace Velarix
