#include "output/vxWriteExternal.h"

#include "host/vxLog.h"
#include "output/vxWriteClipboardWIN.h"
#include "output/vxWriteFileWIN.h"
#include "output/vxWriteStreamWIN.h"

namespace Velarix {

vxWriteExternal::vxWriteExternal(const wchar_t* name) : vxExternal(name) {}

vxWriteExternal::~vxWriteExternal() = default;

std::unique_ptr<vxWriteExternal> vxWriteExternal::makeTarget(short targetType) {
    switch (targetType) {
        case kTargetClipboard:
            return std::make_unique<vxWriteClipboardWIN>();
        case kTargetFile:
            return std::make_unique<vxWriteFileWIN>();
        case kTargetStream:
            return std::make_unique<vxWriteStreamWIN>();
        default:
            return nullptr;
    }
}

void vxWriteExternal::dumpFields(std::ostream& out) const {
    vxExternal::dumpFields(out);
    vxDumpLine(out, "short resolution:         ", mResolution);
    vxDumpLine(out, "short depth:              ", mDepth);
    vxDumpLine(out, "short compressionMethod:  ", mCompressionMethod);
    vxDumpLine(out, "short compressionQuality: ", mCompressionQuality);
    vxDumpLine(out, "short interlaceStyle:     ", mInterlaceStyle);
}

std::string vxWriteExternal::lowBytes(const std::wstring& text) {
    std::string bytes(text.size(), '\0');
    for (size_t i = 0; i < text.size(); ++i) {
        bytes[i] = static_cast<char>(static_cast<uint32_t>(text[i]) & 0xFFu);
    }
    return bytes;
}

}  // namespace Velarix
