// The type numbers of the layers charts put their objects on: the kind of
// object, and its shadows eleven numbers on. A layer of one series carries
// the series as its subtype, a layer of the whole chart -1.
#pragma once

namespace Velarix {

enum vxChartLayerType : long {
    kSymbolLayer = 1,
    kLineLayer = 2,
    kAreaBorderLayer = 3,
    kAreaFillLayer = 4,
    kBarLayer = 5,
    kPieSliceLayer = 6,
    kBubbleLayer = 7,
    kHighLowLayer = 8,
    kCandlestickLayer = 9,
    kBoxLayer = 10,
    kArrowLayer = 11,
    kLabelLayer = 23,
    kGridLayer = 50,
    kLegendLayer = 51,
    kTitleLayer = 52,
    kBackgroundLayer = 60,
    kAdditionLayer = 70,
};

// The layer of the shadows of a kind of object.
constexpr long vxShadowLayerOf(vxChartLayerType type) {
    return type + 11;
}

// Subtype of a layer that holds the whole chart.
constexpr long kWholeChart = -1;

}  // namespace Velarix
