#include "Utilities/Sources/vxDouble.h"

#include <gtest/gtest.h>

#include <limits>
#include <locale>
#include <string>

#include "settings/vxErrorCodes.h"

namespace Velarix {
namespace {

struct NumberCase {
    const wchar_t* token;
    bool passes;
};

TEST(vxDoubleTest, NumberTestAcceptsOnlyTheNumberForm) {
    const NumberCase cases[] = {
        {L"0", true},       {L"1e5", true},    {L".5", true},     {L"-.5", true},
        {L"+3", true},      {L"1E-7", true},   {L"5.", true},     {L"+1.25e+10", true},
        {L"007", true},     {L"-0.0e0", true}, {L"", false},      {L"e5", false},
        {L"1e", false},     {L"1e+", false},   {L"+-1", false},   {L"--1", false},
        {L"1.2.3", false},  {L"1e5e", false},  {L"1e5.0", false}, {L"1,5", false},
        {L".", false},      {L"-", false},     {L".e5", false},   {L"1-", false},
        {L"1e+-5", false},  {L"1e5-", false},  {L" 1", false},    {L"1 ", false},
        {L"0x10", false},   {L"inf", false},   {L"nan", false},   {L"1d5", false},
        {L"\u0661", false},  // an Arabic-Indic digit is no digit here
    };
    for (const NumberCase& c : cases) {
        short expected = c.passes ? kNoError : vxErrScript::kValue;
        EXPECT_EQ(vxDouble::testNumber(c.token), expected) << "token \"" << c.token << "\"";
    }
}

TEST(vxDoubleTest, ConversionReadsEveryForm) {
    EXPECT_EQ(vxDouble::toDouble(L"1e5"), 1e5);
    EXPECT_EQ(vxDouble::toDouble(L"-.5"), -0.5);
    EXPECT_EQ(vxDouble::toDouble(L"5."), 5.0);
    EXPECT_EQ(vxDouble::toDouble(L"+3"), 3.0);
    EXPECT_EQ(vxDouble::toDouble(L"1E-7"), 1e-7);
    EXPECT_EQ(vxDouble::toDouble(L"0.1"), 0.1);
    EXPECT_EQ(vxDouble::toDouble(L"1.7976931348623157e308"), std::numeric_limits<double>::max());
}

TEST(vxDoubleTest, ConversionClampsOverflowAndFlushesUnderflow) {
    const double max = std::numeric_limits<double>::max();
    EXPECT_EQ(vxDouble::toDouble(L"1e999"), max);
    EXPECT_EQ(vxDouble::toDouble(L"-1e999"), -max);
    EXPECT_EQ(vxDouble::toDouble(L"1e-999"), 0.0);
    EXPECT_EQ(vxDouble::toDouble(L"-1e-999"), 0.0);
}

// A process locale with a decimal comma must not change how numbers read.
struct CommaPoint : std::numpunct<wchar_t> {
    wchar_t do_decimal_point() const override { return L','; }
};

TEST(vxDoubleTest, ConversionIgnoresTheProcessLocale) {
    std::locale previous = std::locale::global(std::locale(std::locale::classic(), new CommaPoint));
    double point = vxDouble::toDouble(L"2.5");
    double comma = vxDouble::toDouble(L"2,5");
    std::locale::global(previous);
    EXPECT_EQ(point, 2.5);
    EXPECT_EQ(comma, 2.0);
}

}  // namespace
}  // namespace Velarix
