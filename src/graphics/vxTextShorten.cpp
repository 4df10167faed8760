// Shortening a wrapped text to the lines that fit into a height, with an
// ellipsis where text was left out.
//
// Where a shortened line takes text from several lines, their line breaks
// count as blanks. Blanks next to an ellipsis are dropped.
#include <algorithm>
#include <cmath>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "graphics/vxFontOLD.h"
#include "graphics/vxText.h"
#include "graphics/vxTextLines.h"

namespace Velarix {

namespace {

using Lines = vxTextLines;

class Shortener {
public:
    Shortener(const vxFontOLD& font, std::vector<std::wstring> lines, std::size_t allowed,
              float width)
        : font(font),
          lines(std::move(lines)),
          allowed(allowed),
          width(width),
          ellipsis(font.getWidth(vxText::kEllipsis)) {}

    std::wstring withoutEllipsis() const {
        return linesBefore(allowed - 1) + head(lines[allowed - 1], width);
    }

    // The last allowed - 1 lines stand; the rest ends in the first line.
    std::wstring atStart() const {
        const std::size_t kept = allowed - 1;
        const std::wstring rest = Lines::join(lines, 0, lines.size() - kept, L' ');
        std::wstring result = fits(rest) ? rest : mark() + tailAfterMark(rest, width);
        if (kept > 0) {
            result += vxText::kLineBreak;
            result += Lines::join(lines, lines.size() - kept, lines.size(), vxText::kLineBreak);
        }
        return result;
    }

    // The first allowed - 1 lines stand; the rest ends in the last line.
    std::wstring atEnd() const {
        const std::size_t kept = allowed - 1;
        const std::wstring rest = Lines::join(lines, kept, lines.size(), L' ');
        return linesBefore(kept) + (fits(rest) ? rest : headBeforeMark(rest, width) + mark());
    }

    std::wstring inMiddle() const {
        if (allowed == 1) {
            const std::wstring all = Lines::join(lines, 0, lines.size(), L' ');
            return fits(all) ? all : middleOf(all);
        }
        const std::size_t n = lines.size();
        if (allowed == 2) {
            const std::wstring rest = Lines::join(lines, 1, n, L' ');
            return headBeforeMark(lines[0], width) + mark() + vxText::kLineBreak + mark() +
                   tailAfterMark(rest, width);
        }
        const std::size_t top = allowed / 2;
        const std::size_t bottom = (allowed - 1) / 2;
        std::wstring result = linesBefore(top) + middleOf(lines[top], lines[n - 1 - bottom]);
        if (bottom > 0) {
            result += vxText::kLineBreak;
            result += Lines::join(lines, n - bottom, n, vxText::kLineBreak);
        }
        return result;
    }

private:
    static std::wstring mark() { return std::wstring(1, vxText::kEllipsis); }

    bool fits(std::wstring_view text) const { return font.getWidth(text) <= width; }

    std::wstring head(std::wstring_view text, float limit) const {
        return std::wstring(text.substr(0, font.getFittingLength(text, limit)));
    }

    std::wstring tail(std::wstring_view text, float limit) const {
        return std::wstring(text.substr(text.size() - font.getFittingTailLength(text, limit)));
    }

    // The start of a text that leaves room for an ellipsis after it.
    std::wstring headBeforeMark(std::wstring_view text, float limit) const {
        return std::wstring(Lines::trimmedEnd(head(text, limit - ellipsis)));
    }

    std::wstring tailAfterMark(std::wstring_view text, float limit) const {
        return std::wstring(Lines::trimmedStart(tail(text, limit - ellipsis)));
    }

    // The first `count` lines, each with its line break.
    std::wstring linesBefore(std::size_t count) const {
        std::wstring result;
        for (std::size_t i = 0; i < count; ++i) {
            result += lines[i];
            result += vxText::kLineBreak;
        }
        return result;
    }

    // The start of `first` up to half the width, with half the ellipsis on
    // that side, then the ellipsis and the end of `last` in what is left.
    std::wstring middleOf(std::wstring_view first, std::wstring_view last) const {
        return around(head(first, (width - ellipsis) / 2.0f), last);
    }

    // The same within one text: the end is taken after the start.
    std::wstring middleOf(std::wstring_view text) const {
        const std::wstring start = head(text, (width - ellipsis) / 2.0f);
        return around(start, text.substr(start.size()));
    }

    std::wstring around(const std::wstring& start, std::wstring_view last) const {
        const float left = width - font.getWidth(start) - ellipsis;
        return std::wstring(Lines::trimmedEnd(start)) + mark() +
               std::wstring(Lines::trimmedStart(tail(last, left)));
    }

    const vxFontOLD& font;
    const std::vector<std::wstring> lines;
    const std::size_t allowed;
    const float width;
    const float ellipsis;
};

}  // namespace

std::wstring vxText::shorten(const std::wstring& text, float limitWidth, float limitHeight,
                             float oneLineHeight, float leading, short position) const {
    if (text.empty() || limitHeight < 0.0f) return text;
    if (limitHeight < 0.5f) return std::wstring();
    if (!font || oneLineHeight + leading <= 0.0f) return text;

    const double lineCount =
        std::floor((limitHeight + leading) / (oneLineHeight + leading) + 1e-10);
    std::vector<std::wstring> lines = Lines::split(text);
    const std::size_t n = lines.size();
    float dimensions[2] = {0.0f, 0.0f};
    font->getDimensions(text, dimensions);
    const float width = limitWidth >= 0.0f ? limitWidth : dimensions[0];
    if (n > 1 && lineCount >= static_cast<double>(n)) return text;
    if (n == 1 && dimensions[0] <= width) return text;

    const std::size_t allowed = n == 1 ? 1 : static_cast<std::size_t>(std::max(1.0, lineCount));
    const Shortener shortener(*font, std::move(lines), allowed, width);
    switch (position) {
        case kNoEllipsis:
            return shortener.withoutEllipsis();
        case kEllipsisAtStart:
            return shortener.atStart();
        case kEllipsisInMiddle:
            return shortener.inMiddle();
        default:
            return shortener.atEnd();
    }
}

}  // namespace Velarix
