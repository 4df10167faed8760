#include "data/vxDataRawInput.h"

#include <algorithm>

#include "Utilities/Sources/vxDateFormatIDs.h"
#include "Utilities/Sources/vxDouble.h"
#include "Utilities/Sources/vxStringOLD.h"
#include "data/vxDataTokens.h"
#include "host/vxLog.h"
#include "script/vxAssign.h"
#include "script/vxFunctionIds.h"
#include "settings/vxFormatSettings.h"
#include "settings/vxUserSettings.h"

namespace Velarix {

namespace {

bool beginsWithN(std::wstring_view token) {
    return !token.empty() && (token[0] | 0x20) == L'n';
}

// A date with a time: the first separator is one of a date ("-", "/",
// "."), and a time separator (":", "'") follows.
bool writesDateAndTime(std::wstring_view token) {
    size_t i = 0;
    while (i < token.size() && token[i] != L'-' && token[i] != L'/' && token[i] != L'.') {
        if (token[i] == L':' || token[i] == L'\'') return false;
        ++i;
    }
    for (; i < token.size(); ++i) {
        if (token[i] == L':' || token[i] == L'\'') return true;
    }
    return false;
}

// A token longer than this is cut in the error detail.
constexpr std::size_t kMaxTokenInDetail = 80;

}  // namespace

vxDataRawInput::vxDataRawInput(vxUserSettings* owner)
    : vxErrorHolder(L"vxDataRawInput"), owner(owner) {
    init();
}

vxDataRawInput::~vxDataRawInput() = default;

void vxDataRawInput::init() {
    delimiter = L' ';
    const vxFormatSettings* format = owner ? owner->getFormatSettings() : nullptr;
    dateOrderID = format && format->getDateOrderID() > 0 ? format->getDateOrderID() : -1;
    dataOrder = kOrderXXYY;
    numOfChartSeries = 0;
    numOfDataSeries = 0;
    inputStrings.clear();
    dataTypes.clear();
    lowerLimits.clear();
    upperLimits.clear();
    dataOptions.clear();
    recordSpans.clear();
}

void vxDataRawInput::set(const vxDataRawInput& other) {
    owner = other.owner;
    delimiter = other.delimiter;
    dateOrderID = other.dateOrderID;
    dataOrder = other.dataOrder;
    numOfChartSeries = other.numOfChartSeries;
    numOfDataSeries = other.numOfDataSeries;
}

void vxDataRawInput::setUp(long valuesPerChartSeries) {
    recordSpans.clear();
    if (dataOrder == kOrderXYXY) {
        numOfDataSeries = 0;
        for (long s = 0; s < getNumOfStrings(); ++s) {
            numOfDataSeries = std::max(numOfDataSeries, getNumOfTokens(s));
        }
    } else {
        numOfDataSeries = getNumOfStrings();
    }
    const long k = std::max(1L, valuesPerChartSeries);
    numOfChartSeries = numOfDataSeries / k;
    dataTypes.resize(static_cast<std::size_t>(k), kTypeAutomatic);
}

std::vector<std::wstring>& vxDataRawInput::getInputStrings() {
    recordSpans.clear();
    return inputStrings;
}

long vxDataRawInput::getNumOfTokens(long n) const {
    if (n < 0 || n >= getNumOfStrings()) return 0;
    const std::wstring& text = inputStrings[static_cast<std::size_t>(n)];
    if (text.empty()) return 0;
    return static_cast<long>(std::count(text.begin(), text.end(), delimiter)) + 1;
}

std::wstring vxDataRawInput::getInputString(long n) const {
    if (n < 0 || n >= getNumOfStrings()) return L"";
    return inputStrings[static_cast<std::size_t>(n)];
}

short vxDataRawInput::getDataType(long n) const {
    if (dataTypes.empty() || n < 0) return kTypeAutomatic;
    return dataTypes[static_cast<std::size_t>(n) % dataTypes.size()];
}

double vxDataRawInput::getLowerLimit(long n) const {
    if (lowerLimits.empty() || n < 0) return kDefaultLowerLimit;
    return lowerLimits[static_cast<std::size_t>(n) % lowerLimits.size()];
}

double vxDataRawInput::getUpperLimit(long n) const {
    if (upperLimits.empty() || n < 0) return kDefaultUpperLimit;
    return upperLimits[static_cast<std::size_t>(n) % upperLimits.size()];
}

short vxDataRawInput::getOption(long n) const {
    if (n < 0 || n >= static_cast<long>(dataOptions.size())) return 0;
    return dataOptions[static_cast<std::size_t>(n)];
}

void vxDataRawInput::setDataOrder(short order) {
    dataOrder = order == kOrderXYXY ? kOrderXYXY : kOrderXXYY;
    recordSpans.clear();
}

bool vxDataRawInput::isFixedDateOrder(const std::wstring& order) {
    return !order.empty() && (order[0] == L'Y' || order[0] == L'M' || order[0] == L'D');
}

std::wstring vxDataRawInput::dateOrderText(short id) {
    switch (id) {
        case kDateOrderYMD:
            return L"YMD";
        case kDateOrderMDY:
            return L"MDY";
        case kDateOrderDMY:
            return L"DMY";
        default:
            return L"???";
    }
}

short vxDataRawInput::dateOrderIDOf(const std::wstring& order) {
    if (order == L"YMD") return kDateOrderYMD;
    if (order == L"MDY") return kDateOrderMDY;
    if (order == L"DMY") return kDateOrderDMY;
    return -1;
}

void vxDataRawInput::storeDateOrder() {
    vxFormatSettings* format = owner ? owner->getFormatSettings() : nullptr;
    if (!format) return;
    format->setDateOrderID(dateOrderID);
    if (format->getDateSeparatorID() == 0) {
        format->setMonthFormatID(vxDateFormatID::kMM);
        format->setDayFormatID(vxDateFormatID::kDD);
    }
}

// Order xxyy: the tokens of text n, numbered as they stand in it. Order
// xyxy: token n of each record, named by the record and the position; a
// record without it gives an empty view with no data.
template <class Visit>
void vxDataRawInput::forEachToken(long n, Visit&& visit) {
    if (dataOrder != kOrderXYXY) {
        if (n < 0 || n >= getNumOfStrings()) return;
        vxDataTokens tokens(inputStrings[static_cast<std::size_t>(n)], delimiter);
        std::wstring_view token;
        for (long element = 0; tokens.next(token); ++element) {
            if (!visit(token, n, element)) return;
        }
        return;
    }
    for (long s = 0; s < getNumOfStrings(); ++s) {
        const auto& spans = recordTokens(s);
        std::wstring_view token;
        if (n >= 0 && n < static_cast<long>(spans.size())) {
            const auto& span = spans[static_cast<std::size_t>(n)];
            token = std::wstring_view(inputStrings[static_cast<std::size_t>(s)])
                        .substr(span.first, span.second);
        }
        if (!visit(token, s, n)) return;
    }
}

const std::vector<std::pair<unsigned, unsigned>>& vxDataRawInput::recordTokens(long s) {
    if (recordSpans.size() != inputStrings.size()) {
        recordSpans.assign(inputStrings.size(), {});
        for (std::size_t i = 0; i < inputStrings.size(); ++i) {
            const std::wstring_view text = inputStrings[i];
            vxDataTokens tokens(text, delimiter);
            std::wstring_view token;
            while (tokens.next(token)) {
                recordSpans[i].emplace_back(static_cast<unsigned>(token.data() - text.data()),
                                            static_cast<unsigned>(token.size()));
            }
        }
    }
    return recordSpans[static_cast<std::size_t>(s)];
}

const std::wstring& vxDataRawInput::commaAsPoint(std::wstring_view token) {
    scratch.assign(token);
    vxStringOLD::replaceFirstComma(scratch);
    return scratch;
}

void vxDataRawInput::determineDataType(long n, const std::wstring& dateOrder) {
    if (dataOrder != kOrderXYXY && getDataType(n) != kTypeAutomatic) return;
    if (dataTypes.empty()) dataTypes.push_back(kTypeAutomatic);
    short& type = dataTypes[static_cast<std::size_t>(std::max(0L, n)) % dataTypes.size()];
    forEachToken(n, [&](std::wstring_view token, long, long) {
        if (!token.data() || beginsWithN(token)) return true;
        double number = 0.0;
        if (vxDouble::readNumber(token, number)) {
            type = kTypeNumber;
            return false;
        }
        std::wstring order = dateOrder;
        vxDateTimeSpecs specs;
        if (vxDateTime::verify(commaAsPoint(token), order, specs) == kNoError) {
            type = kTypeDate;
            return false;
        }
        return true;
    });
}

void vxDataRawInput::determineDateOrder(long n, std::wstring& dateOrder, vxDateTimeSpecs& specs) {
    const int number = dataOrder == kOrderXYXY ? 1 : 2;
    forEachToken(n, [&](std::wstring_view token, long series, long element) {
        if (!token.data() || beginsWithN(token)) return true;
        if (vxDateTime::verify(commaAsPoint(token), dateOrder, specs) == kNoError) return true;
        raiseValueError(L"determineDateOrder", number, series, element, token);
        return false;
    });
}

void vxDataRawInput::extractNthSeries(std::vector<double>& out, long n) {
    std::wstring dateOrder = dateOrderText(dateOrderID);
    determineDataType(n, dateOrder);
    const short type = getDataType(n);
    if (type == kTypeAutomatic) {
        setError(vxErrChart::kChartDataValue, where(L"extractNthSeries"),
                 L"Series " + std::to_wstring(n + 1));
        return;
    }
    // With the order settled for the chart, reading each value is its test.
    if (type == kTypeDate && !isFixedDateOrder(dateOrder)) {
        vxDateTimeSpecs specs;
        determineDateOrder(n, dateOrder, specs);
        if (isError()) return;
        if (dateOrder.find(L'?') != std::wstring::npos) settleOpenDateOrder(n, dateOrder);
    }
    if (dataOrder != kOrderXYXY) out.reserve(out.size() + getNumOfTokens(n));
    forEachToken(n, [&](std::wstring_view token, long series, long element) {
        if (!token.data()) {
            out.push_back(kInvalidValue);
            return true;
        }
        out.push_back(toValue(token, dateOrder, type, series, element));
        return !isError();
    });
}

// An order the dates left open reads each token by its own fields: a text
// that is no order at all for dates, "hms" for a series of times only.
void vxDataRawInput::settleOpenDateOrder(long n, std::wstring& dateOrder) {
    bool hasDateSeparator = dateOrder.size() > 2 && dateOrder[2] == L'Y';
    if (!hasDateSeparator) {
        forEachToken(n, [&](std::wstring_view token, long, long) {
            hasDateSeparator = token.data() && !beginsWithN(token) &&
                               vxDateTime::isDateBeforeTime(std::wstring(token));
            return !hasDateSeparator;
        });
    }
    dateOrder = hasDateSeparator ? std::wstring(1, wchar_t(2)) : std::wstring(L"hms");
    dateOrderID = dateOrderIDOf(dateOrder);
}

double vxDataRawInput::toValue(std::wstring_view token, const std::wstring& dateOrder, short type,
                               long series, long element) {
    if (beginsWithN(token)) {
        if (vxStringOLD::isNullText(token)) return kInvalidValue;
        raiseValueError(L"toValue", 1, series, element, token);
        return kInvalidValue;
    }
    double value = 0.0;
    if ((type == kTypeNumber || type == kTypeAutomatic) && vxDouble::readNumber(token, value)) {
        return value;
    }
    if (type == kTypeDate || type == kTypeAutomatic) {
        // An order still open is found anew for each value.
        if (tokenOrder != dateOrder) tokenOrder = dateOrder;
        vxDateTimeSpecs specs;
        if (vxDateTime::parseValue(commaAsPoint(token), tokenOrder, specs, value) == kNoError) {
            return writesDateAndTime(scratch) ? -value : value;
        }
    }
    raiseValueError(L"toValue", 1, series, element, token);
    return kInvalidValue;
}

void vxDataRawInput::raiseValueError(const wchar_t* method, int number, long series, long element,
                                     std::wstring_view token) {
    std::wstring detail = L"Series " + std::to_wstring(series + 1) + L", Element " +
                          std::to_wstring(element + 1) + L": ";
    if (token.size() > kMaxTokenInDetail) {
        detail.append(token.substr(0, kMaxTokenInDetail)).append(L"\u2026");
    } else {
        detail.append(token);
    }
    setError(vxErrChart::kChartDataValue, where(method, number), detail);
}

void vxDataRawInput::assign(vxAssign& a) {
    switch (a.getFunction()) {
        case kChartData:
            return assignData(a);
        case kChartDataTypes:
            return assignDataTypes(a);
        case kChartDataLowerLimits:
            return assignLimits(a, lowerLimits, kDefaultLowerLimit);
        case kChartDataUpperLimits:
            return assignLimits(a, upperLimits, kDefaultUpperLimit);
        case kChartDataOptions:
            return assignOptions(a);
        default:
            return;
    }
}

void vxDataRawInput::assignData(vxAssign& a) {
    recordSpans.clear();
    inputStrings.clear();
    try {
        inputStrings.reserve(static_cast<std::size_t>(a.getNumOfArguments()));
        for (long i = 0; i < a.getNumOfArguments(); ++i) inputStrings.push_back(a.takeString(i));
    } catch (const std::bad_alloc&) {
        inputStrings.clear();
        setError(vxErrRuntime::kOutOfMemory, where(L"assignData"));
    }
}

void vxDataRawInput::assignDataTypes(vxAssign& a) {
    dataTypes.clear();
    for (long i = 0; i < a.getNumOfArguments(); ++i)
        dataTypes.push_back(a.getShort(i, kTypeNumber));
}

void vxDataRawInput::assignLimits(vxAssign& a, std::vector<double>& limits, double defaultLimit) {
    limits.clear();
    for (long i = 0; i < a.getNumOfArguments(); ++i) limits.push_back(a.getDouble(i, defaultLimit));
}

void vxDataRawInput::assignOptions(vxAssign& a) {
    setDataOrder(a.getShort(0, kOrderXXYY));
    dataOptions.clear();
    if (a.getNumOfArguments() < 2) return;
    for (long i = 1; i < a.getNumOfArguments(); ++i) dataOptions.push_back(a.getShort(i, 0));
}

void vxDataRawInput::dump(short depth, std::ostream& out) const {
    if (depth <= 0) return;
    vxDumpHeader(out, "vxDataRawInput");
    vxDumpLine(out, "short dateOrderID:      ", dateOrderID);
    vxDumpLine(out, "short dataOrder:        ", dataOrder);
    vxDumpLine(out, "long numOfChartSeries:  ", numOfChartSeries);
    vxDumpLine(out, "long numOfDataSeries:   ", numOfDataSeries);
    vxDumpLine(out, "long numOfStrings:      ", getNumOfStrings());
    vxDumpLine(out, "vector<short> dataTypes: ", dataTypes);
    vxDumpLine(out, "vector<short> dataOptions: ", dataOptions);
    vxDumpEnd(out);
}

}  // namespace Velarix
