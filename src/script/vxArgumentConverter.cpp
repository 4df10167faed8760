#include "script/vxArgumentConverter.h"

#include <cfloat>
#include <climits>
#include <cmath>

#include "Utilities/Sources/vxDouble.h"
#include "Utilities/Sources/vxLong.h"
#include "Utilities/Sources/vxStringOLD.h"
#include "script/vxArgument.h"
#include "script/vxAssign.h"
#include "script/vxConstants.h"
#include "script/vxScriptChars.h"
#include "settings/vxErrorCodes.h"

namespace Velarix {

using namespace vxErrScript;

vxArgumentConverter::vxArgumentConverter(vxAssign& a, const vxUserSettings* s)
    : assign(a), settings(s) {}

vxConversion vxArgumentConverter::convert(long id, long argIndex, const vxArgument& d,
                                          const std::wstring& text) {
    fnId = id;
    index = argIndex;
    descriptor = &d;
    switch (d.getType()) {
        case 1:
            return convertString(text);
        case 2:
        case 21:
            return convertInteger(text, Element::kShort);
        case 3:
            return convertInteger(text, Element::kLong);
        case 4:
            return convertReal(text, Element::kFloat, false);
        case 5:
            return convertReal(text, Element::kDouble, false);
        case 6:
            return convertDate(text);
        case 7:
            return convertReal(text, Element::kFloat, true);
        case 8:
        case 9:
            return convertArray(text, Element::kShort);
        case 10:
            return convertArray(text, Element::kLong);
        case 11:
            return convertArray(text, Element::kFloat);
        case 12:
            return convertArray(text, Element::kDouble);
        case 13:
            return convertChartValues(text);
        case 14:
            return convertArray(text, Element::kFloat, 0.017453292519943295);
        case 15:
            return convertFont(text);
        case 16:
            return convertSource(text);
        case 17:
            return convertOutputPath(text);
        case 18:
            return convertInterpolation(text);
        case 19:
            return convertLimitedFloats(text, 102, true);
        case 20:
            return convertColor(text);
        case 22:
            return convertLimitedFloats(text, 3, true);
        case 23:
            return convertLimitedFloats(text, SIZE_MAX, false);
        case 24:
            return convertLongList(text);
        default:
            return {kValue, -1};
    }
}

vxArgumentConverter::Frame vxArgumentConverter::openFrame(const std::wstring& text,
                                                          std::wstring& constantValue,
                                                          vxConversion& result) {
    if (text.empty()) {
        if (descriptor->isArgumentRequired()) {
            result = {kNotEnoughData, -1};
            return Frame::kFailed;
        }
        assign.addVoid();
        return Frame::kVoid;
    }
    if (!vxScriptChars::isLetter(text[0])) return Frame::kNumber;
    if (descriptor->getConstantType() == 0) {
        result = {kValue, -1};
        return Frame::kFailed;
    }
    short code = lookUpConstant(text, constantValue);
    if (code != 0) {
        result = {code, -1};
        return Frame::kFailed;
    }
    return Frame::kConstant;
}

// One keyword, or for a combinable table keywords joined by "+" whose
// numbers are added.
short vxArgumentConverter::lookUpConstant(const std::wstring& text, std::wstring& value) const {
    const short table = descriptor->getConstantType();
    if (!vxConstants::isCombinable(table)) {
        short found = vxConstants::find(table, text.c_str());
        if (found < 0) return kConstant;
        value = vxConstants::getValue(table, found);
        return 0;
    }
    double sum = 0.0;
    size_t start = 0;
    while (true) {
        size_t plus = text.find(L'+', start);
        std::wstring word = text.substr(start, plus == std::wstring::npos ? plus : plus - start);
        while (!word.empty() && word.front() == L' ') word.erase(0, 1);
        while (!word.empty() && word.back() == L' ') word.pop_back();
        if (word.empty()) return kConstant;
        short found = vxConstants::find(table, word.c_str());
        if (found < 0) return kConstant;
        sum += vxDouble::toDouble(vxConstants::getValue(table, found));
        if (plus == std::wstring::npos) break;
        start = plus + 1;
    }
    value = std::to_wstring(static_cast<long long>(sum));
    return 0;
}

vxConversion vxArgumentConverter::convertInteger(const std::wstring& text, Element kind) {
    vxConversion result;
    std::wstring constant;
    Frame frame = openFrame(text, constant, result);
    if (frame == Frame::kVoid || frame == Frame::kFailed) return result;
    double value = 0.0;
    if (frame == Frame::kConstant) {
        value = std::round(vxDouble::toDouble(constant));
    } else {
        long parsed = 0;
        if (vxLong::testInteger(text) != 0) return {kValue, -1};
        if (!vxLong::toLong(text, parsed)) return {kOutOfRange, -1};
        value = static_cast<double>(parsed);
        if (value < std::round(descriptor->getMinValue()) ||
            value > std::round(descriptor->getMaxValue())) {
            return {kOutOfRange, -1};
        }
    }
    if (kind == Element::kShort) {
        if (value < SHRT_MIN || value > SHRT_MAX) return {kOutOfRange, -1};
        assign.addShort(static_cast<short>(value));
    } else {
        if (value < static_cast<double>(LONG_MIN) || value > static_cast<double>(LONG_MAX)) {
            return {kOutOfRange, -1};
        }
        assign.addLong(static_cast<long>(value));
    }
    return result;
}

vxConversion vxArgumentConverter::convertReal(const std::wstring& text, Element kind,
                                              bool isAngle) {
    vxConversion result;
    std::wstring constant;
    Frame frame = openFrame(text, constant, result);
    if (frame == Frame::kVoid || frame == Frame::kFailed) return result;
    double value = 0.0;
    if (frame == Frame::kConstant) {
        value = vxDouble::toDouble(constant);
    } else {
        std::wstring number = text;
        vxStringOLD::replaceFirstComma(number);
        if (vxDouble::testNumber(number) != 0) return {kValue, -1};
        value = vxDouble::toDouble(number);
        if (value < descriptor->getMinValue() || value > descriptor->getMaxValue()) {
            return {kOutOfRange, -1};
        }
    }
    if (kind == Element::kDouble) {
        assign.addDouble(value);
        return result;
    }
    if (std::fabs(value) > FLT_MAX) return {kOutOfRange, -1};
    float f = static_cast<float>(value);
    if (isAngle) f *= 0.01745329238474369f;
    assign.addFloat(f);
    return result;
}

}  // namespace Velarix
