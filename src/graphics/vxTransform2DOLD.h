// An affine map of the plane:
//   x' = m00 x + m01 y + m02
//   y' = m10 x + m11 y + m12
// `type` records whether the matrix is the identity, a translation or
// general, so that applying an identity does nothing.
#pragma once

#include <vector>

namespace Velarix {

class vxTransform2DOLD {
public:
    enum Type : short { kIdentity = 0, kTranslation = 1, kGeneral = 2 };

    vxTransform2DOLD() = default;

    void setIdentity();
    void translate(float dx, float dy);
    void scale(float sx, float sy);
    // Angles in radians; one of at most 1e-10 leaves the transform as it is.
    void rotate(float angle);
    void rotate(float angle, float x, float y);
    // This transform followed by `next`.
    void concatenate(const vxTransform2DOLD& next);
    void transform(float& x, float& y) const;
    void transform(std::vector<float>& x, std::vector<float>& y) const;

    short getType() const { return type; }
    float m00 = 1.0f, m01 = 0.0f, m02 = 0.0f;
    float m10 = 0.0f, m11 = 1.0f, m12 = 0.0f;

private:
    void updateType();
    short type = kIdentity;
};

}  // namespace Velarix
