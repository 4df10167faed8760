#include "styles/vxLineStyle.h"

#include "graphics/vxPaintOLD.h"
#include "graphics/vxStrokeOLD.h"
#include "host/vxLog.h"
#include "script/vxAssign.h"

namespace Velarix {

vxLineStyle::vxLineStyle(vxUserSettings* owner, long number)
    : vxLineStyle(L"vxLineStyle", owner, number) {}

vxLineStyle::vxLineStyle(const wchar_t* name, vxUserSettings* owner, long number)
    : vxStyle(name, owner) {
    setDefaults(number);
}

vxLineStyle::~vxLineStyle() = default;

bool vxLineStyle::setDefaults(long number) {
    shape.reset();
    return createBasicStroke() && createNumberedPaint(paint, number);
}

bool vxLineStyle::set(const vxLineStyle* from) {
    if (!from) return copySelection(nullptr) && setDefaults(1);
    shape.copy(&from->shape);
    return copySelection(from) && copyStroke(stroke, from->stroke.get()) &&
           copyPaint(paint, from->paint.get());
}

bool vxLineStyle::assign(vxAssign& a) {
    shape.assign(a);
    if (!stroke && !createBasicStroke()) return false;
    if (!stroke->assign(a)) return takeError(stroke.get());
    return assignPaint(paint, a);
}

void vxLineStyle::dump(short depth, std::ostream& out) const {
    if (depth <= 0) return;
    vxDumpHeader(out, vxNarrow(className));
    dumpSelection(out);
    vxDumpEnd(out);
    const short next = static_cast<short>(depth - 1);
    shape.dump(next, out);
    if (stroke) stroke->dump(next, out);
    if (paint) paint->dump(next, out);
}

}  // namespace Velarix
