// One fitted curve over one chart series: the options and styles the script
// gave it, the coefficients and correlation it computes from the series,
// and the curve and point marks it draws.
//
// The data are the pairs of value series 0 (x) and 1 (y) of the series in
// which both values are valid, the two exchanged when the axes are
// switched. Each form turns them into a least-squares polynomial problem
// (vxCurveFittingSolver): a polynomial as it stands, "exp" on (x, ln y),
// "pow" on (ln x, ln y), "log" on (ln x, y).
//
// Errors: 2300 at "/setUpNumOfCoefficients/1" for fewer points than
// coefficients; 5010 at "/solveEquationSystem/1" for a system without a
// single solution; 5011 for values a logarithm can't take (at
// "/calculateFunctionVectors/1" in the "log" form, at
// "/calculateCoefficients/1" in the others).
#pragma once

#include <memory>
#include <ostream>
#include <vector>

#include "overlays/vxCurveFittingSolver.h"
#include "settings/vxErrorHolder.h"

namespace Velarix {

class vxAssign;
class vxBaseChart;
class vxCurveFittingLineStyle;
class vxDataManager;
class vxGObjectOLD;
class vxPaintOLD;
class vxSymbolStyle;
class vxUserSettings;
struct vxCurveFittingDataItem;

class vxCurveFittingItem : public vxErrorHolder {
public:
    // Fit types of the script; 1 to 10 are polynomials of that degree.
    enum Type : short {
        kNone = 0,
        kLinear = 1,
        kMaxDegree = 10,
        kPower = -2,
        kExponential = -3,
        kLogarithmic = -4
    };
    static constexpr int kMaxNumOfCoefficients = 11;

    ~vxCurveFittingItem() override;

    // An item of the fit type; null for "none" and for numbers that are no
    // type. Throws std::bad_alloc.
    static std::unique_ptr<vxCurveFittingItem> make(short type, vxUserSettings* owner);

    short getType() const { return type; }
    long getSeriesIndex() const { return seriesIndex; }
    void setSeriesIndex(long value) { seriesIndex = value; }

    // ---- script --------------------------------------------------------
    // Options and styles of `from`; the series and the type stay.
    bool copyFrom(const vxCurveFittingItem& from);
    // CurveFittingOptions behind the series and type: switched axes,
    // extrapolation, through zero, the number of curve points; a void
    // argument keeps its value.
    void assignOptions(vxAssign& assign);
    bool assignLineStyle(vxAssign& assign);
    bool assignSymbolStyle(vxAssign& assign);
    bool doSwitchAxes() const { return switchAxes; }
    bool doExtrapolate() const { return extrapolate; }
    bool doForceThruZero() const { return forceThruZero; }
    long getNumOfCurvePointsAsked() const { return numOfCurvePoints; }
    const vxCurveFittingLineStyle* getLineStyle() const { return lineStyle.get(); }
    const vxSymbolStyle* getSymbolStyle() const { return symbolStyle.get(); }

    // ---- fit ---------------------------------------------------------------
    // Reads the series (one-based `seriesIndex`) and computes the
    // coefficients and the correlation; an error stays on the item.
    void setUp(const vxDataManager& data);
    bool hasCoefficients() const { return coefficientsReady; }
    long getNumOfCoefficients() const { return numOfCoefficients; }
    // Coefficient i in raw x, as the model gives it; 0 out of range.
    double getCoefficient(long i) const;
    // The share of the variance the curve explains, clamped to [-1, 1].
    double getCorrCoefficient() const { return corrCoefficient; }
    // The curve at x; false, with error 5011 at "/getFunctionValue/1", for
    // an x the form can't take.
    bool getFunctionValue(double x, double& y);
    void fillDataItem(vxCurveFittingDataItem& item) const;

    // ---- drawing (vxCurveFittingItemCurve.cpp) --------------------------
    // The curve in device units, over the data's span of x or, when
    // extrapolating, the span of x's axis; null when nothing can be drawn.
    // `paint` replaces the line's paint (for a shadow) unless null.
    std::unique_ptr<vxGObjectOLD> makeCurve(const vxBaseChart& chart,
                                            const vxPaintOLD* paint = nullptr) const;
    // A mark of the symbol style on the curve at each data x.
    void makeSymbols(const vxBaseChart& chart,
                     std::vector<std::unique_ptr<vxGObjectOLD>>& out) const;
    // When extrapolating, widens `dependent` (min, max) to the curve over
    // `independent` (min, max), the limits of the axis of x.
    void getYLimits(const double independent[2], double dependent[2]) const;

    virtual void dump(short depth, std::ostream& out) const;

protected:
    vxCurveFittingItem(const wchar_t* className, vxUserSettings* owner, short type);

    // The coefficients from the pairs; errors raised as the header says.
    virtual bool calculateCoefficients(const std::vector<double>& x,
                                       const std::vector<double>& y) = 0;
    // The curve at x, which lies in the form's domain.
    virtual double valueAt(double x) const = 0;
    virtual bool isInDomain(double x) const { return true; }
    // Whether the correlation is measured in logarithms of y.
    virtual bool isExponentialForm() const { return false; }
    // How many points make the curve over `lengthDC` device units.
    virtual long getNumOfCurvePoints(float lengthDC) const;

    // Error 2300 when there are fewer than `count` points.
    bool setUpNumOfCoefficients(size_t numOfPoints, long count);
    // The polynomial problem; error 5010 when it has no single solution.
    bool solveEquationSystem(const std::vector<double>& u, const std::vector<double>& v, int degree,
                             bool throughZero);
    void takeRawCoefficients(long count);

    vxCurveFittingSolver solver;
    double c[kMaxNumOfCoefficients] = {};
    long numOfCoefficients = 0;

private:
    void collectData(const vxDataManager& data, std::vector<double>& x,
                     std::vector<double>& y) const;
    bool calculateCorrCoefficient(const std::vector<double>& x, const std::vector<double>& y);
    // The span of x drawn: the data's or the axis's.
    bool getCurveSpan(const vxBaseChart& chart, double span[2]) const;
    // A point (x, f(x)) in device units; false off the drawing.
    bool toDC(const vxBaseChart& chart, double x, double y, float out[2]) const;

    short type;
    vxUserSettings* owner;
    long seriesIndex = 0;
    bool switchAxes = false;
    bool extrapolate = false;
    bool forceThruZero = false;
    long numOfCurvePoints = 0;  // 0: from the span
    bool showSymbols = false;
    double corrCoefficient = 0.0;
    bool coefficientsReady = false;
    double minX = 0.0;
    double maxX = 0.0;
    std::vector<double> dataX;  // for the point marks
    std::unique_ptr<vxCurveFittingLineStyle> lineStyle;
    std::unique_ptr<vxSymbolStyle> symbolStyle;
};

}  // namespace Velarix
