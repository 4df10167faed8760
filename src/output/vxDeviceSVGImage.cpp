// Pictures in the SVG document.
#include "graphics/vxGradientPaint.h"
#include "output/vxDeviceSVG.h"
#include "output/vxImage.h"
#include "output/vxImageMapping.h"
#include "output/vxNumberWriter.h"
#include "output/vxReadExternal.h"
#include "platform/vxTextCodec.h"

namespace Velarix {

namespace {

// The winding rule of a rectangle's fill, as quads fill.
constexpr short kTileWindingRule = 1;

std::wstring tileAttributes(const vxImageMapping& mapping, long row, long column) {
    float tile[4];
    mapping.getTile(row, column, tile);
    return L"\tx=\"" + vxNumberWriter::generalW(tile[0]) + L"\" y=\"" +
           vxNumberWriter::generalW(tile[1]) + L"\" width=\"" + vxNumberWriter::generalW(tile[2]) +
           L"\" height=\"" + vxNumberWriter::generalW(tile[3]) + L"\" ";
}

}  // namespace

void vxDeviceSVG::drawImage(const vxImage& image) {
    const vxReadExternal* source = image.getSource();
    if (!source) return;
    const vxImageMapping* mapping = image.getMapping();
    switch (source->getType()) {
        case kSourceResource:
            if (image.getGradient() && mapping && !image.isEmpty()) {
                writeGradientTiles(*mapping, *image.getGradient());
            }
            return;
        case kSourceFile:
            if (mapping && !image.isEmpty()) writeFileTiles(*mapping, source->getName());
            return;
        default:
            if (source->isError()) copyError(source->getError());
            return;
    }
}

bool vxDeviceSVG::hasDrawableTiles(const vxImageMapping& mapping) {
    if (mapping.isEmpty()) return false;
    if (mapping.getDestWidth() >= 1.0f && mapping.getDestHeight() >= 1.0f) return true;
    setError(vxErrRuntime::kDivisionByZero, where(L"drawImage", 1));
    return false;
}

void vxDeviceSVG::writeGradientTiles(const vxImageMapping& mapping,
                                     const vxGradientPaint& gradient) {
    if (!hasDrawableTiles(mapping)) return;
    writeDefinition(gradient);
    const std::wstring style = L"\t" + fillStyle(gradient, kTileWindingRule) + L"/>\n";
    std::wstring s;
    for (long row = 0; row < mapping.getNumOfRows(); ++row) {
        for (long column = 0; column < mapping.getNumOfColumns(); ++column) {
            s += L"<rect\n" + tileAttributes(mapping, row, column) + L"\n" + style;
        }
    }
    document += s;
}

void vxDeviceSVG::writeFileTiles(const vxImageMapping& mapping, const std::wstring& path) {
    if (mapping.isEmpty()) return;
    const std::wstring head = L"<image xlink:href=\"" + hrefOf(path) + L"\"\n";
    // A picture keeps to the clip in force, as shapes do.
    const std::wstring clip = isClipActive ? L"style=\"" + clipPart() + L"\"" : L"";
    std::wstring s;
    for (long row = 0; row < mapping.getNumOfRows(); ++row) {
        for (long column = 0; column < mapping.getNumOfColumns(); ++column) {
            s += head + tileAttributes(mapping, row, column) + clip + L"/>\n";
        }
    }
    document += s;
}

std::wstring vxDeviceSVG::hrefOf(const std::wstring& path) {
    static const wchar_t kHex[] = L"0123456789ABCDEF";
    std::wstring s;
    for (unsigned char byte : vxToUtf8(path)) {
        if (byte == '&') {
            s += L"&amp;";
        } else if (byte >= 0x20 && byte < 0x7F) {
            s += static_cast<wchar_t>(byte);
        } else {
            s += L'%';
            s += kHex[byte >> 4];
            s += kHex[byte & 0x0F];
        }
    }
    return s;
}

}  // namespace Velarix
