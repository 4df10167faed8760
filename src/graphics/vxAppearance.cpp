#include "graphics/vxAppearance.h"

#include <typeinfo>

#include "host/vxLog.h"

namespace Velarix {

vxAppearance::vxAppearance(const wchar_t* name) : vxErrorHolder(name) {}

vxAppearance::~vxAppearance() = default;

void vxAppearance::setState(short value) {
    state = (value >= 1 && value <= 3) ? value : 0;
}

void vxAppearance::setDefaults() {
    state = 1;
    resetFields();
}

bool vxAppearance::copy(const vxAppearance* from) {
    if (from == this) return true;
    setDefaults();
    if (from == nullptr) return true;
    if (typeid(*from) != typeid(*this)) return false;
    state = from->state;
    copyFields(*from);
    return true;
}

void vxAppearance::dump(short depth, std::ostream& out) const {
    vxDumpHeader(out, vxNarrow(getClassName()));
    dumpFields(depth, out);
    vxDumpEnd(out);
}

void vxAppearance::dumpFields(short depth, std::ostream& out) const {
    vxDumpLine(out, "short state:  ", state);
}

}  // namespace Velarix
