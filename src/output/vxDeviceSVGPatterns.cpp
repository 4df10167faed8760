// Patterns of the SVG device: the tiles of hatches and texture numbers,
// repeated from the drawing's origin as the raster device lays them, and
// pictures laid over their anchor.
#include "graphics/vxBasicPaint.h"
#include "graphics/vxHatchPatterns.h"
#include "graphics/vxTexturePaintOLD.h"
#include "output/vxBitmap.h"
#include "output/vxDeviceSVG.h"
#include "output/vxImage.h"
#include "output/vxNumberWriter.h"
#include "output/vxReadExternal.h"
#include "platform/vxImageEncoder.h"
#include "platform/vxResources.h"

namespace Velarix {

namespace {

constexpr int kHatchSide = 8;

bool isSetBit(uint8_t line, int column) {
    return (line & (0x80 >> column)) != 0;
}

// The pixels of a hatch whose bit is `isSet`, as path data of one run of
// unit squares after another.
std::wstring hatchRuns(const uint8_t lines[kHatchSide], bool isSet) {
    std::wstring d;
    for (int row = 0; row < kHatchSide; ++row) {
        for (int column = 0; column < kHatchSide;) {
            const bool bit = isSetBit(lines[row], column);
            int end = column + 1;
            while (end < kHatchSide && isSetBit(lines[row], end) == bit) ++end;
            if (bit == isSet) {
                const std::wstring length = std::to_wstring(end - column);
                d += L"M" + std::to_wstring(column) + L" " + std::to_wstring(row) + L"h" + length +
                     L"v1h-" + length + L"z";
            }
            column = end;
        }
    }
    return d;
}

std::wstring runsElement(const std::wstring& d, const std::wstring& color,
                         const vxColorOLD& alpha) {
    if (d.empty()) return L"";
    std::wstring s = L"<path d=\"" + d + L"\" style=\"fill: " + color + L"; ";
    if (!alpha.isOpaque())
        s += L"fill-opacity: " + vxNumberWriter::generalW(alpha.getAlphaF()) + L"; ";
    return s + L"\"/>\n";
}

std::wstring base64Of(const std::vector<unsigned char>& bytes) {
    static const wchar_t kDigits[] =
        L"ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
    std::wstring s;
    s.reserve((bytes.size() + 2) / 3 * 4);
    for (size_t i = 0; i < bytes.size(); i += 3) {
        const size_t left = bytes.size() - i;
        const unsigned long group = static_cast<unsigned long>(bytes[i]) << 16 |
                                    (left > 1 ? static_cast<unsigned long>(bytes[i + 1]) << 8 : 0) |
                                    (left > 2 ? bytes[i + 2] : 0);
        s += kDigits[group >> 18 & 63];
        s += kDigits[group >> 12 & 63];
        s += left > 1 ? kDigits[group >> 6 & 63] : L'=';
        s += left > 2 ? kDigits[group & 63] : L'=';
    }
    return s;
}

// The head of a pattern of the tile's size whose first tile lies at the
// drawing's origin.
std::wstring patternHead(long id, long width, long height) {
    return L"<defs>\n<pattern id=\"pt" + std::to_wstring(id) +
           L"\" patternUnits=\"userSpaceOnUse\"\n\tx=\"0\" y=\"0\" width=\"" +
           std::to_wstring(width) + L"\" height=\"" + std::to_wstring(height) + L"\">\n";
}

// The key of a paint's tile: its texture number, or its hatch with the
// colour and alpha; empty for a paint without a tile.
std::wstring tileKey(const vxPaintOLD& paint) {
    if (paint.getType() != vxPaintOLD::kBasic) return L"";
    const auto& basic = static_cast<const vxBasicPaint&>(paint);
    const std::wstring index = std::to_wstring(basic.getPatternIndex());
    if (basic.hasTexture()) return L"texture " + index;
    const vxColorOLD* color = basic.getColor();
    if (!basic.hasHatch() || !color) return L"";
    return L"hatch " + index + L" " + color->toHashText() + L" " +
           std::to_wstring(color->getAlpha());
}

// Set bits in the paint's colour, clear bits in white, both at its alpha.
std::wstring hatchTile(const vxBasicPaint& paint, long id) {
    uint8_t lines[kHatchSide];
    const vxColorOLD* color = paint.getColor();
    if (!color || !vxHatchLines(paint.getPatternIndex(), lines)) return L"";
    return patternHead(id, kHatchSide, kHatchSide) +
           runsElement(hatchRuns(lines, false), L"#ffffff", *color) +
           runsElement(hatchRuns(lines, true), color->toHashText(), *color) +
           L"</pattern>\n</defs>\n";
}

// The built-in picture of the number as a PNG in the document itself.
std::wstring textureTile(short patternIndex, long id) {
    vxBitmap bitmap;
    if (!vxResources::makePicture(vxResources::calculateResourceID(patternIndex), bitmap) ||
        bitmap.isEmpty()) {
        return L"";
    }
    const vxRasterPixels pixels{reinterpret_cast<const unsigned char*>(bitmap.getData()),
                                static_cast<int>(bitmap.getWidth()),
                                static_cast<int>(bitmap.getHeight()),
                                static_cast<int>(bitmap.getStride())};
    std::vector<unsigned char> png;
    std::string status;
    if (!vxEncodeImage(vxImageFormat::kPNG, pixels, vxEncoderOptions(), png, status)) return L"";
    const std::wstring w = std::to_wstring(bitmap.getWidth());
    const std::wstring h = std::to_wstring(bitmap.getHeight());
    return patternHead(id, bitmap.getWidth(), bitmap.getHeight()) +
           L"<image xlink:href=\"data:image/png;base64," + base64Of(png) +
           L"\" x=\"0\" y=\"0\" width=\"" + w + L"\" height=\"" + h + L"\"/>\n" +
           L"</pattern>\n</defs>\n";
}

}  // namespace

long vxDeviceSVG::tilePatternOf(const vxPaintOLD& paint) const {
    const auto found = tilePatterns.find(tileKey(paint));
    return found == tilePatterns.end() ? 0 : found->second;
}

// A tile that can't be made leaves the paint to its plain colour.
void vxDeviceSVG::writeTilePattern(const vxBasicPaint& paint) {
    const std::wstring key = tileKey(paint);
    if (key.empty() || tilePatterns.count(key) != 0) return;
    const long id = patternCounter + 1;
    const std::wstring tile =
        paint.hasTexture() ? textureTile(paint.getPatternIndex(), id) : hatchTile(paint, id);
    tilePatterns[key] = tile.empty() ? 0 : id;
    if (tile.empty()) return;
    patternCounter = id;
    document += tile;
}

const vxTexturePaintOLD* vxDeviceSVG::anchoredPicture(const vxPaintOLD& paint) {
    if (paint.getType() != vxPaintOLD::kTexture) return nullptr;
    const auto& texture = static_cast<const vxTexturePaintOLD&>(paint);
    const vxImage* image = texture.getImage();
    if (!texture.hasImage() || !image || image->getGradient() || !image->getSource())
        return nullptr;
    return image->getSource()->getType() == kSourceFile ? &texture : nullptr;
}

// The picture stretched over the anchor and repeated from there, as the
// raster device lays it.
void vxDeviceSVG::writePattern(const vxTexturePaintOLD& paint) {
    ++patternCounter;
    float a[4];
    paint.getAnchorBounds(a);
    const std::wstring w = vxNumberWriter::generalW(a[2] - a[0]);
    const std::wstring h = vxNumberWriter::generalW(a[3] - a[1]);
    std::wstring s = L"<defs>\n<pattern id=\"pt" + std::to_wstring(patternCounter) +
                     L"\" patternUnits=\"userSpaceOnUse\"\n";
    s += L"\tx=\"" + vxNumberWriter::generalW(a[0]) + L"\" y=\"" + vxNumberWriter::generalW(a[1]) +
         L"\" width=\"" + w + L"\" height=\"" + h + L"\">\n";
    s += L"<image xlink:href=\"" + hrefOf(paint.getImage()->getSource()->getName()) +
         L"\" x=\"0\" y=\"0\" width=\"" + w + L"\" height=\"" + h +
         L"\" preserveAspectRatio=\"none\"/>\n";
    s += L"</pattern>\n</defs>\n";
    document += s;
}

}  // namespace Velarix
