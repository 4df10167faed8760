// Text on the raster device, drawn glyph by glyph with the font face that
// measured it.
#include <cairo-ft.h>

#include <cmath>

#include "graphics/vxFontOLD.h"
#include "graphics/vxPaintOLD.h"
#include "output/vxDeviceGDIPlus.h"
#include "platform/vxFontFace.h"

namespace Velarix {

namespace {

constexpr char32_t kReplacement = 0xFFFD;
constexpr short kAlignCenter = 2;
constexpr short kAlignRight = 3;

// Control characters take no room and show nothing, as the measure has it.
bool isControl(char32_t c) {
    return c < 0x20 || (c >= 0x7F && c < 0xA0);
}

// The code point at `i`, moving `i` past a surrogate pair; a lone
// surrogate is the replacement character.
char32_t codePointAt(const std::wstring& text, size_t& i) {
    char32_t c = static_cast<char32_t>(text[i]);
    if (c >= 0xD800 && c <= 0xDBFF && i + 1 < text.size()) {
        const char32_t next = static_cast<char32_t>(text[i + 1]);
        if (next >= 0xDC00 && next <= 0xDFFF) {
            ++i;
            return 0x10000 + ((c - 0xD800) << 10) + (next - 0xDC00);
        }
    }
    if ((c >= 0xD800 && c <= 0xDFFF) || c >= 0x110000) return kReplacement;
    return c;
}

// A font that only has a symbol encoding keeps the glyphs of the codes
// 0x20 to 0xFF at 0xF020 to 0xF0FF.
unsigned long glyphIndexOf(FT_Face face, char32_t c) {
    unsigned long index = FT_Get_Char_Index(face, c);
    if (index == 0 && c < 0x100 && face->charmap != nullptr &&
        face->charmap->encoding == FT_ENCODING_MS_SYMBOL) {
        index = FT_Get_Char_Index(face, c | 0xF000);
    }
    return index;
}

// The advance of a glyph at the size: fitted to whole pixels, as glyph
// metrics are unless they are fractional.
double advanceAt(int advance, double scale, bool isFractional) {
    const double pixels = advance * scale;
    return isFractional ? pixels : std::round(pixels);
}

}  // namespace

// Lines as on SVG: the x of the alignment, the first baseline at the top
// of the bounds plus the line height minus the descent, each further line
// one line height lower. A rotation turns the block about the centre of
// the bounds.
void vxDeviceGDIPlus::drawString2D(const std::wstring& text, const vxFontOLD& font,
                                   const vxPaintOLD& paint, const float bounds[4], short hAlignment,
                                   short vAlignment, float orientation) {
    if (!isDrawing() || text.empty() || drawsNothing(paint)) return;
    const float size = font.getSize();
    if (!(size > 0.0f) || !std::isfinite(size)) return;
    vxCairoFontFaces::Entry entry;
    if (!setUpFont(font, entry)) return;
    if (!setUpBrush(paint, bounds, true)) return;
    cairo_t* c = cr.get();
    beginShape();
    cairo_matrix_t plain;
    cairo_get_matrix(c, &plain);
    if (isAngle(orientation)) {
        const double cx = (bounds[0] + bounds[2]) / 2.0, cy = (bounds[1] + bounds[3]) / 2.0;
        cairo_translate(c, cx, cy);
        cairo_rotate(c, orientation);
        cairo_translate(c, -cx, -cy);
    }
    const float lineHeight = font.getLineHeight();
    double baseline = bounds[1] + lineHeight - font.getDescent();
    for (const std::wstring& line : linesOf(text)) {
        const bool isAligned = hAlignment == kAlignCenter || hAlignment == kAlignRight;
        const double width =
            isAligned || font.isUnderline() ? lineWidth(*entry.face, line, size) : 0.0;
        double x = bounds[0];
        if (hAlignment == kAlignCenter) x = (bounds[0] + bounds[2]) / 2.0 - width / 2.0;
        if (hAlignment == kAlignRight) x = bounds[2] - width;
        showLine(*entry.face, line, x, baseline, size);
        if (font.isUnderline()) underline(*entry.face, x, baseline, width, size);
        baseline += lineHeight;
    }
    cairo_set_matrix(c, &plain);
    endShape();
    checkStatus(L"drawString2D");
}

bool vxDeviceGDIPlus::setUpFont(const vxFontOLD& font, vxCairoFontFaces::Entry& entry) {
    entry = fontFaces.find(font.getName(), font.getStyle());
    if (!entry.cairoFace) {
        fail(vxErrScript::kFontName, L"drawString2D", 1, font.getName());
        return false;
    }
    cairo_t* c = cr.get();
    if (entry.cairoFace != currentFontFace) {
        cairo_set_font_face(c, entry.cairoFace);
        currentFontFace = entry.cairoFace;
    }
    if (font.getSize() != currentFontSize) {
        currentFontSize = font.getSize();
        cairo_set_font_size(c, currentFontSize);
    }
    setUpFontMetrics();
    return true;
}

// cairo's own metrics of the font follow the device's choice, which a
// layer may change between two texts.
void vxDeviceGDIPlus::setUpFontMetrics() {
    const cairo_hint_metrics_t metrics =
        getUseFractionalMetrics() ? CAIRO_HINT_METRICS_OFF : CAIRO_HINT_METRICS_ON;
    cairo_font_options_t* options = cairo_font_options_create();
    cairo_get_font_options(cr.get(), options);
    if (cairo_font_options_get_hint_metrics(options) != metrics) {
        cairo_font_options_set_hint_metrics(options, metrics);
        cairo_set_font_options(cr.get(), options);
    }
    cairo_font_options_destroy(options);
}

double vxDeviceGDIPlus::lineWidth(vxFontFace& face, const std::wstring& line, float size) const {
    const double scale = static_cast<double>(size) / face.getUnitsPerEm();
    double width = 0.0;
    for (size_t i = 0; i < line.size(); ++i) {
        width += advanceAt(face.getAdvance(codePointAt(line, i)), scale, getUseFractionalMetrics());
    }
    return width;
}

// Each glyph where the advances before it end: the advances of the
// measure, so that the line takes the width the layout gave it, or, with
// metrics that aren't fractional, each of them fitted to whole pixels.
void vxDeviceGDIPlus::showLine(vxFontFace& face, const std::wstring& line, double x,
                               double baseline, float size) {
    const double scale = static_cast<double>(size) / face.getUnitsPerEm();
    const bool isFractional = getUseFractionalMetrics();
    FT_Face ftFace = face.getFTFace();
    glyphs.clear();
    double pen = x;
    for (size_t i = 0; i < line.size(); ++i) {
        const char32_t c = codePointAt(line, i);
        if (!isControl(c)) glyphs.push_back({glyphIndexOf(ftFace, c), pen, baseline});
        pen += advanceAt(face.getAdvance(c), scale, isFractional);
    }
    if (!glyphs.empty())
        cairo_show_glyphs(cr.get(), glyphs.data(), static_cast<int>(glyphs.size()));
}

// A bar under the line where the font puts its underline, as thick as the
// font says; a font that says nothing gets a bar of a 14th of the size a
// 10th of the size below the baseline.
void vxDeviceGDIPlus::underline(vxFontFace& face, double x, double baseline, double width,
                                float size) {
    const FT_Face ftFace = face.getFTFace();
    const double scale = static_cast<double>(size) / face.getUnitsPerEm();
    double thickness = ftFace->underline_thickness * scale;
    double below = -ftFace->underline_position * scale;
    if (!(thickness > 0.0)) {
        thickness = size / 14.0;
        below = size / 10.0;
    }
    cairo_t* c = cr.get();
    cairo_new_path(c);
    cairo_rectangle(c, x, baseline + below - thickness / 2.0, width, thickness);
    cairo_fill(c);
}

}  // namespace Velarix
