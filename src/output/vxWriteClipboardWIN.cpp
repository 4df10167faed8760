#include "output/vxWriteClipboardWIN.h"

namespace Velarix {

vxWriteClipboardWIN::vxWriteClipboardWIN() : vxWriteClipboard(L"vxWriteClipboardWIN") {}

vxWriteClipboardWIN::~vxWriteClipboardWIN() = default;

}  // namespace Velarix
