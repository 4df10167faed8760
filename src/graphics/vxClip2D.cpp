#include "graphics/vxClip2D.h"

#include <algorithm>

#include "graphics/vxGObjectState.h"
#include "graphics/vxPath2DOLD.h"
#include "graphics/vxQuad2D.h"
#include "graphics/vxTransform2DOLD.h"
#include "host/vxLog.h"
#include "output/vxDevice.h"

namespace Velarix {

vxClip2D::vxClip2D(vxUserSettings* owner, short mode)
    : vxGObject2D(L"vxClip2D", owner), mode(mode) {}

vxClip2D::~vxClip2D() = default;

bool vxClip2D::setRect(float l, float t, float r, float b) {
    path.reset();
    invalidateBounds();
    if (!create(rect, L"createRect", getOwnerSettings())) return false;
    rect->set(l, t, r, b);
    return true;
}

vxPath2DOLD* vxClip2D::createPath() {
    rect.reset();
    invalidateBounds();
    create(path, L"createPath", getOwnerSettings());
    return path.get();
}

bool vxClip2D::setPath(const vxPath2DOLD& from) {
    if (&from == path.get()) return true;
    vxPath2DOLD* made = createPath();
    if (!made) return false;
    made->copy(&from);
    if (made->isError()) copyError(made->getError());
    return !isError();
}

void vxClip2D::removeShape() {
    rect.reset();
    path.reset();
    invalidateBounds();
}

void vxClip2D::draw(vxDevice& device) {
    float b[4];
    getBounds(b);
    if (rect && rect->isAxisAligned()) {
        device.setClipRegion(b[0], b[1], b[2] - b[0], b[3] - b[1], mode);
    } else if (rect) {
        const vxVerbs verbs = {vxPath2DOLD::kMove, vxPath2DOLD::kLine, vxPath2DOLD::kLine,
                               vxPath2DOLD::kLine, vxPath2DOLD::kClose};
        device.setClipRegion(verbs, rect->getX(), rect->getY(), b, mode);
    } else if (path) {
        device.setClipRegion(path->getVerbs(), path->getX(), path->getY(), b, mode);
    } else {
        device.resetClipRegion();
    }
}

void vxClip2D::transformGeometry(const vxTransform2DOLD& t) {
    vxGObject2D::transformGeometry(t);
    if (rect) rect->transform(t);
    if (path) path->transform(t);
}

void vxClip2D::calculateBounds(float b[4]) const {
    if (rect) {
        rect->getBounds(b);
    } else if (path) {
        path->getBounds(b);
    } else {
        std::fill(b, b + 4, 0.0f);
    }
}

void vxClip2D::copy(const vxClip2D* from) {
    setDefaults();
    if (!from || from == this) return;
    getState()->copy(from->getState());
    mode = from->mode;
    if (from->rect) {
        if (setRect(0.0f, 0.0f, 0.0f, 0.0f)) rect->copy(from->rect.get());
    } else if (from->path) {
        setPath(*from->path);
    }
}

void vxClip2D::setDefaults() {
    vxGObject2D::setDefaults();
    removeShape();
    mode = kReplace;
}

void vxClip2D::dump(short depth, std::ostream& out) const {
    if (depth <= 0) return;
    vxGObject2D::dump(depth, out);
    vxDumpHeader(out, "vxClip2D");
    vxDumpLine(out, "short mode: ", mode);
    if (rect) rect->dump(static_cast<short>(depth - 1), out);
    if (path) path->dump(static_cast<short>(depth - 1), out);
    vxDumpEnd(out);
}

}  // namespace Velarix
