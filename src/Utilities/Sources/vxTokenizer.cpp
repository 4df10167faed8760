#include "Utilities/Sources/vxTokenizer.h"

namespace Velarix {

vxTokenizer::vxTokenizer(const std::wstring& text, const std::wstring& delimiters,
                         bool protectQuotes)
    : text(text), delimiters(delimiters), protectQuotes(protectQuotes) {}

vxTokenizer::vxTokenizer(std::wstring&& text, const std::wstring& delimiters, bool protectQuotes)
    : ownText(std::move(text)),
      text(ownText),
      delimiters(delimiters),
      protectQuotes(protectQuotes) {}

bool vxTokenizer::next(std::wstring& token) {
    while (cursor < text.size() && isDelimiter(text[cursor])) ++cursor;
    if (cursor >= text.size()) return false;
    start = cursor;
    cursor = endOfToken(start);
    token.assign(text.substr(start, cursor - start));
    return true;
}

bool vxTokenizer::isQuote(wchar_t c) {
    switch (c) {
        case L'"':
        case L'\u2018':
        case L'\u2019':
        case L'\u201C':
        case L'\u201D':
        case L'\u201E':
            return true;
        default:
            return false;
    }
}

bool vxTokenizer::isDelimiter(wchar_t c) const {
    return delimiters.find(c) != std::wstring::npos;
}

std::size_t vxTokenizer::endOfToken(std::size_t from) const {
    bool quoted = false;
    std::size_t i = from;
    for (; i < text.size(); ++i) {
        wchar_t c = text[i];
        if (protectQuotes && isQuote(c)) {
            quoted = !quoted;
        } else if (!quoted && isDelimiter(c)) {
            break;
        }
    }
    return i;
}

}  // namespace Velarix
