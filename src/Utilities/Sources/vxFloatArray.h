// A vector of single-precision values.
#pragma once

#include <memory>
#include <vector>

#include "Utilities/Sources/vxValueArray.h"

namespace Velarix {

class vxFloatArray : public vxValueArray<float, vxPrimitive::Kind::FloatArray> {
public:
    explicit vxFloatArray(std::vector<float> v = {});
    std::unique_ptr<vxPrimitive> clone() const override;
};

}  // namespace Velarix
