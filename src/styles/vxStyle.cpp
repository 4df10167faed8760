#include "styles/vxStyle.h"

#include <algorithm>
#include <new>

#include "graphics/vxBasicPaint.h"
#include "graphics/vxBasicStroke.h"
#include "graphics/vxColorPaletteOLD.h"
#include "graphics/vxCombinedStroke.h"
#include "graphics/vxGObjectAppearanceOLD.h"
#include "graphics/vxGObjectOLD.h"
#include "graphics/vxPaintOLD.h"
#include "graphics/vxWaveStroke.h"
#include "host/vxLog.h"
#include "settings/vxStyleSettings.h"
#include "settings/vxUserSettings.h"

namespace Velarix {

namespace {

const wchar_t* paintMethodOf(short kind) {
    switch (kind) {
        case vxPaintOLD::kLinearGradient:
            return L"createLinearGradient";
        case vxPaintOLD::kRadialGradient:
            return L"createRadialGradient";
        case vxPaintOLD::kTexture:
            return L"createTexturePaint";
        default:
            return L"createBasicPaint";
    }
}

const wchar_t* strokeMethodOf(short kind) {
    switch (kind) {
        case vxStyle::kCombinedStroke:
            return L"createCombinedStroke";
        case vxStyle::kWaveStroke:
            return L"createWaveStroke";
        default:
            return L"createBasicStroke";
    }
}

short strokeKindOf(const vxStrokeOLD& stroke) {
    if (dynamic_cast<const vxCombinedStroke*>(&stroke)) return vxStyle::kCombinedStroke;
    if (dynamic_cast<const vxWaveStroke*>(&stroke)) return vxStyle::kWaveStroke;
    return vxStyle::kBasicStroke;
}

std::unique_ptr<vxStrokeOLD> makeStroke(short kind) {
    switch (kind) {
        case vxStyle::kCombinedStroke:
            return std::make_unique<vxCombinedStroke>();
        case vxStyle::kWaveStroke:
            return std::make_unique<vxWaveStroke>();
        default:
            return std::make_unique<vxBasicStroke>();
    }
}

}  // namespace

vxStyle::vxStyle(const wchar_t* name, vxUserSettings* owner) : vxErrorHolder(name), owner(owner) {}

vxStyle::~vxStyle() = default;

bool vxStyle::hasItem(long item) const {
    return std::binary_search(itemIndices.begin(), itemIndices.end(), item);
}

bool vxStyle::mergeItems(const std::vector<long>& items) {
    try {
        std::vector<long> merged = itemIndices;
        merged.insert(merged.end(), items.begin(), items.end());
        std::sort(merged.begin(), merged.end());
        merged.erase(std::unique(merged.begin(), merged.end()), merged.end());
        itemIndices = std::move(merged);
    } catch (const std::bad_alloc&) {
        setError(vxErrRuntime::kOutOfMemory, where(L"mergeItems"));
        return false;
    }
    return true;
}

vxColorOLD vxStyle::colorOfNumber(long number, const vxUserSettings* settings) {
    vxColorPaletteOLD palette;
    const vxStyleSettings* style = settings ? settings->getStyleSettings() : nullptr;
    if (style) {
        palette.setPaletteID(style->getColorPaletteID());
        palette.setColors(style->getUserDefinedColors());
    }
    vxColorOLD color;
    color.setFromPalette(static_cast<short>(std::clamp(number, 0L, 32767L)), &palette);
    return color;
}

bool vxStyle::copySelection(const vxStyle* from) {
    seriesIndex = from ? from->seriesIndex : 0;
    itemIndices.clear();
    return !from || mergeItems(from->itemIndices);
}

void vxStyle::dumpSelection(std::ostream& out) const {
    vxDumpLine(out, "long seriesIndex:  ", seriesIndex);
    vxDumpLine(out, "vector<long> itemIndices: ", itemIndices);
}

void vxStyle::dump(short depth, std::ostream& out) const {
    if (depth <= 0) return;
    vxDumpHeader(out, vxNarrow(className));
    dumpSelection(out);
    vxDumpEnd(out);
}

bool vxStyle::takeError(const vxErrorHolder* part) {
    if (part && part->isError() && !isError()) copyError(part->getError());
    return !isError();
}

bool vxStyle::createPaint(std::unique_ptr<vxPaintOLD>& slot, short kind) {
    return vxPaintOLD::createInto(slot, kind, *this, paintMethodOf(kind));
}

bool vxStyle::copyPaint(std::unique_ptr<vxPaintOLD>& slot, const vxPaintOLD* from) {
    if (!from) {
        slot.reset();
        return true;
    }
    return vxPaintOLD::cloneInto(slot, *from, *this, paintMethodOf(from->getType()));
}

bool vxStyle::createNumberedPaint(std::unique_ptr<vxPaintOLD>& slot, long number) {
    if (!createPaint(slot, vxPaintOLD::kBasic)) return false;
    static_cast<vxBasicPaint&>(*slot).setColor(colorOfNumber(number, owner));
    return true;
}

bool vxStyle::assignPaint(std::unique_ptr<vxPaintOLD>& slot, vxAssign& assign) {
    const short kind = vxPaintOLD::getKindOfArgument(assign, 0);
    return vxPaintOLD::assignByKind(slot, assign, owner, *this, paintMethodOf(kind));
}

bool vxStyle::createStroke(std::unique_ptr<vxStrokeOLD>& slot, short kind) {
    slot.reset();
    try {
        slot = makeStroke(kind);
    } catch (const std::bad_alloc&) {
        setError(vxErrRuntime::kOutOfMemory, where(strokeMethodOf(kind)));
        return false;
    }
    return true;
}

bool vxStyle::copyStroke(std::unique_ptr<vxStrokeOLD>& slot, const vxStrokeOLD* from) {
    slot.reset();
    if (!from) return true;
    try {
        slot = from->clone();
    } catch (const std::bad_alloc&) {
        setError(vxErrRuntime::kOutOfMemory, where(strokeMethodOf(strokeKindOf(*from))));
        return false;
    }
    return takeError(slot.get());
}

bool vxStyle::paintInNumber(vxGObjectOLD& object, long number) {
    vxGObjectAppearanceOLD* look = object.getAppearance();
    try {
        const vxBasicPaint paint(colorOfNumber(number, owner));
        look->setBorderStroke(vxBasicStroke(1.0f));
        look->setBorderPaint(paint);
        look->setFillPaint(paint);
    } catch (const std::bad_alloc&) {
        setError(vxErrRuntime::kOutOfMemory, where(L"setDefaults"));
        return false;
    }
    return takeError(look) && takeError(&object);
}

}  // namespace Velarix
