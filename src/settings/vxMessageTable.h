// The texts of the error codes, in English and German.
#pragma once

namespace Velarix {

constexpr short kLanguageEnglish = 1;
constexpr short kLanguageGerman = 2;

// The description of a code in the language (2 German, anything else English).
// Codes without a text of their own read "Runtime error." / "Runtime Fehler.".
const wchar_t* vxErrorDescription(short code, short languageID);

// True when the code has an entry of its own in the description table.
bool vxHasErrorDescription(short code);

// The English text used by vxExceptionRuntime.
const char* vxExceptionText(long code);

}  // namespace Velarix
