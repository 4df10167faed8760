#include "styles/vxBarStyle.h"

#include "host/vxLog.h"
#include "script/vxAssign.h"

namespace Velarix {

vxBarStyle::vxBarStyle(vxUserSettings* owner, long number) : vxStyle(L"vxBarStyle", owner) {
    setDefaults(number);
}

vxBarStyle::~vxBarStyle() = default;

bool vxBarStyle::setDefaults(long) {
    profileType = 0;
    profileAngle = 0.0f;
    profileFlag = 0;
    startCapType = endCapType = 0;
    startCapSizePercent = endCapSizePercent = kDefaultCapSizePercent;
    return !isError();
}

bool vxBarStyle::set(const vxBarStyle* from) {
    if (!from) {
        return setDefaults(1) && copySelection(nullptr);
    }
    profileType = from->profileType;
    profileAngle = from->profileAngle;
    profileFlag = from->profileFlag;
    startCapType = from->startCapType;
    endCapType = from->endCapType;
    startCapSizePercent = from->startCapSizePercent;
    endCapSizePercent = from->endCapSizePercent;
    return copySelection(from);
}

bool vxBarStyle::assign(vxAssign& a) {
    startCapType = a.getShort(0, startCapType);
    startCapSizePercent = a.getFloat(1, startCapSizePercent);
    endCapType = a.getShort(2, endCapType);
    endCapSizePercent = a.getFloat(3, endCapSizePercent);
    profileType = a.getShort(4, profileType);
    profileAngle = a.getFloat(5, profileAngle);
    profileFlag = a.getShort(6, profileFlag);
    a.addToArgumentOffset(7);
    return !isError();
}

void vxBarStyle::dump(short depth, std::ostream& out) const {
    if (depth <= 0) return;
    vxDumpHeader(out, "vxBarStyle");
    dumpSelection(out);
    vxDumpLine(out, "short profileType:  ", profileType);
    vxDumpLine(out, "float profileAngle:  ", profileAngle);
    vxDumpLine(out, "short profileFlag:  ", profileFlag);
    vxDumpLine(out, "short startCapType:  ", startCapType);
    vxDumpLine(out, "short endCapType:  ", endCapType);
    vxDumpLine(out, "float startCapSizePercent:  ", startCapSizePercent);
    vxDumpLine(out, "float endCapSizePercent:  ", endCapSizePercent);
    vxDumpEnd(out);
}

}  // namespace Velarix
