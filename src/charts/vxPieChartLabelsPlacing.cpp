// The places of the pie's labels.
#include <algorithm>
#include <array>
#include <cmath>
#include <numeric>

#include "charts/vxPieChartLabels.h"
#include "graphics/vxAuxiliaryLine2D.h"
#include "graphics/vxFontOLD.h"
#include "graphics/vxLabel.h"
#include "graphics/vxText.h"
#include "host/vxLog.h"

namespace Velarix {

namespace {

constexpr double kDegree = 3.14159265358979323846 / 180.0;
constexpr float kLeastGap = 2.0f;
constexpr float kLineToLabel = 3.0f;

bool isRightSide(float midAngle) {
    return std::cos(midAngle * kDegree) >= -1e-6;
}

}  // namespace

void vxPieChartLabels::placeOuterLabels(const std::vector<vxLabel*>& labels,
                                        const std::vector<Slice>& slices, const Pie& pie) {
    std::copy(pie.bounds, pie.bounds + 4, bounds);
    indexFlags.assign(labels.size(), 0);
    placeSide(labels, slices, pie, true);
    placeSide(labels, slices, pie, false);
}

// The labels of one side, from the top down: each first at its ideal
// place, then spread apart, then given its line.
void vxPieChartLabels::placeSide(const std::vector<vxLabel*>& labels,
                                 const std::vector<Slice>& slices, const Pie& pie, bool right) {
    std::vector<size_t> side;
    std::vector<std::array<float, 4>> boxes(labels.size());
    for (size_t i = 0; i < labels.size(); ++i) {
        if (!labels[i] || isRightSide(slices[i].midAngle) != right) continue;
        indexFlags[i] = 1;
        placeBeside(*labels[i], slices[i], pie, right, boxes[i].data());
        side.push_back(i);
    }
    if (side.empty()) return;
    std::stable_sort(side.begin(), side.end(),
                     [&boxes](size_t a, size_t b) { return boxes[a][1] < boxes[b][1]; });
    std::vector<float> tops, heights;
    size_t start = 0;
    float nearest = -1.0f;
    float font = 0.0f;
    for (size_t k = 0; k < side.size(); ++k) {
        const auto& box = boxes[side[k]];
        tops.push_back(box[1]);
        heights.push_back(box[3] - box[1]);
        const float distance = std::fabs(0.5f * (box[1] + box[3]) - pie.cy);
        if (nearest < 0.0f || distance < nearest) nearest = distance, start = k;
        const vxFontOLD* f =
            labels[side[k]]->getText() ? labels[side[k]]->getText()->getFont() : nullptr;
        font = std::max(font, f ? f->getSize() : 0.0f);
    }
    const float gap =
        std::max(kLeastGap, relative(auxLineLabelGap, useRelativeAuxLineLabelGap, font));
    spreadApart(tops, heights, gap, pie.bounds[1], pie.bounds[3], start);
    for (size_t k = 0; k < side.size(); ++k) {
        auto& box = boxes[side[k]];
        box[3] += tops[k] - box[1];
        box[1] = tops[k];
        labels[side[k]]->setLocation(box[0], box[1]);
        if (auxLines) addAuxLine(*labels[side[k]], slices[side[k]], pie, right, box.data());
    }
}

// The label's box at its ideal place: off the arc along the slice's
// middle, or in the column beside the pie. It keeps to its side of the
// pie's middle.
void vxPieChartLabels::placeBeside(vxLabel& label, const Slice& slice, const Pie& pie, bool right,
                                   float box[4]) const {
    float size[2];
    label.getLabelSize(size);
    const double a = slice.midAngle * kDegree;
    float p[2];
    float cx = 0.0f, cy = 0.0f;
    if (auxLines) {
        rimPoint(slice, pie, relative(auxLineExtLength, useRelativeAuxLineExtLength, pie.rx), p);
        const float column =
            pie.rx + relative(auxLineHLength, useRelativeAuxLineHLength, pie.rx) + kLineToLabel;
        cx = pie.cx + (right ? column + size[0] / 2 : -column - size[0] / 2);
        cy = p[1];
    } else {
        rimPoint(slice, pie, relative(outerLabelOffset, useRelativeOuterLabelOffset, pie.rx), p);
        cx = p[0] + float(0.5 * size[0] * std::cos(a));
        cy = p[1] - float(0.5 * size[1] * std::sin(a));
    }
    if (right) cx = std::max(cx, pie.cx + kLeastGap / 2 + size[0] / 2);
    if (!right) cx = std::min(cx, pie.cx - kLeastGap / 2 - size[0] / 2);
    box[0] = cx - size[0] / 2;
    box[1] = cy - size[1] / 2;
    box[2] = box[0] + size[0];
    box[3] = box[1] + size[1];
}

// A line from the slice's arc out to the knee, then across to the label at
// its height: by the alignment, the label's bottom, middle or top.
void vxPieChartLabels::addAuxLine(vxLabel& label, const Slice& slice, const Pie& pie, bool right,
                                  const float box[4]) {
    if (!label.createAuxiliaryLine(*auxLine)) return copyError(label.getError());
    float anchor[2], knee[2];
    rimPoint(slice, pie, 0.0f, anchor);
    rimPoint(slice, pie, relative(auxLineExtLength, useRelativeAuxLineExtLength, pie.rx), knee);
    float y = 0.5f * (box[1] + box[3]);
    if (auxLineAlignment == kAboveLine) y = box[3];
    if (auxLineAlignment == kBelowLine) y = box[1];
    const float x = right ? box[0] - kLineToLabel : box[2] + kLineToLabel;
    vxAuxiliaryLine2D* line = label.getAuxiliaryLine();
    line->set(knee[0], knee[1], x, y);
    line->setP1Extension(anchor[0], anchor[1]);
}

void vxPieChartLabels::spreadApart(std::vector<float>& tops, const std::vector<float>& heights,
                                   float gap, float upper, float lower, size_t start) {
    const size_t n = tops.size();
    if (n == 0) return;
    start = std::min(start, n - 1);
    for (size_t i = start; i-- > 0;) {
        tops[i] = std::min(tops[i], tops[i + 1] - gap - heights[i]);
    }
    for (size_t i = start + 1; i < n; ++i) {
        tops[i] = std::max(tops[i], tops[i - 1] + heights[i - 1] + gap);
    }
    // Back into the bounds: down from the top, then up from the bottom as
    // far as the top allows.
    const auto pushDown = [&](float from) {
        tops[0] = std::max(tops[0], from);
        for (size_t i = 1; i < n; ++i) {
            tops[i] = std::max(tops[i], tops[i - 1] + heights[i - 1] + gap);
        }
    };
    pushDown(upper);
    if (tops[n - 1] + heights[n - 1] > lower) {
        tops[n - 1] = lower - heights[n - 1];
        for (size_t i = n - 1; i-- > 0;) {
            tops[i] = std::min(tops[i], tops[i + 1] - gap - heights[i]);
        }
        if (tops[0] < upper) pushDown(upper);
    }
}

void vxPieChartLabels::placeInnerLabels(const std::vector<vxLabel*>& labels,
                                        const std::vector<Slice>& slices, const Pie& pie) const {
    const float off = relative(innerLabelOffset, useRelativeInnerLabelOffset, pie.rx);
    for (size_t i = 0; i < labels.size(); ++i) {
        if (!labels[i]) continue;
        float size[2];
        labels[i]->getLabelSize(size);
        const double a = slices[i].midAngle * kDegree;
        const double c = std::cos(a), s = std::sin(a);
        const double half = 0.5 * (std::fabs(size[0] * c) + std::fabs(size[1] * s));
        const double rx = std::max(1.0, double(pie.rx));
        double t = 1.0 - (off + half) / rx;
        t = std::max(t, pie.innerFraction + half / rx);
        const double x = pie.cx + t * pie.rx * c + slices[i].offset[0];
        const double y = pie.cy - t * pie.ry * s + slices[i].offset[1];
        labels[i]->setLocation(float(x - size[0] / 2), float(y - size[1] / 2));
    }
}

void vxPieChartLabels::placeCenterLabel(vxLabel& label, const Pie& pie) const {
    float size[2];
    label.getLabelSize(size);
    label.setLocation(pie.cx - size[0] / 2 + centerLabelHOffset,
                      pie.cy - size[1] / 2 + centerLabelVOffset);
}

void vxPieChartLabels::dump(short depth, std::ostream& out) const {
    if (depth <= 0) return;
    vxDumpHeader(out, "vxPieChartLabels");
    vxDumpLine(out, "short kind:              ", kind);
    vxDumpLine(out, "bool percentMode:        ", percentMode);
    vxDumpLine(out, "double lowerLimit:       ", lowerLimit);
    vxDumpLine(out, "double upperLimit:       ", upperLimit);
    vxDumpLine(out, "vector<wstring> innerLabelTexts: ", innerLabelTexts);
    vxDumpLine(out, "float outerLabelOffset:  ", outerLabelOffset);
    vxDumpLine(out, "float innerLabelOffset:  ", innerLabelOffset);
    vxDumpLine(out, "float centerLabelHOffset: ", centerLabelHOffset);
    vxDumpLine(out, "float centerLabelVOffset: ", centerLabelVOffset);
    vxDumpLine(out, "bool auxLines:           ", auxLines);
    vxDumpLine(out, "float auxLineHLength:    ", auxLineHLength);
    vxDumpLine(out, "float auxLineExtLength:  ", auxLineExtLength);
    vxDumpLine(out, "short auxLineAlignment:  ", auxLineAlignment);
    vxDumpLine(out, "float bounds[4]:         ", bounds, 4);
    vxDumpEnd(out);
}

}  // namespace Velarix
