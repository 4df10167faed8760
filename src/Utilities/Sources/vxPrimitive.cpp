#include "Utilities/Sources/vxPrimitive.h"

#include <utility>

namespace Velarix {

vxPrimitive::vxPrimitive(std::wstring name) : vxErrorHolder(std::move(name)) {}

vxPrimitive::~vxPrimitive() = default;

}  // namespace Velarix
