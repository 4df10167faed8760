#include "charts/vxLineChart1D.h"

#include <new>

#include "drawing/vxLayerManager.h"
#include "script/vxAssign.h"
#include "script/vxFunctionIds.h"
#include "settings/vxErrorCodes.h"

namespace Velarix {

namespace {

constexpr short kLineMarker = 4;
constexpr short kSymbolMarker = 2;
constexpr short kPointLabel = 3;
constexpr short kCenterLabel = 5;

}  // namespace

vxLineChart1D::vxLineChart1D() : vxLineChart1D(L"vxLineChart1D") {}

vxLineChart1D::vxLineChart1D(const wchar_t* className) : vxPointChart(className) {
    setDefaults();
}

void vxLineChart1D::setDefaults() {
    vxPointChart::setDefaults();
    setDefaultLabelLocation(getParameters().isStacked() ? kCenterLabel : kPointLabel);
    const bool symbols = getParameters().doShowSymbols();
    setDefaultLegendMarkerType(kLineMarker + (symbols ? kSymbolMarker : 0));
}

void vxLineChart1D::assign(vxAssign& a) {
    setDefaults();
    vxPointChart::assign(a);
}

void vxLineChart1D::setOptions(vxAssign& a) {
    if (a.getFunction() != kScatterChartOptions || a.isVoid(0)) return;
    const bool proportional = getParameters().isProportional();
    getParameters().setHasReferenceValue(!proportional);
    getParameters().setReferenceValue(proportional ? 0.0 : a.getDouble(0));
}

void vxLineChart1D::setUp() {
    setUpReferenceValue();
    if (!isError()) setUpAdditions();
    if (isError()) return;
    if (getParameters().isStacked()) {
        setUpStackedValues();
    } else {
        setUpNonStackedValues();
    }
}

// Shadows under everything, then per series from the last: its line, its
// overlays and its symbols; the labels on top.
void vxLineChart1D::setUpLayers(vxLayerManager* layerMng) {
    if (!layerMng || isError()) return;
    setUpClipRect(widestHalfStroke());
    try {
        if (getParameters().doShowShadows()) addSeriesShadows(*layerMng);
        if (!isError()) addSeries(*layerMng);
        if (!isError()) addLabels(*layerMng);
    } catch (const std::bad_alloc&) {
        setError(vxErrRuntime::kOutOfMemory, where(L"setUpLayers"));
    }
}

void vxLineChart1D::addSeriesShadows(vxLayerManager& layerMng) {
    setUpSeriesShadowClip();
    for (long s = getNumOfChartSeries() - 1; s >= 0 && !isError(); --s) {
        addLineShadows(layerMng, s);
        if (!isError()) addCurveFittingShadow(layerMng, s);
        if (!isError()) addSymbolShadows(layerMng, s);
    }
}

void vxLineChart1D::addSeries(vxLayerManager& layerMng) {
    for (long s = getNumOfChartSeries() - 1; s >= 0 && !isError(); --s) {
        addLines(layerMng, s);
        if (!isError()) addCurveFitting(layerMng, s);
        if (!isError()) addSymbols(layerMng, s);
    }
}

}  // namespace Velarix
