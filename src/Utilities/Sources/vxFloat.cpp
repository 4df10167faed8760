#include "Utilities/Sources/vxFloat.h"

namespace Velarix {

vxFloat::vxFloat(float v) : vxScalar(L"vxFloat", "float value: ", v) {}

std::unique_ptr<vxPrimitive> vxFloat::clone() const {
    return std::make_unique<vxFloat>(value);
}

}  // namespace Velarix
