#include <string>

#include "output/vxPDFFontTables.h"
#include "output/vxPDFFontWidthTables.h"

namespace Velarix {

namespace {

// Courier sets every glyph 600 wide; the codes without a glyph have none.
struct CourierWidths {
    short values[kNumOfWidths];
    constexpr CourierWidths() : values() {
        for (int i = 0; i < kNumOfWidths; ++i) {
            const int code = i + 32;
            const bool isEmpty = code == 127 || code == 129 || code == 141 || code == 143 ||
                                 code == 144 || code == 157;
            values[i] = isEmpty ? 0 : 600;
        }
    }
};
constexpr CourierWidths kCourier;

}  // namespace

const vxPDFStandardFont kStandardFonts[kNumOfStandardFonts] = {
    {"courier", "Courier", {-166, -225, 1000, 931}, kCourier.values, false},
    {"courierB", "Courier-Bold", {-170, -228, 1003, 962}, kCourier.values, false},
    {"courierI", "Courier-Oblique", {-170, -225, 1116, 931}, kCourier.values, false},
    {"courierBI", "Courier-BoldOblique", {-174, -228, 1114, 962}, kCourier.values, false},
    {"helvetica", "Helvetica", {-168, -218, 1000, 898}, kHelveticaWidths, false},
    {"helveticaB", "Helvetica-Bold", {-168, -218, 1000, 935}, kHelveticaBoldWidths, false},
    {"helveticaI", "Helvetica-Oblique", {-169, -217, 1010, 883}, kHelveticaWidths, false},
    {"helveticaBI", "Helvetica-BoldOblique", {-200, -218, 996, 921}, kHelveticaBoldWidths, false},
    // Times-Roman keeps the box of plain Helvetica on purpose.
    {"times", "Times-Roman", {-168, -218, 1000, 898}, kTimesRomanWidths, false},
    {"timesB", "Times-Bold", {-113, -250, 749, 801}, kTimesBoldWidths, false},
    {"timesI", "Times-Italic", {-28, -250, 742, 805}, kTimesItalicWidths, false},
    {"timesBI", "Times-BoldItalic", {-56, -250, 868, 801}, kTimesBoldItalicWidths, false},
    {"symbol", "Symbol", {-180, -293, 1090, 1010}, kSymbolWidths, true},
    {"zapfdingbats", "ZapfDingbats", {-1, -143, 981, 820}, kZapfDingbatsWidths, true},
};

const vxPDFStandardFont* vxFindStandardFont(const std::string& key) {
    for (const vxPDFStandardFont& font : kStandardFonts) {
        if (key == font.key) return &font;
    }
    return nullptr;
}

}  // namespace Velarix
