#include "overlays/vxCurveFittingLineStyle.h"

#include "graphics/vxPaintOLD.h"
#include "graphics/vxStrokeOLD.h"
#include "host/vxLog.h"

namespace Velarix {

vxCurveFittingLineStyle::vxCurveFittingLineStyle(vxUserSettings* owner, long number)
    : vxStyle(L"vxCurveFittingLineStyle", owner) {
    setDefaults(number);
}

vxCurveFittingLineStyle::~vxCurveFittingLineStyle() = default;

bool vxCurveFittingLineStyle::setDefaults(long number) {
    return createStroke(stroke, kBasicStroke) && createNumberedPaint(paint, number);
}

bool vxCurveFittingLineStyle::set(const vxCurveFittingLineStyle* from) {
    if (!from) return copySelection(nullptr) && setDefaults(1);
    return copySelection(from) && copyStroke(stroke, from->stroke.get()) &&
           copyPaint(paint, from->paint.get());
}

bool vxCurveFittingLineStyle::assign(vxAssign& a) {
    if (!stroke && !createStroke(stroke, kBasicStroke)) return false;
    if (!stroke->assign(a)) return takeError(stroke.get());
    return assignPaint(paint, a);
}

void vxCurveFittingLineStyle::dump(short depth, std::ostream& out) const {
    if (depth <= 0) return;
    vxDumpHeader(out, "vxCurveFittingLineStyle");
    dumpSelection(out);
    vxDumpEnd(out);
    const short next = static_cast<short>(depth - 1);
    if (stroke) stroke->dump(next, out);
    if (paint) paint->dump(next, out);
}

}  // namespace Velarix
