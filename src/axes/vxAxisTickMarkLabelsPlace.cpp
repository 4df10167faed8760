// Builds the labels of the visible values and places them beside the axis.
#include <algorithm>

#include "Utilities/Sources/vxFormatDateTime.h"
#include "Utilities/Sources/vxFormatNumber.h"
#include "axes/vxAxisScaling.h"
#include "axes/vxAxisTickMarkLabels.h"
#include "graphics/vxLabel.h"
#include "graphics/vxText.h"

namespace Velarix {

void vxAxisTickMarkLabels::setUpLabels(const vxAxisScaling& scaling, short axisType,
                                       const vxFormatSettings* settings,
                                       const std::vector<float>& positions,
                                       const vxAxisGeometry& geometry) {
    if (labelsVersion != styleVersion) labels.clear();
    labelsVersion = styleVersion;
    maxLabelWidth = maxLabelHeight = 0.0f;
    std::fill(outermostLabelWidths, outermostLabelWidths + 2, 0.0f);
    std::fill(outermostLabelHeights, outermostLabelHeights + 2, 0.0f);
    size_t used = 0;
    if (visible && referenceLabel && !isError()) setUpFormats(scaling, axisType, settings);
    if (visible && referenceLabel && !isError()) {
        setUpVisibilityFlags();
        vxFormatNumber number(settings);
        vxFormatDateTime date(settings);
        const size_t n = std::min(valuesUC.size(), positions.size());
        for (size_t i = 0; i < n && !isError(); ++i) {
            if (!visibilityFlags[i]) continue;
            const std::wstring text = formatWith(static_cast<long>(i), axisType, number, date);
            if (!text.empty() && makeLabel(used, text, positions[i], geometry)) ++used;
        }
    }
    labels.resize(std::min(used, labels.size()));
    measureLabels();
}

bool vxAxisTickMarkLabels::makeLabel(size_t used, const std::wstring& text, float position,
                                     const vxAxisGeometry& geometry) {
    try {
        if (used == labels.size()) {
            auto label = std::make_unique<vxLabel>(owner);
            if (!label->set(referenceLabel.get())) {
                copyError(label->getError());
                return false;
            }
            labels.push_back(std::move(label));
        }
        vxLabel& label = *labels[used];
        label.getText()->setText(text);
        placeLabel(label, position, geometry);
    } catch (const std::bad_alloc&) {
        setError(vxErrRuntime::kOutOfMemory, where(L"setUpLabels"));
        return false;
    }
    return true;
}

// The box stands off the line by the marks that reach out on its side and
// the gap; "center" puts it across the line. Along the axis it is centred
// on its tick. The offsets move it last.
void vxAxisTickMarkLabels::placeLabel(vxLabel& label, float position,
                                      const vxAxisGeometry& g) const {
    float size[2];
    label.getLabelSize(size);
    const float gapDC = gapOf(label);
    const float across = g.horizontal ? size[1] : size[0];
    const float along = g.horizontal ? size[0] : size[1];
    float nearEdge;  // the side of the box toward the line, as a signed offset
    if (location == vxAxisGeometry::kCenter) {
        nearEdge = g.across - across * 0.5f;
    } else {
        const bool out = location != vxAxisGeometry::kIn;
        const float reach = out ? g.marksOutward + g.labelsOutward : g.marksInward + g.labelsInward;
        const float side = out ? g.outward : -g.outward;
        const float distance = reach + gapDC;
        nearEdge = side > 0 ? g.across + distance : g.across - distance - across;
    }
    const float start = position - along * 0.5f;
    if (g.horizontal) {
        label.setLocation(start + hOffset, nearEdge + vOffset);
    } else {
        label.setLocation(nearEdge + hOffset, start + vOffset);
    }
}

float vxAxisTickMarkLabels::gapOf(const vxLabel& label) const {
    const vxText* text = label.getText();
    const float lineHeight = text->getStringHeight() / float(std::max(1L, text->getNumOfLines()));
    return useRelativeGaps ? gap * 0.01f * lineHeight : gap;
}

float vxAxisTickMarkLabels::getGapDC() const {
    return labels.empty() ? 0.0f : gapOf(*labels.front());
}

void vxAxisTickMarkLabels::measureLabels() {
    for (size_t i = 0; i < labels.size(); ++i) {
        float size[2];
        labels[i]->getLabelSize(size);
        maxLabelWidth = std::max(maxLabelWidth, size[0]);
        maxLabelHeight = std::max(maxLabelHeight, size[1]);
        if (i == 0) {
            outermostLabelWidths[0] = size[0];
            outermostLabelHeights[0] = size[1];
        }
        if (i + 1 == labels.size()) {
            outermostLabelWidths[1] = size[0];
            outermostLabelHeights[1] = size[1];
        }
    }
}

void vxAxisTickMarkLabels::getOutermostLabelSize(short side, float size[2]) const {
    const size_t k = side == 1 ? 0 : 1;
    size[0] = outermostLabelWidths[k];
    size[1] = outermostLabelHeights[k];
}

}  // namespace Velarix
