// Fits against coefficients computed independently. The expected numbers
// are the output of this script (numpy 1.24), run once:
//
//     import numpy as np
//     np.set_printoptions(precision=17)
//     P = np.polynomial.Polynomial
//
//     def r2(f, y):
//         m = y.mean(); return ((f - m)**2).sum() / ((y - m)**2).sum()
//
//     def poly(name, x, y, deg, zero=False):
//         x = np.array(x, float); y = np.array(y, float)
//         if zero:
//             A = np.column_stack([x**j for j in range(1, deg + 1)])
//             c = np.linalg.lstsq(A, y, rcond=None)[0]
//             f = A @ c
//         else:
//             p = P.fit(x, y, deg)        # fits in a mapped domain, then back to raw x
//             c = p.convert().coef; f = p(x)
//         print(name, "c =", ", ".join(repr(float(v)) for v in c), " r2 =", repr(float(min(r2(f,
//         y), 1.0))))
//
//     def logform(name, x, y, kind, zero=False):
//         x = np.array(x, float); y = np.array(y, float)
//         if kind == "exp":
//             c1, c0 = np.polyfit(x, np.log(y), 1); c = [np.exp(c0), c1]; f = np.log(c[0]) + c1 *
//             x; obs = np.log(y)
//         elif kind == "pow":
//             c1, c0 = np.polyfit(np.log(x), np.log(y), 1); c = [np.exp(c0), c1]; f = c0 + c1 *
//             np.log(x); obs = np.log(y)
//         elif zero:
//             c = np.linalg.lstsq(np.log(x)[:, None], y, rcond=None)[0]; f = c[0] * np.log(x); obs
//             = y
//         else:
//             c1, c0 = np.polyfit(np.log(x), y, 1); c = [c0, c1]; f = c0 + c1 * np.log(x); obs = y
//         print(name, "c =", ", ".join(repr(float(v)) for v in c), " r2 =", repr(float(min(r2(f,
//         obs), 1.0))))
//
//     poly("exact line", [0, 1, 2, 3, 4], [1, 3, 5, 7, 9], 1)
//     poly("noisy line", [1, 2, 3, 4, 5, 6, 7, 8], [2.3, 4.1, 6.2, 7.7, 10.4, 11.8, 14.1, 16.2], 1)
//     poly("noisy cubic", [-3, -2, -1, 0, 1, 2, 3, 4], [-20.1, -6.8,
//     0.4, 1.1, 2.2, 7.9, 25.3, 60.2], 3) poly("line thru zero", [1, 2, 3, 4, 5],
//     [2.2, 3.9, 6.3, 7.8, 10.1], 1, zero=True) poly("quadratic thru zero", [1, 2, 3, 4, 5],
//     [1.1, 4.3, 8.8, 16.2, 24.9], 2, zero=True) logform("exp", [1, 2, 3, 4, 5, 6],
//     [2.1, 2.9, 4.2, 6.1, 8.8, 13.5], "exp") logform("pow", [1, 2, 3, 4, 5, 6],
//     [3.1, 11.8, 27.5, 47.0, 76.1, 107.3], "pow") logform("log", [1, 2, 3, 4, 5, 6],
//     [0.9, 2.5, 3.1, 3.8, 4.1, 4.6], "log") logform("log thru zero", [1, 2, 3, 4, 5, 6],
//     [0.9, 2.5, 3.1, 3.8, 4.1, 4.6], "log", zero=True) years = np.arange(2000, 2031) sales = 100 +
//     3 * (years - 2000) + 0.2 * (years - 2010)**2 + np.sin(years) print("years sales =", "
//     ".join(repr(float(v)) for v in sales)) poly("years cubic", years, sales, 3) p10 =
//     P.fit(years, sales, 10) print("years degree 10 at 2000, 2013, 2030 =", ",
//     ".join(repr(float(p10(v))) for v in (2000, 2013, 2030)))
//
// Its output, less the years (vxCurveFittingSolverTest.cpp):
//
//     exact line c = 0.9999999999999991, 2.0000000000000004  r2 = 1.0
//     noisy line c = 0.16428571428571637, 1.9857142857142847  r2 = 0.9976419965576583
//     noisy cubic c = 0.5902597402597456, -0.07366522366522493, 0.22467532467532408,
//     0.873232323232323  r2 = 0.999021479704801 line thru zero c = 2.0109090909090903  r2 = 1.0
//     quadratic thru zero c = 0.1076397515527949, 0.9754658385093169  r2 = 1.0
//     exp c = 1.401021444623303, 0.37163111151257633  r2 = 0.9985247142018547
//     pow c = 3.0596360895508194, 1.9852922223965979  r2 = 0.9997872838686208
//     log c = 0.9625878979017766, 2.0100270055730234  r2 = 0.9951613892276199
//     log thru zero c = 2.6830525715348856  r2 = 1.0
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "overlays/vxCurveFittingData.h"
#include "vxCurveFittingTestSupport.h"

