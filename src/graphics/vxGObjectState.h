// Whether an object is visible, locked against changes, and selected.
#pragma once

namespace Velarix {

class vxGObjectState {
public:
    void reset() { *this = vxGObjectState(); }
    void copy(const vxGObjectState* from) { *this = from ? *from : vxGObjectState(); }

    bool isVisible = true;
    bool isLocked = false;
    bool isSelected = false;
};

}  // namespace Velarix
