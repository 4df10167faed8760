// The plug-in's answers worked out apart from the host: error messages by
// their flags, values of curve fits, the database's folder and the string
// resources.
#include <gtest/gtest.h>

#include <cwchar>
#include <memory>

#include "host/vxPluginStrings.h"
#include "host/vxPluginTexts.h"
#include "overlays/vxCurveFittingData.h"
#include "settings/vxError.h"
#include "settings/vxErrorCodes.h"

namespace Velarix::test {
namespace {

namespace texts = vxPluginTexts;

std::unique_ptr<vxError> rangeError() {
    auto error = std::make_unique<vxError>();
    error->setParsingError(vxErrScript::kOutOfRange, 2, L"OpenChart", 3, L"OpenChart(10; 0)");
    return error;
}

TEST(vxPluginTexts, WithoutAnErrorOnlyTheCodeFlagGivesZero) {
    vxError none;
    bool alert = true;
    for (const wchar_t* flags : {L"", L"1", L"00", L"003"}) {
        EXPECT_EQ(texts::errorMessage(&none, 1, flags, alert), L"") << flags;
        EXPECT_FALSE(alert);
    }
    EXPECT_EQ(texts::errorMessage(&none, 1, L"01", alert), L"0");
    EXPECT_EQ(texts::errorMessage(nullptr, 1, L"11", alert), L"0");
}

TEST(vxPluginTexts, FirstFlagSoundsTheAlertAndTheRestComposes) {
    const auto owned = rangeError();
    const vxError& error = *owned;
    bool alert = false;
    const std::wstring plain = texts::errorMessage(&error, 1, L"", alert);
    EXPECT_TRUE(alert);
    EXPECT_NE(plain.find(L"Value out of range."), std::wstring::npos);
    EXPECT_EQ(plain.find(L"1120"), std::wstring::npos);

    const std::wstring coded = texts::errorMessage(&error, 1, L"013", alert);
    EXPECT_FALSE(alert);
    EXPECT_EQ(coded.rfind(L"1120: Line 2", 0), 0u) << coded.size();
    EXPECT_EQ(coded.find(L'\n'), std::wstring::npos);
    EXPECT_NE(coded.find(L'\r'), std::wstring::npos);

    EXPECT_EQ(texts::errorMessage(&error, 1, L"113", alert), coded);
    EXPECT_TRUE(alert);
    EXPECT_EQ(texts::drawingErrorText(&error, 1, L"013", alert), coded);
    EXPECT_FALSE(alert);
}

TEST(vxPluginTexts, PlainTextRecordCountsAsError) {
    vxError error;
    error.setError(kErrPlainText, L"vxCH_DrawChart", texts::kMissingScript);
    EXPECT_TRUE(texts::holdsError(&error));
    bool alert = false;
    EXPECT_EQ(texts::errorMessage(&error, 2, L"013", alert), texts::kMissingScript);
    error.clear();
    EXPECT_FALSE(texts::holdsError(&error));
}

TEST(vxPluginTexts, CurveFitValueChecksTypeAndIndexFirst) {
    EXPECT_EQ(texts::curveFitValue(nullptr, 1, 1, -5, 1, L"|u|"), texts::kInvalidType);
    EXPECT_EQ(texts::curveFitValue(nullptr, 1, 1, 11, 1, L"|u|"), texts::kInvalidType);
    EXPECT_EQ(texts::curveFitValue(nullptr, 1, 1, 10, 0, L"|u|"), texts::kInvalidCoefficient);
    EXPECT_EQ(texts::curveFitValue(nullptr, 1, 1, -4, 13, L"|u|"), texts::kInvalidCoefficient);
    // An empty store answers as for a fit the run didn't make.
    vxCurveFittingData empty;
    EXPECT_EQ(texts::curveFitValue(&empty, 1, 1, 1, 1, L"|u|"), L"0");
    EXPECT_EQ(texts::curveFitValue(nullptr, 1, 1, -4, 12, L"|f2|"), L"0.00");
}

TEST(vxPluginTexts, CurveFitValueReadsTheFilledStore) {
    vxCurveFittingData data;
    vxCurveFittingDataItem item;
    item.chartIndex = 2;
    item.seriesIndex = 1;
    item.type = 3;
    item.numOfCoefficients = 3;
    item.c[0] = 1.5;
    item.c[1] = -0.25;
    item.c[2] = 1234.5678;
    ASSERT_TRUE(data.addItem(item));
    EXPECT_EQ(texts::curveFitValue(&data, 2, 1, 3, 1, L"|u|"), L"3");
    EXPECT_EQ(texts::curveFitValue(&data, 2, 1, 3, 2, L"|u|"), L"1.5");
    EXPECT_EQ(texts::curveFitValue(&data, 2, 1, 3, 3, L"a = |f3| !"), L"a = -0.250 !");
    EXPECT_EQ(texts::curveFitValue(&data, 2, 1, 3, 4, L"|f1|"), L"1234.6");
    // Another series, another type: nothing made.
    EXPECT_EQ(texts::curveFitValue(&data, 2, 2, 3, 1, L"|u|"), L"0");
    EXPECT_EQ(texts::curveFitValue(&data, 2, 1, 4, 2, L"|u|"), L"0");
}

TEST(vxPluginTexts, DatabaseFolderOfTheHostsPath) {
    EXPECT_EQ(texts::databaseFolder(L"file:/C:/Data/Sales.fmp12", 19), L"C:/Data/");
    EXPECT_EQ(texts::databaseFolder(L"filelinux:/opt/FileMaker/Data/Sales.fmp12", 21),
              L"/opt/FileMaker/Data/");
    EXPECT_EQ(texts::databaseFolder(L"filemac:/Macintosh HD/Data/Sales.fmp12", 19),
              L"Macintosh HD/Data/");
    EXPECT_EQ(texts::databaseFolder(L"file://Disk/Data/Sales.fp5", 4), L"Disk/Data/");
    EXPECT_EQ(texts::databaseFolder(L"Sales.fmp12", 19), L"");
    EXPECT_EQ(texts::databaseFolder(L"", 19), L"");
}

TEST(vxPluginTexts, MajorVersionAndPosition) {
    EXPECT_EQ(texts::majorVersion(L"Server 21.0.1"), 21);
    EXPECT_EQ(texts::majorVersion(L"Pro 19.6.3"), 19);
    EXPECT_EQ(texts::majorVersion(L"Web Publishing Engine"), 0);
    EXPECT_EQ(texts::position(L"%1 %2", L" ", L" "), L"   ");
    EXPECT_EQ(texts::position(L"x=%1, y=%2, x again %1", L"3", L"4"), L"x=3, y=4, x again 3");
}

TEST(vxPluginStrings, EveryFunctionHasItsSignature) {
    for (const vxPluginFunction& function : vxPluginFunctions()) {
        const wchar_t* signature = vxPluginStringText(function.id + kSignatureBaseID);
        ASSERT_NE(signature, nullptr) << function.id;
        EXPECT_EQ(std::wcsncmp(signature, L"vxCH_", 5), 0);
        EXPECT_LE(function.minArgs, function.maxArgs);
    }
    EXPECT_EQ(vxPluginStringText(131), vxPluginStringText(kOptionsStringID));
    EXPECT_EQ(std::wcsncmp(vxPluginStringText(131), L"vxCH", 4), 0);
    EXPECT_EQ(vxPluginStringText(104), nullptr);
    EXPECT_EQ(std::wstring(vxPluginStringText(128)), L"Velarix " VELARIX_VERSION_TEXT);
}

}  // namespace
}  // namespace Velarix::test
