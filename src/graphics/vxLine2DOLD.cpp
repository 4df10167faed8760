#include "graphics/vxLine2DOLD.h"

#include <algorithm>
#include <cmath>
#include <memory>

#include "graphics/vxArrowSymbol.h"
#include "graphics/vxGObjectAppearanceOLD.h"
#include "graphics/vxGObjectState.h"
#include "graphics/vxTransform2DOLD.h"
#include "host/vxLog.h"
#include "output/vxDevice.h"

namespace Velarix {

vxLine2DOLD::vxLine2DOLD(vxUserSettings* owner) : vxGObject2D(L"vxLine2DOLD", owner) {}

vxLine2DOLD::vxLine2DOLD(vxUserSettings* owner, float x1, float y1, float x2, float y2)
    : vxGObject2D(L"vxLine2DOLD", owner), x1(x1), y1(y1), x2(x2), y2(y2) {}

vxLine2DOLD::~vxLine2DOLD() = default;

void vxLine2DOLD::set(float ax, float ay, float bx, float by) {
    x1 = ax;
    y1 = ay;
    x2 = bx;
    y2 = by;
    invalidateBounds();
}

void vxLine2DOLD::transformGeometry(const vxTransform2DOLD& t) {
    vxGObject2D::transformGeometry(t);
    t.transform(x1, y1);
    t.transform(x2, y2);
}

void vxLine2DOLD::calculateBounds(float b[4]) const {
    b[0] = std::min(x1, x2);
    b[1] = std::min(y1, y2);
    b[2] = std::max(x1, x2);
    b[3] = std::max(y1, y2);
}

void vxLine2DOLD::outlineShape(vxDevice& device, const vxStrokeOLD& stroke, const vxPaintOLD& paint,
                               const float[4]) {
    device.drawLine2D(stroke, paint, x1, y1, x2, y2);
}

void vxLine2DOLD::outlineShape(vxDevice& device, const vxStrokeOLD& stroke,
                               const vxShadowOLD& shadow, const float[4]) {
    device.drawLine2D(stroke, shadow, x1, y1, x2, y2);
}

bool vxLine2DOLD::addArrow(bool atEnd, const vxArrowSymbol& arrow) {
    std::unique_ptr<vxArrowSymbol> head;
    if (!create(head, atEnd ? L"addArrow" : L"addArrow", getOwnerSettings())) return false;
    head->copy(&arrow);
    const float dx = atEnd ? x2 - x1 : x1 - x2;
    const float dy = atEnd ? y2 - y1 : y1 - y2;
    head->setCenter(atEnd ? x2 : x1, atEnd ? y2 : y1);
    head->setOrientation(std::atan2(-dy, dx));
    return addSymbol(*head);
}

void vxLine2DOLD::copy(const vxLine2DOLD* from) {
    setDefaults();
    if (!from || from == this) return;
    getState()->copy(from->getState());
    getAppearance()->copy(from->getAppearance());
    if (getAppearance()->isError()) copyError(getAppearance()->getError());
    set(from->x1, from->y1, from->x2, from->y2);
}

void vxLine2DOLD::setDefaults() {
    vxGObject2D::setDefaults();
    set(0.0f, 0.0f, 0.0f, 0.0f);
}

void vxLine2DOLD::dump(short depth, std::ostream& out) const {
    if (depth <= 0) return;
    vxGObject2D::dump(depth, out);
    vxDumpHeader(out, "vxLine2DOLD");
    vxDumpLine(out, "float x1,y1: ", x1, y1);
    vxDumpLine(out, "float x2,y2: ", x2, y2);
    vxDumpEnd(out);
}

}  // namespace Velarix
