// The shapes of the caps at the ends of a flat bar, each in the frame of
// its own end.
//
// In that frame u runs across the bar from its down side (0) to its up side
// (the width W), and v runs into the bar from the edge of the end (0). A
// length across is a share of the width plus a share of the cap size c;
// lengths along are shares of c.
//
// A cap is a first point and then lines and arcs from the down side to the
// up side. An arc is a part of the ellipse inscribed in a box of the frame:
// it starts at one end of the ellipse's axes and turns by quarters.
#pragma once

namespace Velarix {

struct vxCapLength {
    float ofWidth;
    float ofCap;
};

struct vxCapStep {
    // The ends of an ellipse's axes, in the order a positive turn passes
    // them: into the bar, toward the up side, out of the bar, toward the
    // down side.
    enum End : short { kInward = 0, kUpSide = 1, kOutward = 2, kDownSide = 3 };

    bool isArc;
    // A point: (u, v). An arc: its box from (u, v) to (u2, v2).
    vxCapLength u;
    float vOfCap;
    vxCapLength u2;
    float v2OfCap;
    // An arc's start and its signed number of quarter turns.
    End from;
    short quarters;
};

struct vxCapForm {
    static constexpr int kMaxSteps = 3;

    int numOfSteps;
    vxCapStep steps[kMaxSteps];
};

struct vxCapShape {
    // Caps smaller than this share of the width take the narrow form, the
    // others the wide one.
    float wideFrom;
    vxCapForm narrow;
    vxCapForm wide;
};

// The shape of a cap type (0 straight ... 10 round notch); other types are
// straight.
const vxCapShape& vxCapShapeOf(short capType);

}  // namespace Velarix
