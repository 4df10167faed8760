#include "drawing/vxAdditionBuilder.h"

#include <cmath>
#include <new>

#include "graphics/vxAppearanceScript.h"
#include "graphics/vxBasicSymbol.h"
#include "graphics/vxClip2D.h"
#include "graphics/vxPath2DOLD.h"
#include "graphics/vxQuad2D.h"
#include "graphics/vxText.h"
#include "script/vxAssign.h"
#include "script/vxFunctionIds.h"

namespace Velarix {

namespace {

constexpr float kFullTurn = 6.2831855f;
// Corner radii of rounded rectangles, in percent of the width and height,
// when the script gives none.
constexpr float kDefaultCornerPercent = 10.0f;

enum BoxShape : short { kRectShape = 1, kOvalShape, kRoundRectShape, kArcShape, kSliceShape };

template <class T>
std::unique_ptr<T> make(vxUserSettings* settings) {
    try {
        return std::make_unique<T>(settings);
    } catch (const std::bad_alloc&) {
        return nullptr;
    }
}

}  // namespace

vxAdditionBuilder::vxAdditionBuilder(vxUserSettings* owner, float x, float y)
    : vxErrorHolder(L"vxAdditionBuilder"), settings(owner), originX(x), originY(y) {}

vxAdditionBuilder::~vxAdditionBuilder() = default;

std::unique_ptr<vxGObjectOLD> vxAdditionBuilder::build(vxAssign& a) {
    switch (a.getFunction()) {
        case kAddRect:
        case kAddFrame:
        case kAddOval:
        case kAddEllipse:
        case kAddRoundRect:
        case kAddRoundFrame:
        case kAddArc:
        case kAddSlice:
            return buildBox(a);
        case kAddLine:
        case kAddArrow:
            return buildLine(a);
        case kAddPolygon:
        case kAddPolyline:
        case kAddSmoothPolygon:
        case kAddSmoothPolyline:
            return buildPointList(a);
        case kAddPath:
            return buildPath(a);
        case kAddClipOval:
        case kAddClipPath:
        case kAddClipPolygon:
        case kAddClipRect:
        case kAddClipReset:
        case kAddClipRoundRect:
        case kAddClipSlice:
        case kAddClipSmoothPolygon:
            return buildClip(a);
        case kAddSymbol:
            return buildSymbol(a);
        case kAddText:
            return buildText(a);
        case kAddPicture:
            return buildPicture(a);
        default:
            return nullptr;
    }
}

std::unique_ptr<vxGObjectOLD> vxAdditionBuilder::checked(std::unique_ptr<vxGObjectOLD> object) {
    if (!object) {
        setError(vxErrRuntime::kOutOfMemory, where(L"build"));
        return nullptr;
    }
    if (object->isError()) {
        copyError(object->getError());
        return nullptr;
    }
    object->shift(originX, originY);
    return object;
}

void vxAdditionBuilder::readLook(vxGObjectOLD& object, vxAssign& a, bool outlined) const {
    if (outlined) {
        vxAppearanceScript::readBorder(object, a, settings, vxAppearanceScript::kDefaultBlack);
    } else {
        vxAppearanceScript::readFill(object, a, settings, vxAppearanceScript::kDefaultBlack);
    }
}

void vxAdditionBuilder::readBox(vxAssign& a, float box[4]) const {
    box[0] = a.getFloat(0);
    box[1] = a.getFloat(1);
    box[2] = box[0] + a.getFloat(2);
    box[3] = box[1] + a.getFloat(3);
    a.addToArgumentOffset(4);
}

bool vxAdditionBuilder::makeBoxShape(vxAssign& a, vxPath2DOLD& path, short shape) {
    float box[4];
    readBox(a, box);
    switch (shape) {
        case kOvalShape:
            path.addOval(box[0], box[1], box[2], box[3]);
            break;
        case kRoundRectShape: {
            const float px = a.getFloat(0, kDefaultCornerPercent);
            const float py = a.getFloat(1, px);
            a.addToArgumentOffset(2);
            path.addRoundRect(box[0], box[1], box[2], box[3], (box[2] - box[0]) * px / 100.0f,
                              (box[3] - box[1]) * py / 100.0f);
            break;
        }
        case kArcShape:
        case kSliceShape: {
            const float start = a.getFloat(0, 0.0f);
            const float arc = a.getFloat(1, kFullTurn);
            a.addToArgumentOffset(2);
            if (shape == kArcShape) {
                path.addArc(box[0], box[1], box[2], box[3], start, arc);
            } else {
                const float inner = a.getFloat(0, 0.0f) / 100.0f;
                a.addToArgumentOffset(1);
                path.addSlice(box[0], box[1], box[2], box[3], start, arc, inner);
            }
            break;
        }
        default:
            path.addRect(box[0], box[1], box[2], box[3]);
            break;
    }
    return !path.isError();
}

std::unique_ptr<vxGObjectOLD> vxAdditionBuilder::buildBox(vxAssign& a) {
    const long fn = a.getFunction();
    const bool outlined =
        fn == kAddFrame || fn == kAddEllipse || fn == kAddRoundFrame || fn == kAddArc;
    if (fn == kAddRect || fn == kAddFrame) {
        auto quad = make<vxQuad2D>(settings);
        if (!quad) return checked(nullptr);
        float box[4];
        readBox(a, box);
        quad->set(box[0], box[1], box[2], box[3]);
        readLook(*quad, a, outlined);
        return checked(std::move(quad));
    }
    short shape = kOvalShape;
    if (fn == kAddRoundRect || fn == kAddRoundFrame) shape = kRoundRectShape;
    if (fn == kAddArc) shape = kArcShape;
    if (fn == kAddSlice) shape = kSliceShape;
    auto path = make<vxPath2DOLD>(settings);
    if (!path) return checked(nullptr);
    if (makeBoxShape(a, *path, shape)) readLook(*path, a, outlined);
    return checked(std::move(path));
}

std::unique_ptr<vxGObjectOLD> vxAdditionBuilder::buildPath(vxAssign& a) {
    auto path = make<vxPath2DOLD>(settings);
    if (!path) return checked(nullptr);
    path->addVerbList(a.getFloatArray(0));
    a.addToArgumentOffset(1);
    // Without a fill colour or a border the path is filled in black.
    const bool plain = !vxAppearanceScript::isGiven(a, 0) && !vxAppearanceScript::isGiven(a, 2) &&
                       !vxAppearanceScript::isGiven(a, 3);
    vxAppearanceScript::readFill(
        *path, a, settings,
        plain ? vxAppearanceScript::kDefaultBlack : vxAppearanceScript::kSkipPart) &&
        vxAppearanceScript::readBorder(*path, a, settings, vxAppearanceScript::kSkipPart) &&
        vxAppearanceScript::readShadow(*path, a, settings);
    return checked(std::move(path));
}

std::unique_ptr<vxGObjectOLD> vxAdditionBuilder::buildSymbol(vxAssign& a) {
    auto symbol = make<vxBasicSymbol>(settings);
    if (!symbol) return checked(nullptr);
    symbol->setCenter(a.getFloat(0), a.getFloat(1));
    a.addToArgumentOffset(2);
    symbol->assign(a, settings);
    return checked(std::move(symbol));
}

std::unique_ptr<vxGObjectOLD> vxAdditionBuilder::buildText(vxAssign& a) {
    auto text = make<vxText>(settings);
    if (!text) return checked(nullptr);
    text->assign(a, settings);
    return checked(std::move(text));
}

}  // namespace Velarix
