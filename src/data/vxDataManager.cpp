#include "data/vxDataManager.h"

#include <algorithm>
#include <cmath>
#include <numeric>

#include "charts/vxBaseChartParameters.h"
#include "data/vxDataChartSeries.h"
#include "data/vxDataFromFile.h"
#include "data/vxDataRawInput.h"
#include "data/vxDataStackedSeries.h"
#include "data/vxDataToFile.h"
#include "data/vxDataValueSeries.h"
#include "host/vxLog.h"
#include "script/vxAssign.h"
#include "script/vxFunctionIds.h"
#include "settings/vxFormatSettings.h"
#include "settings/vxUserSettings.h"

namespace Velarix {

vxDataManager::vxDataManager(vxUserSettings* owner)
    : vxErrorHolder(L"vxDataManager"), owner(owner) {
    create(rawInput, L"createRawInput", owner);
}

vxDataManager::~vxDataManager() = default;

void vxDataManager::init() {
    minNumOfItems = maxNumOfItems = 0;
    chartSeries.clear();
    stackedSeries.clear();
    sortIndices.clear();
    maxPositiveStackedSum = minNegativeStackedSum = 0.0;
    maxPositiveProportionalSum = minNegativeProportionalSum = 0.0;
    totalPositiveStackedSum = totalNegativeStackedSum = 0.0;
    if (rawInput) rawInput->init();
}

void vxDataManager::setUp(const vxBaseChartParameters& chart) {
    coordinateSystem = chart.getCoordinateSystem();
    if (rawInput) rawInput->setUp(chart.getMinNumOfDataSeries());
}

void vxDataManager::assign(vxAssign& a) {
    if (!rawInput) return;
    switch (a.getFunction()) {
        case kChartDataRead:
            return assignReadData(a);
        case kChartDataWrite:
            return assignWriteData(a);
        default:
            rawInput->assign(a);
            if (rawInput->isError()) copyError(rawInput->getError());
    }
}

void vxDataManager::assignReadData(vxAssign& a) {
    if (!create(readData, L"assignReadData")) return;
    readData->assign(a, rawInput->getInputStrings());
    if (readData->isError()) copyError(readData->getError());
}

void vxDataManager::assignWriteData(vxAssign& a) {
    if (!create(writeFile, L"assignWriteData", owner)) return;
    writeFile->assign(a);
    if (writeFile->isError()) copyError(writeFile->getError());
}

void vxDataManager::writeData() {
    if (!writeFile) return;
    writeFile->write(*this);
    if (writeFile->isError()) copyError(writeFile->getError());
}

// 1. One chart series for each complete data set of the raw input.
// 2. Dates are read in one order for the whole chart, settled first.
// 3. Each chart series is as long as its shortest value series, cut to
//    whole records of the chart's sub-values.
void vxDataManager::setUpChartSeries(const vxBaseChartParameters& chart) {
    if (!rawInput) return;
    chartSeries.clear();
    stackedSeries.clear();
    minNumOfItems = maxNumOfItems = 0;
    numOfIntervalSeries = chart.getNumOfIntervalSeries();
    const long k = std::max(1L, chart.getMinNumOfDataSeries());
    const long c = rawInput->getNumOfChartSeries();
    if (c < 1) return setError(vxErrScript::kNotEnoughData, where(L"setUpChartSeries"));
    determineDateTimeOrder(k);
    if (isError()) return;
    for (long j = 0; j < c; ++j) {
        if (!addChartSeries(j * k, chart)) return;
    }
    rawInput->storeDateOrder();
}

bool vxDataManager::addChartSeries(long first, const vxBaseChartParameters& chart) {
    std::unique_ptr<vxDataChartSeries> series;
    if (!create(series, L"addChartSeries")) return false;
    for (long i = 0; i < chart.getNumOfIntervalSeries(); ++i) {
        vxDataValueSeries* interval = series->addValueSeries();
        if (!interval) return copyError(series->getError()), false;
        interval->fill({}, vxDataRawInput::kTypeInterval, vxDataValueSeries::kDefaultLowerLimit,
                       vxDataValueSeries::kDefaultUpperLimit, 0);
    }
    const long k = std::max(1L, chart.getMinNumOfDataSeries());
    for (long p = 0; p < k; ++p) {
        if (!fillValueSeries(*series, first + p)) return false;
    }
    long items = series->getShortestLength(chart.getNumOfIntervalSeries());
    items -= items % std::max(1L, chart.getNumOfSubValues());
    for (long v = chart.getNumOfIntervalSeries(); v < series->getNumOfValueSeries(); ++v) {
        series->getValueSeries(v)->resize(items);
    }
    series->setNumOfItems(items);
    minNumOfItems = std::min(minNumOfItems, items);
    maxNumOfItems = std::max(maxNumOfItems, items);
    try {
        chartSeries.push_back(std::move(series));
    } catch (const std::bad_alloc&) {
        setError(vxErrRuntime::kOutOfMemory, where(L"addChartSeries", 2));
        return false;
    }
    return true;
}

bool vxDataManager::fillValueSeries(vxDataChartSeries& series, long raw) {
    std::vector<double> values;
    try {
        rawInput->extractNthSeries(values, raw);
    } catch (const std::bad_alloc&) {
        setError(vxErrRuntime::kOutOfMemory, where(L"fillValueSeries"));
        return false;
    }
    if (rawInput->isError()) return copyError(rawInput->getError()), false;
    vxDataValueSeries* target = series.addValueSeries();
    if (!target) return copyError(series.getError()), false;
    target->fill(std::move(values), rawInput->getDataType(raw), rawInput->getLowerLimit(raw),
                 rawInput->getUpperLimit(raw), rawInput->getOption(raw));
    if (target->isError()) return copyError(target->getError()), false;
    return true;
}

// The first date series that shows its order decides it for all; an order
// the dates leave open falls back on the point separator (day first), the
// settings, and month first.
void vxDataManager::determineDateTimeOrder(long k) {
    std::wstring order = L"???";
    for (long s = 0; s < rawInput->getNumOfDataSeries(); ++s) rawInput->determineDataType(s, order);
    bool anyDate = false;
    for (long p = 0; p < k; ++p) {
        anyDate = anyDate || rawInput->getDataType(p) == vxDataRawInput::kTypeDate;
    }
    if (!anyDate) return;
    vxDateTimeSpecs specs;
    for (long s = 0; s < rawInput->getNumOfDataSeries(); ++s) {
        if (rawInput->getDataType(s) != vxDataRawInput::kTypeDate) continue;
        rawInput->determineDateOrder(s, order, specs);
        if (rawInput->isError()) return copyError(rawInput->getError());
        if (order.find(L'?') == std::wstring::npos) {
            return storeFoundDateOrder(order, specs.dateSeparatorID, specs.timeSeparatorID,
                                       specs.yearFormatID);
        }
    }
    const vxFormatSettings* format = owner ? owner->getFormatSettings() : nullptr;
    const short settingsOrder = format ? format->getDateOrderID() : -1;
    std::wstring settled = L"MDY";
    if (specs.dateSeparatorID == 2) {
        settled = L"DMY";
    } else if (settingsOrder > 0) {
        settled = vxDataRawInput::dateOrderText(settingsOrder);
        if (order.size() > 2 && order[2] == L'Y' && settled[2] != L'Y') {
            return setError(vxErrChart::kChartDataValue, where(L"determineDateTimeOrder"));
        }
    }
    storeFoundDateOrder(settled, specs.dateSeparatorID, specs.timeSeparatorID, specs.yearFormatID);
}

void vxDataManager::storeFoundDateOrder(const std::wstring& order, short separatorID,
                                        short timeSeparatorID, short yearFormatID) {
    const short id = vxDataRawInput::dateOrderIDOf(order);
    rawInput->setDateOrderID(id);
    vxFormatSettings* format = owner ? owner->getFormatSettings() : nullptr;
    if (!format) return;
    format->setDateOrderID(id);
    if (separatorID >= 0) format->setDateSeparatorID(separatorID);
    if (timeSeparatorID >= 0) format->setTimeSeparatorID(timeSeparatorID);
    if (yearFormatID >= 0) format->setYearFormatID(yearFormatID);
}

vxDataChartSeries* vxDataManager::getChartSeries(long series) const {
    if (series < 0 || series >= getNumOfChartSeries()) return nullptr;
    return chartSeries[static_cast<size_t>(series)].get();
}

vxDataValueSeries* vxDataManager::getValueSeries(long series, long valueSeries) const {
    vxDataChartSeries* chart = getChartSeries(series);
    return chart ? chart->getValueSeries(valueSeries) : nullptr;
}

long vxDataManager::getNumOfValueSeries(long series) const {
    vxDataChartSeries* chart = getChartSeries(series);
    return chart ? chart->getNumOfValueSeries() : 0;
}

long vxDataManager::getNumOfItems(long series) const {
    vxDataChartSeries* chart = getChartSeries(series);
    return chart ? chart->getNumOfItems() : 0;
}

double vxDataManager::getValue(long series, long valueSeries, long item) const {
    vxDataValueSeries* values = getValueSeries(series, valueSeries);
    return values && item >= 0 && item < values->size() ? values->value(item) : 0.0;
}

bool vxDataManager::isValidValue(long series, long valueSeries, long item) const {
    vxDataValueSeries* values = getValueSeries(series, valueSeries);
    return values && item >= 0 && item < values->size() && values->isValid(item);
}

short vxDataManager::getDataType(long series, long valueSeries) const {
    vxDataValueSeries* values = getValueSeries(series, valueSeries);
    return values ? values->getDataType() : 0;
}

long vxDataManager::getSortIndex(long item) const {
    if (item < 0 || item >= static_cast<long>(sortIndices.size())) return item;
    return sortIndices[static_cast<size_t>(item)];
}

vxDataStackedSeries* vxDataManager::getStackedSeries(long item) const {
    if (item < 0 || item >= getNumOfStackedSeries()) return nullptr;
    return stackedSeries[static_cast<size_t>(item)].get();
}

double vxDataManager::getStackedValue(long series, long item) const {
    vxDataStackedSeries* stack = getStackedSeries(item);
    return stack ? stack->getStackedValue(series) : 0.0;
}

double vxDataManager::getProportionalValue(long series, long item) const {
    vxDataStackedSeries* stack = getStackedSeries(item);
    return stack ? stack->getProportionalValue(series) : 0.0;
}

void vxDataManager::dump(short depth, std::ostream& out) const {
    if (depth <= 0) return;
    vxDumpHeader(out, "vxDataManager");
    vxDumpLine(out, "short coordinateSystem: ", coordinateSystem);
    vxDumpLine(out, "long minNumOfItems:     ", minNumOfItems);
    vxDumpLine(out, "long maxNumOfItems:     ", maxNumOfItems);
    vxDumpLine(out, "long numOfChartSeries:  ", getNumOfChartSeries());
    vxDumpLine(out, "long numOfStackedSeries: ", getNumOfStackedSeries());
    vxDumpEnd(out);
    if (rawInput) rawInput->dump(static_cast<short>(depth - 1), out);
    for (const auto& series : chartSeries) series->dump(static_cast<short>(depth - 1), out);
}

}  // namespace Velarix
