// The elliptic arc of SVG paths: from the current point to an end point on
// an ellipse of given radii and rotation, one of four arcs chosen by the
// large-arc and sweep flags, turned into cubics.
#include <algorithm>
#include <cmath>

#include "graphics/vxPath2DOLD.h"

namespace Velarix {

namespace {

constexpr double kPi = 3.14159265358979323846;
constexpr double kFullTurn = 6.2831855;

// The signed angle from vector u to vector v.
double angleBetween(double ux, double uy, double vx, double vy) {
    return std::atan2(ux * vy - uy * vx, ux * vx + uy * vy);
}

}  // namespace

void vxPath2DOLD::arcTo(float rxIn, float ryIn, float rotation, bool largeArc, bool sweep, float x2,
                        float y2) {
    float x1 = 0.0f, y1 = 0.0f;
    getCurrentPoint(x1, y1);
    const double hx = (static_cast<double>(x1) - x2) / 2, hy = (static_cast<double>(y1) - y2) / 2;
    if (4 * (hx * hx + hy * hy) < 0.0001) return;
    double rx = std::fabs(rxIn), ry = std::fabs(ryIn);
    if (rx < 0.0001 || ry < 0.0001) return;

    // The end points in the ellipse's own axes, centred between them.
    const double c = std::cos(rotation), s = std::sin(rotation);
    const double px = c * hx + s * hy, py = -s * hx + c * hy;
    const double excess = px * px / (rx * rx) + py * py / (ry * ry);
    if (excess > 1.0) {
        rx *= std::sqrt(excess);
        ry *= std::sqrt(excess);
    }
    const double den = rx * rx * py * py + ry * ry * px * px;
    const double num = rx * rx * ry * ry - den;
    const double root = (largeArc == sweep ? -1.0 : 1.0) * std::sqrt(std::max(0.0, num / den));
    const double ccx = root * rx * py / ry, ccy = -root * ry * px / rx;
    const double cx = c * ccx - s * ccy + (static_cast<double>(x1) + x2) / 2;
    const double cy = s * ccx + c * ccy + (static_cast<double>(y1) + y2) / 2;

    const double ux = (px - ccx) / rx, uy = (py - ccy) / ry;
    const double vx = (-px - ccx) / rx, vy = (-py - ccy) / ry;
    const double theta = angleBetween(1.0, 0.0, ux, uy);
    double delta = std::fmod(angleBetween(ux, uy, vx, vy), kFullTurn);
    if (!sweep && delta > 0) delta -= kFullTurn;
    if (sweep && delta < 0) delta += kFullTurn;
    if (std::fabs(delta) < 0.0001) return;
    if (std::fabs(delta) <= kPi && 2 * std::max(rx, ry) * std::sin(std::fabs(delta) / 2) < 0.1) {
        return;
    }

    // Cubics of at most a quarter turn; the last one ends on the end point
    // exactly.
    const long n = std::max(1L, static_cast<long>(std::ceil(std::fabs(delta) / (kPi / 2) - 1e-6)));
    const double d = delta / n;
    const double k = 4.0 / 3.0 * std::tan(d / 4.0);
    auto pointX = [&](double a) { return cx + rx * c * std::cos(a) - ry * s * std::sin(a); };
    auto pointY = [&](double a) { return cy + rx * s * std::cos(a) + ry * c * std::sin(a); };
    auto slopeX = [&](double a) { return k * (-rx * c * std::sin(a) - ry * s * std::cos(a)); };
    auto slopeY = [&](double a) { return k * (-rx * s * std::sin(a) + ry * c * std::cos(a)); };
    for (long j = 0; j < n; ++j) {
        const double a = theta + j * d, b = a + d;
        const bool isLast = j + 1 == n;
        cubicTo(
            static_cast<float>(pointX(a) + slopeX(a)), static_cast<float>(pointY(a) + slopeY(a)),
            static_cast<float>(pointX(b) - slopeX(b)), static_cast<float>(pointY(b) - slopeY(b)),
            isLast ? x2 : static_cast<float>(pointX(b)),
            isLast ? y2 : static_cast<float>(pointY(b)));
    }
}

}  // namespace Velarix
