#include "graphics/vxLabel.h"

#include <algorithm>
#include <new>

#include "graphics/vxAuxiliaryLine2D.h"
#include "graphics/vxBoundsUnion.h"
#include "graphics/vxGObjectAppearanceOLD.h"
#include "graphics/vxGObjectState.h"
#include "graphics/vxPath2DOLD.h"
#include "graphics/vxShadowOLD.h"
#include "graphics/vxText.h"
#include "graphics/vxTransform2DOLD.h"
#include "host/vxLog.h"
#include "settings/vxExceptionRuntime.h"

namespace Velarix {

namespace {

// Left, top, right, bottom, in percent of the font's string height.
constexpr float kDefaultMargins[4] = {20.0f, 10.0f, 20.0f, 10.0f};

// Replaces `slot` with a new part; a part whose own members can't be made
// fails as well as one that can't be allocated.
template <class T>
bool makePart(std::unique_ptr<T>& slot, vxErrorHolder& owner, const wchar_t* method, int number,
              vxUserSettings* settings) {
    slot.reset();
    try {
        slot = std::make_unique<T>(settings);
        return true;
    } catch (const std::bad_alloc&) {
    } catch (const vxExceptionRuntime&) {
    }
    slot.reset();
    owner.setError(vxErrRuntime::kOutOfMemory, owner.where(method, number));
    return false;
}

// Moves a line by a map: a plain shift moves its symbols too.
void transformLine(vxAuxiliaryLine2D& line, const vxTransform2DOLD& t) {
    if (t.getType() == vxTransform2DOLD::kIdentity) return;
    if (t.getType() == vxTransform2DOLD::kTranslation) {
        line.shift(t.m02, t.m12);
        return;
    }
    float x1 = line.getX1(), y1 = line.getY1(), x2 = line.getX2(), y2 = line.getY2();
    t.transform(x1, y1);
    t.transform(x2, y2);
    std::vector<float> xs, ys;
    line.getPoints(xs, ys);
    const bool hasP1 = line.getHasP1Extension(), hasP2 = line.getHasP2Extension();
    line.set(x1, y1, x2, y2);
    if (hasP1) {
        t.transform(xs.front(), ys.front());
        line.setP1Extension(xs.front(), ys.front());
    }
    if (hasP2) {
        t.transform(xs.back(), ys.back());
        line.setP2Extension(xs.back(), ys.back());
    }
}

}  // namespace

vxLabel::vxLabel(vxUserSettings* owner) : vxGObjectOLD(L"vxLabel", owner) {
    resetFields();
}

vxLabel::~vxLabel() = default;

void vxLabel::resetFields() {
    auxiliaryLine.reset();
    background.reset();
    createText();
    std::copy(kDefaultMargins, kDefaultMargins + 4, margins);
    useRelativeMargins = true;
    mBackgroundShape = kRectangle;
    mBackgroundOptions.clear();
    useContentBounds = false;
    invalidateBounds();
}

void vxLabel::setDefaults() {
    vxGObjectOLD::setDefaults();
    resetFields();
}

bool vxLabel::takeError(const vxErrorHolder* part) {
    if (part && part->isError() && !isError()) copyError(part->getError());
    return !isError();
}

// ---- parts --------------------------------------------------------------------

vxText* vxLabel::getText() {
    invalidateBounds();
    return text.get();
}

bool vxLabel::createText() {
    invalidateBounds();
    return makePart(text, *this, L"createText", 1, getOwnerSettings());
}

vxPath2DOLD* vxLabel::getBackground() {
    invalidateBounds();
    return background.get();
}

bool vxLabel::createBackground() {
    invalidateBounds();
    if (!makePart(background, *this, L"createBackground", 1, getOwnerSettings())) return false;
    mBackgroundShape = kRectangle;
    mBackgroundOptions.clear();
    setBackgroundLook();
    setUpBackground();
    return !isError();
}

bool vxLabel::createBackground(const vxPath2DOLD& from) {
    if (&from == background.get()) return true;
    invalidateBounds();
    if (!makePart(background, *this, L"createBackground", 2, getOwnerSettings())) return false;
    background->copy(&from);
    mBackgroundShape = kGivenShape;
    mBackgroundOptions.clear();
    if (!takeError(background.get())) return false;
    setUpBackground();
    return !isError();
}

void vxLabel::removeBackground() {
    background.reset();
    invalidateBounds();
}

vxAuxiliaryLine2D* vxLabel::getAuxiliaryLine() {
    invalidateBounds();
    return auxiliaryLine.get();
}

bool vxLabel::createAuxiliaryLine() {
    invalidateBounds();
    return makePart(auxiliaryLine, *this, L"createAuxiliaryLine", 1, getOwnerSettings());
}

bool vxLabel::createAuxiliaryLine(const vxAuxiliaryLine2D& from) {
    if (&from == auxiliaryLine.get()) return true;
    invalidateBounds();
    if (!makePart(auxiliaryLine, *this, L"createAuxiliaryLine", 2, getOwnerSettings())) {
        return false;
    }
    auxiliaryLine->copy(&from);
    return takeError(auxiliaryLine.get());
}

void vxLabel::removeAuxiliaryLine() {
    auxiliaryLine.reset();
    invalidateBounds();
}

// ---- drawing ------------------------------------------------------------------

void vxLabel::drawShadow(vxDevice& device) {
    if (!isVisible()) return;
    if (background) {
        background->drawShadow(device);
        if (!takeError(background.get())) return;
    }
    if (!auxiliaryLine) return;
    if (auxiliaryLine->hasShadow()) {
        auxiliaryLine->drawShadow(device);
    } else if (background && background->isVisible() && background->hasShadow()) {
        auxiliaryLine->drawShadow(device, *background->getShadow());
    }
    takeError(auxiliaryLine.get());
}

void vxLabel::drawBody(vxDevice& device) {
    if (!isVisible()) return;
    if (auxiliaryLine) {
        auxiliaryLine->drawBody(device);
        if (!takeError(auxiliaryLine.get())) return;
    }
    if (background) {
        background->drawBody(device);
        if (!takeError(background.get())) return;
    }
    if (text) {
        text->drawBody(device);
        takeError(text.get());
    }
}

// ---- geometry -----------------------------------------------------------------

void vxLabel::transform(const vxTransform2DOLD& t) {
    applyTransform(t);
}

void vxLabel::transformGeometry(const vxTransform2DOLD& t) {
    if (text) {
        float x = text->getXAnchor(), y = text->getYAnchor();
        t.transform(x, y);
        text->setAnchor(x, y);
    }
    if (background) background->transform(t);
    if (auxiliaryLine) transformLine(*auxiliaryLine, t);
}

void vxLabel::rotate(float angle, float x, float y) {
    if (text) text->rotate(angle, x, y);
    if (background) background->rotate(angle, x, y);
    if (auxiliaryLine) auxiliaryLine->rotate(angle, x, y);
    invalidateBounds();
}

void vxLabel::flip(short mode, float x, float y) {
    if (text) text->flip(mode, x, y);
    if (background) background->flip(mode, x, y);
    if (auxiliaryLine) auxiliaryLine->flip(mode, x, y);
    invalidateBounds();
}

void vxLabel::calculateBounds(float b[4]) const {
    std::fill(b, b + 4, 0.0f);
    bool hasBounds = false;
    float part[4];
    if (text) {
        text->getBounds(part);
        vxUniteBounds(b, part, hasBounds);
    }
    if (background && !background->isEmpty()) {
        background->getBounds(part);
        vxUniteBounds(b, part, hasBounds);
    }
    if (auxiliaryLine) {
        auxiliaryLine->getBounds(part);
        vxUniteBounds(b, part, hasBounds);
    }
}

// ---- copy and dump ------------------------------------------------------------

bool vxLabel::set(const vxLabel* from) {
    if (from == this) return true;
    setDefaults();
    if (!from) return !isError();
    getState()->copy(from->getState());
    getAppearance()->copy(from->getAppearance());
    if (!takeError(getAppearance())) return false;
    if (from->text && text) {
        text->copy(from->text.get());
        if (!takeError(text.get())) return false;
    }
    if (from->background) {
        if (!makePart(background, *this, L"createBackground", 2, getOwnerSettings())) return false;
        background->copy(from->background.get());
        if (!takeError(background.get())) return false;
        try {
            mBackgroundOptions = from->mBackgroundOptions;
        } catch (const std::bad_alloc&) {
            setError(vxErrRuntime::kOutOfMemory, where(L"set"));
            return false;
        }
        mBackgroundShape = from->mBackgroundShape;
    }
    if (from->auxiliaryLine && !createAuxiliaryLine(*from->auxiliaryLine)) return false;
    std::copy(from->margins, from->margins + 4, margins);
    useRelativeMargins = from->useRelativeMargins;
    useContentBounds = from->useContentBounds;
    std::copy(from->contentBounds, from->contentBounds + 4, contentBounds);
    invalidateBounds();
    return !isError();
}

void vxLabel::dump(short depth, std::ostream& out) const {
    if (depth <= 0) return;
    vxDumpHeader(out, "vxLabel");
    vxDumpLine(out, "float margins[0], [1]:  ", margins[0], margins[1]);
    vxDumpLine(out, "float margins[2], [3]:  ", margins[2], margins[3]);
    vxDumpLine(out, "bool  useRelativeMargins:  ", useRelativeMargins);
    vxDumpLine(out, "short mBackgroundShape:  ", mBackgroundShape);
    float b[4];
    calculateBounds(b);
    vxDumpLine(out, "float bounds[0], [1]:  ", b[0], b[1]);
    vxDumpLine(out, "float bounds[2], [3]:  ", b[2], b[3]);
    const auto below = static_cast<short>(depth - 1);
    if (text) text->dump(below, out);
    if (background) background->dump(below, out);
    if (auxiliaryLine) auxiliaryLine->dump(below, out);
    vxGObjectOLD::dump(below, out);
    vxDumpEnd(out);
}

}  // namespace Velarix
