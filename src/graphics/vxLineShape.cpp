#include "graphics/vxLineShape.h"

#include <cmath>
#include <vector>

#include "host/vxLog.h"
#include "script/vxAssign.h"

namespace Velarix {

void vxLineShape::setType(short value) {
    type = value >= kNone && value <= kSmooth ? value : static_cast<short>(kStraight);
}

void vxLineShape::assign(vxAssign& assign) {
    const std::vector<float> values = assign.getFloatArray(0);
    assign.addToArgumentOffset(1);
    if (values.empty()) return;
    setType(static_cast<short>(std::lround(values[0])));
    const size_t count = values.size();
    if (type == kJump || type == kStep) {
        if (count > 1) {
            startOutdentFactor = values[1];
            hasUserDefinedStartOutend = true;
        }
        if (count > 2) {
            endOutdentFactor = values[2];
            hasUserDefinedEndOutend = true;
        }
        if (count > 3) shiftFactor = values[3];
        if (count > 4 && type == kJump) lengthFactor = values[4];
    } else if (type == kSmooth && count > 1) {
        tensionFactor = values[1];
    }
}

void vxLineShape::dump(short depth, std::ostream& out) const {
    if (depth <= 0) return;
    vxDumpHeader(out, "vxLineShape");
    vxDumpLine(out, "short type: ", type);
    vxDumpLine(out, "bool hasUserDefinedStartOutend: ", hasUserDefinedStartOutend);
    vxDumpLine(out, "bool hasUserDefinedEndOutend: ", hasUserDefinedEndOutend);
    vxDumpLine(out, "float startOutdentFactor: ", startOutdentFactor);
    vxDumpLine(out, "float endOutdentFactor: ", endOutdentFactor);
    vxDumpLine(out, "float shiftFactor: ", shiftFactor);
    vxDumpLine(out, "float lengthFactor: ", lengthFactor);
    vxDumpLine(out, "float tensionFactor: ", tensionFactor);
    vxDumpEnd(out);
}

}  // namespace Velarix
