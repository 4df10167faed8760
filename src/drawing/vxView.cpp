#include "drawing/vxView.h"

#include "host/vxLog.h"

namespace Velarix {

vxView::vxView() : vxErrorHolder(L"vxView") {}

vxView::~vxView() = default;

vxView* vxView::assign(vxAssign&) {
    return this;
}

void vxView::setUp(const float b[4]) {
    for (int i = 0; i < 4; ++i) bounds[i] = b[i];
}

void vxView::setUpLayers(vxLayerManager*) {}

void vxView::setUpCurveFittingData(vxCurveFittingData*) {}

void vxView::dump(short depth, std::ostream& out) const {
    if (depth <= 0) return;
    vxDumpHeader(out, "vxView");
    vxDumpLine(out, "float left,top:      ", bounds[0], bounds[1]);
    vxDumpLine(out, "float right,bottom:  ", bounds[2], bounds[3]);
    vxDumpEnd(out);
}

}  // namespace Velarix
