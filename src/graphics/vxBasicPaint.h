// A paint of one colour, plain or with a fill pattern.
//
// Pattern numbers: 0 solid, 1 none (the paint draws nothing), 3 to 64 a
// hatch of 8 by 8 bits, 65 to 128 a built-in texture picture. Other numbers
// paint the colour alone.
#pragma once

#include <memory>
#include <ostream>

#include "graphics/vxColorOLD.h"
#include "graphics/vxPaintOLD.h"

namespace Velarix {

class vxBasicPaint : public vxPaintOLD {
public:
    static constexpr short kNonePattern = 1;

    vxBasicPaint();  // opaque black, solid
    explicit vxBasicPaint(const vxColorOLD& color);
    vxBasicPaint(short count, const short* components);  // 3 or 4 components
    vxBasicPaint(short red, short green, short blue);
    vxBasicPaint(short red, short green, short blue, short alpha);
    vxBasicPaint(vxAssign& assign, const vxUserSettings* settings);
    ~vxBasicPaint() override;

    short getType() const override { return kBasic; }
    bool isNone() const override;
    bool isTranslucent() const override;
    bool isOpaque() const override;
    void brighten(float factor) override;
    void darken(float factor) override;
    const vxColorOLD* getColor() const override { return color.get(); }

    void setColor(const vxColorOLD& from);
    void setColor(short count, const short* components);
    void setColor(short red, short green, short blue);
    void setColor(short red, short green, short blue, short alpha);
    bool createColor();

    short getPatternIndex() const { return patternIndex; }
    void setPatternIndex(short value) { patternIndex = value; }
    bool hasPattern() const { return patternIndex >= 3 && patternIndex <= 128; }
    bool hasHatch() const { return patternIndex >= 3 && patternIndex <= 64; }
    bool hasTexture() const { return patternIndex >= 65 && patternIndex <= 128; }

    std::unique_ptr<vxPaintOLD> clone() const override;
    // The colour, then the pattern number unless the function takes the
    // colour alone.
    bool assign(vxAssign& assign, const vxUserSettings* settings) override;

    // Sets `color` from the colour argument at `index`: one number is a
    // 1-based index into the current palette (0 gives black), three or four
    // are the components, a text is a hash form. False, with `color`
    // untouched, for a void argument or another count.
    static bool readColor(const vxAssign& assign, long index, const vxUserSettings* settings,
                          vxColorOLD& color);

protected:
    void resetFields() override;
    void copyFields(const vxAppearance& from) override;
    void dumpFields(short depth, std::ostream& out) const override;

private:
    vxColorOLD* changeColor();  // the colour, made when missing

    std::unique_ptr<vxColorOLD> color;
    short patternIndex = 0;
};

}  // namespace Velarix
