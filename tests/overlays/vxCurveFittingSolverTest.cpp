// The solver away from zero and on many points. Expected values: the
// script of vxCurveFittingItemTest.cpp, whose last lines print
//
//     years sales = <the values below>
//     years cubic c = 1652905.5628694687, -2067.8235363328363, 0.8287633001808001,
//                     -0.00010402394039809554  r2 = 0.9997778851271454
//     years degree 10 at 2000, 2013, 2030 = 121.05316968471664, 140.75825978901028,
//                                           270.599584776067
#include <gtest/gtest.h>

#include <cmath>
#include <vector>

#include "overlays/vxCurveFittingSolver.h"
#include "vxCurveFittingTestSupport.h"

namespace Velarix::test {
namespace {

const std::vector<double> kSales = {
    120.93003950441614, 119.39329594012555, 118.07883697991343, 117.82741197455525,
    118.87017991447148, 120.61618291997938, 122.19567019053137, 123.25974287967716,
    124.30113008546068, 126.20117599001517, 129.41953608303677, 133.57157202436787,
    137.78198636008733, 141.48956696500463, 144.96316288239763, 149.05450575348397,
    154.415131674447,   160.89736191431774, 167.69007805917224, 174.06446054122904,
    180.0440619883439,  186.38315304657766, 193.8732494267052,  202.61539600999072,
    211.92726665034584, 220.970491686335,   229.52145114155948, 238.17686989968206,
    247.80519159832525, 258.7481355536742,  270.50652159709546};

std::vector<double> years() {
    std::vector<double> x;
    for (int year = 2000; year <= 2030; ++year) x.push_back(year);
    return x;
}

double rawValue(const std::vector<double>& c, double x) {
    double sum = 0.0;
    for (auto it = c.rbegin(); it != c.rend(); ++it) sum = sum * x + *it;
    return sum;
}

// On the normal equations of raw powers a cubic over the years already
// loses every digit; in centred x it keeps them.
TEST(CurveFittingSolver, FitsYearsWithoutLosingDigits) {
    vxCurveFittingSolver solver;
    ASSERT_EQ(solver.solve(years(), kSales, 3, false), vxCurveFittingSolver::kSolved);
    const std::vector<double> expected = {1652905.5628694687, -2067.8235363328363,
                                          0.8287633001808001, -0.00010402394039809554};
    ASSERT_EQ(solver.getRawCoefficients().size(), 4u);
    for (size_t k = 0; k < 4; ++k) {
        EXPECT_TRUE(near(solver.getRawCoefficients()[k], expected[k], 1e-8)) << "c" << k;
    }
    // The raw form draws the same curve as the internal one.
    for (double x : years()) {
        EXPECT_TRUE(near(rawValue(solver.getRawCoefficients(), x), solver.evaluate(x), 1e-7)) << x;
    }
    EXPECT_DOUBLE_EQ(solver.getCentre(), 2015.0);
    EXPECT_DOUBLE_EQ(solver.getScale(), 15.0);
}

TEST(CurveFittingSolver, FitsDegreeTenOverYears) {
    vxCurveFittingSolver solver;
    ASSERT_EQ(solver.solve(years(), kSales, 10, false), vxCurveFittingSolver::kSolved);
    EXPECT_TRUE(near(solver.evaluate(2000), 121.05316968471664, 1e-9));
    EXPECT_TRUE(near(solver.evaluate(2013), 140.75825978901028, 1e-9));
    EXPECT_TRUE(near(solver.evaluate(2030), 270.599584776067, 1e-9));
    EXPECT_EQ(solver.getRawCoefficients().size(), 11u);
}

// A known polynomial of degree 10 sampled 100,000 times comes back.
TEST(CurveFittingSolver, RecoversDegreeTenFromManyPoints) {
    const std::vector<double> truth = {3, -2, 0.5, 1, -0.25, 0.125, 0, -0.0625, 0.03125, 0, 0.01};
    std::vector<double> x, y;
    for (int i = 0; i < 100000; ++i) {
        x.push_back(-2.0 + 4.0 * i / 99999.0);
        y.push_back(rawValue(truth, x.back()));
    }
    vxCurveFittingSolver solver;
    ASSERT_EQ(solver.solve(x, y, 10, false), vxCurveFittingSolver::kSolved);
    for (size_t k = 0; k < truth.size(); ++k) {
        EXPECT_NEAR(solver.getRawCoefficients()[k], truth[k], 1e-9) << "c" << k;
    }
}

TEST(CurveFittingSolver, ThroughZeroOnlyScales) {
    vxCurveFittingSolver solver;
    ASSERT_EQ(solver.solve({10, 20, 30}, {25, 70, 135}, 2, true), vxCurveFittingSolver::kSolved);
    EXPECT_EQ(solver.getCentre(), 0.0);
    EXPECT_EQ(solver.getNumOfCoefficients(), 2);
    EXPECT_TRUE(near(solver.getRawCoefficients()[0], 1.5, 1e-12));  // 1.5x + 0.1x^2
    EXPECT_TRUE(near(solver.getRawCoefficients()[1], 0.1, 1e-12));
    EXPECT_EQ(solver.evaluate(0.0), 0.0);
}

TEST(CurveFittingSolver, RefusesTooFewPointsAndDependentColumns) {
    vxCurveFittingSolver solver;
    EXPECT_EQ(solver.solve({1, 2}, {1, 2}, 2, false), vxCurveFittingSolver::kNotEnoughData);
    EXPECT_EQ(solver.solve({1, 2}, {1}, 1, false), vxCurveFittingSolver::kNotEnoughData);
    EXPECT_EQ(solver.solve({5, 5, 5}, {1, 2, 3}, 1, false), vxCurveFittingSolver::kRankDeficient);
    // Eleven points on only ten distinct x can't carry degree 10.
    std::vector<double> x = {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 9}, y(11, 1.0);
    EXPECT_EQ(solver.solve(x, y, 10, false), vxCurveFittingSolver::kRankDeficient);
    EXPECT_TRUE(solver.getRawCoefficients().empty());
    // A thousand points on one x, reduced a block at a time.
    EXPECT_EQ(
        solver.solve(std::vector<double>(1000, 7.0), std::vector<double>(1000, 1.0), 1, false),
        vxCurveFittingSolver::kRankDeficient);
}

}  // namespace
}  // namespace Velarix::test
