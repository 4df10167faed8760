// ChartDataWrite: the chart's series written to a delimited text file once
// they are read, one record per series (or, transposed, one column per
// series). Numbers and dates are written in the formats the call gives, one
// per series and taken in turn, or in a default form that shows every value
// to 9 significant digits and reads back as the value written; a missing
// value is "NULL".
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "settings/vxErrorHolder.h"

namespace Velarix {

class vxAssign;
class vxDataManager;
class vxDataValueSeries;
class vxFormat;
class vxTextFile;
class vxUserSettings;

class vxDataToFile : public vxErrorHolder {
public:
    explicit vxDataToFile(vxUserSettings* owner);
    ~vxDataToFile() override;

    // Arguments: file, file flag, (not used), transposed, row separator
    // (default line feed), field separator (default tab), then formats. A
    // format that is neither a number nor a date format is error 2001 at
    // "/assign/1" or 2002 at "/assign/2", by the kind it resembles.
    void assign(vxAssign& assign);
    void write(const vxDataManager& data);

    const std::wstring& getFileName() const { return fileName; }

private:
    // One series to write, with the format of its values.
    struct Column {
        const vxDataValueSeries* series = nullptr;
        std::unique_ptr<vxFormat> format;
    };

    bool setUpColumns(const vxDataManager& data);
    std::unique_ptr<vxFormat> formatOf(const vxDataValueSeries& series, size_t column);
    void appendValue(Column& column, long item, std::wstring& out) const;
    void writeData();
    void writeTransposedData();
    bool flush(std::wstring& text, bool force);

    vxUserSettings* owner;
    std::wstring fileName;
    short writingMode = 1;
    bool doTranspose = false;
    wchar_t rowSeparator = L'\n';
    wchar_t fieldSeparator = L'\t';
    std::wstring missingText = L"NULL";
    std::vector<std::wstring> formats;
    std::vector<Column> columns;
    std::unique_ptr<vxTextFile> file;
};

}  // namespace Velarix
