// How numbers and dates are written: the default number format, the
// separators, the names of months and weekdays and the date and time items.
// Date separator IDs: 0 "-", 1 "/", 2 "."; time separator IDs: 0 ":", 1 "'";
// date order IDs: 1 YMD, 2 MDY, 3 DMY, -1 not set.
#pragma once

#include <ostream>
#include <string>
#include <vector>

namespace Velarix {

class vxSystemSettings;

class vxFormatSettings {
public:
    vxFormatSettings();
    virtual ~vxFormatSettings() = default;

    // Point as decimal point, no thousands separator, groups of 3, English
    // names, no date order, "/" and ":" as separators.
    void clear();
    // As clear, with the names of the language (2 German, else English) and
    // the separators of the system, when one is given.
    void setDefaults(short languageID, const vxSystemSettings* system);
    void copy(const vxFormatSettings* from);  // null clears
    void dump(short depth, std::ostream& out) const;

    // The separator IDs of a character; an unknown one gives "/" or ":".
    static short dateSeparatorIDOf(wchar_t separator);
    static short timeSeparatorIDOf(wchar_t separator);

    const std::wstring& getDefaultNumberFormat() const { return mDefaultNumberFormat; }
    void setDefaultNumberFormat(const std::wstring& value) { mDefaultNumberFormat = value; }
    short getFieldWidth() const { return mFieldWidth; }
    void setFieldWidth(short value) { mFieldWidth = value; }
    short getThousandsGroupSize() const { return mThousandsGroupSize; }
    void setThousandsGroupSize(short value) { mThousandsGroupSize = value; }

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

    short getDateOrderID() const { return mDateOrderID; }
    void setDateOrderID(short value) { mDateOrderID = value; }
    short getDateSeparatorID() const { return mDateSeparatorID; }
    void setDateSeparatorID(short value) { mDateSeparatorID = value; }
    short getTimeSeparatorID() const { return mTimeSeparatorID; }
    void setTimeSeparatorID(short value) { mTimeSeparatorID = value; }
    short getYearFormatID() const { return mYearFormatID; }
    void setYearFormatID(short value) { mYearFormatID = value; }
    short getMonthFormatID() const { return mMonthFormatID; }
    void setMonthFormatID(short value) { mMonthFormatID = value; }
    short getDayFormatID() const { return mDayFormatID; }
    void setDayFormatID(short value) { mDayFormatID = value; }
    short getHourFormatID() const { return mHourFormatID; }
    void setHourFormatID(short value) { mHourFormatID = value; }
    short getMinuteFormatID() const { return mMinuteFormatID; }
    void setMinuteFormatID(short value) { mMinuteFormatID = value; }
    short getSecondFormatID() const { return mSecondFormatID; }
    void setSecondFormatID(short value) { mSecondFormatID = value; }
    short getWeekStartIndex() const { return mWeekStartIndex; }
    void setWeekStartIndex(short value) { mWeekStartIndex = value; }

    wchar_t getDecimalPoint() const { return mDecimalPoint; }
    void setDecimalPoint(wchar_t value) { mDecimalPoint = value; }
    // 0: none.
    wchar_t getThousandsSep() const { return mThousandsSep; }
    void setThousandsSep(wchar_t value) { mThousandsSep = value; }
    wchar_t getFillChar() const { return mFillChar; }
    void setFillChar(wchar_t value) { mFillChar = value; }
    // Empty: none set.
    const std::wstring& getDateFormat() const { return mDateFormat; }
    void setDateFormat(const std::wstring& value) { mDateFormat = value; }
    const std::wstring& getTimeFormat() const { return mTimeFormat; }
    void setTimeFormat(const std::wstring& value) { mTimeFormat = value; }

private:
    void setNames(short languageID);

    std::wstring mDefaultNumberFormat;
    short mFieldWidth = -1;
    short mThousandsGroupSize = 3;
    std::vector<std::wstring> mMonthNames;
    std::vector<std::wstring> mShortMonthNames;
    std::vector<std::wstring> mWeekdayNames;
    std::vector<std::wstring> mShortWeekdayNames;
    short mDateOrderID = -1;
    short mDateSeparatorID = 1;
    short mTimeSeparatorID = 0;
    short mYearFormatID = 0;
    short mMonthFormatID = 0;
    short mDayFormatID = 0;
    short mHourFormatID = 0;
    short mMinuteFormatID = 0;
    short mSecondFormatID = 0;
    short mWeekStartIndex = 0;
    wchar_t mDecimalPoint = L'.';
    wchar_t mThousandsSep = 0;
    wchar_t mFillChar = L' ';
    std::wstring mDateFormat;
    std::wstring mTimeFormat;
};

}  // namespace Velarix
