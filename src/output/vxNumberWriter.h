// Numbers for the text devices, written the same way on every machine
// whatever the process locale says: the decimal point is always a point.
//
// The general form is what a text stream in its default state writes: at
// most `precision` significant digits, no trailing zeros, no point for a
// whole number, and exponent form when the decimal exponent is below -4 or
// reaches the precision ("123.456", "0.5", "100", "1e+06", "1e-05"). The
// fixed form always has `decimals` digits after the point ("1234567.000000").
//
// In both forms a negative zero and anything that rounds to zero are written
// without a sign, and NaN and the infinities are written as 0, so that no
// document ever carries "-0", "nan" or "inf".
#pragma once

#include <string>

namespace Velarix {

namespace vxNumberWriter {

std::string general(double value, int precision = 6);
std::string fixed(double value, int decimals);

// The same texts as wide strings; they hold ASCII only.
std::wstring generalW(double value, int precision = 6);
std::wstring fixedW(double value, int decimals);

// The form of PDF files: 0 for a magnitude below 1e-6, else the general
// form with six digits, or the fixed form with six decimals where the
// general one would have an exponent ("1234567.000000").
std::string pdf(double value);

// Appends the general form, without a text of its own in between.
void append(std::wstring& out, double value, int precision = 6);
void append(std::string& out, double value, int precision = 6);

}  // namespace vxNumberWriter

}  // namespace Velarix
