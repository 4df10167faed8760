#include "output/vxWriteFile.h"

#include "host/vxLog.h"
#include "platform/vxFileSystem.h"

namespace Velarix {

namespace {

// Position of the dot that starts the extension, or npos when the last name
// part of the path has none.
size_t extensionStart(const std::wstring& path) {
    const size_t dot = path.rfind(L'.');
    if (dot == std::wstring::npos) return dot;
    const size_t separator = path.rfind(L'/');
    if (separator != std::wstring::npos && separator > dot) return std::wstring::npos;
    return dot;
}

}  // namespace

vxWriteFile::vxWriteFile(const wchar_t* name) : vxWriteExternal(name) {}

vxWriteFile::~vxWriteFile() = default;

void vxWriteFile::prepareFileName() {
    if (isNameTooLong(kMaxPathLength, L"prepareFileName", 1)) return;
    if (!vxFileExists(mFileName)) return;
    switch (mFileFlag) {
        case kFileFlagCounter:
            mFileName = findUniqueFileName(mFileName);
            break;
        case kFileFlagReplace:
            break;
        default:
            setError(vxErrFile::kExists, where(L"prepareFileName", 2), mFileName);
    }
}

std::wstring vxWriteFile::findUniqueFileName(const std::wstring& path) {
    const size_t dot = extensionStart(path);
    const std::wstring stem = path.substr(0, dot);
    const std::wstring extension = dot == std::wstring::npos ? L"" : path.substr(dot);
    for (long counter = 1; counter <= kMaxFileCounter; ++counter) {
        std::wstring candidate = stem + L"-" + std::to_wstring(counter) + extension;
        if (candidate.size() >= kMaxUniquePathLength) {
            setError(vxErrFile::kName, where(L"findUniqueFileName", 1), path);
            return L"";
        }
        if (!vxFileExists(candidate)) return candidate;
    }
    setError(vxErrFile::kExists, where(L"findUniqueFileName", 2), path);
    return L"";
}

void vxWriteFile::dumpFields(std::ostream& out) const {
    vxWriteExternal::dumpFields(out);
    vxDumpLine(out, "short   fileFlag: ", mFileFlag);
    vxDumpLine(out, "wstring fileName: ", mFileName);
}

bool vxWriteFile::isNameTooLong(size_t limit, const wchar_t* method, int number) {
    if (mFileName.size() < limit) return false;
    setError(vxErrFile::kName, where(method, number), mFileName);
    return true;
}

}  // namespace Velarix
