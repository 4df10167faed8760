#include "output/vxImage.h"

#include <new>

#include "graphics/vxTransform2DOLD.h"
#include "host/vxLog.h"
#include "output/vxBitmap.h"
#include "output/vxDevice.h"
#include "output/vxImageMapping.h"
#include "output/vxReadExternal.h"
#include "script/vxAssign.h"
#include "script/vxFunctionIds.h"

namespace Velarix {

namespace {

constexpr short kDefaultSourceKind = kSourceClipboard;
// The script's adjustment words: "crop" 1 to "tile" 5.
constexpr short kScriptTile = 5;

}  // namespace

vxImage::vxImage() : vxErrorHolder(L"vxImage") {}

vxImage::~vxImage() = default;

bool vxImage::createBitmap() {
    return create(bitmap, L"createBitmap");
}

bool vxImage::createSource(short kind) {
    source.reset();
    try {
        source = vxReadExternal::makeSource(kind);
    } catch (const std::bad_alloc&) {
        setError(vxErrRuntime::kOutOfMemory, where(L"createSource"));
        return false;
    }
    return true;
}

bool vxImage::createMapping() {
    return mapping || create(mapping, L"createMapping");
}

bool vxImage::createTransform() {
    return transform || create(transform, L"createTransform");
}

bool vxImage::setSource(short kind, const std::wstring& name) {
    if (!createSource(kind)) return false;
    if (!source) {
        setError(vxErrScript::kString, where(L"setSource", 1), std::to_wstring(kind));
        return false;
    }
    if (!source->setName(name)) {
        copyError(source->getError());
        return false;
    }
    if (!createMapping()) return false;
    mapping->setSourceSize(source->getWidth(), source->getHeight());
    return true;
}

short vxImage::getSourceType() const {
    return source ? source->getType() : 0;
}

bool vxImage::set(const vxImage* from) {
    if (from == this) return true;
    setDefaults();
    if (!from) return true;
    if (from->bitmap && (!createBitmap() || !bitmap->set(*from->bitmap))) {
        if (bitmap) copyError(bitmap->getError());
        return false;
    }
    if (from->source && !copySource(*from->source)) return false;
    if (from->mapping) {
        if (!createMapping()) return false;
        *mapping = *from->mapping;
    }
    if (from->transform) {
        if (!createTransform()) return false;
        *transform = *from->transform;
    }
    if (!copyImages(*from)) return false;
    if (from->isError()) copyError(from->getError());
    return true;
}

bool vxImage::copySource(const vxReadExternal& from) {
    try {
        source = from.clone();
    } catch (const std::bad_alloc&) {
        setError(vxErrRuntime::kOutOfMemory, where(L"createSource"));
        return false;
    }
    return true;
}

bool vxImage::copyImages(const vxImage& from) {
    for (const auto& image : from.images) {
        if (!addImage(*image)) return false;
    }
    return true;
}

void vxImage::setDefaults() {
    bitmap.reset();
    source.reset();
    mapping.reset();
    transform.reset();
    images.clear();
    clearError();
}

bool vxImage::setMapping(const float bounds[4]) {
    if (!createMapping()) return false;
    mapping->setAnchor(bounds);
    return true;
}

bool vxImage::setMapping(short adjustment, short location, bool isProportional) {
    if (!createMapping()) return false;
    mapping->setAdjustment(adjustment);
    mapping->setLocation(location);
    mapping->setIsProportional(isProportional);
    return true;
}

bool vxImage::setMapping(const float sourceBounds[4], const float destBounds[4]) {
    if (!createMapping()) return false;
    mapping->set(sourceBounds, destBounds);
    return true;
}

bool vxImage::setTransform(const vxTransform2DOLD& value) {
    if (!createTransform()) return false;
    *transform = value;
    return true;
}

bool vxImage::setBitmap(const vxBitmap& value) {
    if (!createBitmap()) return false;
    if (!bitmap->set(value)) {
        copyError(bitmap->getError());
        return false;
    }
    if (!createMapping()) return false;
    mapping->setSourceSize(bitmap->getWidth(), bitmap->getHeight());
    return true;
}

bool vxImage::loadBitmap() {
    if (bitmap) return true;
    if (!createBitmap()) return false;
    if (source && source->read(*bitmap)) return true;
    copyError(bitmap->getError());
    bitmap.reset();
    return false;
}

bool vxImage::readBitmap(vxBitmap& into) const {
    if (bitmap) return into.set(*bitmap);
    if (source) return source->read(into);
    into.clear();
    return true;
}

bool vxImage::addImage(const vxImage& image) {
    std::unique_ptr<vxImage> copy;
    try {
        copy = std::make_unique<vxImage>();
        images.push_back(nullptr);
    } catch (const std::bad_alloc&) {
        setError(vxErrRuntime::kOutOfMemory, where(L"addImage"));
        return false;
    }
    if (!copy->set(&image)) {
        images.pop_back();
        copyError(copy->getError());
        return false;
    }
    images.back() = std::move(copy);
    return true;
}

const vxImage* vxImage::getImage(long index) const {
    if (index < 0 || index >= getNumOfImages()) return nullptr;
    return images[static_cast<size_t>(index)].get();
}

const vxGradientPaint* vxImage::getGradient() const {
    return source ? source->getGradient() : nullptr;
}

bool vxImage::isEmpty() const {
    if (bitmap) return bitmap->isEmpty();
    return !source || source->isError() || source->isEmpty();
}

bool vxImage::getTextureSize(float size[2]) const {
    size[0] = size[1] = 0.0f;
    if (isEmpty()) return false;
    if (mapping && !mapping->isEmpty()) {
        size[0] = mapping->getDestWidth();
        size[1] = mapping->getDestHeight();
    } else if (bitmap) {
        size[0] = static_cast<float>(bitmap->getWidth());
        size[1] = static_cast<float>(bitmap->getHeight());
    } else {
        size[0] = static_cast<float>(source->getWidth());
        size[1] = static_cast<float>(source->getHeight());
    }
    return true;
}

short vxImage::toMappingAdjustment(const vxAssign& assign, long index) {
    if (assign.isVoid(index)) return vxImageMapping::kFill;
    const short code = assign.getShort(index);
    if (code == kScriptTile) return vxImageMapping::kTile;
    if (code >= vxImageMapping::kKeep && code <= vxImageMapping::kFit) return code;
    return vxImageMapping::kFill;
}

bool vxImage::assign(vxAssign& assign) {
    switch (assign.getFunction()) {
        case kPictureStyle: {
            const short kind = assign.getShort(0, kDefaultSourceKind);
            const std::wstring name = assign.getString(1);
            assign.addToArgumentOffset(2);
            return setSource(kind, name);
        }
        case kAddPicture:
        case kBackgroundPict:
        case kChartBackgroundPict: {
            const short kind = assign.getShort(0, kDefaultSourceKind);
            const std::wstring name = assign.getString(1);
            const short location = assign.getShort(2, vxImageMapping::kDefaultLocation);
            const short adjustment = toMappingAdjustment(assign, 3);
            const bool isProportional = assign.getBool(4, false);
            assign.addToArgumentOffset(5);
            return setMapping(adjustment, location, isProportional) && setSource(kind, name);
        }
        default: {
            const std::wstring name = assign.getString(0);
            assign.addToArgumentOffset(1);
            return setSource(kSourceResource, name);
        }
    }
}

void vxImage::draw(vxDevice& device) const {
    device.drawImage(*this);
}

void vxImage::dump(short depth, std::ostream& out) const {
    if (depth <= 0) return;
    vxDumpHeader(out, vxNarrow(className));
    vxDumpLine(out, "long numOfImages: ", getNumOfImages());
    const short next = static_cast<short>(depth - 1);
    if (bitmap) bitmap->dump(next, out);
    if (source) source->dump(next, out);
    if (mapping) mapping->dump(next, out);
    for (const auto& image : images) image->dump(next, out);
    if (error) error->dump(next, out);
    vxDumpEnd(out);
}

}  // namespace Velarix
