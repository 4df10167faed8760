#include "graphics/vxText.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <new>
#include <vector>

#include "graphics/vxBasicPaint.h"
#include "graphics/vxFontOLD.h"
#include "graphics/vxGObjectAppearanceOLD.h"
#include "graphics/vxGObjectState.h"
#include "graphics/vxTransform2DOLD.h"
#include "host/vxLog.h"
#include "output/vxDevice.h"
#include "settings/vxUserSettings.h"

namespace Velarix {

namespace {

constexpr float kFullTurn = 6.2831855f;

void setEmpty(float bounds[4]) {
    bounds[0] = bounds[1] = std::numeric_limits<float>::max();
    bounds[2] = bounds[3] = std::numeric_limits<float>::lowest();
}

}  // namespace

vxText::vxText(vxUserSettings* owner) : vxGObjectOLD(L"vxText", owner) {
    setEmpty(stringBounds);
    setEmpty(textBounds);
    resetFields();
}

vxText::vxText(vxUserSettings* owner, const std::wstring& text) : vxText(owner) {
    setText(text);
}

vxText::~vxText() = default;

void vxText::setDefaults() {
    vxGObjectOLD::setDefaults();
    resetFields();
}

void vxText::resetFields() {
    inputString.clear();
    outputString.clear();
    if (createFont()) takeFontDefaults(getOwnerSettings());
    createPaint();
    xAnchor = yAnchor = 0.0f;
    hAlignment = kLeft;
    vAlignment = kBaseline;
    orientation = 0.0f;
    maxWidth = maxHeight = kNoLimit;
    numOfLines = 0;
    ellipsisPosition = kEllipsisAtEnd;
    stringWidth = stringHeight = 0.0f;
    setEmpty(stringBounds);
    setEmpty(textBounds);
    invalidateStringDimension();
}

// The default font of the settings becomes the font and its fallback.
void vxText::takeFontDefaults(const vxUserSettings* settings) {
    const vxFontSettings* fonts = settings ? settings->getFontSettings() : nullptr;
    if (!fonts || fonts->getNameWinOS().empty()) return;
    font->setDefaultName(fonts->getNameWinOS());
    font->setDefaultSize(fonts->getSizeWinOS());
    font->setDefaultStyle(fonts->getStyleWinOS());
    font->setName(fonts->getNameWinOS());
    font->setSize(fonts->getSizeWinOS());
    font->setStyle(fonts->getStyleWinOS());
    font->setMissingFontFlag(fonts->getMissingFontFlag());
    font->setEmbedPDFFontFlag(fonts->getEmbedPDFFontFlag());
}

bool vxText::createFont() {
    font.reset();
    try {
        font = std::make_unique<vxFontOLD>();
    } catch (const std::bad_alloc&) {
        setError(vxErrRuntime::kOutOfMemory, where(L"createFont", 2));
        return false;
    }
    invalidateStringDimension();
    return true;
}

bool vxText::setFont(const vxFontOLD& from) {
    try {
        font = std::make_unique<vxFontOLD>(from);
    } catch (const std::bad_alloc&) {
        setError(vxErrRuntime::kOutOfMemory, where(L"createFont", 3));
        return false;
    }
    invalidateStringDimension();
    return true;
}

void vxText::setFontName(const std::wstring& name) {
    if (!font && !createFont()) return;
    font->setName(name);
    invalidateStringDimension();
}

void vxText::setFontSize(float size) {
    if (!font && !createFont()) return;
    font->setSize(size);
    invalidateStringDimension();
}

void vxText::setFontStyle(short style) {
    if (!font && !createFont()) return;
    font->setStyle(style);
    invalidateStringDimension();
}

bool vxText::createPaint() {
    return vxPaintOLD::createInto(paint, vxPaintOLD::kBasic, *this, L"createPaint");
}

bool vxText::setPaint(const vxPaintOLD& from) {
    return vxPaintOLD::cloneInto(paint, from, *this, L"createPaint");
}

void vxText::setText(const std::wstring& text) {
    try {
        inputString = text;
    } catch (const std::bad_alloc&) {
        setError(vxErrRuntime::kOutOfMemory, where(L"setText"));
    }
    invalidateStringDimension();
}

void vxText::setAnchor(float x, float y) {
    xAnchor = x;
    yAnchor = y;
    invalidateTextBounds();
}

void vxText::setHAlignment(short value) {
    hAlignment = value;
    invalidateTextBounds();
}

void vxText::setVAlignment(short value) {
    vAlignment = value;
    invalidateTextBounds();
}

void vxText::setOrientation(float value) {
    orientation = value < 0.0f ? value + kFullTurn : value;
    invalidateTextBounds();
}

void vxText::setMaxWidth(float value) {
    maxWidth = value;
    invalidateStringDimension();
}

void vxText::setMaxHeight(float value) {
    maxHeight = value;
    invalidateStringDimension();
}

void vxText::setMaxSize(float width, float height) {
    setMaxWidth(width);
    setMaxHeight(height);
}

void vxText::setEllipsisPosition(short value) {
    ellipsisPosition = value;
    invalidateStringDimension();
}

void vxText::fitToBox(float width, float height) {
    const float margin = font ? font->getStringHeight() : 0.0f;
    const bool isUpright = std::fabs(std::sin(orientation)) > std::fabs(std::cos(orientation));
    const float across = isUpright ? height : width;
    const float along = isUpright ? width : height;
    setMaxSize(std::max(1.0f, across - 0.65f * margin), std::max(1.0f, along - 0.35f * margin));
}

void vxText::invalidateStringDimension() {
    doRecalcStringDimension = true;
    invalidateTextBounds();
}

void vxText::invalidateTextBounds() {
    doRecalcBounds = true;
    invalidateBounds();
}

void vxText::setUpStringDimension() const {
    doRecalcStringDimension = false;
    doRecalcBounds = true;
    outputString.clear();
    numOfLines = 0;
    stringWidth = stringHeight = 0.0f;
    if (!font) return;
    try {
        outputString = wrap(inputString, maxWidth);
        outputString = shorten(outputString, maxWidth, maxHeight, font->getStringHeight(),
                               font->getLeading(), ellipsisPosition);
    } catch (const std::bad_alloc&) {
        outputString.clear();
        if (vxError* record = getError(); record && !record->isError()) {
            record->setError(vxErrRuntime::kOutOfMemory, where(L"setUpStringDimension"));
        }
    }
    float dimensions[2] = {0.0f, 0.0f};
    numOfLines = font->getDimensions(outputString, dimensions);
    stringWidth = maxWidth >= 0.0f ? maxWidth : dimensions[0];
    stringHeight = dimensions[1];
    // A font that can't be had is the first fault of the text.
    if (vxError* record = getError(); font->isError() && record && !record->isError()) {
        record->copy(font->getError());
    }
}

void vxText::setUpBounds() const {
    if (doRecalcStringDimension) setUpStringDimension();
    doRecalcBounds = false;
    float left = xAnchor;
    if (hAlignment == kCenter) {
        left -= stringWidth / 2.0f;
    } else if (hAlignment != kLeft) {
        left -= stringWidth;
    }
    float top = yAnchor;
    if (vAlignment == kMiddle) {
        top -= stringHeight / 2.0f;
    } else if (vAlignment == kBottom) {
        top -= stringHeight;
    } else if (vAlignment != kTop) {
        top -= font ? font->getAscent() : 0.0f;
    }
    stringBounds[0] = left;
    stringBounds[1] = top;
    stringBounds[2] = left + stringWidth;
    stringBounds[3] = top + stringHeight;
    std::copy(stringBounds, stringBounds + 4, textBounds);
    if (!vxDevice::isAngle(orientation)) return;

    std::vector<float> x{left, stringBounds[2], stringBounds[2], left};
    std::vector<float> y{top, top, stringBounds[3], stringBounds[3]};
    vxTransform2DOLD turn;
    turn.rotate(orientation, (left + stringBounds[2]) / 2.0f, (top + stringBounds[3]) / 2.0f);
    turn.transform(x, y);
    textBounds[0] = *std::min_element(x.begin(), x.end());
    textBounds[1] = *std::min_element(y.begin(), y.end());
    textBounds[2] = *std::max_element(x.begin(), x.end());
    textBounds[3] = *std::max_element(y.begin(), y.end());
}

const std::wstring& vxText::getOutputString() const {
    if (doRecalcStringDimension) setUpStringDimension();
    return outputString;
}

long vxText::getNumOfLines() const {
    if (doRecalcStringDimension) setUpStringDimension();
    return numOfLines;
}

float vxText::getStringWidth() const {
    if (doRecalcStringDimension) setUpStringDimension();
    return stringWidth;
}

float vxText::getStringHeight() const {
    if (doRecalcStringDimension) setUpStringDimension();
    return stringHeight;
}

void vxText::getStringBounds(float bounds[4]) const {
    if (doRecalcBounds || doRecalcStringDimension) setUpBounds();
    std::copy(stringBounds, stringBounds + 4, bounds);
}

void vxText::calculateBounds(float bounds[4]) const {
    if (doRecalcBounds || doRecalcStringDimension) setUpBounds();
    std::copy(textBounds, textBounds + 4, bounds);
}

void vxText::drawBody(vxDevice& device) {
    if (!isVisible() || !font || !paint || paint->isNone()) return;
    if (doRecalcBounds || doRecalcStringDimension) setUpBounds();
    if (outputString.empty()) return;
    device.drawString2D(outputString, *font, *paint, stringBounds, hAlignment, vAlignment,
                        orientation);
}

void vxText::transformGeometry(const vxTransform2DOLD& transform) {
    transform.transform(xAnchor, yAnchor);
    invalidateTextBounds();
}

void vxText::rotate(float angle, float x, float y) {
    vxGObjectOLD::rotate(angle, x, y);
    setOrientation(orientation + angle);
}

bool vxText::copy(const vxText* from) {
    if (from == this) return true;
    setDefaults();
    if (!from) return true;
    setVisible(from->isVisible());
    setLocked(from->isLocked());
    setSelected(from->isSelected());
    getAppearance()->copy(from->getAppearance());
    setText(from->inputString);
    if (from->font) setFont(*from->font);
    if (from->paint) setPaint(*from->paint);
    xAnchor = from->xAnchor;
    yAnchor = from->yAnchor;
    hAlignment = from->hAlignment;
    vAlignment = from->vAlignment;
    orientation = from->orientation;
    maxWidth = from->maxWidth;
    maxHeight = from->maxHeight;
    ellipsisPosition = from->ellipsisPosition;
    invalidateStringDimension();
    return !isError();
}

void vxText::dump(short depth, std::ostream& out) const {
    if (depth <= 0) return;
    vxDumpHeader(out, vxNarrow(getClassName()));
    vxDumpLine(out, "wstring inputString:  ", inputString);
    vxDumpLine(out, "wstring outputString:  ", outputString);
    if (font) font->dump(static_cast<short>(depth - 1), out);
    vxDumpLine(out, "float xAnchor,yAnchor:  ", xAnchor, yAnchor);
    vxDumpLine(out, "short hAlignment:  ", hAlignment);
    vxDumpLine(out, "short vAlignment:  ", vAlignment);
    vxDumpLine(out, "float orientation:  ", orientation);
    vxDumpLine(out, "float maxWidth:  ", maxWidth);
    vxDumpLine(out, "float maxHeight:  ", maxHeight);
    vxDumpLine(out, "long  numOfLines:  ", numOfLines);
    vxDumpLine(out, "short ellipsisPosition:  ", ellipsisPosition);
    vxDumpLine(out, "float stringWidth:  ", stringWidth);
    vxDumpLine(out, "float stringHeight:  ", stringHeight);
    vxDumpLine(out, "float stringBounds[0], [1]:  ", stringBounds[0], stringBounds[1]);
    vxDumpLine(out, "float stringBounds[2], [3]:  ", stringBounds[2], stringBounds[3]);
    vxDumpLine(out, "bool  doRecalcStringDimension:  ", doRecalcStringDimension);
    vxDumpLine(out, "float bounds[0], [1]:  ", textBounds[0], textBounds[1]);
    vxDumpLine(out, "float bounds[2], [3]:  ", textBounds[2], textBounds[3]);
    vxDumpLine(out, "bool  doRecalcBounds:  ", doRecalcBounds);
    if (paint) paint->dump(static_cast<short>(depth - 1), out);
    vxGObjectOLD::dump(static_cast<short>(depth - 1), out);
    vxDumpEnd(out);
}

}  // namespace Velarix
