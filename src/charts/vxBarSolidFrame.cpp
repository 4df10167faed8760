#include "charts/vxBarSolidFrame.h"

#include <algorithm>
#include <cmath>

#include "charts/vxBaseChartDepthInfo.h"

namespace Velarix {

namespace {

constexpr double kTiny = 1e-9;
constexpr double kPi = 3.14159265358979323846;
constexpr float kSideDarkening = 0.25f;

// Corners of the box's front face that give each direction its frame: the
// origin, the end of the width edge, the end of the bar's edge.
struct Corners {
    int origin, across, along;
};
constexpr Corners kUp{0, 1, 3};
constexpr Corners kDown{2, 3, 1};
constexpr Corners kLeft{1, 2, 0};
constexpr Corners kRight{3, 0, 2};

const Corners& cornersOf(short direction) {
    switch (direction) {
        case 2:
            return kDown;
        case 3:
            return kLeft;
        case 4:
            return kRight;
        default:
            return kUp;
    }
}

double cross(const double a[2], const double b[2]) {
    return a[0] * b[1] - a[1] * b[0];
}

double length(const double a[2]) {
    return std::hypot(a[0], a[1]);
}

void edge(const float* x, const float* y, int from, int to, double out[2]) {
    out[0] = double(x[to]) - x[from];
    out[1] = double(y[to]) - y[from];
}

}  // namespace

vxBarSolidFrame::vxBarSolidFrame(const float rect[4], short direction,
                                 const vxBaseChartDepthInfo& depth) {
    const Corners& c = cornersOf(direction);
    upright = direction != 3 && direction != 4;
    float x[8], y[8];
    depth.project(rect, 0.0f, 0.0f, x, y);
    origin[0] = x[c.origin];
    origin[1] = y[c.origin];
    edge(x, y, c.origin, c.across, edgeU);
    edge(x, y, c.origin, c.origin + 4, edgeW);
    edge(x, y, c.origin, c.along, edgeH);
    width = length(edgeU);
    depthLength = length(edgeW);
    // A bar without width or length still looks along its frame's edges.
    const float unit[4] = {0.0f, 0.0f, 1.0f, 1.0f};
    depth.project(unit, 0.0f, 0.0f, x, y);
    double nominalU[2], nominalH[2];
    edge(x, y, c.origin, c.across, nominalU);
    edge(x, y, c.origin, c.along, nominalH);
    lookFrom(nominalU, nominalH);
}

// The viewer looks along the one direction that the drawing flattens to a
// point: (W x H, H x U, U x W) for the edges U, W, H on the drawing, turned
// so that the front is seen.
void vxBarSolidFrame::lookFrom(const double nominalU[2], const double nominalH[2]) {
    const double* u = width > kTiny ? edgeU : nominalU;
    const double* h = length(edgeH) > kTiny ? edgeH : nominalH;
    double d[3] = {cross(edgeW, h), cross(h, u), cross(u, edgeW)};
    if (std::fabs(d[1]) <= kTiny) return;  // seen edge-on: the front only
    const double sign = d[1] < 0.0 ? 1.0 : -1.0;
    const double norm = std::sqrt(d[0] * d[0] + d[1] * d[1] + d[2] * d[2]);
    for (int i = 0; i < 3; ++i) toViewer[i] = sign * d[i] / norm;
}

void vxBarSolidFrame::point(double u, double w, double h, float& x, float& y) const {
    x = float(origin[0] + u * edgeU[0] + w * edgeW[0] + h * edgeH[0]);
    y = float(origin[1] + u * edgeU[1] + w * edgeW[1] + h * edgeH[1]);
}

double vxBarSolidFrame::facing(double nu, double nw, double nh) const {
    const double f = nu * toViewer[0] + nw * toViewer[1] + nh * toViewer[2];
    return std::fabs(f) <= kTiny * std::sqrt(nu * nu + nw * nw + nh * nh) ? 0.0 : f;
}

double vxBarSolidFrame::nearness(double u, double w, double h) const {
    return u * toViewer[0] + w * toViewer[1] + h * toViewer[2];
}

double vxBarSolidFrame::viewAngle() const {
    if (std::hypot(toViewer[0], toViewer[1]) <= kTiny) return -kPi / 2.0;
    return std::atan2(toViewer[1], toViewer[0]);
}

// A normal in profile coordinates is carried to the solid's own by
// dividing by the width and the depth; scaled by both it stays finite when
// either is 0.
float vxBarSolidFrame::sideDarkening(double nu, double nw) const {
    const double tu = nu * depthLength, tw = nw * width;
    const double norm = std::hypot(tu, tw);
    if (norm <= kTiny) return kSideDarkening;
    const double towardFront = std::max(0.0, -tw / norm);
    return float(kSideDarkening * (1.0 - towardFront));
}

}  // namespace Velarix
