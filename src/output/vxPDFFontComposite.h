// A composite font of a PDF document for text beyond Windows-1252 (Greek,
// Cyrillic, CJK): a Type 0 font with the Identity-H encoding over a
// TrueType CID font whose CIDs are the glyph numbers of the embedded
// program, with a ToUnicode map so that readers give the text back.
//
// A text is written as the glyph numbers of its characters, two bytes
// each. The widths and the Unicode map cover the glyphs the document used,
// so the objects are complete only at the end of the document: `use`
// reserves the font's name and `finish` writes the objects.
#pragma once

#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "output/vxPDFResources.h"

namespace Velarix {

class vxTrueTypeFile;

class vxPDFFontComposite {
public:
    // `program` is the whole file deflated; `boldExtra` widens each advance
    // as simulated bold does in the layout.
    vxPDFFontComposite(std::shared_ptr<const vxTrueTypeFile> file,
                       std::shared_ptr<const std::vector<uint8_t>> program, int boldExtra);

    const std::string& getBaseFontName() const { return mBaseFontName; }
    // The glyph numbers of a text in hexadecimal, four digits each, and its
    // width at the size; each glyph is remembered for the widths and the
    // Unicode map. Control characters are left out: they take no room.
    std::string encode(std::wstring_view text, float size, float& width);

    // The font's resource name, reserved on the first call. Throws
    // std::bad_alloc, as `finish` does.
    std::string use(vxPDFResources& resources);
    // Writes the font's objects with the glyphs used so far.
    void finish(vxPDFResources& resources) const;

private:
    double widthOf(uint16_t glyph) const;
    std::string placeholder() const;
    std::string glyphWidths() const;
    std::string descriptor(const std::string& fontFile) const;
    std::vector<uint8_t> toUnicode() const;

    std::shared_ptr<const vxTrueTypeFile> mFile;
    std::shared_ptr<const std::vector<uint8_t>> mProgram;
    std::string mBaseFontName;
    std::string mName;
    int mBoldExtra = 0;
    double mFontScalingFactor = 1.0;
    // The characters of each glyph used, as the text gave them (UTF-16).
    std::map<uint16_t, std::u16string> mGlyphs;
};

}  // namespace Velarix
