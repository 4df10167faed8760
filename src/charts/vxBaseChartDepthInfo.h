// The oblique projection that gives bars, pies and grid planes their depth.
// A rectangle in the plane of the plot is carried to a box: its front face
// tilted (x scaled by cos tau, y sheared by sin tau), its back face moved by
// the depth, xDepth to the left and yDepth down. Angles are in radians.
#pragma once

#include <ostream>

namespace Velarix {

class vxAssign;

class vxBaseChartDepthInfo {
public:
    // Below this depth a chart is flat.
    static constexpr float kMinDepth = 0.1f;

    vxBaseChartDepthInfo() { setDefaults(); }

    void setDefaults();  // depth 0, tilt 0
    void copy(const vxBaseChartDepthInfo& from) { *this = from; }

    // The float list of the current argument: x and y depth and the tilt;
    // one number gives both depths, two no tilt, none no depth.
    void assignDepth(const vxAssign& assign);
    // The depth angle comes from the arcsine of y over the depth, so that it
    // stays within a half turn about pi whatever the sign of x.
    void setDepth(float x, float y);
    void setTilt(float tilt);
    bool isDepth() const { return depth > kMinDepth; }

    // The eight corners of the box over `rect` (left, top, right, bottom):
    // 0 to 3 the front face from the bottom left counter-clockwise, 4 to 7
    // the back face in the same order.
    void project(const float rect[4], float offsetX, float offsetY, float outX[8],
                 float outY[8]) const;

    float getXDepth() const { return xDepth; }
    float getYDepth() const { return yDepth; }
    float getDepth() const { return depth; }
    float getDepthAngle() const { return depthAngle; }
    float getTiltAngle() const { return tiltAngle; }
    float getSinSigma() const { return sinSigma; }
    float getCosSigma() const { return cosSigma; }
    float getSinTau() const { return sinTau; }
    float getCosTau() const { return cosTau; }

    void dump(short depth, std::ostream& out) const;

private:
    float xDepth = 0.0f;
    float yDepth = 0.0f;
    float depth = 0.0f;
    float depthAngle = 0.0f;
    float tiltAngle = 0.0f;
    float sinSigma = 0.0f;
    float cosSigma = 1.0f;
    float sinTau = 0.0f;
    float cosTau = 1.0f;
};

}  // namespace Velarix
