#include "Utilities/Sources/vxDoubleArray.h"

#include <utility>

namespace Velarix {

vxDoubleArray::vxDoubleArray(std::vector<double> v)
    : vxValueArray(L"vxDoubleArray", "vector<double> values", std::move(v)) {}

std::unique_ptr<vxPrimitive> vxDoubleArray::clone() const {
    return std::make_unique<vxDoubleArray>(values);
}

}  // namespace Velarix
