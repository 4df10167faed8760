// Text in a PDF file: characters as Windows-1252 codes written in
// hexadecimal.
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

// Where an underline lies below the baseline and how thick it is, in
// 1/1000 of the font size, where the font doesn't say.
constexpr float kUnderlinePosition = -100.0f;
constexpr float kUnderlineThickness = 50.0f;

std::vector<uint8_t> codesOf(std::wstring_view text);
// Whether every character of the text has a code of its own.
bool isWinAnsi(std::wstring_view text);
// Two upper-case hexadecimal digits for each code, without brackets.
std::string hexOf(const std::vector<uint8_t>& codes);
std::string hexOf(std::wstring_view text);

}  // namespace vxPDFText

}  // namespace Velarix
