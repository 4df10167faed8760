// A stroke of one width, with caps, joins and an optional dash style.
//
// In a script the stroke is one line-widths argument: the width alone
// draws solid; the width and a number pick a standard dash pattern (0 or
// an unknown number: solid); the width, a dash offset and the on and off
// lengths give a pattern of one's own.
#pragma once

#include <memory>
#include <ostream>

#include "graphics/vxDashStyle.h"
#include "graphics/vxStrokeOLD.h"

namespace Velarix {

class vxBasicStroke : public vxStrokeOLD {
public:
    static constexpr float kMaxWidth = 10000.0f;

    vxBasicStroke();
    explicit vxBasicStroke(float lineWidth);
    ~vxBasicStroke() override;

    short getType() const override { return kBasic; }
    bool isZeroWidth() const override { return lineWidth <= kMinWidth; }

    float getLineWidth() const override { return lineWidth; }
    short getLineCap() const override { return lineCap; }
    short getLineJoin() const override { return lineJoin; }
    float getMiterLimit() const override { return miterLimit; }
    const vxDashStyle* getDashStyle() const override { return dashStyle.get(); }

    // Widths and limits are clamped to 0..10000. Unknown cap codes become
    // square (2), unknown join codes miter (1).
    void setLineWidth(float value);
    void setLineCap(short value);
    void setLineJoin(short value);
    void setMiterLimit(float value);

    // A standard pattern by index; an unknown index leaves the dash empty.
    bool setDashStyle(short index);
    bool setDashStyle(short count, const float* lengths, float offset);
    void removeDashStyle() { dashStyle.reset(); }
    bool createDashStyle();

    std::unique_ptr<vxStrokeOLD> clone() const override;
    bool assign(vxAssign& assign) override;

protected:
    void resetFields() override;
    void copyFields(const vxAppearance& from) override;
    void dumpFields(short depth, std::ostream& out) const override;

private:
    vxDashStyle* changeDashStyle();  // made when missing
    bool takeDashError();

    float lineWidth = 1.0f;
    short lineCap = kSquareCap;
    short lineJoin = kMiterJoin;
    float miterLimit = 10.0f;
    std::unique_ptr<vxDashStyle> dashStyle;
};

}  // namespace Velarix
