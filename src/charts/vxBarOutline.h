// The outline of a flat bar with its caps: a cap at the base, where the
// bar starts, and one at the far end, where its value lies.
//
// The caps whose names say up or down treat the two sides of a bar
// differently. The up side is the right side (larger x) of an upright bar
// (directions 1 and 2) and the top side (smaller y) of a horizontal bar
// (directions 3 and 4); the down side is the other one. Skew up cuts the
// up side back, round up rounds the corner of the up side, beak up cuts
// the up side back with a hollow curve that leaves a beak on the down side;
// the down forms do the same with the sides exchanged.
//
// The end cap is the start cap's shape mirrored across the middle of the
// bar, so a cap type cuts the same side at either end. The four directions
// are mirror images: a bar growing down (2) is a bar growing up (1) flipped
// about its base line, a bar growing left (3) one growing right (4) flipped
// the same way, and one growing right is one growing up mirrored across
// the diagonal that takes up to right and the right side to the top.
//
// A cap's size is a percentage of the bar's width at its end; when the two
// caps together are longer than the bar they shrink in proportion to fit.
// A cap of no size (under 0.001) is straight.
#pragma once

namespace Velarix {

class vxBarStyle;
class vxPath2DOLD;

class vxBarOutline {
public:
    // Direction a bar grows from its base to its value end:
    // 1 toward smaller y (up), 2 toward larger y, 3 toward smaller x, 4 toward larger x.
    // Any other value is taken as 1.
    enum Direction : short { kUp = 1, kDown = 2, kToLeft = 3, kToRight = 4 };

    // Fills `path` (emptied first) with the closed outline of a flat bar over rect
    // (left, top, right, bottom), with the start cap of `style` at the base and the end cap
    // at the far end. Straight caps give the four corners from the down side of the base:
    // left-bottom, right-bottom, right-top, left-top for direction 1. A failed allocation
    // leaves error 5000 on the path.
    static void build(vxPath2DOLD& path, const float rect[4], short direction,
                      const vxBarStyle& style);
    // The cap sizes for a bar of height h (along its growth), width w and width wTop at
    // its far end, from the style's percentages, scaled down together when they exceed h.
    // Negative percentages and heights count as 0.
    static void getCapSizes(float h, float w, float wTop, const vxBarStyle& style, float& startSize,
                            float& endSize);
};

}  // namespace Velarix
