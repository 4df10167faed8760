#include "settings/vxCalendarNames.h"

#include "settings/vxMessageTable.h"

namespace Velarix {

namespace {

const vxCalendarNames& english() {
    static const vxCalendarNames names{
        {L"January", L"February", L"March", L"April", L"May", L"June", L"July", L"August",
         L"September", L"October", L"November", L"December"},
        {L"Jan", L"Feb", L"Mar", L"Apr", L"May", L"Jun", L"Jul", L"Aug", L"Sep", L"Oct", L"Nov",
         L"Dec"},
        {L"Sunday", L"Monday", L"Tuesday", L"Wednesday", L"Thursday", L"Friday", L"Saturday"},
        {L"Sun", L"Mon", L"Tue", L"Wed", L"Thu", L"Fri", L"Sat"},
    };
    return names;
}

const vxCalendarNames& german() {
    static const vxCalendarNames names{
        {L"Januar", L"Februar", L"Maerz", L"April", L"Mai", L"Juni", L"Juli", L"August",
         L"September", L"Oktober", L"November", L"Dezember"},
        {L"Jan", L"Feb", L"Mae", L"Apr", L"Mai", L"Jun", L"Jul", L"Aug", L"Sep", L"Okt", L"Nov",
         L"Dez"},
        {L"Sonntag", L"Montag", L"Dienstag", L"Mittwoch", L"Donnerstag", L"Freitag", L"Samstag"},
        {L"Son", L"Mon", L"Die", L"Mit", L"Don", L"Fre", L"Sam"},
    };
    return names;
}

}  // namespace

const vxCalendarNames& vxCalendarNamesOf(short languageID) {
    return languageID == kLanguageGerman ? german() : english();
}

}  // namespace Velarix
