#include "Utilities/Sources/vxShortArray.h"

#include <utility>

namespace Velarix {

vxShortArray::vxShortArray(std::vector<short> v)
    : vxValueArray(L"vxShortArray", "vector<short> values", std::move(v)) {}

std::unique_ptr<vxPrimitive> vxShortArray::clone() const {
    return std::make_unique<vxShortArray>(values);
}

}  // namespace Velarix