namespace Velarix::test {
namespace {

using Item = vxCurveFittingItem;

struct FitCase {
    const char* name;
    short type;
    bool throughZero;
    std::vector<double> x, y;
    std::vector<double> c;
    double r2;
};

const std::vector<FitCase> kFits = {
    {"exact line", Item::kLinear, false, {0, 1, 2, 3, 4}, {1, 3, 5, 7, 9}, {1, 2}, 1.0},
    {"noisy line",
     Item::kLinear,
     false,
     {1, 2, 3, 4, 5, 6, 7, 8},
     {2.3, 4.1, 6.2, 7.7, 10.4, 11.8, 14.1, 16.2},
     {0.16428571428571637, 1.9857142857142847},
     0.9976419965576583},
    {"noisy cubic",
     3,
     false,
     {-3, -2, -1, 0, 1, 2, 3, 4},
     {-20.1, -6.8, 0.4, 1.1, 2.2, 7.9, 25.3, 60.2},
     {0.5902597402597456, -0.07366522366522493, 0.22467532467532408, 0.873232323232323},
     0.999021479704801},
    {"line thru zero",
     Item::kLinear,
     true,
     {1, 2, 3, 4, 5},
     {2.2, 3.9, 6.3, 7.8, 10.1},
     {2.0109090909090903},
     1.0},
    {"quadratic thru zero",
     2,
     true,
     {1, 2, 3, 4, 5},
     {1.1, 4.3, 8.8, 16.2, 24.9},
     {0.1076397515527949, 0.9754658385093169},
     1.0},
    {"exp",
     Item::kExponential,
     false,
     {1, 2, 3, 4, 5, 6},
     {2.1, 2.9, 4.2, 6.1, 8.8, 13.5},
     {1.401021444623303, 0.37163111151257633},
     0.9985247142018547},
    // Through zero means nothing to the exponential forms.
    {"exp thru zero",
     Item::kExponential,
     true,
     {1, 2, 3, 4, 5, 6},
     {2.1, 2.9, 4.2, 6.1, 8.8, 13.5},
     {1.401021444623303, 0.37163111151257633},
     0.9985247142018547},
    {"pow",
     Item::kPower,
     false,
     {1, 2, 3, 4, 5, 6},
     {3.1, 11.8, 27.5, 47.0, 76.1, 107.3},
     {3.0596360895508194, 1.9852922223965979},
     0.9997872838686208},
    {"log",
     Item::kLogarithmic,
     false,
     {1, 2, 3, 4, 5, 6},
     {0.9, 2.5, 3.1, 3.8, 4.1, 4.6},
     {0.9625878979017766, 2.0100270055730234},
     0.9951613892276199},
    {"log thru zero",
     Item::kLogarithmic,
     true,
     {1, 2, 3, 4, 5, 6},
     {0.9, 2.5, 3.1, 3.8, 4.1, 4.6},
     {2.6830525715348856},
     1.0},
};

TEST(CurveFittingItem, MatchesAnIndependentLeastSquaresSolver) {
    for (const FitCase& fit : kFits) {
        SCOPED_TRACE(fit.name);
        FitData data(fit.x, fit.y);
        auto item = data.fit(fit.type, fit.throughZero);
        ASSERT_FALSE(item->isError()) << item->getError()->getErrorCode();
        ASSERT_EQ(item->getNumOfCoefficients(), long(fit.c.size()));
        for (size_t k = 0; k < fit.c.size(); ++k) {
            EXPECT_TRUE(near(item->getCoefficient(long(k)), fit.c[k], 1e-12)) << "c" << k;
        }
        EXPECT_TRUE(near(item->getCorrCoefficient(), fit.r2, 1e-12));
        EXPECT_EQ(item->getCoefficient(long(fit.c.size())), 0.0);
    }
}

// The store reads what the item found; through zero the first coefficient
// is that of x.
TEST(CurveFittingItem, FillsTheStoreWithItsResult) {
    FitData data({1, 2, 3, 4, 5}, {2.2, 3.9, 6.3, 7.8, 10.1});
    auto item = data.fit(Item::kLinear, true);
    vxCurveFittingDataItem result;
    item->fillDataItem(result);
    EXPECT_EQ(result.seriesIndex, 1);
    EXPECT_EQ(result.type, Item::kLinear);
    EXPECT_EQ(result.numOfCoefficients, 1);
    EXPECT_TRUE(near(result.c[0], 2.0109090909090903, 1e-12));
    EXPECT_EQ(result.c[1], 0.0);
}

// Missing values drop their pair; switched axes fit x over y.
TEST(CurveFittingItem, TakesValidPairsAndSwitchesAxes) {
    FitData gaps(L"0 1 null 2 3", L"1 3 100 5 null");
    auto line = gaps.fit(Item::kLinear);
    ASSERT_FALSE(line->isError());
    EXPECT_TRUE(near(line->getCoefficient(0), 1.0, 1e-12));
    EXPECT_TRUE(near(line->getCoefficient(1), 2.0, 1e-12));

    FitData data({0, 1, 2, 3, 4}, {1, 3, 5, 7, 9});
    auto switched = data.fit(Item::kLinear, false, true);
    EXPECT_TRUE(near(switched->getCoefficient(0), -0.5, 1e-12));
    EXPECT_TRUE(near(switched->getCoefficient(1), 0.5, 1e-12));
    double y = 0.0;
    EXPECT_TRUE(switched->getFunctionValue(9.0, y));
    EXPECT_TRUE(near(y, 4.0, 1e-12));
}

TEST(CurveFittingItem, ADegreeTwoFitThroughThreePointsIsTheParabola) {
    FitData data({-1, 0, 2}, {4, 1, 1});  // y = x^2 - 2x + 1
    auto item = data.fit(2);
    ASSERT_FALSE(item->isError());
    EXPECT_TRUE(near(item->getCoefficient(0), 1.0, 1e-12));
    EXPECT_TRUE(near(item->getCoefficient(1), -2.0, 1e-12));
    EXPECT_TRUE(near(item->getCoefficient(2), 1.0, 1e-12));
    EXPECT_TRUE(near(item->getCorrCoefficient(), 1.0, 1e-12));
}

struct BadCase {
    const char* name;
    short type;
    bool throughZero;
    std::wstring x, y;
    short code;
    const wchar_t* location;
};

const std::vector<BadCase> kBadFits = {
    {"degree 3 on three points", 3, false, L"1 2 3", L"1 4 9", 2300,
     L"vxCurveFittingPolynomial/setUpNumOfCoefficients/1"},
    {"a line on one point", Item::kLinear, false, L"1", L"1", 2300,
     L"vxCurveFittingPolynomial/setUpNumOfCoefficients/1"},
    {"no valid pair", Item::kLinear, false, L"null null", L"1 2", 2300,
     L"vxCurveFittingPolynomial/setUpNumOfCoefficients/1"},
    {"degree 10 through zero on nine points", 10, true, L"1 2 3 4 5 6 7 8 9", L"1 2 3 4 5 6 7 8 9",
     2300, L"vxCurveFittingPolynomial/setUpNumOfCoefficients/1"},
    {"exp on one point", Item::kExponential, false, L"1", L"1", 2300,
     L"vxCurveFittingExponential/setUpNumOfCoefficients/1"},
    {"one repeated x", Item::kLinear, false, L"2 2 2", L"1 2 3", 5010,
     L"vxCurveFittingPolynomial/solveEquationSystem/1"},
    {"a parabola on two distinct x", 2, false, L"1 1 2 2", L"1 2 3 4", 5010,
     L"vxCurveFittingPolynomial/solveEquationSystem/1"},
    {"through zero on x = 0 only", Item::kLinear, true, L"0 0", L"1 2", 5010,
     L"vxCurveFittingPolynomial/solveEquationSystem/1"},
    {"exp of one repeated x", Item::kExponential, false, L"3 3", L"1 2", 5010,
     L"vxCurveFittingExponential/solveEquationSystem/1"},
    {"exp over a y of 0", Item::kExponential, false, L"1 2 3", L"2 0 4", 5011,
     L"vxCurveFittingExponential/calculateCoefficients/1"},
    {"exp over a negative y", Item::kExponential, false, L"1 2 3", L"2 -1 4", 5011,
     L"vxCurveFittingExponential/calculateCoefficients/1"},
    {"pow over an x of 0", Item::kPower, false, L"0 1 2", L"1 2 4", 5011,
     L"vxCurveFittingPower/calculateCoefficients/1"},
    {"pow over a y of 0", Item::kPower, false, L"1 2 3", L"1 0 4", 5011,
     L"vxCurveFittingPower/calculateCoefficients/1"},
    {"log over an x of 0", Item::kLogarithmic, false, L"0 1 2", L"1 2 4", 5011,
     L"vxCurveFittingLogarithmic/calculateFunctionVectors/1"},
    {"log through zero over a negative x", Item::kLogarithmic, true, L"-1 1 2", L"1 2 4", 5011,
     L"vxCurveFittingLogarithmic/calculateFunctionVectors/1"},
};

TEST(CurveFittingItem, BadDataRaisesItsErrorAndLeavesNoCoefficients) {
    for (const BadCase& bad : kBadFits) {
        SCOPED_TRACE(bad.name);
        FitData data(bad.x.c_str(), bad.y.c_str());
        auto item = data.fit(bad.type, bad.throughZero);
        ASSERT_TRUE(item->isError());
        EXPECT_EQ(item->getError()->getErrorCode(), bad.code);
        EXPECT_EQ(item->getError()->getLocation(), bad.location);
        EXPECT_FALSE(item->hasCoefficients());
    }
}

TEST(CurveFittingItem, FunctionValuesOutsideTheFormsDomainAreErrors) {
    FitData data({1, 2, 3}, {1, 2, 3});
    for (short type : {Item::kLogarithmic, Item::kPower}) {
        auto item = data.fit(type);
        double y = 1.0;
        EXPECT_FALSE(item->getFunctionValue(0.0, y));
        EXPECT_EQ(y, 0.0);
        EXPECT_EQ(item->getError()->getErrorCode(), 5011);
        EXPECT_EQ(item->getError()->getLocation(), item->getClassName() + L"/getFunctionValue/1");
    }
    auto exp = data.fit(Item::kExponential);
    double y = 0.0;
    EXPECT_TRUE(exp->getFunctionValue(-5.0, y));
    EXPECT_GT(y, 0.0);
}

TEST(CurveFittingItem, MakesAnItemOnlyForAFitType) {
    vxUserSettings settings(L"", L"", 1, 1);
    for (short type : {short(-5), short(-1), short(0), short(11)}) {
        EXPECT_EQ(Item::make(type, &settings), nullptr) << type;
    }
    EXPECT_EQ(Item::make(10, &settings)->getClassName(), L"vxCurveFittingPolynomial");
    EXPECT_EQ(Item::make(-2, &settings)->getClassName(), L"vxCurveFittingPower");
}

}  // namespace
}  // namespace Velarix::test
