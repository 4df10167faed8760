#include "settings/vxParsingError.h"

#include "host/vxLog.h"

namespace Velarix {

void vxParsingError::clear() {
    lineNumber = -1;
    argIndex = -1;
    fnName.clear();
    errScriptPart.clear();
}

void vxParsingError::copy(const vxParsingError* from) {
    if (!from) {
        clear();
        return;
    }
    lineNumber = from->lineNumber;
    argIndex = from->argIndex;
    fnName = from->fnName;
    errScriptPart = from->errScriptPart;
}

void vxParsingError::dump(short depth, std::ostream& out) const {
    vxDumpHeader(out, "vxParsingError");
    vxDumpLine(out, "long lineNumber:        ", lineNumber);
    vxDumpLine(out, "long argIndex:          ", argIndex);
    vxDumpLine(out, "wstring fnName:         ", fnName);
    vxDumpLine(out, "wstring errScriptPart: ", errScriptPart);
    vxDumpEnd(out);
}

}  // namespace Velarix
