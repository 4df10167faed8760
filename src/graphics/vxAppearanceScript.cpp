#include "graphics/vxAppearanceScript.h"

#include "graphics/vxGObjectAppearanceOLD.h"
#include "graphics/vxGObjectOLD.h"
#include "graphics/vxPaintOLD.h"
#include "graphics/vxShadowOLD.h"
#include "graphics/vxStrokeOLD.h"
#include "script/vxAssign.h"

namespace Velarix {

namespace {

using PaintSlot = vxPaintOLD* (vxGObjectAppearanceOLD::*)(short);

bool failed(vxGObjectOLD& object) {
    vxGObjectAppearanceOLD* appearance = object.getAppearance();
    if (appearance && appearance->isError()) {
        object.copyError(appearance->getError());
        return true;
    }
    return object.isError();
}

// A colour and, for most functions, its pattern, into one paint slot.
bool readPaint(vxGObjectOLD& object, vxAssign& assign, const vxUserSettings* settings,
               PaintSlot slot, bool makeDefault) {
    vxGObjectAppearanceOLD* appearance = object.getAppearance();
    const short kind = vxPaintOLD::getKindOfArgument(assign, 0);
    if (kind == 0) {
        assign.addToArgumentOffset(vxPaintOLD::getNumOfArguments(assign));
        if (makeDefault) (appearance->*slot)(vxPaintOLD::kBasic);
        return !failed(object);
    }
    vxPaintOLD* paint = (appearance->*slot)(kind);
    if (!paint) return !failed(object);
    paint->assign(assign, settings);
    if (paint->isError()) object.copyError(paint->getError());
    return !failed(object);
}

}  // namespace

bool vxAppearanceScript::isGiven(const vxAssign& assign, long index) {
    return !assign.isArgumentOutOfRange(index) && !assign.isVoid(index);
}

bool vxAppearanceScript::readFill(vxGObjectOLD& object, vxAssign& assign,
                                  const vxUserSettings* settings, EmptyColor empty) {
    return readPaint(object, assign, settings, &vxGObjectAppearanceOLD::fillPaintOf,
                     empty == kDefaultBlack);
}

bool vxAppearanceScript::readBorder(vxGObjectOLD& object, vxAssign& assign,
                                    const vxUserSettings* settings, EmptyColor empty) {
    const bool given = isGiven(assign, 0) || isGiven(assign, 1);
    if (!given && empty == kSkipPart) {
        assign.addToArgumentOffset(1 + vxPaintOLD::getNumOfArguments(assign));
        return !failed(object);
    }
    vxStrokeOLD* stroke =
        object.getAppearance()->borderStrokeOf(vxGObjectAppearanceOLD::kBasicStroke);
    if (!stroke) return !failed(object);
    stroke->assign(assign);
    if (stroke->isError()) object.copyError(stroke->getError());
    if (failed(object)) return false;
    return readPaint(object, assign, settings, &vxGObjectAppearanceOLD::borderPaintOf, true);
}

bool vxAppearanceScript::readShadow(vxGObjectOLD& object, vxAssign& assign,
                                    const vxUserSettings* settings) {
    if (!isGiven(assign, 0) && !isGiven(assign, 1)) {
        assign.addToArgumentOffset(1 + vxPaintOLD::getNumOfArguments(assign));
        return !failed(object);
    }
    vxShadowOLD* shadow = object.getAppearance()->shadowPart();
    if (!shadow) return !failed(object);
    shadow->assign(assign, settings);
    if (shadow->isError()) object.copyError(shadow->getError());
    return !failed(object);
}

}  // namespace Velarix
