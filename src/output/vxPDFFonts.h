// The fonts of one PDF document, chosen for a family and style:
//
// 1. A key of the standard fonts (after the translations of vxPDFFontKey,
//    so Arial is Helvetica) gives that standard font.
// 2. Otherwise the TrueType file the layout measured the family with,
//    when the family (or one of equal metrics) is installed, read for its
//    name, metrics and widths.
// 3. Otherwise, or when that file can't be read or has no name, Helvetica
//    of the style. The reason goes to the log; it never stops a drawing.
//
// A font file is read once per process and its program deflated once, on
// the first document that embeds it; every document after that shares
// both. Each font is added to the document's resources on its first use.
#pragma once

#include <map>
#include <memory>
#include <string>

#include "output/vxPDFFontABC.h"

namespace Velarix {

class vxFontOLD;

class vxPDFFonts {
public:
    struct Use {
        const vxPDFFontABC* font = nullptr;
        std::string name;  // the font's resource name, "/F1"
    };

    vxPDFFonts();
    ~vxPDFFonts();

    // The font of a text's font and its resource name. Throws
    // std::bad_alloc.
    Use use(const vxFontOLD& font, vxPDFResources& resources);
    // The font for a family and style, without adding it to a document.
    const vxPDFFontABC& fontFor(const std::wstring& family, bool isBold, bool isItalic,
                                bool isEmbeddingIntended);
    void clear();

private:
    std::unique_ptr<vxPDFFontABC> makeFont(const std::wstring& family, bool isBold, bool isItalic,
                                           bool isEmbeddingIntended) const;
    std::unique_ptr<vxPDFFontABC> makeTrueType(const std::wstring& family, bool isBold,
                                               bool isItalic, bool isEmbeddingIntended) const;

    std::map<std::string, std::unique_ptr<vxPDFFontABC>> fonts;
    std::map<const vxPDFFontABC*, std::string> names;
};

}  // namespace Velarix
