#include "platform/vxFontFace.h"

#include <algorithm>

#include <ft2build.h>
#include FT_FREETYPE_H
#include FT_ADVANCES_H
#include FT_TRUETYPE_TABLES_H

namespace Velarix {

namespace {

constexpr char32_t kReplacement = 0xFFFD;

bool isControl(char32_t c) {
    return c < 0x20 || (c >= 0x7F && c < 0xA0);
}

std::string textOrEmpty(const char* text) {
    return text != nullptr ? std::string(text) : std::string();
}

bool isHighSurrogate(wchar_t c) {
    return c >= 0xD800 && c <= 0xDBFF;
}

bool isLowSurrogate(wchar_t c) {
    return c >= 0xDC00 && c <= 0xDFFF;
}

// 2 where a surrogate pair starts (or ends) at the position, else 1.
std::size_t codePointUnitsAt(std::wstring_view text, std::size_t i) {
    return isHighSurrogate(text[i]) && i + 1 < text.size() && isLowSurrogate(text[i + 1]) ? 2 : 1;
}

std::size_t codePointUnitsBefore(std::wstring_view text, std::size_t end) {
    return end >= 2 && isLowSurrogate(text[end - 1]) && isHighSurrogate(text[end - 2]) ? 2 : 1;
}

// A lone surrogate stays as it is; its advance is that of U+FFFD.
char32_t codePointAt(std::wstring_view text, std::size_t i, std::size_t units) {
    const char32_t c = static_cast<char32_t>(text[i]);
    if (units == 1) return c;
    return 0x10000 + ((c - 0xD800) << 10) + (static_cast<char32_t>(text[i + 1]) - 0xDC00);
}

}  // namespace

std::unique_ptr<vxFontFace> vxFontFace::open(FT_LibraryRec_* library, const std::string& file,
                                             int index, bool syntheticBold, int& status) {
    FT_Face ftFace = nullptr;
    status = FT_New_Face(library, file.c_str(), index, &ftFace);
    if (status != 0) return nullptr;
    if (!FT_IS_SCALABLE(ftFace) || ftFace->units_per_EM == 0) {
        FT_Done_Face(ftFace);
        status = vxFontStatus::kNoOutlines;
        return nullptr;
    }

    std::unique_ptr<vxFontFace> result(new vxFontFace());
    result->face = ftFace;
    result->file = file;
    result->faceIndex = index;
    result->familyName = textOrEmpty(ftFace->family_name);
    result->styleName = textOrEmpty(ftFace->style_name);
    result->postScriptName = textOrEmpty(FT_Get_Postscript_Name(ftFace));
    result->syntheticBold = syntheticBold;
    result->unitsPerEm = ftFace->units_per_EM;

    // A font with only a symbol encoding keeps the glyphs of the codes 0x20
    // to 0xFF at U+F020 to U+F0FF; see loadAdvance.
    if (FT_Select_Charmap(ftFace, FT_ENCODING_UNICODE) != 0 &&
        FT_Select_Charmap(ftFace, FT_ENCODING_MS_SYMBOL) == 0) {
        result->isSymbolFont = true;
    }

    int ascender = ftFace->ascender;
    int descender = -ftFace->descender;
    int lineGap = std::max(0, ftFace->height - ftFace->ascender + ftFace->descender);
    if (const auto* hhea =
            static_cast<const TT_HoriHeader*>(FT_Get_Sfnt_Table(ftFace, FT_SFNT_HHEA));
        hhea != nullptr && (hhea->Ascender != 0 || hhea->Descender != 0)) {
        ascender = hhea->Ascender;
        descender = -hhea->Descender;
        lineGap = std::max<int>(0, hhea->Line_Gap);
    }
    result->cellAscent = ascender;
    result->cellDescent = descender;
    if (const auto* os2 = static_cast<const TT_OS2*>(FT_Get_Sfnt_Table(ftFace, FT_SFNT_OS2));
        os2 != nullptr && os2->version != 0xFFFF &&
        (os2->usWinAscent != 0 || os2->usWinDescent != 0)) {
        result->cellAscent = os2->usWinAscent;
        result->cellDescent = os2->usWinDescent;
    }
    result->lineSpacing =
        std::max(result->cellAscent + result->cellDescent, ascender + descender + lineGap);

    // Simulated bold widens each glyph by a 24th of the em, as FreeType's
    // emboldening does when the glyph is drawn.
    if (syntheticBold) result->boldExtra = (result->unitsPerEm + 12) / 24;

    result->pages.resize(kNumOfPages);
    return result;
}

vxFontFace::~vxFontFace() {
    if (face != nullptr) FT_Done_Face(face);
}

vxFontMetrics vxFontFace::getMetrics(float size) const {
    const double scale = static_cast<double>(size) / unitsPerEm;
    vxFontMetrics metrics;
    metrics.ascent = static_cast<float>(cellAscent * scale);
    metrics.descent = static_cast<float>(cellDescent * scale);
    metrics.lineHeight = static_cast<float>(lineSpacing * scale);
    metrics.stringHeight = metrics.ascent + metrics.descent;
    metrics.leading = metrics.lineHeight - metrics.stringHeight;
    return metrics;
}

int vxFontFace::getAdvance(char32_t codePoint) {
    if (codePoint >= 0x110000) codePoint = kReplacement;
    std::unique_ptr<Page>& page = pages[codePoint / kPageSize];
    if (!page) {
        page = std::make_unique<Page>();
        page->fill(-1);
    }
    int32_t& entry = (*page)[codePoint % kPageSize];
    if (entry < 0) entry = loadAdvance(codePoint);
    return entry;
}

int vxFontFace::loadAdvance(char32_t codePoint) {
    if (isControl(codePoint)) return 0;
    if (codePoint >= 0xD800 && codePoint <= 0xDFFF) codePoint = kReplacement;
    FT_UInt glyph = FT_Get_Char_Index(face, codePoint);
    if (glyph == 0 && isSymbolFont && codePoint < 0x100) {
        glyph = FT_Get_Char_Index(face, codePoint | 0xF000);
    }
    FT_Fixed advance = 0;
    if (FT_Get_Advance(face, glyph, FT_LOAD_NO_SCALE | FT_LOAD_IGNORE_TRANSFORM, &advance) != 0) {
        return 0;
    }
    if (advance <= 0) return 0;
    return static_cast<int>(advance) + boldExtra;
}

double vxFontFace::getAdvance(std::wstring_view text) {
    long long sum = 0;
    const std::size_t n = text.size();
    for (std::size_t i = 0; i < n;) {
        const std::size_t units = codePointUnitsAt(text, i);
        sum += getAdvance(codePointAt(text, i, units));
        i += units;
    }
    return static_cast<double>(sum);
}

float vxFontFace::widthOf(long long advance, float size) const {
    return static_cast<float>(static_cast<double>(advance) * size / unitsPerEm);
}

float vxFontFace::getWidth(std::wstring_view text, float size) {
    return widthOf(static_cast<long long>(getAdvance(text)), size);
}

std::size_t vxFontFace::getFittingLength(std::wstring_view text, float size, float limit) {
    long long sum = 0;
    std::size_t fitting = 0;
    const std::size_t n = text.size();
    for (std::size_t i = 0; i < n;) {
        const std::size_t units = codePointUnitsAt(text, i);
        sum += getAdvance(codePointAt(text, i, units));
        if (widthOf(sum, size) > limit) break;
        i += units;
        fitting = i;
    }
    return fitting;
}

std::size_t vxFontFace::getFittingTailLength(std::wstring_view text, float size, float limit) {
    long long sum = 0;
    std::size_t start = text.size();
    while (start > 0) {
        const std::size_t units = codePointUnitsBefore(text, start);
        sum += getAdvance(codePointAt(text, start - units, units));
        if (widthOf(sum, size) > limit) break;
        start -= units;
    }
    return text.size() - start;
}

float vxFontFace::getWidth(char32_t codePoint, float size) {
    return static_cast<float>(static_cast<double>(getAdvance(codePoint)) * size / unitsPerEm);
}

}  // namespace Velarix
