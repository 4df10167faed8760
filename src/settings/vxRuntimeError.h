// The code of the operating system or platform service behind an error.
#pragma once

#include <ostream>

namespace Velarix {

class vxRuntimeError {
public:
    vxRuntimeError() = default;
    virtual ~vxRuntimeError() = default;

    void clear() { errorCode = 0; }
    void copy(const vxRuntimeError* from) { errorCode = from ? from->errorCode : 0; }
    void dump(short depth, std::ostream& out) const;

    short errorCode = 0;
};

}  // namespace Velarix
