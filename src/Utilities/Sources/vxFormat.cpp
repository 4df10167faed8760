#include "Utilities/Sources/vxFormat.h"

#include <charconv>

#include "host/vxLog.h"

namespace Velarix {

vxFormat::vxFormat(const wchar_t* name, short formatCode, const wchar_t* specifier)
    : vxErrorHolder(name), formatSpecifier(specifier), formatCode(formatCode) {}

vxFormat::~vxFormat() = default;

bool vxFormat::splitFormat(const std::wstring& text, std::wstring& prefix, std::wstring& specifier,
                           std::wstring& postfix) {
    const size_t first = text.find(L'|');
    if (first == std::wstring::npos) {
        prefix.clear();
        specifier = text;
        postfix.clear();
        return true;
    }
    const size_t second = text.find(L'|', first + 1);
    if (second == std::wstring::npos) return false;
    prefix.assign(text, 0, first);
    specifier.assign(text, first + 1, second - first - 1);
    postfix.assign(text, second + 1);
    return true;
}

short vxFormat::setFormat(const std::wstring& text) {
    clearError();
    if (!splitFormat(text, prefixString, formatSpecifier, postfixString)) {
        emptyParts();
        setError(formatCode, where(L"setFormat"), text);
        return formatCode;
    }
    if (const short failed = checkSpecifier(formatSpecifier)) {
        emptyParts();
        setError(formatCode, where(checkMethod(), failed), text);
        return formatCode;
    }
    keepSpecifier();
    return kNoError;
}

bool vxFormat::isValid(const std::wstring& text) const {
    std::wstring prefix, specifier, postfix;
    return splitFormat(text, prefix, specifier, postfix) && checkSpecifier(specifier) == 0;
}

void vxFormat::emptyParts() {
    prefixString.clear();
    formatSpecifier.clear();
    postfixString.clear();
    keepSpecifier();
}

void vxFormat::appendString(double value, std::wstring& out) {
    if (isError() || !printsValue(value)) return;
    out += prefixString;
    appendValue(value, out);
    out += postfixString;
}

std::wstring vxFormat::toString(double value) {
    std::wstring text;
    appendString(value, text);
    return text;
}

std::wstring vxFormat::toString(double value, const std::wstring& text) {
    if (setFormat(text) != kNoError) return std::wstring();
    if (!text.empty()) return toString(value);
    std::wstring plain;
    appendPlain(value, plain);
    return plain;
}

void vxFormat::appendPlain(double value, std::wstring& out) {
    char chars[32];
    const auto result =
        std::to_chars(chars, chars + sizeof chars, value + 0.0, std::chars_format::general, 9);
    appendChars(chars, result.ptr, out);
}

// Widens in place: appending the range as such would build a temporary text.
void vxFormat::appendChars(const char* first, const char* last, std::wstring& out) {
    const size_t at = out.size();
    out.resize(at + size_t(last - first));
    for (wchar_t* to = out.data() + at; first != last; ++first, ++to) *to = wchar_t(*first);
}

void vxFormat::dump(short depth, std::ostream& out) const {
    if (depth <= 0) return;
    vxDumpHeader(out, "vxFormat");
    vxDumpLine(out, "wstring prefixString:    ", prefixString);
    vxDumpLine(out, "wstring formatSpecifier: ", formatSpecifier);
    vxDumpLine(out, "wstring postfixString:   ", postfixString);
    vxDumpEnd(out);
}

}  // namespace Velarix
