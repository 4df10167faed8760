#include "output/vxPDFFontTrueType.h"

#include <cmath>

#include "host/vxLog.h"
#include "output/vxNumberWriter.h"
#include "output/vxPDFText.h"
#include "platform/vxTrueTypeFile.h"

namespace Velarix {

namespace {

constexpr int kFirstCode = 32;

// The character of a Windows-1252 code; 0 for the codes that hold none
// and for the control characters, which take no width.
char16_t characterOf(int code) {
    if (code == 127) return 0;
    if (code >= 128 && code < 160) return kWinAnsiHighCharacters[code - 128];
    return static_cast<char16_t>(code);
}

std::string number(double value) {
    return vxNumberWriter::pdf(value);
}

std::string whole(double value) {
    return std::to_string(std::lround(value));
}

}  // namespace

vxPDFFontTrueType::vxPDFFontTrueType(std::shared_ptr<const vxTrueTypeFile> file, bool isBold,
                                     bool isItalic, int boldExtra,
                                     std::shared_ptr<const std::vector<uint8_t>> program)
    : mFile(std::move(file)), mProgram(std::move(program)) {
    const vxTrueTypeMetrics& m = mFile->getMetrics();
    mFontScalingFactor = 1000.0 / m.unitsPerEm;
    const bool fileIsBold = (m.macStyle & 1) != 0 || m.weightClass >= 600;
    const bool fileIsItalic = (m.macStyle & 2) != 0 || m.italicAngle != 0.0;
    if (isBold && !fileIsBold) mAddStyleFlag |= kAddBold;
    if (isItalic && !fileIsItalic) mAddStyleFlag |= kAddItalic;
    static const char* const kSuffixes[] = {"", ",Bold", ",Italic", ",BoldItalic"};
    mBaseFontName = mFile->getPostScriptName() + kSuffixes[mAddStyleFlag];
    for (int i = 0; i < kNumOfWidths; ++i) {
        const char16_t c = characterOf(i + kFirstCode);
        if (c == 0) continue;
        const int advance = mFile->getAdvance(mFile->getGlyph(c));
        mWidths[i] = advance > 0 ? scaled(advance + boldExtra) : 0.0;
    }
}

double vxPDFFontTrueType::getCodeWidth(uint8_t code) const {
    return code < kFirstCode ? 0.0 : mWidths[code - kFirstCode];
}

float vxPDFFontTrueType::getUnderlinePosition() const {
    const int position = mFile->getMetrics().underlinePosition;
    return position != 0 ? static_cast<float>(scaled(position)) : vxPDFText::kUnderlinePosition;
}

float vxPDFFontTrueType::getUnderlineThickness() const {
    const int thickness = mFile->getMetrics().underlineThickness;
    return thickness > 0 ? static_cast<float>(scaled(thickness)) : vxPDFText::kUnderlineThickness;
}

bool vxPDFFontTrueType::isEmbedded() const {
    return mProgram && !mProgram->empty() && mFile->isEmbeddingAllowed() &&
           mFile->hasAllRequiredTablesForFontEmbedding() && !mFile->isCollection();
}

std::string vxPDFFontTrueType::addTo(vxPDFResources& resources) const {
    std::string fontFile;
    if (isEmbedded()) {
        fontFile =
            resources.add(vxPDFResources::kFontPart,
                          "<< /Length1 " + std::to_string(mFile->getBytes().size()) + " /Length " +
                              std::to_string(mProgram->size()) + " /Filter /FlateDecode >>",
                          *mProgram);
    }
    const std::string descriptorName =
        resources.add(vxPDFResources::kFontPart, descriptor(fontFile));
    std::string s = "<< /Type /Font /Subtype /TrueType /BaseFont /" + mBaseFontName;
    s += " /FirstChar 32 /LastChar 255 /Widths " + widthsArray();
    s += " /FontDescriptor " + vxPDFResources::referenceTo(descriptorName);
    if (!mFile->isSymbolic()) s += " /Encoding /WinAnsiEncoding";
    return resources.add(vxPDFResources::kFont, s + " >>");
}

std::string vxPDFFontTrueType::widthsArray() const {
    std::string s = "[";
    for (int i = 0; i < kNumOfWidths; ++i) s += (i == 0 ? "" : " ") + number(mWidths[i]);
    return s + "]";
}

// Non-symbolic text fonts use the standard Latin character set; symbolic
// ones their own. Italic, fixed pitch and simulated bold add their bits.
long vxPDFFontTrueType::flags() const {
    const vxTrueTypeMetrics& m = mFile->getMetrics();
    long f = mFile->isSymbolic() ? 4 : 32;
    if (m.isFixedPitch) f |= 1;
    if (m.italicAngle != 0.0 || (m.macStyle & 2) != 0 || (mAddStyleFlag & kAddItalic) != 0) {
        f |= 64;
    }
    if ((mAddStyleFlag & kAddBold) != 0) f |= 262144;
    return f;
}

std::string vxPDFFontTrueType::descriptor(const std::string& fontFile) const {
    const vxTrueTypeMetrics& m = mFile->getMetrics();
    const bool isBold = m.weightClass >= 600 || (mAddStyleFlag & kAddBold) != 0;
    std::string s = "<< /Type /FontDescriptor /FontName /" + mBaseFontName;
    s += " /Flags " + std::to_string(flags()) + " /FontBBox [" + whole(scaled(m.box[0])) + " " +
         whole(scaled(m.box[1])) + " " + whole(scaled(m.box[2])) + " " + whole(scaled(m.box[3])) +
         "]";
    s += " /ItalicAngle " + number(m.italicAngle) + " /Ascent " + whole(scaled(m.ascender)) +
         " /Descent " + whole(scaled(m.descender));
    s += " /CapHeight " + whole(scaled(m.capHeight > 0 ? m.capHeight : m.ascender));
    s += std::string(" /StemV ") + (isBold ? "120" : "80");
    if (m.lineGap > 0) s += " /Leading " + whole(scaled(m.lineGap));
    if (m.xHeight > 0) s += " /XHeight " + whole(scaled(m.xHeight));
    if (m.avgCharWidth > 0) s += " /AvgWidth " + whole(scaled(m.avgCharWidth));
    s += " /MissingWidth " + number(scaled(mFile->getAdvance(0)));
    if (!fontFile.empty()) s += " /FontFile2 " + vxPDFResources::referenceTo(fontFile);
    return s + " >>";
}

void vxPDFFontTrueType::dump(short depth, std::ostream& out) const {
    (void)depth;
    vxDumpLine(out, "std::string mBaseFontName:  ", mBaseFontName);
    vxDumpLine(out, "double mFontScalingFactor:  ", mFontScalingFactor);
    vxDumpLine(out, "bool mIsEmbeddingIntended:  ", mProgram != nullptr);
    vxDumpLine(out, "bool mIsEmbeddingAllowed:   ", mFile->isEmbeddingAllowed());
    vxDumpLine(out, "mAddStyleFlag:              ", mAddStyleFlag);
    vxDumpLine(out, "std::string mMapToUnicode:  ", mMapToUnicode);
}

}  // namespace Velarix
