// Splits a text into tokens at any of a set of delimiter characters. Runs
// of delimiters, and delimiters at either end, give no empty tokens. With
// quote protection a quote character opens a run that the next quote
// character closes; delimiters inside it don't split, and the quotes stay
// in the token. A quote left open runs to the end of the text.
#pragma once

#include <cstddef>
#include <string>

namespace Velarix {

class vxTokenizer {
public:
    vxTokenizer(const std::wstring& text, const std::wstring& delimiters,
                bool protectQuotes = false);

    // The next token, or false at the end of the text.
    bool next(std::wstring& token);
    // The index in the text where the token last returned starts.
    std::size_t position() const { return start; }

    // The straight double quote and the typographic single and double ones.
    static bool isQuote(wchar_t c);

private:
    bool isDelimiter(wchar_t c) const;
    std::size_t endOfToken(std::size_t from) const;

    std::wstring text;
    std::wstring delimiters;
    bool protectQuotes;
    std::size_t cursor = 0;
    std::size_t start = 0;
};

}  // namespace Velarix
