#include "script/vxArgument.h"

#include "host/vxLog.h"

namespace Velarix {

vxArgument::vxArgument(short type, double minValue, double maxValue, long maxRepeat,
                       bool isRequired, short constantType)
    : type(type),
      minValue(minValue),
      maxValue(maxValue),
      maxRepeat(maxRepeat),
      isRequired(isRequired),
      constantType(constantType) {}

void vxArgument::dump(short depth, std::ostream& out) const {
    vxDumpHeader(out, "vxArgument");
    vxDumpLine(out, "short  type:         ", type);
    vxDumpLine(out, "double minValue:     ", minValue);
    vxDumpLine(out, "double maxValue:     ", maxValue);
    vxDumpLine(out, "long   maxRepeat:    ", maxRepeat);
    vxDumpLine(out, "bool   isRequired:   ", isRequired);
    vxDumpLine(out, "short  constantType: ", constantType);
    vxDumpEnd(out);
}

}  // namespace Velarix
