#include "drawing/vxSelection.h"

#include "host/vxLog.h"

namespace Velarix {

vxSelection::vxSelection() : vxErrorHolder(L"vxSelection") {}

vxSelection::~vxSelection() = default;

void vxSelection::dump(short depth, std::ostream& out) const {
    if (depth <= 0) return;
    vxDumpHeader(out, "vxSelection");
    vxDumpLine(out, "bool isEmpty: ", isEmpty());
    vxDumpEnd(out);
}

}  // namespace Velarix
