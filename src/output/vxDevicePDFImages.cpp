// Pictures of the PDF device. A JPEG file keeps its compressed data; any
// other picture is written as its pixels, deflated, with a soft mask where
// it isn't opaque. A picture used twice is one resource.
#include <new>

#include "graphics/vxGradientPaint.h"
#include "output/vxBitmap.h"
#include "output/vxDevicePDF.h"
#include "output/vxFileType.h"
#include "output/vxImage.h"
#include "output/vxImageMapping.h"
#include "output/vxNumberWriter.h"
#include "output/vxReadFile.h"

namespace Velarix {

namespace {

// What a JPEG's frame header says of the picture.
struct JPEGFrame {
    long width = 0;
    long height = 0;
    int components = 0;
    int precision = 0;
};

bool isFrameMarker(uint8_t marker) {
    return marker >= 0xC0 && marker <= 0xCF && marker != 0xC4 && marker != 0xC8 && marker != 0xCC;
}

// Walks the segments up to the first frame header; false when there is
// none or the data isn't a JPEG.
bool readFrame(const std::vector<uint8_t>& data, JPEGFrame& frame) {
    if (data.size() < 4 || data[0] != 0xFF || data[1] != 0xD8) return false;
    size_t i = 2;
    while (i + 9 < data.size()) {
        if (data[i] != 0xFF) return false;
        const uint8_t marker = data[i + 1];
        if (marker == 0xFF) {
            ++i;
            continue;
        }
        const size_t length = (static_cast<size_t>(data[i + 2]) << 8) | data[i + 3];
        if (isFrameMarker(marker)) {
            frame.precision = data[i + 4];
            frame.height = (static_cast<long>(data[i + 5]) << 8) | data[i + 6];
            frame.width = (static_cast<long>(data[i + 7]) << 8) | data[i + 8];
            frame.components = data[i + 9];
            return frame.width > 0 && frame.height > 0;
        }
        i += 2 + length;
    }
    return false;
}

const char* colorSpaceOf(int components) {
    switch (components) {
        case 1:
            return "/DeviceGray";
        case 4:
            return "/DeviceCMYK /Decode [1 0 1 0 1 0 1 0]";
        default:
            return "/DeviceRGB";
    }
}

std::string imageHead(long width, long height, const char* colorSpace) {
    return "<< /Type /XObject /Subtype /Image /Width " + std::to_string(width) + " /Height " +
           std::to_string(height) + " /ColorSpace " + colorSpace + " /BitsPerComponent 8";
}

}  // namespace

// Each tile places the picture upside down in the drawing's coordinates,
// which puts it upright on the page.
void vxDevicePDF::placeTiles(const vxImageMapping& mapping, const std::string& name) {
    std::string s;
    for (long row = 0; row < mapping.getNumOfRows(); ++row) {
        for (long column = 0; column < mapping.getNumOfColumns(); ++column) {
            float tile[4];
            mapping.getTile(row, column, tile);
            s += "q " + vxNumberWriter::pdf(tile[2]) + " 0 0 " + vxNumberWriter::pdf(-tile[3]) +
                 " " + vxNumberWriter::pdf(tile[0]) + " " + vxNumberWriter::pdf(tile[1] + tile[3]) +
                 " cm " + name + " Do Q ";
        }
    }
    block(s);
}

void vxDevicePDF::drawImage(const vxImage& image) {
    const vxImageMapping* mapping = image.getMapping();
    if (image.isEmpty() || !mapping || mapping->isEmpty()) return;
    if (const vxGradientPaint* gradient = image.getGradient()) {
        for (long row = 0; row < mapping->getNumOfRows(); ++row) {
            for (long column = 0; column < mapping->getNumOfColumns(); ++column) {
                float tile[4];
                mapping->getTile(row, column, tile);
                const float bounds[4] = {tile[0], tile[1], tile[0] + tile[2], tile[1] + tile[3]};
                fillWithGradient(*gradient, rectanglePath(tile[0], tile[1], tile[2], tile[3]),
                                 bounds, 1);
            }
        }
        return;
    }
    try {
        const std::string name = imageOf(image);
        if (name.empty()) return;
        block("q " + pageState);
        placeTiles(*mapping, name);
        block("Q\r\n");
    } catch (const std::bad_alloc&) {
        setError(vxErrRuntime::kOutOfMemory, where(L"drawImage"));
    }
}

std::string vxDevicePDF::imageOf(const vxImage& image) {
    const auto* file = dynamic_cast<const vxReadFile*>(image.getSource());
    if (!image.getBitmap() && file && file->getFileType() == kFileTypeJPEG) {
        std::vector<uint8_t> bytes;
        if (!file->readBytes(bytes, *this)) return std::string();
        const std::string name = jpegImage(bytes);
        if (!name.empty() || isError()) return name;
    }
    vxBitmap bitmap;
    if (!image.readBitmap(bitmap)) {
        copyError(bitmap.getError());
        return std::string();
    }
    if (bitmap.isEmpty()) return std::string();
    return pixelImage(bitmap);
}

// Empty for data whose frame can't be found, which is then decoded as any
// other picture.
std::string vxDevicePDF::jpegImage(const std::vector<uint8_t>& bytes) {
    JPEGFrame frame;
    if (!readFrame(bytes, frame) || frame.precision != 8) return std::string();
    return addResource(vxPDFResources::kImage,
                       imageHead(frame.width, frame.height, colorSpaceOf(frame.components)) +
                           " /Filter /DCTDecode /Length " + std::to_string(bytes.size()) + " >>",
                       bytes);
}

std::string vxDevicePDF::pixelImage(const vxBitmap& bitmap) {
    const long width = bitmap.getWidth(), height = bitmap.getHeight();
    std::vector<uint8_t> rgb, alpha, packed;
    rgb.reserve(static_cast<size_t>(width * height * 3));
    alpha.reserve(static_cast<size_t>(width * height));
    bool isOpaque = true;
    for (long y = 0; y < height; ++y) {
        for (long x = 0; x < width; ++x) {
            uint8_t color[4];
            bitmap.getColor(x, y, color);
            rgb.insert(rgb.end(), color, color + 3);
            alpha.push_back(color[3]);
            isOpaque = isOpaque && color[3] == 255;
        }
    }
    std::string mask;
    if (!isOpaque) {
        if (!deflate(alpha, packed)) return std::string();
        mask =
            addResource(vxPDFResources::kImage,
                        imageHead(width, height, "/DeviceGray") + " /Filter /FlateDecode /Length " +
                            std::to_string(packed.size()) + " >>",
                        packed);
        if (mask.empty()) return mask;
        mask = " /SMask " + vxPDFResources::referenceTo(mask);
    }
    if (!deflate(rgb, packed)) return std::string();
    return addResource(vxPDFResources::kImage,
                       imageHead(width, height, "/DeviceRGB") + mask +
                           " /Filter /FlateDecode /Length " + std::to_string(packed.size()) + " >>",
                       packed);
}

}  // namespace Velarix
