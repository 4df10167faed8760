// Rendering hints handed to the raster devices. Each is a short: 0 leaves
// the device's own default, 1 turns the hint on.
#pragma once

#include <ostream>

namespace Velarix {

class vxRenderingSettings {
public:
    vxRenderingSettings() = default;
    virtual ~vxRenderingSettings() = default;

    void clear();  // all hints 0
    // Shape and text anti-aliasing and fractional metrics on.
    void setDefaults();
    void copy(const vxRenderingSettings* from);  // null clears
    void dump(short depth, std::ostream& out) const;

    short getCompositingMode() const { return mCompositingMode; }
    void setCompositingMode(short value) { mCompositingMode = value; }
    short getPixelInterpolation() const { return mPixelInterpolation; }
    void setPixelInterpolation(short value) { mPixelInterpolation = value; }
    short getAlphaInterpolation() const { return mAlphaInterpolation; }
    void setAlphaInterpolation(short value) { mAlphaInterpolation = value; }
    short getShapeAntialiasing() const { return mShapeAntialiasing; }
    void setShapeAntialiasing(short value) { mShapeAntialiasing = value; }
    short getTextAntialiasing() const { return mTextAntialiasing; }
    void setTextAntialiasing(short value) { mTextAntialiasing = value; }
    short getColorRendering() const { return mColorRendering; }
    void setColorRendering(short value) { mColorRendering = value; }
    short getDithering() const { return mDithering; }
    void setDithering(short value) { mDithering = value; }
    short getFractionalMetrics() const { return mFractionalMetrics; }
    void setFractionalMetrics(short value) { mFractionalMetrics = value; }

private:
    short mCompositingMode = 0;
    short mPixelInterpolation = 0;
    short mAlphaInterpolation = 0;
    short mShapeAntialiasing = 0;
    short mTextAntialiasing = 0;
    short mColorRendering = 0;
    short mDithering = 0;
    short mFractionalMetrics = 0;
};

}  // namespace Velarix
