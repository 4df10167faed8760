// The connector between an anchored item and its label: a line from point 1
// to point 2, with an optional elbow point before point 1 and after point 2,
// drawn as one open polyline in its own stroke width and colour (black, 1
// wide, by default).
#pragma once

#include <ostream>
#include <vector>

#include "graphics/vxGObject2D.h"

namespace Velarix {

class vxColorOLD;

class vxAuxiliaryLine2D : public vxGObject2D {
public:
    explicit vxAuxiliaryLine2D(vxUserSettings* owner = nullptr);
    ~vxAuxiliaryLine2D() override;

    short getType() const override { return kTypeAuxiliaryLine; }

    void set(float x1, float y1, float x2, float y2);
    // The elbow point drawn before point 1.
    void setP1Extension(float px, float py);
    // The elbow point drawn after point 2.
    void setP2Extension(float px, float py);
    void removeExtensions();
    float getX1() const { return x1; }
    float getY1() const { return y1; }
    float getX2() const { return x2; }
    float getY2() const { return y2; }
    bool getHasP1Extension() const { return hasP1Extension; }
    bool getHasP2Extension() const { return hasP2Extension; }

    // The points in drawing order.
    void getPoints(std::vector<float>& xs, std::vector<float>& ys) const;

    void setLineWidth(float width);
    void setColor(const vxColorOLD& color);
    void setColor(short red, short green, short blue, short alpha = 255);

    // The shadow of the line in another object's shadow, for an owner whose
    // line has none of its own.
    void drawShadow(vxDevice& device, const vxShadowOLD& shadow);
    using vxGObject2D::drawShadow;

    void copy(const vxAuxiliaryLine2D* from);
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
    void setDefaultLook();

    float x1 = 0.0f, y1 = 0.0f;
    float x2 = 0.0f, y2 = 0.0f;
    bool hasP1Extension = false;
    bool hasP2Extension = false;
    float x1Extension = 0.0f, y1Extension = 0.0f;
    float x2Extension = 0.0f, y2Extension = 0.0f;
};

}  // namespace Velarix
