#include "graphics/vxPaintOLD.h"

#include <algorithm>
#include <cmath>
#include <new>

#include "graphics/vxBasicPaint.h"
#include "graphics/vxColorOLD.h"
#include "graphics/vxLinearGradient.h"
#include "graphics/vxPlainColorFunctions.h"
#include "graphics/vxRadialGradient.h"
#include "graphics/vxTexturePaintOLD.h"
#include "script/vxAssign.h"

namespace Velarix {

namespace {

template <class Make>
bool makeInto(std::unique_ptr<vxPaintOLD>& slot, Make make, vxErrorHolder& owner,
              const wchar_t* method, int number) {
    try {
        slot = make();
    } catch (const std::bad_alloc&) {
        owner.setError(vxErrRuntime::kOutOfMemory, owner.where(method, number));
        return false;
    }
    return slot != nullptr;
}

const vxColorOLD& opaqueBlack() {
    static const vxColorOLD black;
    return black;
}

}  // namespace

float vxPaintOLD::getRed() const {
    return getColor() ? getColor()->getRedF() : opaqueBlack().getRedF();
}

float vxPaintOLD::getGreen() const {
    return getColor() ? getColor()->getGreenF() : opaqueBlack().getGreenF();
}

float vxPaintOLD::getBlue() const {
    return getColor() ? getColor()->getBlueF() : opaqueBlack().getBlueF();
}

float vxPaintOLD::getAlpha() const {
    return getColor() ? getColor()->getAlphaF() : opaqueBlack().getAlphaF();
}

long vxPaintOLD::getNumOfArguments(const vxAssign& assign) {
    return vxIsPlainColorFunction(assign.getFunction()) ? 1 : 2;
}

short vxPaintOLD::getKindOfArgument(const vxAssign& assign, long index) {
    if (assign.isVoid(index)) return 0;
    return getKindOfCount(assign.getArraySize(index));  // a scalar or a hash text counts 0
}

short vxPaintOLD::getKindOfCount(long count) {
    if (count <= 4) return kBasic;
    for (short kind : {kLinearGradient, kRadialGradient}) {
        const long leading = getNumOfLeadingNumbersOf(kind);
        if (count >= leading && (count - leading) % kNumbersPerStop == 0) return kind;
    }
    return 0;
}

long vxPaintOLD::getNumOfLeadingNumbersOf(short kind) {
    return kind == kRadialGradient ? 6 : 5;
}

std::unique_ptr<vxPaintOLD> vxPaintOLD::make(short kind) {
    switch (kind) {
        case kBasic:
            return std::make_unique<vxBasicPaint>();
        case kLinearGradient:
            return std::make_unique<vxLinearGradient>();
        case kRadialGradient:
            return std::make_unique<vxRadialGradient>();
        case kTexture:
            return std::make_unique<vxTexturePaintOLD>();
        default:
            return nullptr;
    }
}

bool vxPaintOLD::createInto(std::unique_ptr<vxPaintOLD>& slot, short kind, vxErrorHolder& owner,
                            const wchar_t* method, int number) {
    return makeInto(
        slot, [kind] { return make(kind); }, owner, method, number);
}

bool vxPaintOLD::cloneInto(std::unique_ptr<vxPaintOLD>& slot, const vxPaintOLD& from,
                           vxErrorHolder& owner, const wchar_t* method, int number) {
    return makeInto(
        slot, [&from] { return from.clone(); }, owner, method, number);
}

bool vxPaintOLD::assignByKind(std::unique_ptr<vxPaintOLD>& slot, vxAssign& assign,
                              const vxUserSettings* settings, vxErrorHolder& owner,
                              const wchar_t* method) {
    const short kind = getKindOfArgument(assign, 0);
    const bool replace = !slot || (kind != 0 && kind != slot->getType());
    if (replace && !createInto(slot, kind != 0 ? kind : kBasic, owner, method)) return false;
    if (slot->assign(assign, settings)) return true;
    owner.copyError(slot->getError());
    return false;
}

short vxPaintOLD::toComponent(float value) {
    return static_cast<short>(std::lround(std::clamp(value, -1.0f, 256.0f)));
}

void vxPaintOLD::skipArguments(vxAssign& assign) const {
    assign.addToArgumentOffset(getNumOfArguments(assign));
}

}  // namespace Velarix
