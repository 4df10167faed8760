// One typed value with the label its dump writes. The named value classes
// derive from it and add the construction and the copy.
#pragma once

#include <ostream>
#include <string>
#include <utility>

#include "Utilities/Sources/vxPrimitive.h"
#include "host/vxLog.h"

namespace Velarix {

template <class T, vxPrimitive::Kind K>
class vxScalar : public vxPrimitive {
public:
    Kind getKind() const override { return K; }
    const T& get() const { return value; }
    void set(const T& v) { value = v; }

    void dump(short depth, std::ostream& out) const override {
        vxDumpHeader(out, vxNarrow(className));
        vxDumpLine(out, label, value);
        vxDumpEnd(out);
    }

    T value{};

protected:
    vxScalar(const wchar_t* name, const char* dumpLabel, T v)
        : vxPrimitive(name), value(std::move(v)), label(dumpLabel) {}

private:
    const char* label;
};

}  // namespace Velarix
