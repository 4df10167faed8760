#include "settings/vxFontSettings.h"

#include "host/vxLog.h"

namespace Velarix {

void vxFontSettings::clear() {
    *this = vxFontSettings();
}

void vxFontSettings::setDefaults() {
    clear();
    mNameWinOS = L"Verdana";
    mSizeWinOS = 10.0f;
    mNameMacOSX = L"Geneva";
    mSizeMacOSX = 9.0f;
    mNameMacOSClassic = L"Geneva";
    mSizeMacOSClassic = 9.0f;
}

void vxFontSettings::copy(const vxFontSettings* from) {
    if (!from) {
        clear();
        return;
    }
    if (from != this) *this = *from;
}

void vxFontSettings::dump(short depth, std::ostream& out) const {
    vxDumpHeader(out, "vxFontSettings");
    vxDumpLine(out, "wstring nameWinOS:          ", mNameWinOS);
    vxDumpLine(out, "float sizeWinOS:            ", mSizeWinOS);
    vxDumpLine(out, "short styleWinOS:           ", mStyleWinOS);
    vxDumpLine(out, "wstring nameMacOSX:         ", mNameMacOSX);
    vxDumpLine(out, "float sizeMacOSX:           ", mSizeMacOSX);
    vxDumpLine(out, "short styleMacOSX:          ", mStyleMacOSX);
    vxDumpLine(out, "wstring nameMacOSClassic:   ", mNameMacOSClassic);
    vxDumpLine(out, "float sizeMacOSClassic:     ", mSizeMacOSClassic);
    vxDumpLine(out, "short styleMacOSClassic:    ", mStyleMacOSClassic);
    vxDumpLine(out, "short mMissingFontFlag:     ", mMissingFontFlag);
    vxDumpLine(out, "short mEmbedPDFFontFlag:    ", mEmbedPDFFontFlag);
    vxDumpEnd(out);
}

}  // namespace Velarix
