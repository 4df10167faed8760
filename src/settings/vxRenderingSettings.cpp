#include "settings/vxRenderingSettings.h"

#include "host/vxLog.h"

namespace Velarix {

void vxRenderingSettings::clear() {
    *this = vxRenderingSettings();
}

void vxRenderingSettings::setDefaults() {
    clear();
    mShapeAntialiasing = 1;
    mTextAntialiasing = 1;
    mFractionalMetrics = 1;
}

void vxRenderingSettings::copy(const vxRenderingSettings* from) {
    if (!from) {
        clear();
        return;
    }
    if (from != this) *this = *from;
}

void vxRenderingSettings::dump(short depth, std::ostream& out) const {
    vxDumpHeader(out, "vxRenderingSettings");
    vxDumpLine(out, "short compositingMode:     ", mCompositingMode);
    vxDumpLine(out, "short pixelInterpolation:  ", mPixelInterpolation);
    vxDumpLine(out, "short alphaInterpolation:  ", mAlphaInterpolation);
    vxDumpLine(out, "short shapeAntialiasing:   ", mShapeAntialiasing);
    vxDumpLine(out, "short textAntialiasing:    ", mTextAntialiasing);
    vxDumpLine(out, "short colorRendering:      ", mColorRendering);
    vxDumpLine(out, "short dithering:           ", mDithering);
    vxDumpLine(out, "short fractionalMetrics:   ", mFractionalMetrics);
    vxDumpEnd(out);
}

}  // namespace Velarix
