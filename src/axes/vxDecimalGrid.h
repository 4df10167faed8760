// Decimal arithmetic for tick values. A tick list built by adding an
// interval again and again drifts off the decimal values it stands for
// (0.1 + 0.2 is 0.30000000000000004); snapping puts every value back on
// the double nearest its decimal value, so that labels print as written.
#pragma once

#include <cstddef>
#include <initializer_list>
#include <vector>

namespace Velarix {

class vxDecimalGrid {
public:
    // 10 to the power n, the double nearest the decimal value.
    static double powerOfTen(int n);
    // f x 10^j for a whole j, as the double nearest the decimal value.
    static double scaled(double f, int j);
    // The smallest f x 10^j (j whole) that is not below raw; raw > 0. The
    // second form takes the logarithms made already.
    static double niceAbove(double raw, double f);
    static double niceAbove(double log10Raw, double f, double log10F);
    // The decimal exponent of the last significant digit in the shortest
    // text that reads back as x: 2 for 200, -2 for 0.25. A large number
    // for 0, which lies on every grid.
    static int lastDigitExponent(double x);
    // The value rounded to a multiple of 10^q, the double nearest it.
    static double roundToPowerOfTen(double value, int q);
    // Snaps values[first] to values[end - 1] to the coarsest decimal grid
    // that holds every number of `grid` (the interval, the first value...),
    // but never to one finer than 15 significant digits of the largest
    // magnitude among them. A value that would move by more than maxShift
    // stays as it is, and so does one that isn't finite; -0 becomes 0.
    static void snap(std::vector<double>& values, std::size_t first, std::size_t end,
                     std::initializer_list<double> grid, double maxShift);
    // The exponent of that grid: the least lastDigitExponent of the numbers.
    static int gridExponent(std::initializer_list<double> grid);
    // The same snapping to the grid of 10^q, kNoDigit for none.
    static void snapTo(std::vector<double>& values, std::size_t first, std::size_t end, int q,
                       double maxShift);

    static constexpr int kNoDigit = 100000;
    static constexpr int kSignificantDigits = 15;
};

}  // namespace Velarix
