// The composition of the user-visible error text from a record, a language
// and a flags text.
#include <gtest/gtest.h>

#include <string>

#include "settings/vxError.h"
#include "settings/vxErrorCodes.h"

namespace Velarix {
namespace {

enum class Record {
    kParsing,
    kParsingLineOnly,
    kParsingNoLocation,
    kRuntime,
    kRuntimeNoSystemCode,
    kPlain,
    kNone,
    kNegative,
    kPlainText,
    kCodeWithoutText,
};

void fill(vxError& error, Record record) {
    switch (record) {
        case Record::kParsing:
            error.setParsingError(1120, 2, L"OpenChart", 3, L"OpenChart(10; 10; --->0<---; 280)",
                                  L"must be above 0");
            break;
        case Record::kParsingLineOnly:
            error.setParsingError(1000, 5, L"Bar(");
            break;
        case Record::kParsingNoLocation:
            error.setParsingError(1010, -1, L"", -1, L"");
            break;
        case Record::kRuntime:
            error.setRuntimeError(4003, -43, L"vxWriteFile/open/2", L"/tmp/chart.pdf");
            break;
        case Record::kRuntimeNoSystemCode:
            error.setRuntimeError(4003, 0, L"vxWriteFile/open/2");
            break;
        case Record::kPlain:
            error.setError(2200, L"vxChart/setUp/4", L"plot 12 x 8");
            break;
        case Record::kNone:
            break;
        case Record::kNegative:
            error.setError(-6000, L"vxDevice/open/1", L"detail");
            break;
        case Record::kPlainText:
            error.setError(kErrPlainText, L"vxCH_DrawChart/run/1", L"Missing Velarix script.");
            break;
        case Record::kCodeWithoutText:
            error.setError(1250, L"vxTable/assign/1");
            break;
    }
}

struct MessageCase {
    const char* name;
    Record record;
    short languageID;
    std::wstring flags;
    std::wstring expected;
};

void PrintTo(const MessageCase& c, std::ostream* out) {
    *out << c.name;
}

const std::wstring kWhere = L"Line 2: Function \"OpenChart\": Argument # 3: ";
const std::wstring kWhereGerman = L"Zeile 2: Funktion \"OpenChart\": Argument  3: ";
const std::wstring kRange = L"Value out of range.\n";
const std::wstring kPart = L"OpenChart(10; 10; --->0<---; 280)\n";
const std::wstring kOpen = L"File open error. -43\n";
const std::wstring kFrame = L"2200: Frame too small to draw chart.\n";

const MessageCase kCases[] = {
    // Flags position 1: the level of detail; a text shorter than 2 is level 3.
    {"EmptyFlagsIsLevel3", Record::kParsing, 1, L"", kWhere + kRange + kPart},
    {"OneCharFlagsIsLevel3", Record::kParsing, 1, L"0", kWhere + kRange + kPart},
    {"Level1DescriptionOnly", Record::kParsing, 1, L"01", kRange},
    {"Level2AddsParsingLocation", Record::kParsing, 1, L"02", kWhere + kRange},
    {"Level3AddsScriptPart", Record::kParsing, 1, L"03", kWhere + kRange + kPart},
    {"Level4AddsLocation", Record::kParsing, 1, L"04", kWhere + kRange + kPart + L"\n"},
    {"Level5AddsAddlInfo", Record::kParsing, 1, L"05",
     kWhere + kRange + kPart + L"\n" + L"must be above 0\n"},
    {"OtherLevelNoDescription", Record::kParsing, 1, L"0x", L""},
    {"Level6NoDescription", Record::kParsing, 1, L"06", L""},
    {"Level0NoDescription", Record::kParsing, 1, L"00", L""},
    // Position 0: the code first; position 2 on: a literal at the front.
    {"CodeAlone", Record::kParsing, 1, L"1", L"1120: " + kWhere + kRange + kPart},
    {"CodeWithoutDescription", Record::kParsing, 1, L"1x", L"1120\n"},
    {"LiteralInFront", Record::kParsing, 1, L"11>> ", L">> 1120: " + kRange},
    {"LiteralWithoutCode", Record::kParsing, 1, L"01Error: ", L"Error: " + kRange},
    {"OnlyCharOneMeansCode", Record::kParsing, 1, L"21", kRange},
    // Parsing locations are written only for the parts the record has.
    {"LineOnly", Record::kParsingLineOnly, 1, L"03", L"Line 5: Syntax error.\nBar(\n"},
    {"NoLocationNoScriptPart", Record::kParsingNoLocation, 1, L"05",
     L"Invalid function name.\n\n\n"},
    // Runtime errors: the system code after the description.
    {"RuntimeLevel3", Record::kRuntime, 1, L"03", kOpen},
    {"RuntimeLevel5", Record::kRuntime, 1, L"05", kOpen + L"vxWriteFile/open/2\n/tmp/chart.pdf\n"},
    {"RuntimeWithCode", Record::kRuntime, 1, L"11", L"4003: " + kOpen},
    {"RuntimeSystemCodeZero", Record::kRuntimeNoSystemCode, 1, L"03", L"File open error.\n"},
    // Plain errors: the parsing levels add nothing.
    {"PlainLevel2", Record::kPlain, 1, L"12", kFrame},
    {"PlainLevel3", Record::kPlain, 1, L"13", kFrame},
    {"PlainLevel4", Record::kPlain, 1, L"14", kFrame + L"vxChart/setUp/4\n"},
    {"PlainLevel5", Record::kPlain, 1, L"15", kFrame + L"vxChart/setUp/4\nplot 12 x 8\n"},
    // No error and negative codes: the code at most, never a description.
    {"NoErrorCodeOnly", Record::kNone, 1, L"1x", L"0\n"},
    {"NoErrorWithDescriptionAsked", Record::kNone, 1, L"13", L"0\n"},
    {"NoErrorWithoutCode", Record::kNone, 1, L"05", L""},
    {"NoErrorLiteralStays", Record::kNone, 1, L"03>", L">"},
    {"NegativeWithCode", Record::kNegative, 1, L"15", L"-6000\n"},
    {"NegativeWithoutCode", Record::kNegative, 1, L"05", L""},
    // The special record: its additional information and nothing else.
    {"PlainTextIgnoresFlags", Record::kPlainText, 1, L"15>> ", L"Missing Velarix script."},
    {"PlainTextGerman", Record::kPlainText, 2, L"", L"Missing Velarix script."},
    // Languages: 2 German, all others English.
    {"GermanParsing", Record::kParsing, 2, L"",
     kWhereGerman + L"Wert ausserhalb des gueltigen Bereichs.\n" + kPart},
    {"GermanRuntime", Record::kRuntime, 2, L"11",
     L"4003: Datei kann nicht geoeffnet werden. -43\n"},
    {"Language3IsEnglish", Record::kParsing, 3, L"02", kWhere + kRange},
    {"Language0IsEnglish", Record::kPlain, 0, L"13", kFrame},
    {"CodeWithoutTextEnglish", Record::kCodeWithoutText, 1, L"11", L"1250: Runtime error.\n"},
    {"CodeWithoutTextGerman", Record::kCodeWithoutText, 2, L"01", L"Runtime Fehler.\n"},
};

class ErrorMessageTest : public testing::TestWithParam<MessageCase> {};

TEST_P(ErrorMessageTest, Composes) {
    const MessageCase& c = GetParam();
    vxError error;
    fill(error, c.record);
    std::wstring message = L"old text";
    error.getMessage(message, c.languageID, c.flags);
    EXPECT_EQ(message, c.expected);
}

INSTANTIATE_TEST_SUITE_P(Flags, ErrorMessageTest, testing::ValuesIn(kCases),
                         [](const testing::TestParamInfo<MessageCase>& info) {
                             return std::string(info.param.name);
                         });

}  // namespace
}  // namespace Velarix
