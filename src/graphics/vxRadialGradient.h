// A gradient from a focus point out to the circle about (cx, cy) with
// radius r, in coordinates relative to the bounding box of the painted
// object (0 to 1). The default fills the box from its centre.
#pragma once

#include <memory>
#include <ostream>

#include "graphics/vxGradientPaint.h"

namespace Velarix {

class vxRadialGradient : public vxGradientPaint {
public:
    vxRadialGradient();
    ~vxRadialGradient() override;

    short getType() const override { return kRadialGradient; }

    float getCX() const { return cx; }
    float getCY() const { return cy; }
    float getRadius() const { return r; }
    float getFX() const { return fx; }
    float getFY() const { return fy; }
    // The focus stays where it is.
    void setCenter(float x, float y);
    void setRadius(float value);  // negative values become 0
    void setFocus(float x, float y);

    std::unique_ptr<vxPaintOLD> clone() const override;

protected:
    long getNumOfLeadingNumbers() const override {  // cx cy r fx fy spread
        return getNumOfLeadingNumbersOf(kRadialGradient);
    }
    void setGeometry(const float* numbers) override;

    void resetFields() override;
    void copyFields(const vxAppearance& from) override;
    void dumpFields(short depth, std::ostream& out) const override;

private:
    float cx = 0.5f;
    float cy = 0.5f;
    float r = 0.5f;
    float fx = 0.5f;
    float fy = 0.5f;
};

}  // namespace Velarix
