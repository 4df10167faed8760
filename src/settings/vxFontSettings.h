// The default font of the charts, one per platform family, and how missing
// and embedded fonts are treated.
#pragma once

#include <ostream>
#include <string>

namespace Velarix {

class vxFontSettings {
public:
    static constexpr short kPlain = 0;

    vxFontSettings() = default;
    virtual ~vxFontSettings() = default;

    void clear();  // names empty, sizes 0, plain, flags 0
    // Verdana 10 on Windows, Geneva 9 in both Mac fields, all plain.
    void setDefaults();
    void copy(const vxFontSettings* from);  // null clears
    void dump(short depth, std::ostream& out) const;

    const std::wstring& getNameWinOS() const { return mNameWinOS; }
    void setNameWinOS(const std::wstring& value) { mNameWinOS = value; }
    float getSizeWinOS() const { return mSizeWinOS; }
    void setSizeWinOS(float value) { mSizeWinOS = value; }
    short getStyleWinOS() const { return mStyleWinOS; }
    void setStyleWinOS(short value) { mStyleWinOS = value; }

    const std::wstring& getNameMacOSX() const { return mNameMacOSX; }
    void setNameMacOSX(const std::wstring& value) { mNameMacOSX = value; }
    float getSizeMacOSX() const { return mSizeMacOSX; }
    void setSizeMacOSX(float value) { mSizeMacOSX = value; }
    short getStyleMacOSX() const { return mStyleMacOSX; }
    void setStyleMacOSX(short value) { mStyleMacOSX = value; }

    const std::wstring& getNameMacOSClassic() const { return mNameMacOSClassic; }
    void setNameMacOSClassic(const std::wstring& value) { mNameMacOSClassic = value; }
    float getSizeMacOSClassic() const { return mSizeMacOSClassic; }
    void setSizeMacOSClassic(float value) { mSizeMacOSClassic = value; }
    short getStyleMacOSClassic() const { return mStyleMacOSClassic; }
    void setStyleMacOSClassic(short value) { mStyleMacOSClassic = value; }

    // 1: a font name that doesn't exist on the system is an error.
    short getMissingFontFlag() const { return mMissingFontFlag; }
    void setMissingFontFlag(short value) { mMissingFontFlag = value; }
    short getEmbedPDFFontFlag() const { return mEmbedPDFFontFlag; }
    void setEmbedPDFFontFlag(short value) { mEmbedPDFFontFlag = value; }

private:
    std::wstring mNameWinOS;
    float mSizeWinOS = 0.0f;
    short mStyleWinOS = kPlain;
    std::wstring mNameMacOSX;
    float mSizeMacOSX = 0.0f;
    short mStyleMacOSX = kPlain;
    std::wstring mNameMacOSClassic;
    float mSizeMacOSClassic = 0.0f;
    short mStyleMacOSClassic = kPlain;
    short mMissingFontFlag = 0;
    short mEmbedPDFFontFlag = 0;
};

}  // namespace Velarix
