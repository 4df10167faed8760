#include "graphics/vxTextSymbol.h"

#include "graphics/vxText.h"

namespace Velarix {

namespace {
constexpr short kCentred = 2;
}

vxTextSymbol::vxTextSymbol(vxUserSettings* owner) : vxSymbol(L"vxTextSymbol", owner) {}

vxTextSymbol::~vxTextSymbol() = default;

bool vxTextSymbol::createText() {
    if (text) return true;
    if (!create(text, L"createText", getOwnerSettings())) return false;
    text->setHAlignment(kCentred);
    text->setVAlignment(kCentred);
    return true;
}

bool vxTextSymbol::setText(const vxText& from) {
    if (!createText()) return false;
    text->copy(&from);
    text->setHAlignment(kCentred);
    text->setVAlignment(kCentred);
    invalidateBounds();
    return true;
}

void vxTextSymbol::placeText() const {
    text->setAnchor(drawX(), drawY());
}

void vxTextSymbol::drawBody(vxDevice& device) {
    if (!text || !isVisible()) return;
    placeText();
    text->drawBody(device);
    if (text->isError()) copyError(text->getError());
}

void vxTextSymbol::calculateBounds(float b[4]) const {
    if (!text) return vxSymbol::calculateBounds(b);
    placeText();
    text->getBounds(b);
}

void vxTextSymbol::resetFields() {
    text.reset();
}

void vxTextSymbol::copyFields(const vxSymbol& from) {
    const auto& symbol = static_cast<const vxTextSymbol&>(from);
    if (symbol.text) setText(*symbol.text);
}

}  // namespace Velarix
