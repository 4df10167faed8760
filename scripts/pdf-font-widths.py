#!/usr/bin/python3
"""Writes the glyph width tables of the standard PDF fonts that are not
held by hand (Times in four styles, Symbol, ZapfDingbats) as C++ source.

The URW base35 fonts are metric-compatible with those fonts; their advance
widths are read with fontTools for codes 32 to 255:
  - a text font by the character of Windows-1252 at the code;
  - a symbolic font by its own encoding: the code itself where the font's
    Windows cmap is keyed by code, else its CFF encoding.
A code without a glyph has 0.

Usage: scripts/pdf-font-widths.py [FONT_DIR] > src/output/vxPDFFontWidthTables.cpp
"""
import sys

from fontTools.ttLib import TTFont

FONT_DIR = sys.argv[1] if len(sys.argv) > 1 else "/usr/share/fonts/opentype/urw-base35"

# Table name, file, whether the font keeps its own encoding.
TABLES = [
    ("kTimesRomanWidths", "NimbusRoman-Regular.otf", False),
    ("kTimesBoldWidths", "NimbusRoman-Bold.otf", False),
    ("kTimesItalicWidths", "NimbusRoman-Italic.otf", False),
    ("kTimesBoldItalicWidths", "NimbusRoman-BoldItalic.otf", False),
    ("kSymbolWidths", "StandardSymbolsPS.otf", True),
    ("kZapfDingbatsWidths", "D050000L.otf", True),
]

# Characters of the code page that a font may lack under their own number
# but holds under the glyph of the plain character.
STAND_INS = {0xA0: "space", 0xAD: "hyphen"}


def character_of(code):
    if code == 127:
        return None
    try:
        return ord(bytes([code]).decode("cp1252"))
    except UnicodeDecodeError:
        return None


def glyph_of_text_code(font, code):
    character = character_of(code)
    if character is None:
        return None
    glyph = font.getBestCmap().get(character)
    return glyph if glyph is not None else STAND_INS.get(character)


def glyph_of_symbol_code(font, code):
    encoding = font["CFF "].cff.topDictIndex[0].Encoding
    if not isinstance(encoding, str) and encoding[code] != ".notdef":
        return encoding[code]
    return font["cmap"].getcmap(3, 1).cmap.get(code)


def widths_of(path, is_symbolic):
    font = TTFont(path)
    scale = 1000.0 / font["head"].unitsPerEm
    metrics = font["hmtx"].metrics
    widths = []
    for code in range(32, 256):
        glyph = (glyph_of_symbol_code if is_symbolic else glyph_of_text_code)(font, code)
        widths.append(round(metrics[glyph][0] * scale) if glyph in metrics else 0)
    return widths


def table_text(name, source, widths):
    lines = [f"// {source}", f"const short {name}[kNumOfWidths] = {{"]
    for row in range(0, len(widths), 16):
        lines.append("    " + ", ".join(str(w) for w in widths[row:row + 16]) + ",")
    lines.append("};")
    return "\n".join(lines)


def main():
    print("// Written by scripts/pdf-font-widths.py from the URW base35 fonts, which")
    print("// share the metrics of the standard fonts. Do not edit by hand.")
    print('#include "output/vxPDFFontWidthTables.h"')
    print()
    print("// clang-format off")
    print("namespace Velarix {")
    for name, source, is_symbolic in TABLES:
        print()
        print(table_text(name, source, widths_of(f"{FONT_DIR}/{source}", is_symbolic)))
    print()
    print("}  // namespace Velarix")
    print("// clang-format on")


if __name__ == "__main__":
    main()
