#include <gtest/gtest.h>

#include <charconv>
#include <cmath>
#include <limits>
#include <locale>
#include <random>
#include <sstream>
#include <string>
#include <vector>

#include "output/vxNumberWriter.h"

namespace Velarix {
namespace {

using vxNumberWriter::fixed;
using vxNumberWriter::general;

// The reference of the general form: a stream in its default state under
// the classic locale.
std::string streamed(double value) {
    std::ostringstream out;
    out.imbue(std::locale::classic());
    out << value;
    return out.str();
}

// A decimal comma and thousands points, as a German locale has them.
struct CommaPunct : std::numpunct<char> {
    char do_decimal_point() const override { return ','; }
    char do_thousands_sep() const override { return '.'; }
    std::string do_grouping() const override { return "\3"; }
};

TEST(vxNumberWriter, GeneralAndFixedForms) {
    EXPECT_EQ(general(123.456), "123.456");
    EXPECT_EQ(general(0.5), "0.5");
    EXPECT_EQ(general(100), "100");
    EXPECT_EQ(general(123456.7), "123457");
    EXPECT_EQ(general(999999.5), "1e+06");
    EXPECT_EQ(general(1e6), "1e+06");
    EXPECT_EQ(general(-2345678.0), "-2.34568e+06");
    EXPECT_EQ(general(0.0001), "0.0001");
    EXPECT_EQ(general(0.00001), "1e-05");
    EXPECT_EQ(general(0.1f), "0.1");
    EXPECT_EQ(general(2.0 / 3.0, 3), "0.667");
    EXPECT_EQ(general(std::numeric_limits<double>::lowest()), "-1.79769e+308");
    EXPECT_EQ(general(std::numeric_limits<double>::denorm_min()), "4.94066e-324");
    EXPECT_EQ(vxNumberWriter::generalW(-7.25), L"-7.25");
    EXPECT_EQ(fixed(1234567.0, 6), "1234567.000000");
    EXPECT_EQ(fixed(std::numeric_limits<double>::max(), 6).size(), 316u);
}

TEST(vxNumberWriter, NoSignedZeroNoNaNNoInfinity) {
    const double inf = std::numeric_limits<double>::infinity();
    EXPECT_EQ(general(-0.0), "0");
    EXPECT_EQ(general(std::nan("")), "0");
    EXPECT_EQ(general(inf), "0");
    EXPECT_EQ(general(-inf), "0");
    EXPECT_EQ(fixed(-0.0, 6), "0.000000");
    EXPECT_EQ(fixed(-0.0000001, 6), "0.000000");
    EXPECT_EQ(fixed(-inf, 2), "0");
    EXPECT_EQ(general(-1e-20), "-1e-20");  // small, but not zero
}

TEST(vxNumberWriter, RandomValuesRoundTripToSixDigits) {
    std::mt19937_64 random(20240917);
    std::uniform_real_distribution<double> mantissa(-10.0, 10.0);
    std::uniform_int_distribution<int> exponent(-12, 12);
    for (int i = 0; i < 20000; ++i) {
        const double value = mantissa(random) * std::pow(10.0, exponent(random));
        const std::string text = general(value);
        double back = 0.0;
        const auto end = std::from_chars(text.data(), text.data() + text.size(), back).ptr;
        ASSERT_EQ(text, streamed(value));
        ASSERT_EQ(end, text.data() + text.size()) << text;
        ASSERT_LE(std::fabs(back - value), std::fabs(value) * 5e-6) << text;
        ASSERT_EQ(general(back), text);
    }
}

// The appending forms write into the text in place; they must give the
// general form exactly, after whatever the text holds already.
TEST(vxNumberWriter, AppendingGivesTheGeneralForm) {
    std::mt19937_64 random(20251125);
    std::uniform_real_distribution<double> mantissa(-10.0, 10.0);
    std::uniform_int_distribution<int> exponent(-320, 308);
    std::vector<double> values = {-0.0,
                                  -1e-300,
                                  std::nan(""),
                                  -std::numeric_limits<double>::infinity(),
                                  std::numeric_limits<double>::lowest(),
                                  0.1f,
                                  123456.5};
    for (int i = 0; i < 5000; ++i)
        values.push_back(mantissa(random) * std::pow(10.0, exponent(random)));
    std::wstring wide = L"d=";
    std::string narrow = "d=";
    std::string expected = "d=";
    for (double value : values) {
        for (int precision : {1, 6, 17}) {
            vxNumberWriter::append(wide, value, precision);
            vxNumberWriter::append(narrow, value, precision);
            expected += general(value, precision);
            ASSERT_EQ(
                vxNumberWriter::generalW(value, precision),
                std::wstring(expected.end() - general(value, precision).size(), expected.end()));
        }
    }
    EXPECT_EQ(narrow, expected);
    EXPECT_EQ(wide, std::wstring(expected.begin(), expected.end()));
}

TEST(vxNumberWriter, IgnoresTheProcessLocale) {
    const std::locale saved =
        std::locale::global(std::locale(std::locale::classic(), new CommaPunct));
    std::ostringstream probe;
    probe << 1234.5;
    EXPECT_EQ(probe.str(), "1.234,5");  // the global locale is in force
    EXPECT_EQ(general(1234.5), "1234.5");
    EXPECT_EQ(fixed(1234567.0, 2), "1234567.00");
    std::wstring out = L"x=";
    vxNumberWriter::append(out, 2.5);
    EXPECT_EQ(out, L"x=2.5");
    std::locale::global(saved);
}

}  // namespace
}  // namespace Velarix
