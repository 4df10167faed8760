// The built-in pictures of this platform: the texture pictures are drawn
// by code when a device asks for the pixels. A gradient resource has no
// pixels; devices draw its gradient instead.
#pragma once

#include <memory>

#include "output/vxReadResource.h"

namespace Velarix {

class vxReadResourceWIN : public vxReadResource {
public:
    vxReadResourceWIN();
    ~vxReadResourceWIN() override;

    std::unique_ptr<vxReadExternal> clone() const override;
    bool read(vxBitmap& bitmap) const override;
};

}  // namespace Velarix
