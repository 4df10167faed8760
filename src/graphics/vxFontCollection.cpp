#include "graphics/vxFontCollection.h"

#include "host/vxLog.h"

namespace Velarix {

namespace {

std::wstring lowerCase(const std::wstring& text) {
    std::wstring result = text;
    for (wchar_t& c : result) {
        if (c >= L'A' && c <= L'Z') c = static_cast<wchar_t>(c - L'A' + L'a');
    }
    return result;
}

bool cutEnding(std::wstring& text, const std::wstring& ending) {
    if (text.size() < ending.size() ||
        text.compare(text.size() - ending.size(), ending.size(), ending) != 0) {
        return false;
    }
    text.erase(text.size() - ending.size());
    return true;
}

bool isOutlineFile(const std::string& file) {
    if (file.size() < 4) return false;
    std::string ending = file.substr(file.size() - 4);
    for (char& c : ending) {
        if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
    }
    return ending == ".ttf" || ending == ".otf";
}

}  // namespace

const vxFontCollection& vxFontCollection::get() {
    static const vxFontCollection collection(vxFontService::get().listFontFiles());
    return collection;
}

vxFontCollection::vxFontCollection(const std::vector<vxFontFileInfo>& fonts) {
    for (const vxFontFileInfo& font : fonts) {
        if (font.index != 0 || !isOutlineFile(font.file)) continue;
        files.emplace(makeKey(font.fullName), font.file);
        families.emplace(lowerCase(font.family), font.family);
    }
}

std::wstring vxFontCollection::makeKey(const std::wstring& displayName) {
    std::wstring key = lowerCase(displayName);
    const bool isItalic = cutEnding(key, L" oblique") || cutEnding(key, L" italic");
    const bool isBold = cutEnding(key, L" bold");
    if (isBold) key += L'B';
    if (isItalic) key += L'I';
    return key;
}

std::wstring vxFontCollection::makeKey(const std::wstring& family, bool isBold, bool isItalic) {
    std::wstring key = lowerCase(family);
    if (isBold) key += L'B';
    if (isItalic) key += L'I';
    return key;
}

std::string vxFontCollection::getFile(const std::wstring& key) const {
    const auto found = files.find(key);
    return found != files.end() ? found->second : std::string();
}

void vxFontCollection::dump(short depth, std::ostream& out) const {
    if (depth <= 0) return;
    vxDumpHeader(out, "vxFontCollection");
    vxDumpLine(out, "List of installed fonts files:", std::string());
    for (const auto& [key, file] : files) {
        vxDumpLine(out, "", vxNarrow(key) + " -> " + file);
    }
    vxDumpLine(out, "List of installed font families:", std::string());
    for (const auto& [key, family] : families) {
        vxDumpLine(out, "", vxNarrow(key) + " -> " + vxNarrow(family));
    }
    vxDumpEnd(out);
}

}  // namespace Velarix
