#include "drawing/vxComponent.h"

#include "graphics/vxTransform2DOLD.h"

namespace Velarix {

vxComponent::vxComponent(const wchar_t* name, vxUserSettings* owner, const float f[4])
    : vxGObjectOLD(std::move(name), owner), frame{f[0], f[1], f[2], f[3]} {}

vxComponent::~vxComponent() = default;

void vxComponent::transformGeometry(const vxTransform2DOLD& transform) {
    transform.transform(frame[0], frame[1]);
    transform.transform(frame[2], frame[3]);
}

void vxComponent::calculateBounds(float bounds[4]) const {
    for (int i = 0; i < 4; ++i) bounds[i] = frame[i];
}

}  // namespace Velarix
