// A URL as a source. The engine never fetches anything from a network: the
// source keeps the URL and has no picture, so nothing is drawn for it.
#pragma once

#include <memory>

#include "output/vxReadExternal.h"

namespace Velarix {

class vxReadURL : public vxReadExternal {
public:
    vxReadURL();
    ~vxReadURL() override;

    short getType() const override { return kSourceURL; }
    std::unique_ptr<vxReadExternal> clone() const override;
};

}  // namespace Velarix
