#include "charts/vxBarSolidProfile.h"

#include <algorithm>
#include <cmath>

namespace Velarix {

namespace {

constexpr double kPi = 3.14159265358979323846;
constexpr short kOval = 1;
constexpr short kPlate = 2;
constexpr short kTriangle = 3;

}  // namespace

vxBarSolidProfile::vxBarSolidProfile(short shape, float angleDegrees) {
    if (shape == kOval) {
        round = true;
        addCorners(kOvalPoints, 0.0);
    } else if (shape == kPlate) {
        addPlate();
    } else if (shape >= kTriangle) {
        // The back lies at a = pi/2; a clockwise turn seen from the far
        // end lowers a.
        const double turn = double(angleDegrees) * kPi / 180.0;
        addCorners(std::min<int>(shape, kMaxCorners), kPi / 2.0 - turn);
    } else {
        u = {0.0f, 1.0f, 1.0f, 0.0f};
        w = {0.0f, 0.0f, 1.0f, 1.0f};
    }
}

void vxBarSolidProfile::ovalPoint(double a, float& pu, float& pw) {
    pu = float(0.5 + 0.5 * std::cos(a));
    pw = float(0.5 + 0.5 * std::sin(a));
}

void vxBarSolidProfile::addCorners(int n, double firstAngle) {
    u.resize(size_t(n));
    w.resize(size_t(n));
    for (int i = 0; i < n; ++i)
        ovalPoint(firstAngle + 2.0 * kPi * i / n, u[size_t(i)], w[size_t(i)]);
}

void vxBarSolidProfile::addPlate() {
    const float c = kPlateChamfer, d = 1.0f - kPlateChamfer;
    u = {c, d, 1.0f, 1.0f, d, c, 0.0f, 0.0f};
    w = {0.0f, 0.0f, c, d, 1.0f, 1.0f, d, c};
}

}  // namespace Velarix
