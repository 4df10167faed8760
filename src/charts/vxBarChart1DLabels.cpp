// Value labels of bars, with the label flag of the chart function: one
// layer a series, the last series first, each label placed at its bar by
// the location of its style.
#include <algorithm>
#include <cmath>
#include <memory>

#include "charts/vxBarChart1D.h"
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

constexpr long kLabelLayer = 23;

}  // namespace

void vxBarChart1D::addLabels(vxLayerManager& layerMng) {
    const vxStyleManager* styles = getStyleManager();
    if (!styles || !getParameters().doShowLabels()) return;
    for (long s = getNumOfChartSeries() - 1; s >= 0 && !isError(); --s) {
        auto layer = std::make_unique<vxLayer>(kLabelLayer, s, getLabelClipRect());
        layer->addClipShape(nullptr);
        for (long c = 0; c < numOfCategories && !isError(); ++c) {
            if (!isDrawable(s, c)) continue;
            std::unique_ptr<vxLabel> label = makeLabel(s, c);
            if (label) layer->addShape(std::move(label));
        }
        if (layer->isError()) return copyError(layer->getError());
        layerMng.addLayer(std::move(layer));
    }
}

// The label of bar (s, c): its style's text, a format of the value or a
// literal, placed at the bar cut to the plot. Null for no label.
std::unique_ptr<vxLabel> vxBarChart1D::makeLabel(long s, long c) {
    const vxLabelStyle* style = getStyleManager()->getLabelStyle(s + 1, c + 1);
    const double v = getValue(s, 1, c);
    if (!style || !style->getLabel() || !style->isInLimits(v)) return nullptr;
    const double shown = getParameters().isProportional() ? getProportionalValue(s, c) : v;
    const std::wstring text = formatLabelString(kNumber, shown, style->getText(c + 1));
    if (text.empty()) return nullptr;
    auto label = std::make_unique<vxLabel>(style->getLabel()->getOwnerSettings());
    if (!label->set(style->getLabel())) return nullptr;
    label->getText()->setText(text);
    float rect[4];
    getBarRect(s, c, rect);
    const float* plot = getPlotBounds();
    rect[0] = std::max(rect[0], plot[0]);
    rect[1] = std::max(rect[1], plot[1]);
    rect[2] = std::min(rect[2], plot[2]);
    rect[3] = std::min(rect[3], plot[3]);
    const vxBorderStyle* border = getStyleManager()->getBorderStyle(s + 1, c + 1);
    const float gap =
        border && border->getStroke() ? border->getStroke()->getLineWidth() / 2 : 0.0f;
    const short location = style->getLocation() > 0      ? style->getLocation()
                           : getParameters().isStacked() ? short(5)
                                                         : short(8);
    // The rectangle is the box's front face already.
    const float depth[2] = {0.0f, 0.0f};
    const float offset[2] = {style->getXOffset(), style->getYOffset()};
    label->placeBarLabel(location, getBarDirection(s, c), rect, getLimitBounds(), gap, depth,
                         offset);
    return label;
}

}  // namespace Velarix
