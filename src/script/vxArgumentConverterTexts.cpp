// String, date, chart value, font and file arguments.
#include <algorithm>

#include "Utilities/Sources/vxDateTime.h"
#include "Utilities/Sources/vxDouble.h"
#include "Utilities/Sources/vxLong.h"
#include "Utilities/Sources/vxStringOLD.h"
#include "Utilities/Sources/vxTokenizer.h"
#include "data/vxDataRawInput.h"
#include "platform/vxClipboard.h"
#include "platform/vxFileSystem.h"
#include "platform/vxResources.h"
#include "script/vxArgument.h"
#include "script/vxArgumentConverter.h"
#include "script/vxAssign.h"
#include "script/vxConstants.h"
#include "script/vxFunctionIds.h"
#include "script/vxScriptChars.h"
#include "settings/vxErrorCodes.h"
#include "settings/vxFontSettings.h"
#include "settings/vxFormatSettings.h"
#include "settings/vxSystemSettings.h"
#include "settings/vxUserSettings.h"

namespace Velarix {

using namespace vxErrScript;

namespace {

// Source kinds of picture and data arguments.
constexpr short kSourceClipboard = 1;
constexpr short kSourceResource = 2;
constexpr short kSourceFile = 3;

bool isQuoted(const std::wstring& text) {
    return text.size() >= 2 && vxScriptChars::isQuote(text.front()) &&
           vxScriptChars::isQuote(text.back());
}

std::wstring unquoted(const std::wstring& text) {
    return isQuoted(text) ? text.substr(1, text.size() - 2) : text;
}

bool hasQuote(const std::wstring& text) {
    for (wchar_t c : text) {
        if (vxScriptChars::isQuote(c)) return true;
    }
    return false;
}

// "24:00", "24:00:00", "24:0.000": the end of a day, stored as 1.0.
bool isEndOfDay(const std::wstring& text) {
    if (text.compare(0, 4, L"24:0") != 0) return false;
    int separators = 0;
    for (size_t i = 4; i < text.size(); ++i) {
        if (text[i] == L':' || text[i] == L'.') {
            if (++separators > 1) return false;
        } else if (text[i] != L'0') {
            return false;
        }
    }
    return true;
}

// The number form, with a decimal comma read as a point.
bool isNumberText(const std::wstring& text) {
    double value = 0.0;
    return vxDouble::readNumber(text, value);
}

// The date form of a chart value, in the order the values before it found.
bool isDateToken(const std::wstring& text, std::wstring& order) {
    vxDateTimeSpecs specs;
    return vxDateTime::verify(text, order, specs) == kNoError;
}

}  // namespace

std::wstring vxArgumentConverter::basePath() const {
    return settings ? settings->getAppPath() : std::wstring();
}

// The order of a date argument: the one the format settings hold, else the
// system's, month first unless the system puts the year first.
std::wstring vxArgumentConverter::dateArgumentOrder() const {
    const vxFormatSettings* format = settings ? settings->getFormatSettings() : nullptr;
    if (format && format->getDateOrderID() > 0) {
        return vxDataRawInput::dateOrderText(format->getDateOrderID());
    }
    const vxSystemSettings* system = settings ? settings->getSystemSettings() : nullptr;
    const std::wstring systemOrder = system ? system->getDateOrder() : L"MDY";
    return !systemOrder.empty() && systemOrder[0] == L'Y' ? L"YMD" : L"MDY";
}

vxConversion vxArgumentConverter::convertString(const std::wstring& text) {
    if (text.empty()) {
        if (descriptor->isArgumentRequired()) return {kNotEnoughData, -1};
        assign.addVoid();
        return {};
    }
    if (text.size() >= 2 && text.front() == L'"' && text.back() == L'"') {
        const std::wstring value = text.substr(1, text.size() - 2);
        const double length = static_cast<double>(value.size());
        if (length < descriptor->getMinValue()) return {kStringTooShort, -1};
        if (length > descriptor->getMaxValue()) return {kStringTooLong, -1};
        assign.addString(value);
        return {};
    }
    if (!vxScriptChars::isLetter(text[0])) return {kString, -1};
    if (descriptor->getConstantType() == 0) return {kValue, -1};
    std::wstring value;
    short code = lookUpConstant(text, value);
    if (code != 0) return {code, -1};
    assign.addString(value);
    return {};
}

// A date-time argument: a number, the end of a day, or a date text.
vxConversion vxArgumentConverter::convertDate(const std::wstring& text) {
    if (text.empty()) {
        if (descriptor->isArgumentRequired()) return {kNotEnoughData, -1};
        assign.addVoid();
        return {};
    }
    std::wstring value = unquoted(text);
    vxStringOLD::replaceFirstComma(value);
    if (vxDouble::testNumber(value) == 0) {
        assign.addDouble(vxDouble::toDouble(value));
        return {};
    }
    for (wchar_t& c : value) {
        if (c == L'\'' || c == 0x2019) c = L':';
    }
    double date = 1.0;
    if (!isEndOfDay(value)) {
        std::wstring order = dateArgumentOrder();
        vxDateTimeSpecs specs;
        if (vxDateTime::parseValue(value, order, specs, date) != kNoError) return {kSyntax, -1};
    }
    assign.addDouble(date);
    assign.setNote(index, text);
    return {};
}

// Chart values: numbers or dates (decided by the first value that isn't a
// null), stored as one text for the data input to read.
vxConversion vxArgumentConverter::convertChartValues(const std::wstring& text) {
    if (text.empty()) {
        assign.addString(L"NULL");
        return {};
    }
    enum class Kind { kUnknown, kNumber, kDate } kind = Kind::kUnknown;
    std::wstring order = L"???";
    const bool protectBlanks = hasQuote(text);
    vxTokenizer tokens(text, L" \t\n\r", true);
    std::wstring token;
    std::wstring joined;
    long element = -1;
    joined.reserve(text.size() + 1);
    while (tokens.next(token)) {
        ++element;
        std::wstring value = isQuoted(token) ? unquoted(token) : std::move(token);
        if (value.empty()) continue;
        if (protectBlanks) std::replace(value.begin(), value.end(), L' ', L'&');
        if (vxStringOLD::isNullText(value)) {
            value = L"NULL";
        } else {
            const bool isNumber = isNumberText(value);
            if (kind == Kind::kUnknown) {
                if (isNumber) {
                    kind = Kind::kNumber;
                } else if (isDateToken(value, order)) {
                    kind = Kind::kDate;
                } else {
                    return {kSyntax, element};
                }
            } else if (kind == Kind::kNumber && !isNumber) {
                return {kValue, element};
            } else if (kind == Kind::kDate && !isDateToken(value, order)) {
                return {kSyntax, element};
            }
        }
        if (!joined.empty()) joined += L' ';
        joined += value;
    }
    assign.addString(std::move(joined));
    return {};
}

vxConversion vxArgumentConverter::convertFont(const std::wstring& text) {
    if (text.empty()) {
        if (descriptor->isArgumentRequired()) return {kNotEnoughData, -1};
        assign.addVoid();
        return {};
    }
    const std::wstring name = unquoted(text);
    const vxSystemSettings* system = settings ? settings->getSystemSettings() : nullptr;
    const vxFontSettings* fonts = settings ? settings->getFontSettings() : nullptr;
    if (system && !system->fontExists(name) && fonts && fonts->getMissingFontFlag() == 1) {
        return {kFontName, -1};
    }
    assign.addString(name);
    return {};
}

// A picture or data source; the argument before it names the kind.
vxConversion vxArgumentConverter::convertSource(const std::wstring& text) {
    const short kind = (fnId == kChartDataRead) ? kSourceFile : assign.getShort(index - 1, 1);
    const std::wstring name = unquoted(text);
    if (static_cast<double>(name.size()) > descriptor->getMaxValue()) return {kStringTooLong, -1};
    switch (kind) {
        case kSourceClipboard:
            if (!vxClipboardHasPicture()) return {kClipboard, -1};
            assign.addString(L"");
            return {};
        case kSourceResource: {
            if (name.empty()) return {kStringTooShort, -1};
            long id = 0;
            if (vxLong::testInteger(name) != 0 || !vxLong::toLong(name, id)) return {kSyntax, -1};
            if (!vxResourceExists(id)) return {kResource, -1};
            assign.addString(name);
            return {};
        }
        case kSourceFile: {
            if (name.empty()) return {kStringTooShort, -1};
            if (vxHasForbiddenFileNameChars(name)) return {vxErrFile::kName, -1};
            const std::wstring path = vxJoinPath(basePath(), name);
            if (!vxFileExists(path)) return {vxErrFile::kNotFound, -1};
            assign.addString(path);
            return {};
        }
        default:
            return {kString, -1};
    }
}

vxConversion vxArgumentConverter::convertOutputPath(const std::wstring& text) {
    const std::wstring name = unquoted(text);
    if (name.empty()) return {kStringTooShort, -1};
    if (static_cast<double>(name.size()) > descriptor->getMaxValue()) return {kStringTooLong, -1};
    if (vxHasForbiddenFileNameChars(name)) return {vxErrFile::kName, -1};
    const std::wstring path = vxJoinPath(basePath(), name);
    if (!vxFolderExists(path)) return {vxErrFile::kDirectoryNotFound, -1};
    assign.addString(path);
    return {};
}

}  // namespace Velarix
