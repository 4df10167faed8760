// The least-squares polynomial behind every fit: y = a0 + a1 t + ... + an t^n
// in a centred and scaled variable t = (x - centre) / scale, solved through
// a Householder QR factorisation of the basis matrix, which keeps degree 10
// over x values far from zero (years, say) well conditioned. Through zero,
// the constant term is dropped and x is only scaled, so that the curve
// still passes through the origin.
//
// The coefficients come back in two forms: the internal one, which
// evaluates stably, and the form in raw x that a user reads.
#pragma once

#include <vector>

namespace Velarix {

class vxCurveFittingSolver {
public:
    // Result codes of solve.
    enum Result : short { kSolved = 0, kNotEnoughData = 1, kRankDeficient = 2 };

    // Fits the polynomial of `degree` (1 to 10) to the pairs (x[i], y[i]).
    // kNotEnoughData for fewer points than coefficients, kRankDeficient when
    // the basis columns are linearly dependent (all x alike, say).
    Result solve(const std::vector<double>& x, const std::vector<double>& y, int degree,
                 bool throughZero);

    int getDegree() const { return degree; }
    bool isThroughZero() const { return throughZero; }
    // degree + 1, one less through zero.
    int getNumOfCoefficients() const { return degree + (throughZero ? 0 : 1); }
    double getCentre() const { return centre; }
    double getScale() const { return scale; }
    // The coefficients in raw x: the constant first, or the x term first
    // through zero.
    const std::vector<double>& getRawCoefficients() const { return raw; }
    // The polynomial at x, from the internal form.
    double evaluate(double x) const;

private:
    void setUpScaling(const std::vector<double>& x);
    void setUpRawCoefficients();

    int degree = 0;
    bool throughZero = false;
    double centre = 0.0;
    double scale = 1.0;
    std::vector<double> internal;  // a_j of t^j, j from 0, or from 1 through zero
    std::vector<double> raw;
};

}  // namespace Velarix
