#include "charts/vxBaseChart.h"

#include <algorithm>
#include <cmath>

#include "graphics/vxLineShape.h"
#include "host/vxLog.h"
#include "styles/vxBorderStyle.h"
#include "styles/vxFillStyle.h"
#include "styles/vxStyleManager.h"

namespace Velarix {

namespace {

// Cuts `rect` to `limit`, unless no limit was given.
void intersect(float rect[4], const float limit[4]) {
    if (limit[2] <= limit[0] || limit[3] <= limit[1]) return;
    rect[0] = std::max(rect[0], limit[0]);
    rect[1] = std::max(rect[1], limit[1]);
    rect[2] = std::min(rect[2], limit[2]);
    rect[3] = std::min(rect[3], limit[3]);
}

void moveRect(float rect[4], float dx, float dy) {
    rect[0] += dx;
    rect[2] += dx;
    rect[1] += dy;
    rect[3] += dy;
}

}  // namespace

vxBaseChart::vxBaseChart(const wchar_t* className) : vxErrorHolder(className) {}

vxBaseChart::~vxBaseChart() = default;

void vxBaseChart::setDefaults() {
    depthInfo.setDefaults();
    chartAreaBoundsSet = plotBoundsSet = false;
    for (float* rect : {chartAreaBounds, plotBounds, limitBounds, extendedPlotBounds,
                        shadowClipRect, labelClipRect}) {
        std::fill(rect, rect + 4, 0.0f);
    }
    gridShape = parameters.getCoordinateSystem() == 1 ? 1 : 0;
    defaultLabelLocation = 3;
    defaultLegendMarkerType = 1;
}

void vxBaseChart::setManagers(vxDataManager* data, vxAxisManager* axes, vxStyleManager* styles) {
    dataManager = data;
    axisManager = axes;
    styleManager = styles;
}

void vxBaseChart::setChartAreaBounds(const float rect[4]) {
    std::copy(rect, rect + 4, chartAreaBounds);
    chartAreaBoundsSet = true;
}

void vxBaseChart::setPlotBounds(const float rect[4]) {
    std::copy(rect, rect + 4, plotBounds);
    plotBoundsSet = true;
}

void vxBaseChart::setLimitBounds(const float rect[4]) {
    std::copy(rect, rect + 4, limitBounds);
}

void vxBaseChart::setUpClipRect(float half) {
    float* e = extendedPlotBounds;
    std::copy(plotBounds, plotBounds + 4, e);
    e[0] -= half;
    e[1] -= half;
    e[2] += half;
    e[3] += half;
    if (depthInfo.isDepth()) {
        const float x = depthInfo.getXDepth();
        const float y = depthInfo.getYDepth();
        if (x <= 0.0f) {
            e[2] -= x;
        } else {
            e[0] -= x;
        }
        if (y >= 0.0f) {
            e[3] += y;
        } else {
            e[1] += y;
        }
    }
    e[0] -= 1.0f;
    e[1] -= 1.0f;
    e[2] += 1.0f;
    e[3] += 1.0f;
    intersect(e, limitBounds);
    // Labels may stand outside the plot, as far as the limits reach.
    const bool limited = limitBounds[2] > limitBounds[0] && limitBounds[3] > limitBounds[1];
    std::copy(limited ? limitBounds : e, (limited ? limitBounds : e) + 4, labelClipRect);
}

void vxBaseChart::setUpShadowClipRect(const float shadowRect[4]) {
    const float positive = std::max(shadowRect[2], shadowRect[3]);
    const float negative = std::min(shadowRect[0], shadowRect[1]);
    float* s = shadowClipRect;
    std::copy(extendedPlotBounds, extendedPlotBounds + 4, s);
    if (std::fabs(negative) < 1e-10f) {
        moveRect(s, positive, positive);
    } else if (positive >= 1e-10f) {
        const float grow = std::max(-negative, positive);
        s[0] -= grow;
        s[1] -= grow;
        s[2] += grow;
        s[3] += grow;
    } else {
        moveRect(s, negative, negative);
    }
    intersect(s, limitBounds);
}

// Charts count series and items from 0, the styles from 1.
vxBaseChart::Look vxBaseChart::getAreaLook(long series, long item) const {
    Look look;
    if (!styleManager) return look;
    if (const vxFillStyle* fill = styleManager->getFillStyle(series + 1, item + 1)) {
        look.fill = fill->getPaint();
    }
    // A border of line type "none" draws nothing.
    const vxBorderStyle* border = styleManager->getBorderStyle(series + 1, item + 1);
    if (border && border->getShape().getType() != 0) {
        look.stroke = border->getStroke();
        look.border = border->getPaint();
    }
    return look;
}

void vxBaseChart::dump(short depth, std::ostream& out) const {
    if (depth <= 0) return;
    vxDumpHeader(out, vxNarrow(className));
    vxDumpLine(out, "float plotBounds[4]:         ", plotBounds, 4);
    vxDumpLine(out, "float extendedPlotBounds[4]: ", extendedPlotBounds, 4);
    vxDumpLine(out, "float shadowClipRect[4]:     ", shadowClipRect, 4);
    vxDumpLine(out, "short defaultLabelLocation: ", defaultLabelLocation);
    vxDumpLine(out, "short defaultLegendMarkerType: ", defaultLegendMarkerType);
    vxDumpEnd(out);
    parameters.dump(static_cast<short>(depth - 1), out);
    depthInfo.dump(static_cast<short>(depth - 1), out);
}

}  // namespace Velarix
