#include "axes/vxProbabilityTicks.h"

namespace Velarix {

namespace {

// The rows one after the other: row h starts at element h x h - 1.
constexpr double kTicks[] = {
    0.1, 50,  99.9,                                                                          //
    0.1, 10,  50,   90, 99.9,                                                                //
    0.1, 1,   10,   50, 90,   99, 99.9,                                                      //
    0.1, 1,   10,   30, 50,   70, 90,   99, 99.9,                                            //
    0.1, 1,   10,   20, 30,   50, 70,   80, 90,   99, 99.9,                                  //
    0.1, 1,   5,    10, 20,   30, 50,   70, 80,   90, 95,   99, 99.9,                        //
    0.1, 1,   5,    10, 20,   30, 40,   50, 60,   70, 80,   90, 95,   99, 99.9,              //
    0.1, 0.5, 1,    5,  10,   20, 30,   40, 50,   60, 70,   80, 90,   95, 99,   99.5, 99.9,  //
};

static_assert(sizeof kTicks / sizeof kTicks[0] ==
              size_t((kNumOfProbabilityRows + 1) * (kNumOfProbabilityRows + 1) - 1));

}  // namespace

std::span<const double> vxProbabilityTicks(long h) {
    if (h < 1 || h > kNumOfProbabilityRows) return {};
    return std::span<const double>(kTicks + (h * h - 1), size_t(2 * h + 1));
}

}  // namespace Velarix
