// A mark of one of the device's built-in shapes, drawn by the device's
// drawSymbol centred on the symbol's centre plus its offsets.
//
// Types: 1 cross, 2 circle, 3 square, 4 diamond, 5 triangle down, 6
// triangle up (2 to 6 filled, then outlined), 7 plus, 8 to 12 the outlines
// of 2 to 6, 13 horizontal bar, 14 vertical bar, 15 to 18 ticks to the
// left, right, up and down. Type 0 is "no symbol" and draws nothing; so
// does any number outside 0..18.
//
// In a script the symbol is read as type, size, line widths, border colour
// with its pattern, and an optional fill colour with its pattern. Without a
// fill colour, a symbol that has no fill yet takes the border colour for it
// too, so that a plain AddSymbol gives a solid mark.
#pragma once

#include "graphics/vxSymbol.h"

namespace Velarix {

class vxBasicSymbol : public vxSymbol {
public:
    static constexpr short kNoSymbol = 0;
    static constexpr short kCircle = 2;
    static constexpr short kNumOfTypes = 18;
    static constexpr float kDefaultSize = 7.0f;
    static constexpr float kMaxSize = 10000.0f;

    explicit vxBasicSymbol(vxUserSettings* owner = nullptr);
    vxBasicSymbol(short type, float size, float x, float y, vxUserSettings* owner = nullptr);
    ~vxBasicSymbol() override;

    short getType() const override { return kTypeBasicSymbol; }
    void drawShadow(vxDevice& device) override;
    void drawBody(vxDevice& device) override;

    short getSymbolType() const { return type; }
    void setSymbolType(short value) { type = value; }
    float getSize() const { return size; }
    using vxGObjectOLD::getSize;
    // Clamped to 0..10000; width and height follow.
    void setSize(float value);
    float getSymbolSize() const override { return size; }
    // A type that draws something.
    bool isDrawn() const { return type > kNoSymbol && type <= kNumOfTypes; }

    // Type, size, line widths, border paint and, when given, fill paint.
    bool assign(vxAssign& assign, const vxUserSettings* settings);

protected:
    // Ticks reach a whole size from the centre; the other shapes lie in
    // the square of the size around it.
    void calculateBounds(float bounds[4]) const override;
    void resetFields() override;
    void copyFields(const vxSymbol& from) override;
    void dumpFields(std::ostream& out) const override;

private:
    short type = kCircle;
    float size = kDefaultSize;
};

}  // namespace Velarix
