#include "furniture/vxLegendWords.h"

namespace Velarix {

namespace {

struct Word {
    short languageID;
    const wchar_t* word;
};

// The first row is the fallback.
constexpr Word kWords[] = {
    {1, L"Series"},
    {2, L"Reihe"},
};

}  // namespace

const wchar_t* vxLegendDefaultWord(short languageID) {
    for (const Word& entry : kWords) {
        if (entry.languageID == languageID) return entry.word;
    }
    return kWords[0].word;
}

std::wstring vxLegendDefaultText(short languageID, long number) {
    return std::wstring(vxLegendDefaultWord(languageID)) + L" " + std::to_wstring(number);
}

}  // namespace Velarix
