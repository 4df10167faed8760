// The 42 gradient resources. Rows 1 to 16 run white to grey: edge to edge
// in eight directions, then bands reflected about the middle. Rows 17 to
// 32 repeat the directions in tints. Rows 33 to 42 are radial: centred,
// lit off-centre, glowing from a corner or an edge, and rings.
#include "platform/vxGradientSettings.h"

namespace Velarix {

namespace {

constexpr short kLinear = 2;
constexpr short kRadial = 3;
constexpr short kPad = 1;
constexpr short kRepeat = 2;
constexpr short kReflect = 3;

constexpr float kCenter = 0.5f;
constexpr float kRadius = 0.5f;
constexpr float kCornerRadius = 0.7071068f;

constexpr vxRGB kWhite{255, 255, 255};
constexpr vxRGB kGrey{184, 184, 184};
constexpr vxRGB kSteel{176, 196, 222};
constexpr vxRGB kSand{222, 205, 170};
constexpr vxRGB kSage{190, 215, 185};
constexpr vxRGB kRose{230, 190, 195};
constexpr vxRGB kSlate{112, 128, 144};

}  // namespace

const vxGradientSetting kGradientSettings[kNumOfGradientSettings] = {
    // 1 to 8: edge to edge, white to grey.
    {kLinear, 0, 0, 1, 0, kRadius, kPad, kWhite, kGrey},
    {kLinear, 0, 0, 0, 1, kRadius, kPad, kWhite, kGrey},
    {kLinear, 1, 0, 0, 0, kRadius, kPad, kWhite, kGrey},
    {kLinear, 0, 1, 0, 0, kRadius, kPad, kWhite, kGrey},
    {kLinear, 0, 0, 1, 1, kRadius, kPad, kWhite, kGrey},
    {kLinear, 1, 0, 0, 1, kRadius, kPad, kWhite, kGrey},
    {kLinear, 1, 1, 0, 0, kRadius, kPad, kWhite, kGrey},
    {kLinear, 0, 1, 1, 0, kRadius, kPad, kWhite, kGrey},
    // 9 to 16: from the middle out to both sides, reflected.
    {kLinear, kCenter, kCenter, 1, kCenter, kRadius, kReflect, kWhite, kGrey},
    {kLinear, kCenter, kCenter, kCenter, 1, kRadius, kReflect, kWhite, kGrey},
    {kLinear, kCenter, kCenter, 1, 1, kRadius, kReflect, kWhite, kGrey},
    {kLinear, kCenter, kCenter, 0, 1, kRadius, kReflect, kWhite, kGrey},
    {kLinear, kCenter, kCenter, 1, kCenter, kRadius, kReflect, kGrey, kWhite},
    {kLinear, kCenter, kCenter, kCenter, 1, kRadius, kReflect, kGrey, kWhite},
    {kLinear, kCenter, kCenter, 1, 1, kRadius, kReflect, kGrey, kWhite},
    {kLinear, kCenter, kCenter, 0, 1, kRadius, kReflect, kGrey, kWhite},
    // 17 to 32: four directions in each of four tints.
    {kLinear, 0, 0, 1, 0, kRadius, kPad, kWhite, kSteel},
    {kLinear, 0, 0, 0, 1, kRadius, kPad, kWhite, kSteel},
    {kLinear, 0, 0, 1, 1, kRadius, kPad, kWhite, kSteel},
    {kLinear, kCenter, kCenter, kCenter, 1, kRadius, kReflect, kWhite, kSteel},
    {kLinear, 0, 0, 1, 0, kRadius, kPad, kWhite, kSand},
    {kLinear, 0, 0, 0, 1, kRadius, kPad, kWhite, kSand},
    {kLinear, 0, 0, 1, 1, kRadius, kPad, kWhite, kSand},
    {kLinear, kCenter, kCenter, kCenter, 1, kRadius, kReflect, kWhite, kSand},
    {kLinear, 0, 0, 1, 0, kRadius, kPad, kWhite, kSage},
    {kLinear, 0, 0, 0, 1, kRadius, kPad, kWhite, kSage},
    {kLinear, 0, 0, 1, 1, kRadius, kPad, kWhite, kSage},
    {kLinear, kCenter, kCenter, kCenter, 1, kRadius, kReflect, kWhite, kSage},
    {kLinear, 0, 0, 1, 0, kRadius, kPad, kWhite, kRose},
    {kLinear, 0, 0, 0, 1, kRadius, kPad, kWhite, kRose},
    {kLinear, 0, 0, 1, 1, kRadius, kPad, kWhite, kRose},
    {kLinear, kCenter, kCenter, kCenter, 1, kRadius, kReflect, kWhite, kRose},
    // 33 to 42: radial.
    {kRadial, kCenter, kCenter, kCenter, kCenter, kRadius, kPad, kWhite, kGrey},
    {kRadial, kCenter, kCenter, kCenter, kCenter, kRadius, kPad, kGrey, kWhite},
    {kRadial, kCenter, kCenter, kCenter, kCenter, kCornerRadius, kPad, kWhite, kGrey},
    {kRadial, kCenter, kCenter, 0.3f, 0.3f, kRadius, kPad, kWhite, kGrey},
    {kRadial, kCenter, kCenter, 0.7f, 0.3f, kRadius, kPad, kWhite, kGrey},
    {kRadial, 0, 0, 0, 0, 1, kPad, kWhite, kGrey},
    {kRadial, 1, 1, 1, 1, 1, kPad, kWhite, kGrey},
    {kRadial, kCenter, 0, kCenter, 0, 1, kPad, kWhite, kGrey},
    {kRadial, kCenter, kCenter, kCenter, kCenter, 0.125f, kRepeat, kWhite, kGrey},
    {kRadial, kCenter, kCenter, kCenter, kCenter, kCornerRadius, kPad, kWhite, kSlate},
};

}  // namespace Velarix
