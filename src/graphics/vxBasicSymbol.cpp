#include "graphics/vxBasicSymbol.h"

#include <algorithm>

#include "graphics/vxBasicPaint.h"
#include "graphics/vxBasicStroke.h"
#include "graphics/vxShadowOLD.h"
#include "host/vxLog.h"
#include "output/vxDevice.h"
#include "script/vxAssign.h"

namespace Velarix {

namespace {

constexpr short kFirstFilled = 2;
constexpr short kLastFilled = 6;
// A filled shape's outline form is six types further on.
constexpr short kOutlineStep = 6;

bool isFilledShape(short type) {
    return type >= kFirstFilled && type <= kLastFilled;
}

}  // namespace

vxBasicSymbol::vxBasicSymbol(vxUserSettings* owner) : vxSymbol(L"vxBasicSymbol", owner) {
    setExtent(size, size);
}

vxBasicSymbol::vxBasicSymbol(short type, float size, float x, float y, vxUserSettings* owner)
    : vxBasicSymbol(owner) {
    setSymbolType(type);
    setSize(size);
    setCenter(x, y);
}

vxBasicSymbol::~vxBasicSymbol() = default;

void vxBasicSymbol::setSize(float value) {
    size = std::clamp(value, 0.0f, kMaxSize);
    setExtent(size, size);
}

void vxBasicSymbol::drawBody(vxDevice& device) {
    if (!isVisible() || !isDrawn()) return;
    const bool border = hasBorder(), fill = hasFill();
    if (!border && !fill) return;
    const vxBasicStroke defaultStroke;
    const vxBasicPaint none(0, 0, 0, 0);
    device.drawSymbol(strokeOr(defaultStroke), border ? *getBorderPaint() : none,
                      fill ? *getFillPaint() : none, type, size, drawX(), drawY());
}

// The shadow follows what the body draws: a filled shape without a fill
// casts the shadow of its outline, and without a border no outline is cast.
void vxBasicSymbol::drawShadow(vxDevice& device) {
    if (!isVisible() || !hasShadow() || !isDrawn()) return;
    const bool border = hasBorder();
    const bool filled = isFilledShape(type) && hasFill();
    if (!border && !filled) return;
    const vxShadowOLD& shadow = *getShadow();
    const vxBasicStroke defaultStroke;
    const vxBasicPaint none(0, 0, 0, 0);
    const vxPaintOLD& outline = border && shadow.getPaint() ? *shadow.getPaint() : none;
    const short shape =
        isFilledShape(type) && !filled ? static_cast<short>(type + kOutlineStep) : type;
    device.drawSymbol(strokeOr(defaultStroke), outline, shadow, shape, size, drawX(), drawY());
}

void vxBasicSymbol::calculateBounds(float b[4]) const {
    const float x = drawX(), y = drawY(), half = size * 0.5f;
    float l = x - half, t = y - half, r = l + size, btm = t + size;
    switch (type) {
        case 13:  // horizontal bar
            t = btm = y;
            break;
        case 14:  // vertical bar
            l = r = x;
            break;
        case 15:  // left tick
            l = x - size, r = x, t = btm = y;
            break;
        case 16:  // right tick
            l = x, r = x + size, t = btm = y;
            break;
        case 17:  // up tick
            l = r = x, t = y - size, btm = y;
            break;
        case 18:  // down tick
            l = r = x, t = y, btm = y + size;
            break;
        default:
            break;
    }
    b[0] = l;
    b[1] = t;
    b[2] = r;
    b[3] = btm;
}

bool vxBasicSymbol::assign(vxAssign& assign, const vxUserSettings* settings) {
    if (!assign.isVoid(0)) setSymbolType(assign.getShort(0, type));
    if (!assign.isVoid(1)) setSize(assign.getFloat(1, size));
    assign.addToArgumentOffset(2);
    if (!assignStroke(assign)) return false;
    const long borderAt = assign.getArgumentOffset();
    if (!assignBorderPaint(assign, settings)) return false;
    if (!assign.isVoid(0)) return assignFillPaint(assign, settings);
    if (getFillPaint()) return true;
    // The border's colour once more, for the fill.
    const long end = assign.getArgumentOffset();
    assign.addToArgumentOffset(borderAt - end);
    const bool done = assignFillPaint(assign, settings);
    assign.addToArgumentOffset(end - assign.getArgumentOffset());
    return done;
}

void vxBasicSymbol::resetFields() {
    type = kCircle;
    setSize(kDefaultSize);
}

void vxBasicSymbol::copyFields(const vxSymbol& from) {
    const auto& symbol = static_cast<const vxBasicSymbol&>(from);
    type = symbol.type;
    setSize(symbol.size);
}

void vxBasicSymbol::dumpFields(std::ostream& out) const {
    vxDumpLine(out, "short type:  ", type);
    vxDumpLine(out, "float size:  ", size);
}

}  // namespace Velarix
