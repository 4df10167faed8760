#include "Utilities/Sources/vxShort.h"

namespace Velarix {

vxShort::vxShort(short v) : vxScalar(L"vxShort", "short value: ", v) {}

std::unique_ptr<vxPrimitive> vxShort::clone() const {
    return std::make_unique<vxShort>(value);
}

}  // namespace Velarix
