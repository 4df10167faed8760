#include "styles/vxArrowStyle.h"

#include "graphics/vxArrowSymbol.h"
#include "graphics/vxBasicPaint.h"
#include "graphics/vxBasicStroke.h"
#include "graphics/vxGObjectAppearanceOLD.h"
#include "host/vxLog.h"
#include "script/vxAssign.h"

namespace Velarix {

namespace {

// The ends stand among the arrow's own arguments, which the arrow passes
// over.
constexpr long kEndsAt = 3;

}  // namespace

vxArrowStyle::vxArrowStyle(vxUserSettings* owner, long number) : vxStyle(L"vxArrowStyle", owner) {
    setDefaults(number);
}

vxArrowStyle::~vxArrowStyle() = default;

bool vxArrowStyle::createArrow() {
    return create(arrow, L"createArrow", owner);
}

bool vxArrowStyle::setDefaults(long number) {
    arrowEnds = kAtEnd;
    if (!createArrow()) return false;
    return paintInNumber(*arrow, number);
}

bool vxArrowStyle::set(const vxArrowStyle* from) {
    if (!from) return copySelection(nullptr) && setDefaults(1);
    arrowEnds = from->arrowEnds;
    if (!copySelection(from) || !createArrow()) return false;
    arrow->copy(from->arrow.get());
    return takeError(arrow.get());
}

bool vxArrowStyle::assign(vxAssign& a) {
    if (!arrow && !createArrow()) return false;
    arrowEnds = a.getShort(kEndsAt, arrowEnds);
    if (!arrow->assign(a, owner)) return takeError(arrow.get());
    return takeError(arrow->getAppearance());
}

void vxArrowStyle::dump(short depth, std::ostream& out) const {
    if (depth <= 0) return;
    vxDumpHeader(out, "vxArrowStyle");
    dumpSelection(out);
    vxDumpLine(out, "short arrowEnds:  ", arrowEnds);
    vxDumpEnd(out);
    if (arrow) arrow->dump(static_cast<short>(depth - 1), out);
}

}  // namespace Velarix
