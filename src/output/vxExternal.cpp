#include "output/vxExternal.h"

#include "host/vxLog.h"

namespace Velarix {

vxExternal::vxExternal(const wchar_t* name) : vxErrorHolder(name) {}

vxExternal::~vxExternal() = default;

void vxExternal::dump(short depth, std::ostream& out) const {
    if (depth <= 0) return;
    vxDumpHeader(out, vxNarrow(className));
    dumpFields(out);
    if (error) error->dump(static_cast<short>(depth - 1), out);
    vxDumpEnd(out);
}

void vxExternal::dumpFields(std::ostream& out) const {
    vxDumpLine(out, "bool  isOpen:   ", mIsOpen);
    vxDumpLine(out, "short formatID: ", mFormatID);
}

}  // namespace Velarix
