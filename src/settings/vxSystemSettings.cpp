#include "settings/vxSystemSettings.h"

#include "host/vxLog.h"
#include "platform/vxFontService.h"
#include "settings/vxCalendarNames.h"
#include "settings/vxMessageTable.h"

namespace Velarix {

vxSystemSettings::vxSystemSettings() {
    clear();
}

void vxSystemSettings::clear() {
    mIsMacOS = false;
    mIsMacOSX = false;
    mIsWindowsOS = false;
    mUseWindowsGDIPlus = false;
    mVersionString.clear();
    mVersionID = 0;
    mLanguageID = kLanguageEnglish;
    const vxCalendarNames& names = vxCalendarNamesOf(mLanguageID);
    mMonthNames = names.months;
    mShortMonthNames = names.shortMonths;
    mWeekdayNames = names.weekdays;
    mShortWeekdayNames = names.shortWeekdays;
}

void vxSystemSettings::copy(const vxSystemSettings* from) {
    if (from == this) return;
    clear();
    if (!from) return;
    mIsMacOS = from->mIsMacOS;
    mIsMacOSX = from->mIsMacOSX;
    mIsWindowsOS = from->mIsWindowsOS;
    mUseWindowsGDIPlus = from->mUseWindowsGDIPlus;
    mVersionString = from->mVersionString;
    mVersionID = from->mVersionID;
    mLanguageID = from->mLanguageID;
    mMonthNames = from->mMonthNames;
    mShortMonthNames = from->mShortMonthNames;
    mWeekdayNames = from->mWeekdayNames;
    mShortWeekdayNames = from->mShortWeekdayNames;
}

bool vxSystemSettings::fontExists(const std::wstring& name) const {
    return vxFontService::get().hasFont(name);
}

void vxSystemSettings::dump(short depth, std::ostream& out) const {
    vxDumpHeader(out, "vxSystemSettings");
    vxDumpLine(out, "bool  isMacOS:                          ", mIsMacOS);
    vxDumpLine(out, "bool  isMacOSX:                         ", mIsMacOSX);
    vxDumpLine(out, "bool  isWindowsOS:                      ", mIsWindowsOS);
    vxDumpLine(out, "bool  useWindowsGDIPlus:                ", mUseWindowsGDIPlus);
    vxDumpLine(out, "wstring versionString:                  ", mVersionString);
    vxDumpLine(out, "short versionID:                        ", mVersionID);
    vxDumpLine(out, "short languageID:                       ", mLanguageID);
    vxDumpLine(out, "vector<wstring> monthNames:             ", mMonthNames);
    vxDumpLine(out, "vector<wstring> shortMonthNames:        ", mShortMonthNames);
    vxDumpLine(out, "vector<wstring> weekdayNames:           ", mWeekdayNames);
    vxDumpLine(out, "vector<wstring> shortWeekdayNames:      ", mShortWeekdayNames);
    vxDumpEnd(out);
}

}  // namespace Velarix
