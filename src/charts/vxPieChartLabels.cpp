#include "charts/vxPieChartLabels.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "data/vxDataValueSeries.h"
#include "graphics/vxAppearanceScript.h"
#include "graphics/vxAuxiliaryLine2D.h"
#include "graphics/vxFontOLD.h"
#include "graphics/vxLabel.h"
#include "graphics/vxText.h"
#include "host/vxLog.h"
#include "script/vxAssign.h"
#include "script/vxFunctionIds.h"

namespace Velarix {

namespace {

constexpr double kDegree = 3.14159265358979323846 / 180.0;
// The room between a label and its line.
constexpr float kLineToLabel = 3.0f;

}  // namespace

vxPieChartLabels::vxPieChartLabels(vxUserSettings* owner)
    : vxErrorHolder(L"vxPieChartLabels"),
      owner(owner),
      lowerLimit(vxDataValueSeries::kDefaultLowerLimit),
      upperLimit(vxDataValueSeries::kDefaultUpperLimit) {
    createLabels();
}

vxPieChartLabels::~vxPieChartLabels() = default;

bool vxPieChartLabels::createLabels() {
    return create(innerLabel, L"createLabels", owner) &&
           create(centerLabel, L"createLabels", owner) && create(auxLine, L"createLabels", owner);
}

void vxPieChartLabels::assign(vxAssign& a) {
    if (!innerLabel || !centerLabel || !auxLine) return;
    switch (a.getFunction()) {
        case kPieChartOptions:
            kind = a.getShort(0, kind);
            return;
        case kPieChartLabelOptions:
            percentMode = a.getBool(0, percentMode);
            lowerLimit = a.getDouble(1, lowerLimit);
            upperLimit = a.getDouble(2, upperLimit);
            return;
        case kPieChartInnerLabelOptions:
            innerLabelOffset = a.getFloat(0, innerLabelOffset);
            outerLabelOffset = a.getFloat(1, outerLabelOffset);
            return;
        case kPieChartCenterLabelOptions:
            centerLabelHOffset = a.getFloat(0, centerLabelHOffset);
            centerLabelVOffset = a.getFloat(1, centerLabelVOffset);
            return;
        case kPieChartAuxLines:
            return assignAuxLines(a);
        default:
            return assignTexts(a);
    }
}

// Texts, styles and backgrounds of the inner and the centre label.
void vxPieChartLabels::assignTexts(vxAssign& a) {
    const long fn = a.getFunction();
    const bool center = fn == kPieChartCenterLabelText || fn == kPieChartCenterLabelStyle ||
                        fn == kPieChartCenterLabelBackground ||
                        fn == kPieChartCenterLabelBackgroundOptions;
    vxLabel& label = center ? *centerLabel : *innerLabel;
    if (fn == kPieChartCenterLabelText) {
        centerText = a.getString(0);
    } else if (fn == kPieChartInnerLabelTexts) {
        innerLabelTexts.clear();
        for (long i = 0; i < a.getNumOfArguments(); ++i) innerLabelTexts.push_back(a.getString(i));
        if (!innerLabelTexts.empty()) kind |= kInnerLabels;
    } else if (fn == kPieChartCenterLabelStyle || fn == kPieChartInnerLabelStyle) {
        assignStyle(label, a);
    } else if (fn == kPieChartCenterLabelBackground || fn == kPieChartInnerLabelBackground) {
        label.assignBackground(a, owner);
    } else if (fn == kPieChartCenterLabelBackgroundOptions ||
               fn == kPieChartInnerLabelBackgroundOptions) {
        label.assignBackgroundOptions(a);
    }
    if (label.isError()) copyError(label.getError());
}

void vxPieChartLabels::assignStyle(vxLabel& label, vxAssign& a) {
    vxText* text = label.getText();
    if (!text) return;
    text->assign(a, owner);
    if (text->isError()) copyError(text->getError());
}

// The lengths, the alignment, then the line's widths, colour and pattern.
void vxPieChartLabels::assignAuxLines(vxAssign& a) {
    auxLines = true;
    auxLineHLength = a.getFloat(0, auxLineHLength);
    auxLineExtLength = a.getFloat(1, auxLineExtLength);
    auxLineAlignment = a.getShort(2, auxLineAlignment);
    a.addToArgumentOffset(3);
    if (!vxAppearanceScript::readBorder(*auxLine, a, owner, vxAppearanceScript::kSkipPart)) {
        copyError(auxLine->getError());
    }
    a.addToArgumentOffset(-3);
}

void vxPieChartLabels::setUpLabelFlags(const std::vector<double>& values, double total) {
    labelFlags.assign(values.size(), 0);
    for (size_t i = 0; i < values.size(); ++i) {
        const double v = labelValue(values[i], total);
        labelFlags[i] = v >= lowerLimit && v <= upperLimit ? 1 : 0;
    }
}

bool vxPieChartLabels::showsLabel(long slice) const {
    return slice >= 0 && size_t(slice) < labelFlags.size() && labelFlags[size_t(slice)] != 0;
}

double vxPieChartLabels::labelValue(double value, double total) const {
    return percentMode && total > 0.0 ? value * 100.0 / total : value;
}

const std::wstring& vxPieChartLabels::getInnerLabelText(long slice) const {
    static const std::wstring none;
    if (innerLabelTexts.empty() || slice < 0) return none;
    return innerLabelTexts[size_t(slice) % innerLabelTexts.size()];
}

float vxPieChartLabels::relative(float value, bool isRelative, float base) const {
    return isRelative ? value * 0.01f * base : value;
}

void vxPieChartLabels::getOuterRoom(const std::vector<float>& sizes, float radius,
                                    float room[2]) const {
    float width = 0.0f, height = 0.0f;
    for (size_t i = 0; i + 1 < sizes.size(); i += 2) {
        width = std::max(width, sizes[i]);
        height = std::max(height, sizes[i + 1]);
    }
    const float off = relative(outerLabelOffset, useRelativeOuterLabelOffset, radius);
    room[0] = width + off;
    room[1] = height + off;
    if (auxLines) {
        room[0] += relative(auxLineHLength, useRelativeAuxLineHLength, radius) + kLineToLabel;
    }
}

void vxPieChartLabels::rimPoint(const Slice& s, const Pie& pie, float grow, float p[2]) const {
    const double a = s.midAngle * kDegree;
    p[0] = float(pie.cx + (pie.rx + grow) * std::cos(a)) + s.offset[0];
    p[1] = float(pie.cy - (pie.ry + grow) * std::sin(a)) + s.offset[1];
    if (std::sin(a) < 0.0) p[1] += pie.depth;
}

}  // namespace Velarix
