// The labels of the slices: made with their texts before the pie is laid
// out (outer labels take room from it), placed after.
#include <cmath>

#include "charts/vxPieChart.h"
#include "charts/vxPieChartExplodeManager.h"
#include "graphics/vxLabel.h"
#include "graphics/vxText.h"
#include "styles/vxLabelStyle.h"
#include "styles/vxStyleManager.h"

namespace Velarix {

void vxPieChart::makeLabels() {
    outerOwned.clear();
    innerOwned.clear();
    centerLabel.reset();
    try {
        if (getParameters().doShowLabels() && labels->doShowOuterLabels()) makeOuterLabels();
        if (!isError() && labels->doShowInnerLabels()) makeInnerLabels();
        const std::wstring& center = labels->getCenterLabelText();
        if (!isError() && !center.empty() && labels->getCenterLabel()) {
            const bool format = center.find(L'|') != std::wstring::npos;
            centerLabel = makeLabel(*labels->getCenterLabel(),
                                    format ? formatLabelString(kNumber, total, center) : center);
        }
    } catch (const std::bad_alloc&) {
        setError(vxErrRuntime::kOutOfMemory, where(L"createLabels"));
    }
}

// Outer labels in the look and with the texts of the series' label style.
void vxPieChart::makeOuterLabels() {
    const vxStyleManager* styles = getStyleManager();
    outerOwned.resize(values.size());
    for (size_t i = 0; i < values.size() && styles && !isError(); ++i) {
        const long item = indices[i];
        const vxLabelStyle* style = styles->getLabelStyle(1, item + 1);
        // A slice of no whole degree shows no label.
        if (!labels->showsLabel(long(i)) || angles[i] == 0.0f) continue;
        if (!style || !style->getLabel()) continue;
        if (!style->isInLimits(values[i])) continue;
        const std::wstring text = formatLabelString(kNumber, labels->labelValue(values[i], total),
                                                    style->getText(item + 1));
        if (isError()) return setError(getError()->getErrorCode(), where(L"setUpOuterLabels"));
        if (!text.empty()) outerOwned[i] = makeLabel(*style->getLabel(), text);
    }
}

void vxPieChart::makeInnerLabels() {
    innerOwned.resize(values.size());
    for (size_t i = 0; i < values.size() && labels->getInnerLabel() && !isError(); ++i) {
        const std::wstring& format = labels->getInnerLabelText(long(i));
        if (!labels->showsLabel(long(i)) || format.empty() || angles[i] == 0.0f) continue;
        const std::wstring text =
            formatLabelString(kNumber, labels->labelValue(values[i], total), format);
        if (isError()) return setError(getError()->getErrorCode(), where(L"setUpInnerLabels"));
        if (!text.empty()) innerOwned[i] = makeLabel(*labels->getInnerLabel(), text);
    }
}

std::unique_ptr<vxLabel> vxPieChart::makeLabel(const vxLabel& look, const std::wstring& text) {
    auto label = std::make_unique<vxLabel>(look.getOwnerSettings());
    if (!label->set(&look)) throw std::bad_alloc();
    label->getText()->setText(text);
    return label;
}

vxPieChartLabels::Pie vxPieChart::getLabelPie() const {
    vxPieChartLabels::Pie pie;
    pie.cx = pieCenter[0];
    pie.cy = pieCenter[1];
    pie.rx = pieWidth / 2;
    pie.ry = pieHeight / 2;
    pie.depth = maxPieDepth;
    pie.innerFraction = getParameters().hasInnerRadius() ? innerRadiusPercent * 0.01f : 0.0f;
    const float* limits = getLimitBounds();
    const bool limited = limits[2] > limits[0] && limits[3] > limits[1];
    const float* frame = limited ? limits : getPlotBounds();
    std::copy(frame, frame + 4, pie.bounds);
    return pie;
}

std::vector<vxPieChartLabels::Slice> vxPieChart::getLabelSlices() const {
    std::vector<vxPieChartLabels::Slice> slices(values.size());
    for (size_t i = 0; i < values.size(); ++i) {
        slices[i].midAngle = midAngles[i];
        float cx, cy, depth;
        getSliceFrame(long(i), cx, cy, depth);
        slices[i].offset[0] = cx - pieCenter[0];
        slices[i].offset[1] = cy - pieCenter[1];
    }
    return slices;
}

void vxPieChart::placeLabels() {
    const vxPieChartLabels::Pie pie = getLabelPie();
    const std::vector<vxPieChartLabels::Slice> slices = getLabelSlices();
    outerLabels.assign(values.size(), nullptr);
    innerLabels.assign(values.size(), nullptr);
    for (size_t i = 0; i < outerOwned.size(); ++i) outerLabels[i] = outerOwned[i].get();
    for (size_t i = 0; i < innerOwned.size(); ++i) innerLabels[i] = innerOwned[i].get();
    labels->placeOuterLabels(outerLabels, slices, pie);
    labels->placeInnerLabels(innerLabels, slices, pie);
    if (centerLabel) labels->placeCenterLabel(*centerLabel, pie);
    if (labels->isError()) copyError(labels->getError());
}

}  // namespace Velarix
