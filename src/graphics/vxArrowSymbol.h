// An arrow head: its tip at the symbol's centre plus offsets, pointing in
// the direction of the orientation.
//
// With c the cosine of the orientation and s minus its sine (the page's y
// axis grows downward), the head is built from
//   base = tip - (c, s) * headLength,
//   wing = (headWidth / 2 * s, -headWidth / 2 * c):
//   1. a length that differs from the inset: the closed outline tip,
//      base + wing, base + (c, s) * inset, base - wing, filled with the fill
//      paint, or outlined with the border when the head is hollow;
//   2. a length equal to the inset: two lines, base + wing to tip and tip
//      to base - wing, in the border;
//   3. a length of 0: one line across the tip, tip + wing to tip - wing,
//      in the border: a flat cap.
// A head of no width draws nothing. The shadow draws the same in the
// shadow's paint, moved by its offsets.
//
// Unlike other symbols an arrow turns with the map that moves it, so that
// a head stays on the direction of the line it ends.
#pragma once

#include <vector>

#include "graphics/vxSymbol.h"

namespace Velarix {

class vxShadowOLD;

class vxArrowSymbol : public vxSymbol {
public:
    static constexpr float kMaxExtent = 10000.0f;

    explicit vxArrowSymbol(vxUserSettings* owner = nullptr);
    ~vxArrowSymbol() override;

    short getType() const override { return kTypeArrowSymbol; }
    void drawShadow(vxDevice& device) override;
    void drawBody(vxDevice& device) override;

    float getHeadLength() const { return headLength; }
    float getHeadWidth() const { return headWidth; }
    float getHeadInset() const { return headInset; }
    bool isHeadHollow() const { return headIsHollow; }
    // Length and width are clamped to 0..10000, the inset to -10000..10000.
    // The length and a negative inset make the symbol's height, the width
    // its width.
    void setHeadLength(float value);
    void setHeadWidth(float value);
    void setHeadInset(float value);
    void setHeadIsHollow(bool value) { headIsHollow = value; }
    // The larger of length and width.
    float getSymbolSize() const override;

    // The arrow form of a script call, at the argument offset: line widths,
    // colour, pattern, the line's arrow ends (the caller's, passed over),
    // head length, head width, inset and hollow flag. The colour paints the
    // border and, for a head that isn't hollow, the fill. The offset moves
    // past these eight arguments; AddArrow with more than twelve arguments
    // goes on with a shadow.
    bool assign(vxAssign& assign, const vxUserSettings* settings);

protected:
    // The box of the head's points; the tip alone when nothing is drawn.
    void calculateBounds(float bounds[4]) const override;
    void transformGeometry(const vxTransform2DOLD& transform) override;
    void resetFields() override;
    void copyFields(const vxSymbol& from) override;
    void dumpFields(std::ostream& out) const override;

private:
    enum class Form { kNone, kHead, kOpenHead, kFlat };
    // The form of the head and its points in drawing order.
    Form headPoints(std::vector<float>& x, std::vector<float>& y) const;
    // The body with `shadow` null, else its shadow.
    void drawHead(vxDevice& device, const vxShadowOLD* shadow);
    void updateExtent();

    float headLength = 16.0f;
    float headWidth = 8.0f;
    float headInset = 0.0f;
    bool headIsHollow = false;
};

}  // namespace Velarix
