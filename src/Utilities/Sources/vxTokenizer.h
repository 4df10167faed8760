// Splits a text into tokens at any of a set of delimiter characters. Runs
// of delimiters, and delimiters at either end, give no empty tokens. With
// quote protection a quote character opens a run that the next quote
// character closes; delimiters inside it don't split, and the quotes stay
// in the token. A quote left open runs to the end of the text.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace Velarix {

class vxTokenizer {
public:
    // Reads the caller's text, which must outlive the tokenizer.
    vxTokenizer(const std::wstring& text, const std::wstring& delimiters,
                bool protectQuotes = false);
    // Keeps a text of its own.
    vxTokenizer(std::wstring&& text, const std::wstring& delimiters, bool protectQuotes = false);
    vxTokenizer(const vxTokenizer&) = delete;
    vxTokenizer& operator=(const vxTokenizer&) = delete;

    // The next token, or false at the end of the text.
    bool next(std::wstring& token);
    // The index in the text where the token last returned starts.
    std::size_t position() const { return start; }

    // The straight double quote and the typographic single and double ones.
    static bool isQuote(wchar_t c);

private:
    bool isDelimiter(wchar_t c) const;
    std::size_t endOfToken(std::size_t from) const;

    std::wstring ownText;
    std::wstring_view text;
    std::wstring delimiters;
    bool protectQuotes;
    std::size_t cursor = 0;
    std::size_t start = 0;
};

}  // namespace Velarix
