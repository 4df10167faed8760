// Text on the SVG device: one <text> element per line, every character a
// numeric character reference.
#include <cwchar>
#include <type_traits>
#include <vector>

#include "graphics/vxFontOLD.h"
#include "graphics/vxPaintOLD.h"
#include "output/vxDeviceSVG.h"
#include "output/vxNumberWriter.h"

namespace Velarix {

namespace {

constexpr double kDegreesPerRadian = 57.29578;

constexpr short kAlignCenter = 2;
constexpr short kAlignRight = 3;

float anchorX(const float bounds[4], short hAlignment) {
    if (hAlignment == kAlignCenter) return (bounds[0] + bounds[2]) / 2.0f;
    if (hAlignment == kAlignRight) return bounds[2];
    return bounds[0];
}

unsigned long codeOf(wchar_t c) {
    return static_cast<unsigned long>(static_cast<std::make_unsigned_t<wchar_t>>(c));
}

bool isHighSurrogate(unsigned long c) {
    return c >= 0xD800 && c <= 0xDBFF;
}

bool isLowSurrogate(unsigned long c) {
    return c >= 0xDC00 && c <= 0xDFFF;
}

void appendReference(std::wstring& out, unsigned long code) {
    wchar_t buffer[16];
    std::swprintf(buffer, 16, L"&#x%04lx;", code);
    out += buffer;
}

}  // namespace

void vxDeviceSVG::drawString2D(const std::wstring& text, const vxFontOLD& font,
                               const vxPaintOLD& paint, const float bounds[4], short hAlignment,
                               short vAlignment, float orientation) {
    if (text.empty() || drawsNothing(paint)) return;
    writeDefinition(paint, false);
    std::wstring rotation;
    if (isAngle(orientation)) {
        rotation = L"transform=\"rotate(" +
                   vxNumberWriter::generalW(orientation * kDegreesPerRadian) + L"," +
                   vxNumberWriter::generalW((bounds[0] + bounds[2]) / 2.0f) + L"," +
                   vxNumberWriter::generalW((bounds[1] + bounds[3]) / 2.0f) + L")\" ";
    }
    // A clip path is read in the user space of the element that uses it,
    // its transform included: turned text takes its clip from a group
    // around it, where the clip stands unturned.
    const std::wstring clip = rotation.empty() ? std::wstring() : clipPart();
    const std::wstring style = textStyle(font, paint, hAlignment, clip.empty());
    const std::wstring x = vxNumberWriter::generalW(anchorX(bounds, hAlignment));
    const float lineHeight = font.getLineHeight();
    float baseline = bounds[1] + lineHeight - font.getDescent();
    std::wstring s;
    if (!clip.empty()) s += L"<g style=\"" + clip + L"\" >\n";
    for (const std::wstring& line : linesOf(text)) {
        s += L"<text x=\"" + x + L"\" y=\"" + vxNumberWriter::generalW(baseline) + L"\" " +
             rotation + L"\n";
        s += style + L">\n";
        s += characterReferences(line) + L"\n";
        s += L"</text>\n";
        baseline += lineHeight;
    }
    if (!clip.empty()) s += L"</g>\n";
    document += s + L"\n";
}

// Four hexadecimal digits at least. A surrogate pair stands for one
// character and becomes one reference to it; a lone surrogate, which XML
// can't carry, becomes the replacement character.
std::wstring vxDeviceSVG::characterReferences(const std::wstring& line) {
    std::wstring out;
    for (size_t i = 0; i < line.size(); ++i) {
        unsigned long c = codeOf(line[i]);
        if (isHighSurrogate(c) && i + 1 < line.size() && isLowSurrogate(codeOf(line[i + 1]))) {
            const unsigned long low = codeOf(line[++i]);
            c = 0x10000ul + ((c - 0xD800ul) << 10) + (low - 0xDC00ul);
        } else if (isHighSurrogate(c) || isLowSurrogate(c)) {
            c = 0xFFFDul;
        }
        appendReference(out, c);
    }
    return out;
}

}  // namespace Velarix
