// What the platform says: its kind and version, its language with the names
// of months and weekdays, its date order and separators, its fonts.
#pragma once

#include <ostream>
#include <string>
#include <vector>

namespace Velarix {

class vxSystemSettings {
public:
    vxSystemSettings();
    virtual ~vxSystemSettings() = default;

    void clear();                             // the answers of this platform
    void copy(const vxSystemSettings* from);  // null clears
    void dump(short depth, std::ostream& out) const;

    // "MDY", "DMY" or "YMD".
    virtual std::wstring getDateOrder() const { return L"MDY"; }
    virtual wchar_t getDateSeparator() const { return L'/'; }
    virtual wchar_t getTimeSeparator() const { return L':'; }
    // Whether the platform has the font: installed, or stood in for by a
    // font of the same metrics. "systemfont" and "applfont" always exist.
    virtual bool fontExists(const std::wstring& name) const;

    bool isMacOS() const { return mIsMacOS; }
    void setIsMacOS(bool value) { mIsMacOS = value; }
    bool isMacOSX() const { return mIsMacOSX; }
    void setIsMacOSX(bool value) { mIsMacOSX = value; }
    bool isWindowsOS() const { return mIsWindowsOS; }
    void setIsWindowsOS(bool value) { mIsWindowsOS = value; }
    bool useWindowsGDIPlus() const { return mUseWindowsGDIPlus; }
    void setUseWindowsGDIPlus(bool value) { mUseWindowsGDIPlus = value; }

    const std::wstring& getVersionString() const { return mVersionString; }
    void setVersionString(const std::wstring& value) { mVersionString = value; }
    short getVersionID() const { return mVersionID; }
    void setVersionID(short value) { mVersionID = value; }
    short getLanguageID() const { return mLanguageID; }
    void setLanguageID(short value) { mLanguageID = value; }

    const std::vector<std::wstring>& getMonthNames() const { return mMonthNames; }
    void setMonthNames(const std::vector<std::wstring>& value) { mMonthNames = value; }
    const std::vector<std::wstring>& getShortMonthNames() const { return mShortMonthNames; }
    void setShortMonthNames(const std::vector<std::wstring>& value) { mShortMonthNames = value; }
    const std::vector<std::wstring>& getWeekdayNames() const { return mWeekdayNames; }
    void setWeekdayNames(const std::vector<std::wstring>& value) { mWeekdayNames = value; }
    const std::vector<std::wstring>& getShortWeekdayNames() const { return mShortWeekdayNames; }
    void setShortWeekdayNames(const std::vector<std::wstring>& value) {
        mShortWeekdayNames = value;
    }

private:
    bool mIsMacOS = false;
    bool mIsMacOSX = false;
    bool mIsWindowsOS = false;
    bool mUseWindowsGDIPlus = false;
    std::wstring mVersionString;
    short mVersionID = 0;
    short mLanguageID = 1;
    std::vector<std::wstring> mMonthNames;
    std::vector<std::wstring> mShortMonthNames;
    std::vector<std::wstring> mWeekdayNames;
    std::vector<std::wstring> mShortWeekdayNames;
};

}  // namespace Velarix
