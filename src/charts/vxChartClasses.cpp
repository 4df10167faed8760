#include "charts/vxChartClasses.h"

#include "charts/vxAreaChart1D.h"
#include "charts/vxAreaChart2D.h"
#include "charts/vxBarChart1D.h"
#include "charts/vxBarChart2D.h"
#include "charts/vxLineChart1D.h"
#include "charts/vxLineChart2D.h"
#include "charts/vxPieChart.h"
#include "script/vxFunctionIds.h"

namespace Velarix {

std::unique_ptr<vxBaseChart> vxNewChartClass(long functionId) {
    switch (functionId) {
        case kBarChart1D:
            return std::make_unique<vxBarChart1D>();
        case kBarChart2D:
            return std::make_unique<vxBarChart2D>();
        case kAreaChart1D:
            return std::make_unique<vxAreaChart1D>();
        case kAreaChart2D:
            return std::make_unique<vxAreaChart2D>();
        case kLineChart1D:
            return std::make_unique<vxLineChart1D>();
        case kLineChart2D:
            return std::make_unique<vxLineChart2D>();
        case kPieChart:
            return std::make_unique<vxPieChart>();
        default:
            return nullptr;
    }
}

}  // namespace Velarix
