// Conversion between UTF-8 bytes and the engine's wide strings, which hold
// UTF-16 code units, one per wchar_t.
#pragma once

#include <string>
#include <string_view>

namespace Velarix {

// Decodes UTF-8 into UTF-16 code units. Malformed sequences become U+FFFD,
// so any byte string gives some text. A leading byte-order mark is kept.
std::wstring vxFromUtf8(std::string_view bytes);

// Decodes the bytes of a text file: UTF-8 or UTF-16 after a byte-order
// mark, else UTF-8 when the bytes are valid UTF-8, else Latin-1 (one byte a
// character, which is how the engine writes text files).
std::wstring vxDecodeText(std::string_view bytes);

// Encodes UTF-16 code units as UTF-8; a surrogate pair becomes one code
// point, a lone surrogate becomes U+FFFD.
std::string vxToUtf8(const std::wstring& text);

}  // namespace Velarix
