#include "furniture/vxGridLines.h"

#include "graphics/vxBasicPaint.h"
#include "graphics/vxBasicStroke.h"
#include "graphics/vxGObjectAppearanceOLD.h"
#include "graphics/vxGObjectOLD.h"
#include "host/vxLog.h"
#include "script/vxAssign.h"

namespace Velarix {

vxGridLines::vxGridLines(vxUserSettings* owner, short planeIndex, short direction, short order)
    : vxGridItem(L"vxGridLines", owner, planeIndex, direction, order) {
    setDefaults();
}

vxGridLines::~vxGridLines() = default;

void vxGridLines::setDefaults() {
    if (!setDefaultStrokes() || !setDefaultPaints(linePaints)) return;
    linePatterns.assign(1, 0);
}

bool vxGridLines::setDefaultStrokes() {
    try {
        lineStrokes.clear();
        lineStrokes.push_back(std::make_unique<vxBasicStroke>(1.0f));
        lineStrokes.back()->setLineCap(vxStrokeOLD::kButtCap);
    } catch (const std::bad_alloc&) {
        setError(vxErrRuntime::kOutOfMemory, where(L"setDefaults"));
        return false;
    }
    return true;
}

// Each entry is one line-widths argument: the width, and a dash pattern
// by number or by its lengths.
bool vxGridLines::assignWidths(vxAssign& a) {
    const long count = a.getNumOfArguments() - a.getArgumentOffset();
    std::vector<std::unique_ptr<vxBasicStroke>> strokes;
    bool any = false;
    try {
        for (long i = 0; i < count; ++i) {
            any = any || !a.isVoid(0);
            auto stroke = std::make_unique<vxBasicStroke>(1.0f);
            stroke->setLineCap(vxStrokeOLD::kButtCap);
            if (!stroke->assign(a)) return takeError(*stroke);
            strokes.push_back(std::move(stroke));
        }
    } catch (const std::bad_alloc&) {
        setError(vxErrRuntime::kOutOfMemory, where(L"assignWidths"));
        return false;
    }
    if (!any) return setDefaultStrokes();
    lineStrokes = std::move(strokes);
    return true;
}

bool vxGridLines::assignColors(vxAssign& a) {
    if (!readColors(a, linePaints)) return false;
    return !linePaints.empty() || setDefaultPaints(linePaints);
}

bool vxGridLines::assignPatterns(vxAssign& a) {
    if (!readPatterns(a, linePatterns)) return false;
    if (linePatterns.empty()) linePatterns.assign(1, 0);
    return true;
}

const vxBasicStroke* vxGridLines::getLineStroke(long index) const {
    if (lineStrokes.empty() || index < 0) return nullptr;
    return lineStrokes[size_t(index) % lineStrokes.size()].get();
}

std::unique_ptr<vxBasicPaint> vxGridLines::getLinePaint(long index) const {
    return paintAt(linePaints, linePatterns, index);
}

float vxGridLines::lineWidthAt(long index) const {
    const vxBasicStroke* stroke = getLineStroke(index);
    return stroke ? stroke->getLineWidth() : 1.0f;
}

std::array<long, 3> vxGridLines::lookKey(long index) const {
    const auto at = [index](size_t size) { return size ? long(size_t(index) % size) : 0L; };
    return {at(lineStrokes.size()), at(linePaints.size()), at(linePatterns.size())};
}

bool vxGridLines::applyLook(vxGObjectOLD& shape, long index) {
    vxGObjectAppearanceOLD* look = shape.getAppearance();
    const vxBasicStroke* stroke = getLineStroke(index);
    const std::unique_ptr<vxBasicPaint> paint = getLinePaint(index);
    if (look && stroke && paint && look->setBorderStroke(*stroke) && look->setBorderPaint(*paint)) {
        return true;
    }
    if (look && look->isError()) return takeError(*look);
    setError(vxErrRuntime::kOutOfMemory, where(L"add"));
    return false;
}

void vxGridLines::dump(short depth, std::ostream& out) const {
    if (depth <= 0) return;
    vxDumpHeader(out, "vxGridLines");
    vxGridItem::dump(depth, out);
    vxDumpLine(out, "long numOfLineStrokes: ", getNumOfLineStrokes());
    vxDumpLine(out, "long numOfLinePaints: ", getNumOfLinePaints());
    vxDumpLine(out, "vector<short> linePatterns: ", linePatterns);
    vxDumpEnd(out);
}

}  // namespace Velarix
