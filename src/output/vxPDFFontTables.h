// The standard fonts every PDF reader has: their keys, base font names,
// font boxes and, where held, their glyph widths by Windows-1252 code.
#pragma once

#include "output/vxPDFTextTables.h"

namespace Velarix {

struct vxPDFStandardFont {
    const char* key;
    const char* name;
    short box[4];
    // Codes 32 to 255 at index code - 32, in 1/1000 of the size.
    const short* widths;
    // Whether the font's own encoding stands (Symbol, ZapfDingbats) instead
    // of Windows-1252.
    bool isSymbolic;
};

constexpr int kNumOfStandardFonts = 14;
extern const vxPDFStandardFont kStandardFonts[kNumOfStandardFonts];

// The standard font of a key; null for any other key.
const vxPDFStandardFont* vxFindStandardFont(const std::string& key);

}  // namespace Velarix
