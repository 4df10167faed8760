#include "drawing/vxLayerManager.h"

#include <algorithm>

#include "drawing/vxLayer.h"
#include "host/vxLog.h"
#include "output/vxDevice.h"

namespace Velarix {

vxLayerManager::vxLayerManager() : vxErrorHolder(L"vxLayerManager") {}

vxLayerManager::~vxLayerManager() = default;

void vxLayerManager::addLayer(std::unique_ptr<vxLayer> layer) {
    if (!layer || layer->getNumOfShapes() == 0) return;
    layer->setObjectIndex(currentObjectIndex);
    try {
        layers.push_back(std::move(layer));
        drawingIndices.push_back(static_cast<long>(layers.size()) - 1);
    } catch (const std::bad_alloc&) {
        setError(vxErrRuntime::kOutOfMemory, where(L"addLayer"));
    }
}

void vxLayerManager::clear() {
    layers.clear();
    drawingIndices.clear();
    currentObjectIndex = -1;
}

vxLayer* vxLayerManager::getLayer(long index) const {
    if (index < 0 || index >= getNumOfLayers()) return nullptr;
    return layers[static_cast<size_t>(index)].get();
}

long vxLayerManager::findLayer(long objectIndex, long typeID, long subTypeID) const {
    for (long i = 0; i < getNumOfLayers(); ++i) {
        const vxLayer& layer = *layers[static_cast<size_t>(i)];
        if (layer.getObjectIndex() == objectIndex && layer.getTypeID() == typeID &&
            layer.getSubTypeID() == subTypeID) {
            return i;
        }
    }
    return -1;
}

void vxLayerManager::setCurrentClipRect(const float rect[4]) {
    for (int i = 0; i < 4; ++i) currentClipRect[i] = rect[i];
}

bool vxLayerManager::isPosition(long position) const {
    return position >= 0 && position < static_cast<long>(drawingIndices.size());
}

void vxLayerManager::moveUp(long position) {
    if (isPosition(position) && isPosition(position + 1)) {
        std::swap(drawingIndices[position], drawingIndices[position + 1]);
    }
}

void vxLayerManager::moveDown(long position) {
    if (isPosition(position) && position > 0) {
        std::swap(drawingIndices[position], drawingIndices[position - 1]);
    }
}

void vxLayerManager::moveToEnd(long position) {
    if (!isPosition(position)) return;
    auto it = drawingIndices.begin() + position;
    std::rotate(it, it + 1, drawingIndices.end());
}

void vxLayerManager::moveToFront(long position) {
    if (!isPosition(position)) return;
    auto it = drawingIndices.begin() + position;
    std::rotate(drawingIndices.begin(), it, it + 1);
}

void vxLayerManager::moveBehind(long position, long other) {
    if (!isPosition(position) || !isPosition(other) || position == other) return;
    const long entry = drawingIndices[position];
    drawingIndices.erase(drawingIndices.begin() + position);
    if (other > position) --other;
    drawingIndices.insert(drawingIndices.begin() + other + 1, entry);
}

void vxLayerManager::removeEntry(long position) {
    if (isPosition(position)) drawingIndices.erase(drawingIndices.begin() + position);
}

void vxLayerManager::drawLayer(vxLayer& layer, vxDevice& device) {
    const short override = layer.getFractionalMetricsOverride();
    if (override == -1) return layer.draw(device);
    const bool saved = device.getUseFractionalMetrics();
    device.setUseFractionalMetrics(override != 0);
    layer.draw(device);
    device.setUseFractionalMetrics(saved);
}

void vxLayerManager::write(vxDevice& device) {
    for (long index : drawingIndices) {
        vxLayer* layer = getLayer(index);
        if (!layer) continue;
        drawLayer(*layer, device);
        if (layer->isError()) return copyError(layer->getError());
    }
}

void vxLayerManager::dump(short depth, std::ostream& out) const {
    if (depth <= 0) return;
    vxDumpHeader(out, "vxLayerManager");
    vxDumpLine(out, "long  currentObjectIndex:     ", currentObjectIndex);
    vxDumpLine(out, "float currentClipRect[4]:     ", currentClipRect, 4);
    vxDumpLine(out, "vector<long> drawingIndices:  ", drawingIndices);
    vxDumpLine(out, "Num of layers: ", getNumOfLayers());
    for (const auto& layer : layers) layer->dump(static_cast<short>(depth - 1), out);
    vxDumpEnd(out);
}

}  // namespace Velarix
