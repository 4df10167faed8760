#include "output/vxPDFFontStandard.h"

#include "host/vxLog.h"

namespace Velarix {

float vxPDFFontABC::getWidth(const std::vector<uint8_t>& codes, float size) const {
    double sum = 0.0;
    for (uint8_t code : codes) sum += getCodeWidth(code);
    return static_cast<float>(sum * size * 0.001);
}

vxPDFFontStandard::vxPDFFontStandard(const vxPDFStandardFont& font) : mFont(font) {
    mBaseFontName = font.name;
}

double vxPDFFontStandard::getCodeWidth(uint8_t code) const {
    if (mFont.widths == nullptr || code < 32) return 0.0;
    return mFont.widths[code - 32];
}

std::string vxPDFFontStandard::addTo(vxPDFResources& resources) const {
    std::string s = "<< /Type /Font /Subtype /Type1 /BaseFont /" + mBaseFontName;
    if (!mFont.isSymbolic) s += " /Encoding /WinAnsiEncoding";
    return resources.add(vxPDFResources::kFont, s + " >>");
}

void vxPDFFontStandard::dump(short depth, std::ostream& out) const {
    (void)depth;
    vxDumpLine(out, "std::string mBaseFontName:  ", mBaseFontName);
    vxDumpLine(out, "std::string mMapToUnicode:  ", mMapToUnicode);
}

}  // namespace Velarix
