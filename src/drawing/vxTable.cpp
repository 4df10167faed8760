#include "drawing/vxTable.h"

namespace Velarix {

vxTable::vxTable(vxUserSettings* owner, const float frame[4])
    : vxComponent(L"vxTable", owner, frame) {}

vxTable::~vxTable() = default;

}  // namespace Velarix
