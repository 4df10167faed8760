// The tables of PDF text: the glyph widths of the standard Helvetica
// fonts by Windows-1252 code, and the Unicode characters that code page
// keeps at 128 to 159.
#pragma once

#include <cstdint>

namespace Velarix {

// Codes 32 to 255 at index code - 32, in 1/1000 of the font size, from
// Adobe's published font metrics; the oblique styles share the widths of
// their upright ones. Codes without a glyph have 0.
constexpr int kNumOfWidths = 224;
extern const short kHelveticaWidths[kNumOfWidths];
extern const short kHelveticaBoldWidths[kNumOfWidths];

// The character of each code from 128 to 159 at index code - 128; 0 for
// the codes that hold none.
extern const char16_t kWinAnsiHighCharacters[32];

}  // namespace Velarix
