#include "Utilities/Sources/vxLongArray.h"

#include <utility>

namespace Velarix {

vxLongArray::vxLongArray(std::vector<long> v)
    : vxValueArray(L"vxLongArray", "vector<long> values", std::move(v)) {}

std::unique_ptr<vxPrimitive> vxLongArray::clone() const {
    return std::make_unique<vxLongArray>(values);
}

}  // namespace Velarix
