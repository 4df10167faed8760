// Text in a PDF file: characters as Windows-1252 codes written in
// hexadecimal, and the standard Helvetica fonts that show them.
//
// A character becomes its code of that code page: the characters the code
// page keeps at 128 to 159 by its table, every other character by its own
// number. A number above 255 takes two codes, high byte first, so that the
// hexadecimal string stays whole.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace Velarix {

namespace vxPDFText {

// Where the underline lies below the baseline and how thick it is, in
// 1/1000 of the font size.
constexpr float kUnderlinePosition = -100.0f;
constexpr float kUnderlineThickness = 50.0f;

std::vector<uint8_t> codesOf(std::wstring_view text);
// Two upper-case hexadecimal digits for each code, without brackets.
std::string hexOf(const std::vector<uint8_t>& codes);
std::string hexOf(std::wstring_view text);

// The base font of the style: Helvetica, Helvetica-Bold, Helvetica-Oblique
// or Helvetica-BoldOblique.
const char* baseFontName(bool isBold, bool isItalic);
// The width of the codes at the font size: the sum of the glyph widths
// times size * 0.001.
float widthOf(const std::vector<uint8_t>& codes, bool isBold, float size);

}  // namespace vxPDFText

}  // namespace Velarix
