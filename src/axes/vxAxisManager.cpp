#include "axes/vxAxisManager.h"

#include <algorithm>

#include "axes/vxAxisItem.h"
#include "axes/vxAxisScaling.h"
#include "drawing/vxLayer.h"
#include "drawing/vxLayerManager.h"
#include "host/vxLog.h"
#include "script/vxAssign.h"
#include "script/vxFunctionIds.h"

namespace Velarix {

namespace {

// The calls that carry no axis index.
bool hasAxisIndex(long fn) {
    return fn != kAxisLabelBackgroundOptions && fn != kAxisMajorTickLabelBackgroundOptions &&
           fn != kAxisMinorTickLabelBackgroundOptions;
}

}  // namespace

vxAxisManager::vxAxisManager(vxUserSettings* owner)
    : vxErrorHolder(L"vxAxisManager"), owner(owner) {
    if (create(defaultAxis, L"createDefaultAxis", owner, 0L)) {
        if (defaultAxis->isError()) copyError(defaultAxis->getError());
    }
    scalingAxisIndices.assign(1, 0);
}

vxAxisManager::~vxAxisManager() = default;

vxAxisItem* vxAxisManager::getAxis(long index) const {
    if (index < 0 || index >= getNumOfAxes()) return nullptr;
    return axes[static_cast<size_t>(index)].get();
}

vxAxisItem* vxAxisManager::getInputAxis(long index) const {
    auto it = inputAxes.find(index);
    return it == inputAxes.end() ? nullptr : it->second.get();
}

bool vxAxisManager::set(const vxAxisManager* from) {
    axes.clear();
    inputAxes.clear();
    if (!defaultAxis) return false;
    defaultAxis->set(from ? from->defaultAxis.get() : nullptr);
    if (!from) return !isError();
    horizontal = from->horizontal;
    scalingAxisIndices = from->scalingAxisIndices;
    for (const auto& [index, axis] : from->inputAxes) {
        vxAxisItem* copy = attachInputAxisItem(index);
        if (!copy || !copy->set(axis.get())) return false;
    }
    return !isError();
}

vxAxisItem* vxAxisManager::attachInputAxisItem(long index) {
    auto it = inputAxes.find(index);
    if (it != inputAxes.end()) return it->second.get();
    std::unique_ptr<vxAxisItem> axis;
    if (!create(axis, L"attachInputAxisItem", owner, index)) return nullptr;
    if (!axis->set(defaultAxis.get())) {
        copyError(axis->getError());
        return nullptr;
    }
    try {
        return inputAxes.emplace(index, std::move(axis)).first->second.get();
    } catch (const std::bad_alloc&) {
        setError(vxErrRuntime::kOutOfMemory, where(L"attachInputAxisItem"));
        return nullptr;
    }
}

// Each axis reads the call from the same argument on.
void vxAxisManager::assignTo(vxAxisItem& axis, vxAssign& a, long offset) {
    a.addToArgumentOffset(offset - a.getArgumentOffset());
    axis.assign(a);
    if (axis.isError() && !isError()) copyError(axis.getError());
}

void vxAxisManager::assign(vxAssign& a) {
    if (!defaultAxis) return;
    doRecalcBounds = true;
    const bool indexed = hasAxisIndex(a.getFunction());
    const long index = indexed ? a.getLong(0, 0) : 0;
    const long offset = a.getArgumentOffset() + (indexed ? 1 : 0);
    if (index > 0) {
        vxAxisItem* axis = attachInputAxisItem(index);
        if (axis) assignTo(*axis, a, offset);
        return;
    }
    assignTo(*defaultAxis, a, offset);
    for (auto& [key, axis] : inputAxes) {
        if (isError()) return;
        assignTo(*axis, a, offset);
    }
}

void vxAxisManager::setUpAxes(long count) {
    doRecalcBounds = true;
    axes.clear();
    for (long i = 0; i < count && !isError(); ++i) {
        std::unique_ptr<vxAxisItem> axis;
        if (!create(axis, L"setUpAxes", owner, i + 1)) return;
        const vxAxisItem* input = getInputAxis(i + 1);
        if (!axis->set(input ? input : defaultAxis.get())) return copyError(axis->getError());
        try {
            axes.push_back(std::move(axis));
        } catch (const std::bad_alloc&) {
            setError(vxErrRuntime::kOutOfMemory, where(L"setUpAxes"));
        }
    }
}

void vxAxisManager::setScalingAxisIndices(const std::vector<long>& indices) {
    scalingAxisIndices = indices;
    if (indices.size() == 1 && (indices[0] == -1 || indices[0] == 0)) return;
    std::sort(scalingAxisIndices.begin(), scalingAxisIndices.end());
    scalingAxisIndices.erase(std::unique(scalingAxisIndices.begin(), scalingAxisIndices.end()),
                             scalingAxisIndices.end());
}

void vxAxisManager::dump(short depth, std::ostream& out) const {
    if (depth <= 0) return;
    vxDumpHeader(out, "vxAxisManager");
    vxDumpLine(out, "bool isHorizontal:     ", horizontal);
    vxDumpLine(out, "float arcAngle:        ", arcAngle);
    vxDumpLine(out, "long numOfAxes:        ", getNumOfAxes());
    vxDumpLine(out, "long numOfInputAxes:   ", getNumOfInputAxes());
    vxDumpLine(out, "vector<long> scalingAxisIndices: ", scalingAxisIndices);
    vxDumpEnd(out);
    for (const auto& axis : axes) axis->dump(static_cast<short>(depth - 1), out);
}

}  // namespace Velarix
