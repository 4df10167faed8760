#include "charts/vxBarCapTable.h"

#include <iterator>

namespace Velarix {

namespace {

using S = vxCapStep;
constexpr S::End kIn = S::kInward;
constexpr S::End kUp = S::kUpSide;
constexpr S::End kOut = S::kOutward;
constexpr S::End kDown = S::kDownSide;

// A point at ofWidth * W + ofCap * c across and vOfCap * c along.
constexpr S P(float ofWidth, float ofCap, float vOfCap) {
    return {false, {ofWidth, ofCap}, vOfCap, {0.0f, 0.0f}, 0.0f, kIn, 0};
}

// An arc in the box from (u, v) to (u2, v2).
constexpr S A(vxCapLength u, float v, vxCapLength u2, float v2, S::End from, short quarters) {
    return {true, u, v, u2, v2, from, quarters};
}

// A cap of one form, whatever its size.
constexpr vxCapShape one(vxCapForm form) {
    return {0.0f, form, form};
}

// The narrow forms round with circles of radius c; the wide forms stretch
// the ellipse over the width, so the two meet where the narrow form runs
// out of room.
// clang-format off
constexpr vxCapShape kShapes[] = {
    // 0 straight
    one({2, {P(0, 0, 0), P(1, 0, 0)}}),
    // 1 pike: the corners cut back to a point in the middle of the edge
    one({3, {P(0, 0, 1), P(0.5f, 0, 0), P(1, 0, 1)}}),
    // 2 skew up: the up side cut back
    one({2, {P(0, 0, 0), P(1, 0, 1)}}),
    // 3 skew down: the down side cut back
    one({2, {P(0, 0, 1), P(1, 0, 0)}}),
    // 4 notch: a wedge cut in to the middle
    one({3, {P(0, 0, 0), P(0.5f, 0, 1), P(1, 0, 0)}}),
    // 5 round: both corners rounded, or a half ellipse over the width
    {0.5f,
     {3, {P(0, 0, 1), A({0, 0}, 0, {0, 2}, 2, kDown, -1), A({1, -2}, 0, {1, 0}, 2, kOut, -1)}},
     {2, {P(0, 0, 1), A({0, 0}, 0, {1, 0}, 2, kDown, -2)}}},
    // 6 round up: the corner of the up side rounded
    {1.0f,
     {2, {P(0, 0, 0), A({1, -2}, 0, {1, 0}, 2, kOut, -1)}},
     {2, {P(0, 0, 0), A({-1, 0}, 0, {1, 0}, 2, kOut, -1)}}},
    // 7 round down: the corner of the down side rounded
    {1.0f,
     {3, {P(0, 0, 1), A({0, 0}, 0, {0, 2}, 2, kDown, -1), P(1, 0, 0)}},
     {2, {P(0, 0, 1), A({0, 0}, 0, {2, 0}, 2, kDown, -1)}}},
    // 8 beak up: the up side cut back by a hollow quarter ellipse that
    // leaves a beak at the down side
    one({2, {P(0, 0, 0), A({0, 0}, -1, {2, 0}, 1, kDown, 1)}}),
    // 9 beak down: the same with the sides exchanged
    one({2, {P(0, 0, 1), A({-1, 0}, -1, {1, 0}, 1, kIn, 1)}}),
    // 10 round notch: a half ellipse cut in over the width
    one({2, {P(0, 0, 0), A({0, 0}, -1, {1, 0}, 1, kDown, 2)}}),
};
// clang-format on

}  // namespace

const vxCapShape& vxCapShapeOf(short capType) {
    if (capType < 0 || capType >= static_cast<short>(std::size(kShapes))) return kShapes[0];
    return kShapes[capType];
}

}  // namespace Velarix
