// The box of a bar with depth read as the frame of a solid: profile
// coordinates u (across the width), w (along the depth, 0 at the front) and
// h (along the bar, 0 at its base, 1 at its far end) carried to the
// drawing. The frame is turned with the bar: from an upright bar (u to the
// right) a bar to the right is a quarter turn clockwise (u downward), a
// hanging bar a half turn, a bar to the left a quarter turn back.
//
// It also tells which way the viewer looks: a face is seen when its outward
// normal turns toward the viewer, the front (w = 0) always.
#pragma once

namespace Velarix {

class vxBaseChartDepthInfo;

class vxBarSolidFrame {
public:
    // Directions: 1 toward smaller y, 2 toward larger y, 3 toward smaller x,
    // 4 toward larger x; others are read as 1.
    vxBarSolidFrame(const float rect[4], short direction, const vxBaseChartDepthInfo& depth);

    void point(double u, double w, double h, float& x, float& y) const;

    // Positive when a face whose outward normal is (nu, nw, nh), in profile
    // coordinates, is seen; 0 when it is seen edge-on.
    double facing(double nu, double nw, double nh) const;
    // Larger for points nearer the viewer: painting in its order paints
    // from the back to the front.
    double nearness(double u, double w, double h) const;

    // How much darker than the front a side is whose outward normal is (nu,
    // nw) in profile coordinates: 0.25 times one less the cosine of its
    // true turn from the front (the square's sides are the box's, 0.25);
    // never lighter than the front.
    float sideDarkening(double nu, double nw) const;

    // The angle in the profile (counter-clockwise from u) toward which the
    // viewer looks from: a round side is seen within a quarter turn of it.
    double viewAngle() const;

    // Whether the bar's axis is upright on the drawing (directions 1, 2).
    bool isUpright() const { return upright; }

private:
    void lookFrom(const double nominalU[2], const double nominalH[2]);

    bool upright = true;
    double origin[2] = {};
    double edgeU[2] = {}, edgeW[2] = {}, edgeH[2] = {};
    double toViewer[3] = {0.0, -1.0, 0.0};
    double width = 0.0, depthLength = 0.0;
};

}  // namespace Velarix
