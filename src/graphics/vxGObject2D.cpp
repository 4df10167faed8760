#include "graphics/vxGObject2D.h"

#include "graphics/vxGObjectAppearanceOLD.h"
#include "graphics/vxPaintOLD.h"
#include "graphics/vxShadowOLD.h"
#include "graphics/vxStrokeOLD.h"
#include "graphics/vxSymbol.h"
#include "graphics/vxSymbolArray.h"
#include "host/vxLog.h"
#include "settings/vxExceptionRuntime.h"

namespace Velarix {

vxGObject2D::vxGObject2D(const wchar_t* name, vxUserSettings* owner)
    : vxGObjectOLD(std::move(name), owner) {}

vxGObject2D::~vxGObject2D() = default;

const vxStrokeOLD* vxGObject2D::borderStrokeForDrawing() {
    if (getBorderStroke()) return getBorderStroke();
    const vxStrokeOLD* stroke =
        getAppearance()->borderStrokeOf(vxGObjectAppearanceOLD::kBasicStroke);
    if (getAppearance()->isError()) copyError(getAppearance()->getError());
    return stroke;
}

void vxGObject2D::drawShadow(vxDevice& device) {
    if (!isVisible() || !hasShadow()) return;
    const vxShadowOLD& shadow = *getShadow();
    float b[4];
    getBounds(b);
    b[0] += shadow.getXOffset();
    b[2] += shadow.getXOffset();
    b[1] += shadow.getYOffset();
    b[3] += shadow.getYOffset();
    if (hasFill()) fillShape(device, shadow, b);
    if (hasBorder()) {
        if (const vxStrokeOLD* stroke = borderStrokeForDrawing()) {
            outlineShape(device, *stroke, shadow, b);
        }
    }
    if (symbols) symbols->drawShadow(device);
}

void vxGObject2D::drawBody(vxDevice& device) {
    if (!isVisible()) return;
    float b[4];
    getBounds(b);
    if (hasFill()) fillShape(device, *getFillPaint(), b);
    if (hasBorder()) {
        if (const vxStrokeOLD* stroke = borderStrokeForDrawing()) {
            outlineShape(device, *stroke, *getBorderPaint(), b);
        }
    }
    if (symbols) symbols->drawBody(device);
}

void vxGObject2D::setUpKnobs(vxSelectionKnobs& knobs) {
    vxGObjectOLD::setUpKnobs(knobs);
    if (symbols) symbols->setUpKnobs(*symbols->getKnobs());
}

void vxGObject2D::transformGeometry(const vxTransform2DOLD& transform) {
    if (symbols) symbols->transform(transform);
}

bool vxGObject2D::hasSymbols() const {
    return getNumOfSymbols() > 0;
}

long vxGObject2D::getNumOfSymbols() const {
    return symbols ? symbols->getNumOfSymbols() : 0;
}

vxSymbol* vxGObject2D::getSymbol(long index) const {
    return symbols ? symbols->getSymbol(index) : nullptr;
}

bool vxGObject2D::takeSymbolsError() {
    if (symbols && symbols->isError() && !isError()) copyError(symbols->getError());
    return !isError();
}

bool vxGObject2D::addSymbol(const vxSymbol& from) {
    if (!symbols && !createSymbols()) return false;
    const bool isAdded = symbols->addSymbol(from);
    return takeSymbolsError() && isAdded;
}

bool vxGObject2D::createSymbols(const vxSymbolArray* from) {
    symbols.reset();
    try {
        symbols = std::make_unique<vxSymbolArray>(getOwnerSettings());
    } catch (const std::bad_alloc&) {
        symbols.reset();
    } catch (const vxExceptionRuntime&) {
        symbols.reset();
    }
    if (!symbols) {
        setError(vxErrRuntime::kOutOfMemory, where(L"createSymbols"));
        return false;
    }
    if (from) symbols->copy(from);
    return takeSymbolsError();
}

bool vxGObject2D::assignSymbols(const vxGObject2D& from) {
    if (&from == this) return true;
    if (!from.symbols) {
        symbols.reset();
        return true;
    }
    return createSymbols(from.symbols.get());
}

void vxGObject2D::setDefaults() {
    vxGObjectOLD::setDefaults();
    symbols.reset();
}

void vxGObject2D::dump(short depth, std::ostream& out) const {
    vxGObjectOLD::dump(depth, out);
    if (symbols) symbols->dump(static_cast<short>(depth - 1), out);
}

}  // namespace Velarix
