// All layers of a picture, and the walk that draws them into a device in
// the order of the drawing indices.
#pragma once

#include <memory>
#include <ostream>
#include <vector>

#include "settings/vxErrorHolder.h"

namespace Velarix {

class vxDevice;
class vxLayer;

class vxLayerManager : public vxErrorHolder {
public:
    vxLayerManager();
    ~vxLayerManager() override;

    // Takes the layer over and draws it after the others; a layer without
    // shapes is dropped. The layer is told the current object index.
    void addLayer(std::unique_ptr<vxLayer> layer);
    void clear();
    long getNumOfLayers() const { return static_cast<long>(layers.size()); }
    vxLayer* getLayer(long index) const;
    // The first layer of an object index, type and subtype; -1 for none.
    long findLayer(long objectIndex, long typeID, long subTypeID) const;

    void setCurrentObjectIndex(long index) { currentObjectIndex = index; }
    long getCurrentObjectIndex() const { return currentObjectIndex; }
    void setCurrentClipRect(const float rect[4]);
    const float* getCurrentClipRect() const { return currentClipRect; }
    const std::vector<long>& getDrawingIndices() const { return drawingIndices; }

    // Reordering of the drawing indices; positions out of range do nothing.
    void moveUp(long position);
    void moveDown(long position);
    void moveToEnd(long position);
    void moveToFront(long position);
    void moveBehind(long position, long other);
    void removeEntry(long position);

    // Draws every layer into the device; the first error stops the walk.
    void write(vxDevice& device);

    void dump(short depth, std::ostream& out) const;

private:
    bool isPosition(long position) const;
    void drawLayer(vxLayer& layer, vxDevice& device);

    long currentObjectIndex = -1;
    float currentClipRect[4] = {0.0f, 0.0f, 0.0f, 0.0f};
    std::vector<long> drawingIndices;
    std::vector<std::unique_ptr<vxLayer>> layers;
};

}  // namespace Velarix
