#include "output/vxPDFFontKey.h"

#include "host/vxLog.h"

namespace Velarix {

namespace {

struct Translation {
    const char* from;
    const char* to;
};

const Translation kTranslations[] = {
    {"arial", "helvetica"},         {"arialmt", "helvetica"},   {"couriernew", "courier"},
    {"couriernewpsmt", "courier"},  {"timesnewroman", "times"}, {"timesnewromanps", "times"},
    {"timesnewromanpsmt", "times"},
};

// Lower case without blanks; characters beyond ASCII are kept as UTF-8 so
// that two families never share a key by accident.
std::string baseOf(const std::wstring& family) {
    std::wstring folded;
    for (wchar_t c : family) {
        if (c == L' ') continue;
        folded += (c >= L'A' && c <= L'Z') ? static_cast<wchar_t>(c - L'A' + L'a') : c;
    }
    return vxNarrow(folded);
}

std::string styled(const std::string& base, bool isBold, bool isItalic) {
    return base + (isBold ? "B" : "") + (isItalic ? "I" : "");
}

}  // namespace

vxPDFFontKey::vxPDFFontKey(const std::wstring& family, bool isBold, bool isItalic)
    : mFontFamily(family), mIsBold(isBold), mIsItalic(isItalic) {
    mFontKeyBase = baseOf(family);
    mFontKey2 = styled(mFontKeyBase, isBold, isItalic);
    for (const Translation& t : kTranslations) {
        if (mFontKeyBase == t.from) {
            mFontKeyBase = t.to;
            break;
        }
    }
    mFontKey = styled(mFontKeyBase, isBold, isItalic);
}

void vxPDFFontKey::dump(short depth, std::ostream& out) const {
    (void)depth;
    vxDumpLine(out, "std::wstring mFontFamily:   ", mFontFamily);
    vxDumpLine(out, "std::string  mFontKeyBase:  ", mFontKeyBase);
    vxDumpLine(out, "std::string  mFontKey:      ", mFontKey);
    vxDumpLine(out, "std::string  mFontKey2:     ", mFontKey2);
    vxDumpLine(out, "bool mIsBold:               ", mIsBold);
    vxDumpLine(out, "bool mIsItalic:             ", mIsItalic);
}

}  // namespace Velarix
