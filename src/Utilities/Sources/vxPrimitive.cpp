#include "Utilities/Sources/vxPrimitive.h"

#include <utility>

namespace Velarix {

vxPrimitive::vxPrimitive(const wchar_t* name) : vxErrorHolder(name) {}

vxPrimitive::~vxPrimitive() = default;

}  // namespace Velarix
