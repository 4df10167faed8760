#include "graphics/vxColorOLD.h"

#include <algorithm>

#include "host/vxLog.h"

namespace Velarix {

namespace {

short clampComponent(long value) {
    return static_cast<short>(std::clamp(value, 0L, 255L));
}

// The value of a hexadecimal digit, or -1.
int hexDigit(wchar_t c) {
    if (c >= L'0' && c <= L'9') return c - L'0';
    if (c >= L'a' && c <= L'f') return c - L'a' + 10;
    if (c >= L'A' && c <= L'F') return c - L'A' + 10;
    return -1;
}

}  // namespace

vxColorOLD::vxColorOLD() : vxErrorHolder(L"vxColorOLD") {}

vxColorOLD::vxColorOLD(short red, short green, short blue, short alpha)
    : vxErrorHolder(L"vxColorOLD") {
    set(red, green, blue, alpha);
}

vxColorOLD::vxColorOLD(const vxColorOLD& from) : vxErrorHolder(L"vxColorOLD") {
    set(&from);
}

vxColorOLD& vxColorOLD::operator=(const vxColorOLD& from) {
    set(&from);
    return *this;
}

vxColorOLD::~vxColorOLD() = default;

void vxColorOLD::set(short red, short green, short blue) {
    set(red, green, blue, 255);
}

void vxColorOLD::set(short red, short green, short blue, short alpha) {
    setRed(red);
    setGreen(green);
    setBlue(blue);
    setAlpha(alpha);
}

void vxColorOLD::set(short count, const short* components) {
    if (components != nullptr && count == 3) {
        set(components[0], components[1], components[2]);
    } else if (components != nullptr && count == 4) {
        set(components[0], components[1], components[2], components[3]);
    } else {
        set(0, 0, 0, 255);
    }
}

void vxColorOLD::set(const vxColorOLD* from) {
    if (from == this) return;
    if (from == nullptr) {
        palette.reset();
        set(0, 0, 0, 255);
        return;
    }
    copyPalette(from->palette.get());
    set(from->red, from->green, from->blue, from->alpha);
}

void vxColorOLD::copyPalette(const vxColorPaletteOLD* from) {
    if (from == nullptr) {
        palette.reset();
        return;
    }
    if (!palette && !createColorPalette()) return;
    palette->set(from);
    if (palette->isError()) copyError(palette->getError());
}

void vxColorOLD::setRed(short value) {
    red = clampComponent(value);
}
void vxColorOLD::setGreen(short value) {
    green = clampComponent(value);
}
void vxColorOLD::setBlue(short value) {
    blue = clampComponent(value);
}
void vxColorOLD::setAlpha(short value) {
    alpha = clampComponent(value);
}

bool vxColorOLD::createColorPalette() {
    return create(palette, L"createColorPalette");
}

void vxColorOLD::setFromPalette(short index, short paletteID) {
    if (!palette && !createColorPalette()) return;
    palette->setPaletteID(paletteID);
    setFromPalette(index, palette.get());
}

void vxColorOLD::setFromPalette(short index, const vxColorPaletteOLD* from) {
    if (from == nullptr) {
        if (!palette && !createColorPalette()) return;
        from = palette.get();
    }
    short rgb[3];
    from->getColor(index, rgb);
    set(rgb[0], rgb[1], rgb[2]);
}

bool vxColorOLD::isEqual(const vxColorOLD& other) const {
    return red == other.red && green == other.green && blue == other.blue && alpha == other.alpha;
}

void vxColorOLD::brighten(float f) {
    auto up = [f](short c) { return clampComponent(c + static_cast<long>((255 - c) * f)); };
    red = up(red);
    green = up(green);
    blue = up(blue);
}

void vxColorOLD::darken(float f) {
    auto down = [f](short c) { return clampComponent(static_cast<long>((1.0f - f) * c)); };
    red = down(red);
    green = down(green);
    blue = down(blue);
}

std::wstring vxColorOLD::toHashText() const {
    static const wchar_t kDigits[] = L"0123456789abcdef";
    std::wstring text = L"#";
    for (short c : {red, green, blue}) {
        text.push_back(kDigits[c >> 4]);
        text.push_back(kDigits[c & 0xF]);
    }
    return text;
}

std::wstring vxColorOLD::toDecimalText() const {
    return std::to_wstring(red) + L" " + std::to_wstring(green) + L" " + std::to_wstring(blue);
}

short vxColorOLD::parseHashText(const std::wstring& text, short rgba[4]) {
    const size_t length = text.size();
    if (length != 4 && length != 5 && length != 7 && length != 9) return vxErrScript::kValue;
    if (text[0] != L'#') return vxErrScript::kValue;
    for (size_t i = 1; i < length; ++i) {
        if (hexDigit(text[i]) < 0) return vxErrScript::kValue;
    }
    // In the short forms each digit stands for a doubled pair.
    const size_t width = (length <= 5) ? 1 : 2;
    const size_t count = (length - 1) / width;
    short values[4] = {0, 0, 0, 255};
    for (size_t k = 0; k < count; ++k) {
        const int high = hexDigit(text[1 + k * width]);
        const int low = hexDigit(text[width * (k + 1)]);
        values[k] = static_cast<short>(high * 16 + low);
    }
    std::copy(values, values + 4, rgba);
    return kNoError;
}

bool vxColorOLD::isHashText(const std::wstring& text) {
    short rgba[4];
    return parseHashText(text, rgba) == kNoError;
}

void vxColorOLD::dump(short depth, std::ostream& out) const {
    vxDumpHeader(out, "vxColorOLD");
    vxDumpLine(out,
               "short red,green,blue,alpha:  ", toDecimalText() + L" " + std::to_wstring(alpha));
    if (depth > 0 && palette) palette->dump(static_cast<short>(depth - 1), out);
    vxDumpEnd(out);
}

}  // namespace Velarix
