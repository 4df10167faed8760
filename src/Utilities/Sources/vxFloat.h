// A single-precision value.
#pragma once

#include <memory>

#include "Utilities/Sources/vxScalar.h"

namespace Velarix {

class vxFloat : public vxScalar<float, vxPrimitive::Kind::Float> {
public:
    explicit vxFloat(float v = 0);
    std::unique_ptr<vxPrimitive> clone() const override;
};

}  // namespace Velarix
