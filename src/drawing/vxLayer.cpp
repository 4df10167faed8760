#include "drawing/vxLayer.h"

#include "graphics/vxClip2D.h"
#include "graphics/vxGObjectOLD.h"
#include "host/vxLog.h"
#include "output/vxDevice.h"

namespace Velarix {

vxLayer::vxLayer(long type, long subType, const float rect[4])
    : vxErrorHolder(L"vxLayer"), typeID(type), subTypeID(subType) {
    if (rect) setClipRect(rect);
}

vxLayer::~vxLayer() = default;

void vxLayer::setClipRect(const float rect[4]) {
    for (int i = 0; i < 4; ++i) clipRect[i] = rect[i];
}

bool vxLayer::addShape(std::unique_ptr<vxGObjectOLD> shape) {
    if (!shape) return false;
    vxGObjectOLD* kept = shape.get();
    try {
        ownedShapes.push_back(std::move(shape));
    } catch (const std::bad_alloc&) {
        setError(vxErrRuntime::kOutOfMemory, where(L"addShape"));
        return false;
    }
    return addShape(kept);
}

bool vxLayer::addShape(vxGObjectOLD* shape) {
    if (!shape) return false;
    try {
        shapes.push_back(shape);
        drawingIndices.push_back(static_cast<long>(shapes.size()) - 1);
    } catch (const std::bad_alloc&) {
        if (shapes.size() > drawingIndices.size()) shapes.pop_back();
        setError(vxErrRuntime::kOutOfMemory, where(L"addShape"));
        return false;
    }
    return true;
}

bool vxLayer::addClipShape(vxUserSettings* owner) {
    std::unique_ptr<vxClip2D> shape;
    if (!create(shape, L"addClipShape", owner)) return false;
    shape->setRect(clipRect[0], clipRect[1], clipRect[2], clipRect[3]);
    return addShape(std::move(shape));
}

bool vxLayer::addAddition(vxGObjectOLD* shape) {
    if (auto* reset = dynamic_cast<vxClip2D*>(shape); reset && !reset->hasShape()) {
        reset->setRect(clipRect[0], clipRect[1], clipRect[2], clipRect[3]);
    }
    return addShape(shape);
}

vxGObjectOLD* vxLayer::getShape(long index) const {
    if (index < 0 || index >= getNumOfShapes()) return nullptr;
    return shapes[static_cast<size_t>(index)];
}

void vxLayer::draw(vxDevice& device) {
    if (!visible) return;
    device.setClipRegion(clipRect);
    if (aliasedShapes) device.useAliasedShapes(true);
    for (long index : drawingIndices) {
        vxGObjectOLD* shape = getShape(index);
        if (!shape) continue;
        shape->draw(device);
        if (shape->isError()) {
            copyError(shape->getError());
            break;
        }
    }
    if (aliasedShapes) device.useAliasedShapes(false);
}

void vxLayer::dump(short depth, std::ostream& out) const {
    if (depth <= 0) return;
    vxDumpHeader(out, "vxLayer");
    vxDumpLine(out, "bool  isVisible:    ", visible);
    vxDumpLine(out, "bool  isLocked:     ", locked);
    vxDumpLine(out, "long  typeID:       ", typeID);
    vxDumpLine(out, "long  subTypeID:    ", subTypeID);
    vxDumpLine(out, "float clipRect[4]:  ", clipRect, 4);
    vxDumpLine(out, "vector<long> drawingIndices:  ", drawingIndices);
    vxDumpLine(out, "Num of shapes: ", getNumOfShapes());
    for (const vxGObjectOLD* shape : shapes) shape->dump(static_cast<short>(depth - 1), out);
    vxDumpEnd(out);
}

}  // namespace Velarix
