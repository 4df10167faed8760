// Text on the PDF device: lines of Windows-1252 codes in the document's
// font for the text's family and style, placed by that font's widths.
#include <cmath>
#include <new>

#include "graphics/vxBasicPaint.h"
#include "graphics/vxFontOLD.h"
#include "output/vxDevicePDF.h"
#include "output/vxNumberWriter.h"
#include "output/vxPDFFontABC.h"
#include "output/vxPDFFonts.h"
#include "output/vxPDFText.h"

namespace Velarix {

namespace {

constexpr wchar_t kLineBreak = 13;
constexpr short kAlignLeft = 1;
constexpr short kAlignRight = 3;

std::string number(double value) {
    return vxNumberWriter::pdf(value) + " ";
}

std::vector<std::wstring> splitLines(const std::wstring& text) {
    std::vector<std::wstring> lines(1);
    for (wchar_t c : text) {
        if (c == kLineBreak) {
            lines.emplace_back();
        } else {
            lines.back() += c;
        }
    }
    return lines;
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
    vxPDFFonts::Use use;
    try {
        use = fonts->use(font, resources);
    } catch (const std::bad_alloc&) {
        setError(vxErrRuntime::kOutOfMemory, where(L"drawString2D"));
        return;
    }
    const float size = font.getSize();
    const float lineHeight = font.getLineHeight();
    const float baseline = bounds[1] + lineHeight - font.getDescent();
    std::string s = "q " + pageState + use.name + " " + number(size) + "Tf " +
                    colorState(*paint.getColor(), false) +
                    baselineMatrix(bounds, baseline, orientation);
    float y = 0.0f;
    for (const std::wstring& line : splitLines(text)) {
        const std::vector<uint8_t> codes = vxPDFText::codesOf(line);
        if (!codes.empty()) s += lineText(line, codes, font, *use.font, bounds, hAlignment, y);
        y -= lineHeight;
    }
    block(s + "Q\r\n");
}

// One line at its place, with its underline. A font that doesn't know its
// widths is placed by the layout's measure.
std::string vxDevicePDF::lineText(const std::wstring& line, const std::vector<uint8_t>& codes,
                                  const vxFontOLD& font, const vxPDFFontABC& pdfFont,
                                  const float bounds[4], short hAlignment, float y) {
    const float size = font.getSize();
    const float width = pdfFont.hasWidths() ? pdfFont.getWidth(codes, size) : font.getWidth(line);
    const float x = lineX(bounds, hAlignment, width);
    std::string s = "BT " + number(x) + number(y) + "Td <" + vxPDFText::hexOf(codes) + "> Tj ET ";
    if (font.isUnderline()) {
        s += number(x) + number(y + pdfFont.getUnderlinePosition() * size * 0.001f) +
             number(width) + number(-pdfFont.getUnderlineThickness() * size * 0.001f) + "re f ";
    }
    return s;
}

}  // namespace Velarix
