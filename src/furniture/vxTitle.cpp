#include "furniture/vxTitle.h"

#include <algorithm>
#include <cmath>

#include "charts/vxChartLayerTypes.h"
#include "drawing/vxLayer.h"
#include "drawing/vxLayerManager.h"
#include "graphics/vxFontOLD.h"
#include "graphics/vxLabel.h"
#include "graphics/vxText.h"
#include "host/vxLog.h"
#include "script/vxAssign.h"
#include "script/vxFunctionIds.h"

namespace Velarix {

namespace {

constexpr short kTopCenter = 2;
constexpr short kBoldStyle = 1;
// The part of the chart's height each text may take.
constexpr float kHeightShare = 0.25f;

}  // namespace

vxTitle::vxTitle(vxUserSettings* ownerSettings) : vxErrorHolder(L"vxTitle"), owner(ownerSettings) {}

vxTitle::~vxTitle() = default;

bool vxTitle::createText(std::unique_ptr<vxText>& text, const wchar_t* method) {
    if (text) return true;
    if (!create(text, method, owner)) return false;
    text->setVAlignment(vxText::kTop);
    if (&text == &title) {
        const vxFontOLD* font = text->getFont();
        if (font) text->setFontSize(std::round(font->getSize() * kTitleFontScale));
        text->setFontStyle(kBoldStyle);
    }
    return true;
}

bool vxTitle::createBackground() {
    if (background) return true;
    if (!create(background, L"createTitle", owner)) return false;
    background->setMargins(kDefaultMargin, kDefaultMargin, kDefaultMargin, kDefaultMargin);
    background->setUseRelativeMargins(false);
    return true;
}

void vxTitle::assign(vxAssign& a) {
    doRecalcBounds = true;
    switch (a.getFunction()) {
        case kTitleText:
            return assignTexts(a);
        case kTitleStyle:
        case kTitleSubStyle: {
            const bool main = a.getFunction() == kTitleStyle;
            std::unique_ptr<vxText>& text = main ? title : subTitle;
            if (!createText(text, main ? L"createTitle" : L"createSubTitle")) return;
            if (!text->assign(a, owner)) copyError(text->getError());
            return;
        }
        case kTitleOptions:
            return assignOptions(a);
        case kTitleBackground:
            if (createBackground() && !background->assignBackground(a, owner)) {
                copyError(background->getError());
            }
            return;
        case kTitleBackgroundOptions:
            if (createBackground() && !background->assignBackgroundOptions(a)) {
                copyError(background->getError());
            }
            return;
        default:
            return;
    }
}

// A void text keeps the one given before; an empty one removes it.
void vxTitle::assignTexts(vxAssign& a) {
    if (!a.isVoid(0) && createText(title, L"createTitle")) title->setText(a.getString(0));
    if (!a.isVoid(1) && createText(subTitle, L"createSubTitle")) subTitle->setText(a.getString(1));
}

void vxTitle::assignOptions(vxAssign& a) {
    if (!a.isVoid(0)) location = a.getShort(0);
    doPlaceInside = a.getBool(1, doPlaceInside);
    xOffsetDC = a.getFloat(2, xOffsetDC);
    yOffsetDC = a.getFloat(3, yOffsetDC);
    subTitleOffsetDC = a.getFloat(4, subTitleOffsetDC);
    titleAlignment = a.getShort(5, titleAlignment);
}

bool vxTitle::hasText(const std::unique_ptr<vxText>& text) const {
    return text && !text->getText().empty();
}

bool vxTitle::isEmpty() const {
    return !hasText(title) && !hasText(subTitle) && !(background && background->hasBackground());
}

// A text wider than the room is wrapped to it, and cut when it then grows
// higher than its share.
void vxTitle::fitText(vxText& text, float maxWidth, float maxHeight) {
    text.setMaxSize(vxText::kNoLimit, vxText::kNoLimit);
    if (maxWidth > 0.0f && text.getStringWidth() > maxWidth) text.setMaxWidth(maxWidth);
    if (maxHeight > 0.0f && text.getStringHeight() > maxHeight) text.setMaxHeight(maxHeight);
}

void vxTitle::setUp(float maxWidth, float maxHeight) {
    if (!createBackground()) return;
    float margins[4];
    background->getMarginsDC(margins);
    const float room = maxWidth - margins[0] - margins[2] - background->getBorderWidth();
    const float share = std::max(1.0f, maxHeight * kHeightShare);
    if (hasText(title)) fitText(*title, room, share);
    if (hasText(subTitle)) fitText(*subTitle, room, share);
    layOutTexts();
    if (title && title->isError()) return copyError(title->getError());
    if (subTitle && subTitle->isError()) return copyError(subTitle->getError());
    if (background->isError()) return copyError(background->getError());
    doRecalcBounds = false;
}

// The texts from (0, 0) down, aligned to each other in the wider one's
// width; the background's box surrounds them.
void vxTitle::layOutTexts() {
    const bool withTitle = hasText(title), withSub = hasText(subTitle);
    const float w1 = withTitle ? title->getStringWidth() : 0.0f;
    const float h1 = withTitle ? title->getStringHeight() : 0.0f;
    const float w2 = withSub ? subTitle->getStringWidth() : 0.0f;
    const float h2 = withSub ? subTitle->getStringHeight() : 0.0f;
    const float width = std::max(w1, w2);
    const float height = h1 + h2 + (withTitle && withSub ? subTitleOffsetDC : 0.0f);
    const short align = titleAlignment >= 1 && titleAlignment <= 3 ? titleAlignment : 2;
    const float x = align == 1 ? 0.0f : align == 3 ? width : width * 0.5f;
    for (vxText* text : {title.get(), subTitle.get()}) {
        if (!text) continue;
        text->setHAlignment(align);
        text->setVAlignment(vxText::kTop);
    }
    if (withTitle) title->setAnchor(x, 0.0f);
    if (withSub) subTitle->setAnchor(x, height - h2);
    const float content[4] = {0.0f, 0.0f, width, height};
    background->setContentBounds(content);
    background->getLabelBounds(bounds);
    if (width <= 0.0f && !background->hasBackground()) std::fill(bounds, bounds + 4, 0.0f);
}

short vxTitle::getBoxLocation() const {
    return location >= 1 && location <= 9 ? location : kTopCenter;
}

void vxTitle::getBoxOffsets(float offsets[2]) const {
    offsets[0] = xOffsetDC;
    offsets[1] = yOffsetDC;
}

void vxTitle::getBoxSize(float size[2]) const {
    size[0] = bounds[2] - bounds[0];
    size[1] = bounds[3] - bounds[1];
}

void vxTitle::moveBoxTo(float left, float top) {
    const float dx = left - bounds[0], dy = top - bounds[1];
    if (title) title->shift(dx, dy);
    if (subTitle) subTitle->shift(dx, dy);
    if (background) {
        background->setLocation(left, top);
        background->getLabelBounds(bounds);
    }
}

bool vxTitle::containsPoint(float x, float y) const {
    return x >= bounds[0] && x <= bounds[2] && y >= bounds[1] && y <= bounds[3];
}

void vxTitle::setUpLayer(vxLayerManager* layerMng) {
    if (!layerMng || isEmpty()) return;
    std::unique_ptr<vxLayer> layer;
    if (!create(layer, L"setUpLayer", long(kTitleLayer), 0L, layerMng->getCurrentClipRect())) {
        return;
    }
    if (background && background->hasBackground()) layer->addShape(background.get());
    if (hasText(title)) layer->addShape(title.get());
    if (hasText(subTitle)) layer->addShape(subTitle.get());
    if (layer->isError()) return copyError(layer->getError());
    layerMng->addLayer(std::move(layer));
    if (layerMng->isError()) copyError(layerMng->getError());
}

void vxTitle::dump(short depth, std::ostream& out) const {
    if (depth <= 0) return;
    vxDumpHeader(out, "vxTitle");
    vxDumpLine(out, "bool doPlaceInside:     ", doPlaceInside);
    vxDumpLine(out, "short location:         ", location);
    vxDumpLine(out, "float xOffsetDC,yOffsetDC: ", xOffsetDC, yOffsetDC);
    vxDumpLine(out, "short titleAlignment:   ", titleAlignment);
    vxDumpLine(out, "float subTitleOffsetDC: ", subTitleOffsetDC);
    vxDumpLine(out, "float bounds[4]:        ", bounds, 4);
    vxDumpLine(out, "bool doRecalcBounds:    ", doRecalcBounds);
    vxDumpEnd(out);
    if (title) title->dump(static_cast<short>(depth - 1), out);
    if (subTitle) subTitle->dump(static_cast<short>(depth - 1), out);
}

}  // namespace Velarix
