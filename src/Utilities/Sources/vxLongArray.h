// A vector of long integers.
#pragma once

#include <memory>
#include <vector>

#include "Utilities/Sources/vxValueArray.h"

namespace Velarix {

class vxLongArray : public vxValueArray<long, vxPrimitive::Kind::LongArray> {
public:
    explicit vxLongArray(std::vector<long> v = {});
    std::unique_ptr<vxPrimitive> clone() const override;
};

}  // namespace Velarix
