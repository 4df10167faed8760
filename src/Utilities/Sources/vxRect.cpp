#include "Utilities/Sources/vxRect.h"

#include "host/vxLog.h"

namespace Velarix {

vxRect::vxRect(float l, float t, float w, float h)
    : vxPrimitive(L"vxRect"), left(l), top(t), width(w), height(h) {}

std::unique_ptr<vxPrimitive> vxRect::clone() const {
    return std::make_unique<vxRect>(left, top, width, height);
}

void vxRect::dump(short depth, std::ostream& out) const {
    vxDumpHeader(out, vxNarrow(className));
    vxDumpLine(out, "float left,top: ", left, top);
    vxDumpLine(out, "float width,height: ", width, height);
    vxDumpEnd(out);
}

void vxRect::set(float l, float t, float w, float h) {
    left = l;
    top = t;
    width = w;
    height = h;
}

}  // namespace Velarix
