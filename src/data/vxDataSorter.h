// Sorting of long columns of doubles. A series of a million values is
// sorted by its bits, in six passes of eleven bits each, instead of by
// comparison; short ones go through std::sort with the same order.
#pragma once

#include <cstdint>
#include <vector>

namespace Velarix {

class vxDataSorter {
public:
    // Ascending order of the values' bits read as a signed number: -0 comes
    // before 0, and every double has its place. May throw std::bad_alloc
    // (for a scratch column as long as the values); the values are then
    // unchanged.
    static void sortAscending(std::vector<double>& values);

    // The order-preserving key of a double, and back.
    static std::uint64_t toKey(double value);
    static double fromKey(std::uint64_t key);

    // Below this length a comparison sort is quicker.
    static constexpr std::size_t kMinRadixLength = 4096;
};

}  // namespace Velarix
