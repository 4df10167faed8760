#include "graphics/vxWaveStroke.h"

namespace Velarix {

vxWaveStroke::vxWaveStroke() : vxStrokeOLD(L"vxWaveStroke") {}

vxWaveStroke::~vxWaveStroke() = default;

std::unique_ptr<vxStrokeOLD> vxWaveStroke::clone() const {
    return cloneOf<vxStrokeOLD>(*this);
}

}  // namespace Velarix
