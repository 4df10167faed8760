// The texts of legend entries that the script leaves without one: a word
// in the language of the user settings and the entry's number, counted
// from 1, as "Series 3" or "Reihe 3".
#pragma once

#include <string>

namespace Velarix {

// The word of a language: 2 German; 1 and every other number English.
const wchar_t* vxLegendDefaultWord(short languageID);
std::wstring vxLegendDefaultText(short languageID, long number);

}  // namespace Velarix
