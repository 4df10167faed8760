// Text on the PDF device: lines of Windows-1252 codes in the document's
// font for the text's family and style, placed by that font's widths.
#include <cmath>
#include <new>

#include "graphics/vxBasicPaint.h"
#include "graphics/vxFontOLD.h"
#include "output/vxDevicePDF.h"
#include "output/vxNumberWriter.h"
#include "output/vxPDFFontABC.h"
#include "output/vxPDFFontComposite.h"
#include "output/vxPDFFonts.h"
#include "output/vxPDFText.h"

namespace Velarix {

namespace {

constexpr short kAlignLeft = 1;
constexpr short kAlignRight = 3;

std::string number(double value) {
    return vxNumberWriter::pdf(value) + " ";
}

float lineX(const float bounds[4], short hAlignment, float width) {
    if (hAlignment == kAlignLeft) return bounds[0];
    if (hAlignment == kAlignRight) return bounds[2] - width;
    return (bounds[0] + bounds[2] - width) * 0.5f;
}

// The y flip about the baseline and, with a rotation by a, the turn about
// the centre of the bounds in one matrix.
std::string baselineMatrix(const float bounds[4], float baseline, float orientation) {
    if (!vxDevice::isAngle(orientation)) return "1 0 0 -1 0 " + number(baseline) + "cm ";
    const double s = std::sin(orientation), c = std::cos(orientation);
    const double xc = (bounds[0] + bounds[2]) * 0.5, yc = (bounds[1] + bounds[3]) * 0.5;
    const double e = (yc - baseline) * s + (1.0 - c) * xc;
    const double f = (yc - xc * s) - (yc - baseline) * c;
    return number(c) + number(s) + number(s) + number(-c) + number(e) + number(f) + "cm ";
}

}  // namespace

void vxDevicePDF::drawString2D(const std::wstring& text, const vxFontOLD& font,
                               const vxPaintOLD& paint, const float bounds[4], short hAlignment,
                               short vAlignment, float orientation) {
    if (text.empty() || drawsNothing(paint) || !paint.getColor()) return;
    try {
        const vxPDFFonts::Use use = fonts->use(font, resources);
        const float lineHeight = font.getLineHeight();
        const float baseline = bounds[1] + lineHeight - font.getDescent();
        const std::string selection = use.name + " " + number(font.getSize()) + "Tf ";
        std::string s = "q " + pageState + selection + colorState(*paint.getColor(), false) +
                        baselineMatrix(bounds, baseline, orientation);
        float y = 0.0f;
        for (const std::wstring& line : linesOf(text)) {
            if (!line.empty()) {
                const std::string placed = otherLineText(line, font, bounds, hAlignment, y);
                s += placed.empty() ? lineText(line, font, *use.font, bounds, hAlignment, y)
                                    : placed + selection;
            }
            y -= lineHeight;
        }
        block(s + "Q\r\n");
    } catch (const std::bad_alloc&) {
        setError(vxErrRuntime::kOutOfMemory, where(L"drawString2D"));
    }
}

// One line in Windows-1252 codes at its place, with its underline. A font
// that doesn't know its widths is placed by the layout's measure.
std::string vxDevicePDF::lineText(const std::wstring& line, const vxFontOLD& font,
                                  const vxPDFFontABC& pdfFont, const float bounds[4],
                                  short hAlignment, float y) {
    const std::vector<uint8_t> codes = vxPDFText::codesOf(line);
    const float size = font.getSize();
    const float width = pdfFont.hasWidths() ? pdfFont.getWidth(codes, size) : font.getWidth(line);
    const float x = lineX(bounds, hAlignment, width);
    return "BT " + number(x) + number(y) + "Td <" + vxPDFText::hexOf(codes) + "> Tj ET " +
           underline(font, pdfFont.getUnderlinePosition(), pdfFont.getUnderlineThickness(), x, y,
                     width);
}

// A line with characters beyond the code page, in the composite font of
// the layout's file, which selects itself; the caller selects the text's
// own font again after it. Empty when the line fits the code page or no
// composite font can be had.
std::string vxDevicePDF::otherLineText(const std::wstring& line, const vxFontOLD& font,
                                       const float bounds[4], short hAlignment, float y) {
    if (vxPDFText::isWinAnsi(line)) return std::string();
    vxPDFFontComposite* composite = fonts->compositeFor(font);
    if (composite == nullptr) return std::string();
    const float size = font.getSize();
    float width = 0.0f;
    const std::string glyphs = composite->encode(line, size, width);
    const float x = lineX(bounds, hAlignment, width);
    return "BT " + composite->use(resources) + " " + number(size) + "Tf " + number(x) + number(y) +
           "Td <" + glyphs + "> Tj ET " +
           underline(font, vxPDFText::kUnderlinePosition, vxPDFText::kUnderlineThickness, x, y,
                     width);
}

std::string vxDevicePDF::underline(const vxFontOLD& font, float position, float thickness, float x,
                                   float y, float width) {
    if (!font.isUnderline()) return std::string();
    const float size = font.getSize();
    return number(x) + number(y + position * size * 0.001f) + number(width) +
           number(-thickness * size * 0.001f) + "re f ";
}

}  // namespace Velarix
