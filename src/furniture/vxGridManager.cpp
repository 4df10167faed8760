#include "furniture/vxGridManager.h"

#include "furniture/vxGrid.h"
#include "host/vxLog.h"
#include "script/vxAssign.h"
#include "script/vxFunctionIds.h"

namespace Velarix {

namespace {

constexpr long kNumOfPlanes = 3;

// Whether an axis argument names `axis` (1 x, 2 y, 3 z) or all axes.
bool names(short argument, short axis) {
    return argument == 0 || argument == axis;
}

}  // namespace

vxGridManager::vxGridManager(vxUserSettings* owner, vxChart* chart)
    : vxErrorHolder(L"vxGridManager"), owner(owner), chart(chart) {
    createGrids();
}

vxGridManager::~vxGridManager() = default;

bool vxGridManager::createGrids() {
    try {
        grids.clear();
        for (long plane = 1; plane <= kNumOfPlanes; ++plane) {
            grids.push_back(std::make_unique<vxGrid>(owner, plane));
        }
        planes.assign(kNumOfPlanes, vxGridPlane());
        hasPlane.assign(kNumOfPlanes, false);
    } catch (const std::bad_alloc&) {
        grids.clear();
        setError(vxErrRuntime::kOutOfMemory, where(L"createGrids"));
        return false;
    }
    return true;
}

vxGrid* vxGridManager::getGrid(long planeIndex) const {
    if (planeIndex < 1 || planeIndex > getNumOfGrids()) return nullptr;
    return grids[size_t(planeIndex - 1)].get();
}

const vxGridPlane* vxGridManager::getPlane(long planeIndex) const {
    if (planeIndex < 1 || planeIndex > long(hasPlane.size())) return nullptr;
    return hasPlane[size_t(planeIndex - 1)] ? &planes[size_t(planeIndex - 1)] : nullptr;
}

std::vector<vxGridManager::Target> vxGridManager::selectTargets(short a, short b) {
    std::vector<Target> targets;
    if (a == b && a != 0) return targets;
    const struct {
        short first, second;
        Target target;
    } pairs[] = {{1, 2, {1, 0}}, {1, 3, {2, 0}}, {2, 1, {1, 1}},
                 {2, 3, {3, 0}}, {3, 1, {2, 1}}, {3, 2, {3, 1}}};
    for (const auto& pair : pairs) {
        if (names(a, pair.first) && names(b, pair.second)) targets.push_back(pair.target);
    }
    return targets;
}

std::vector<long> vxGridManager::selectPlanes(short plane) {
    if (plane == 0) return {1, 2, 3};
    if (plane >= 1 && plane <= kNumOfPlanes) return {plane};
    return {};
}

void vxGridManager::assign(vxAssign& a) {
    if (grids.empty()) return;
    switch (a.getFunction()) {
        case kGridFrame:
        case kGridLocation:
            return assignPlanes(a);
        default:
            return assignList(a);
    }
}

// Each target reads the list from its start.
void vxGridManager::assignList(vxAssign& a) {
    const short first = a.getShort(0);
    const short second = a.getShort(1);
    if (first == second && first != 0) return setError(vxErrAxis::kAxisIndex, where(L"assign"));
    const long start = a.getArgumentOffset() + 2;
    for (const Target& target : selectTargets(first, second)) {
        a.addToArgumentOffset(start - a.getArgumentOffset());
        vxGrid* grid = getGrid(target.plane);
        grid->assignList(a, target.direction);
        if (grid->isError()) return copyError(grid->getError());
    }
}

void vxGridManager::assignPlanes(vxAssign& a) {
    const long start = a.getArgumentOffset() + 1;
    for (long plane : selectPlanes(a.getShort(0))) {
        a.addToArgumentOffset(start - a.getArgumentOffset());
        vxGrid* grid = getGrid(plane);
        if (a.getFunction() == kGridLocation) {
            grid->setGridLocation(a.getShort(0, vxGrid::kBack));
        } else {
            grid->assignFrame(a);
        }
        if (grid->isError()) return copyError(grid->getError());
    }
}

void vxGridManager::addToLayers(vxLayerManager* layerMng, short location) {
    for (const auto& grid : grids) {
        const vxGridPlane* plane = getPlane(grid->getPlaneIndex());
        short at = grid->getGridLocation();
        if (at == vxGrid::kPartial) at = vxGrid::kBack;
        if (!plane || (location != 0 && at != location)) continue;
        grid->setUpLayer(layerMng, *plane);
        if (grid->isError()) return copyError(grid->getError());
    }
}

void vxGridManager::dump(short depth, std::ostream& out) const {
    if (depth <= 0) return;
    vxDumpHeader(out, "vxGridManager");
    vxDumpLine(out, "long numOfGrids: ", getNumOfGrids());
    vxDumpEnd(out);
    for (const auto& grid : grids) grid->dump(static_cast<short>(depth - 1), out);
}

}  // namespace Velarix
