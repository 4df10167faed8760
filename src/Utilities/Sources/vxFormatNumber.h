// Numbers as text. A number specifier is, in this order: an optional "+"
// (show the sign), an optional scale (a digit d multiplies the value by
// 10^d, "-d" by 10^-d; "+d" and "+-d" also show the sign), a type letter and,
// for every type but "u", a precision digit p:
//
//   u   9 significant digits, the shorter of fixed and exponent notation
//   i   rounded to a whole multiple of 10^p ("i2" of 1234 is 1200)
//   f   p decimals; "f0" keeps the point ("12.")
//   e E mantissa with p decimals and an exponent of two digits at least
//   g G fixed with p decimals while the exponent lies in -4..p, else as e
//   h H as e, with an exponent that is a multiple of 3
//
// g and h write a small "e", G and H a capital one. The decimal point and
// the thousands separator come from the settings; numbers in exponent form
// get no separators. A negative value that prints as zero loses its minus.
// A bad specifier is error 2001 at "vxFormatNumber/format/N":
//   1 no precision digit after a type other than "u"
//   2 a precision digit after "u", or after nothing
//   3 one character before the type that is neither "+" nor a digit
//   4, 5 two characters before the type: not "+d" or "-d"
//   6, 7 three characters before the type: not "+-d"
//   8 more than three characters before the type
//   9 an unknown type letter
//
// Columns of numbers line up by their points: setUpWidths measures the
// values, toAlignedString pads each one to the widths.
#pragma once

#include <string>
#include <vector>

#include "Utilities/Sources/vxFormat.h"

namespace Velarix {

class vxFormatSettings;

// A specifier taken apart.
struct vxNumberSpecifier {
    wchar_t type = L'u';
    short precision = 0;
    short scale = 0;  // a power of ten, -9 to 9
    bool showSign = false;
};

class vxFormatNumber : public vxFormat {
public:
    vxFormatNumber();
    // The fill character, decimal point, thousands separator and group size
    // of the settings, and their default number format when they have one.
    explicit vxFormatNumber(const vxFormatSettings* settings);
    ~vxFormatNumber() override;

    // The value by the specifier alone; a bad specifier is raised and gives
    // the empty string.
    std::wstring format(double value, const std::wstring& specifier);
    // 0, or the running number of the check that fails (see above).
    static short parseSpecifier(const std::wstring& specifier, vxNumberSpecifier& out);

    // The shortest specifier that shows every value in full, as far as 9
    // significant digits go: "u", "fN" or "eN". Values outside the default
    // limits of a series and those too small to tell from 0 beside the
    // largest are passed over.
    static std::wstring getDefaultFormat(const std::vector<double>& values);

    // The widths of a column: the most characters before the point (a minus
    // counts) and the most digits behind it, -1 when no value has a point.
    // Whole numbers print as they are, doubles with 15 significant digits,
    // floats with the digits that tell them apart.
    void setUpWidths(const std::vector<short>& values);
    void setUpWidths(const std::vector<long>& values);
    void setUpWidths(const std::vector<float>& values);
    void setUpWidths(const std::vector<double>& values);
    // A value of the column: 15 significant digits, rounded or padded with
    // zeros to the fraction width, filled in front to the integer width.
    // A value wider than the integer width gives "?".
    std::wstring toAlignedString(double value) const;
    std::wstring toAlignedString(long value) const;

    short getIntegerWidth() const { return integerWidth; }
    void setIntegerWidth(short width) { integerWidth = width; }
    short getFractionWidth() const { return fractionWidth; }
    void setFractionWidth(short width) { fractionWidth = width; }
    wchar_t getFillChar() const { return fillChar; }
    void setFillChar(wchar_t c) { fillChar = c; }
    wchar_t getDecimalPoint() const { return decimalPoint; }
    void setDecimalPoint(wchar_t c) { decimalPoint = c; }
    // 0: none.
    wchar_t getThousandsSep() const { return thousandsSep; }
    void setThousandsSep(wchar_t c) { thousandsSep = c; }
    short getThousandsGroupSize() const { return thousandsGroupSize; }
    void setThousandsGroupSize(short size) { thousandsGroupSize = size; }

    void dump(short depth, std::ostream& out) const override;

protected:
    short checkSpecifier(const std::wstring& specifier) const override;
    const wchar_t* checkMethod() const override { return L"format"; }
    void keepSpecifier() override;
    void appendValue(double value, std::wstring& out) override;

private:
    // The routes; each appends to `out`.
    void appendBySpecifier(double value, const vxNumberSpecifier& spec, std::wstring& out) const;
    void appendPlainRoute(double value, const vxNumberSpecifier& spec, std::wstring& out) const;
    void appendWhole(double value, short precision, std::wstring& out) const;
    void appendFixed(double value, short precision, std::wstring& out) const;
    void appendExponent(double value, const vxNumberSpecifier& spec, std::wstring& out) const;
    short appendMantissa(double mantissa, short precision, std::wstring& out) const;
    // The steps after printing, on the text from `start` on.
    void setDecimalPointIn(std::wstring& out, size_t start) const;
    void insertThousandsSeps(std::wstring& out, size_t start) const;
    void widthsOf(const std::string& text);
    std::wstring alignedText(std::string text, double value) const;

    vxNumberSpecifier kept;
    short integerWidth = -1;
    short fractionWidth = -1;
    wchar_t fillChar = L' ';
    wchar_t decimalPoint = L'.';
    wchar_t thousandsSep = 0;
    short thousandsGroupSize = 3;
};

}  // namespace Velarix
