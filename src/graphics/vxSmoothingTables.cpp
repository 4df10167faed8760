#include "graphics/vxSmoothingTables.h"

#include <algorithm>

namespace Velarix {

namespace {

// clang-format off

// Rows for 2 to 8 segments.
const vxSmoothingRow kOpenRows[] = {
    {1, {0.25f}},
    {2, {0.2677f, 0.0667f}},
    {3, {0.2679f, 0.0714f, 0.0179f}},
    {4, {0.2679f, 0.0718f, 0.0191f, 0.0048f}},
    {5, {0.2679f, 0.0718f, 0.0192f, 0.0051f, 0.0013f}},
    {6, {0.2679f, 0.0718f, 0.0192f, 0.0052f, 0.0014f, 0.0003f}},
    {7, {0.2679f, 0.0718f, 0.0192f, 0.0052f, 0.0014f, 0.0004f, 0.0001f}},
};

// Rows for 3 to 15 points.
const vxSmoothingRow kClosedRows[] = {
    {1, {0.3333f}},
    {1, {0.25f}},
    {2, {0.2727f, 0.0909f}},
    {2, {0.2677f, 0.0667f}},
    {3, {0.2683f, 0.0732f, 0.0244f}},
    {3, {0.2679f, 0.0714f, 0.0179f}},
    {4, {0.268f, 0.0719f, 0.0196f, 0.0065f}},
    {4, {0.2679f, 0.0718f, 0.0191f, 0.0048f}},
    {5, {0.268f, 0.0718f, 0.0193f, 0.0053f, 0.0018f}},
    {5, {0.2679f, 0.0718f, 0.0192f, 0.0051f, 0.0013f}},
    {6, {0.2679f, 0.0718f, 0.0192f, 0.0052f, 0.0014f, 0.0005f}},
    {6, {0.2679f, 0.0718f, 0.0192f, 0.0052f, 0.0014f, 0.0003f}},
    {7, {0.2679f, 0.0718f, 0.0192f, 0.0052f, 0.0014f, 0.0004f, 0.0001f}},
};

// clang-format on

}  // namespace

const vxSmoothingRow& vxOpenSmoothingRow(long numOfSegments) {
    return kOpenRows[std::clamp(numOfSegments, 2L, 8L) - 2];
}

const vxSmoothingRow& vxClosedSmoothingRow(long numOfPoints) {
    return kClosedRows[std::clamp(numOfPoints, 3L, 15L) - 3];
}

}  // namespace Velarix
