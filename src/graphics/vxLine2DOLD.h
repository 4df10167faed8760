// A straight line between two points. It has no fill; its border stroke and
// paint draw it.
#pragma once

#include <ostream>

#include "graphics/vxGObject2D.h"

namespace Velarix {

class vxArrowSymbol;

class vxLine2DOLD : public vxGObject2D {
public:
    explicit vxLine2DOLD(vxUserSettings* owner = nullptr);
    vxLine2DOLD(vxUserSettings* owner, float x1, float y1, float x2, float y2);
    ~vxLine2DOLD() override;

    short getType() const override { return kTypeLine; }

    void set(float x1, float y1, float x2, float y2);
    // A copy of `arrow` as an attached symbol with its tip on the second
    // point (atEnd) or on the first, pointing away from the line.
    bool addArrow(bool atEnd, const vxArrowSymbol& arrow);
    float getX1() const { return x1; }
    float getY1() const { return y1; }
    float getX2() const { return x2; }
    float getY2() const { return y2; }

    // Resets and takes the points, state and look of `from`; null only
    // resets.
    void copy(const vxLine2DOLD* from);
    void setDefaults() override;
    void dump(short depth, std::ostream& out) const override;

protected:
    void transformGeometry(const vxTransform2DOLD& transform) override;
    void calculateBounds(float bounds[4]) const override;
    void outlineShape(vxDevice& device, const vxStrokeOLD& stroke, const vxPaintOLD& paint,
                      const float bounds[4]) override;
    void outlineShape(vxDevice& device, const vxStrokeOLD& stroke, const vxShadowOLD& shadow,
                      const float bounds[4]) override;

private:
    float x1 = 0.0f, y1 = 0.0f;
    float x2 = 0.0f, y2 = 0.0f;
};

}  // namespace Velarix
