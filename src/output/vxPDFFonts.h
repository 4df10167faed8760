// The fonts of one PDF document, chosen for a family and style:
//
// 1. A key of the standard fonts (after the translations of vxPDFFontKey,
//    so Arial is Helvetica) gives that standard font.
// 2. Otherwise the TrueType file the layout measured the family with,
//    when the family (or one of equal metrics) is installed, read for its
//    name, metrics and widths, and embedded whole where its licence
//    allows. The standard fonts are never embedded: every reader has them.
// 3. Otherwise, or when that file can't be read or has no name, Helvetica
//    of the style. The reason goes to the log; it never stops a drawing.
//
// Text beyond Windows-1252 goes into a composite font of the file the
// layout measured it with, embedded whole.
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
class vxPDFFontComposite;

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
    const vxPDFFontABC& fontFor(const std::wstring& family, bool isBold, bool isItalic);
    // The composite font for text of the font beyond Windows-1252: the
    // file the layout measures it with, whatever family that is, embedded.
    // Null when that file can't be read or its licence forbids embedding.
    // Throws std::bad_alloc.
    vxPDFFontComposite* compositeFor(const vxFontOLD& font);
    // Completes the composite fonts at the end of the document.
    void finish(vxPDFResources& resources) const;
    void clear();

    // How many font files the process has read so far.
    static long getNumOfFilesRead();

private:
    std::unique_ptr<vxPDFFontABC> makeFont(const std::wstring& family, bool isBold,
                                           bool isItalic) const;
    std::unique_ptr<vxPDFFontABC> makeTrueType(const std::wstring& family, bool isBold,
                                               bool isItalic) const;

    std::map<std::string, std::unique_ptr<vxPDFFontABC>> fonts;
    std::map<const vxPDFFontABC*, std::string> names;
    // By file, face and simulated bold; null where none can be had.
    std::map<std::string, std::unique_ptr<vxPDFFontComposite>> composites;
};

}  // namespace Velarix
