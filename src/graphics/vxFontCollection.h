// The installed font files by font key, for the fonts a PDF embeds.
//
// A key is a font's display name in lower case with "B" appended for bold
// and "I" for italic, in this order: "DejaVu Sans Bold Oblique" is
// "dejavu sansBI". Only TrueType and OpenType files (".ttf", ".otf") whose
// first face is the font are taken; where two files give one key, the
// first in the order of their paths stands.
//
// The platform's list is read once, on the first get(), and kept for the
// life of the process.
#pragma once

#include <map>
#include <ostream>
#include <string>
#include <vector>

#include "platform/vxFontService.h"

namespace Velarix {

class vxFontCollection {
public:
    static const vxFontCollection& get();

    explicit vxFontCollection(const std::vector<vxFontFileInfo>& fonts);

    // The key of a display name: lower case; an ending " oblique" or
    // " italic" is italic and is cut off, and then an ending " bold" is bold.
    static std::wstring makeKey(const std::wstring& displayName);
    // The key of a family with style bits.
    static std::wstring makeKey(const std::wstring& family, bool isBold, bool isItalic);

    bool hasFont(const std::wstring& key) const { return files.count(key) != 0; }
    // The file of a key; empty when there is none.
    std::string getFile(const std::wstring& key) const;
    const std::map<std::wstring, std::string>& getFiles() const { return files; }
    // The families by their lower-case names.
    const std::map<std::wstring, std::wstring>& getFamilies() const { return families; }

    void dump(short depth, std::ostream& out) const;

private:
    std::map<std::wstring, std::string> files;
    std::map<std::wstring, std::wstring> families;
};

}  // namespace Velarix
