// The descriptor of one argument of a script function: its type code, the
// range its value (or length, or elements) must keep, how many arguments it
// may take, whether it must be given, and the keyword table whose words it
// accepts (0 for none).
#pragma once

#include <ostream>

namespace Velarix {

class vxArgument {
public:
    vxArgument(short type, double minValue, double maxValue, long maxRepeat, bool isRequired,
               short constantType);

    short getType() const { return type; }
    double getMinValue() const { return minValue; }
    double getMaxValue() const { return maxValue; }
    long getMaxRepeat() const { return maxRepeat; }
    bool isArgumentRequired() const { return isRequired; }
    short getConstantType() const { return constantType; }

    void dump(short depth, std::ostream& out) const;

    const short type;
    const double minValue;
    const double maxValue;
    const long maxRepeat;
    const bool isRequired;
    const short constantType;
};

}  // namespace Velarix
