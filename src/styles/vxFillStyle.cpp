#include "styles/vxFillStyle.h"

#include "graphics/vxPaintOLD.h"
#include "graphics/vxTexturePaintOLD.h"
#include "host/vxLog.h"
#include "script/vxAssign.h"
#include "script/vxFunctionIds.h"

namespace Velarix {

vxFillStyle::vxFillStyle(vxUserSettings* owner, long number) : vxStyle(L"vxFillStyle", owner) {
    setDefaults(number);
}

vxFillStyle::~vxFillStyle() = default;

bool vxFillStyle::setDefaults(long number) {
    return createNumberedPaint(paint, number);
}

bool vxFillStyle::set(const vxFillStyle* from) {
    if (!from) return copySelection(nullptr) && setDefaults(1);
    return copySelection(from) && copyPaint(paint, from->paint.get());
}

bool vxFillStyle::assign(vxAssign& a) {
    if (a.getFunction() == kPictureStyle) return assignPicture(a);
    return assignPaint(paint, a);
}

// Source kind, source and stack value. Without a source the picture held
// stays; a stack value needs a picture to belong to.
bool vxFillStyle::assignPicture(vxAssign& a) {
    const bool hasSource = !a.isVoid(0) || !a.isVoid(1);
    if (hasSource && (!paint || paint->getType() != vxPaintOLD::kTexture)) {
        if (!createPaint(paint, vxPaintOLD::kTexture)) return false;
    }
    auto* texture = dynamic_cast<vxTexturePaintOLD*>(paint.get());
    if (hasSource && !texture->assignImage(a)) return takeError(texture);
    if (!hasSource) a.addToArgumentOffset(2);
    if (texture && !a.isVoid(0)) texture->setStackValueUC(a.getDouble(0));
    a.addToArgumentOffset(1);
    return !isError();
}

void vxFillStyle::dump(short depth, std::ostream& out) const {
    if (depth <= 0) return;
    vxDumpHeader(out, "vxFillStyle");
    dumpSelection(out);
    vxDumpEnd(out);
    if (paint) paint->dump(static_cast<short>(depth - 1), out);
}

}  // namespace Velarix
