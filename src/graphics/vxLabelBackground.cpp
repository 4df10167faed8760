// The background shapes of a label, their default look and their script
// forms.
#include <algorithm>
#include <cmath>
#include <new>

#include "graphics/vxAppearanceScript.h"
#include "graphics/vxBasicPaint.h"
#include "graphics/vxBasicStroke.h"
#include "graphics/vxGObjectAppearanceOLD.h"
#include "graphics/vxLabel.h"
#include "graphics/vxPath2DOLD.h"
#include "script/vxAssign.h"

namespace Velarix {

namespace {

constexpr float kPi = 3.14159265f;
constexpr float kDegree = kPi / 180.0f;
// Corners of a free polygon.
constexpr long kDefaultCorners = 3;
constexpr long kMaxCorners = 1000;

// A list argument, or a single number as a list of one.
std::vector<float> numbersOf(const vxAssign& assign, long index) {
    if (assign.getArraySize(index) > 0) return assign.getFloatArray(index);
    if (assign.isVoid(index) || assign.isString(index)) return {};
    return {assign.getFloat(index)};
}

bool isGiven(const vxAssign& assign, long index) {
    return !assign.isArgumentOutOfRange(index) && !assign.isVoid(index);
}

}  // namespace

// A border that is there but shows nothing until a colour is given, so that
// the script's colour alone makes it show.
void vxLabel::setBackgroundLook() {
    vxGObjectAppearanceOLD* look = background->getAppearance();
    if (auto* stroke = static_cast<vxBasicStroke*>(
            look->borderStrokeOf(vxGObjectAppearanceOLD::kBasicStroke))) {
        stroke->setLineWidth(1.0f);
    }
    if (auto* paint = static_cast<vxBasicPaint*>(look->borderPaintOf(vxPaintOLD::kBasic))) {
        paint->setColor(0, 0, 0, 0);
    }
    if (auto* paint = static_cast<vxBasicPaint*>(look->fillPaintOf(vxPaintOLD::kBasic))) {
        paint->setColor(255, 255, 255, 0);
    }
    takeError(look);
}

bool vxLabel::setBackgroundShape(short shape, const std::vector<float>& options) {
    if (shape < kRectangle || shape > kPolygon) return false;
    if (!background && !createBackground()) return false;
    try {
        mBackgroundOptions = options;
    } catch (const std::bad_alloc&) {
        setError(vxErrRuntime::kOutOfMemory, where(L"setBackgroundShape"));
        return false;
    }
    mBackgroundShape = shape;
    setUpBackground();
    return !isError();
}

void vxLabel::buildBackgroundShape() {
    const float f = kFrameSize, c = kFrameSize / 2.0f;
    const std::vector<float>& o = mBackgroundOptions;
    switch (mBackgroundShape) {
        case kRectangle:
            background->addRect(0.0f, 0.0f, f, f);
            break;
        case kEllipse:
            background->addOval(0.0f, 0.0f, f, f);
            break;
        case kRoundRect: {
            const float rx = o.empty() ? kDefaultCornerRadius : o[0];
            background->addRoundRect(0.0f, 0.0f, f, f, rx, o.size() > 1 ? o[1] : rx);
            break;
        }
        case kDiamond:
            background->addMultigon(4, 0.0f, c, c, c, c, 1.0f, 0.0f);
            break;
        case kHexagon:
            background->addMultigon(6, kPi / 6.0f, c, c, c, c, 1.0f, 0.0f);
            break;
        case kOctagon:
            background->addMultigon(8, kPi / 8.0f, c, c, c, c, 1.0f, 0.0f);
            break;
        case kPolygon: {
            const long n = o.empty() || !std::isfinite(o[0]) ? kDefaultCorners : std::lround(o[0]);
            const float angle = o.size() > 1 ? o[1] * kDegree : 0.0f;
            background->addMultigon(std::clamp(n, kDefaultCorners, kMaxCorners), angle, c, c, c, c,
                                    1.0f, 0.0f);
            break;
        }
        default:
            break;
    }
    takeError(background.get());
}

// ---- script --------------------------------------------------------------------

void vxLabel::applyMarginList(const std::vector<float>& numbers) {
    if (numbers.empty()) return;
    useRelativeMargins = numbers[0] != 0.0f;
    const float* m = numbers.data() + 1;
    switch (numbers.size() - 1) {
        case 0:
            break;
        case 1:
            setMargins(m[0], m[0], m[0], m[0]);
            break;
        case 2:
            setMargins(m[0], m[1], m[0], m[1]);
            break;
        case 3:
            setMargins(m[0], m[1], m[0], m[2]);
            break;
        default:
            setMargins(m[0], m[1], m[2], m[3]);
            break;
    }
}

bool vxLabel::assignBackgroundOptions(vxAssign& assign) {
    std::vector<float> list, options;
    try {
        list = numbersOf(assign, 0);
        options = numbersOf(assign, 2);
    } catch (const std::bad_alloc&) {
        setError(vxErrRuntime::kOutOfMemory, where(L"assignBackgroundOptions"));
    }
    const bool hasShape = isGiven(assign, 1);
    const short shape = assign.getShort(1, mBackgroundShape);
    const bool hasOptions = isGiven(assign, 2);
    assign.addToArgumentOffset(3);
    if (isError()) return false;

    applyMarginList(list);
    if (hasShape) return setBackgroundShape(shape, options);
    if (hasOptions && background && mBackgroundShape != kGivenShape) {
        return setBackgroundShape(mBackgroundShape, options);
    }
    setUpBackground();
    return !isError();
}

bool vxLabel::assignBackground(vxAssign& assign, const vxUserSettings* settings) {
    if (!settings) settings = getOwnerSettings();
    if (!background && !createBackground()) return false;
    vxAppearanceScript::readFill(*background, assign, settings, vxAppearanceScript::kSkipPart) &&
        vxAppearanceScript::readBorder(*background, assign, settings,
                                       vxAppearanceScript::kSkipPart) &&
        vxAppearanceScript::readShadow(*background, assign, settings);
    if (!takeError(background.get())) return false;
    // A border changes the size of the box.
    setUpBackground();
    return !isError();
}

}  // namespace Velarix
