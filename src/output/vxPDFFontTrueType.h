// A TrueType font of a PDF document: the widths of its Windows-1252 codes
// from the font's own metrics, a descriptor, and the font program,
// deflated, where the font's licence allows embedding.
//
// Where the file lacks the style asked for (a regular file for bold), the
// base font name gets ",Bold", ",Italic" or ",BoldItalic", and simulated
// bold widens every advance as the layout's measure does, so that a text
// is as wide in the document as it was laid out.
#pragma once

#include <array>
#include <memory>

#include "output/vxPDFFontABC.h"
#include "output/vxPDFTextTables.h"

namespace Velarix {

class vxTrueTypeFile;

class vxPDFFontTrueType : public vxPDFFontABC {
public:
    enum AddStyle : short { kNoStyle = 0, kAddBold = 1, kAddItalic = 2, kAddBoldItalic = 3 };

    // `program` is the file deflated, shared by the documents that embed
    // it; null when it couldn't be had.
    vxPDFFontTrueType(std::shared_ptr<const vxTrueTypeFile> file, bool isBold, bool isItalic,
                      int boldExtra, std::shared_ptr<const std::vector<uint8_t>> program);

    bool hasWidths() const override { return true; }
    double getCodeWidth(uint8_t code) const override;
    float getUnderlinePosition() const override;
    float getUnderlineThickness() const override;
    std::string addTo(vxPDFResources& resources) const override;
    void dump(short depth, std::ostream& out) const override;

    // Embedded: allowed by the licence, and the program at hand and complete.
    bool isEmbedded() const;
    short getAddStyleFlag() const { return mAddStyleFlag; }

private:
    double scaled(double units) const { return units * mFontScalingFactor; }
    std::string descriptor(const std::string& fontFile) const;
    std::string widthsArray() const;
    long flags() const;

    std::shared_ptr<const vxTrueTypeFile> mFile;
    std::shared_ptr<const std::vector<uint8_t>> mProgram;
    std::array<double, kNumOfWidths> mWidths{};
    double mFontScalingFactor = 1.0;
    short mAddStyleFlag = kNoStyle;
    std::string mMapToUnicode;
};

}  // namespace Velarix
