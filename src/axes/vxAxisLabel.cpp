#include "axes/vxAxisLabel.h"

#include <algorithm>

#include "axes/vxAxisLook.h"
#include "drawing/vxLayer.h"
#include "graphics/vxLabel.h"
#include "graphics/vxText.h"
#include "host/vxLog.h"
#include "script/vxAssign.h"

namespace Velarix {

namespace {

constexpr float kUpward = -1.5707964f;  // a quarter turn against the clock

}  // namespace

vxAxisLabel::vxAxisLabel(vxUserSettings* owner) : vxErrorHolder(L"vxAxisLabel"), owner(owner) {
    if (create(label, L"create", owner)) resetFields();
}

vxAxisLabel::~vxAxisLabel() = default;

void vxAxisLabel::resetFields() {
    defaultOrientation = 0.0f;
    defaultLocation = location = 0;
    hOffset = vOffset = 0.0f;
    gap = 25.0f;
    useRelativeGaps = true;
    hasOwnOrientation = false;
    inputStrings.clear();
    if (label) label->setDefaults();
}

bool vxAxisLabel::set(const vxAxisLabel* from) {
    if (!label) return false;
    resetFields();
    if (!from) return true;
    defaultOrientation = from->defaultOrientation;
    defaultLocation = from->defaultLocation;
    location = from->location;
    hOffset = from->hOffset;
    vOffset = from->vOffset;
    gap = from->gap;
    useRelativeGaps = from->useRelativeGaps;
    hasOwnOrientation = from->hasOwnOrientation;
    try {
        inputStrings = from->inputStrings;
    } catch (const std::bad_alloc&) {
        setError(vxErrRuntime::kOutOfMemory, where(L"set"));
        return false;
    }
    if (!label->set(from->label.get())) copyError(label->getError());
    return !isError();
}

// The lines of the title; a void text removes it.
void vxAxisLabel::assignText(vxAssign& a) {
    try {
        inputStrings = vxStringArguments(a);
        std::wstring joined;
        for (const std::wstring& line : inputStrings) {
            if (!joined.empty()) joined += vxText::kLineBreak;
            joined += line;
        }
        if (label && label->getText()) label->getText()->setText(joined);
    } catch (const std::bad_alloc&) {
        setError(vxErrRuntime::kOutOfMemory, where(L"assignText"));
    }
}

void vxAxisLabel::assignStyle(vxAssign& a) {
    vxText* text = label ? label->getText() : nullptr;
    if (!text) return;
    // The angle is the sixth argument of the style: it is the title's own.
    if (!a.isVoid(5)) hasOwnOrientation = true;
    if (!text->assign(a, owner)) copyError(text->getError());
}

void vxAxisLabel::assignOptions(vxAssign& a) {
    if (!a.isVoid(0)) location = a.getShort(0);
    hOffset = a.getFloat(1, hOffset);
    vOffset = a.getFloat(2, vOffset);
}

void vxAxisLabel::assignBackground(vxAssign& a) {
    if (label && !label->assignBackground(a, owner)) copyError(label->getError());
}

void vxAxisLabel::assignBackgroundOptions(vxAssign& a) {
    if (label && !label->assignBackgroundOptions(a)) copyError(label->getError());
}

void vxAxisLabel::setUp(long axisIndex, bool horizontal) {
    (void)axisIndex;
    defaultLocation = horizontal ? 8 : 4;
    defaultOrientation = horizontal ? 0.0f : kUpward;
    vxText* text = label ? label->getText() : nullptr;
    if (text && !hasOwnOrientation) text->setOrientation(defaultOrientation);
    if (text) text->setHAlignment(vxText::kCenter);
}

void vxAxisLabel::place(const float outer[4], const float plot[4], const vxAxisGeometry& g) {
    if (!hasText() || !label) return;
    const short code = location == 0 ? defaultLocation : location;
    float size[2];
    label->getLabelSize(size);
    const vxText* text = label->getText();
    const float lineHeight = text->getStringHeight() / float(std::max(1L, text->getNumOfLines()));
    const float gapDC = useRelativeGaps ? gap * 0.01f * lineHeight : gap;
    float left;
    float top;
    if (g.horizontal) {
        const short column = short((code - 1) % 3);  // 0 left, 1 centre, 2 right
        left = column == 0   ? plot[0]
               : column == 2 ? plot[2] - size[0]
                             : (plot[0] + plot[2] - size[0]) * 0.5f;
        top = g.outward > 0 ? outer[3] + gapDC : outer[1] - gapDC - size[1];
    } else {
        const short row = short((code - 1) / 3);  // 0 top, 1 centre, 2 bottom
        top = row == 0   ? plot[1]
              : row == 2 ? plot[3] - size[1]
                         : (plot[1] + plot[3] - size[1]) * 0.5f;
        left = g.outward < 0 ? outer[0] - gapDC - size[0] : outer[2] + gapDC;
    }
    label->setLocation(left + hOffset, top + vOffset);
}

bool vxAxisLabel::getBounds(float bounds[4]) const {
    if (!hasText() || !label) return false;
    label->getLabelBounds(bounds);
    return true;
}

bool vxAxisLabel::addTo(vxLayer& layer) const {
    if (!hasText() || !label) return true;
    return layer.addShape(label.get());
}

void vxAxisLabel::dump(short depth, std::ostream& out) const {
    if (depth <= 0) return;
    vxDumpHeader(out, "vxAxisLabel");
    vxDumpLine(out, "float defaultOrientation: ", defaultOrientation);
    vxDumpLine(out, "short defaultLocation: ", defaultLocation);
    vxDumpLine(out, "short location:       ", location);
    vxDumpLine(out, "float hOffset,vOffset: ", hOffset, vOffset);
    vxDumpLine(out, "vector<wstring> inputStrings: ", inputStrings);
    vxDumpEnd(out);
}

}  // namespace Velarix
