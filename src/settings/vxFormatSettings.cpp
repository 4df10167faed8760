#include "settings/vxFormatSettings.h"

#include "host/vxLog.h"
#include "settings/vxCalendarNames.h"
#include "settings/vxMessageTable.h"
#include "settings/vxSystemSettings.h"

namespace Velarix {

namespace {

std::wstring charText(wchar_t c) {
    return c ? std::wstring(1, c) : std::wstring();
}

}  // namespace

vxFormatSettings::vxFormatSettings() {
    setNames(kLanguageEnglish);
}

void vxFormatSettings::clear() {
    *this = vxFormatSettings();
}

void vxFormatSettings::setDefaults(short languageID, const vxSystemSettings* system) {
    clear();
    setNames(languageID);
    if (!system) return;
    mDateSeparatorID = dateSeparatorIDOf(system->getDateSeparator());
    mTimeSeparatorID = timeSeparatorIDOf(system->getTimeSeparator());
}

void vxFormatSettings::setNames(short languageID) {
    const vxCalendarNames& names = vxCalendarNamesOf(languageID);
    mMonthNames = names.months;
    mShortMonthNames = names.shortMonths;
    mWeekdayNames = names.weekdays;
    mShortWeekdayNames = names.shortWeekdays;
}

short vxFormatSettings::dateSeparatorIDOf(wchar_t separator) {
    switch (separator) {
        case L'-':
            return 0;
        case L'.':
            return 2;
        default:
            return 1;
    }
}

short vxFormatSettings::timeSeparatorIDOf(wchar_t separator) {
    return separator == L'\'' ? 1 : 0;
}

void vxFormatSettings::copy(const vxFormatSettings* from) {
    if (!from) {
        clear();
        return;
    }
    if (from != this) *this = *from;
}

void vxFormatSettings::dump(short depth, std::ostream& out) const {
    vxDumpHeader(out, "vxFormatSettings");
    vxDumpLine(out, "wstring defaultNumberFormat:       ", mDefaultNumberFormat);
    vxDumpLine(out, "short fieldWidth:                  ", mFieldWidth);
    vxDumpLine(out, "short thousandsGroupSize:          ", mThousandsGroupSize);
    vxDumpLine(out, "vector<wstring> monthNames:        ", mMonthNames);
    vxDumpLine(out, "vector<wstring> shortMonthNames:   ", mShortMonthNames);
    vxDumpLine(out, "vector<wstring> weekdayNames:      ", mWeekdayNames);
    vxDumpLine(out, "vector<wstring> shortWeekdayNames: ", mShortWeekdayNames);
    vxDumpLine(out, "short dateOrderID:                 ", mDateOrderID);
    vxDumpLine(out, "short dateSeparatorID:             ", mDateSeparatorID);
    vxDumpLine(out, "short timeSeparatorID:             ", mTimeSeparatorID);
    vxDumpLine(out, "short yearFormatID:                ", mYearFormatID);
    vxDumpLine(out, "short monthFormatID:               ", mMonthFormatID);
    vxDumpLine(out, "short dayFormatID:                 ", mDayFormatID);
    vxDumpLine(out, "short hourFormatID:                ", mHourFormatID);
    vxDumpLine(out, "short minuteFormatID:              ", mMinuteFormatID);
    vxDumpLine(out, "short secondFormatID:              ", mSecondFormatID);
    vxDumpLine(out, "short weekStartIndex:              ", mWeekStartIndex);
    vxDumpLine(out, "wchar_t decimalPoint:              ", charText(mDecimalPoint));
    vxDumpLine(out, "wchar_t thousandsSep:              ", charText(mThousandsSep));
    vxDumpLine(out, "wchar_t fillChar:                  ", charText(mFillChar));
    vxDumpLine(out, "wstring dateFormat:                ", mDateFormat);
    vxDumpLine(out, "wstring timeFormat:                ", mTimeFormat);
    vxDumpEnd(out);
}

}  // namespace Velarix
