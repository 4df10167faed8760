#include "styles/vxBorderStyle.h"

namespace Velarix {

vxBorderStyle::vxBorderStyle(vxUserSettings* owner, long number)
    : vxLineStyle(L"vxBorderStyle", owner, number) {}

vxBorderStyle::~vxBorderStyle() = default;

}  // namespace Velarix
