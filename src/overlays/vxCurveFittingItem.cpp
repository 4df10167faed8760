#include "overlays/vxCurveFittingItem.h"

#include <algorithm>
#include <cmath>
#include <new>

#include "data/vxDataManager.h"
#include "host/vxLog.h"
#include "overlays/vxCurveFittingData.h"
#include "overlays/vxCurveFittingExponential.h"
#include "overlays/vxCurveFittingLineStyle.h"
#include "overlays/vxCurveFittingLogarithmic.h"
#include "overlays/vxCurveFittingPolynomial.h"
#include "overlays/vxCurveFittingPower.h"
#include "script/vxAssign.h"
#include "styles/vxSymbolStyle.h"

namespace Velarix {

namespace {

constexpr double kSmallest = 1e-10;

double mean(const std::vector<double>& values) {
    double sum = 0.0;
    for (double v : values) sum += v;
    return values.empty() ? 0.0 : sum / static_cast<double>(values.size());
}

}  // namespace

vxCurveFittingItem::vxCurveFittingItem(const wchar_t* className, vxUserSettings* owner,
                                       short fitType)
    : vxErrorHolder(className),
      type(fitType),
      owner(owner),
      lineStyle(std::make_unique<vxCurveFittingLineStyle>(owner, 1)),
      symbolStyle(std::make_unique<vxSymbolStyle>(owner, 1)) {}

vxCurveFittingItem::~vxCurveFittingItem() = default;

std::unique_ptr<vxCurveFittingItem> vxCurveFittingItem::make(short type, vxUserSettings* owner) {
    if (type >= kLinear && type <= kMaxDegree) {
        return std::make_unique<vxCurveFittingPolynomial>(owner, type);
    }
    switch (type) {
        case kPower:
            return std::make_unique<vxCurveFittingPower>(owner);
        case kExponential:
            return std::make_unique<vxCurveFittingExponential>(owner);
        case kLogarithmic:
            return std::make_unique<vxCurveFittingLogarithmic>(owner);
        default:
            return nullptr;
    }
}

bool vxCurveFittingItem::copyFrom(const vxCurveFittingItem& from) {
    switchAxes = from.switchAxes;
    extrapolate = from.extrapolate;
    forceThruZero = from.forceThruZero;
    numOfCurvePoints = from.numOfCurvePoints;
    showSymbols = from.showSymbols;
    if (!lineStyle->set(from.lineStyle.get())) {
        copyError(lineStyle->getError());
        return false;
    }
    if (!symbolStyle->set(from.symbolStyle.get())) {
        copyError(symbolStyle->getError());
        return false;
    }
    return true;
}

void vxCurveFittingItem::assignOptions(vxAssign& a) {
    switchAxes = a.getBool(0, switchAxes);
    extrapolate = a.getBool(1, extrapolate);
    forceThruZero = a.getBool(2, forceThruZero);
    numOfCurvePoints = a.getLong(3, numOfCurvePoints);
}

bool vxCurveFittingItem::assignLineStyle(vxAssign& a) {
    if (lineStyle->assign(a)) return true;
    copyError(lineStyle->getError());
    return false;
}

// Marks show once the script has given the fit a symbol style.
bool vxCurveFittingItem::assignSymbolStyle(vxAssign& a) {
    showSymbols = true;
    if (symbolStyle->assign(a)) return true;
    copyError(symbolStyle->getError());
    return false;
}

void vxCurveFittingItem::collectData(const vxDataManager& data, std::vector<double>& x,
                                     std::vector<double>& y) const {
    const long s = seriesIndex - 1;
    const long n = data.getNumOfItems(s);
    const long xAt = switchAxes ? 1 : 0;
    const long yAt = switchAxes ? 0 : 1;
    x.reserve(static_cast<size_t>(std::max(0L, n)));
    y.reserve(static_cast<size_t>(std::max(0L, n)));
    for (long i = 0; i < n; ++i) {
        if (!data.isValidValue(s, xAt, i) || !data.isValidValue(s, yAt, i)) continue;
        x.push_back(data.getValue(s, xAt, i));
        y.push_back(data.getValue(s, yAt, i));
    }
}

void vxCurveFittingItem::setUp(const vxDataManager& data) {
    coefficientsReady = false;
    try {
        std::vector<double> x, y;
        collectData(data, x, y);
        if (!calculateCoefficients(x, y) || !calculateCorrCoefficient(x, y)) return;
        const auto [low, high] = std::minmax_element(x.begin(), x.end());
        minX = *low;
        maxX = *high;
        dataX = std::move(x);
        coefficientsReady = true;
    } catch (const std::bad_alloc&) {
        setError(vxErrRuntime::kOutOfMemory, where(L"setUp"));
    }
}

bool vxCurveFittingItem::setUpNumOfCoefficients(size_t numOfPoints, long count) {
    numOfCoefficients = count;
    if (numOfPoints >= static_cast<size_t>(count)) return true;
    setError(vxErrChart::kCurveFittingData, where(L"setUpNumOfCoefficients"));
    return false;
}

bool vxCurveFittingItem::solveEquationSystem(const std::vector<double>& u,
                                             const std::vector<double>& v, int degree,
                                             bool throughZero) {
    const vxCurveFittingSolver::Result result = solver.solve(u, v, degree, throughZero);
    if (result == vxCurveFittingSolver::kSolved) return true;
    if (result == vxCurveFittingSolver::kNotEnoughData) {
        setError(vxErrChart::kCurveFittingData, where(L"setUpNumOfCoefficients"));
    } else {
        setError(vxErrRuntime::kDivisionByZero, where(L"solveEquationSystem"));
    }
    return false;
}

void vxCurveFittingItem::takeRawCoefficients(long count) {
    const std::vector<double>& raw = solver.getRawCoefficients();
    std::fill(std::begin(c), std::end(c), 0.0);
    for (long i = 0; i < count && i < kMaxNumOfCoefficients; ++i) {
        c[i] = raw[static_cast<size_t>(i)];
    }
    numOfCoefficients = count;
}

// The explained over the total sum of squares about the mean of y, or of
// ln y for the exponential forms.
bool vxCurveFittingItem::calculateCorrCoefficient(const std::vector<double>& x,
                                                  const std::vector<double>& y) {
    const bool logs = isExponentialForm();
    std::vector<double> observed(y.size()), fitted(y.size());
    for (size_t i = 0; i < y.size(); ++i) {
        const double f = valueAt(x[i]);
        if (logs && !(f >= kSmallest)) {
            setError(vxErrRuntime::kLogarithm, where(L"calculateCorrCoefficient", 1));
            return false;
        }
        if (logs && y[i] < kSmallest) {
            setError(vxErrRuntime::kLogarithm, where(L"calculateCorrCoefficient", 2));
            return false;
        }
        observed[i] = logs ? std::log(y[i]) : y[i];
        fitted[i] = logs ? std::log(f) : f;
    }
    const double m = mean(observed);
    double explained = 0.0, total = 0.0;
    for (size_t i = 0; i < y.size(); ++i) {
        explained += (fitted[i] - m) * (fitted[i] - m);
        total += (observed[i] - m) * (observed[i] - m);
    }
    // Values all alike are met exactly.
    const double ratio = total > 0.0 ? explained / total : 1.0;
    corrCoefficient = std::isfinite(ratio) ? std::clamp(ratio, -1.0, 1.0) : 0.0;
    return true;
}

double vxCurveFittingItem::getCoefficient(long i) const {
    return i >= 0 && i < numOfCoefficients && i < kMaxNumOfCoefficients ? c[i] : 0.0;
}

bool vxCurveFittingItem::getFunctionValue(double x, double& y) {
    y = 0.0;
    if (!isInDomain(x)) {
        setError(vxErrRuntime::kLogarithm, where(L"getFunctionValue"));
        return false;
    }
    y = valueAt(x);
    return true;
}

void vxCurveFittingItem::fillDataItem(vxCurveFittingDataItem& item) const {
    item.seriesIndex = seriesIndex;
    item.type = type;
    item.corrCoefficient = corrCoefficient;
    item.numOfCoefficients = numOfCoefficients;
    std::copy(std::begin(c), std::end(c), std::begin(item.c));
}

void vxCurveFittingItem::dump(short depth, std::ostream& out) const {
    if (depth <= 0) return;
    vxDumpHeader(out, vxNarrow(className));
    vxDumpLine(out, "long seriesIndex:    ", seriesIndex);
    vxDumpLine(out, "short type:          ", type);
    vxDumpLine(out, "bool doSwitchAxes:   ", switchAxes);
    vxDumpLine(out, "bool doExtrapolate:  ", extrapolate);
    vxDumpLine(out, "bool doForceThruZero: ", forceThruZero);
    vxDumpLine(out, "long numOfCoefficients: ", numOfCoefficients);
    vxDumpLine(out, "double corrCoefficient: ", corrCoefficient);
    for (long i = 0; i < numOfCoefficients && i < kMaxNumOfCoefficients; ++i) {
        vxDumpLine(out, "double c: ", c[i]);
    }
    vxDumpEnd(out);
    const short next = static_cast<short>(depth - 1);
    lineStyle->dump(next, out);
    symbolStyle->dump(next, out);
}

}  // namespace Velarix
