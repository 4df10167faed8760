// The curve of a fit on the chart: points evenly spaced in x, each through
// the scaling of the two axes, joined by a smooth path; and the limits the
// curve needs when it runs past the data.
#include <algorithm>
#include <cmath>
#include <vector>

#include "axes/vxAxisItem.h"
#include "axes/vxAxisScaling.h"
#include "charts/vxBaseChart.h"
#include "graphics/vxBasicSymbol.h"
#include "graphics/vxGObjectAppearanceOLD.h"
#include "graphics/vxPath2DOLD.h"
#include "overlays/vxCurveFittingItem.h"
#include "overlays/vxCurveFittingLineStyle.h"
#include "styles/vxSymbolStyle.h"

namespace Velarix {

namespace {

// Points of a curve whose number follows from its length: one per two
// device units, within the range the script may ask for.
constexpr long kMinCurvePoints = 10;
constexpr long kMaxCurvePoints = 1000;
// Points outside the drawing by more than this are held at it, so that a
// steep curve still leaves the plot in the right direction.
constexpr float kReachDC = 1e5f;
// Samples of the curve when it widens an axis's limits.
constexpr long kLimitSamples = 200;

}  // namespace

long vxCurveFittingItem::getNumOfCurvePoints(float lengthDC) const {
    const long estimate = static_cast<long>(std::fabs(lengthDC) * 0.5f);
    return std::clamp(estimate, kMinCurvePoints, kMaxCurvePoints);
}

bool vxCurveFittingItem::getCurveSpan(const vxBaseChart& chart, double span[2]) const {
    span[0] = minX;
    span[1] = maxX;
    if (!extrapolate) return span[0] < span[1];
    // x lies along the axis of value series 0, or of the values when the
    // axes are switched.
    const vxAxisItem* axis = switchAxes ? chart.getValueAxis() : chart.getIntervalAxis();
    if (!axis) return false;
    // The curve reaches the plot's edges, where the items' offset moves it.
    const vxAxisScaling& scaling = *axis->getScaling();
    const float offset = switchAxes ? 0.0f : chart.getItemOffsetDC(seriesIndex - 1);
    const double a = scaling.toUC(scaling.getMinDC() - offset);
    const double b = scaling.toUC(scaling.getMaxDC() - offset);
    span[0] = std::min(a, b);
    span[1] = std::max(a, b);
    return span[0] < span[1];
}

bool vxCurveFittingItem::toDC(const vxBaseChart& chart, double x, double y, float out[2]) const {
    const vxAxisItem* along = chart.getIntervalAxis();
    const vxAxisItem* across = chart.getValueAxis();
    if (!along || !across) return false;
    const double first = switchAxes ? y : x;
    const double second = switchAxes ? x : y;
    float a = along->toDC(first) + chart.getItemOffsetDC(seriesIndex - 1);
    float b = across->toDC(second);
    if (!std::isfinite(a) || !std::isfinite(b)) return false;
    a = std::clamp(a, -kReachDC, kReachDC);
    b = std::clamp(b, -kReachDC, kReachDC);
    out[0] = chart.getParameters().isHorizontal() ? b : a;
    out[1] = chart.getParameters().isHorizontal() ? a : b;
    return true;
}

// Points the form can't take (x at or below 0 in a logarithm) or that the
// axes can't show break the curve into pieces.
std::unique_ptr<vxGObjectOLD> vxCurveFittingItem::makeCurve(const vxBaseChart& chart,
                                                            const vxPaintOLD* paint) const {
    double span[2];
    if (!coefficientsReady || !getCurveSpan(chart, span)) return nullptr;
    const vxAxisItem* axis = switchAxes ? chart.getValueAxis() : chart.getIntervalAxis();
    const float length = axis ? axis->toDC(span[1]) - axis->toDC(span[0]) : 0.0f;
    long n = numOfCurvePoints > 0 ? numOfCurvePoints
                                  : getNumOfCurvePoints(std::isfinite(length) ? length : 0.0f);
    n = std::max(n, 2L);
    auto path = std::make_unique<vxPath2DOLD>();
    std::vector<float> xs, ys;
    const auto flush = [&] {
        if (xs.size() >= 2) path->addSmoothPolygon(xs, ys, false);
        xs.clear();
        ys.clear();
    };
    for (long i = 0; i < n; ++i) {
        const double x = span[0] + (span[1] - span[0]) * static_cast<double>(i) / (n - 1);
        const double y = isInDomain(x) ? valueAt(x) : NAN;
        float at[2];
        if (!std::isfinite(y) || !toDC(chart, x, y, at)) {
            flush();
            continue;
        }
        xs.push_back(at[0]);
        ys.push_back(at[1]);
    }
    flush();
    const vxPaintOLD* ink = paint ? paint : lineStyle->getPaint();
    if (path->isEmpty() || !ink || !lineStyle->getStroke()) return nullptr;
    vxGObjectAppearanceOLD& look = *path->getAppearance();
    if (!look.setBorderPaint(*ink) || !look.setBorderStroke(*lineStyle->getStroke())) {
        throw std::bad_alloc();
    }
    return path;
}

void vxCurveFittingItem::makeSymbols(const vxBaseChart& chart,
                                     std::vector<std::unique_ptr<vxGObjectOLD>>& out) const {
    const vxBasicSymbol* symbol = symbolStyle->getSymbol();
    if (!coefficientsReady || !showSymbols || !symbol || !symbol->isDrawn()) return;
    for (double x : dataX) {
        const double y = valueAt(x);
        float at[2];
        if (!std::isfinite(y) || !toDC(chart, x, y, at)) continue;
        auto mark = std::make_unique<vxBasicSymbol>();
        if (!mark->copy(symbol)) throw std::bad_alloc();
        mark->setCenter(at[0], at[1]);
        out.push_back(std::move(mark));
    }
}

void vxCurveFittingItem::getYLimits(const double independent[2], double dependent[2]) const {
    if (!coefficientsReady || !extrapolate) return;
    const double low = std::min(independent[0], minX);
    const double high = std::max(independent[1], maxX);
    for (long i = 0; i < kLimitSamples; ++i) {
        const double x = low + (high - low) * static_cast<double>(i) / (kLimitSamples - 1);
        if (!isInDomain(x)) continue;
        const double y = valueAt(x);
        if (!std::isfinite(y)) continue;
        dependent[0] = std::min(dependent[0], y);
        dependent[1] = std::max(dependent[1], y);
    }
}

}  // namespace Velarix
