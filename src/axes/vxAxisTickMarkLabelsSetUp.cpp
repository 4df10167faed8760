// The labels' values, formats, visibility and places.
#include <algorithm>
#include <cmath>
#include <cwchar>

#include "Utilities/Sources/vxDateTime.h"
#include "Utilities/Sources/vxFormat.h"
#include "Utilities/Sources/vxFormatDateTime.h"
#include "Utilities/Sources/vxFormatNumber.h"
#include "axes/vxAxisScaling.h"
#include "axes/vxAxisTickMarkLabels.h"
#include "graphics/vxLabel.h"
#include "graphics/vxText.h"

namespace Velarix {

namespace {

// The per-interval counts of minor values: those the calendar gave a date
// axis, else the same count in every major interval.
std::vector<long> minorCounts(const vxAxisScaling& scaling) {
    const std::vector<long>& dated = scaling.getNumOfMinorDateTimeIntervals();
    if (scaling.hasMajorDateTimeBase() && !dated.empty()) return dated;
    const long perInterval = std::max(0L, scaling.getNumOfMinorIntervals() - 1);
    return std::vector<long>(static_cast<size_t>(std::max(0L, scaling.getNumOfMajorValues() - 1)),
                             perInterval);
}

std::vector<double> toStoredForm(const std::vector<double>& plainDays) {
    std::vector<double> stored;
    stored.reserve(plainDays.size());
    for (double day : plainDays) stored.push_back(vxDateTime::toStoredForm(day));
    return stored;
}

}  // namespace

void vxAxisTickMarkLabels::storeScalingValues(const vxAxisScaling& scaling) {
    try {
        if (order == 1) {
            valuesUC = scaling.getMajorValues();
            intervals.assign(valuesUC.size(), 1);
        } else {
            valuesUC = scaling.getMinorValues();
            intervals = minorCounts(scaling);
        }
        suppressZero = scaling.getDoSuppressZeroLabel();
    } catch (const std::bad_alloc&) {
        setError(vxErrRuntime::kOutOfMemory, where(L"storeScalingValues"));
    }
}

void vxAxisTickMarkLabels::storeCategoryValues(const vxAxisScaling& scaling,
                                               const std::vector<double>& categories) {
    const long count = std::max(1L, scaling.getNumOfMajorValues() - 1);
    const double interval = (scaling.getMaxUC() - scaling.getMinUC()) / double(count);
    const size_t step = static_cast<size_t>(std::max(1L, std::lround(interval)));
    try {
        valuesUC.clear();
        // Categories outside a given scale have no place on the axis.
        for (size_t i = 0; i < categories.size(); i += step) {
            if (scaling.isInScale(categories[i])) valuesUC.push_back(categories[i]);
        }
        intervals.assign(valuesUC.size(), 1);
        suppressZero = false;
    } catch (const std::bad_alloc&) {
        setError(vxErrRuntime::kOutOfMemory, where(L"storeCategoryValues"));
    }
}

bool vxAxisTickMarkLabels::textsAreFormats() const {
    return std::any_of(origFormats.begin(), origFormats.end(), [](const std::wstring& text) {
        return text.find(L'|') != std::wstring::npos || text == vxFormat::kNoFormatMarker;
    });
}

void vxAxisTickMarkLabels::setUpFormats(const vxAxisScaling& scaling, short axisType,
                                        const vxFormatSettings* settings) {
    formats.clear();
    if (!origFormats.empty() && !textsAreFormats()) return;  // the texts are the labels
    if (origFormats.empty()) {
        const std::wstring text = defaultFormat(scaling, axisType, settings);
        if (!text.empty()) formats.push_back(text);
        return;
    }
    vxFormatNumber number(settings);
    vxFormatDateTime date(settings);
    for (const std::wstring& text : origFormats) {
        if (text == vxFormat::kNoFormatMarker) {
            formats.push_back(vxFormat::kFallbackFormat);
            continue;
        }
        vxFormat& check =
            axisType == vxAxisScaling::kDateTimeAxis ? static_cast<vxFormat&>(date) : number;
        if (check.setFormat(text) != 0) {
            const bool isDate = axisType == vxAxisScaling::kDateTimeAxis;
            setError(isDate ? vxErrFormat::kDateTimeFormat : vxErrFormat::kNumberFormat,
                     where(L"setUpFormats", isDate ? 2 : 3), text);
            if (error && textsCall.line > 0) {
                error->setCallPlace(textsCall.line, textsCall.fnName, textsCall.scriptPart);
            }
            return;
        }
        formats.push_back(text);
    }
}

// The format a label takes when the script gave none.
std::wstring vxAxisTickMarkLabels::defaultFormat(const vxAxisScaling& scaling, short axisType,
                                                 const vxFormatSettings* settings) const {
    if (valuesUC.empty()) return std::wstring();
    const bool percent = scaling.isPercent();
    if (axisType == vxAxisScaling::kDateTimeAxis) {
        const vxFormatDateTime date(settings);
        const std::vector<double>& major = scaling.getMajorValues();
        const std::wstring text = date.getDefaultFormat(
            toStoredForm(valuesUC.empty() ? major : valuesUC), scaling.getMajorScalingBase(),
            scaling.getMinorScalingBase(), order);
        return text.empty() ? text : L"|" + text + L"|";
    }
    if (order != 1) return std::wstring();
    if (axisType == vxAxisScaling::kCategoryAxis && !percent) return vxFormat::kFallbackFormat;
    const std::wstring automatic = vxFormatNumber::getDefaultFormat(scaling.getMajorValues());
    return L"|" + automatic + (percent ? L"|%" : L"|");
}

void vxAxisTickMarkLabels::setUpVisibilityFlags() {
    const size_t n = valuesUC.size();
    visibilityFlags.assign(n, 0);
    const std::vector<long>& steps = visibilityIntervals;
    long k = 0;
    if (order == 1) {
        for (size_t i = static_cast<size_t>(startIndex); i < n;
             i += static_cast<size_t>(steps[static_cast<size_t>(k++) % steps.size()])) {
            visibilityFlags[i] = 1;
        }
        return;
    }
    // Minor values come interval by interval; the count of labels (k) and
    // the next place start again at each major tick when labels shift.
    size_t first = 0;
    long next = startIndex;
    for (long count : intervals) {
        if (mDoShiftLabels) {
            k = 0;
            next = startIndex;
        }
        for (long j = 0; j < count && first + static_cast<size_t>(j) < n; ++j) {
            if (j != next) continue;
            visibilityFlags[first + static_cast<size_t>(j)] = 1;
            next += steps[static_cast<size_t>(k++) % steps.size()];
        }
        if (!mDoShiftLabels) next -= count;
        first += static_cast<size_t>(count);
    }
}

std::wstring vxAxisTickMarkLabels::formatValue(long index, short axisType,
                                               const vxFormatSettings* settings) {
    vxFormatNumber number(settings);
    vxFormatDateTime date(settings);
    return formatWith(index, axisType, number, date);
}

std::wstring vxAxisTickMarkLabels::formatWith(long index, short axisType, vxFormatNumber& number,
                                              vxFormatDateTime& date) const {
    if (index < 0 || static_cast<size_t>(index) >= valuesUC.size()) return std::wstring();
    const double value = valuesUC[static_cast<size_t>(index)];
    if (!origFormats.empty() && formats.empty()) {
        // Texts of the script: a category takes the text of its number,
        // other ticks the text of their place.
        const long k = axisType == vxAxisScaling::kCategoryAxis ? std::lround(value) - 1 : index;
        return k >= 0 && static_cast<size_t>(k) < origFormats.size()
                   ? origFormats[static_cast<size_t>(k)]
                   : std::wstring();
    }
    if (formats.empty()) return std::wstring();
    const std::wstring& format = formats[static_cast<size_t>(index) % formats.size()];
    if (axisType == vxAxisScaling::kDateTimeAxis) {
        const double stored = vxDateTime::toStoredForm(value);
        std::wstring text = date.toString(stored, format);
        if (suppressZero && readsAsZero(date.toString(stored, date.getFormatSpecifier()), true)) {
            return std::wstring();
        }
        return text;
    }
    // A category between two marks shows its number.
    const double shown =
        axisType == vxAxisScaling::kCategoryAxis ? double(std::lround(value)) : value;
    std::wstring text = number.toString(shown, format);
    if (suppressZero && readsAsZero(number.toString(shown, number.getFormatSpecifier()), false)) {
        return std::wstring();
    }
    return text;
}

// A number printed without prefix and postfix reads back as zero; a date or
// time holds nothing but zeros and separators.
bool vxAxisTickMarkLabels::readsAsZero(const std::wstring& text, bool isDate) {
    if (isDate) return text.find_first_not_of(L"0:.'") == std::wstring::npos;
    std::wstring plain;
    for (wchar_t c : text) {
        if ((c >= L'0' && c <= L'9') || c == L'-' || c == L'+' || c == L'e' || c == L'E') {
            plain += c;
        } else if (c == L'.' || c == L',') {
            plain += L'.';  // the decimal point; a thousands separator never stands by a zero
        }
    }
    if (plain.empty()) return false;
    wchar_t* end = nullptr;
    const double value = std::wcstod(plain.c_str(), &end);
    return end != plain.c_str() && std::fabs(value) < 1e-10;
}

}  // namespace Velarix
