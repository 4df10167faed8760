// The root of every graphic object: a retained item with geometry, state
// and appearance that a layer holds and that draws itself through a device.
//
// draw(device) runs two steps:
//   1. drawShadow: when visible and with a shadow, the fill and the outline
//      moved by the shadow's offset, then the attached symbols' shadows;
//   2. drawBody: when visible, the fill, then the outline, then the
//      attached symbols.
// So an object's symbols lie above its border and its shadow below its fill.
//
// Geometry changes set doRecalcBounds; the next read of the bounds takes
// the minimum and maximum of the stored coordinates.
#pragma once

#include <memory>
#include <ostream>
#include <string>

#include "settings/vxErrorHolder.h"

namespace Velarix {

class vxDevice;
class vxGObjectState;
class vxGObjectAppearanceOLD;
class vxSelectionKnobs;
class vxTransform2DOLD;
class vxUserSettings;
class vxStrokeOLD;
class vxPaintOLD;
class vxShadowOLD;

// Type codes of the objects a view holds.
enum vxGObjectType : short {
    kTypeView = 100,
    kTypeLine = 101,
    kTypeLineArray = 102,
    kTypePath = 103,
    kTypeQuad = 104,
    kTypeClip = 105,
    kTypePolygon = 106,
    kTypeAuxiliaryLine = 107,
    kTypeSymbolArray = 111,
    kTypeText = 120,
    kTypeLabel = 121,
    kTypeLabelArray = 122,
    kTypeBasicSymbol = 151,
    kTypeArrowSymbol = 152,
    kTypeTextSymbol = 153,
    kTypeTextureSymbol = 154,
    kTypeChart = 200,
    kTypeTable = 300,
    kTypeCalendar = 400,
};

class vxGObjectOLD : public vxErrorHolder {
public:
    vxGObjectOLD(const wchar_t* name, vxUserSettings* owner);
    ~vxGObjectOLD() override;

    virtual short getType() const = 0;
    virtual bool isDrawable(const vxDevice& device);
    virtual void draw(vxDevice& device);
    virtual void drawShadow(vxDevice& device) {}
    virtual void drawBody(vxDevice& device) {}
    virtual void setUpKnobs(vxSelectionKnobs& knobs);

    virtual void shift(float delta, bool isHorizontal);
    virtual void shift(float dx, float dy);
    virtual void rotate(float angle);
    virtual void rotate(float angle, float x, float y);
    // Mode 1 mirrors x about x, 2 mirrors y about y, 3 both.
    virtual void flip(short mode);
    virtual void flip(short mode, float x, float y);

    float getLeft();
    float getTop();
    float getWidth();
    float getHeight();
    void getSize(float size[2]);
    void getBounds(float bounds[4]);
    void getCenter(float& x, float& y);
    // A width or height is set by scaling about the left or top edge; an
    // extent below 0.0001 stays as it is.
    void setLeft(float left);
    void setTop(float top);
    void setWidth(float width);
    void setHeight(float height);
    bool isInside(float left, float top, float right, float bottom);
    bool isInside(const float rect[4]);
    virtual bool containsPoint(float x, float y);

    vxUserSettings* getOwnerSettings() const { return ownerSettings; }
    vxGObjectState* getState() const { return state.get(); }
    vxGObjectAppearanceOLD* getAppearance() const { return appearance.get(); }
    vxSelectionKnobs* getKnobs() const { return knobs.get(); }
    const vxStrokeOLD* getBorderStroke() const;
    const vxPaintOLD* getBorderPaint() const;
    const vxPaintOLD* getFillPaint() const;
    const vxShadowOLD* getShadow() const;
    bool hasBorder() const;
    bool hasFill() const;
    bool hasShadow() const;
    bool isVisible() const;
    bool isLocked() const;
    bool isSelected() const;
    void setVisible(bool value);
    void setLocked(bool value);
    void setSelected(bool value);
    virtual void setDefaults();

    virtual void dump(short depth, std::ostream& out) const;

protected:
    // Applies a map to every stored coordinate of the object and its
    // attached symbols; the base has no geometry.
    virtual void transformGeometry(const vxTransform2DOLD& transform) {}
    // The minimum and maximum of the stored coordinates.
    virtual void calculateBounds(float bounds[4]) const;
    void invalidateBounds() { doRecalcBounds = true; }
    bool doesRecalcBounds() const { return doRecalcBounds; }
    void applyTransform(const vxTransform2DOLD& transform);
    void scaleExtent(bool horizontal, float extent);
    const float* bounds();

private:
    vxUserSettings* ownerSettings;  // not owned
    std::unique_ptr<vxGObjectState> state;
    std::unique_ptr<vxGObjectAppearanceOLD> appearance;
    std::unique_ptr<vxSelectionKnobs> knobs;
    float cachedBounds[4] = {0.0f, 0.0f, 0.0f, 0.0f};
    bool doRecalcBounds = true;
};

}  // namespace Velarix
