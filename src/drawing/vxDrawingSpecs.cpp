#include "drawing/vxDrawingSpecs.h"

#include "host/vxLog.h"

namespace Velarix {

std::unique_ptr<vxDrawingSpecs> vxDrawingSpecs::clone() const {
    auto copyOfThis = std::make_unique<vxDrawingSpecs>();
    copyOfThis->copy(this);
    return copyOfThis;
}

void vxDrawingSpecs::getSize(float size[2]) const {
    size[0] = width;
    size[1] = height;
}

void vxDrawingSpecs::clear() {
    width = 0.0f;
    height = 0.0f;
    renderingInfo = 0;
}

void vxDrawingSpecs::copy(const vxDrawingSpecs* from) {
    clear();
    if (!from) return;
    width = from->width;
    height = from->height;
    renderingInfo = from->renderingInfo;
}

void vxDrawingSpecs::setSize(float w, float h) {
    width = w;
    height = h;
}

void vxDrawingSpecs::dump(short depth, std::ostream& out) const {
    if (depth <= 0) return;
    vxDumpHeader(out, "vxDrawingSpecs");
    vxDumpLine(out, "float width,height:  ", width, height);
    vxDumpLine(out, "short renderingInfo: ", renderingInfo);
    vxDumpEnd(out);
}

}  // namespace Velarix
