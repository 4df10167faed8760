// Value labels of bars, with the label flag of the chart function: one
// layer a series, the last series first, each label placed at its bar by
// the location of its style. Stacks have all their labels in one layer,
// with their shares when a stacked label style exists, and the totals of
// the stacks by that style's location.
#include <algorithm>
#include <cmath>
#include <memory>

#include "charts/vxBarChart1D.h"
#include "charts/vxChartLayerTypes.h"
#include "drawing/vxLayer.h"
#include "drawing/vxLayerManager.h"
#include "graphics/vxBasicStroke.h"
#include "graphics/vxLabel.h"
#include "graphics/vxText.h"
#include "styles/vxBorderStyle.h"
#include "styles/vxLabelStyle.h"
#include "styles/vxStyleManager.h"

namespace Velarix {

namespace {

constexpr short kCenter = 5;
constexpr short kSmartOut = 8;
// Where the totals of stacks stand.
constexpr short kTotalsOut = 1;
constexpr short kRunningTotalsEdge = 4;
constexpr short kRunningTotalsOut = 3;
constexpr short kOut = 9;
constexpr short kEdge = 7;

// The part of the rectangle inside the plot.
void cutToPlot(float rect[4], const float* plot) {
    rect[0] = std::max(rect[0], plot[0]);
    rect[1] = std::max(rect[1], plot[1]);
    rect[2] = std::min(rect[2], plot[2]);
    rect[3] = std::min(rect[3], plot[3]);
}

}  // namespace

void vxBarChart1D::addLabels(vxLayerManager& layerMng) {
    const vxStyleManager* styles = getStyleManager();
    if (!styles || !getParameters().doShowLabels()) return;
    const bool stacked = getParameters().isStacked();
    std::unique_ptr<vxLayer> layer;
    for (long s = getNumOfChartSeries() - 1; s >= 0 && !isError(); --s) {
        if (!layer) {
            layer = std::make_unique<vxLayer>(kLabelLayer, stacked ? kWholeChart : s,
                                              getLabelClipRect());
            layer->addClipShape(nullptr);
        }
        for (long c = 0; c < numOfCategories; ++c) {
            if (!isDrawable(s, c)) continue;
            std::unique_ptr<vxLabel> label = makeLabel(s, c);
            if (label) layer->addShape(std::move(label));
        }
        if (!stacked) handOver(layerMng, std::move(layer));
    }
    if (!layer || isError()) return;
    addTotals(*layer);
    handOver(layerMng, std::move(layer));
}

// The label of bar (s, c): its style's text, a format of the value or a
// literal, placed at the bar cut to the plot. Null for no label.
std::unique_ptr<vxLabel> vxBarChart1D::makeLabel(long s, long c) {
    const vxStyleManager& styles = *getStyleManager();
    const vxLabelStyle* style = styles.getLabelStyle(s + 1, c + 1);
    const double v = getValue(s, 1, c);
    if (!style || !style->getLabel() || !style->isInLimits(v)) return nullptr;
    const bool stacked = getParameters().isStacked();
    if (!stacked && !isInAxisRange(v)) return nullptr;
    const std::wstring& format = style->getText(c + 1);
    double positive = 0.0, negative = 0.0;
    if (stacked) getStackTotals(c, positive, negative);
    // A proportional chart shows each value as its share of the larger
    // total of its stack.
    const double scale = std::max(positive, -negative);
    const bool share = getParameters().isProportional() && scale > 1e-10;
    std::wstring text = formatLabelString(kNumber, share ? v / scale : v, format);
    if (text.empty()) return nullptr;
    if (stacked && styles.getStackedLabelStyle()) {
        const double total = std::fabs(v >= 0.0 ? positive : negative);
        if (total > 1e-10) {
            // Without a format of its own a share shows one decimal.
            double share = v * 100.0 / total;
            if (format == vxLabelStyle::kDefaultFormat) share = std::round(share * 10.0) / 10.0;
            text += L" (" + formatLabelString(kNumber, share, format) + L"%)";
        }
    }
    float rect[4];
    getBarRect(s, c, rect);
    cutToPlot(rect, getPlotBounds());
    const vxBorderStyle* border = styles.getBorderStyle(getStyleSeries(s, c) + 1, c + 1);
    const float gap =
        border && border->getStroke() ? border->getStroke()->getLineWidth() / 2 : 0.0f;
    const short location = style->getLocation() > 0 ? style->getLocation()
                           : stacked                ? kCenter
                                                    : kSmartOut;
    return placeLabel(*style, text, rect, location, getBarDirection(s, c), gap);
}

// The totals of the stacks: one label a stack at its end, or a running
// total at every bar; out beyond the end or on its edge.
void vxBarChart1D::addTotals(vxLayer& layer) {
    const vxLabelStyle* style = getStyleManager()->getStackedLabelStyle();
    if (!getParameters().isStacked() || !style || !style->getLabel()) return;
    short form = style->getLocation();
    if (form < kTotalsOut || form > kRunningTotalsEdge) form = getDefaultLabelLocation();
    if (form < kTotalsOut || form > kRunningTotalsEdge) return;
    const short anchor = (form == kTotalsOut || form == kRunningTotalsOut) ? kOut : kEdge;
    const bool running = form >= kRunningTotalsOut;
    for (long c = 0; c < numOfCategories; ++c) {
        double positive = 0.0, negative = 0.0;
        getStackTotals(c, positive, negative);
        const bool upward = positive + negative >= 0.0;
        float stack[4] = {0.0f, 0.0f, 0.0f, 0.0f};
        short direction = 0;
        for (long s = 0; s < getNumOfChartSeries(); ++s) {
            float r[4];
            if (!isDrawable(s, c) || !getBarRect(s, c, r)) continue;
            if (running) {
                const std::wstring text =
                    formatLabelString(kNumber, getStackedValue(s, c), style->getText(c + 1));
                cutToPlot(r, getPlotBounds());
                if (!text.empty()) {
                    layer.addShape(
                        placeLabel(*style, text, r, anchor, getBarDirection(s, c), 0.0f));
                }
                continue;
            }
            if ((getValue(s, 1, c) >= 0.0) != upward) continue;
            if (direction == 0) std::copy(r, r + 4, stack);
            direction = getBarDirection(s, c);
            stack[0] = std::min(stack[0], r[0]);
            stack[1] = std::min(stack[1], r[1]);
            stack[2] = std::max(stack[2], r[2]);
            stack[3] = std::max(stack[3], r[3]);
        }
        if (running || direction == 0) continue;
        const std::wstring text =
            formatLabelString(kNumber, positive + negative, style->getText(c + 1));
        cutToPlot(stack, getPlotBounds());
        if (!text.empty()) layer.addShape(placeLabel(*style, text, stack, anchor, direction, 0.0f));
    }
}

// A label of the style with the text, at the bar's rectangle (its front
// face). Beyond the far end of a box the label keeps clear of the box's
// top or side.
std::unique_ptr<vxLabel> vxBarChart1D::placeLabel(const vxLabelStyle& style,
                                                  const std::wstring& text, float rect[4],
                                                  short location, short direction, float gap) {
    auto label = std::make_unique<vxLabel>(style.getLabel()->getOwnerSettings());
    if (!label->set(style.getLabel())) throw std::bad_alloc();
    label->getText()->setText(text);
    if (getDepthInfo().isDepth()) {
        if (direction == kUp) gap += std::fabs(getDepthInfo().getYDepth());
        if (direction == kToRight) gap += std::fabs(getDepthInfo().getXDepth());
    }
    const float depth[2] = {0.0f, 0.0f};
    const float offset[2] = {style.getXOffset(), style.getYOffset()};
    label->placeBarLabel(location, direction, rect, getLimitBounds(), gap, depth, offset);
    return label;
}

}  // namespace Velarix
