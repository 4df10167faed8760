// Helpers of the path tests: a path's points compared with points written
// out by hand.
#pragma once

#include <gtest/gtest.h>

#include <cmath>
#include <utility>
#include <vector>

#include "graphics/vxPath2DOLD.h"

namespace Velarix::test {

using Point = std::pair<float, float>;
using Verbs = std::vector<short>;

inline ::testing::AssertionResult hasPoints(const vxPath2DOLD& path,
                                            const std::vector<Point>& expected,
                                            float tolerance = 1e-4f) {
    if (path.getNumOfPoints() != static_cast<long>(expected.size())) {
        return ::testing::AssertionFailure()
               << path.getNumOfPoints() << " points, expected " << expected.size();
    }
    for (size_t i = 0; i < expected.size(); ++i) {
        const float x = path.getX()[i], y = path.getY()[i];
        if (std::fabs(x - expected[i].first) > tolerance ||
            std::fabs(y - expected[i].second) > tolerance) {
            return ::testing::AssertionFailure()
                   << "point " << i << " is " << x << ", " << y << ", expected "
                   << expected[i].first << ", " << expected[i].second;
        }
    }
    return ::testing::AssertionSuccess();
}

inline std::vector<float> boundsOf(vxGObjectOLD& object) {
    float b[4];
    object.getBounds(b);
    return {b[0], b[1], b[2], b[3]};
}

inline ::testing::AssertionResult hasBounds(vxGObjectOLD& object,
                                            const std::vector<float>& expected,
                                            float tolerance = 1e-4f) {
    const std::vector<float> b = boundsOf(object);
    for (size_t i = 0; i < 4; ++i) {
        if (std::fabs(b[i] - expected[i]) > tolerance) {
            return ::testing::AssertionFailure()
                   << "bounds " << b[0] << " " << b[1] << " " << b[2] << " " << b[3];
        }
    }
    return ::testing::AssertionSuccess();
}

// The point of the cubic p0..p3 at parameter t.
inline Point cubicAt(const vxPath2DOLD& path, size_t first, float t) {
    const auto& x = path.getX();
    const auto& y = path.getY();
    const float s = 1.0f - t;
    const float w[4] = {s * s * s, 3 * s * s * t, 3 * s * t * t, t * t * t};
    Point p{0.0f, 0.0f};
    for (size_t k = 0; k < 4; ++k) {
        p.first += w[k] * x[first + k];
        p.second += w[k] * y[first + k];
    }
    return p;
}

}  // namespace Velarix::test
