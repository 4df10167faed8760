#include "data/vxDataFromFile.h"

#include <algorithm>

#include "data/vxDataTokens.h"
#include "output/vxTextFile.h"
#include "script/vxAssign.h"

namespace Velarix {

vxDataFromFile::vxDataFromFile() : vxErrorHolder(L"vxDataFromFile") {}

vxDataFromFile::~vxDataFromFile() = default;

void vxDataFromFile::assign(vxAssign& a, std::vector<std::wstring>& strings) {
    if (!create(file, L"createInputFile")) return;
    fileName = a.getString(0);
    doTranspose = a.getBool(1, false);
    rowSeparator = vxTextFile::separatorOf(a.getString(2), L'\n');
    fieldSeparator = vxTextFile::separatorOf(a.getString(3), L'\t');
    requestedIndices.clear();
    for (long i = 4; i < a.getNumOfArguments(); ++i) requestedIndices.push_back(a.getLong(i, 0));
    file->createInputFile(fileName);
    if (file->isError()) return copyError(file->getError());
    try {
        doTranspose ? readTransposedData(strings) : readData(strings);
    } catch (const std::bad_alloc&) {
        setError(vxErrRuntime::kOutOfMemory, where(L"assign"), fileName);
    }
}

void vxDataFromFile::setUpSeriesIndices(long n) {
    seriesIndices.clear();
    const bool all =
        requestedIndices.empty() ||
        std::find(requestedIndices.begin(), requestedIndices.end(), 0L) != requestedIndices.end();
    if (all) {
        for (long i = 0; i < n; ++i) seriesIndices.push_back(i);
    } else {
        for (long index : requestedIndices) {
            seriesIndices.push_back(index > 0 ? index - 1 : index + n);
        }
    }
    positions.assign(static_cast<size_t>(std::max(0L, n)), -1);
    for (long i : seriesIndices) {
        if (i >= 0 && i < n) positions[static_cast<size_t>(i)] = 0;
    }
    long rank = 0;
    for (long& position : positions) {
        if (position == 0) position = rank++;
    }
}

long vxDataFromFile::positionOf(long i) const {
    return i >= 0 && i < static_cast<long>(positions.size()) ? positions[static_cast<size_t>(i)]
                                                             : -1;
}

// The chosen records become the texts in file order, whatever the order
// and repeats of the list; a record's fields are joined by blanks
// and empty fields drop out.
void vxDataFromFile::readData(std::vector<std::wstring>& strings) {
    const long records = file->countRecords(rowSeparator);
    if (records == 0) return;
    setUpSeriesIndices(records);
    strings.assign(seriesIndices.size(), std::wstring());
    file->rewind(0, 0);
    std::wstring_view record;
    for (long r = 0; file->readRecord(rowSeparator, record); ++r) {
        const long at = positionOf(r);
        if (at < 0) continue;
        std::wstring& text = strings[static_cast<size_t>(at)];
        vxDataTokens fields(record, fieldSeparator);
        std::wstring_view field;
        while (fields.next(field)) {
            if (!text.empty()) text += L' ';
            text.append(field);
        }
    }
}

// Field j of every record goes to the text of column j, when chosen, the
// chosen columns in file order; an
// empty field adds nothing, so the later values of its column move up.
void vxDataFromFile::readTransposedData(std::vector<std::wstring>& strings) {
    const long records = file->countRecords(rowSeparator);
    if (records == 0) return;
    setUpSeriesIndices(file->countFields(rowSeparator, fieldSeparator));
    strings.assign(seriesIndices.size(), std::wstring());
    file->rewind(0, 0);
    std::wstring_view record;
    while (file->readRecord(rowSeparator, record)) {
        long column = 0;
        size_t from = 0;
        while (from <= record.size()) {
            size_t end = record.find(fieldSeparator, from);
            if (end == std::wstring_view::npos) end = record.size();
            const std::wstring_view field = record.substr(from, end - from);
            const long at = positionOf(column++);
            if (at >= 0 && !field.empty()) {
                std::wstring& text = strings[static_cast<size_t>(at)];
                if (!text.empty()) text += L' ';
                text.append(field);
            }
            from = end + 1;
        }
    }
}

}  // namespace Velarix
