// A wide string value, with the small text helpers the parser and the data
// input use.
#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "Utilities/Sources/vxScalar.h"

namespace Velarix {

class vxStringOLD : public vxScalar<std::wstring, vxPrimitive::Kind::String> {
public:
    explicit vxStringOLD(std::wstring v = L"");
    std::unique_ptr<vxPrimitive> clone() const override;

    static long countChar(const std::wstring& text, wchar_t c);
    // Lower-cases A to Z only; every other character stays as it is.
    static std::wstring toLower(const std::wstring& text);
    // Turns a decimal comma into a point: only the first "," changes.
    static void replaceFirstComma(std::wstring& text);
    // "null" in any mix of cases: a gap in chart data.
    static bool isNullText(std::wstring_view text);
};

}  // namespace Velarix
