// An ordered list of graphic objects with a clip rectangle, drawn in the
// order of its drawing indices. A layer owns the objects handed over to it;
// it may also draw objects owned elsewhere, such as the shapes a script
// added to a view, which outlive every layer built from them.
#pragma once

#include <memory>
#include <ostream>
#include <vector>

#include "settings/vxErrorHolder.h"

namespace Velarix {

class vxDevice;
class vxGObjectOLD;
class vxUserSettings;

class vxLayer : public vxErrorHolder {
public:
    vxLayer(long typeID = 0, long subTypeID = 0, const float clipRect[4] = nullptr);
    ~vxLayer() override;

    // Takes the object over; false (with error 5000) when memory runs out.
    bool addShape(std::unique_ptr<vxGObjectOLD> shape);
    // Draws an object that stays with its owner.
    bool addShape(vxGObjectOLD* shape);
    // Begins the layer with a clip shape of its rectangle, so that what it
    // draws is cut to it on every device.
    bool addClipShape(vxUserSettings* owner);
    // Draws a shape a script added; a reset of the clip goes back to the
    // layer's rectangle.
    bool addAddition(vxGObjectOLD* shape);
    long getNumOfShapes() const { return static_cast<long>(shapes.size()); }
    vxGObjectOLD* getShape(long index) const;

    // Sets the device's clip to the layer's rectangle, then draws each
    // shape; the first error of a shape stops the walk.
    void draw(vxDevice& device);

    bool isVisible() const { return visible; }
    void setVisible(bool value) { visible = value; }
    bool isLocked() const { return locked; }
    void setLocked(bool value) { locked = value; }
    long getTypeID() const { return typeID; }
    long getSubTypeID() const { return subTypeID; }
    const float* getClipRect() const { return clipRect; }
    void setClipRect(const float rect[4]);
    // -1 draws as the device is set; 0 and 1 switch fractional metrics off
    // and on for this layer.
    // The layer's shapes are drawn without smoothing.
    bool doUseAliasedShapes() const { return aliasedShapes; }
    void setUseAliasedShapes(bool value) { aliasedShapes = value; }
    short getFractionalMetricsOverride() const { return fractionalMetricsOverride; }
    void setFractionalMetricsOverride(short value) { fractionalMetricsOverride = value; }
    long getObjectIndex() const { return objectIndex; }
    void setObjectIndex(long index) { objectIndex = index; }

    void dump(short depth, std::ostream& out) const;

private:
    bool visible = true;
    bool locked = false;
    long typeID;
    long subTypeID;
    float clipRect[4] = {0.0f, 0.0f, 0.0f, 0.0f};
    short fractionalMetricsOverride = -1;
    bool aliasedShapes = false;
    long objectIndex = -1;
    std::vector<long> drawingIndices;
    std::vector<vxGObjectOLD*> shapes;
    std::vector<std::unique_ptr<vxGObjectOLD>> ownedShapes;
};

}  // namespace Velarix
