// A calendar component of a view. It takes the calls between its open and
// close functions; its layout comes with the calendar functions themselves.
#pragma once

#include "drawing/vxComponent.h"

namespace Velarix {

class vxCalendar : public vxComponent {
public:
    vxCalendar(vxUserSettings* owner, const float frame[4]);
    ~vxCalendar() override;

    short getType() const override { return kTypeCalendar; }
    void assign(vxAssign& assign) override {}
};

}  // namespace Velarix
