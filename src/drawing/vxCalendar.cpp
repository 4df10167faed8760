#include "drawing/vxCalendar.h"

namespace Velarix {

vxCalendar::vxCalendar(vxUserSettings* owner, const float frame[4])
    : vxComponent(L"vxCalendar", owner, frame) {}

vxCalendar::~vxCalendar() = default;

}  // namespace Velarix
