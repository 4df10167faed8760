#include "platform/vxResources.h"

#include <new>

#include "graphics/vxLinearGradient.h"
#include "graphics/vxRadialGradient.h"
#include "output/vxBitmap.h"
#include "platform/vxGradientSettings.h"
#include "platform/vxTexturePictures.h"

namespace Velarix {

namespace {

constexpr short kFirstHatch = 3;
constexpr short kLastHatch = 64;
constexpr short kLastRadial = 42;
constexpr short kFirstRadial = 33;

// The picture of the hatch number: the medium grey hatch, alternate bits
// (55aa55aa55aa55aa), black on white.
constexpr int kHatchSize = 8;
constexpr uint8_t kHatchRows[kHatchSize] = {0x55, 0xAA, 0x55, 0xAA, 0x55, 0xAA, 0x55, 0xAA};

bool makeHatch(vxBitmap& bitmap) {
    if (!bitmap.allocateMemory(kHatchSize, kHatchSize)) return false;
    for (int y = 0; y < kHatchSize; ++y) {
        for (int x = 0; x < kHatchSize; ++x) {
            const bool set = (kHatchRows[y] >> (7 - x)) & 1;
            const uint8_t c = set ? 0 : 255;
            bitmap.setPixel(x, y, c, c, c);
        }
    }
    return true;
}

}  // namespace

long vxResources::calculateResourceID(short patternIndex) {
    if (patternIndex >= kFirstHatch && patternIndex <= kLastHatch) return kHatchResource;
    return kPatternResourceBase + patternIndex;
}

bool vxResources::exists(long id) {
    if (id == kHatchResource) return true;
    const short code = getIndexCode(id);
    return (code >= 1 && code <= kNumOfGradients) ||
           (code >= kFirstTexture && code <= kLastTexture);
}

short vxResources::getIndexCode(long id) {
    const long code = id - kPatternResourceBase;
    return (code >= 1 && code <= kLastTexture) ? static_cast<short>(code) : 0;
}

short vxResources::getKind(short indexCode) {
    if (indexCode >= 1 && indexCode < kFirstRadial) return kKindLinearGradient;
    if (indexCode >= kFirstRadial && indexCode <= kLastRadial) return kKindRadialGradient;
    return kKindImage;
}

long vxResources::getPictureSize(long id) {
    return id == kHatchResource ? kHatchSize : vxTexturePictures::kSize;
}

std::unique_ptr<vxGradientPaint> vxResources::makeGradient(long id) {
    const short code = getIndexCode(id);
    const short kind = getKind(code);
    if (kind == kKindImage) return nullptr;
    const vxGradientSetting& s = kGradientSettings[code - 1];
    std::unique_ptr<vxGradientPaint> gradient;
    if (kind == kKindLinearGradient) {
        auto linear = std::make_unique<vxLinearGradient>();
        linear->setP1(s.x1, s.y1);
        linear->setP2(s.x2, s.y2);
        gradient = std::move(linear);
    } else {
        auto radial = std::make_unique<vxRadialGradient>();
        radial->setCenter(s.x1, s.y1);
        radial->setFocus(s.x2, s.y2);
        radial->setRadius(s.radius);
        gradient = std::move(radial);
    }
    gradient->setSpread(s.spread);
    if (!gradient->addColor(s.first.red, s.first.green, s.first.blue, 0.0f) ||
        !gradient->addColor(s.last.red, s.last.green, s.last.blue, 1.0f)) {
        throw std::bad_alloc();
    }
    return gradient;
}

bool vxResources::makePicture(long id, vxBitmap& bitmap) {
    bitmap.clear();
    if (id == kHatchResource) return makeHatch(bitmap);
    const short code = getIndexCode(id);
    if (code < kFirstTexture) return false;
    return vxTexturePictures::make(code, bitmap);
}

bool vxResourceExists(long id) {
    return vxResources::exists(id);
}

}  // namespace Velarix
