#include "output/vxWriteStream.h"

#include "host/vxLog.h"

namespace Velarix {

vxWriteStream::vxWriteStream(const wchar_t* name) : vxWriteExternal(name) {}

vxWriteStream::~vxWriteStream() = default;

void vxWriteStream::dumpFields(std::ostream& out) const {
    vxWriteExternal::dumpFields(out);
    vxDumpLine(out, "float width,height: ", mWidth, mHeight);
}

}  // namespace Velarix
