#include "Utilities/Sources/vxFormatNumber.h"

#include <gtest/gtest.h>

#include <limits>
#include <locale>
#include <string>
#include <vector>

#include "settings/vxErrorCodes.h"
#include "settings/vxFormatSettings.h"

namespace Velarix {
namespace {

using Expected = std::vector<std::pair<double, const wchar_t*>>;

void expectFormats(vxFormatNumber& number, const wchar_t* specifier, const Expected& cases) {
    for (const auto& [value, expected] : cases) {
        EXPECT_EQ(number.format(value, specifier), expected)
            << "\"" << specifier << "\" of " << value;
    }
}

vxFormatSettings separators(wchar_t point, wchar_t separator, short group) {
    vxFormatSettings settings;
    settings.setDecimalPoint(point);
    settings.setThousandsSep(separator);
    settings.setThousandsGroupSize(group);
    return settings;
}

TEST(vxFormatNumberTest, PlainAndWholeNumbers) {
    vxFormatNumber number;
    expectFormats(number, L"u",
                  {{1234.5, L"1234.5"},
                   {1.0 / 3.0, L"0.333333333"},
                   {1234567890, L"1.23456789e+09"},
                   {1e-5, L"1e-05"},
                   {-0.0, L"0"}});
    // Halves round away from zero.
    expectFormats(number, L"i0",
                  {{2.5, L"3"}, {-2.5, L"-3"}, {-0.3, L"0"}, {1e20, L"100000000000000000000"}});
    expectFormats(number, L"i1", {{15, L"20"}});
    expectFormats(number, L"i2", {{1234, L"1200"}});
    expectFormats(number, L"i9", {{4e9, L"4000000000"}});
}

TEST(vxFormatNumberTest, FixedNumbers) {
    vxFormatNumber number;
    // A negative value that prints as zero loses its minus; "f0" keeps the point.
    expectFormats(number, L"f2",
                  {{1234.5, L"1234.50"},
                   {-0.004, L"0.00"},
                   {-0.006, L"-0.01"},
                   {-0.0, L"0.00"},
                   {1e-300, L"0.00"}});
    expectFormats(number, L"f0", {{12, L"12."}, {-0.4, L"0."}});
    expectFormats(number, L"f1", {{0.25, L"0.2"}, {1e20, L"100000000000000000000.0"}});
}

TEST(vxFormatNumberTest, ScaleAndSignPrefixes) {
    vxFormatNumber number;
    expectFormats(number, L"3f1", {{2.5, L"2500.0"}});
    expectFormats(number, L"-2f1", {{250, L"2.5"}});
    expectFormats(number, L"+2f1", {{1.5, L"+150.0"}});
    expectFormats(number, L"+-2f1", {{250, L"+2.5"}, {-250, L"-2.5"}});
    expectFormats(number, L"9u", {{2, L"2e+09"}});
    expectFormats(number, L"-9i0", {{4.6e9, L"5"}});
    expectFormats(number, L"+u", {{5, L"+5"}, {0, L"+0"}, {-0.5, L"-0.5"}, {0.5, L"+0.5"}});
    expectFormats(number, L"+i0", {{-0.3, L"+0"}});
    expectFormats(number, L"+f2", {{-0.004, L"+0.00"}, {0.001, L"+0.00"}});
    expectFormats(number, L"+e2", {{123456, L"+1.23e+05"}, {-123456, L"-1.23e+05"}});
    expectFormats(number, L"+g1", {{5, L"+5.0"}});
}

TEST(vxFormatNumberTest, ExponentForms) {
    vxFormatNumber number;
    // A mantissa that rounds up to 10 moves into the exponent; values within
    // the tolerance of 0 print as 0.
    expectFormats(number, L"e2",
                  {{0.000123, L"1.23e-04"},
                   {9.999, L"1.00e+01"},
                   {1000, L"1.00e+03"},
                   {0, L"0.00e+00"},
                   {1e-20, L"0.00e+00"},
                   {-1e-20, L"0.00e+00"}});
    expectFormats(number, L"E0", {{123, L"1E+02"}});
    expectFormats(number, L"e0", {{9.6, L"1e+01"}});
    expectFormats(number, L"e3", {{123456, L"1.235e+05"}});
    expectFormats(number, L"E1", {{1e300, L"1.0E+300"}});
    expectFormats(number, L"e1",
                  {{std::numeric_limits<double>::max(), L"1.8e+308"}, {2.5e-15, L"2.5e-15"}});
}

TEST(vxFormatNumberTest, GeneralForms) {
    vxFormatNumber number;
    expectFormats(number, L"g3", {{1000, L"1000.000"}, {100000, L"1.000e+05"}});
    expectFormats(number, L"G2", {{123456, L"1.23E+05"}});
    expectFormats(number, L"g2",
                  {{0.001, L"0.00"}, {0.0001, L"0.00"}, {0.00001, L"1.00e-05"}, {0, L"0.00"}});
    expectFormats(number, L"g0", {{7, L"7."}});
}

TEST(vxFormatNumberTest, EngineeringForms) {
    vxFormatNumber number;
    expectFormats(
        number, L"h2",
        {{12300, L"12.3e+03"}, {1234567, L"1.23e+06"}, {123, L"123e+00"}, {0, L"0.00e+00"}});
    expectFormats(number, L"h0", {{12300, L"10e+03"}});
    expectFormats(number, L"H3", {{0.5, L"500.0E-03"}});
    expectFormats(number, L"h1", {{0.0042, L"4.2e-03"}, {0.042, L"42e-03"}});
    // Not 1000.0e+03.
    expectFormats(number, L"h3", {{999999, L"1.000e+06"}});
    expectFormats(number, L"H2", {{-12300, L"-12.3E+03"}});
}

TEST(vxFormatNumberTest, ThousandsAndDecimalPoint) {
    const vxFormatSettings commaSettings = separators(L'.', L',', 3);
    vxFormatNumber comma(&commaSettings);
    expectFormats(comma, L"f2",
                  {{1234.5, L"1,234.50"}, {-1234.5, L"-1,234.50"}, {-123.4, L"-123.40"}});
    expectFormats(comma, L"+f2", {{1234.5, L"+1,234.50"}});
    expectFormats(comma, L"i3", {{1234567, L"1,235,000"}});
    expectFormats(comma, L"u", {{123456789, L"123,456,789"}, {1234567890, L"1.23456789e+09"}});
    expectFormats(comma, L"g3", {{1234.5, L"1,234.500"}});
    expectFormats(comma, L"e2", {{123456, L"1.23e+05"}});
    const vxFormatSettings germanSettings = separators(L',', L'.', 3);
    vxFormatNumber german(&germanSettings);
    expectFormats(german, L"f2", {{1234567.891, L"1.234.567,89"}});
    expectFormats(german, L"u", {{2.5, L"2,5"}});
    expectFormats(german, L"e2", {{1234, L"1,23e+03"}});
    expectFormats(german, L"h2", {{12300, L"12,3e+03"}});
    const vxFormatSettings foursSettings = separators(L',', L'.', 4);
    vxFormatNumber fours(&foursSettings);
    expectFormats(fours, L"f3", {{1234567.891, L"123.4567,891"}});
    expectFormats(fours, L"f0", {{123456789, L"1.2345.6789,"}});
    expectFormats(fours, L"f1", {{-12345, L"-1.2345,0"}, {-1234, L"-1234,0"}});
}

TEST(vxFormatNumberTest, BadSpecifiersNameTheirCheck) {
    const std::pair<const wchar_t*, const wchar_t*> cases[] = {
        {L"i", L"vxFormatNumber/format/1"},      {L"x", L"vxFormatNumber/format/1"},
        {L"+", L"vxFormatNumber/format/1"},      {L"u5", L"vxFormatNumber/format/2"},
        {L"5", L"vxFormatNumber/format/2"},      {L"af2", L"vxFormatNumber/format/3"},
        {L"a2f1", L"vxFormatNumber/format/4"},   {L"+af1", L"vxFormatNumber/format/5"},
        {L"-+2f1", L"vxFormatNumber/format/6"},  {L"+-af1", L"vxFormatNumber/format/7"},
        {L"+-12f1", L"vxFormatNumber/format/8"}, {L"x5", L"vxFormatNumber/format/9"},
        {L"+x5", L"vxFormatNumber/format/9"},
    };
    for (const auto& [specifier, location] : cases) {
        vxFormatNumber number;
        EXPECT_EQ(number.format(1.0, specifier), L"") << specifier;
        ASSERT_TRUE(number.isError()) << specifier;
        EXPECT_EQ(number.getError()->getErrorCode(), vxErrFormat::kNumberFormat);
        EXPECT_EQ(number.getError()->getLocation(), location) << specifier;
        EXPECT_EQ(number.getError()->getAddlInfo(), specifier);
    }
}

TEST(vxFormatNumberTest, FormatTextsWithPrefixAndPostfix) {
    vxFormatNumber number;
    EXPECT_EQ(number.toString(1.0, L"a|f1|b"), L"a1.0b");
    EXPECT_EQ(number.getPrefixString(), L"a");
    EXPECT_EQ(number.getFormatSpecifier(), L"f1");
    EXPECT_EQ(number.getPostfixString(), L"b");
    EXPECT_EQ(number.toString(2.0), L"a2.0b");
    EXPECT_EQ(number.toString(25.0, L"|u|%"), L"25%");
    EXPECT_EQ(number.toString(1.0, L"a|f1|b|c"), L"a1.0b|c");
    EXPECT_EQ(number.toString(1.0, L"a||b"), L"ab");
    EXPECT_EQ(number.toString(2.5, L""), L"2.5");
    EXPECT_EQ(number.toString(2.5), L"");  // an empty text prints nothing
    std::wstring column;
    ASSERT_EQ(number.setFormat(L"f1"), kNoError);
    for (double v : {1.0, 2.26}) number.appendString(v, column);
    EXPECT_EQ(column, L"1.02.3");
}

TEST(vxFormatNumberTest, BadFormatTextsAreRaisedAndPrintNothing) {
    vxFormatNumber number;
    EXPECT_EQ(number.setFormat(L"a|f1"), vxErrFormat::kNumberFormat);
    EXPECT_EQ(number.getError()->getLocation(), L"vxFormatNumber/setFormat/1");
    EXPECT_EQ(number.getError()->getAddlInfo(), L"a|f1");
    EXPECT_EQ(number.toString(1.0), L"");
    EXPECT_EQ(number.setFormat(L"pre|i|post"), vxErrFormat::kNumberFormat);
    EXPECT_EQ(number.getError()->getLocation(), L"vxFormatNumber/format/1");
    EXPECT_EQ(number.getError()->getAddlInfo(), L"pre|i|post");
    EXPECT_EQ(number.toString(1.0, L"a|f1"), L"");
    // A good format clears the record; the check and the specifier alone
    // leave the kept format as it is.
    EXPECT_EQ(number.setFormat(L"<|f2|>"), kNoError);
    EXPECT_TRUE(number.isValid(L"a|e3|b"));
    EXPECT_TRUE(number.isValid(L""));
    EXPECT_FALSE(number.isValid(L"a|e3"));
    EXPECT_FALSE(number.isValid(L"f"));
    EXPECT_EQ(number.format(1.0, L"e1"), L"1.0e+00");
    EXPECT_EQ(number.toString(1.0), L"<1.00>");
}

TEST(vxFormatNumberTest, SettingsGiveSeparatorsAndDefaultFormat) {
    vxFormatSettings settings;
    settings.setDecimalPoint(L',');
    settings.setThousandsSep(L'.');
    settings.setThousandsGroupSize(4);
    settings.setFillChar(L'*');
    settings.setDefaultNumberFormat(L"f2");
    vxFormatNumber number(&settings);
    EXPECT_EQ(number.toString(12345.678), L"1.2345,68");
    EXPECT_EQ(number.getFillChar(), L'*');
    vxFormatNumber plain(static_cast<const vxFormatSettings*>(nullptr));
    EXPECT_EQ(plain.toString(12345.678), L"12345.678");
}

// A process locale with a decimal comma and grouping must not show.
struct CommaNumbers : std::numpunct<char> {
    char do_decimal_point() const override { return ','; }
    char do_thousands_sep() const override { return '.'; }
    std::string do_grouping() const override { return "\3"; }
};

TEST(vxFormatNumberTest, TheProcessLocaleDoesNotShow) {
    std::locale previous =
        std::locale::global(std::locale(std::locale::classic(), new CommaNumbers));
    vxFormatNumber number;
    const std::wstring texts = number.format(12345.5, L"u") + L" " + number.format(12345.5, L"f1") +
                               L" " + number.format(12345.5, L"e1");
    std::locale::global(previous);
    EXPECT_EQ(texts, L"12345.5 12345.5 1.2e+04");
}

TEST(vxFormatNumberTest, DefaultFormatCoversEveryValue) {
    const double invalid = -std::numeric_limits<double>::max();
    const std::pair<std::vector<double>, const wchar_t*> cases[] = {
        {{}, L"u"},
        {{1, 2, 3}, L"u"},
        {{0, 0.5, 1}, L"f1"},
        {{1.25, 10.5, 100}, L"f2"},
        {{-1.25, 3}, L"f2"},
        {{invalid, 2.5}, L"f1"},
        {{0.00001234}, L"e3"},
        {{1e12, 0.5}, L"e0"},
        {{1.5e10, 2.25e11}, L"e2"},
        {{123456.789, 0.001}, L"f3"},
        {{12345.5, 0.000123}, L"f4"},  // nine digits in all
        {{0.000123456789}, L"f9"},
        {{1000, 1e-14}, L"u"},  // too small beside 1000
        {{1, 1e-14}, L"e0"},
        {{9.9999999999}, L"u"},
    };
    for (const auto& [values, expected] : cases) {
        EXPECT_EQ(vxFormatNumber::getDefaultFormat(values), expected) << values.size();
    }
}

TEST(vxFormatNumberTest, AlignedColumnsOfDoubles) {
    vxFormatNumber number;
    number.setUpWidths(std::vector<double>{1.5, -22.25, 300});
    EXPECT_EQ(number.getIntegerWidth(), 3);
    EXPECT_EQ(number.getFractionWidth(), 2);
    EXPECT_EQ(number.toAlignedString(1.5), L"  1.50");
    EXPECT_EQ(number.toAlignedString(-22.25), L"-22.25");
    EXPECT_EQ(number.toAlignedString(300.0), L"300.00");
    EXPECT_EQ(number.toAlignedString(0.126), L"  0.13");
    EXPECT_EQ(number.toAlignedString(1234.0), L"?");
    EXPECT_EQ(number.toAlignedString(-100.0), L"?");
    number.setFillChar(L'*');
    number.setDecimalPoint(L',');
    EXPECT_EQ(number.toAlignedString(1.5), L"**1,50");
    EXPECT_EQ(number.toAlignedString(7L), L"**7,00");
}

TEST(vxFormatNumberTest, AlignedColumnsOfWholeNumbersAndFloats) {
    vxFormatNumber number;
    number.setUpWidths(std::vector<long>{5, -12, 100});
    EXPECT_EQ(number.getIntegerWidth(), 3);
    EXPECT_EQ(number.getFractionWidth(), -1);
    EXPECT_EQ(number.toAlignedString(5L), L"  5");
    EXPECT_EQ(number.toAlignedString(-12L), L"-12");
    EXPECT_EQ(number.toAlignedString(1000L), L"?");
    EXPECT_EQ(number.toAlignedString(2.5), L"  2.5");
    number.setUpWidths(std::vector<short>{-7, 42});
    EXPECT_EQ(number.toAlignedString(3L), L" 3");
    number.setUpWidths(std::vector<float>{0.1f, 2.25f});
    EXPECT_EQ(number.getIntegerWidth(), 1);
    EXPECT_EQ(number.getFractionWidth(), 2);
    EXPECT_EQ(number.toAlignedString(double(0.1f)), L"0.10");
    number.setUpWidths(std::vector<double>{});
    EXPECT_EQ(number.toAlignedString(12.5), L"12.5");
}

}  // namespace
}  // namespace Velarix
