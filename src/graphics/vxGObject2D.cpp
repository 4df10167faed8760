#include "graphics/vxGObject2D.h"

#include "graphics/vxGObjectAppearanceOLD.h"
#include "graphics/vxPaintOLD.h"
#include "graphics/vxShadowOLD.h"
#include "graphics/vxStrokeOLD.h"

namespace Velarix {

vxGObject2D::~vxGObject2D() = default;

const vxStrokeOLD* vxGObject2D::borderStrokeForDrawing() {
    if (getBorderStroke()) return getBorderStroke();
    const vxStrokeOLD* stroke =
        getAppearance()->borderStrokeOf(vxGObjectAppearanceOLD::kBasicStroke);
    if (getAppearance()->isError()) copyError(getAppearance()->getError());
    return stroke;
}

void vxGObject2D::drawShadow(vxDevice& device) {
    if (!isVisible() || !hasShadow()) return;
    const vxShadowOLD& shadow = *getShadow();
    float b[4];
    getBounds(b);
    b[0] += shadow.getXOffset();
    b[2] += shadow.getXOffset();
    b[1] += shadow.getYOffset();
    b[3] += shadow.getYOffset();
    if (hasFill()) fillShape(device, shadow, b);
    if (hasBorder()) {
        if (const vxStrokeOLD* stroke = borderStrokeForDrawing()) {
            outlineShape(device, *stroke, shadow, b);
        }
    }
}

void vxGObject2D::drawBody(vxDevice& device) {
    if (!isVisible()) return;
    float b[4];
    getBounds(b);
    if (hasFill()) fillShape(device, *getFillPaint(), b);
    if (hasBorder()) {
        if (const vxStrokeOLD* stroke = borderStrokeForDrawing()) {
            outlineShape(device, *stroke, *getBorderPaint(), b);
        }
    }
}

}  // namespace Velarix
