// Helpers of the PDF device tests: a device drawn in one call, and the
// finished file taken apart the way a reader does, from the trailer back.
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "graphics/vxBasicPaint.h"
#include "graphics/vxBasicStroke.h"
#include "output/vxDevicePDF.h"

namespace Velarix::test::pdf {

inline std::unique_ptr<vxBasicPaint> rgba(short r, short g, short b, short a = 255,
                                          short pattern = 0) {
    auto paint = std::make_unique<vxBasicPaint>(r, g, b, a);
    paint->setPatternIndex(pattern);
    return paint;
}

// A stroke that needs no stroke state: width 1, butt caps, miter joins,
// limit 10.
inline std::unique_ptr<vxBasicStroke> plainStroke(float width = 1.0f) {
    auto stroke = std::make_unique<vxBasicStroke>(width);
    stroke->setLineCap(vxStrokeOLD::kButtCap);
    stroke->setLineJoin(vxStrokeOLD::kMiterJoin);
    stroke->setMiterLimit(10.0f);
    return stroke;
}

inline void fillRect(vxDevice& device, const vxPaintOLD& paint, float l, float t, float r,
                     float b) {
    const float bounds[4] = {l, t, r, b};
    device.fillPolygon2D(paint, {l, r, r, l}, {t, t, b, b}, bounds, 1);
}

// Opens a device of the size, lets `draw` work, closes it.
inline std::unique_ptr<vxDevicePDF> drawPDF(float width, float height,
                                            const std::function<void(vxDevicePDF&)>& draw,
                                            bool compress = false) {
    auto device = std::make_unique<vxDevicePDF>();
    device->setSize(width, height);
    device->setCompression(compress);
    device->open();
    draw(*device);
    device->close();
    return device;
}

inline std::string textOf(const std::vector<uint8_t>& bytes) {
    return std::string(bytes.begin(), bytes.end());
}

// The content after its first line, the flip of the coordinates.
inline std::string blocksOf(const vxDevicePDF& device) {
    const std::string& content = device.getContent();
    return content.substr(content.find("\r\n") + 2);
}

// A file read by its cross-reference table. `objects` holds each object's
// text from "N 0 obj" up to and with "endobj"; `order` the numbers as they
// lie in the file. `fault` says what didn't hold.
struct ParsedPDF {
    std::string fault;
    long size = 0, root = 0, info = 0;
    std::map<long, std::string> objects;
    std::vector<long> order;
};
ParsedPDF parsePDF(const std::string& file);

// The bytes of the stream of an object, inflated when it says so.
std::string streamOf(const std::string& object);

// Whether a program runs here, for the checks with real readers.
bool hasProgram(const std::string& name);

}  // namespace Velarix::test::pdf
