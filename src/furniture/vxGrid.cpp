#include "furniture/vxGrid.h"

#include "drawing/vxLayer.h"
#include "drawing/vxLayerManager.h"
#include "furniture/vxGridFrame.h"
#include "furniture/vxGridLines.h"
#include "furniture/vxGridStripes.h"
#include "host/vxLog.h"
#include "script/vxAssign.h"
#include "script/vxFunctionIds.h"

namespace Velarix {

namespace {

short orderOf(long function) {
    switch (function) {
        case kMinorGridLineColors:
        case kMinorGridLinePatterns:
        case kMinorGridLineWidths:
        case kMinorGridStripeColors:
        case kMinorGridStripePatterns:
            return vxGridItem::kMinor;
        default:
            return vxGridItem::kMajor;
    }
}

}  // namespace

vxGrid::vxGrid(vxUserSettings* owner, long planeIndex)
    : vxErrorHolder(L"vxGrid"), owner(owner), planeIndex(planeIndex) {}

vxGrid::~vxGrid() = default;

vxGridLines* vxGrid::getLines(short order, short direction) const {
    if (direction != 0 && direction != 1) return nullptr;
    return (order == vxGridItem::kMinor ? minorLines : majorLines)[direction].get();
}

vxGridStripes* vxGrid::getStripes(short order, short direction) const {
    if (direction != 0 && direction != 1) return nullptr;
    return (order == vxGridItem::kMinor ? minorStripes : majorStripes)[direction].get();
}

vxGridLines* vxGrid::linesOf(short order, short direction) {
    const bool minor = order == vxGridItem::kMinor;
    std::unique_ptr<vxGridLines>& slot = (minor ? minorLines : majorLines)[direction];
    if (!slot && !create(slot, minor ? L"createMinorGridLines" : L"createMajorGridLines", owner,
                         short(planeIndex), short(direction + 1), order)) {
        return nullptr;
    }
    return slot.get();
}

vxGridStripes* vxGrid::stripesOf(short order, short direction) {
    const bool minor = order == vxGridItem::kMinor;
    std::unique_ptr<vxGridStripes>& slot = (minor ? minorStripes : majorStripes)[direction];
    if (!slot && !create(slot, minor ? L"createMinorGridStripes" : L"createMajorGridStripes", owner,
                         short(planeIndex), short(direction + 1), order)) {
        return nullptr;
    }
    return slot.get();
}

void vxGrid::assignList(vxAssign& a, short direction) {
    if (direction != 0 && direction != 1) return;
    const short order = orderOf(a.getFunction());
    vxGridItem* part = nullptr;
    switch (a.getFunction()) {
        case kMajorGridStripeColors:
        case kMinorGridStripeColors:
        case kMajorGridStripePatterns:
        case kMinorGridStripePatterns:
            part = assignStripes(a, order, direction);
            break;
        default:
            part = assignLines(a, order, direction);
            break;
    }
    if (part && part->isError()) copyError(part->getError());
}

vxGridItem* vxGrid::assignLines(vxAssign& a, short order, short direction) {
    vxGridLines* lines = linesOf(order, direction);
    if (!lines) return nullptr;
    const long function = a.getFunction();
    if (function == kMajorGridLineColors || function == kMinorGridLineColors) {
        lines->assignColors(a);
    } else if (function == kMajorGridLineWidths || function == kMinorGridLineWidths) {
        lines->assignWidths(a);
    } else {
        lines->assignPatterns(a);
    }
    return lines;
}

vxGridItem* vxGrid::assignStripes(vxAssign& a, short order, short direction) {
    vxGridStripes* stripes = stripesOf(order, direction);
    if (!stripes) return nullptr;
    const long function = a.getFunction();
    if (function == kMajorGridStripeColors || function == kMinorGridStripeColors) {
        stripes->assignColors(a);
    } else {
        stripes->assignPatterns(a);
    }
    return stripes;
}

void vxGrid::assignFrame(vxAssign& a) {
    if (!frame && !create(frame, L"createGridFrame", owner, short(planeIndex))) return;
    if (!frame->assign(a)) copyError(frame->getError());
}

void vxGrid::setGridLocation(short location) {
    gridLocation = location;
    hasLocation = true;
}

short vxGrid::getGridLocation() const {
    if (hasLocation) return gridLocation;
    return hasParts() ? kBack : kNone;
}

bool vxGrid::hasParts() const {
    for (int d = 0; d < 2; ++d) {
        if (majorLines[d] || minorLines[d] || majorStripes[d] || minorStripes[d]) return true;
    }
    return frame != nullptr;
}

void vxGrid::setUpLayer(vxLayerManager* layerMng, const vxGridPlane& plane) {
    if (!layerMng || getGridLocation() == kNone) return;
    std::unique_ptr<vxLayer> layer;
    if (!create(layer, L"setUpLayer", kLayerType, planeIndex, layerMng->getCurrentClipRect())) {
        return;
    }
    if (!layer->addClipShape(owner)) return copyError(layer->getError());
    vxGridItem* const parts[] = {
        majorStripes[0].get(), majorStripes[1].get(), minorStripes[0].get(),
        minorStripes[1].get(), minorLines[0].get(),   minorLines[1].get(),
        majorLines[0].get(),   majorLines[1].get(),   frame.get()};
    for (vxGridItem* part : parts) {
        if (part && !part->add(*layer, plane, gridShape)) return copyError(part->getError());
    }
    if (layer->getNumOfShapes() <= 1) return;
    layerMng->addLayer(std::move(layer));
    if (layerMng->isError()) copyError(layerMng->getError());
}

void vxGrid::dump(short depth, std::ostream& out) const {
    if (depth <= 0) return;
    vxDumpHeader(out, "vxGrid");
    vxDumpLine(out, "long  planeIndex:   ", planeIndex);
    vxDumpLine(out, "short gridLocation: ", getGridLocation());
    vxDumpLine(out, "short gridShape:    ", gridShape);
    vxDumpEnd(out);
    const short next = static_cast<short>(depth - 1);
    for (int d = 0; d < 2; ++d) {
        if (majorLines[d]) majorLines[d]->dump(next, out);
        if (minorLines[d]) minorLines[d]->dump(next, out);
        if (majorStripes[d]) majorStripes[d]->dump(next, out);
        if (minorStripes[d]) minorStripes[d]->dump(next, out);
    }
    if (frame) frame->dump(next, out);
}

}  // namespace Velarix
