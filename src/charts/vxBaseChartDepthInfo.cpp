#include "charts/vxBaseChartDepthInfo.h"

#include <cmath>
#include <vector>

#include "host/vxLog.h"
#include "script/vxAssign.h"

namespace Velarix {

namespace {

constexpr double kPi = 3.14159265358979323846;

}  // namespace

void vxBaseChartDepthInfo::setDefaults() {
    setDepth(0.0f, 0.0f);
    setTilt(0.0f);
}

void vxBaseChartDepthInfo::assignDepth(const vxAssign& assign) {
    const std::vector<float> a = assign.getFloatArray(0);
    if (a.empty()) {
        setDepth(0.0f, 0.0f);
    } else {
        setDepth(a[0], a.size() >= 2 ? a[1] : a[0]);
    }
    setTilt(a.size() >= 3 ? a[2] : 0.0f);
}

void vxBaseChartDepthInfo::setDepth(float x, float y) {
    xDepth = x;
    yDepth = y;
    depth = std::sqrt(x * x + y * y);
    depthAngle =
        depth <= kMinDepth
            ? 0.0f
            : float(std::fmod(std::asin(double(yDepth) / depth) + kPi + 2.0 * kPi, 2.0 * kPi));
    sinSigma = std::sin(depthAngle);
    cosSigma = std::cos(depthAngle);
}

void vxBaseChartDepthInfo::setTilt(float tilt) {
    tiltAngle = float(std::fmod(double(tilt) + 2.0 * kPi, 2.0 * kPi));
    sinTau = std::sin(tiltAngle);
    cosTau = std::cos(tiltAngle);
}

void vxBaseChartDepthInfo::project(const float rect[4], float offsetX, float offsetY, float outX[8],
                                   float outY[8]) const {
    const float l = rect[0], t = rect[1], r = rect[2], b = rect[3];
    outX[0] = l * cosTau - offsetX;
    outX[1] = r * cosTau - offsetX;
    outX[2] = outX[1];
    outX[3] = outX[0];
    outY[0] = b - l * sinTau + offsetY;
    outY[1] = b - r * sinTau + offsetY;
    outY[2] = t - r * sinTau + offsetY;
    outY[3] = t - l * sinTau + offsetY;
    for (int i = 0; i < 4; ++i) {
        outX[4 + i] = outX[i] - xDepth;
        outY[4 + i] = outY[i] + yDepth;
    }
}

void vxBaseChartDepthInfo::dump(short level, std::ostream& out) const {
    if (level <= 0) return;
    vxDumpHeader(out, "vxBaseChartDepthInfo");
    vxDumpLine(out, "float xDepth,yDepth: ", xDepth, yDepth);
    vxDumpLine(out, "float depth:         ", depth);
    vxDumpLine(out, "float depthAngle:    ", depthAngle);
    vxDumpLine(out, "float tiltAngle:     ", tiltAngle);
    vxDumpEnd(out);
}

}  // namespace Velarix
