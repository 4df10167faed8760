#include "data/vxDataChartSeries.h"

#include <algorithm>
#include <new>

#include "host/vxLog.h"

namespace Velarix {

vxDataChartSeries::vxDataChartSeries() : vxErrorHolder(L"vxDataChartSeries") {}

vxDataChartSeries::~vxDataChartSeries() = default;

void vxDataChartSeries::init() {
    mNumOfItems = 0;
    mValueSeries.clear();
}

void vxDataChartSeries::copy(const vxDataChartSeries* from) {
    if (from == this) return;
    init();
    if (!from) return;
    for (const auto& series : from->mValueSeries) {
        vxDataValueSeries* added = addValueSeries();
        if (!added) return;
        added->copy(series.get());
        if (added->isError()) return copyError(added->getError());
    }
    mNumOfItems = from->mNumOfItems;
}

void vxDataChartSeries::dump(short depth, std::ostream& out) const {
    if (depth <= 0) return;
    vxDumpHeader(out, "vxDataChartSeries");
    vxDumpLine(out, "long numOfItems:       ", mNumOfItems);
    vxDumpLine(out, "Num of value series:   ", getNumOfValueSeries());
    for (const auto& series : mValueSeries) series->dump(static_cast<short>(depth - 1), out);
    vxDumpEnd(out);
}

vxDataValueSeries* vxDataChartSeries::addValueSeries() {
    try {
        mValueSeries.push_back(std::make_unique<vxDataValueSeries>());
    } catch (const std::bad_alloc&) {
        setError(vxErrRuntime::kOutOfMemory, where(L"addValueSeries"));
        return nullptr;
    }
    return mValueSeries.back().get();
}

vxDataValueSeries* vxDataChartSeries::getValueSeries(long series) {
    return series >= 0 && series < getNumOfValueSeries()
               ? mValueSeries[static_cast<std::size_t>(series)].get()
               : nullptr;
}

const vxDataValueSeries* vxDataChartSeries::getValueSeries(long series) const {
    return series >= 0 && series < getNumOfValueSeries()
               ? mValueSeries[static_cast<std::size_t>(series)].get()
               : nullptr;
}

long vxDataChartSeries::getShortestLength(long first) const {
    long shortest = -1;
    for (long s = std::max(0L, first); s < getNumOfValueSeries(); ++s) {
        const long size = getValueSeries(s)->size();
        shortest = shortest < 0 ? size : std::min(shortest, size);
    }
    return std::max(0L, shortest);
}

long vxDataChartSeries::getNumOfValues(long series) const {
    const vxDataValueSeries* s = getValueSeries(series);
    return s ? s->size() : 0;
}

double vxDataChartSeries::getValue(long series, long i) const {
    const vxDataValueSeries* s = getValueSeries(series);
    return s ? s->value(i) : 0.0;
}

bool vxDataChartSeries::isValidValue(long series, long i) const {
    const vxDataValueSeries* s = getValueSeries(series);
    return s && s->isValid(i);
}

short vxDataChartSeries::getDataType(long series) const {
    const vxDataValueSeries* s = getValueSeries(series);
    return s ? s->getDataType() : 0;
}

double vxDataChartSeries::getLowerLimit(long series) const {
    const vxDataValueSeries* s = getValueSeries(series);
    return s ? s->getLowerLimit() : 0.0;
}

double vxDataChartSeries::getUpperLimit(long series) const {
    const vxDataValueSeries* s = getValueSeries(series);
    return s ? s->getUpperLimit() : 0.0;
}

long vxDataChartSeries::getNumOfInvalidValues(long series) {
    vxDataValueSeries* s = getValueSeries(series);
    return s ? s->getNumOfInvalidValues() : 0;
}

long vxDataChartSeries::getNumOfValidValues(long series) {
    vxDataValueSeries* s = getValueSeries(series);
    return s ? s->getNumOfValidValues() : 0;
}

long vxDataChartSeries::getNumOfDateComponents(long series) const {
    const vxDataValueSeries* s = getValueSeries(series);
    return s ? s->getNumOfDateComponents() : 0;
}

long vxDataChartSeries::getNumOfTimeComponents(long series) const {
    const vxDataValueSeries* s = getValueSeries(series);
    return s ? s->getNumOfTimeComponents() : 0;
}

// A statistic's error stays on the value series; the chart series takes a
// copy, so that its caller finds it with one test. The first error is kept.
void vxDataChartSeries::takeError(const vxDataValueSeries& series) {
    if (series.isError() && !isError()) copyError(series.getError());
}

double vxDataChartSeries::statistic(long series, double (vxDataValueSeries::*getter)()) {
    vxDataValueSeries* s = getValueSeries(series);
    if (!s) return 0.0;
    double result = (s->*getter)();
    takeError(*s);
    return result;
}

double vxDataChartSeries::getMoment(long series, short k) {
    vxDataValueSeries* s = getValueSeries(series);
    return s ? s->getMoment(k) : 0.0;
}

double vxDataChartSeries::getMomentMean(long series, short k) {
    vxDataValueSeries* s = getValueSeries(series);
    return s ? s->getMomentMean(k) : 0.0;
}

double vxDataChartSeries::getMomentOrigin(long series, short k, double origin) {
    vxDataValueSeries* s = getValueSeries(series);
    return s ? s->getMomentOrigin(k, origin) : 0.0;
}

double vxDataChartSeries::percentile(long series, double p) {
    vxDataValueSeries* s = getValueSeries(series);
    if (!s) return 0.0;
    double result = s->percentile(p);
    takeError(*s);
    return result;
}

}  // namespace Velarix
