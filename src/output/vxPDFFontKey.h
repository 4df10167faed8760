// The key that names a PDF font: the family in lower case without blanks,
// with "B" appended for bold and "I" for italic, in this order. Arial,
// Courier New and Times New Roman (and their PostScript names) are keyed
// as the standard fonts they stand for: "arialBI" is "helveticaBI".
#pragma once

#include <ostream>
#include <string>

namespace Velarix {

class vxPDFFontKey {
public:
    vxPDFFontKey(const std::wstring& family, bool isBold, bool isItalic);

    const std::wstring& getFontFamily() const { return mFontFamily; }
    // The translated family part, as "helvetica".
    const std::string& getFontKeyBase() const { return mFontKeyBase; }
    // The translated key, as "helveticaB".
    const std::string& getFontKey() const { return mFontKey; }
    // The key before the translation, as "arialB".
    const std::string& getFontKey2() const { return mFontKey2; }
    bool isBold() const { return mIsBold; }
    bool isItalic() const { return mIsItalic; }

    void dump(short depth, std::ostream& out) const;

private:
    std::wstring mFontFamily;
    std::string mFontKeyBase;
    std::string mFontKey;
    std::string mFontKey2;
    bool mIsBold = false;
    bool mIsItalic = false;
};

}  // namespace Velarix
