#include "graphics/vxDashPatterns.h"

namespace Velarix {

// clang-format off
const vxDashPattern kDashPatterns[kNumOfDashPatterns] = {
    {2, {5, 2}},
    {4, {5, 2, 2, 2}},
    {6, {5, 2, 2, 2, 2, 2}},
    {2, {2, 2}},
    {2, {10, 2}},
    {4, {10, 2, 5, 2}},
    {4, {10, 2, 2, 2}},
    {6, {10, 2, 2, 2, 2, 2}},
};
// clang-format on

}  // namespace Velarix
