// The common base of the small value classes: one typed value or one vector
// of values, used as the arguments of script functions and as working data.
#pragma once

#include <cstddef>
#include <memory>
#include <ostream>
#include <string>

#include "settings/vxErrorHolder.h"

namespace Velarix {

class vxPrimitive : public vxErrorHolder {
public:
    enum class Kind {
        Short,
        Long,
        Float,
        Double,
        String,
        ShortArray,
        LongArray,
        FloatArray,
        DoubleArray,
        StringArray,
        Rect,
        DateTime
    };

    ~vxPrimitive() override;

    virtual Kind getKind() const = 0;
    virtual std::unique_ptr<vxPrimitive> clone() const = 0;
    virtual void dump(short depth, std::ostream& out) const = 0;
    // The number of elements of an array; 0 for a single value.
    virtual std::size_t getSize() const { return 0; }

protected:
    explicit vxPrimitive(const wchar_t* name);
};

}  // namespace Velarix
