// A gradient along the line from P1 to P2, in coordinates relative to the
// bounding box of the painted object (0 to 1). The default runs from left
// to right.
#pragma once

#include <memory>
#include <ostream>

#include "graphics/vxGradientPaint.h"

namespace Velarix {

class vxLinearGradient : public vxGradientPaint {
public:
    vxLinearGradient();
    ~vxLinearGradient() override;

    short getType() const override { return kLinearGradient; }

    float getX1() const { return x1; }
    float getY1() const { return y1; }
    float getX2() const { return x2; }
    float getY2() const { return y2; }
    void setP1(float x, float y);
    void setP2(float x, float y);

    // The corners of the box where the gradient starts and ends, from the
    // direction of P1 to P2; along an axis on which both points agree the
    // corner takes the point's own coordinate.
    void getStartCorner(float& x, float& y) const;
    void getEndCorner(float& x, float& y) const;
    // Whether P1 or P2 lies away from its corner (by more than 0.01 in a
    // coordinate), so that a device has to pad the gradient up to the box.
    bool needsStartPad() const;
    bool needsEndPad() const;

    std::unique_ptr<vxPaintOLD> clone() const override;

protected:
    long getNumOfLeadingNumbers() const override {  // x1 y1 x2 y2 spread
        return getNumOfLeadingNumbersOf(kLinearGradient);
    }
    void setGeometry(const float* numbers) override;

    void resetFields() override;
    void copyFields(const vxAppearance& from) override;
    void dumpFields(short depth, std::ostream& out) const override;

private:
    float x1 = 0.0f;
    float y1 = 0.0f;
    float x2 = 1.0f;
    float y2 = 0.0f;
};

}  // namespace Velarix
