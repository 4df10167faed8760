#include "platform/vxFileSystem.h"

#include <filesystem>
#include <system_error>

#include "platform/vxTextCodec.h"

namespace Velarix {

namespace {

constexpr wchar_t kSeparator = L'/';

bool isForbiddenChar(wchar_t c) {
    if (c < 0x20) return true;
    switch (c) {
        case L'<':
        case L'>':
        case L'"':
        case L'|':
        case L'?':
        case L'*':
            return true;
        default:
            return false;
    }
}

std::filesystem::path toSystemPath(const std::wstring& path) {
    return std::filesystem::path(vxToUtf8(path));
}

}  // namespace

bool vxHasForbiddenFileNameChars(const std::wstring& path) {
    for (wchar_t c : path) {
        if (isForbiddenChar(c)) return true;
    }
    return false;
}

bool vxIsAbsolutePath(const std::wstring& path) {
    return !path.empty() && path[0] == kSeparator;
}

std::wstring vxJoinPath(const std::wstring& folder, const std::wstring& relative) {
    if (folder.empty() || vxIsAbsolutePath(relative)) return relative;
    if (folder.back() == kSeparator) return folder + relative;
    return folder + kSeparator + relative;
}

std::wstring vxFolderOf(const std::wstring& path) {
    const size_t last = path.rfind(kSeparator);
    if (last == std::wstring::npos) return L"";
    if (last == 0) return std::wstring(1, kSeparator);
    return path.substr(0, last);
}

bool vxFileExists(const std::wstring& path) {
    if (path.empty()) return false;
    std::error_code ec;
    return std::filesystem::is_regular_file(toSystemPath(path), ec);
}

bool vxFolderExists(const std::wstring& path) {
    const std::wstring folder = vxFolderOf(path);
    if (folder.empty()) return true;
    std::error_code ec;
    return std::filesystem::is_directory(toSystemPath(folder), ec);
}

}  // namespace Velarix
