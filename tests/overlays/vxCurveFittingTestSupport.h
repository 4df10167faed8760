// Fits built by hand for the tests: x and y as a 2D bar chart's series, an
// item of a fit type with its options, and the tolerance of a comparison.
#pragma once

#include <gtest/gtest.h>

#include <cmath>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

#include "charts/vxBaseChartParameters.h"
#include "charts/vxChartTypeTable.h"
#include "data/vxDataManager.h"
#include "overlays/vxCurveFittingItem.h"
#include "script/vxAssign.h"
#include "script/vxFunctionIds.h"
#include "settings/vxUserSettings.h"

namespace Velarix::test {

inline std::wstring numberList(const std::vector<double>& values) {
    std::wostringstream out;
    out.precision(17);
    for (size_t i = 0; i < values.size(); ++i) out << (i ? L" " : L"") << values[i];
    return out.str();
}

// One chart series of x and y, ready for fitting.
class FitData {
public:
    FitData(const std::vector<double>& x, const std::vector<double>& y)
        : FitData(numberList(x).c_str(), numberList(y).c_str()) {}
    FitData(const wchar_t* x, const wchar_t* y) : settings(L"", L"", 1, 1), data(&settings) {
        vxAssign chart;
        chart.setFunction(kBarChart2D);
        vxSetUpChartParameters(kBarChart2D, chart, parameters);
        vxAssign a;
        a.setFunction(kChartData);
        a.addString(x);
        a.addString(y);
        data.assign(a);
        data.setUp(parameters);
        data.setUpChartSeries(parameters);
        data.insertIntervalValues(parameters);
    }

    // An item of `type` for series 1; the options are switched axes,
    // extrapolation and through zero.
    std::unique_ptr<vxCurveFittingItem> fit(short type, bool throughZero = false,
                                            bool switchAxes = false) {
        std::unique_ptr<vxCurveFittingItem> item = vxCurveFittingItem::make(type, &settings);
        vxAssign options;
        options.setFunction(kCurveFittingOptions);
        options.addShort(switchAxes ? 1 : 0);
        options.addShort(0);
        options.addShort(throughZero ? 1 : 0);
        item->assignOptions(options);
        item->setSeriesIndex(1);
        item->setUp(data);
        return item;
    }

    vxUserSettings settings;
    vxBaseChartParameters parameters;
    vxDataManager data;
};

// Within a relative tolerance of the larger magnitude, or an absolute one
// near zero.
inline ::testing::AssertionResult near(double actual, double expected, double relative) {
    const double scale = std::max({std::fabs(actual), std::fabs(expected), 1.0});
    if (std::fabs(actual - expected) <= relative * scale) return ::testing::AssertionSuccess();
    return ::testing::AssertionFailure() << actual << " differs from " << expected;
}

}  // namespace Velarix::test
