// The tokens of one data text: runs of characters between blanks. Leading
// and repeated blanks give no token.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace Velarix {

class vxDataTokens {
public:
    explicit vxDataTokens(std::wstring_view text, wchar_t delimiter = L' ')
        : text(text), delimiter(delimiter) {}

    // The next token, or false at the end of the text.
    bool next(std::wstring_view& token) {
        while (cursor < text.size() && text[cursor] == delimiter) ++cursor;
        if (cursor >= text.size()) return false;
        const std::size_t start = cursor;
        while (cursor < text.size() && text[cursor] != delimiter) ++cursor;
        token = text.substr(start, cursor - start);
        return true;
    }

    // The token at a position counted from 0, or false when the text has
    // fewer tokens.
    static bool nth(std::wstring_view text, long n, std::wstring_view& token,
                    wchar_t delimiter = L' ') {
        vxDataTokens tokens(text, delimiter);
        for (long i = 0; tokens.next(token); ++i) {
            if (i == n) return true;
        }
        return false;
    }

private:
    std::wstring_view text;
    wchar_t delimiter;
    std::size_t cursor = 0;
};

}  // namespace Velarix
