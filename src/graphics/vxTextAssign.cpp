// The script forms of a text.
#include <new>

#include "graphics/vxBasicPaint.h"
#include "graphics/vxColorOLD.h"
#include "graphics/vxFontOLD.h"
#include "graphics/vxPaintOLD.h"
#include "graphics/vxText.h"
#include "script/vxAssign.h"
#include "script/vxFunctionIds.h"

namespace Velarix {

bool vxText::assignString(vxAssign& assign) {
    try {
        inputString = assign.getString(0, inputString);
    } catch (const std::bad_alloc&) {
        setError(vxErrRuntime::kOutOfMemory, where(L"assignString"));
    }
    invalidateStringDimension();
    assign.addToArgumentOffset(1);
    return !isError();
}

bool vxText::assign(vxAssign& assign, const vxUserSettings* settings) {
    if (!settings) settings = getOwnerSettings();
    const bool isAddText = assign.getFunction() == kAddText;
    if (isAddText) {
        setAnchor(assign.getFloat(0, xAnchor), assign.getFloat(1, yAnchor));
        assign.addToArgumentOffset(2);
        if (!assignString(assign)) return false;
    }
    assignFont(assign);
    assign.addToArgumentOffset(3);
    assignColor(assign, settings);
    assign.addToArgumentOffset(1);

    long at = 0;
    setHAlignment(assign.getShort(at++, hAlignment));
    if (isAddText) setVAlignment(assign.getShort(at++, vAlignment));
    if (!assign.isVoid(at)) setOrientation(assign.getFloat(at, orientation));
    ++at;
    setMaxWidth(assign.getFloat(at++, maxWidth));
    setMaxHeight(assign.getFloat(at++, maxHeight));
    setEllipsisPosition(assign.getShort(at++, ellipsisPosition));
    assign.addToArgumentOffset(at);
    return !isError();
}

// Name, size and style; a void one takes the font's default.
void vxText::assignFont(const vxAssign& assign) {
    if (!font && !createFont()) return;
    setFontName(assign.isVoid(0) ? font->getDefaultName() : assign.getString(0));
    setFontSize(assign.isVoid(1) ? font->getDefaultSize() : assign.getFloat(1));
    setFontStyle(assign.isVoid(2) ? font->getDefaultStyle() : assign.getShort(2));
}

// The colour alone makes the paint: a text has no fill pattern. A gradient
// list makes a gradient paint.
void vxText::assignColor(vxAssign& assign, const vxUserSettings* settings) {
    const short kind = vxPaintOLD::getKindOfArgument(assign, 0);
    if (kind == vxPaintOLD::kLinearGradient || kind == vxPaintOLD::kRadialGradient) {
        // The paint reads its own arguments; the caller moves past the colour.
        const long offset = assign.getArgumentOffset();
        vxPaintOLD::assignByKind(paint, assign, settings, *this, L"createPaint");
        assign.addToArgumentOffset(offset - assign.getArgumentOffset());
        return;
    }
    vxColorOLD color;
    if (!vxBasicPaint::readColor(assign, 0, settings, color)) return;
    try {
        setPaint(vxBasicPaint(color));
    } catch (const std::bad_alloc&) {
        setError(vxErrRuntime::kOutOfMemory, where(L"createPaint"));
    }
}

}  // namespace Velarix
