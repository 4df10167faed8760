#include "output/vxDeviceSVG.h"

#include "host/vxLog.h"
#include "output/vxNumberWriter.h"
#include "output/vxWriteExternal.h"

namespace Velarix {

namespace {

constexpr size_t kReservedLength = size_t(1) << 20;

}  // namespace

vxDeviceSVG::vxDeviceSVG(const vxUserSettings* settings)
    : vxShapeDevice(L"vxDeviceSVG"), userSettings(settings) {}

vxDeviceSVG::~vxDeviceSVG() = default;

bool vxDeviceSVG::acceptsTarget(short targetType) const {
    return targetType == kTargetClipboard || targetType == kTargetFile;
}

void vxDeviceSVG::open() {
    isClipActive = false;
    clipCounter = 0;
    linearGradientCounter = 0;
    radialGradientCounter = 0;
    patternCounter = 0;
    tilePatterns.clear();
    // Room for a large chart from the start: the pages of the buffer are
    // only touched as the document grows into them, while growing by copies
    // would touch every page again each time.
    document.clear();
    document.reserve(kReservedLength);
    document += L"<?xml version=\"1.0\" encoding=\"utf-8\"?>\n";
    document += L"<!DOCTYPE svg PUBLIC \"-//W3C//DTD SVG 1.1//EN\"\n";
    document += L"\t\"http://www.w3.org/Graphics/SVG/1.1/DTD/svg11.dtd\">\n";
    document += L"\n";
    // The namespaces make browsers and editors read the file as a picture.
    document +=
        L"<svg xmlns=\"http://www.w3.org/2000/svg\" "
        L"xmlns:xlink=\"http://www.w3.org/1999/xlink\" width=\"" +
        vxNumberWriter::generalW(getWidth()) + L"\" height=\"" +
        vxNumberWriter::generalW(getHeight()) + L"\">\n";
    if (!title.empty()) document += L"<title>" + title + L"</title>\n";
    if (!description.empty()) document += L"<desc>" + description + L"</desc>\n";
    if (!comment.empty()) document += L"<!-- " + comment + L" -->\n";
}

void vxDeviceSVG::close() {
    document += L"</svg>\n\n";
    writeTargets();
}

void vxDeviceSVG::writeTargets() {
    for (const auto& target : targets) {
        const short type = target->getType();
        if (type != kTargetClipboard && type != kTargetFile) continue;
        if (!vxDeviceTargets::writeText(*target, *this, document)) return;
    }
}

void vxDeviceSVG::resetClipRegion() {
    isClipActive = false;
}

void vxDeviceSVG::setClipRegion(float x, float y, float w, float h, short mode) {
    if (isClipOutOfLimits(x, y, w, h)) return;
    ++clipCounter;
    std::wstring s = L"<defs>\n<clipPath id=\"clipPath" + std::to_wstring(clipCounter) + L"\">\n";
    s += L"\t<rect id=\"rect1\"\n";
    s += L"\t\tx=\"" + vxNumberWriter::generalW(x) + L"\" y=\"" + vxNumberWriter::generalW(y) +
         L"\" width=\"" + vxNumberWriter::generalW(w) + L"\" height=\"" +
         vxNumberWriter::generalW(h) + L"\"/>\n";
    s += L"</clipPath>\n</defs>\n";
    document += s;
    isClipActive = true;
}

void vxDeviceSVG::setClipRegion(const vxVerbs& verbs, const vxPoints& x, const vxPoints& y,
                                const float bounds[4], short mode) {
    ++clipCounter;
    std::wstring s = L"<defs>\n<clipPath id=\"clipPath" + std::to_wstring(clipCounter) + L"\">\n";
    s += L"\t<path id=\"path1\"\n";
    s += L"\t\td=\"";
    appendPathData(s, verbs, x, y, Offset{});
    s += L"\" />\n";
    s += L"</clipPath>\n</defs>\n";
    document += s;
    isClipActive = true;
}

void vxDeviceSVG::dump(short depth, std::ostream& out) const {
    if (depth <= 0) return;
    vxDevice::dump(depth, out);
    vxDumpLine(out, "wstring title:       ", title);
    vxDumpLine(out, "wstring description: ", description);
    vxDumpLine(out, "wstring comment:     ", comment);
    targets.dump(static_cast<short>(depth - 1), out);
}

}  // namespace Velarix
