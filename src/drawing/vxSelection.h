// The selected objects of an interactive picture. The host plug-in draws
// pictures only, so the selection stays empty there.
#pragma once

#include <ostream>

#include "settings/vxErrorHolder.h"

namespace Velarix {

class vxSelection : public vxErrorHolder {
public:
    vxSelection();
    ~vxSelection() override;

    virtual void clear() {}
    virtual bool isEmpty() const { return true; }
    virtual void dump(short depth, std::ostream& out) const;
};

}  // namespace Velarix
