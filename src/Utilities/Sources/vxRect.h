// A rectangle as a corner and a size, four floats.
#pragma once

#include <memory>
#include <ostream>

#include "Utilities/Sources/vxPrimitive.h"

namespace Velarix {

class vxRect : public vxPrimitive {
public:
    vxRect(float l = 0.0f, float t = 0.0f, float w = 0.0f, float h = 0.0f);

    Kind getKind() const override { return Kind::Rect; }
    std::unique_ptr<vxPrimitive> clone() const override;
    void dump(short depth, std::ostream& out) const override;

    void set(float l, float t, float w, float h);
    float getRight() const { return left + width; }
    float getBottom() const { return top + height; }

    float left = 0.0f;
    float top = 0.0f;
    float width = 0.0f;
    float height = 0.0f;
};

}  // namespace Velarix
