// Glyph widths of the standard fonts Times, Symbol and ZapfDingbats, from
// fonts that share their metrics (scripts/pdf-font-widths.py writes the
// source). Codes 32 to 255 at index code - 32, in 1/1000 of the size; Times
// by Windows-1252 code, Symbol and ZapfDingbats by their own encoding.
// Codes without a glyph have 0.
#pragma once

#include "output/vxPDFTextTables.h"

namespace Velarix {

extern const short kTimesRomanWidths[kNumOfWidths];
extern const short kTimesBoldWidths[kNumOfWidths];
extern const short kTimesItalicWidths[kNumOfWidths];
extern const short kTimesBoldItalicWidths[kNumOfWidths];
extern const short kSymbolWidths[kNumOfWidths];
extern const short kZapfDingbatsWidths[kNumOfWidths];

}  // namespace Velarix
