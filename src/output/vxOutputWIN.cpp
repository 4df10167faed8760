#include "output/vxOutputWIN.h"

#include "host/vxLog.h"

namespace Velarix {

vxOutputWIN::vxOutputWIN() : vxErrorHolder(L"vxOutputWIN") {}

vxOutputWIN::~vxOutputWIN() = default;

void vxOutputWIN::reset() {
    clearError();
}

void vxOutputWIN::assign(vxAssign&) {}

void vxOutputWIN::setUp(const vxDrawingSpecs*) {}

void vxOutputWIN::write(vxLayerManager*) {}

void vxOutputWIN::dump(short depth, std::ostream& out) const {
    if (depth <= 0) return;
    vxDumpHeader(out, "vxOutputWIN");
    vxDumpLine(out, "long numOfStreams: ", getNumOfStreams());
    vxDumpEnd(out);
}

}  // namespace Velarix
