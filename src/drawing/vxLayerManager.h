// The numbered layers that the views fill with graphic objects and the
// output draws in order.
#pragma once

#include <ostream>

#include "settings/vxErrorHolder.h"

namespace Velarix {

class vxLayerManager : public vxErrorHolder {
public:
    vxLayerManager();
    ~vxLayerManager() override;

    virtual long getNumOfLayers() const { return 0; }
    virtual void dump(short depth, std::ostream& out) const;
};

}  // namespace Velarix
