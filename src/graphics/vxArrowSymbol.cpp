#include "graphics/vxArrowSymbol.h"

#include <algorithm>
#include <cmath>

#include "graphics/vxBasicStroke.h"
#include "graphics/vxShadowOLD.h"
#include "graphics/vxTransform2DOLD.h"
#include "host/vxLog.h"
#include "output/vxDevice.h"
#include "script/vxAssign.h"
#include "script/vxFunctionIds.h"

namespace Velarix {

namespace {

constexpr double kTiny = 1e-10;
// Where the head's numbers stand in the arrow form, and its length.
constexpr long kHeadAt = 4;
constexpr long kNumOfArguments = 8;
// AddArrow's own arguments; more go to a shadow.
constexpr long kNumOfAddArrowArguments = 12;

}  // namespace

vxArrowSymbol::vxArrowSymbol(vxUserSettings* owner) : vxSymbol(L"vxArrowSymbol", owner) {
    updateExtent();
}

vxArrowSymbol::~vxArrowSymbol() = default;

void vxArrowSymbol::setHeadLength(float value) {
    headLength = std::clamp(value, 0.0f, kMaxExtent);
    updateExtent();
}

void vxArrowSymbol::setHeadWidth(float value) {
    headWidth = std::clamp(value, 0.0f, kMaxExtent);
    updateExtent();
}

void vxArrowSymbol::setHeadInset(float value) {
    headInset = std::clamp(value, -kMaxExtent, kMaxExtent);
    updateExtent();
}

void vxArrowSymbol::updateExtent() {
    setExtent(headWidth, headLength + std::max(0.0f, -headInset));
}

float vxArrowSymbol::getSymbolSize() const {
    return std::max(headLength, headWidth);
}

vxArrowSymbol::Form vxArrowSymbol::headPoints(std::vector<float>& x, std::vector<float>& y) const {
    const double c = std::cos(static_cast<double>(getOrientation()));
    const double s = -std::sin(static_cast<double>(getOrientation()));
    // Written so that a NaN direction draws nothing too.
    if (!(std::fabs(c) >= kTiny || std::fabs(s) >= kTiny) || !(headWidth >= kTiny)) {
        return Form::kNone;
    }
    const double tipX = drawX(), tipY = drawY();
    const double baseX = tipX - c * headLength, baseY = tipY - s * headLength;
    const double wingX = 0.5 * headWidth * s, wingY = -0.5 * headWidth * c;
    auto put = [&](std::initializer_list<double> xs, std::initializer_list<double> ys) {
        x.assign(xs.begin(), xs.end());
        y.assign(ys.begin(), ys.end());
    };
    if (headLength < kTiny) {
        put({tipX + wingX, tipX - wingX}, {tipY + wingY, tipY - wingY});
        return Form::kFlat;
    }
    if (std::fabs(static_cast<double>(headLength) - headInset) < kTiny) {
        put({baseX + wingX, tipX, baseX - wingX}, {baseY + wingY, tipY, baseY - wingY});
        return Form::kOpenHead;
    }
    put({tipX, baseX + wingX, baseX + c * headInset, baseX - wingX},
        {tipY, baseY + wingY, baseY + s * headInset, baseY - wingY});
    return Form::kHead;
}

void vxArrowSymbol::drawBody(vxDevice& device) {
    if (isVisible()) drawHead(device, nullptr);
}

void vxArrowSymbol::drawShadow(vxDevice& device) {
    if (isVisible() && hasShadow()) drawHead(device, getShadow());
}

void vxArrowSymbol::drawHead(vxDevice& device, const vxShadowOLD* shadow) {
    std::vector<float> x, y;
    const Form form = headPoints(x, y);
    if (form == Form::kNone) return;
    const vxBasicStroke defaultStroke;
    const vxStrokeOLD& stroke = strokeOr(defaultStroke);
    auto line = [&](size_t from, size_t to) {
        if (shadow)
            device.drawLine2D(stroke, *shadow, x[from], y[from], x[to], y[to]);
        else
            device.drawLine2D(stroke, *getBorderPaint(), x[from], y[from], x[to], y[to]);
    };
    if (form == Form::kFlat || form == Form::kOpenHead) {
        if (!hasBorder()) return;
        line(0, 1);
        if (form == Form::kOpenHead) line(1, 2);
        return;
    }
    float b[4];
    calculateBounds(b);
    if (shadow) {
        b[0] += shadow->getXOffset(), b[2] += shadow->getXOffset();
        b[1] += shadow->getYOffset(), b[3] += shadow->getYOffset();
    }
    if (headIsHollow) {
        if (!hasBorder()) return;
        if (shadow)
            device.drawPolygon2D(stroke, *shadow, x, y, b, true);
        else
            device.drawPolygon2D(stroke, *getBorderPaint(), x, y, b, true);
    } else if (hasFill()) {
        if (shadow)
            device.fillPolygon2D(*shadow, x, y, b, 1);
        else
            device.fillPolygon2D(*getFillPaint(), x, y, b, 1);
    }
}

void vxArrowSymbol::calculateBounds(float b[4]) const {
    std::vector<float> x, y;
    if (headPoints(x, y) == Form::kNone) {
        b[0] = b[2] = drawX();
        b[1] = b[3] = drawY();
        return;
    }
    const auto [left, right] = std::minmax_element(x.begin(), x.end());
    const auto [top, bottom] = std::minmax_element(y.begin(), y.end());
    b[0] = *left;
    b[1] = *top;
    b[2] = *right;
    b[3] = *bottom;
}

// The direction (c, s) goes through the linear part of the map; a map that
// squeezes it to nothing leaves the orientation as it was.
void vxArrowSymbol::transformGeometry(const vxTransform2DOLD& t) {
    vxSymbol::transformGeometry(t);
    if (t.getType() != vxTransform2DOLD::kGeneral) return;
    const double c = std::cos(static_cast<double>(getOrientation()));
    const double s = -std::sin(static_cast<double>(getOrientation()));
    const double dx = t.m00 * c + t.m01 * s;
    const double dy = t.m10 * c + t.m11 * s;
    if (std::fabs(dx) < kTiny && std::fabs(dy) < kTiny) return;
    setOrientation(static_cast<float>(std::atan2(-dy, dx)));
}

bool vxArrowSymbol::assign(vxAssign& assign, const vxUserSettings* settings) {
    const long start = assign.getArgumentOffset();
    auto moveTo = [&](long offset) {
        assign.addToArgumentOffset(offset - assign.getArgumentOffset());
    };
    moveTo(start + kHeadAt);
    if (!assign.isVoid(0)) setHeadLength(assign.getFloat(0));
    if (!assign.isVoid(1)) setHeadWidth(assign.getFloat(1));
    if (!assign.isVoid(2)) setHeadInset(assign.getFloat(2));
    if (!assign.isVoid(3)) setHeadIsHollow(assign.getBool(3));
    moveTo(start);
    bool done = assignStroke(assign);
    const long paintAt = assign.getArgumentOffset();
    done = done && assignBorderPaint(assign, settings);
    if (done && !headIsHollow) {
        moveTo(paintAt);
        done = assignFillPaint(assign, settings);
    }
    moveTo(start + kNumOfArguments);
    if (done && assign.getFunction() == kAddArrow &&
        assign.getNumOfArguments() > kNumOfAddArrowArguments) {
        done = assignShadow(assign, settings);
    }
    return done;
}

void vxArrowSymbol::resetFields() {
    headLength = 16.0f;
    headWidth = 8.0f;
    headInset = 0.0f;
    headIsHollow = false;
    updateExtent();
}

void vxArrowSymbol::copyFields(const vxSymbol& from) {
    const auto& arrow = static_cast<const vxArrowSymbol&>(from);
    headLength = arrow.headLength;
    headWidth = arrow.headWidth;
    headInset = arrow.headInset;
    headIsHollow = arrow.headIsHollow;
    updateExtent();
}

void vxArrowSymbol::dumpFields(std::ostream& out) const {
    vxDumpLine(out, "float headLength:  ", headLength);
    vxDumpLine(out, "float headWidth:  ", headWidth);
    vxDumpLine(out, "float headInset:  ", headInset);
    vxDumpLine(out, "bool  headIsHollow:  ", headIsHollow);
}

}  // namespace Velarix
