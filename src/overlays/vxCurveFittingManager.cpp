#include "overlays/vxCurveFittingManager.h"

#include <algorithm>
#include <new>

#include "charts/vxBaseChart.h"
#include "charts/vxChartLayerTypes.h"
#include "data/vxDataManager.h"
#include "drawing/vxLayer.h"
#include "drawing/vxLayerManager.h"
#include "graphics/vxShadowOLD.h"
#include "host/vxLog.h"
#include "overlays/vxCurveFittingData.h"
#include "overlays/vxCurveFittingItem.h"
#include "script/vxAssign.h"
#include "script/vxFunctionIds.h"

namespace Velarix {

namespace {

constexpr long kAllSeries = 0;
constexpr short kAnyType = vxCurveFittingItem::kNone;

}  // namespace

vxCurveFittingManager::vxCurveFittingManager(vxUserSettings* settings)
    : vxErrorHolder(L"vxCurveFittingManager"), owner(settings) {
    setDefaults();
}

vxCurveFittingManager::~vxCurveFittingManager() = default;

void vxCurveFittingManager::setDefaults() {
    requests.clear();
    items.clear();
    excluded.clear();
    setUpDone = false;
    try {
        defaultItem = vxCurveFittingItem::make(vxCurveFittingItem::kLinear, owner);
    } catch (const std::bad_alloc&) {
        setError(vxErrRuntime::kOutOfMemory, where(L"setDefaults"));
    }
}

// Every call starts with the series and the fit type; a fit call without
// a type asks for a line.
void vxCurveFittingManager::assign(vxAssign& a) {
    if (isError() || !defaultItem) return;
    const long fn = a.getFunction();
    const long series = a.getLong(0, kAllSeries);
    const short byDefault = fn == kCurveFitting ? short(vxCurveFittingItem::kLinear) : kAnyType;
    const short type = a.getShort(1, byDefault);
    if (series < kAllSeries) return raiseOutOfRange(a, L"assign");
    const long offset = a.getArgumentOffset();
    try {
        if (fn == kCurveFitting) {
            if (type == kAnyType) {
                removeCurveFittings(series);
            } else if (!addCurveFitting(series, type)) {
                raiseOutOfRange(a, L"addCurveFitting");
            }
            return;
        }
        for (vxCurveFittingItem* item : selectRequests(series, type)) {
            a.addToArgumentOffset(offset + 2 - a.getArgumentOffset());
            if (!assignTo(*item, fn, a)) break;
        }
    } catch (const std::bad_alloc&) {
        setError(vxErrRuntime::kOutOfMemory, where(L"assign"));
    }
    a.addToArgumentOffset(offset - a.getArgumentOffset());
}

void vxCurveFittingManager::raiseOutOfRange(const vxAssign& a, const wchar_t* method) {
    setError(vxErrScript::kOutOfRange, where(method));
    const vxAssign::CallPlace& place = a.getCallPlace();
    if (error && place.line > 0) error->setCallPlace(place.line, place.fnName, place.scriptPart);
}

bool vxCurveFittingManager::assignTo(vxCurveFittingItem& item, long fn, vxAssign& a) {
    bool done = true;
    if (fn == kCurveFittingOptions) item.assignOptions(a);
    if (fn == kCurveFittingLineStyle) done = item.assignLineStyle(a);
    if (fn == kCurveFittingSymbolStyle) done = item.assignSymbolStyle(a);
    return done || takeError(item);
}

// False for a number that is no fit type.
bool vxCurveFittingManager::addCurveFitting(long series, short type) {
    excluded.erase(std::remove(excluded.begin(), excluded.end(), series), excluded.end());
    if (findRequest(series, type)) return true;
    return addRequest(series, type, *defaultItem) != nullptr || isError();
}

void vxCurveFittingManager::removeCurveFittings(long series) {
    if (series == kAllSeries) {
        requests.clear();
        excluded.clear();
        return;
    }
    std::erase_if(requests, [series](const auto& r) { return r->getSeriesIndex() == series; });
    excluded.push_back(series);
}

std::vector<vxCurveFittingItem*> vxCurveFittingManager::selectRequests(long series, short type) {
    std::vector<vxCurveFittingItem*> selected;
    if (series == kAllSeries && type == kAnyType) selected.push_back(defaultItem.get());
    for (const auto& request : requests) {
        const bool seriesMatches = series == kAllSeries || request->getSeriesIndex() == series;
        if (seriesMatches && (type == kAnyType || request->getType() == type)) {
            selected.push_back(request.get());
        }
    }
    if (series == kAllSeries || type == kAnyType || !selected.empty()) return selected;
    if (const vxCurveFittingItem* all = findRequest(kAllSeries, type)) {
        if (vxCurveFittingItem* own = addRequest(series, type, *all)) selected.push_back(own);
    }
    return selected;
}

vxCurveFittingItem* vxCurveFittingManager::findRequest(long series, short type) const {
    for (const auto& request : requests) {
        if (request->getSeriesIndex() == series && request->getType() == type) {
            return request.get();
        }
    }
    return nullptr;
}

// Null for a number that is no fit type, or when the copy fails.
vxCurveFittingItem* vxCurveFittingManager::addRequest(long series, short type,
                                                      const vxCurveFittingItem& base) {
    std::unique_ptr<vxCurveFittingItem> item = vxCurveFittingItem::make(type, owner);
    if (!item) return nullptr;
    if (!item->copyFrom(base)) {
        takeError(*item);
        return nullptr;
    }
    item->setSeriesIndex(series);
    requests.push_back(std::move(item));
    return requests.back().get();
}

bool vxCurveFittingManager::takeError(const vxErrorHolder& from) {
    if (from.isError()) copyError(from.getError());
    return false;
}

void vxCurveFittingManager::dump(short depth, std::ostream& out) const {
    if (depth <= 0) return;
    vxDumpHeader(out, "vxCurveFittingManager");
    vxDumpLine(out, "long numOfRequests:  ", getNumOfRequests());
    vxDumpLine(out, "long numOfItems:     ", getNumOfItems());
    vxDumpEnd(out);
    for (const auto& item : items) item->dump(static_cast<short>(depth - 1), out);
}

}  // namespace Velarix
