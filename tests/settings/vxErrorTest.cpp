// The error record: which failures count, how setters replace a record, and
// how records are copied.
#include <gtest/gtest.h>

#include "settings/vxError.h"
#include "settings/vxErrorCodes.h"
#include "settings/vxErrorSettings.h"

namespace Velarix {
namespace {

std::wstring messageOf(const vxError& error, const std::wstring& flags = L"15") {
    std::wstring text;
    error.getMessage(text, 1, flags);
    return text;
}

TEST(vxErrorTest, OnlyPositiveCodesAreErrors) {
    vxError error;
    EXPECT_FALSE(error.isError());
    error.setError(-6000);
    EXPECT_FALSE(error.isError());
    error.setError(kErrPlainText, L"", L"text");
    EXPECT_FALSE(error.isError());
    EXPECT_EQ(error.getErrorCode(), -32768);
    error.setError(1000);
    EXPECT_TRUE(error.isError());
}

TEST(vxErrorTest, EachSetterReplacesTheWholeRecord) {
    vxErrorSettings settings;
    settings.setMessagePrefix(L"Chart: ");
    vxError error;
    error.setParsingError(1120, 2, L"OpenChart", 3, L"part", L"info");
    error.setMessagePrefix(&settings);
    EXPECT_EQ(error.getMessagePrefix(), L"Chart: ");

    error.setRuntimeError(4003, -43);
    EXPECT_EQ(error.getParsingError(), nullptr);
    ASSERT_NE(error.getRuntimeError(), nullptr);
    EXPECT_EQ(error.getRuntimeError()->errorCode, -43);
    EXPECT_TRUE(error.getAddlInfo().empty());
    EXPECT_TRUE(error.getMessagePrefix().empty());

    error.setError(2200, L"vxChart/setUp/4");
    EXPECT_EQ(error.getRuntimeError(), nullptr);
    EXPECT_EQ(error.getLocation(), L"vxChart/setUp/4");
    EXPECT_EQ(messageOf(error), L"2200: Frame too small to draw chart.\nvxChart/setUp/4\n\n");
}

TEST(vxErrorTest, ShortParsingFormsLeaveTheMissingPartsEmpty) {
    vxError error;
    error.setParsingError(1100, 7, L"BarChart", L"BarChart()");
    ASSERT_NE(error.getParsingError(), nullptr);
    EXPECT_EQ(error.getParsingError()->argIndex, -1);
    EXPECT_EQ(messageOf(error, L"03"),
              L"Line 7: Function \"BarChart\": Too few arguments.\nBarChart()\n");

    error.setParsingError(1000, 3, L"x(");
    EXPECT_TRUE(error.getParsingError()->fnName.empty());
    EXPECT_EQ(error.getParsingError()->lineNumber, 3);
    EXPECT_EQ(error.getParsingError()->errScriptPart, L"x(");
}

TEST(vxErrorTest, SettersAcceptTheRecordsOwnTexts) {
    vxError error;
    error.setError(4000, L"vxWriteFile/open/1", L"/tmp/a.pdf");
    error.setError(4002, error.getLocation(), error.getAddlInfo());
    EXPECT_EQ(error.getLocation(), L"vxWriteFile/open/1");
    EXPECT_EQ(error.getAddlInfo(), L"/tmp/a.pdf");

    error.setParsingError(1120, 2, L"OpenChart", 3, L"OpenChart(0)");
    const vxParsingError* parsing = error.getParsingError();
    error.setParsingError(1101, 4, parsing->fnName, 5, parsing->errScriptPart, error.getAddlInfo());
    EXPECT_EQ(error.getParsingError()->fnName, L"OpenChart");
    EXPECT_EQ(error.getParsingError()->errScriptPart, L"OpenChart(0)");
}

TEST(vxErrorTest, CopyIsDeepAndNullClears) {
    vxError source;
    source.setParsingError(1120, 2, L"OpenChart", 3, L"OpenChart(0)", L"info");
    vxError copy;
    copy.setRuntimeError(4003, -43, L"somewhere");
    copy.copy(&source);
    source.setError(1000);
    EXPECT_EQ(copy.getRuntimeError(), nullptr);
    EXPECT_EQ(messageOf(copy),
              L"1120: Line 2: Function \"OpenChart\": Argument # 3: Value out of range.\n"
              L"OpenChart(0)\n\ninfo\n");

    vxError runtime;
    runtime.setRuntimeError(4003, -43, L"vxWriteFile/open/2");
    copy.copy(&runtime);
    EXPECT_EQ(messageOf(copy, L"03"), L"File open error. -43\n");

    copy.copy(&copy);
    EXPECT_EQ(copy.getErrorCode(), 4003);
    copy.copy(nullptr);
    EXPECT_EQ(copy.getErrorCode(), 0);
    EXPECT_EQ(copy.getRuntimeError(), nullptr);
    EXPECT_TRUE(copy.getLocation().empty());
}

TEST(vxErrorTest, PrefixComesFromSettingsAndClearTextKeepsTheCode) {
    vxErrorSettings settings;
    settings.setMessagePrefix(L"Velarix: ");
    vxError error;
    error.setRuntimeError(4003, -43, L"vxWriteFile/open/2", L"/tmp/a.pdf");
    error.setMessagePrefix(&settings);
    EXPECT_EQ(error.getMessagePrefix(), L"Velarix: ");

    error.clearText();
    EXPECT_EQ(error.getErrorCode(), 4003);
    EXPECT_TRUE(error.getMessagePrefix().empty());
    EXPECT_TRUE(error.getLocation().empty());
    EXPECT_TRUE(error.getAddlInfo().empty());
    EXPECT_EQ(messageOf(error, L"03"), L"File open error. -43\n");

    error.setMessagePrefix(&settings);
    error.setMessagePrefix(nullptr);
    EXPECT_TRUE(error.getMessagePrefix().empty());
}

}  // namespace
}  // namespace Velarix
