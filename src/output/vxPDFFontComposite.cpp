#include "output/vxPDFFontComposite.h"

#include <cmath>
#include <cstdio>

#include "output/vxNumberWriter.h"
#include "platform/vxTrueTypeFile.h"

namespace Velarix {

namespace {

const char kCMapStart[] =
    "/CIDInit /ProcSet findresource begin\n12 dict begin\nbegincmap\n"
    "/CIDSystemInfo << /Registry (Adobe) /Ordering (UCS) /Supplement 0 >> def\n"
    "/CMapName /Adobe-Identity-UCS def\n/CMapType 2 def\n"
    "1 begincodespacerange\n<0000> <FFFF>\nendcodespacerange\n";
const char kCMapEnd[] = "endcmap\nCMapName currentdict /CMap defineresource pop\nend\nend\n";
// A bfchar section holds at most 100 entries.
constexpr size_t kCMapSection = 100;

bool isControl(char32_t c) {
    return c < 0x20 || (c >= 0x7F && c < 0xA0);
}

std::string hex4(unsigned value) {
    char text[8];
    std::snprintf(text, sizeof text, "%04X", value & 0xFFFF);
    return text;
}

std::string whole(double value) {
    return std::to_string(std::lround(value));
}

}  // namespace

vxPDFFontComposite::vxPDFFontComposite(std::shared_ptr<const vxTrueTypeFile> file,
                                       std::shared_ptr<const std::vector<uint8_t>> program,
                                       int boldExtra)
    : mFile(std::move(file)), mProgram(std::move(program)), mBoldExtra(boldExtra) {
    mFontScalingFactor = 1000.0 / mFile->getMetrics().unitsPerEm;
    mBaseFontName = mFile->getPostScriptName() + (boldExtra > 0 ? ",Bold" : "");
}

double vxPDFFontComposite::widthOf(uint16_t glyph) const {
    const int advance = mFile->getAdvance(glyph);
    return advance > 0 ? (advance + mBoldExtra) * mFontScalingFactor : 0.0;
}

std::string vxPDFFontComposite::encode(std::wstring_view text, float size, float& width) {
    std::string hex;
    double sum = 0.0;
    for (size_t i = 0; i < text.size(); ++i) {
        std::u16string units(1, static_cast<char16_t>(text[i]));
        char32_t c = units[0];
        if (c >= 0xD800 && c <= 0xDBFF && i + 1 < text.size() && text[i + 1] >= 0xDC00 &&
            text[i + 1] <= 0xDFFF) {
            units += static_cast<char16_t>(text[++i]);
            c = 0x10000 + ((c - 0xD800) << 10) + (units[1] - 0xDC00);
        } else if (c >= 0xD800 && c <= 0xDFFF) {
            c = 0xFFFD;
        }
        if (isControl(c)) continue;
        const uint16_t glyph = mFile->getGlyph(c);
        if (glyph != 0) mGlyphs.emplace(glyph, units);
        sum += widthOf(glyph);
        hex += hex4(glyph);
    }
    width = static_cast<float>(sum * size * 0.001);
    return hex;
}

// Unique to the font, so that the table doesn't take it for another's.
std::string vxPDFFontComposite::placeholder() const {
    return "<< /Type /Font /Subtype /Type0 /BaseFont /" + mBaseFontName + " >>";
}

std::string vxPDFFontComposite::use(vxPDFResources& resources) {
    if (mName.empty()) mName = resources.add(vxPDFResources::kFont, placeholder());
    return mName;
}

void vxPDFFontComposite::finish(vxPDFResources& resources) const {
    if (mName.empty()) return;
    const std::string program =
        resources.add(vxPDFResources::kFontPart,
                      "<< /Length1 " + std::to_string(mFile->getBytes().size()) + " /Length " +
                          std::to_string(mProgram->size()) + " /Filter /FlateDecode >>",
                      *mProgram);
    const std::string descriptorName =
        resources.add(vxPDFResources::kFontPart, descriptor(program));
    const std::vector<uint8_t> map = toUnicode();
    const std::string unicode = resources.add(
        vxPDFResources::kFontPart, "<< /Length " + std::to_string(map.size()) + " >>", map);
    const std::string cidFont = resources.add(
        vxPDFResources::kFontPart,
        "<< /Type /Font /Subtype /CIDFontType2 /BaseFont /" + mBaseFontName +
            " /CIDSystemInfo << /Registry (Adobe) /Ordering (Identity) /Supplement 0 >>"
            " /FontDescriptor " +
            vxPDFResources::referenceTo(descriptorName) + " /DW " +
            vxNumberWriter::pdf(widthOf(0)) + " /W " + glyphWidths() +
            " /CIDToGIDMap /Identity >>");
    resources.replace(vxPDFResources::kFont, mName,
                      "<< /Type /Font /Subtype /Type0 /BaseFont /" + mBaseFontName +
                          " /Encoding /Identity-H /DescendantFonts [" +
                          vxPDFResources::referenceTo(cidFont) + "] /ToUnicode " +
                          vxPDFResources::referenceTo(unicode) + " >>");
}

// Runs of neighbouring glyphs share one array: "3 [500 610] 17 [600]".
std::string vxPDFFontComposite::glyphWidths() const {
    std::string s = "[";
    long previous = -2;
    for (const auto& [glyph, units] : mGlyphs) {
        if (glyph != previous + 1) {
            s += (previous < 0 ? "" : "] ") + std::to_string(glyph) + " [";
        } else {
            s += " ";
        }
        s += vxNumberWriter::pdf(widthOf(glyph));
        previous = glyph;
    }
    return s + (previous < 0 ? "]" : "]]");
}

std::string vxPDFFontComposite::descriptor(const std::string& fontFile) const {
    const vxTrueTypeMetrics& m = mFile->getMetrics();
    const double k = mFontScalingFactor;
    long flags = 4;  // symbolic: the glyphs are outside the standard Latin set
    if (m.isFixedPitch) flags |= 1;
    if (m.italicAngle != 0.0 || (m.macStyle & 2) != 0) flags |= 64;
    if (mBoldExtra > 0) flags |= 262144;
    return "<< /Type /FontDescriptor /FontName /" + mBaseFontName + " /Flags " +
           std::to_string(flags) + " /FontBBox [" + whole(m.box[0] * k) + " " +
           whole(m.box[1] * k) + " " + whole(m.box[2] * k) + " " + whole(m.box[3] * k) +
           "] /ItalicAngle " + vxNumberWriter::pdf(m.italicAngle) + " /Ascent " +
           whole(m.ascender * k) + " /Descent " + whole(m.descender * k) + " /CapHeight " +
           whole((m.capHeight > 0 ? m.capHeight : m.ascender) * k) + " /StemV " +
           (m.weightClass >= 600 || mBoldExtra > 0 ? "120" : "80") + " /FontFile2 " +
           vxPDFResources::referenceTo(fontFile) + " >>";
}

std::vector<uint8_t> vxPDFFontComposite::toUnicode() const {
    std::string s = kCMapStart;
    size_t left = mGlyphs.size();
    auto glyph = mGlyphs.begin();
    while (left > 0) {
        const size_t count = left < kCMapSection ? left : kCMapSection;
        s += std::to_string(count) + " beginbfchar\n";
        for (size_t i = 0; i < count; ++i, ++glyph) {
            s += "<" + hex4(glyph->first) + "> <";
            for (char16_t unit : glyph->second) s += hex4(unit);
            s += ">\n";
        }
        s += "endbfchar\n";
        left -= count;
    }
    s += kCMapEnd;
    return std::vector<uint8_t>(s.begin(), s.end());
}

}  // namespace Velarix
