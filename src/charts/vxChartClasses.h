// The chart class that draws the series of a chart function.
#pragma once

#include <memory>

namespace Velarix {

class vxBaseChart;

// A new chart class for the chart function; null for the kinds that have
// none yet and draw their axes only. Allocation failure throws
// std::bad_alloc, which the caller turns into its error.
std::unique_ptr<vxBaseChart> vxNewChartClass(long functionId);

}  // namespace Velarix
