// Four corners, usually a rectangle: filled under the even-odd rule and
// outlined closed, with its corners as the device's point list.
#pragma once

#include <memory>
#include <ostream>
#include <vector>

#include "graphics/vxGObject2D.h"

namespace Velarix {

class vxAssign;
class vxImage;

class vxQuad2D : public vxGObject2D {
public:
    explicit vxQuad2D(vxUserSettings* owner = nullptr);
    vxQuad2D(vxUserSettings* owner, float l, float t, float r, float b);
    ~vxQuad2D() override;

    short getType() const override { return kTypeQuad; }

    // The rectangle left, top, right, bottom: corners clockwise from the
    // top left.
    void set(float l, float t, float r, float b);
    void set(const float xs[4], const float ys[4]);
    // Corner 0 to 3; other indexes do nothing.
    void setCorner(int index, float px, float py);
    const std::vector<float>& getX() const { return x; }
    const std::vector<float>& getY() const { return y; }
    // Whether the sides run along the axes (within 0.001).
    bool isAxisAligned() const;

    // Applies a map to the corners.
    void transform(const vxTransform2DOLD& transform);

    // A picture placed in the quad's bounds, drawn over its fill: the
    // script form of AddPicture and BackgroundPict from the source kind on.
    bool assignAddPicture(vxAssign& assign);
    vxImage* getPicture() const { return picture.get(); }
    void drawBody(vxDevice& device) override;

    void copy(const vxQuad2D* from);
    void setDefaults() override;
    void dump(short depth, std::ostream& out) const override;

protected:
    void transformGeometry(const vxTransform2DOLD& transform) override;
    void calculateBounds(float bounds[4]) const override;
    void fillShape(vxDevice& device, const vxPaintOLD& paint, const float bounds[4]) override;
    void fillShape(vxDevice& device, const vxShadowOLD& shadow, const float bounds[4]) override;
    void outlineShape(vxDevice& device, const vxStrokeOLD& stroke, const vxPaintOLD& paint,
                      const float bounds[4]) override;
    void outlineShape(vxDevice& device, const vxStrokeOLD& stroke, const vxShadowOLD& shadow,
                      const float bounds[4]) override;

private:
    static constexpr short kWindingRule = 1;

    std::vector<float> x = std::vector<float>(4, 0.0f);
    std::vector<float> y = std::vector<float>(4, 0.0f);
    std::unique_ptr<vxImage> picture;
};

}  // namespace Velarix
