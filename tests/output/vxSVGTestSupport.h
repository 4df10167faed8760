// Helpers of the SVG device tests: paints and strokes in one line, the
// document split into prolog and body, and the reference number form.
#pragma once

#include <locale>
#include <memory>
#include <sstream>
#include <string>

#include "graphics/vxBasicPaint.h"
#include "graphics/vxBasicStroke.h"
#include "graphics/vxFontOLD.h"
#include "output/vxDeviceSVG.h"
#include "platform/vxTextCodec.h"

namespace Velarix::test {

// How the device must write a number: a stream in its default state under
// the classic locale.
inline std::string streamed(double value) {
    std::ostringstream out;
    out.imbue(std::locale::classic());
    out << value;
    return out.str();
}

inline std::unique_ptr<vxBasicPaint> rgba(short r, short g, short b, short a = 255,
                                          short pattern = 0) {
    auto paint = std::make_unique<vxBasicPaint>(r, g, b, a);
    paint->setPatternIndex(pattern);
    return paint;
}

// A stroke that writes no stroke attributes: SVG's defaults throughout.
inline std::unique_ptr<vxBasicStroke> plainStroke(float width = 1.0f) {
    auto stroke = std::make_unique<vxBasicStroke>(width);
    stroke->setLineCap(vxStrokeOLD::kButtCap);
    stroke->setMiterLimit(4.0f);
    return stroke;
}

// The font's first baseline under a top edge, and the one `line` lines
// lower, computed as the device must.
inline float baselineOf(const vxFontOLD& font, float top, int line = 0) {
    float y = top + font.getLineHeight() - font.getDescent();
    for (int i = 0; i < line; ++i) y += font.getLineHeight();
    return y;
}

// An opened device of the size.
inline std::unique_ptr<vxDeviceSVG> openDevice(float width = 100.0f, float height = 50.0f) {
    auto device = std::make_unique<vxDeviceSVG>();
    device->setSize(width, height);
    device->open();
    return device;
}

// What follows the <svg> line up to the current end of the document.
inline std::string bodyOf(const vxDeviceSVG& device) {
    const std::string text = vxToUtf8(device.getDocument());
    const size_t start = text.find("<svg ");
    if (start == std::string::npos) return text;
    return text.substr(text.find('\n', start) + 1);
}

}  // namespace Velarix::test
