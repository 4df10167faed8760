#include "output/vxWriteStream.h"

#include "host/vxLog.h"

namespace Velarix {

vxWriteStream::vxWriteStream(std::wstring name) : vxWriteExternal(std::move(name)) {}

vxWriteStream::~vxWriteStream() = default;

void vxWriteStream::dumpFields(std::ostream& out) const {
    vxWriteExternal::dumpFields(out);
    vxDumpLine(out, "float width,height: ", mWidth, mHeight);
}

}  // namespace Velarix
