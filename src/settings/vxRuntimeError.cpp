#include "settings/vxRuntimeError.h"

#include "host/vxLog.h"

namespace Velarix {

void vxRuntimeError::dump(short depth, std::ostream& out) const {
    vxDumpHeader(out, "vxRuntimeError");
    vxDumpLine(out, "short errorCode: ", errorCode);
    vxDumpEnd(out);
}

}  // namespace Velarix
