// The Add... functions of lines, point lists, clips and pictures.
#include <cmath>
#include <new>
#include <vector>

#include "drawing/vxAdditionBuilder.h"
#include "graphics/vxAppearanceScript.h"
#include "graphics/vxArrowSymbol.h"
#include "graphics/vxClip2D.h"
#include "graphics/vxLine2DOLD.h"
#include "graphics/vxPath2DOLD.h"
#include "graphics/vxPolygon2D.h"
#include "graphics/vxQuad2D.h"
#include "script/vxAssign.h"
#include "script/vxFunctionIds.h"

namespace Velarix {

namespace {

// Arrow ends of AddArrow, combinable.
constexpr short kArrowAtBegin = 1;
constexpr short kArrowAtEnd = 2;

template <class T>
std::unique_ptr<T> make(vxUserSettings* settings) {
    try {
        return std::make_unique<T>(settings);
    } catch (const std::bad_alloc&) {
        return nullptr;
    }
}

// Point lists: layout 1 gives all x, then all y; any other code, or none,
// pairs them.
void splitPoints(short layout, const std::vector<float>& values, std::vector<float>& xs,
                 std::vector<float>& ys) {
    const bool isSeparate = layout == vxPath2DOLD::kLayoutSeparate;
    const size_t n = values.size() / 2;
    xs.resize(n);
    ys.resize(n);
    for (size_t i = 0; i < n; ++i) {
        xs[i] = isSeparate ? values[i] : values[2 * i];
        ys[i] = isSeparate ? values[n + i] : values[2 * i + 1];
    }
}

}  // namespace

std::unique_ptr<vxGObjectOLD> vxAdditionBuilder::buildLine(vxAssign& a) {
    auto line = make<vxLine2DOLD>(settings);
    if (!line) return checked(nullptr);
    line->set(a.getFloat(0), a.getFloat(1), a.getFloat(2), a.getFloat(3));
    a.addToArgumentOffset(4);
    if (a.getFunction() == kAddArrow) {
        // The head shares the line's widths and colour, which it reads
        // together with its own numbers; the line then reads its part.
        const short ends = a.getShort(3, kArrowAtEnd);
        const long offset = a.getArgumentOffset();
        vxArrowSymbol arrow(settings);
        if (!arrow.assign(a, settings)) {
            copyError(arrow.getError());
            return nullptr;
        }
        a.addToArgumentOffset(offset - a.getArgumentOffset());
        if (ends & kArrowAtBegin) line->addArrow(false, arrow);
        if (ends & kArrowAtEnd) line->addArrow(true, arrow);
    }
    vxAppearanceScript::readBorder(*line, a, settings, vxAppearanceScript::kDefaultBlack);
    return checked(std::move(line));
}

std::unique_ptr<vxGObjectOLD> vxAdditionBuilder::buildPointList(vxAssign& a) {
    const long fn = a.getFunction();
    const bool filled = fn == kAddPolygon || fn == kAddSmoothPolygon;
    std::unique_ptr<vxGObjectOLD> object;
    if (fn == kAddPolygon || fn == kAddPolyline) {
        auto polygon = make<vxPolygon2D>(settings);
        if (!polygon) return checked(nullptr);
        std::vector<float> xs, ys;
        splitPoints(a.getShort(0, vxPath2DOLD::kLayoutInterleaved), a.getFloatArray(1), xs, ys);
        a.addToArgumentOffset(2);
        polygon->set(xs, ys);
        polygon->setDoClose(filled);
        object = std::move(polygon);
    } else {
        auto path = make<vxPath2DOLD>(settings);
        if (!path) return checked(nullptr);
        path->assignPath(filled ? vxPath2DOLD::kAssignSmoothClosed : vxPath2DOLD::kAssignSmoothOpen,
                         a);
        object = std::move(path);
    }
    if (!object->isError()) readLook(*object, a, !filled);
    return checked(std::move(object));
}

std::unique_ptr<vxGObjectOLD> vxAdditionBuilder::buildClip(vxAssign& a) {
    auto clip = make<vxClip2D>(settings);
    if (!clip) return checked(nullptr);
    const long fn = a.getFunction();
    if (fn == kAddClipReset) return checked(std::move(clip));
    clip->setMode(a.getShort(0, vxClip2D::kIntersect));
    a.addToArgumentOffset(1);
    if (fn == kAddClipRect) {
        float box[4];
        readBox(a, box);
        clip->setRect(box[0], box[1], box[2], box[3]);
        return checked(std::move(clip));
    }
    auto path = make<vxPath2DOLD>(settings);
    if (!path) return checked(nullptr);
    switch (fn) {
        case kAddClipPath:
            path->addVerbList(a.getFloatArray(0));
            a.addToArgumentOffset(1);
            break;
        case kAddClipPolygon:
            path->assignPath(vxPath2DOLD::kAssignPolygon, a);
            break;
        case kAddClipSmoothPolygon:
            path->assignPath(vxPath2DOLD::kAssignSmoothClosed, a);
            break;
        case kAddClipRoundRect:
            makeBoxShape(a, *path, 3);
            break;
        case kAddClipSlice:
            makeBoxShape(a, *path, 5);
            break;
        default:
            makeBoxShape(a, *path, 2);
            break;
    }
    if (path->isError()) {
        copyError(path->getError());
        return nullptr;
    }
    clip->setPath(*path);
    return checked(std::move(clip));
}

std::unique_ptr<vxGObjectOLD> vxAdditionBuilder::buildPicture(vxAssign& a) {
    auto quad = make<vxQuad2D>(settings);
    if (!quad) return checked(nullptr);
    float box[4];
    readBox(a, box);
    quad->set(box[0], box[1], box[2], box[3]);
    quad->assignAddPicture(a);
    return checked(std::move(quad));
}

}  // namespace Velarix
