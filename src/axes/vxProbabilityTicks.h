// The tick values of a probability scale: one row for each half count h of
// 1 to 8, with 2h + 1 percent values from 0.1 to 99.9.
#pragma once

#include <span>

namespace Velarix {

constexpr long kNumOfProbabilityRows = 8;

// The row of half count h, 1 to kNumOfProbabilityRows; empty otherwise.
std::span<const double> vxProbabilityTicks(long h);

}  // namespace Velarix
