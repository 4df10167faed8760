#include "furniture/vxBackground.h"

#include <algorithm>

#include "drawing/vxLayer.h"
#include "drawing/vxLayerManager.h"
#include "graphics/vxAppearanceScript.h"
#include "graphics/vxClip2D.h"
#include "graphics/vxGObjectAppearanceOLD.h"
#include "graphics/vxPath2DOLD.h"
#include "graphics/vxQuad2D.h"
#include "graphics/vxStrokeOLD.h"
#include "host/vxLog.h"
#include "script/vxAssign.h"
#include "script/vxFunctionIds.h"

namespace Velarix {

vxBackground::vxBackground(vxUserSettings* owner, vxChart* owningChart)
    : vxErrorHolder(L"vxBackground"), ownerSettings(owner), chart(owningChart) {}

vxBackground::~vxBackground() = default;

bool vxBackground::createQuad() {
    if (quad) return true;
    if (!create(quad, L"createBackground", ownerSettings)) return false;
    quad->getAppearance()->borderStrokeOf(vxGObjectAppearanceOLD::kBasicStroke);
    return true;
}

// Background: fill, border and shadow, each part only when its colour or
// widths are given. BackgroundPict: a picture in the plane.
void vxBackground::assign(vxAssign& a) {
    switch (a.getFunction()) {
        case kBackground:
        case kChartBackground:
            if (!createQuad()) return;
            vxAppearanceScript::readFill(*quad, a, ownerSettings, vxAppearanceScript::kSkipPart) &&
                vxAppearanceScript::readBorder(*quad, a, ownerSettings,
                                               vxAppearanceScript::kSkipPart) &&
                vxAppearanceScript::readShadow(*quad, a, ownerSettings);
            if (quad->isError()) copyError(quad->getError());
            return;
        case kBackgroundPict:
        case kChartBackgroundPict:
            if (!create(picture, L"createPicture", ownerSettings)) return;
            picture->assignAddPicture(a);
            if (picture->isError()) copyError(picture->getError());
            return;
        default:
            return;
    }
}

float vxBackground::getBorderWidth() const {
    if (!quad || !quad->hasBorder()) return 0.0f;
    const vxStrokeOLD* stroke = quad->getBorderStroke();
    return stroke ? stroke->getLineWidth() : 0.0f;
}

void vxBackground::setUp(const float r[4]) {
    if (quad) {
        quad->clear();
        quad->addRect(r[0], r[1], r[2], r[3]);
        if (quad->isError()) return copyError(quad->getError());
    }
    if (picture) picture->set(r[0], r[1], r[2], r[3]);
    pictureClip.reset();
    clipReset.reset();
}

void vxBackground::setUp(const float xs[4], const float ys[4], float nx, float ny) {
    if (quad) {
        quad->clear();
        quad->moveTo(xs[0], ys[0]);
        for (int i = 1; i < 4; ++i) quad->lineTo(xs[i], ys[i]);
        quad->close();
        if (quad->isError()) return copyError(quad->getError());
        setUpSlab(xs, ys, nx, ny);
    }
    if (!picture) return;
    float l = xs[0], t = ys[0], r = xs[0], b = ys[0];
    for (int i = 1; i < 4; ++i) {
        l = std::min(l, xs[i]), r = std::max(r, xs[i]);
        t = std::min(t, ys[i]), b = std::max(b, ys[i]);
    }
    picture->set(l, t, r, b);
    setUpPictureClip(xs, ys);
}

bool vxBackground::setUpPictureClip(const float xs[4], const float ys[4]) {
    if (!create(pictureClip, L"createPicture", ownerSettings, short(vxClip2D::kIntersect)) ||
        !create(clipReset, L"createPicture", ownerSettings)) {
        return false;
    }
    vxPath2DOLD* path = pictureClip->createPath();
    if (!path) return false;
    path->moveTo(xs[0], ys[0]);
    for (int i = 1; i < 4; ++i) path->lineTo(xs[i], ys[i]);
    path->close();
    return true;
}

// The slab: the plane moved by the thickness, and the four sides between
// the two, drawn behind the plane in its look.
void vxBackground::setUpSlab(const float xs[4], const float ys[4], float nx, float ny) {
    slab.reset();
    if (thickness <= 0.0f) return;
    if (!create(slab, L"createBackground", ownerSettings)) return;
    slab->getAppearance()->copy(quad->getAppearance());
    const float dx = nx * thickness, dy = ny * thickness;
    slab->moveTo(xs[0] + dx, ys[0] + dy);
    for (int i = 1; i < 4; ++i) slab->lineTo(xs[i] + dx, ys[i] + dy);
    slab->close();
    for (int i = 0; i < 4; ++i) {
        const int j = (i + 1) % 4;
        slab->moveTo(xs[i], ys[i]);
        slab->lineTo(xs[j], ys[j]);
        slab->lineTo(xs[j] + dx, ys[j] + dy);
        slab->lineTo(xs[i] + dx, ys[i] + dy);
        slab->close();
    }
    if (slab->isError()) copyError(slab->getError());
}

void vxBackground::setUpLayer(vxLayerManager* layerMng, const float clip[4]) {
    if (!layerMng || (!quad && !picture)) return;
    std::unique_ptr<vxLayer> layer;
    if (!create(layer, L"setUpLayer", kLayerType, planeIndex, clip)) return;
    if (slab) layer->addShape(slab.get());
    if (quad) layer->addShape(quad.get());
    if (picture && pictureClip) layer->addShape(pictureClip.get());
    if (picture) layer->addShape(picture.get());
    if (picture && pictureClip) layer->addShape(clipReset.get());
    if (layer->isError()) return copyError(layer->getError());
    layerMng->addLayer(std::move(layer));
    if (layerMng->isError()) copyError(layerMng->getError());
}

void vxBackground::dump(short depth, std::ostream& out) const {
    if (depth <= 0) return;
    vxDumpHeader(out, "vxBackground");
    vxDumpLine(out, "short planeIndex:     ", planeIndex);
    vxDumpLine(out, "float thickness:      ", thickness);
    vxDumpLine(out, "float xDepth,yDepth:  ", xDepth, yDepth);
    if (quad) quad->dump(static_cast<short>(depth - 1), out);
    if (picture) picture->dump(static_cast<short>(depth - 1), out);
    vxDumpEnd(out);
}

}  // namespace Velarix
