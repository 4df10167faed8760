#include "styles/vxShadowStyle.h"

#include "graphics/vxShadowOLD.h"
#include "host/vxLog.h"
#include "script/vxAssign.h"

namespace Velarix {

vxShadowStyle::vxShadowStyle(vxUserSettings* owner, long number)
    : vxStyle(L"vxShadowStyle", owner) {
    setDefaults(number);
}

vxShadowStyle::~vxShadowStyle() = default;

bool vxShadowStyle::setDefaults(long) {
    if (!create(shadow, L"createShadow")) return false;
    return takeError(shadow.get());
}

bool vxShadowStyle::set(const vxShadowStyle* from) {
    if (!from) return copySelection(nullptr) && setDefaults(1);
    if (!copySelection(from) || !create(shadow, L"createShadow")) return false;
    shadow->copy(from->shadow.get());
    return takeError(shadow.get());
}

bool vxShadowStyle::assign(vxAssign& a) {
    if (!shadow && !create(shadow, L"createShadow")) return false;
    shadow->assign(a, owner);
    return takeError(shadow.get());
}

void vxShadowStyle::dump(short depth, std::ostream& out) const {
    if (depth <= 0) return;
    vxDumpHeader(out, "vxShadowStyle");
    dumpSelection(out);
    vxDumpEnd(out);
    if (shadow) shadow->dump(static_cast<short>(depth - 1), out);
}

}  // namespace Velarix
