#include "overlays/vxCurveFittingSolver.h"

#include <algorithm>
#include <cmath>

namespace Velarix {

namespace {

// A diagonal entry of R this small against its column's norm marks a
// column that the others (nearly) make up.
constexpr double kRankTolerance = 1e-10;

double dot(const double* a, const double* b, size_t n) {
    double sum = 0.0;
    for (size_t i = 0; i < n; ++i) sum += a[i] * b[i];
    return sum;
}

// Reflects `target` by the Householder vector v (with v·v = vv).
void reflect(const double* v, double vv, double* target, size_t n) {
    const double factor = 2.0 * dot(v, target, n) / vv;
    for (size_t i = 0; i < n; ++i) target[i] -= factor * v[i];
}

// The columns t^first ... t^(first + m - 1), one after another.
std::vector<double> basisColumns(const std::vector<double>& x, double centre, double scale,
                                 int first, int m) {
    const size_t n = x.size();
    std::vector<double> a(n * static_cast<size_t>(m));
    for (size_t i = 0; i < n; ++i) {
        const double t = (x[i] - centre) / scale;
        double power = first == 0 ? 1.0 : t;
        for (int j = 0; j < m; ++j) {
            a[static_cast<size_t>(j) * n + i] = power;
            power *= t;
        }
    }
    return a;
}

// Householder QR of the n by m columns, applied to b at once; R's diagonal
// goes to `diagonal`, the rest of R stays above it in the columns. False
// for a column that depends on those before it.
bool factorise(std::vector<double>& a, std::vector<double>& b, size_t n, int m,
               std::vector<double>& diagonal) {
    std::vector<double> norms(static_cast<size_t>(m));
    for (int j = 0; j < m; ++j) {
        const double* col = &a[static_cast<size_t>(j) * n];
        norms[static_cast<size_t>(j)] = std::sqrt(dot(col, col, n));
    }
    for (int k = 0; k < m; ++k) {
        double* v = &a[static_cast<size_t>(k) * n + static_cast<size_t>(k)];
        const size_t len = n - static_cast<size_t>(k);
        const double alpha = std::sqrt(dot(v, v, len));
        if (alpha <= kRankTolerance * norms[static_cast<size_t>(k)] || alpha == 0.0) return false;
        const double sign = v[0] >= 0.0 ? 1.0 : -1.0;
        const double head = v[0];
        v[0] += sign * alpha;
        // v·v = (head + sign alpha)^2 + alpha^2 - head^2.
        const double vv = 2.0 * alpha * (alpha + std::fabs(head));
        for (int j = k + 1; j < m; ++j) {
            reflect(v, vv, &a[static_cast<size_t>(j) * n + static_cast<size_t>(k)], len);
        }
        reflect(v, vv, &b[static_cast<size_t>(k)], len);
        diagonal[static_cast<size_t>(k)] = -sign * alpha;
    }
    return true;
}

}  // namespace

void vxCurveFittingSolver::setUpScaling(const std::vector<double>& x) {
    const auto [low, high] = std::minmax_element(x.begin(), x.end());
    if (throughZero) {
        centre = 0.0;
        scale = std::max(std::fabs(*low), std::fabs(*high));
    } else {
        centre = 0.5 * (*low + *high);
        scale = 0.5 * (*high - *low);
    }
    if (!(scale > 0.0) || !std::isfinite(scale)) scale = 1.0;
}

vxCurveFittingSolver::Result vxCurveFittingSolver::solve(const std::vector<double>& x,
                                                         const std::vector<double>& y, int degreeIn,
                                                         bool throughZeroIn) {
    degree = degreeIn;
    throughZero = throughZeroIn;
    internal.clear();
    raw.clear();
    const int m = getNumOfCoefficients();
    const size_t n = std::min(x.size(), y.size());
    if (m < 1 || n < static_cast<size_t>(m)) return kNotEnoughData;
    setUpScaling(x);
    std::vector<double> a = basisColumns(x, centre, scale, throughZero ? 1 : 0, m);
    std::vector<double> b(y.begin(), y.begin() + static_cast<std::ptrdiff_t>(n));
    std::vector<double> diagonal(static_cast<size_t>(m));
    if (!factorise(a, b, n, m, diagonal)) return kRankDeficient;
    internal.assign(static_cast<size_t>(m), 0.0);
    for (int k = m - 1; k >= 0; --k) {
        double sum = b[static_cast<size_t>(k)];
        for (int j = k + 1; j < m; ++j) {
            sum -= a[static_cast<size_t>(j) * n + static_cast<size_t>(k)] *
                   internal[static_cast<size_t>(j)];
        }
        internal[static_cast<size_t>(k)] = sum / diagonal[static_cast<size_t>(k)];
    }
    setUpRawCoefficients();
    return kSolved;
}

// p(x) = sum a_j ((x - centre) / scale)^j, expanded by the binomial theorem:
// c_k = sum over j >= k of a_j / scale^j * C(j, k) * (-centre)^(j - k).
void vxCurveFittingSolver::setUpRawCoefficients() {
    const int m = getNumOfCoefficients();
    const int first = throughZero ? 1 : 0;
    std::vector<double> full(static_cast<size_t>(degree + 1), 0.0);
    double scalePower = 1.0;
    for (int j = 0; j <= degree; ++j) {
        if (j >= first)
            full[static_cast<size_t>(j)] = internal[static_cast<size_t>(j - first)] / scalePower;
        scalePower *= scale;
    }
    std::vector<double> expanded(full.size(), 0.0);
    for (int j = 0; j <= degree; ++j) {
        double binomial = 1.0;  // C(j, k), from k = j down
        double shift = 1.0;     // (-centre)^(j - k)
        for (int k = j; k >= 0; --k) {
            expanded[static_cast<size_t>(k)] += full[static_cast<size_t>(j)] * binomial * shift;
            binomial = binomial * k / (j - k + 1);
            shift *= -centre;
        }
    }
    raw.assign(expanded.begin() + first, expanded.begin() + first + m);
}

double vxCurveFittingSolver::evaluate(double x) const {
    const double t = (x - centre) / scale;
    double sum = 0.0;
    for (auto it = internal.rbegin(); it != internal.rend(); ++it) sum = sum * t + *it;
    return throughZero ? sum * t : sum;
}

}  // namespace Velarix
