// A short integer value.
#pragma once

#include <memory>

#include "Utilities/Sources/vxScalar.h"

namespace Velarix {

class vxShort : public vxScalar<short, vxPrimitive::Kind::Short> {
public:
    explicit vxShort(short v = 0);
    std::unique_ptr<vxPrimitive> clone() const override;
};

}  // namespace Velarix
