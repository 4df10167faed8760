#include "overlays/vxCurveFittingData.h"

#include <new>

#include "host/vxLog.h"
#include "settings/vxErrorCodes.h"

namespace Velarix {

vxCurveFittingData::vxCurveFittingData() : vxErrorHolder(L"vxCurveFittingData") {}

vxCurveFittingData::~vxCurveFittingData() = default;

void vxCurveFittingData::clear() {
    items.clear();
}

void vxCurveFittingData::copy(const vxCurveFittingData* from) {
    clear();
    if (!from) return;
    try {
        items = from->items;
    } catch (const std::bad_alloc&) {
        setError(vxErrRuntime::kOutOfMemory, where(L"copy"));
    }
}

bool vxCurveFittingData::addItem(const vxCurveFittingDataItem& item) {
    try {
        items.push_back(item);
        return true;
    } catch (const std::bad_alloc&) {
        setError(vxErrRuntime::kOutOfMemory, where(L"addItem"));
        return false;
    }
}

const vxCurveFittingDataItem* vxCurveFittingData::find(long chartIndex, long seriesIndex,
                                                       short type) const {
    for (const vxCurveFittingDataItem& item : items) {
        if (item.chartIndex == chartIndex && item.seriesIndex == seriesIndex && item.type == type) {
            return &item;
        }
    }
    return nullptr;
}

double vxCurveFittingData::getNumOfCoefficients(long chartIndex, long seriesIndex,
                                                short type) const {
    const vxCurveFittingDataItem* item = find(chartIndex, seriesIndex, type);
    return item ? static_cast<double>(item->numOfCoefficients) : 0.0;
}

double vxCurveFittingData::getCoefficient(long chartIndex, long seriesIndex, short type,
                                          long index) const {
    const vxCurveFittingDataItem* item = find(chartIndex, seriesIndex, type);
    if (!item || index < 0 || index >= item->numOfCoefficients || index >= 11) return 0.0;
    return item->c[index];
}

void vxCurveFittingData::dump(short depth, std::ostream& out) const {
    if (depth <= 0) return;
    vxDumpHeader(out, "vxCurveFittingData");
    vxDumpLine(out, "long numOfItems: ", getNumOfItems());
    for (const vxCurveFittingDataItem& item : items) {
        vxDumpLine(out, "long chartIndex: ", item.chartIndex);
        vxDumpLine(out, "long seriesIndex: ", item.seriesIndex);
        vxDumpLine(out, "short type:  ", item.type);
        vxDumpLine(out, "long numOfCoefficients: ", item.numOfCoefficients);
    }
    vxDumpEnd(out);
}

}  // namespace Velarix
