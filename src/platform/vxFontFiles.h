// The font file behind a family and style, for writers that take the
// font program itself (the PDF device).
//
// The file is the one the font service lays text out with, so that a
// program embedded in a document measures exactly as the layout did; the
// service's fontconfig match and its substitutions decide it. A family
// counts as found when it is installed or when a family of equal metrics
// stands in for it; any other substitute is not the family asked for.
#pragma once

#include <string>

namespace Velarix {

struct vxFontFileMatch {
    std::string file;
    int index = 0;                 // the face within the file
    bool isSyntheticBold = false;  // bold asked for, the file is not bold
    int boldExtra = 0;             // what simulated bold adds to each advance, in font units
};

// False when the family is not to be had: neither it nor a family of the
// same metrics is installed, or no font can be opened at all. `style`
// holds the bits of vxFontService (bold 1, italic 2).
bool vxFindFontFile(const std::wstring& family, short style, vxFontFileMatch& match);
// The file the layout measures the family with, whether it is the family
// or a substitute; false only when no font can be opened at all.
bool vxFindLayoutFontFile(const std::wstring& family, short style, vxFontFileMatch& match);

}  // namespace Velarix
