#include "charts/vxAreaChart1D.h"

#include <new>

#include "graphics/vxPath2DOLD.h"
#include "script/vxAssign.h"
#include "script/vxFunctionIds.h"

namespace Velarix {

namespace {

constexpr short kAreaMarker = 1;
constexpr short kSymbolMarker = 2;
constexpr short kLineMarker = 4;
constexpr short kCenterLabel = 5;

}  // namespace

vxAreaChart1D::vxAreaChart1D() : vxAreaChart1D(L"vxAreaChart1D") {}

vxAreaChart1D::vxAreaChart1D(const wchar_t* className) : vxPointChart(className) {
    setDefaults();
}

void vxAreaChart1D::setDefaults() {
    vxPointChart::setDefaults();
    useLineStyles = false;
    if (getParameters().isStacked()) setDefaultLabelLocation(kCenterLabel);
    setUpMarkerType();
}

void vxAreaChart1D::setUpMarkerType() {
    short marker = kAreaMarker;
    if (getParameters().doShowSymbols()) marker += kSymbolMarker;
    if (useLineStyles) marker += kLineMarker;
    setDefaultLegendMarkerType(marker);
}

void vxAreaChart1D::assign(vxAssign& a) {
    setDefaults();
    vxPointChart::assign(a);
}

// A proportional chart keeps its reference at 0.
void vxAreaChart1D::setOptions(vxAssign& a) {
    if (a.getFunction() != kAreaChartOptions) return;
    useLineStyles = a.getBool(0, false);
    const bool proportional = getParameters().isProportional() && isOneDimensional();
    getParameters().setReferenceValue(proportional ? 0.0 : a.getDouble(1, 0.0));
    if (isOneDimensional()) getParameters().setSplitStackedValues(a.getBool(2, true));
    setUpMarkerType();
}

void vxAreaChart1D::setUp() {
    setUpReferenceValue();
    if (isError()) return;
    if (getParameters().isStacked()) {
        setUpStackedValues();
    } else {
        setUpNonStackedValues();
    }
}

float vxAreaChart1D::bottomOf(long s, long c) const {
    if (!getParameters().isStacked()) return positiveValuesDC[rowIndex(0, c)];
    return topRowOf(s, c)[rowIndex(s, c)];
}

// Along the top edge from the run's first point to its last, and back
// along the bottom edge.
std::unique_ptr<vxPath2DOLD> vxAreaChart1D::makeAreaOutline(long s) {
    if (!setUpSeriesPolygon(s)) return nullptr;
    auto path = std::make_unique<vxPath2DOLD>();
    const bool horizontal = getParameters().isHorizontal();
    const long n = static_cast<long>(validDC.size());
    path->setCapacity(2 * n + 2);
    for (long i = 0; i < n;) {
        long run = 0;
        while (i + run < n && validDC[static_cast<size_t>(i + run)]) ++run;
        if (run >= 2) {
            path->addPolygon(xDC, yDC, i, run, false);
            for (long c = i + run - 1; c >= i; --c) {
                const float along = intervalValuesDC[static_cast<size_t>(c)];
                const float across = bottomOf(s, c);
                path->lineTo(horizontal ? across : along, horizontal ? along : across);
            }
            path->close();
        }
        i += std::max(run, 1L);
    }
    if (path->isError()) throw std::bad_alloc();
    return path->isEmpty() ? nullptr : std::move(path);
}

}  // namespace Velarix
