// A font: name, size in points, style bits and the metrics the font
// service measures. Metrics are measured on the first read after a change.
// The names "systemfont" and "applfont" stand for Arial.
#pragma once

#include <ostream>
#include <string>
#include <string_view>

#include "settings/vxErrorHolder.h"

namespace Velarix {

class vxFontFace;

class vxFontOLD : public vxErrorHolder {
public:
    enum Style : short { kPlain = 0, kBold = 1, kItalic = 2, kUnderline = 4 };

    vxFontOLD();
    vxFontOLD(const std::wstring& name, float size, short style);
    ~vxFontOLD() override;
    vxFontOLD(const vxFontOLD& other);
    vxFontOLD& operator=(const vxFontOLD& other);

    const std::wstring& getName() const { return name; }
    float getSize() const { return size; }
    short getStyle() const { return style; }
    bool isPlain() const { return style == kPlain; }
    bool isBold() const { return (style & kBold) != 0; }
    bool isItalic() const { return (style & kItalic) != 0; }
    bool isUnderline() const { return (style & kUnderline) != 0; }

    void setName(const std::wstring& value);
    void setSize(float value);
    void setStyle(short value);
    void setDefaultName(const std::wstring& value) { defaultName = value; }
    void setDefaultSize(float value) { defaultSize = value; }
    void setDefaultStyle(short value) { defaultStyle = value; }
    const std::wstring& getDefaultName() const { return defaultName; }
    float getDefaultSize() const { return defaultSize; }
    short getDefaultStyle() const { return defaultStyle; }

    // Metrics in points (drawing units).
    float getAscent() const;
    float getDescent() const;
    float getLeading() const;
    float getStringHeight() const;
    float getLineHeight() const;
    float getWidth(std::wstring_view text) const;
    float getWidth(wchar_t character) const;
    // The length in characters of the longest start (or end) of a one-line
    // text that is at most `limit` wide; a surrogate pair is never split.
    std::size_t getFittingLength(std::wstring_view text, float limit) const;
    std::size_t getFittingTailLength(std::wstring_view text, float limit) const;
    // The width of the widest line and the height of all lines of a text
    // whose lines end with carriage returns; answers the number of lines.
    long getDimensions(const std::wstring& text, float dimensions[2]) const;

    short getMissingFontFlag() const { return mMissingFontFlag; }
    void setMissingFontFlag(short value) { mMissingFontFlag = value; }
    short getEmbedPDFFontFlag() const { return mEmbedPDFFontFlag; }
    void setEmbedPDFFontFlag(short value) { mEmbedPDFFontFlag = value; }

    void dump(short depth, std::ostream& out) const;

private:
    void setUpMetrics() const;
    void copyFields(const vxFontOLD& from);
    void forgetMetrics();

    std::wstring defaultName = L"Verdana";
    float defaultSize = 10.0f;
    short defaultStyle = kPlain;
    std::wstring name = L"Verdana";
    float size = 10.0f;
    short style = kPlain;
    mutable bool hasMetrics = false;
    mutable float ascent = 0.0f;
    mutable float descent = 0.0f;
    mutable float leading = 0.0f;
    mutable float stringHeight = 0.0f;
    mutable float lineHeight = 0.0f;
    short mMissingFontFlag = 0;
    short mEmbedPDFFontFlag = 0;
    // The platform face found with the metrics; owned by the font service,
    // which keeps it for the life of the process.
    mutable vxFontFace* face = nullptr;
};

}  // namespace Velarix
