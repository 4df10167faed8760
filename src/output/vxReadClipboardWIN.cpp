#include "output/vxReadClipboardWIN.h"

#include "output/vxBitmap.h"
#include "platform/vxClipboard.h"

namespace Velarix {

vxReadClipboardWIN::vxReadClipboardWIN() : vxReadClipboard(L"vxReadClipboardWIN") {}

vxReadClipboardWIN::~vxReadClipboardWIN() = default;

std::unique_ptr<vxReadExternal> vxReadClipboardWIN::clone() const {
    auto copy = std::make_unique<vxReadClipboardWIN>();
    copyTo(*copy);
    return copy;
}

bool vxReadClipboardWIN::setName(const std::wstring& name) {
    vxReadClipboard::setName(name);
    if (vxClipboardHasPicture()) return true;
    setError(vxErrScript::kClipboard, where(L"setName"));
    return false;
}

bool vxReadClipboardWIN::read(vxBitmap& bitmap) const {
    bitmap.clear();
    if (vxClipboardHasPicture()) return true;
    bitmap.setError(vxErrScript::kClipboard, where(L"read"));
    return false;
}

}  // namespace Velarix
