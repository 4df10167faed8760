#include "graphics/vxGObjectAppearanceOLD.h"

#include "graphics/vxBasicStroke.h"
#include "graphics/vxCombinedStroke.h"
#include "graphics/vxPaintOLD.h"
#include "graphics/vxShadowOLD.h"
#include "graphics/vxWaveStroke.h"
#include "host/vxLog.h"

namespace Velarix {

namespace {

// The stroke kind a stroke object answers, as asked for by borderStrokeOf.
short strokeKindOf(const vxStrokeOLD& stroke) {
    if (stroke.getType() == vxStrokeOLD::kBasic) return vxGObjectAppearanceOLD::kBasicStroke;
    return dynamic_cast<const vxWaveStroke*>(&stroke) ? vxGObjectAppearanceOLD::kWaveStroke
                                                      : vxGObjectAppearanceOLD::kCombinedStroke;
}

std::unique_ptr<vxStrokeOLD> makeStroke(short kind) {
    switch (kind) {
        case vxGObjectAppearanceOLD::kCombinedStroke:
            return std::make_unique<vxCombinedStroke>();
        case vxGObjectAppearanceOLD::kWaveStroke:
            return std::make_unique<vxWaveStroke>();
        default:
            return std::make_unique<vxBasicStroke>();
    }
}

}  // namespace

vxGObjectAppearanceOLD::vxGObjectAppearanceOLD(vxUserSettings* owner)
    : vxErrorHolder(L"vxGObjectAppearanceOLD"), ownerSettings(owner) {}

vxGObjectAppearanceOLD::~vxGObjectAppearanceOLD() = default;

vxStrokeOLD* vxGObjectAppearanceOLD::borderStrokeOf(short kind) {
    if (borderStroke && strokeKindOf(*borderStroke) == kind) return borderStroke.get();
    try {
        borderStroke = makeStroke(kind);
    } catch (const std::bad_alloc&) {
        borderStroke.reset();
        setError(vxErrRuntime::kOutOfMemory, where(L"createBorderStroke", kind));
    }
    return borderStroke.get();
}

vxPaintOLD* vxGObjectAppearanceOLD::borderPaintOf(short kind) {
    if (!borderPaint || borderPaint->getType() != kind) {
        vxPaintOLD::createInto(borderPaint, kind, *this, L"createBorderPaint");
    }
    return borderPaint.get();
}

vxPaintOLD* vxGObjectAppearanceOLD::fillPaintOf(short kind) {
    if (!fillPaint || fillPaint->getType() != kind) {
        vxPaintOLD::createInto(fillPaint, kind, *this, L"createFillPaint");
    }
    return fillPaint.get();
}

vxShadowOLD* vxGObjectAppearanceOLD::shadowPart() {
    if (!shadow) create(shadow, L"createShadow");
    return shadow.get();
}

bool vxGObjectAppearanceOLD::setBorderStroke(const vxStrokeOLD& from) {
    try {
        borderStroke = from.clone();
    } catch (const std::bad_alloc&) {
        setError(vxErrRuntime::kOutOfMemory, where(L"createBorderStroke"));
        return false;
    }
    return true;
}

bool vxGObjectAppearanceOLD::setBorderPaint(const vxPaintOLD& from) {
    return vxPaintOLD::cloneInto(borderPaint, from, *this, L"createBorderPaint");
}

bool vxGObjectAppearanceOLD::setFillPaint(const vxPaintOLD& from) {
    return vxPaintOLD::cloneInto(fillPaint, from, *this, L"createFillPaint");
}

bool vxGObjectAppearanceOLD::setShadow(const vxShadowOLD& from) {
    vxShadowOLD* part = shadowPart();
    return part && part->copy(&from);
}

bool vxGObjectAppearanceOLD::hasBorder() const {
    return borderPaint && !borderPaint->isNone();
}

bool vxGObjectAppearanceOLD::hasFill() const {
    return fillPaint && !fillPaint->isNone();
}

bool vxGObjectAppearanceOLD::hasShadow() const {
    return shadow && shadow->isShown();
}

void vxGObjectAppearanceOLD::reset() {
    borderStroke.reset();
    borderPaint.reset();
    fillPaint.reset();
    shadow.reset();
}

void vxGObjectAppearanceOLD::copy(const vxGObjectAppearanceOLD* from) {
    reset();
    if (!from) return;
    if (from->borderStroke) setBorderStroke(*from->borderStroke);
    if (from->borderPaint) setBorderPaint(*from->borderPaint);
    if (from->fillPaint) setFillPaint(*from->fillPaint);
    if (from->shadow) setShadow(*from->shadow);
}

void vxGObjectAppearanceOLD::dump(short depth, std::ostream& out) const {
    if (depth <= 0) return;
    const short next = static_cast<short>(depth - 1);
    vxDumpHeader(out, "vxGObjectAppearanceOLD");
    if (borderStroke) borderStroke->dump(next, out);
    if (borderPaint) borderPaint->dump(next, out);
    if (fillPaint) fillPaint->dump(next, out);
    if (shadow) shadow->dump(next, out);
    vxDumpEnd(out);
}

}  // namespace Velarix
