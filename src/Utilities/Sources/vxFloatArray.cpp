#include "Utilities/Sources/vxFloatArray.h"

#include <utility>

namespace Velarix {

vxFloatArray::vxFloatArray(std::vector<float> v)
    : vxValueArray(L"vxFloatArray", "vector<float> values", std::move(v)) {}

std::unique_ptr<vxPrimitive> vxFloatArray::clone() const {
    return std::make_unique<vxFloatArray>(values);
}

}  // namespace Velarix
