#include "axes/vxAxisLook.h"

#include "graphics/vxBasicPaint.h"
#include "graphics/vxBasicStroke.h"
#include "graphics/vxGObjectAppearanceOLD.h"
#include "graphics/vxGObjectOLD.h"
#include "script/vxAssign.h"

namespace Velarix {

std::vector<std::wstring> vxStringArguments(const vxAssign& a) {
    std::vector<std::wstring> texts;
    bool any = false;
    for (long i = 0; i < a.getNumOfArguments() - a.getArgumentOffset(); ++i) {
        texts.push_back(a.getString(i));
        any = any || !a.isVoid(i);
    }
    if (!any) texts.clear();
    return texts;
}

bool vxSetAxisLineLook(vxGObjectOLD& object, float width) {
    vxGObjectAppearanceOLD* look = object.getAppearance();
    if (!look) return false;
    try {
        if (!look->setBorderStroke(vxBasicStroke(width))) return false;
        return look->setBorderPaint(vxBasicPaint());
    } catch (const std::bad_alloc&) {
        object.setError(vxErrRuntime::kOutOfMemory, L"vxAxisLook/setAxisLineLook/1");
        return false;
    }
}

}  // namespace Velarix
