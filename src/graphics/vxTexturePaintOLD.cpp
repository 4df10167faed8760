#include "graphics/vxTexturePaintOLD.h"

#include <algorithm>

#include "host/vxLog.h"
#include "output/vxImage.h"

namespace Velarix {

vxTexturePaintOLD::vxTexturePaintOLD() : vxPaintOLD(L"vxTexturePaintOLD") {}

vxTexturePaintOLD::~vxTexturePaintOLD() = default;

bool vxTexturePaintOLD::hasImage() const {
    const float width = anchorBounds[2] - anchorBounds[0];
    const float height = anchorBounds[3] - anchorBounds[1];
    return image != nullptr && width > 1e-10f && height > 1e-10f;
}

bool vxTexturePaintOLD::createImage() {
    return create(image, L"createImage");
}

bool vxTexturePaintOLD::setImage(const vxImage* from) {
    if (!from) {
        image.reset();
        return true;
    }
    if (!createImage()) return false;
    if (image->set(from)) return true;
    copyError(image->getError());
    return false;
}

bool vxTexturePaintOLD::assignImage(vxAssign& assign) {
    if (!createImage()) return false;
    if (image->assign(assign)) return true;
    copyError(image->getError());
    return false;
}

void vxTexturePaintOLD::getAnchorBounds(float bounds[4]) const {
    std::copy(anchorBounds, anchorBounds + 4, bounds);
}

void vxTexturePaintOLD::setAnchorBounds(const float bounds[4]) {
    std::copy(bounds, bounds + 4, anchorBounds);
}

std::unique_ptr<vxPaintOLD> vxTexturePaintOLD::clone() const {
    return cloneOf<vxPaintOLD>(*this);
}

bool vxTexturePaintOLD::assign(vxAssign& assign, const vxUserSettings*) {
    skipArguments(assign);
    return !isError();
}

void vxTexturePaintOLD::resetFields() {
    image.reset();
    stackValueUC = 0.0;
    stackValueDC = 0.0f;
    alignment = -1;
    std::fill(anchorBounds, anchorBounds + 4, 0.0f);
}

void vxTexturePaintOLD::copyFields(const vxAppearance& from) {
    const auto& texture = static_cast<const vxTexturePaintOLD&>(from);
    stackValueUC = texture.stackValueUC;
    stackValueDC = texture.stackValueDC;
    alignment = texture.alignment;
    setAnchorBounds(texture.anchorBounds);
    setImage(texture.image.get());
}

void vxTexturePaintOLD::dumpFields(short depth, std::ostream& out) const {
    vxPaintOLD::dumpFields(depth, out);
    vxDumpLine(out, "bool hasImage:  ", hasImage());
    vxDumpLine(out, "double stackValueUC:  ", stackValueUC);
    vxDumpLine(out, "float stackValueDC:  ", stackValueDC);
    vxDumpLine(out, "short alignment:  ", alignment);
    vxDumpLine(out, "float anchorBounds[0,1]:  ", anchorBounds[0], anchorBounds[1]);
    vxDumpLine(out, "float anchorBounds[2,3]:  ", anchorBounds[2], anchorBounds[3]);
    if (image) image->dump(static_cast<short>(depth - 1), out);
}

}  // namespace Velarix
