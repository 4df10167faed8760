#include "output/vxReadURL.h"

namespace Velarix {

vxReadURL::vxReadURL() : vxReadExternal(L"vxReadURL") {}

vxReadURL::~vxReadURL() = default;

std::unique_ptr<vxReadExternal> vxReadURL::clone() const {
    auto copy = std::make_unique<vxReadURL>();
    copyTo(*copy);
    return copy;
}

}  // namespace Velarix
