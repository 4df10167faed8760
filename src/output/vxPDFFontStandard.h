// One of the standard fonts that every PDF reader holds: written by name,
// without widths, descriptor or font program.
#pragma once

#include "output/vxPDFFontABC.h"
#include "output/vxPDFFontTables.h"
#include "output/vxPDFText.h"

namespace Velarix {

class vxPDFFontStandard : public vxPDFFontABC {
public:
    explicit vxPDFFontStandard(const vxPDFStandardFont& font);

    bool hasWidths() const override { return mFont.widths != nullptr; }
    double getCodeWidth(uint8_t code) const override;
    float getUnderlinePosition() const override { return vxPDFText::kUnderlinePosition; }
    float getUnderlineThickness() const override { return vxPDFText::kUnderlineThickness; }
    std::string addTo(vxPDFResources& resources) const override;
    void dump(short depth, std::ostream& out) const override;

private:
    const vxPDFStandardFont& mFont;
    std::string mMapToUnicode;
};

}  // namespace Velarix
