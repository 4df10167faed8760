// Breaking a text into lines no wider than a limit.
#include <string_view>

#include "graphics/vxFontOLD.h"
#include "graphics/vxText.h"
#include "graphics/vxTextLines.h"

namespace Velarix {

namespace {

using Lines = vxTextLines;

// Where the next line starts after a line that overflowed at `overflow`,
// and where the line itself ends, in the segment [start, end) of `text`.
struct Break {
    std::size_t lineEnd;
    std::size_t next;
};

Break breakLine(std::wstring_view text, std::size_t start, std::size_t end, std::size_t overflow) {
    std::size_t blank = overflow + 1;
    while (blank > start && text[blank - 1] != L' ') --blank;
    if (blank > start) {
        // The blank at blank - 1: the line ends at the last non-blank
        // before it, and the blanks after it are skipped.
        std::size_t lineEnd = blank - 1;
        while (lineEnd > start && text[lineEnd - 1] == L' ') --lineEnd;
        if (lineEnd > start) {
            std::size_t next = blank;
            while (next < end && text[next] == L' ') ++next;
            return {lineEnd, next};
        }
    }
    // A word longer than the line: cut before the character that overflowed,
    // but after one character at least.
    const std::size_t cut = overflow > start ? overflow : start + Lines::unitsAt(text, start);
    return {cut, cut};
}

}  // namespace

std::wstring vxText::wrap(const std::wstring& text, float limit) const {
    if (text.empty() || limit < 0.0f) return text;
    if (limit < 0.5f || !font) return std::wstring();

    const bool fromEnd = ellipsisPosition == kEllipsisAtStart;
    const std::wstring source = fromEnd ? Lines::reversed(text) : text;
    const std::wstring_view all(source);
    std::wstring result;
    result.reserve(source.size() + 8);
    std::size_t start = 0;
    while (true) {
        std::size_t end = all.find(kLineBreak, start);
        if (end == std::wstring_view::npos) end = all.size();
        const std::wstring_view segment = all.substr(start, end - start);
        const std::size_t fitting = font->getFittingLength(segment, limit);

        if (fitting == segment.size()) {
            if (end == all.size()) {
                result += Lines::trimmedEnd(segment);
                break;
            }
            // A written line break: the line stands as it is.
            result += segment;
            result += kLineBreak;
            start = end + 1;
            continue;
        }

        const Break at = breakLine(all, start, end, start + fitting);
        result += all.substr(start, at.lineEnd - start);
        start = at.next;
        if (start == end && end < all.size()) {
            // The break falls on a written one, which takes its place.
            result += kLineBreak;
            start = end + 1;
        } else if (start < all.size()) {
            result += kLineBreak;
        } else {
            break;
        }
    }
    return fromEnd ? Lines::reversed(result) : result;
}

}  // namespace Velarix
