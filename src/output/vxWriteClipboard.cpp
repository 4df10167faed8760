#include "output/vxWriteClipboard.h"

namespace Velarix {

vxWriteClipboard::vxWriteClipboard(const wchar_t* name) : vxWriteExternal(name) {}

vxWriteClipboard::~vxWriteClipboard() = default;

}  // namespace Velarix
