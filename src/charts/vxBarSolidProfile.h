// The cross section of a solid bar, in the unit square of the bar's width
// (u, 0 to 1 from one side to the other) and its depth (w, 0 at the front,
// 1 at the back). The points run counter-clockwise with u to the right and
// w upward, so that the outward normal of the edge from a point to the next
// is (dw, -du).
//
// Shapes: 1 oval, the ellipse inscribed in the square; 2 plate, the square
// with its corners chamfered by a fifth of each side; n from 3 up, the
// regular n-gon inscribed in the oval (3 triangle, 4 diamond, 5 pentagon,
// 6 hexagon), its first corner at the back turned clockwise, seen from the
// bar's far end, by the profile angle; 0 and anything else, the square.
#pragma once

#include <cstddef>
#include <vector>

namespace Velarix {

class vxBarSolidProfile {
public:
    // Points of an oval: at 1000 units across its chords stay within 0.2 of
    // the ellipse.
    static constexpr int kOvalPoints = 128;
    static constexpr int kMaxCorners = 64;
    static constexpr float kPlateChamfer = 0.2f;

    // Throws std::bad_alloc.
    vxBarSolidProfile(short shape, float angleDegrees);

    bool isRound() const { return round; }
    int size() const { return static_cast<int>(u.size()); }
    float getU(int i) const { return u[static_cast<size_t>(i)]; }
    float getW(int i) const { return w[static_cast<size_t>(i)]; }

    // The point of the oval at angle a (radians, counter-clockwise from the
    // right-hand side, u).
    static void ovalPoint(double a, float& pu, float& pw);

private:
    void addCorners(int n, double firstAngle);
    void addPlate();

    bool round = false;
    std::vector<float> u;
    std::vector<float> w;
};

}  // namespace Velarix
