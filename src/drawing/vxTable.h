// A table component of a view. It takes the calls between its open and
// close functions; its layout comes with the table functions themselves.
#pragma once

#include "drawing/vxComponent.h"

namespace Velarix {

class vxTable : public vxComponent {
public:
    vxTable(vxUserSettings* owner, const float frame[4]);
    ~vxTable() override;

    short getType() const override { return kTypeTable; }
    void assign(vxAssign& assign) override {}
};

}  // namespace Velarix
