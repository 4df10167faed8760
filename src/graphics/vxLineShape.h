// How the line of a series runs between its points: in jumps, in steps,
// straight or smooth, with the factors of each form.
//
// In a script the shape is one list of numbers: the type code, then for a
// jump the start and end outdent, the shift and the length factor; for a
// step the first three of these; for a smooth line the tension. Outdents
// given there count as user-defined; the chart settles the others.
#pragma once

#include <ostream>

namespace Velarix {

class vxAssign;

class vxLineShape {
public:
    enum Type : short { kNone = 0, kJump = 1, kStep = 2, kStraight = 3, kSmooth = 4 };

    short getType() const { return type; }
    // Codes outside 0..4 are stored as straight.
    void setType(short value);
    bool isNone() const { return type == kNone; }

    float getStartOutdentFactor() const { return startOutdentFactor; }
    float getEndOutdentFactor() const { return endOutdentFactor; }
    float getShiftFactor() const { return shiftFactor; }
    float getLengthFactor() const { return lengthFactor; }
    float getTensionFactor() const { return tensionFactor; }
    // These setters leave the user-defined flags alone.
    void setStartOutdentFactor(float value) { startOutdentFactor = value; }
    void setEndOutdentFactor(float value) { endOutdentFactor = value; }
    void setShiftFactor(float value) { shiftFactor = value; }
    void setLengthFactor(float value) { lengthFactor = value; }
    void setTensionFactor(float value) { tensionFactor = value; }

    bool isStartOutendUserDefined() const { return hasUserDefinedStartOutend; }
    bool isEndOutendUserDefined() const { return hasUserDefinedEndOutend; }

    // Reads the list at the argument offset and moves past it. A void
    // argument leaves the shape as it is; factors the list leaves out keep
    // their values.
    void assign(vxAssign& assign);

    void reset() { *this = vxLineShape(); }
    // Null resets to the defaults.
    void copy(const vxLineShape* from) { *this = from ? *from : vxLineShape(); }
    void dump(short depth, std::ostream& out) const;

private:
    short type = kStraight;
    bool hasUserDefinedStartOutend = false;
    bool hasUserDefinedEndOutend = false;
    float startOutdentFactor = 0.0f;
    float endOutdentFactor = 0.0f;
    float shiftFactor = 0.5f;
    float lengthFactor = 1.0f;
    float tensionFactor = 1.0f;
};

}  // namespace Velarix
