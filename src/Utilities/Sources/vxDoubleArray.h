// A vector of double-precision values.
#pragma once

#include <memory>
#include <vector>

#include "Utilities/Sources/vxValueArray.h"

namespace Velarix {

class vxDoubleArray : public vxValueArray<double, vxPrimitive::Kind::DoubleArray> {
public:
    explicit vxDoubleArray(std::vector<double> v = {});
    std::unique_ptr<vxPrimitive> clone() const override;
};

}  // namespace Velarix
