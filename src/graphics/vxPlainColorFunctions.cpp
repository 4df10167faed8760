#include "graphics/vxPlainColorFunctions.h"

#include <algorithm>
#include <iterator>

#include "script/vxFunctionIds.h"

namespace Velarix {

namespace {

const long kPlainColorFunctions[] = {
    kAddText,
    kAxisLabelStyle,
    kAxisMajorTickLabelStyle,
    kAxisMinorTickLabelStyle,
    kLabelStyle,
    kLegendStyle,
    kMajorGridLineColors,
    kMajorGridStripeColors,
    kMinorGridLineColors,
    kMinorGridStripeColors,
    kPieChartCenterLabelStyle,
    kPieChartInnerLabelStyle,
    kTitleStyle,
};

}  // namespace

bool vxIsPlainColorFunction(long fnId) {
    return std::find(std::begin(kPlainColorFunctions), std::end(kPlainColorFunctions), fnId) !=
           std::end(kPlainColorFunctions);
}

}  // namespace Velarix
