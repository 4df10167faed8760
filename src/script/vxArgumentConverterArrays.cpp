// Array, interpolation and colour arguments.
#include <cmath>

#include "Utilities/Sources/vxDouble.h"
#include "Utilities/Sources/vxLong.h"
#include "Utilities/Sources/vxTokenizer.h"
#include "graphics/vxColorOLD.h"
#include "graphics/vxColorPaletteOLD.h"
#include "graphics/vxPaintOLD.h"
#include "script/vxArgument.h"
#include "script/vxArgumentConverter.h"
#include "script/vxAssign.h"
#include "script/vxScriptChars.h"
#include "settings/vxErrorCodes.h"
#include "settings/vxStyleSettings.h"
#include "settings/vxUserSettings.h"

namespace Velarix {

using namespace vxErrScript;

namespace {

bool isIntegerKind(int kind) {
    return kind <= 1;
}

// The numbers in front of the colour stops of a gradient list, or 0 when
// the count fits neither form with at least one stop.
size_t gradientLeading(size_t count) {
    const short kind = vxPaintOLD::getKindOfCount(static_cast<long>(count));
    if (kind != vxPaintOLD::kLinearGradient && kind != vxPaintOLD::kRadialGradient) return 0;
    const long leading = vxPaintOLD::getNumOfLeadingNumbersOf(kind);
    return static_cast<long>(count) > leading ? static_cast<size_t>(leading) : 0;
}

}  // namespace

// Reads the blank-separated elements of `text`; each must have the form of
// its kind and, when `ranged`, lie within the descriptor's bounds.
vxConversion vxArgumentConverter::readElements(const std::wstring& text, Element kind,
                                               std::vector<double>& values, bool ranged) const {
    vxTokenizer tokens(text, L" ");
    std::wstring token;
    const bool integer = isIntegerKind(static_cast<int>(kind));
    while (tokens.next(token)) {
        const long element = static_cast<long>(values.size());
        double value = 0.0;
        if (integer) {
            long parsed = 0;
            if (vxLong::testInteger(token) != 0) return {kValue, element};
            if (!vxLong::toLong(token, parsed)) return {kOutOfRange, element};
            value = static_cast<double>(parsed);
        } else {
            if (vxDouble::testNumber(token) != 0) return {kValue, element};
            value = vxDouble::toDouble(token);
        }
        values.push_back(value);
    }
    if (!ranged) return {};
    return testRange(values, 0, values.size(), descriptor->getMinValue(),
                     descriptor->getMaxValue());
}

vxConversion vxArgumentConverter::testRange(const std::vector<double>& values, size_t from,
                                            size_t to, double min, double max) const {
    for (size_t i = from; i < to && i < values.size(); ++i) {
        if (values[i] < min || values[i] > max) return {kOutOfRange, static_cast<long>(i)};
    }
    return {};
}

bool vxArgumentConverter::addArray(const std::vector<double>& values, Element kind) {
    switch (kind) {
        case Element::kShort:
            return assign.addShortArray(std::vector<short>(values.begin(), values.end()));
        case Element::kLong:
            return assign.addLongArray(std::vector<long>(values.begin(), values.end()));
        case Element::kFloat:
            return assign.addFloatArray(std::vector<float>(values.begin(), values.end()));
        case Element::kDouble:
            return assign.addDoubleArray(values);
    }
    return false;
}

// The frame of an array argument: void, a keyword's value as the only
// element, or the elements written.
vxArgumentConverter::Frame vxArgumentConverter::openArray(const std::wstring& text, Element kind,
                                                          std::vector<double>& values,
                                                          vxConversion& result) {
    std::wstring constant;
    const Frame frame = openFrame(text, constant, result);
    if (frame == Frame::kConstant) values.push_back(vxDouble::toDouble(constant));
    if (frame != Frame::kNumber) return frame;
    result = readElements(text, kind, values, false);
    return result.code == 0 ? frame : Frame::kFailed;
}

vxConversion vxArgumentConverter::convertArray(const std::wstring& text, Element kind,
                                               double factor) {
    vxConversion result;
    std::vector<double> values;
    const Frame frame = openArray(text, kind, values, result);
    if (frame == Frame::kVoid || frame == Frame::kFailed) return result;
    if (frame == Frame::kNumber) {
        result = testRange(values, 0, values.size(), descriptor->getMinValue(),
                           descriptor->getMaxValue());
    }
    if (result.code == 0 && (kind == Element::kShort || kind == Element::kLong)) {
        const double low = kind == Element::kShort ? -32768.0 : -2147483648.0;
        const double high = kind == Element::kShort ? 32767.0 : 2147483647.0;
        result = testRange(values, 0, values.size(), low, high);
    }
    if (result.code != 0) return result;
    for (double& v : values) v *= factor;
    addArray(values, kind);
    return {};
}

vxConversion vxArgumentConverter::convertLimitedFloats(const std::wstring& text, size_t maxCount,
                                                       bool ranged) {
    vxConversion result;
    std::vector<double> values;
    const Frame frame = openArray(text, Element::kFloat, values, result);
    if (frame == Frame::kVoid || frame == Frame::kFailed) return result;
    if (frame == Frame::kNumber) {
        if (values.size() > maxCount) return {kTooManyElements, static_cast<long>(maxCount)};
        if (ranged) {
            result = testRange(values, 0, values.size(), descriptor->getMinValue(),
                               descriptor->getMaxValue());
            if (result.code != 0) return result;
        }
    }
    addArray(values, Element::kFloat);
    return {};
}

// The parameters that follow an interpolation mode: for a jump line the
// start and end outdents, the shift and the length; for a step line the
// first three of them; for a smooth line the tension.
vxConversion vxArgumentConverter::testInterpolation(const std::vector<double>& values) const {
    if (values.empty()) return {kValue, -1};
    const double mode = values[0];
    if (mode < descriptor->getMinValue() || mode > descriptor->getMaxValue()) {
        return {kOutOfRange, 0};
    }
    if (mode != std::floor(mode)) return {kValue, 0};
    size_t maxCount = 1;
    vxConversion result;
    switch (static_cast<int>(mode)) {
        case 1:
            maxCount = 5;
            result = testRange(values, 4, 5, 0.0, 2.0);
            break;
        case 2:
            maxCount = 4;
            break;
        case 4:
            maxCount = 2;
            result = testRange(values, 1, 2, 0.0, 10.0);
            break;
        default:
            break;
    }
    if (values.size() > maxCount) return {kTooManyElements, static_cast<long>(maxCount)};
    if (result.code == 0 && (mode == 1 || mode == 2)) {
        result = testRange(values, 1, 3, 0.0, 10000.0);
        if (result.code == 0) result = testRange(values, 3, 4, 0.0, 1.0);
    }
    return result;
}

vxConversion vxArgumentConverter::convertInterpolation(const std::wstring& text) {
    // The mode may be a keyword followed by its numbers: "jump 1 2 0.5 1".
    const size_t blank = text.find(L' ');
    if (blank != std::wstring::npos && vxScriptChars::isLetter(text[0])) {
        std::wstring mode;
        short code = lookUpConstant(text.substr(0, blank), mode);
        if (code != 0) return {code, 0};
        return convertInterpolation(mode + text.substr(blank));
    }
    vxConversion result;
    std::vector<double> values;
    const Frame frame = openArray(text, Element::kFloat, values, result);
    if (frame == Frame::kVoid || frame == Frame::kFailed) return result;
    if (frame == Frame::kNumber) {
        result = testInterpolation(values);
        if (result.code != 0) return result;
    }
    addArray(values, Element::kFloat);
    return {};
}

// Longs whose first element lies in the bounds; the others are series
// indexes, where small negative numbers count from the end.
vxConversion vxArgumentConverter::convertLongList(const std::wstring& text) {
    vxConversion result;
    std::vector<double> values;
    const Frame frame = openArray(text, Element::kLong, values, result);
    if (frame == Frame::kVoid || frame == Frame::kFailed) return result;
    if (frame == Frame::kNumber) {
        result = testRange(values, 0, 1, descriptor->getMinValue(), descriptor->getMaxValue());
        if (result.code == 0) result = testRange(values, 1, values.size(), -5.0, 2147483647.0);
        if (result.code != 0) return result;
    }
    addArray(values, Element::kLong);
    return {};
}

long vxArgumentConverter::paletteSize() const {
    vxColorPaletteOLD palette;
    if (settings && settings->getStyleSettings()) {
        palette.setPaletteID(settings->getStyleSettings()->getColorPaletteID());
        palette.setColors(settings->getStyleSettings()->getUserDefinedColors());
    }
    return palette.getNumOfColors();
}

// A gradient list: geometry and spread, then stops of red, green, blue,
// alpha and offset. Only the colour components are range-tested; offsets
// and coordinates are taken as written.
vxConversion vxArgumentConverter::testGradient(const std::vector<double>& values) const {
    const double min = std::round(descriptor->getMinValue());
    const double max = std::round(descriptor->getMaxValue());
    for (size_t stop = gradientLeading(values.size()); stop < values.size();
         stop += vxPaintOLD::kNumbersPerStop) {
        const vxConversion result = testRange(values, stop, stop + 4, min, max);
        if (result.code != 0) return result;
    }
    return {};
}

// A palette index, or three (RGB) or four (RGBA) components: whole numbers.
vxConversion vxArgumentConverter::testComponents(const std::wstring& text,
                                                 std::vector<double>& values) const {
    values.clear();
    vxConversion result = readElements(text, Element::kLong, values, false);
    if (result.code != 0) return result;
    switch (values.size()) {
        case 1:
            return testRange(values, 0, 1, 0.0, static_cast<double>(paletteSize()));
        case 3:
        case 4:
            return testRange(values, 0, values.size(), std::round(descriptor->getMinValue()),
                             std::round(descriptor->getMaxValue()));
        default:
            return {kNumberOfElements, -1};
    }
}

// A colour name, a hash text, a palette index, three (RGB) or four (RGBA)
// components, or the number list of a linear or radial gradient.
vxConversion vxArgumentConverter::convertColor(const std::wstring& text) {
    vxConversion result;
    std::wstring constant;
    std::vector<double> values;
    // A hash text may stand in quotes.
    const bool quoted = text.size() >= 3 && text.front() == L'"' && text.back() == L'"';
    const std::wstring hash = quoted ? text.substr(1, text.size() - 2) : text;
    if (!hash.empty() && hash[0] == L'#') {
        short rgba[4] = {0, 0, 0, 255};
        if (vxColorOLD::parseHashText(hash, rgba) != 0) return {kValue, -1};
        const size_t digits = hash.size() - 1;
        const size_t count = (digits == 4 || digits == 8) ? 4 : 3;
        for (size_t i = 0; i < count; ++i) values.push_back(rgba[i]);
        addArray(values, Element::kFloat);
        return {};
    }
    Frame frame = openFrame(text, constant, result);
    if (frame == Frame::kVoid || frame == Frame::kFailed) return result;
    if (frame == Frame::kConstant) {
        result = readElements(constant, Element::kFloat, values, false);
        if (result.code != 0) return {kConstant, -1};
        addArray(values, Element::kFloat);
        return {};
    }
    // Gradient lists carry fractions; everything else is whole numbers.
    result = readElements(text, Element::kFloat, values, false);
    if (result.code != 0) return result;
    result =
        gradientLeading(values.size()) != 0 ? testGradient(values) : testComponents(text, values);
    if (result.code != 0) return result;
    addArray(values, Element::kFloat);
    return {};
}

}  // namespace Velarix
