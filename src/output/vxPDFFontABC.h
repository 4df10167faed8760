// A font of a PDF document: its base font name, the widths it gives the
// codes of a text, and the objects that carry it into the file.
#pragma once

#include <cstdint>
#include <ostream>
#include <string>
#include <vector>

#include "output/vxPDFResources.h"

namespace Velarix {

class vxPDFFontABC {
public:
    virtual ~vxPDFFontABC() = default;

    const std::string& getBaseFontName() const { return mBaseFontName; }

    // Whether the font knows the widths of its codes; one that doesn't is
    // placed by the layout's measure.
    virtual bool hasWidths() const = 0;
    // The width of one code in 1/1000 of the size.
    virtual double getCodeWidth(uint8_t code) const = 0;
    // The width of the codes at the size: the sum of their widths times
    // size * 0.001.
    float getWidth(const std::vector<uint8_t>& codes, float size) const;
    // Where the underline lies below the baseline, and how thick it is, in
    // 1/1000 of the size.
    virtual float getUnderlinePosition() const = 0;
    virtual float getUnderlineThickness() const = 0;

    // Adds the font's objects and answers the name of the font resource.
    // Throws std::bad_alloc.
    virtual std::string addTo(vxPDFResources& resources) const = 0;

    virtual void dump(short depth, std::ostream& out) const = 0;

protected:
    std::string mBaseFontName;
};

}  // namespace Velarix
