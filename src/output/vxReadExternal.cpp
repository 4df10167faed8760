#include "output/vxReadExternal.h"

#include "host/vxLog.h"
#include "output/vxBitmap.h"
#include "output/vxReadClipboardWIN.h"
#include "output/vxReadFileWIN.h"
#include "output/vxReadResourceWIN.h"
#include "output/vxReadURL.h"

namespace Velarix {

vxReadExternal::vxReadExternal(const wchar_t* name) : vxExternal(name) {}

vxReadExternal::~vxReadExternal() = default;

std::unique_ptr<vxReadExternal> vxReadExternal::makeSource(short kind) {
    switch (kind) {
        case kSourceClipboard:
            return std::make_unique<vxReadClipboardWIN>();
        case kSourceResource:
            return std::make_unique<vxReadResourceWIN>();
        case kSourceFile:
            return std::make_unique<vxReadFileWIN>();
        case kSourceURL:
            return std::make_unique<vxReadURL>();
        default:
            return nullptr;
    }
}

bool vxReadExternal::setName(const std::wstring& name) {
    clearError();
    info = name;
    width = height = 0;
    return true;
}

bool vxReadExternal::read(vxBitmap& bitmap) const {
    bitmap.clear();
    return true;
}

void vxReadExternal::setSize(long w, long h) {
    width = w;
    height = h;
}

void vxReadExternal::copyTo(vxReadExternal& to) const {
    to.width = width;
    to.height = height;
    to.info = info;
    to.setFormat(getFormat());
    if (isError()) to.copyError(getError());
}

void vxReadExternal::dumpFields(std::ostream& out) const {
    vxExternal::dumpFields(out);
    vxDumpLine(out, "long width:   ", width);
    vxDumpLine(out, "long height:  ", height);
    vxDumpLine(out, "wstring info: ", info);
}

}  // namespace Velarix
