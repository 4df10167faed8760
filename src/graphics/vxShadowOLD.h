// The shadow under an object's fill and border: the object's shape moved by
// the offsets and painted in the shadow's own paint, grey by default.
//
// In a script a shadow is an offsets argument (x alone, standing for both,
// or x and y, or x, y and the blur radius) and then a paint: a colour and
// a pattern number.
#pragma once

#include <memory>
#include <ostream>

#include "graphics/vxAppearance.h"
#include "graphics/vxPaintOLD.h"

namespace Velarix {

class vxAssign;
class vxUserSettings;

class vxShadowOLD : public vxAppearance {
public:
    vxShadowOLD();
    ~vxShadowOLD() override;

    bool isShown() const { return doShow; }
    void setShow(bool value) { doShow = value; }

    float getXOffset() const { return xOffset; }
    float getYOffset() const { return yOffset; }
    void setOffsets(float x, float y);
    float getBlurRadius() const { return blurRadius; }
    void setBlurRadius(float value);  // negative values become 0

    const vxPaintOLD* getPaint() const { return paint.get(); }
    vxPaintOLD* getPaint() { return paint.get(); }
    // A new paint of the kind with its defaults, in place of the old one.
    bool createPaint(short kind);
    // A copy of `from` of the same kind; null makes the default paint.
    bool setPaint(const vxPaintOLD* from);

    // Whether the script gives any of the shadow's arguments at the offset.
    static bool isGiven(const vxAssign& assign);
    // Offsets, then the paint; void arguments leave their fields. The
    // argument offset moves past the three arguments.
    bool assign(vxAssign& assign, const vxUserSettings* settings);

protected:
    void resetFields() override;
    void copyFields(const vxAppearance& from) override;
    void dumpFields(short depth, std::ostream& out) const override;

private:
    bool makeDefaultPaint();
    void assignOffsets(const vxAssign& assign);

    std::unique_ptr<vxPaintOLD> paint;
    bool doShow = true;
    float xOffset = 3.0f;
    float yOffset = 3.0f;
    float blurRadius = 0.0f;
};

}  // namespace Velarix
