// What the script said about a chart's data, kept as text until the chart's
// set-up asks for its series. ChartData stores one text per argument;
// ChartDataTypes, ChartDataLowerLimits, ChartDataUpperLimits and
// ChartDataOptions store the types, limits and options of the raw series.
//
// A raw series is one column of the chart's input. In data order xxyy each
// text is one series; in data order xyxy each text is one record, and the
// nth token of every text makes series n. Tokens are separated by blanks.
// Texts are read on demand: a token becomes a number, a date-time value
// (Utilities/Sources/vxDateTime.h) or, for "null", the invalid value; any
// other token is error 2010 with a detail that names the series, the
// element and the token.
#pragma once

#include <ostream>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "Utilities/Sources/vxDateTime.h"
#include "data/vxDataValueSeries.h"
#include "settings/vxErrorHolder.h"

namespace Velarix {

class vxAssign;
class vxUserSettings;

class vxDataRawInput : public vxErrorHolder {
public:
    enum DataType : short { kTypeAutomatic = 0, kTypeInterval = 1, kTypeNumber = 2, kTypeDate = 3 };
    enum DataOrder : short { kOrderXXYY = 1, kOrderXYXY = 2 };
    enum DateOrderID : short { kDateOrderYMD = 1, kDateOrderMDY = 2, kDateOrderDMY = 3 };

    static constexpr double kInvalidValue = vxDataValueSeries::kInvalidValue;
    static constexpr double kDefaultLowerLimit = vxDataValueSeries::kDefaultLowerLimit;
    static constexpr double kDefaultUpperLimit = vxDataValueSeries::kDefaultUpperLimit;

    explicit vxDataRawInput(vxUserSettings* owner);
    ~vxDataRawInput() override;

    // Counts the series for a chart whose chart series take
    // `valuesPerChartSeries` raw series, and keeps one data type for each
    // position inside a chart series.
    virtual void setUp(long valuesPerChartSeries);
    virtual void init();
    // Owner, delimiter, date order, data order and the two counts.
    virtual void set(const vxDataRawInput& other);
    // ChartData, ChartDataTypes, ChartDataLowerLimits, ChartDataUpperLimits,
    // ChartDataOptions.
    virtual void assign(vxAssign& assign);
    // Writes the date order into the format settings; hyphenated dates then
    // come back with two-digit months and days.
    virtual void storeDateOrder();
    // The values of raw series n, appended to `out`.
    virtual void extractNthSeries(std::vector<double>& out, long n);

    std::vector<std::wstring>& getInputStrings();
    // Blanks plus one; 0 for an empty text or n out of range.
    long getNumOfTokens(long n) const;
    long getNumOfStrings() const { return static_cast<long>(inputStrings.size()); }
    std::wstring getInputString(long n) const;
    // Types and limits wrap around; options don't.
    short getDataType(long n) const;
    double getLowerLimit(long n) const;
    double getUpperLimit(long n) const;
    short getOption(long n) const;
    void setDateOrderID(short id) { dateOrderID = id; }
    short getDateOrderID() const { return dateOrderID; }
    short getDataOrder() const { return dataOrder; }
    void setDataOrder(short order);
    long getNumOfDataSeries() const { return numOfDataSeries; }
    long getNumOfChartSeries() const { return numOfChartSeries; }

    // Decides the type of series n from its first token that reads as a
    // number or a date, unless the script gave it (order xxyy).
    void determineDataType(long n, const std::wstring& dateOrder);
    // Runs the date test over the tokens of series n, refining the order
    // and the specs; the first token that fails is error 2010.
    void determineDateOrder(long n, std::wstring& dateOrder, vxDateTimeSpecs& specs);

    // "YMD", "MDY", "DMY" or "???", and back; -1 for a text that is none.
    static std::wstring dateOrderText(short id);
    static short dateOrderIDOf(const std::wstring& order);
    // "YMD", "MDY" or "DMY": the date test takes the fields in that order.
    static bool isFixedDateOrder(const std::wstring& order);

    void dump(short depth, std::ostream& out) const;

private:
    // Walks the tokens of series n, each with its series and element
    // numbers as the error detail names them, until `visit` returns false.
    template <class Visit>
    void forEachToken(long n, Visit&& visit);
    const std::vector<std::pair<unsigned, unsigned>>& recordTokens(long s);
    void settleOpenDateOrder(long n, std::wstring& dateOrder);
    // The token with its first "," made a point, in a buffer used again.
    const std::wstring& commaAsPoint(std::wstring_view token);
    double toValue(std::wstring_view token, const std::wstring& dateOrder, short type, long series,
                   long element);
    void raiseValueError(const wchar_t* method, int number, long series, long element,
                         std::wstring_view token);
    void assignData(vxAssign& assign);
    void assignDataTypes(vxAssign& assign);
    void assignLimits(vxAssign& assign, std::vector<double>& limits, double defaultLimit);
    void assignOptions(vxAssign& assign);

    vxUserSettings* owner;
    wchar_t delimiter = L' ';
    short dateOrderID = -1;
    short dataOrder = kOrderXXYY;
    long numOfChartSeries = 0;
    long numOfDataSeries = 0;
    std::vector<std::wstring> inputStrings;
    std::vector<short> dataTypes;
    std::vector<double> lowerLimits;
    std::vector<double> upperLimits;
    std::vector<short> dataOptions;
    // Order xyxy: the token spans of each record, found once.
    std::vector<std::vector<std::pair<unsigned, unsigned>>> recordSpans;
    // A token with its decimal comma made a point, and the order the date
    // test refines for it.
    std::wstring scratch;
    std::wstring tokenOrder;
};

}  // namespace Velarix
