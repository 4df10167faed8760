// A vector of short integers.
#pragma once

#include <memory>
#include <vector>

#include "Utilities/Sources/vxValueArray.h"

namespace Velarix {

class vxShortArray : public vxValueArray<short, vxPrimitive::Kind::ShortArray> {
public:
    explicit vxShortArray(std::vector<short> v = {});
    std::unique_ptr<vxPrimitive> clone() const override;
};

}  // namespace Velarix
