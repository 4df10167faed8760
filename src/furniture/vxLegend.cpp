#include "furniture/vxLegend.h"

namespace Velarix {

vxLegend::vxLegend(vxUserSettings* ownerSettings)
    : vxErrorHolder(L"vxLegend"), owner(ownerSettings) {}

vxLegend::~vxLegend() = default;

void vxLegend::assign(vxAssign&) {}

void vxLegend::setUp(const vxChart&) {}

void vxLegend::setUpLayer(vxLayerManager*) {}

short vxLegend::getBoxLocation() const {
    return 6;
}

bool vxLegend::isBoxInside() const {
    return false;
}

void vxLegend::getBoxOffsets(float offsets[2]) const {
    offsets[0] = offsets[1] = 0.0f;
}

void vxLegend::getBoxSize(float size[2]) const {
    size[0] = size[1] = 0.0f;
}

void vxLegend::moveBoxTo(float, float) {}

void vxLegend::dump(short, std::ostream&) const {}

}  // namespace Velarix
