// How an area or a line is coloured. Devices ask a paint for its kind and
// translate it, each falling back where its format lacks a feature.
//
// In a script a paint is a colour argument, in most functions followed by
// a fill pattern number. The count of the colour's numbers gives the kind:
// up to four make a basic paint, a multiple of five a linear gradient, one
// more than a multiple of five a radial gradient.
#pragma once

#include <memory>

#include "graphics/vxAppearance.h"

namespace Velarix {

class vxAssign;
class vxColorOLD;
class vxUserSettings;

class vxPaintOLD : public vxAppearance {
public:
    static constexpr short kBasic = 1;
    static constexpr short kLinearGradient = 2;
    static constexpr short kRadialGradient = 3;
    static constexpr short kTexture = 4;

    using vxAppearance::vxAppearance;

    virtual short getType() const = 0;
    // A none paint draws nothing.
    virtual bool isNone() const = 0;
    virtual bool isTranslucent() const = 0;
    virtual bool isOpaque() const = 0;
    virtual void brighten(float factor) = 0;
    virtual void darken(float factor) = 0;

    // The colour that stands for the paint: a basic paint's colour, a
    // gradient's first; null when there is none. The components below are
    // those of opaque black then.
    virtual const vxColorOLD* getColor() const = 0;
    float getRed() const;
    float getGreen() const;
    float getBlue() const;
    float getAlpha() const;

    // A copy of the same class; throws std::bad_alloc.
    virtual std::unique_ptr<vxPaintOLD> clone() const = 0;

    // Reads the script form at the argument offset and moves the offset past
    // it. A void argument leaves its field as it stands, and numbers that
    // don't make this kind of paint leave it too.
    virtual bool assign(vxAssign& assign, const vxUserSettings* settings) = 0;

    // 1 for the functions whose colour stands alone, otherwise 2.
    static long getNumOfArguments(const vxAssign& assign);
    // The kind that the colour argument at `index` makes; 0 when it is void
    // or its count fits no kind.
    static short getKindOfArgument(const vxAssign& assign, long index);
    // The kind of a colour list of `count` numbers: up to four a basic
    // colour; x1 y1 x2 y2 spread and stops of five numbers (red, green,
    // blue, alpha, offset) a linear gradient; cx cy r fx fy spread and the
    // stops a radial one (stops may be missing); 0 for any other count.
    static short getKindOfCount(long count);
    // The numbers in front of the stops of a gradient kind.
    static long getNumOfLeadingNumbersOf(short kind);
    static constexpr long kNumbersPerStop = 5;
    // A new paint of a kind with its defaults; null for an unknown kind.
    // Throws std::bad_alloc.
    static std::unique_ptr<vxPaintOLD> make(short kind);
    // Put a new paint of a kind, or a copy of `from`, into `slot`. A failed
    // allocation is error 5000 of `owner` at "owner/method/number".
    static bool createInto(std::unique_ptr<vxPaintOLD>& slot, short kind, vxErrorHolder& owner,
                           const wchar_t* method, int number = 1);
    static bool cloneInto(std::unique_ptr<vxPaintOLD>& slot, const vxPaintOLD& from,
                          vxErrorHolder& owner, const wchar_t* method, int number = 1);
    // Assigns the script form to the paint in `slot`, first replacing it by
    // one of the kind that the colour argument makes when the kinds differ.
    // A failed allocation is error 5000 of `owner` at "owner/method/1".
    static bool assignByKind(std::unique_ptr<vxPaintOLD>& slot, vxAssign& assign,
                             const vxUserSettings* settings, vxErrorHolder& owner,
                             const wchar_t* method);

protected:
    void skipArguments(vxAssign& assign) const;
    // A script number as a colour component; values far out of range stop
    // just beyond 0..255, where the colour clamps them.
    static short toComponent(float value);
};

}  // namespace Velarix
