// A vector of wide strings.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "Utilities/Sources/vxValueArray.h"

namespace Velarix {

class vxStringArray : public vxValueArray<std::wstring, vxPrimitive::Kind::StringArray> {
public:
    explicit vxStringArray(std::vector<std::wstring> v = {});
    std::unique_ptr<vxPrimitive> clone() const override;
};

}  // namespace Velarix
