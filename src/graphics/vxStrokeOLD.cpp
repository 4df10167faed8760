#include "graphics/vxStrokeOLD.h"

#include "graphics/vxDashStyle.h"
#include "script/vxAssign.h"

namespace Velarix {

bool vxStrokeOLD::hasDashStyle() const {
    const vxDashStyle* dash = getDashStyle();
    return dash != nullptr && !dash->isEmpty();
}

bool vxStrokeOLD::assign(vxAssign& assign) {
    assign.addToArgumentOffset(1);
    return !isError();
}

}  // namespace Velarix
