#include "platform/vxFontSubstitutes.h"

namespace Velarix {

namespace {

// Groups end with a null. Names are lower case.
const wchar_t* const kGroups[][11] = {
    {L"arial", L"helvetica", L"liberation sans", L"arimo", L"albany", L"albany amt", L"nimbus sans",
     L"nimbus sans l", L"tex gyre heros", nullptr},
    {L"arial narrow", L"helvetica narrow", L"liberation sans narrow", L"nimbus sans narrow",
     L"tex gyre heros cn", nullptr},
    {L"times new roman", L"times", L"liberation serif", L"tinos", L"thorndale", L"thorndale amt",
     L"nimbus roman", L"nimbus roman no9 l", L"tex gyre termes", nullptr},
    {L"courier new", L"courier", L"liberation mono", L"cousine", L"cumberland", L"cumberland amt",
     L"nimbus mono ps", L"nimbus mono l", L"tex gyre cursor", nullptr},
    {L"cambria", L"caladea", nullptr},
    {L"calibri", L"carlito", nullptr},
    {L"georgia", L"gelasio", nullptr},
    {L"bitstream vera sans", L"dejavu sans", nullptr},
    {L"bitstream vera serif", L"dejavu serif", nullptr},
    {L"bitstream vera sans mono", L"dejavu sans mono", nullptr},
};

}  // namespace

std::vector<std::wstring> vxMetricCompatibleFamilies(const std::wstring& lowerName) {
    for (const auto& group : kGroups) {
        bool isMember = false;
        for (const wchar_t* const* name = group; *name != nullptr && !isMember; ++name) {
            isMember = lowerName == *name;
        }
        if (!isMember) continue;
        std::vector<std::wstring> others;
        for (const wchar_t* const* name = group; *name != nullptr; ++name) {
            if (lowerName != *name) others.emplace_back(*name);
        }
        return others;
    }
    return {};
}

}  // namespace Velarix
