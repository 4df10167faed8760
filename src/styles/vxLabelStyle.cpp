#include "styles/vxLabelStyle.h"

#include "axes/vxAxisLook.h"
#include "data/vxDataValueSeries.h"
#include "graphics/vxFontOLD.h"
#include "graphics/vxLabel.h"
#include "graphics/vxText.h"
#include "host/vxLog.h"
#include "script/vxAssign.h"
#include "script/vxFunctionIds.h"

namespace Velarix {

namespace {

// The font's arguments of LabelStyle: name, size, style.
constexpr long kFontNameAt = 0;
constexpr long kFontSizeAt = 1;
constexpr long kFontStyleAt = 2;

}  // namespace

vxLabelStyle::vxLabelStyle(vxUserSettings* owner, long number) : vxStyle(L"vxLabelStyle", owner) {
    setDefaults(number);
}

vxLabelStyle::~vxLabelStyle() = default;

bool vxLabelStyle::createLabel() {
    return create(label, L"createLabel", owner) && takeError(label.get());
}

bool vxLabelStyle::setDefaults(long) {
    location = kDefaultLocation;
    xOffset = yOffset = 0.0f;
    lowerLimit = vxDataValueSeries::kDefaultLowerLimit;
    upperLimit = vxDataValueSeries::kDefaultUpperLimit;
    try {
        texts.assign(1, kDefaultFormat);
    } catch (const std::bad_alloc&) {
        setError(vxErrRuntime::kOutOfMemory, where(L"setDefaults"));
        return false;
    }
    return createLabel();
}

bool vxLabelStyle::set(const vxLabelStyle* from) {
    if (!from) return copySelection(nullptr) && setDefaults(1);
    location = from->location;
    xOffset = from->xOffset;
    yOffset = from->yOffset;
    lowerLimit = from->lowerLimit;
    upperLimit = from->upperLimit;
    try {
        texts = from->texts;
    } catch (const std::bad_alloc&) {
        setError(vxErrRuntime::kOutOfMemory, where(L"set"));
        return false;
    }
    if (!copySelection(from) || !createLabel()) return false;
    label->set(from->label.get());
    return takeError(label.get());
}

const std::wstring& vxLabelStyle::getText(long item) const {
    static const std::wstring none;
    if (texts.empty()) return none;
    const long count = static_cast<long>(texts.size());
    return texts[static_cast<size_t>(item < 1 ? 0 : (item - 1) % count)];
}

bool vxLabelStyle::assign(vxAssign& a) {
    if (!label && !createLabel()) return false;
    switch (a.getFunction()) {
        case kLabelStyle:
            return assignStyle(a);
        case kLabelOptions:
            assignOptions(a);
            return !isError();
        case kLabelTexts:
            return assignTexts(a);
        case kLabelBackground:
            label->assignBackground(a, owner);
            return takeError(label.get());
        case kLabelBackgroundOptions:
            label->assignBackgroundOptions(a);
            return takeError(label.get());
        default:
            return !isError();
    }
}

// The text's reader gives a void font argument the font's default; here a
// void argument keeps what the style has.
bool vxLabelStyle::assignStyle(vxAssign& a) {
    vxText* text = label->getText();
    if (!text) return !isError();
    const vxFontOLD* font = text->getFont();
    const std::wstring name = font ? font->getName() : L"";
    const float size = font ? font->getSize() : 0.0f;
    const short style = font ? font->getStyle() : 0;
    const bool keepName = a.isVoid(kFontNameAt);
    const bool keepSize = a.isVoid(kFontSizeAt);
    const bool keepStyle = a.isVoid(kFontStyleAt);
    text->assign(a, owner);
    if (font) {
        if (keepName) text->setFontName(name);
        if (keepSize) text->setFontSize(size);
        if (keepStyle) text->setFontStyle(style);
    }
    return takeError(text) && takeError(label.get());
}

void vxLabelStyle::assignOptions(vxAssign& a) {
    location = a.getShort(0, location);
    xOffset = a.getFloat(1, xOffset);
    yOffset = a.getFloat(2, yOffset);
    lowerLimit = a.getDouble(3, lowerLimit);
    upperLimit = a.getDouble(4, upperLimit);
    a.addToArgumentOffset(5);
}

// One text an argument; a call with no text given keeps the texts.
bool vxLabelStyle::assignTexts(vxAssign& a) {
    try {
        std::vector<std::wstring> given = vxStringArguments(a);
        if (!given.empty()) texts = std::move(given);
    } catch (const std::bad_alloc&) {
        setError(vxErrRuntime::kOutOfMemory, where(L"assignTexts"));
    }
    a.addToArgumentOffset(a.getNumOfArguments() - a.getArgumentOffset());
    return !isError();
}

void vxLabelStyle::dump(short depth, std::ostream& out) const {
    if (depth <= 0) return;
    vxDumpHeader(out, "vxLabelStyle");
    dumpSelection(out);
    vxDumpLine(out, "short location:  ", location);
    vxDumpLine(out, "float xOffset:  ", xOffset);
    vxDumpLine(out, "float yOffset:  ", yOffset);
    vxDumpLine(out, "double lowerLimit:  ", lowerLimit);
    vxDumpLine(out, "double upperLimit:  ", upperLimit);
    vxDumpLine(out, "vector<wstring> texts: ", texts);
    vxDumpEnd(out);
    if (label) label->dump(static_cast<short>(depth - 1), out);
}

}  // namespace Velarix
