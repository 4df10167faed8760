// The coefficients of the smooth curves: the tangent at a point is
//   c1 (p(i+1) - p(i-1)) - c2 (p(i+2) - p(i-2)) + c3 (p(i+3) - p(i-3)) - ...
// These are the leading terms of the inverse of the tridiagonal system of
// a cubic spline, so that no system has to be solved per curve.
#pragma once

namespace Velarix {

struct vxSmoothingRow {
    static constexpr int kMaxTerms = 7;
    int numOfTerms;
    float c[kMaxTerms];
};

// An open curve of n segments reads the row of min(8, n), n at least 2.
const vxSmoothingRow& vxOpenSmoothingRow(long numOfSegments);
// A closed curve of n points reads the row of n, and the last row from 15
// points on; n at least 3.
const vxSmoothingRow& vxClosedSmoothingRow(long numOfPoints);

}  // namespace Velarix
