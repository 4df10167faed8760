#include "axes/vxAxisTickMarks.h"

#include <algorithm>

#include "axes/vxAxisLook.h"
#include "drawing/vxLayer.h"
#include "graphics/vxAppearanceScript.h"
#include "graphics/vxLineArray2DOLD.h"
#include "graphics/vxStrokeOLD.h"
#include "host/vxLog.h"
#include "script/vxAssign.h"

namespace Velarix {

namespace {

// Major marks are longer than minor ones; both stand outside the plot.
constexpr float kMajorLength = 5.0f;
constexpr float kMinorLength = 3.0f;

}  // namespace

vxAxisTickMarks::vxAxisTickMarks(vxUserSettings* owner, short order)
    : vxErrorHolder(L"vxAxisTickMarks"), owner(owner), order(order) {
    if (create(lines, L"create", owner)) resetFields();
}

vxAxisTickMarks::~vxAxisTickMarks() = default;

void vxAxisTickMarks::resetFields() {
    location = vxAxisGeometry::kOut;
    length = order == kMajor ? kMajorLength : kMinorLength;
    lines->setDefaults();
    vxSetAxisLineLook(*lines, 1.0f);
}

bool vxAxisTickMarks::set(const vxAxisTickMarks* from) {
    if (!lines) return false;
    resetFields();
    if (!from || !from->lines) return true;
    location = from->location;
    length = from->length;
    lines->copy(from->lines.get());
    if (lines->isError()) copyError(lines->getError());
    return !isError();
}

void vxAxisTickMarks::assign(vxAssign& a) {
    if (!lines) return;
    if (!a.isVoid(0)) length = a.getFloat(0);
    a.addToArgumentOffset(1);
    if (!vxAppearanceScript::readBorder(*lines, a, owner, vxAppearanceScript::kSkipPart)) {
        return copyError(lines->getError());
    }
    if (!a.isVoid(0)) location = a.getShort(0);
}

bool vxAxisTickMarks::setUp(const std::vector<float>& positions, float across, float inward,
                            bool horizontal) {
    if (!lines) return false;
    lines->clear();
    if (!isVisible()) return true;
    const float inner = location == vxAxisGeometry::kOut  ? 0.0f
                        : location == vxAxisGeometry::kIn ? length
                                                          : length * 0.5f;
    const float a = across + inward * inner;
    const float b = a - inward * length;
    for (float p : positions) {
        const bool added = horizontal ? lines->addLine(p, a, p, b) : lines->addLine(a, p, b, p);
        if (!added) {
            copyError(lines->getError());
            return false;
        }
    }
    return true;
}

float vxAxisTickMarks::getOutwardExtent() const {
    if (!isVisible()) return 0.0f;
    return location == vxAxisGeometry::kOut      ? length
           : location == vxAxisGeometry::kCenter ? length * 0.5f
                                                 : 0.0f;
}

bool vxAxisTickMarks::isVisible() const {
    if (!lines || length <= 0.0f || !lines->hasBorder() || !lines->isVisible()) return false;
    const vxStrokeOLD* stroke = lines->getBorderStroke();
    return stroke && !stroke->isZeroWidth();
}

long vxAxisTickMarks::getNumOfTicks() const {
    return lines ? lines->getNumOfLines() : 0;
}

bool vxAxisTickMarks::getBounds(float bounds[4]) const {
    if (getNumOfTicks() == 0) return false;
    const auto& x = lines->getX();
    const auto& y = lines->getY();
    const auto [x0, x1] = std::minmax_element(x.begin(), x.end());
    const auto [y0, y1] = std::minmax_element(y.begin(), y.end());
    bounds[0] = *x0;
    bounds[1] = *y0;
    bounds[2] = *x1;
    bounds[3] = *y1;
    return true;
}

bool vxAxisTickMarks::addTo(vxLayer& layer) const {
    if (getNumOfTicks() == 0 || !isVisible()) return true;
    if (layer.addShape(lines.get())) return true;
    return false;
}

void vxAxisTickMarks::dump(short depth, std::ostream& out) const {
    if (depth <= 0) return;
    vxDumpHeader(out, "vxAxisTickMarks");
    vxDumpLine(out, "short order:    ", order);
    vxDumpLine(out, "short location: ", location);
    vxDumpLine(out, "float length:   ", length);
    vxDumpEnd(out);
    if (lines) lines->dump(static_cast<short>(depth - 1), out);
}

}  // namespace Velarix
