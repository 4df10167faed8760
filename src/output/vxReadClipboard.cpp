#include "output/vxReadClipboard.h"

namespace Velarix {

vxReadClipboard::vxReadClipboard() : vxReadClipboard(L"vxReadClipboard") {}

vxReadClipboard::vxReadClipboard(const wchar_t* name) : vxReadExternal(name) {}

vxReadClipboard::~vxReadClipboard() = default;

std::unique_ptr<vxReadExternal> vxReadClipboard::clone() const {
    auto copy = std::make_unique<vxReadClipboard>();
    copyTo(*copy);
    return copy;
}

}  // namespace Velarix
