#include "overlays/vxCurveFittingSolver.h"

#include <algorithm>
#include <cmath>

namespace Velarix {

namespace {

// A diagonal entry of R this small against its column's norm marks a
// column that the others (nearly) make up.
constexpr double kRankTolerance = 1e-10;
// The data are reduced this many rows at a time under the rows of R found
// so far, so that the work stays in the cache whatever the number of
// points (a tall-skinny QR).
constexpr size_t kBlockRows = 256;

double dot(const double* a, const double* b, size_t n) {
    double s0 = 0.0, s1 = 0.0, s2 = 0.0, s3 = 0.0;
    size_t i = 0;
    for (; i + 4 <= n; i += 4) {
        s0 += a[i] * b[i];
        s1 += a[i + 1] * b[i + 1];
        s2 += a[i + 2] * b[i + 2];
        s3 += a[i + 3] * b[i + 3];
    }
    for (; i < n; ++i) s0 += a[i] * b[i];
    return (s0 + s1) + (s2 + s3);
}

// Reflects `target` by the Householder vector v (with v·v = vv).
void reflect(const double* v, double vv, double* target, size_t n) {
    const double factor = 2.0 * dot(v, target, n) / vv;
    for (size_t i = 0; i < n; ++i) target[i] -= factor * v[i];
}

// The columns of the basis and y, m + 1 columns of `stride` rows: the top
// m rows hold R and the head of Q'y, the rows below the next block of data.
class Reduction {
public:
    Reduction(int m, double centre, double scale, bool throughZero)
        : m(m),
          centre(centre),
          scale(scale),
          first(throughZero ? 1 : 0),
          stride(static_cast<size_t>(m) + kBlockRows),
          columns(stride * static_cast<size_t>(m + 1), 0.0),
          norms(static_cast<size_t>(m), 0.0) {}

    void addBlock(const double* x, const double* y, size_t count);
    // False when a column depends on those before it.
    bool solve(std::vector<double>& out) const;

private:
    double& at(size_t row, int column) {
        return columns[static_cast<size_t>(column) * stride + row];
    }
    double at(size_t row, int column) const {
        return columns[static_cast<size_t>(column) * stride + row];
    }
    void reduce(size_t rows);

    int m;
    double centre, scale;
    int first;
    size_t stride;
    std::vector<double> columns;
    std::vector<double> norms;  // squared, of the basis columns over all data
};

void Reduction::addBlock(const double* x, const double* y, size_t count) {
    const size_t top = static_cast<size_t>(m);
    for (size_t i = 0; i < count; ++i) {
        const double t = (x[i] - centre) / scale;
        double power = first == 0 ? 1.0 : t;
        for (int j = 0; j < m; ++j) {
            at(top + i, j) = power;
            norms[static_cast<size_t>(j)] += power * power;
            power *= t;
        }
        at(top + i, m) = y[i];
    }
    reduce(top + count);
}

// Householder reflections of rows k and below turn column k into R's;
// what the top rows then hold carries over to the next block.
void Reduction::reduce(size_t rows) {
    for (int k = 0; k < m; ++k) {
        const size_t row = static_cast<size_t>(k);
        double* v = &at(row, k);
        const size_t len = rows - row;
        const double alpha = std::sqrt(dot(v, v, len));
        if (alpha == 0.0) continue;
        const double head = v[0];
        const double sign = head >= 0.0 ? 1.0 : -1.0;
        v[0] += sign * alpha;
        // v·v = (head + sign alpha)^2 + alpha^2 - head^2.
        const double vv = 2.0 * alpha * (alpha + std::fabs(head));
        for (int j = k + 1; j <= m; ++j) reflect(v, vv, &at(row, j), len);
        v[0] = -sign * alpha;
        std::fill(v + 1, v + len, 0.0);
    }
}

bool Reduction::solve(std::vector<double>& out) const {
    for (int k = 0; k < m; ++k) {
        const double norm = std::sqrt(norms[static_cast<size_t>(k)]);
        const double diagonal = std::fabs(at(static_cast<size_t>(k), k));
        if (diagonal == 0.0 || diagonal <= kRankTolerance * norm) return false;
    }
    out.assign(static_cast<size_t>(m), 0.0);
    for (int k = m - 1; k >= 0; --k) {
        double sum = at(static_cast<size_t>(k), m);
        for (int j = k + 1; j < m; ++j)
            sum -= at(static_cast<size_t>(k), j) * out[static_cast<size_t>(j)];
        out[static_cast<size_t>(k)] = sum / at(static_cast<size_t>(k), k);
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
    Reduction reduction(m, centre, scale, throughZero);
    for (size_t from = 0; from < n; from += kBlockRows) {
        reduction.addBlock(&x[from], &y[from], std::min(kBlockRows, n - from));
    }
    if (!reduction.solve(internal)) return kRankDeficient;
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
