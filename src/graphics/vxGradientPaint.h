// A paint that blends colour stops. The stops are kept in order of their
// offsets (0 to 1 along the gradient); `spread` says what lies beyond the
// ends: 1 pad, 2 repeat, 3 reflect.
//
// In a script a gradient is one list of numbers: its geometry, the spread,
// then stops of five numbers each (red, green, blue, alpha, offset). Stops
// that leave either end open get the colour of their neighbour there.
#pragma once

#include <ostream>
#include <vector>

#include "graphics/vxColorOLD.h"
#include "graphics/vxPaintOLD.h"

namespace Velarix {

class vxGradientPaint : public vxPaintOLD {
public:
    static constexpr short kPad = 1;
    static constexpr short kRepeat = 2;
    static constexpr short kReflect = 3;

    explicit vxGradientPaint(const wchar_t* name);
    ~vxGradientPaint() override;

    // None when every colour is fully transparent; the other two need all
    // colours to be so. A gradient without stops is none.
    bool isNone() const override;
    bool isTranslucent() const override;
    bool isOpaque() const override;
    void brighten(float factor) override;
    void darken(float factor) override;
    const vxColorOLD* getColor() const override { return getFirstColor(); }

    // Each returns false and adds nothing when the colour can't be made.
    // Offsets are clamped to 0..1.
    bool addColor(const vxColorOLD& color, float offset);
    bool addColor(short red, short green, short blue, float offset);
    bool addColor(short red, short green, short blue, short alpha, float offset);
    void clearColors();
    // Adds a stop at 0 with the first colour and one at 1 with the last,
    // where the stops leave the ends open.
    void padStops();

    long getNumOfColors() const { return static_cast<long>(colors.size()); }
    const vxColorOLD* getColor(long index) const;  // null out of range
    const vxColorOLD* getFirstColor() const;
    const vxColorOLD* getLastColor() const;
    float getOffset(long index) const;  // 0 out of range
    float getFirstOffset() const;
    float getLastOffset() const;
    float getAverageAlpha() const;  // the mean alpha, 0 to 1

    short getSpread() const { return spread; }
    void setSpread(short value);  // other codes become 1
    bool getUseGammaCorrection() const { return useGammaCorrection; }
    void setUseGammaCorrection(bool value) { useGammaCorrection = value; }

    // The numbers of the colour argument: the geometry of the kind, the
    // spread and the stops. Other counts leave the gradient as it is.
    bool assign(vxAssign& assign, const vxUserSettings* settings) override;

protected:
    // How many numbers come before the stops, the spread being the last;
    // and taking them over.
    virtual long getNumOfLeadingNumbers() const = 0;
    virtual void setGeometry(const float* numbers) = 0;

    void resetFields() override;
    void copyFields(const vxAppearance& from) override;
    void dumpFields(short depth, std::ostream& out) const override;

private:
    bool insertColor(long position, const vxColorOLD& color, float offset);
    template <class Test>
    bool isTrueForAll(Test test) const;
    void assignStops(const std::vector<float>& numbers);
    std::wstring stopText(long index) const;  // for the dump

    std::vector<vxColorOLD> colors;
    std::vector<float> offsets;
    short spread = kPad;
    bool useGammaCorrection = true;
};

}  // namespace Velarix
