#include "settings/vxErrorSettings.h"

#include "host/vxLog.h"

namespace Velarix {

void vxErrorSettings::clear() {
    *this = vxErrorSettings();
}

void vxErrorSettings::setDefaults() {
    clear();
    mDoPlayAlertSound = true;
    mDoShowErrorCode = false;
    mDoShowDescription = true;
    mDoShowLocation = true;
    mDoShowAddlInfo = true;
    mDoShowParsingErrorLocation = true;
    mDoShowErrScriptPart = true;
    mDoShowSystemErrorCode = true;
    mErrPartPrefix = L"--->";
    mErrPartPostfix = L"<---";
    mMaxCharsOfErrScriptPart = -1;
}

void vxErrorSettings::copy(const vxErrorSettings* from) {
    if (!from) {
        clear();
        return;
    }
    if (from != this) *this = *from;
}

void vxErrorSettings::dump(short depth, std::ostream& out) const {
    vxDumpHeader(out, "vxErrorSettings");
    vxDumpLine(out, "bool  doPlayAlertSound:           ", mDoPlayAlertSound);
    vxDumpLine(out, "bool  doShowErrorCode:            ", mDoShowErrorCode);
    vxDumpLine(out, "bool  doShowDescription:          ", mDoShowDescription);
    vxDumpLine(out, "bool  doShowLocation:             ", mDoShowLocation);
    vxDumpLine(out, "bool  doShowAddlInfo:             ", mDoShowAddlInfo);
    vxDumpLine(out, "bool  doShowParsingErrorLocation: ", mDoShowParsingErrorLocation);
    vxDumpLine(out, "bool  doShowErrScriptPart:        ", mDoShowErrScriptPart);
    vxDumpLine(out, "bool  doShowSystemErrorCode:      ", mDoShowSystemErrorCode);
    vxDumpLine(out, "wstring messagePrefix:            ", mMessagePrefix);
    vxDumpLine(out, "wstring errPartPrefix:            ", mErrPartPrefix);
    vxDumpLine(out, "wstring errPartPostfix:           ", mErrPartPostfix);
    vxDumpLine(out, "short maxCharsOfErrScriptPart:    ", mMaxCharsOfErrScriptPart);
    vxDumpEnd(out);
}

}  // namespace Velarix
