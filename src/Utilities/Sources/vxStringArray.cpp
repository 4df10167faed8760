#include "Utilities/Sources/vxStringArray.h"

#include <utility>

namespace Velarix {

vxStringArray::vxStringArray(std::vector<std::wstring> v)
    : vxValueArray(L"vxStringArray", "vector<wstring> values", std::move(v)) {}

std::unique_ptr<vxPrimitive> vxStringArray::clone() const {
    return std::make_unique<vxStringArray>(values);
}

}  // namespace Velarix
