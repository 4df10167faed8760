#include "Utilities/Sources/vxLong.h"

#include <charconv>
#include <system_error>

#include "settings/vxErrorCodes.h"

namespace Velarix {

namespace {

bool isDigit(wchar_t c) {
    return c >= L'0' && c <= L'9';
}

}  // namespace

vxLong::vxLong(long v) : vxScalar(L"vxLong", "long value: ", v) {}

std::unique_ptr<vxPrimitive> vxLong::clone() const {
    return std::make_unique<vxLong>(value);
}

short vxLong::testInteger(const std::wstring& token) {
    std::size_t i = (!token.empty() && (token[0] == L'+' || token[0] == L'-')) ? 1 : 0;
    if (i == token.size()) return vxErrScript::kValue;
    for (; i < token.size(); ++i) {
        if (!isDigit(token[i])) return vxErrScript::kValue;
    }
    return kNoError;
}

bool vxLong::toLong(const std::wstring& token, long& out) {
    if (testInteger(token) != kNoError) return false;
    // The test leaves only ASCII, so each character narrows as it is.
    std::string narrow;
    for (wchar_t c : token) {
        if (c != L'+') narrow.push_back(static_cast<char>(c));
    }
    const char* end = narrow.data() + narrow.size();
    auto [stop, ec] = std::from_chars(narrow.data(), end, out);
    return ec == std::errc() && stop == end;
}

}  // namespace Velarix
