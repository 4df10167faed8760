// The numbers of one chart. The manager owns the raw input that the script's
// data functions fill, the chart series made from it at set-up, the stacked
// series of stacked charts, and the data files that ChartDataRead and
// ChartDataWrite name.
//
// A chart series is the run of value series that together make one drawn
// series: the interval series first (item positions or angles), then the
// series the chart type takes per data set (x and y, high and low, ...).
#pragma once

#include <memory>
#include <ostream>
#include <vector>

#include "settings/vxErrorHolder.h"

namespace Velarix {

class vxAssign;
class vxBaseChartParameters;
class vxDataChartSeries;
class vxDataFromFile;
class vxDataRawInput;
class vxDataStackedSeries;
class vxDataToFile;
class vxDataValueSeries;
class vxUserSettings;

class vxDataManager : public vxErrorHolder {
public:
    explicit vxDataManager(vxUserSettings* owner);
    ~vxDataManager() override;

    // Counts the raw series for the chart type.
    void setUp(const vxBaseChartParameters& chart);
    // The data functions of the script.
    void assign(vxAssign& assign);
    // Builds the chart series: error 1170 when the input holds no complete
    // data set, error 2010 for a value that doesn't read.
    void setUpChartSeries(const vxBaseChartParameters& chart);
    // Stacked and proportional sums, when the chart asks for them.
    void setUpStackedValues(const vxBaseChartParameters& chart);
    // Fills the interval series: item positions for a Cartesian chart,
    // angles for a polar one.
    void insertIntervalValues(const vxBaseChartParameters& chart);
    // Writes the series to the file that ChartDataWrite named, if any.
    void writeData();
    // Each value series becomes the count of its values per category of all
    // chart series.
    void setUpDataFrequencies();
    // Each value series becomes the count of its values per bin; limits not
    // given are the extremes over all chart series of that position.
    void setUpRangeFrequencies(double min, double max, bool hasMin, bool hasMax, long intervals,
                               bool openEnds, bool leftClosed);
    // The items of a chart series in the order of their values (direction
    // 1 ascending, 2 descending, any other: script order), by the first
    // value series or, with `stacked`, by the stacked totals.
    void sortChartSeries(long seriesIndex, short direction, bool stacked);
    void init();

    vxDataRawInput* getRawInput() const { return rawInput.get(); }
    long getNumOfChartSeries() const { return static_cast<long>(chartSeries.size()); }
    // Null out of range.
    vxDataChartSeries* getChartSeries(long series) const;
    vxDataValueSeries* getValueSeries(long series, long valueSeries) const;
    long getNumOfValueSeries(long series) const;
    long getNumOfItems(long series) const;
    long getMinNumOfItems() const { return minNumOfItems; }
    long getMaxNumOfItems() const { return maxNumOfItems; }
    // 0 out of range.
    double getValue(long series, long valueSeries, long item) const;
    bool isValidValue(long series, long valueSeries, long item) const;
    short getDataType(long series, long valueSeries) const;
    long getSortIndex(long item) const;

    long getNumOfStackedSeries() const { return static_cast<long>(stackedSeries.size()); }
    vxDataStackedSeries* getStackedSeries(long item) const;
    // The top of chart series `series` in the stack of an item.
    double getStackedValue(long series, long item) const;
    double getProportionalValue(long series, long item) const;
    double getMaxPositiveStackedSum() const { return maxPositiveStackedSum; }
    // The same for the stacks of shares (of a proportional chart): 1 at most.
    double getMaxPositiveProportionalSum() const { return maxPositiveProportionalSum; }
    double getMinNegativeProportionalSum() const { return minNegativeProportionalSum; }
    double getMinNegativeStackedSum() const { return minNegativeStackedSum; }
    double getTotalPositiveStackedSum() const { return totalPositiveStackedSum; }
    double getTotalNegativeStackedSum() const { return totalNegativeStackedSum; }

    void dump(short depth, std::ostream& out) const;

private:
    void assignReadData(vxAssign& assign);
    void assignWriteData(vxAssign& assign);
    void determineDateTimeOrder(long valuesPerChartSeries);
    void storeFoundDateOrder(const std::wstring& order, short separatorID, short timeSeparatorID,
                             short yearFormatID);
    bool addChartSeries(long first, const vxBaseChartParameters& chart);
    bool fillValueSeries(vxDataChartSeries& series, long raw);
    void insertIntervalIndices(const vxBaseChartParameters& chart);
    void insertIntervalAngles(const vxBaseChartParameters& chart);
    void fillIntervalSeries(long series, long count, double start, double step);
    // After frequencies each chart series has one item per category or bin.
    void recountItems();
    double stackedTotal(long item) const;

    vxUserSettings* owner;
    short coordinateSystem = 1;
    long numOfIntervalSeries = 0;
    long minNumOfItems = 0;
    long maxNumOfItems = 0;
    std::vector<std::unique_ptr<vxDataChartSeries>> chartSeries;
    std::vector<std::unique_ptr<vxDataStackedSeries>> stackedSeries;
    std::unique_ptr<vxDataRawInput> rawInput;
    std::unique_ptr<vxDataFromFile> readData;
    std::unique_ptr<vxDataToFile> writeFile;
    std::vector<long> sortIndices;
    double maxPositiveStackedSum = 0.0;
    double maxPositiveProportionalSum = 0.0;
    double minNegativeProportionalSum = 0.0;
    double minNegativeStackedSum = 0.0;
    double totalPositiveStackedSum = 0.0;
    double totalNegativeStackedSum = 0.0;
};

}  // namespace Velarix
