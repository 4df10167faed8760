#include "data/vxDataSorter.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <random>
#include <vector>

namespace Velarix {
namespace {

using Limits = std::numeric_limits<double>;

// Ordered by value, and -0 before 0, as the sort orders them.
bool isInOrder(const std::vector<double>& values) {
    for (std::size_t i = 1; i < values.size(); ++i) {
        double a = values[i - 1], b = values[i];
        if (a > b || (a == b && std::signbit(b) && !std::signbit(a))) return false;
    }
    return true;
}

std::vector<double> bitsOf(std::vector<double> values) {
    std::sort(values.begin(), values.end(),
              [](double a, double b) { return vxDataSorter::toKey(a) < vxDataSorter::toKey(b); });
    return values;
}

TEST(vxDataSorterTest, KeysFollowTheOrderOfTheValues) {
    const double ordered[] = {-Limits::infinity(),
                              -Limits::max(),
                              -1.5,
                              -Limits::denorm_min(),
                              -0.0,
                              0.0,
                              Limits::denorm_min(),
                              Limits::min(),
                              1.0,
                              Limits::max(),
                              Limits::infinity()};
    for (std::size_t i = 0; i < std::size(ordered); ++i) {
        EXPECT_EQ(vxDataSorter::fromKey(vxDataSorter::toKey(ordered[i])), ordered[i]);
        EXPECT_EQ(std::signbit(vxDataSorter::fromKey(vxDataSorter::toKey(ordered[i]))),
                  std::signbit(ordered[i]));
        if (i > 0) {
            EXPECT_LT(vxDataSorter::toKey(ordered[i - 1]), vxDataSorter::toKey(ordered[i]));
        }
    }
}

TEST(vxDataSorterTest, ShortAndLongColumnsComeOutInOrder) {
    std::mt19937_64 random(7);
    std::uniform_real_distribution<double> wide(-1e6, 1e6);
    std::uniform_int_distribution<int> small(-50, 50);
    const std::size_t lengths[] = {0, 1, 100, vxDataSorter::kMinRadixLength,
                                   3 * vxDataSorter::kMinRadixLength + 5};
    for (std::size_t length : lengths) {
        for (int kind = 0; kind < 3; ++kind) {
            std::vector<double> values(length);
            for (double& v : values) {
                v = kind == 0 ? wide(random) : kind == 1 ? small(random) : 4.25;
            }
            if (length > 10) {
                values[3] = -0.0;
                values[5] = -Limits::max();
                values[7] = Limits::denorm_min();
                values[9] = 0.0;
            }
            std::vector<double> expected = bitsOf(values);
            vxDataSorter::sortAscending(values);
            EXPECT_TRUE(isInOrder(values)) << length << " kind " << kind;
            EXPECT_EQ(values, expected) << length << " kind " << kind;
        }
    }
}

}  // namespace
}  // namespace Velarix
