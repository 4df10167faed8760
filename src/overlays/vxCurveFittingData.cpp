#include "overlays/vxCurveFittingData.h"

#include "host/vxLog.h"

namespace Velarix {

vxCurveFittingData::vxCurveFittingData() : vxErrorHolder(L"vxCurveFittingData") {}

vxCurveFittingData::~vxCurveFittingData() = default;

void vxCurveFittingData::copy(const vxCurveFittingData*) {
    clear();
}

void vxCurveFittingData::dump(short depth, std::ostream& out) const {
    if (depth <= 0) return;
    vxDumpHeader(out, "vxCurveFittingData");
    vxDumpLine(out, "bool isEmpty: ", isEmpty());
    vxDumpEnd(out);
}

}  // namespace Velarix
