#include "furniture/vxBackgroundManager.h"

#include <cmath>

#include "charts/vxBaseChartDepthInfo.h"
#include "drawing/vxLayerManager.h"
#include "furniture/vxBackground.h"
#include "host/vxLog.h"
#include "script/vxAssign.h"
#include "script/vxFunctionIds.h"

namespace Velarix {

namespace {

constexpr short kAllPlanes = 0;

}  // namespace

vxBackgroundManager::vxBackgroundManager(vxUserSettings* ownerSettings)
    : vxErrorHolder(L"vxBackgroundManager"), owner(ownerSettings) {}

vxBackgroundManager::~vxBackgroundManager() = default;

bool vxBackgroundManager::createBackground(short plane) {
    std::unique_ptr<vxBackground>& slot = backgrounds[plane - 1];
    if (slot) return true;
    if (!create(slot, L"createBackgrounds", owner)) return false;
    slot->setPlaneIndex(plane);
    return true;
}

// The plane comes first; the rest is the background's own call.
void vxBackgroundManager::assign(vxAssign& a) {
    const short plane = a.getShort(0, kAllPlanes);
    a.addToArgumentOffset(1);
    for (short p = 1; p <= kNumOfPlanes && !isError(); ++p) {
        if (plane == kAllPlanes || plane == p) assignToPlane(p, a);
    }
    a.addToArgumentOffset(-1);
}

void vxBackgroundManager::assignToPlane(short plane, vxAssign& a) {
    if (!createBackground(plane)) return;
    vxBackground& background = *backgrounds[plane - 1];
    if (a.getFunction() == kChartBackgroundOptions) {
        background.setThickness(std::fmax(0.0f, a.getFloat(0, background.getThickness())));
        return;
    }
    // The readers move the argument offset on; each plane reads from the
    // same start.
    const long start = a.getArgumentOffset();
    background.assign(a);
    a.addToArgumentOffset(start - a.getArgumentOffset());
    if (background.isError()) copyError(background.getError());
}

// The box over the plot: 0 to 3 its front face from the bottom left
// counter-clockwise, 4 to 7 its back face. The back wall is plane 1, the
// floor plane 2, the left wall plane 3; each slab goes outward, away from
// the box.
void vxBackgroundManager::setUp(const float plot[4], const vxBaseChartDepthInfo* depth) {
    isPlaced.fill(false);
    if (!depth || !depth->isDepth()) {
        if (backgrounds[0]) backgrounds[0]->setUp(plot);
        isPlaced[0] = true;
    } else {
        float x[8], y[8];
        depth->project(plot, 0.0f, 0.0f, x, y);
        const float length = std::hypot(depth->getXDepth(), depth->getYDepth());
        const float dx = -depth->getXDepth() / length, dy = depth->getYDepth() / length;
        const int corners[kNumOfPlanes][4] = {{4, 5, 6, 7}, {0, 1, 5, 4}, {0, 4, 7, 3}};
        const float normals[kNumOfPlanes][2] = {{dx, dy}, {0.0f, 1.0f}, {-1.0f, 0.0f}};
        for (int p = 0; p < kNumOfPlanes; ++p) {
            isPlaced[p] = true;
            if (!backgrounds[p]) continue;
            float xs[4], ys[4];
            for (int k = 0; k < 4; ++k) xs[k] = x[corners[p][k]], ys[k] = y[corners[p][k]];
            backgrounds[p]->setUp(xs, ys, normals[p][0], normals[p][1]);
        }
    }
    for (const auto& background : backgrounds) {
        if (background && background->isError()) return copyError(background->getError());
    }
}

void vxBackgroundManager::setUpLayers(vxLayerManager* layerMng) {
    for (int p = 0; p < kNumOfPlanes; ++p) {
        vxBackground* background = backgrounds[p].get();
        if (!background || !isPlaced[p]) continue;
        background->setUpLayer(layerMng, layerMng->getCurrentClipRect());
        if (background->isError()) return copyError(background->getError());
    }
}

vxBackground* vxBackgroundManager::getBackground(short plane) const {
    return plane >= 1 && plane <= kNumOfPlanes ? backgrounds[plane - 1].get() : nullptr;
}

long vxBackgroundManager::getNumOfBackgrounds() const {
    long count = 0;
    for (const auto& background : backgrounds) count += background ? 1 : 0;
    return count;
}

void vxBackgroundManager::dump(short depth, std::ostream& out) const {
    if (depth <= 0) return;
    vxDumpHeader(out, "vxBackgroundManager");
    vxDumpLine(out, "long numOfBackgrounds: ", getNumOfBackgrounds());
    vxDumpEnd(out);
    for (const auto& background : backgrounds) {
        if (background) background->dump(static_cast<short>(depth - 1), out);
    }
}

}  // namespace Velarix
