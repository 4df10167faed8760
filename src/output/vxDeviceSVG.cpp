#include "output/vxDeviceSVG.h"

#include <new>

#include "host/vxLog.h"
#include "output/vxNumberWriter.h"
#include "output/vxWriteExternal.h"

namespace Velarix {

vxDeviceSVG::vxDeviceSVG(const vxUserSettings* settings)
    : vxDevice(L"vxDeviceSVG"), userSettings(settings) {}

vxDeviceSVG::~vxDeviceSVG() = default;

void vxDeviceSVG::addTarget(short targetType) {
    if (targetType != kTargetClipboard && targetType != kTargetFile) return;
    try {
        targets.push_back(vxWriteExternal::makeTarget(targetType));
    } catch (const std::bad_alloc&) {
        setError(vxErrRuntime::kOutOfMemory, where(L"addTarget"));
        return;
    }
    vxWriteExternal& target = *targets.back();
    if (target.isError()) {
        copyError(target.getError());
    } else {
        target.setFormat(kFormatNone);
    }
}

long vxDeviceSVG::getNumOfTargets() const {
    return static_cast<long>(targets.size());
}

vxWriteExternal* vxDeviceSVG::getLastTarget() const {
    return targets.empty() ? nullptr : targets.back().get();
}

void vxDeviceSVG::open() {
    isClipActive = false;
    clipCounter = 0;
    linearGradientCounter = 0;
    radialGradientCounter = 0;
    document = L"<?xml version=\"1.0\" encoding=\"utf-8\"?>\n";
    document += L"<!DOCTYPE svg PUBLIC \"-//W3C//DTD SVG 1.1//EN\"\n";
    document += L"\t\"http://www.w3.org/Graphics/SVG/1.1/DTD/svg11.dtd\">\n";
    document += L"\n";
    document += L"<svg width=\"" + vxNumberWriter::generalW(getWidth()) + L"\" height=\"" +
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
        if (!writeTarget(*target)) return;
    }
}

// Open, write, close, each step followed by the test of the target's error.
bool vxDeviceSVG::writeTarget(vxWriteExternal& target) {
    auto failed = [&] {
        if (!target.isError()) return false;
        copyError(target.getError());
        return true;
    };
    target.open();
    if (failed()) return false;
    target.writeString(document);
    if (failed()) return false;
    target.close();
    return !failed();
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
    s += L"\t\td=\"" + pathData(verbs, x, y, Offset{}) + L"\" />\n";
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
    for (const auto& target : targets) target->dump(static_cast<short>(depth - 1), out);
}

}  // namespace Velarix
