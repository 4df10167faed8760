#include "data/vxDataToFile.h"

#include <algorithm>

#include "Utilities/Sources/vxFormatDateTime.h"
#include "Utilities/Sources/vxFormatNumber.h"
#include "data/vxDataManager.h"
#include "data/vxDataRawInput.h"
#include "data/vxDataValueSeries.h"
#include "output/vxTextFile.h"
#include "script/vxAssign.h"
#include "settings/vxUserSettings.h"

namespace Velarix {

namespace {

// Text is written in pieces of about this many characters.
constexpr size_t kFlushSize = 1 << 20;

// A format that is neither kind is taken for a number format when it is
// made of the characters of number specifiers only.
bool looksLikeNumberFormat(const std::wstring& text) {
    std::wstring prefix, specifier, postfix;
    if (!vxFormat::splitFormat(text, prefix, specifier, postfix)) return true;
    return specifier.find_first_not_of(L"+-0123456789uifeEgGhH") == std::wstring::npos;
}

bool isMissing(double value) {
    return value < vxDataRawInput::kDefaultLowerLimit || value > vxDataRawInput::kDefaultUpperLimit;
}

}  // namespace

vxDataToFile::vxDataToFile(vxUserSettings* owner) : vxErrorHolder(L"vxDataToFile"), owner(owner) {}

vxDataToFile::~vxDataToFile() = default;

void vxDataToFile::assign(vxAssign& a) {
    fileName = a.getString(0);
    writingMode = a.getShort(1, 1);
    doTranspose = a.getBool(3, false);
    rowSeparator = vxTextFile::separatorOf(a.getString(4), L'\n');
    fieldSeparator = vxTextFile::separatorOf(a.getString(5), L'\t');
    formats.clear();
    if (a.getNumOfArguments() <= 6) return;
    const vxFormatSettings* settings = owner ? owner->getFormatSettings() : nullptr;
    const vxFormatNumber number(settings);
    const vxFormatDateTime date(settings);
    for (long i = 6; i < a.getNumOfArguments(); ++i) {
        const std::wstring text = a.getString(i);
        if (!text.empty() && !number.isValid(text) && !date.isValid(text)) {
            return looksLikeNumberFormat(text)
                       ? setError(vxErrFormat::kNumberFormat, where(L"assign", 1), text)
                       : setError(vxErrFormat::kDateTimeFormat, where(L"assign", 2), text);
        }
        formats.push_back(text);
    }
}

void vxDataToFile::write(const vxDataManager& data) {
    if (!create(file, L"createOutputFile")) return;
    if (!setUpColumns(data)) return;
    file->createOutputFile(fileName, writingMode);
    if (file->isError()) return copyError(file->getError());
    try {
        doTranspose ? writeTransposedData() : writeData();
    } catch (const std::bad_alloc&) {
        setError(vxErrRuntime::kOutOfMemory,
                 where(doTranspose ? L"writeTransposedData" : L"writeData"));
    }
    file->close();
    if (file->isError() && !isError()) copyError(file->getError());
}

// Every value series but the interval series the chart makes itself.
bool vxDataToFile::setUpColumns(const vxDataManager& data) {
    columns.clear();
    for (long j = 0; j < data.getNumOfChartSeries(); ++j) {
        for (long v = 0; v < data.getNumOfValueSeries(j); ++v) {
            const vxDataValueSeries* series = data.getValueSeries(j, v);
            if (series->getDataType() == vxDataRawInput::kTypeInterval) continue;
            Column column;
            column.series = series;
            column.format = formatOf(*series, columns.size());
            if (isError()) return false;
            columns.push_back(std::move(column));
        }
    }
    return true;
}

// The column's own format, of the kind it is valid as; without one, the
// default of the series' values. Dates are joined to their times by "&",
// as a data text joins them.
std::unique_ptr<vxFormat> vxDataToFile::formatOf(const vxDataValueSeries& series, size_t column) {
    const vxFormatSettings* settings = owner ? owner->getFormatSettings() : nullptr;
    const bool isDate = series.getDataType() == vxDataRawInput::kTypeDate;
    auto number = std::make_unique<vxFormatNumber>(settings);
    auto date = std::make_unique<vxFormatDateTime>(settings);
    std::wstring text = formats.empty() ? std::wstring() : formats[column % formats.size()];
    if (text.empty()) {
        if (isDate) {
            text = date->getDefaultFormat(series.getValues());
            std::replace(text.begin(), text.end(), L' ', L'&');
        } else {
            text = vxFormatNumber::getDefaultFormat(series.getValues());
        }
    }
    const bool asDate = date->isValid(text) && (isDate || !number->isValid(text));
    std::unique_ptr<vxFormat> format;
    if (asDate) {
        format = std::move(date);
    } else {
        format = std::move(number);
    }
    if (format->setFormat(text) != kNoError) copyError(format->getError());
    return format;
}

void vxDataToFile::appendValue(Column& column, long item, std::wstring& out) const {
    if (item >= column.series->size()) return;
    const double value = column.series->value(item);
    if (isMissing(value)) {
        out += missingText;
    } else {
        column.format->appendString(value, out);
    }
}

void vxDataToFile::writeData() {
    std::wstring text;
    for (Column& column : columns) {
        for (long i = 0; i < column.series->size(); ++i) {
            if (i > 0) text += fieldSeparator;
            appendValue(column, i, text);
        }
        text += rowSeparator;
        if (!flush(text, false)) return;
    }
    flush(text, true);
}

// Record i holds value i of every series; a shorter series leaves its field
// empty.
void vxDataToFile::writeTransposedData() {
    long records = 0;
    for (const Column& column : columns) records = std::max(records, column.series->size());
    std::wstring text;
    for (long i = 0; i < records; ++i) {
        for (size_t c = 0; c < columns.size(); ++c) {
            if (c > 0) text += fieldSeparator;
            appendValue(columns[c], i, text);
        }
        text += rowSeparator;
        if (!flush(text, false)) return;
    }
    flush(text, true);
}

bool vxDataToFile::flush(std::wstring& text, bool force) {
    if (!force && text.size() < kFlushSize) return true;
    file->writeText(text);
    text.clear();
    if (file->isError()) copyError(file->getError());
    return !isError();
}

}  // namespace Velarix
