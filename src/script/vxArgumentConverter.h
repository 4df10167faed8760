// Converts the raw text of one argument by its descriptor's type code and
// adds the value to the vxAssign. A failure is returned as a code with the
// zero-based element it concerns (-1: the whole argument); the reader turns
// it into a located error.
#pragma once

#include <string>
#include <vector>

namespace Velarix {

class vxArgument;
class vxAssign;
class vxUserSettings;

struct vxConversion {
    short code = 0;
    long element = -1;
};

class vxArgumentConverter {
public:
    vxArgumentConverter(vxAssign& assign, const vxUserSettings* settings);

    vxConversion convert(long fnId, long index, const vxArgument& descriptor,
                         const std::wstring& text);

private:
    enum class Frame { kVoid, kConstant, kNumber, kFailed };
    enum class Element { kShort, kLong, kFloat, kDouble };

    // The steps shared by the numeric types: an empty text, a keyword, or
    // a number to be read.
    Frame openFrame(const std::wstring& text, std::wstring& constantValue, vxConversion& result);
    short lookUpConstant(const std::wstring& text, std::wstring& value) const;

    // Scalars
    vxConversion convertInteger(const std::wstring& text, Element kind);
    vxConversion convertReal(const std::wstring& text, Element kind, bool isAngle);

    // Arrays
    Frame openArray(const std::wstring& text, Element kind, std::vector<double>& values,
                    vxConversion& result);
    vxConversion testInterpolation(const std::vector<double>& values) const;
    vxConversion convertArray(const std::wstring& text, Element kind, double factor = 1.0);
    vxConversion convertLimitedFloats(const std::wstring& text, size_t maxCount, bool ranged);
    vxConversion convertInterpolation(const std::wstring& text);
    vxConversion convertLongList(const std::wstring& text);
    vxConversion convertColor(const std::wstring& text);
    vxConversion testComponents(const std::wstring& text, std::vector<double>& values) const;
    vxConversion testGradient(const std::vector<double>& values) const;
    vxConversion readElements(const std::wstring& text, Element kind, std::vector<double>& values,
                              bool ranged) const;
    vxConversion testRange(const std::vector<double>& values, size_t from, size_t to, double min,
                           double max) const;
    bool addArray(const std::vector<double>& values, Element kind);
    long paletteSize() const;

    // Texts
    vxConversion convertString(const std::wstring& text);
    vxConversion convertDate(const std::wstring& text);
    vxConversion convertChartValues(const std::wstring& text);
    vxConversion convertFont(const std::wstring& text);
    vxConversion convertSource(const std::wstring& text);
    vxConversion convertOutputPath(const std::wstring& text);
    std::wstring basePath() const;
    std::wstring dateArgumentOrder() const;

    vxAssign& assign;
    const vxUserSettings* settings;
    long fnId = -1;
    long index = 0;
    const vxArgument* descriptor = nullptr;
};

}  // namespace Velarix
