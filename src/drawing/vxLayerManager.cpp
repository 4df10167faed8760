#include "drawing/vxLayerManager.h"

#include "host/vxLog.h"

namespace Velarix {

vxLayerManager::vxLayerManager() : vxErrorHolder(L"vxLayerManager") {}

vxLayerManager::~vxLayerManager() = default;

void vxLayerManager::dump(short depth, std::ostream& out) const {
    if (depth <= 0) return;
    vxDumpHeader(out, "vxLayerManager");
    vxDumpLine(out, "long numOfLayers: ", getNumOfLayers());
    vxDumpEnd(out);
}

}  // namespace Velarix
