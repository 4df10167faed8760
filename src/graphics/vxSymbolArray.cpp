#include "graphics/vxSymbolArray.h"

#include <algorithm>

#include "graphics/vxBoundsUnion.h"
#include "graphics/vxGObjectAppearanceOLD.h"
#include "graphics/vxGObjectState.h"
#include "graphics/vxSelectionKnobs.h"
#include "graphics/vxSymbol.h"
#include "host/vxLog.h"
#include "settings/vxExceptionRuntime.h"

namespace Velarix {

vxSymbolArray::vxSymbolArray(vxUserSettings* owner) : vxGObjectOLD(L"vxSymbolArray", owner) {}

vxSymbolArray::~vxSymbolArray() = default;

void vxSymbolArray::drawShadow(vxDevice& device) {
    if (!isVisible()) return;
    for (const auto& symbol : symbols) {
        if (symbol) symbol->drawShadow(device);
    }
}

void vxSymbolArray::drawBody(vxDevice& device) {
    if (!isVisible()) return;
    for (const auto& symbol : symbols) {
        if (symbol) symbol->drawBody(device);
    }
}

void vxSymbolArray::setUpKnobs(vxSelectionKnobs& knobs) {
    vxGObjectOLD::setUpKnobs(knobs);
    for (const auto& symbol : symbols) {
        if (symbol) symbol->setUpKnobs(*symbol->getKnobs());
    }
}

void vxSymbolArray::transform(const vxTransform2DOLD& t) {
    applyTransform(t);
}

void vxSymbolArray::transformGeometry(const vxTransform2DOLD& t) {
    for (const auto& symbol : symbols) {
        if (symbol) symbol->transform(t);
    }
}

void vxSymbolArray::calculateBounds(float b[4]) const {
    bool hasBounds = false;
    std::fill(b, b + 4, 0.0f);
    for (const auto& symbol : symbols) {
        if (!symbol) continue;
        float s[4];
        symbol->getBounds(s);
        vxUniteBounds(b, s, hasBounds);
    }
}

vxSymbol* vxSymbolArray::getSymbol(long index) const {
    if (index < 0 || index >= getNumOfSymbols()) return nullptr;
    return symbols[static_cast<size_t>(index)].get();
}

bool vxSymbolArray::addSymbol(const vxSymbol& from) {
    try {
        std::unique_ptr<vxSymbol> symbol = vxSymbol::make(from.getType(), getOwnerSettings());
        if (!symbol) return false;
        const bool isCopied = symbol->copy(&from);
        if (!isCopied) copyError(symbol->getError());
        symbols.push_back(std::move(symbol));
        invalidateBounds();
        return isCopied;
    } catch (const std::bad_alloc&) {
    } catch (const vxExceptionRuntime&) {
    }
    setError(vxErrRuntime::kOutOfMemory, where(L"addSymbol"));
    return false;
}

bool vxSymbolArray::addGap() {
    try {
        symbols.emplace_back();
    } catch (const std::bad_alloc&) {
        setError(vxErrRuntime::kOutOfMemory, where(L"addSymbol"));
        return false;
    }
    return true;
}

void vxSymbolArray::removeAll() {
    symbols.clear();
    invalidateBounds();
}

void vxSymbolArray::setDefaults() {
    vxGObjectOLD::setDefaults();
    removeAll();
}

bool vxSymbolArray::copy(const vxSymbolArray* from) {
    if (from == this) return true;
    setDefaults();
    if (from == nullptr) return true;
    getState()->copy(from->getState());
    getAppearance()->copy(from->getAppearance());
    if (getAppearance()->isError()) {
        copyError(getAppearance()->getError());
        return false;
    }
    for (const auto& symbol : from->symbols) {
        const bool isAdded = symbol ? addSymbol(*symbol) : addGap();
        if (!isAdded && isError()) return false;
    }
    return true;
}

void vxSymbolArray::dump(short depth, std::ostream& out) const {
    if (depth <= 0) return;
    vxDumpHeader(out, "vxSymbolArray");
    vxDumpLine(out, "long numOfSymbols:  ", getNumOfSymbols());
    vxGObjectOLD::dump(static_cast<short>(depth - 1), out);
    for (const auto& symbol : symbols) {
        if (symbol) symbol->dump(static_cast<short>(depth - 1), out);
    }
    vxDumpEnd(out);
}

}  // namespace Velarix
