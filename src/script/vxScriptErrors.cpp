// Errors of the reader, located in the script text.
#include <algorithm>

#include "script/vxScript.h"
#include "script/vxScriptChars.h"
#include "settings/vxErrorSettings.h"

namespace Velarix {

using namespace vxScriptChars;

void vxScript::setParsingError(short code, long line, const std::wstring& name, long argIndex,
                               const std::wstring& scriptPart, const std::wstring& addlInfo) {
    vxErrorHolder::setParsingError(code, line, name, argIndex < 0 ? -1 : argIndex + 1, scriptPart,
                                   addlInfo);
}

void vxScript::raise(short code, long begin, long end) {
    const long index = (phase == Phase::kArguments || phase == Phase::kAssign) ? argIndex : -1;
    raise(code, begin, end, index);
}

void vxScript::raise(short code, long begin, long end, long argumentIndex) {
    const bool inCall = phase != Phase::kTopLevel && phase != Phase::kName;
    const std::wstring part = errScriptPart(begin, end);
    // The line end appended to the text is no line of the user's.
    const long lastLine =
        static_cast<long>(std::count(srcString.begin(), srcString.end(), kLineEnd));
    setParsingError(code, std::min(lineOfError, std::max(1L, lastLine)),
                    inCall ? fnName : std::wstring(), inCall ? argumentIndex : -1, part, L"");
}

void vxScript::raiseWithoutLocation(short code) {
    vxErrorHolder::setParsingError(code, -1, L"", -1, L"", L"");
}

long vxScript::argumentBegin(long argument) const {
    size_t at = static_cast<size_t>(argument) * 2;
    return at < charPositions.size() ? charPositions[at] : closePos;
}

long vxScript::argumentEnd(long argument) const {
    size_t at = static_cast<size_t>(argument) * 2 + 1;
    long end = at < charPositions.size() ? charPositions[at] : closePos;
    long begin = argumentBegin(argument);
    while (end > begin && (isBlank(srcString[static_cast<size_t>(end) - 1]) ||
                           isLineEnd(srcString[static_cast<size_t>(end) - 1]))) {
        --end;
    }
    return end;
}

void vxScript::raiseAtArgument(short code, long argumentIndex, long element) {
    long begin = argumentBegin(argumentIndex);
    long end = argumentEnd(argumentIndex);
    if (element >= 0) elementSpan(argumentIndex, element, begin, end);
    lineOfError = lineNumber;
    raise(code, begin, end, argumentIndex);
}

// Elements of an array argument are separated by runs of blanks and line
// ends; comments are passed over, and a quoted run belongs to its element.
void vxScript::elementSpan(long argumentIndex, long element, long& begin, long& end) const {
    const long last = argumentEnd(argumentIndex);
    long count = -1;
    long start = 0;
    bool inElement = false;
    wchar_t quote = 0;
    long i = argumentBegin(argumentIndex);
    while (i < last) {
        const wchar_t c = srcString[static_cast<size_t>(i)];
        const wchar_t next = srcString[static_cast<size_t>(i) + 1];
        if (quote) {
            if (closesString(quote, c)) quote = 0;
        } else if (c == L'/' && next == L'*') {
            size_t close = srcString.find(L"*/", static_cast<size_t>(i) + 2);
            i = close == std::wstring::npos ? last : static_cast<long>(close) + 2;
            continue;
        } else if (c == L'/' && next == L'/') {
            while (i < last && !isLineEnd(srcString[static_cast<size_t>(i)])) ++i;
            continue;
        } else if (isBlank(c) || isLineEnd(c)) {
            if (inElement && count == element) break;
            inElement = false;
        } else {
            if (!inElement) {
                inElement = true;
                start = i;
                ++count;
            }
            if (isOpeningQuote(c)) quote = c;
        }
        ++i;
    }
    if (inElement && count == element) {
        begin = start;
        end = i;
    }
}

namespace {

// Characters of the script kept on each side of the marked text, and at
// either end of a marked text too long to show whole.
constexpr size_t kErrPartWindow = 80;
constexpr wchar_t kEllipsis[] = L"\u2026";

std::wstring headOf(const std::wstring& text) {
    if (text.size() <= kErrPartWindow) return text;
    return text.substr(0, kErrPartWindow) + kEllipsis;
}

std::wstring tailOf(const std::wstring& text) {
    if (text.size() <= kErrPartWindow) return text;
    return kEllipsis + text.substr(text.size() - kErrPartWindow);
}

std::wstring cutMiddle(const std::wstring& text) {
    if (text.size() <= 2 * kErrPartWindow) return text;
    return text.substr(0, kErrPartWindow) + kEllipsis + text.substr(text.size() - kErrPartWindow);
}

}  // namespace

// The line or lines of the marked text, with the marks around it. A line of
// a thousand chart values is cut to a window around the mark.
std::wstring vxScript::errScriptPart(long begin, long end) const {
    if (srcString.empty()) return L"";
    const long last = static_cast<long>(srcString.size()) - 1;
    begin = std::clamp(begin, 0L, last + 1);
    end = std::clamp(end, begin, last + 1);

    long lineStart = begin;
    while (lineStart > 0 && !isLineEnd(srcString[static_cast<size_t>(lineStart) - 1])) --lineStart;
    long lineEnd = end;  // exclusive
    while (lineEnd <= last && !isLineEnd(srcString[static_cast<size_t>(lineEnd)])) ++lineEnd;

    auto slice = [&](long from, long to) {
        std::wstring part = srcString.substr(static_cast<size_t>(from),
                                             static_cast<size_t>(std::max(0L, to - from)));
        std::replace(part.begin(), part.end(), kLineEnd, L' ');
        return part;
    };
    std::wstring prefix = errorSettings ? errorSettings->getErrPartPrefix() : L"--->";
    std::wstring postfix = errorSettings ? errorSettings->getErrPartPostfix() : L"<---";
    std::wstring text = tailOf(slice(lineStart, begin)) + prefix + cutMiddle(slice(begin, end)) +
                        postfix + headOf(slice(end, lineEnd));

    const long limit = errorSettings ? errorSettings->getMaxCharsOfErrScriptPart() : -1;
    if (limit < 0 || static_cast<long>(text.size()) <= limit) return text;

    if (lineStart > 0) text = L"\u2026 " + text;
    if (lineEnd < last) text += L" \u2026";
    const long length = static_cast<long>(text.size());
    long from = (length - limit) / 2;
    long to = (length + limit) / 2;
    if (to > length) {
        from -= to - length;
        to = length;
    }
    from = std::max(0L, from);
    return text.substr(static_cast<size_t>(from), static_cast<size_t>(to - from));
}

}  // namespace Velarix
