// ChartDataRead: fills the chart's data texts from a delimited text file.
// Each chosen record (or, transposed, each chosen column) becomes one text
// of blank-separated tokens, exactly as a ChartData argument would be, so
// that the data texts are read the same way whatever their source.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "settings/vxErrorHolder.h"

namespace Velarix {

class vxAssign;
class vxTextFile;

class vxDataFromFile : public vxErrorHolder {
public:
    vxDataFromFile();
    ~vxDataFromFile() override;

    // Reads the file the call names into `strings`, which it replaces.
    // Arguments: file, transposed, row separator (default line feed),
    // field separator (default tab), then one-based series indices.
    void assign(vxAssign& assign, std::vector<std::wstring>& strings);

    // Zero-based indices out of the one-based list: empty, or any 0 in it,
    // means all n; a negative index counts from the end.
    void setUpSeriesIndices(long n);
    const std::vector<long>& getSeriesIndices() const { return seriesIndices; }

    void readData(std::vector<std::wstring>& strings);
    void readTransposedData(std::vector<std::wstring>& strings);

private:
    // The text that record (or column) i goes to, or -1.
    long positionOf(long i) const;

    std::wstring fileName;
    bool doTranspose = false;
    wchar_t rowSeparator = L'\n';
    wchar_t fieldSeparator = L'\t';
    std::vector<long> requestedIndices;
    std::vector<long> seriesIndices;
    // For each record (or column): the text it goes to, -1 when not chosen.
    std::vector<long> positions;
    std::unique_ptr<vxTextFile> file;
};

}  // namespace Velarix
