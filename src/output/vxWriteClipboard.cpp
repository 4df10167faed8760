#include "output/vxWriteClipboard.h"

namespace Velarix {

vxWriteClipboard::vxWriteClipboard(std::wstring name) : vxWriteExternal(std::move(name)) {}

vxWriteClipboard::~vxWriteClipboard() = default;

}  // namespace Velarix
