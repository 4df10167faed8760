// The texts of the error codes in both languages and for exceptions.
#include <gtest/gtest.h>

#include <cstring>
#include <string>

#include "settings/vxErrorCodes.h"
#include "settings/vxMessageTable.h"

namespace Velarix {
namespace {

constexpr short kDescribedCodes[] = {
    -7000, -6014, -6013, -6012, -6002, -6001, -6000, 1000, 1001, 1010, 1020, 1100, 1101, 1110,
    1111,  1112,  1120,  1130,  1131,  1132,  1140,  1150, 1160, 1170, 1180, 1200, 1201, 1210,
    1211,  1220,  1230,  1240,  1241,  1242,  1300,  2000, 2001, 2002, 2010, 2020, 2100, 2200,
    2300,  2350,  2400,  3000,  3001,  3002,  3004,  3005, 4000, 4001, 4002, 4003, 4004, 4005,
    4006,  4007,  4008,  4009,  4010,  4011,  4012,  4013, 4014, 5000, 5010, 5011, 5012,
};

constexpr short kUndescribedCodes[] = {
    -1, 0, 1212, 1219, 1250, 1251, 1252, 1260, 1261, 1262, 1002, 3003, 9999, kErrPlainText,
};

TEST(vxMessageTableTest, EveryDescribedCodeHasAnEnglishAndAGermanText) {
    for (short code : kDescribedCodes) {
        SCOPED_TRACE(code);
        EXPECT_TRUE(vxHasErrorDescription(code));
        const std::wstring english = vxErrorDescription(code, kLanguageEnglish);
        const std::wstring german = vxErrorDescription(code, kLanguageGerman);
        EXPECT_FALSE(english.empty());
        EXPECT_NE(english, L"Runtime error.");
        EXPECT_NE(german, L"Runtime Fehler.");
        EXPECT_NE(english, german);
    }
}

TEST(vxMessageTableTest, CodesWithoutTextReadRuntimeError) {
    for (short code : kUndescribedCodes) {
        SCOPED_TRACE(code);
        EXPECT_FALSE(vxHasErrorDescription(code));
        EXPECT_STREQ(vxErrorDescription(code, kLanguageEnglish), L"Runtime error.");
        EXPECT_STREQ(vxErrorDescription(code, kLanguageGerman), L"Runtime Fehler.");
    }
}

struct KnownText {
    short code;
    const wchar_t* english;
    const wchar_t* german;
};

TEST(vxMessageTableTest, KnownTextsMatchExactly) {
    const KnownText known[] = {
        {1130, L"Invalid String.", L"Ungueltige Zeichenkette."},
        {4011, L"File name error.", L"Dateinname ungueltig."},
        {-6001, L"QuickTime error ", L"QuickTime Fehler "},
        {-7000, L"Out of memory. Try to increase FileMaker Pro's memory size.",
         L"Ungenuegend Speicher. Erhoehen Sie die Speicherzuteilung fuer FileMaker Pro."},
        {1201, L"Multiple call of function: OpenDrawing()",
         L"Mehrfachaufruf der Funktion: OpenDrawing()"},
        {1220, L"Can't open new view.", L"Neuer View kann nicht geoeffnet werden."},
        {2010, L"ChartData(): Invalid value.", L"ChartData(): Ungueltiger Wert."},
        {2350, L"Moving Average: Not enough data.",
         L"Gleitender Durchschnitt: Zu wenig Diagrammdaten."},
        {5011, L"Invalid logarithmic value.", L"Fehler: Ungueltiger logarithmischer Wert."},
    };
    for (const KnownText& k : known) {
        SCOPED_TRACE(k.code);
        EXPECT_STREQ(vxErrorDescription(k.code, kLanguageEnglish), k.english);
        EXPECT_STREQ(vxErrorDescription(k.code, kLanguageGerman), k.german);
        EXPECT_STREQ(vxErrorDescription(k.code, 3), k.english);
    }
}

TEST(vxMessageTableTest, ExceptionTexts) {
    const std::pair<long, const char*> expected[] = {
        {0, "No error."},
        {-1, "Unknown error."},
        {1150, "Clipboard contains invalid data."},
        {1212, "Invalid function after CloseDrawing()"},
        {1219, "Invalid nested components."},
        {1220, "Function OpenView(...) missing."},
        {1230, "Function CloseView(...) missing."},
        {1240, "Nested chart definitions."},
        {1120, "Value out of range."},
        {-7000, "Out of memory. Try to increase FileMaker Pro's memory size."},
        {1250, "Runtime error."},
        {9999, "Runtime error."},
        // 66656 would read as 1120 if it were cut to a short.
        {66656, "Runtime error."},
    };
    for (const auto& [code, text] : expected) {
        SCOPED_TRACE(code);
        EXPECT_STREQ(vxExceptionText(code), text);
    }
}

}  // namespace
}  // namespace Velarix
