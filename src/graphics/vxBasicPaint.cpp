#include "graphics/vxBasicPaint.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include "graphics/vxColorPaletteOLD.h"
#include "host/vxLog.h"
#include "script/vxAssign.h"
#include "settings/vxStyleSettings.h"
#include "settings/vxUserSettings.h"

namespace Velarix {

namespace {

// The numbers of an argument: an array's elements or a single number.
std::vector<float> numbersOf(const vxAssign& assign, long index) {
    if (assign.getArraySize(index) > 0) return assign.getFloatArray(index);
    if (assign.isVoid(index) || assign.isString(index)) return {};
    return {assign.getFloat(index)};
}

void setFromPalette(vxColorOLD& color, float number, const vxUserSettings* settings) {
    vxColorPaletteOLD palette;
    const vxStyleSettings* style = settings ? settings->getStyleSettings() : nullptr;
    if (style) {
        palette.setPaletteID(style->getColorPaletteID());
        palette.setColors(style->getUserDefinedColors());
    }
    const long index = std::lround(std::clamp(number, -1.0f, 32767.0f)) - 1;
    color.setFromPalette(static_cast<short>(index), &palette);
}

}  // namespace

vxBasicPaint::vxBasicPaint() : vxPaintOLD(L"vxBasicPaint") {
    createColor();
}

vxBasicPaint::vxBasicPaint(const vxColorOLD& from) : vxBasicPaint() {
    setColor(from);
}

vxBasicPaint::vxBasicPaint(short count, const short* components) : vxBasicPaint() {
    setColor(count, components);
}

vxBasicPaint::vxBasicPaint(short red, short green, short blue) : vxBasicPaint() {
    setColor(red, green, blue);
}

vxBasicPaint::vxBasicPaint(short red, short green, short blue, short alpha) : vxBasicPaint() {
    setColor(red, green, blue, alpha);
}

vxBasicPaint::vxBasicPaint(vxAssign& assign, const vxUserSettings* settings) : vxBasicPaint() {
    this->assign(assign, settings);
}

vxBasicPaint::~vxBasicPaint() = default;

bool vxBasicPaint::createColor() {
    return create(color, L"createColor");
}

vxColorOLD* vxBasicPaint::changeColor() {
    if (!color && !createColor()) return nullptr;
    return color.get();
}

bool vxBasicPaint::isNone() const {
    return !color || color->isTransparent() || patternIndex == kNonePattern;
}

bool vxBasicPaint::isTranslucent() const {
    return color && color->isTranslucent() && patternIndex != kNonePattern;
}

bool vxBasicPaint::isOpaque() const {
    return color && color->isOpaque() && patternIndex != kNonePattern;
}

void vxBasicPaint::brighten(float factor) {
    if (color) color->brighten(factor);
}

void vxBasicPaint::darken(float factor) {
    if (color) color->darken(factor);
}

void vxBasicPaint::setColor(const vxColorOLD& from) {
    if (vxColorOLD* c = changeColor()) c->set(&from);
}

void vxBasicPaint::setColor(short count, const short* components) {
    if (vxColorOLD* c = changeColor()) c->set(count, components);
}

void vxBasicPaint::setColor(short red, short green, short blue) {
    if (vxColorOLD* c = changeColor()) c->set(red, green, blue);
}

void vxBasicPaint::setColor(short red, short green, short blue, short alpha) {
    if (vxColorOLD* c = changeColor()) c->set(red, green, blue, alpha);
}

std::unique_ptr<vxPaintOLD> vxBasicPaint::clone() const {
    return cloneOf<vxPaintOLD>(*this);
}

bool vxBasicPaint::assign(vxAssign& assign, const vxUserSettings* settings) {
    if (vxColorOLD* c = changeColor()) readColor(assign, 0, settings, *c);
    if (getNumOfArguments(assign) > 1 && !assign.isVoid(1)) {
        setPatternIndex(assign.getShort(1));
    }
    skipArguments(assign);
    return !isError();
}

bool vxBasicPaint::readColor(const vxAssign& assign, long index, const vxUserSettings* settings,
                             vxColorOLD& color) {
    if (assign.isString(index)) {
        short rgba[4];
        if (vxColorOLD::parseHashText(assign.getString(index), rgba) != kNoError) return false;
        color.set(4, rgba);
        return true;
    }
    const std::vector<float> numbers = numbersOf(assign, index);
    if (numbers.size() == 1) {
        setFromPalette(color, numbers[0], settings);
        return true;
    }
    if (numbers.size() != 3 && numbers.size() != 4) return false;
    short components[4];
    std::transform(numbers.begin(), numbers.end(), components, toComponent);
    color.set(static_cast<short>(numbers.size()), components);
    return true;
}

void vxBasicPaint::resetFields() {
    if (color) color->set(nullptr);
    patternIndex = 0;
}

void vxBasicPaint::copyFields(const vxAppearance& from) {
    const auto& paint = static_cast<const vxBasicPaint&>(from);
    if (paint.color) setColor(*paint.color);
    patternIndex = paint.patternIndex;
}

void vxBasicPaint::dumpFields(short depth, std::ostream& out) const {
    vxPaintOLD::dumpFields(depth, out);
    vxDumpLine(out, "short patternIndex:  ", patternIndex);
    if (depth > 0 && color) color->dump(static_cast<short>(depth - 1), out);
}

}  // namespace Velarix
