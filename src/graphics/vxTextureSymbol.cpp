#include "graphics/vxTextureSymbol.h"

#include "output/vxImage.h"

namespace Velarix {

vxTextureSymbol::vxTextureSymbol(vxUserSettings* owner) : vxSymbol(L"vxTextureSymbol", owner) {
    setExtent(kDefaultSize, kDefaultSize);
}

vxTextureSymbol::~vxTextureSymbol() = default;

bool vxTextureSymbol::setImage(const vxImage& from) {
    if (!image && !create(image, L"createImage")) return false;
    if (!image->set(&from)) {
        copyError(image->getError());
        return false;
    }
    return true;
}

void vxTextureSymbol::setSize(float size) {
    setExtent(size, size);
}

void vxTextureSymbol::drawBody(vxDevice& device) {
    if (!image || !isVisible() || image->isEmpty()) return;
    const float w = getSymbolWidth() * 0.5f;
    const float h = getSymbolHeight() * 0.5f;
    const float box[4] = {drawX() - w, drawY() - h, drawX() + w, drawY() + h};
    image->setMapping(box);
    image->draw(device);
}

void vxTextureSymbol::resetFields() {
    image.reset();
    setExtent(kDefaultSize, kDefaultSize);
}

void vxTextureSymbol::copyFields(const vxSymbol& from) {
    const auto& symbol = static_cast<const vxTextureSymbol&>(from);
    if (symbol.image) setImage(*symbol.image);
}

}  // namespace Velarix
