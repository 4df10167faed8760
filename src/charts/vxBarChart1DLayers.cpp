// The bars on their layers: flat bars a layer per series, the last series
// first; bars with depth in one layer, in an order by which a later bar
// hides the side of an earlier one.
#include <algorithm>
#include <memory>
#include <vector>

#include "axes/vxAxisItem.h"
#include "axes/vxAxisScaling.h"
#include "charts/vxBarChart1D.h"
#include "charts/vxChartShapes.h"
#include "drawing/vxLayer.h"
#include "drawing/vxLayerManager.h"
#include "graphics/vxPaintOLD.h"
#include "graphics/vxPath2DOLD.h"

namespace Velarix {

namespace {

constexpr long kBarLayer = 5;

// Faces of a box: corner indices of the projection and how much darker
// than the front they are.
struct Face {
    int corners[4];
    float darkening;
};
constexpr Face kTop{{7, 6, 2, 3}, 0.13f};
constexpr Face kBottom{{4, 5, 1, 0}, 0.25f};
constexpr Face kFront{{0, 1, 2, 3}, 0.0f};
constexpr Face kBack{{4, 5, 6, 7}, 0.25f};
constexpr Face kLeft{{4, 0, 3, 7}, 0.25f};
constexpr Face kRight{{5, 1, 2, 6}, 0.25f};

}  // namespace

void vxBarChart1D::setUpLayers(vxLayerManager* layerMng) {
    if (!layerMng || isError()) return;
    setUpClipRect(0.5f);
    try {
        if (getDepthInfo().isDepth()) {
            addDepthBars(*layerMng);
        } else {
            for (long s = getNumOfChartSeries() - 1; s >= 0 && !isError(); --s)
                addFlatBars(*layerMng, s);
        }
        if (!isError()) addLabels(*layerMng);
    } catch (const std::bad_alloc&) {
        setError(vxErrRuntime::kOutOfMemory, where(L"setUpLayers"));
    }
}

void vxBarChart1D::addFlatBars(vxLayerManager& layerMng, long s) {
    auto layer = std::make_unique<vxLayer>(kBarLayer, s, getPlotBounds());
    layer->addClipShape(nullptr);
    for (long c = 0; c < numOfCategories; ++c) {
        if (!isDrawable(s, c)) continue;
        float r[4];
        getBarRect(s, c, r);
        const float x[4] = {r[0], r[2], r[2], r[0]};
        const float y[4] = {r[3], r[3], r[1], r[1]};
        layer->addShape(vxMakeLookedPolygon(x, y, nullptr, 4, getAreaLook(s, c)));
    }
    if (layer->isError()) return copyError(layer->getError());
    layerMng.addLayer(std::move(layer));
}

// The boxes recede up and to the right, so a box hides parts of those on
// its left and below it: they are painted first. Upright bars go column by
// column from the left, each column from the bottom; horizontal bars row by
// row from the bottom, each row from the left. Each box shows its side, its
// top and its front, or all six faces when its fill lets light through.
void vxBarChart1D::addDepthBars(vxLayerManager& layerMng) {
    auto layer = std::make_unique<vxLayer>(kBarLayer, 0, getExtendedPlotBounds());
    layer->addClipShape(nullptr);
    struct Bar {
        float left, bottom;
        long s, c;
    };
    std::vector<Bar> order;
    for (long s = 0; s < getNumOfChartSeries(); ++s) {
        for (long c = 0; c < numOfCategories; ++c) {
            float r[4];
            if (isDrawable(s, c) && getBarRect(s, c, r)) order.push_back({r[0], r[3], s, c});
        }
    }
    const bool rows = getParameters().isHorizontal();
    std::stable_sort(order.begin(), order.end(), [rows](const Bar& a, const Bar& b) {
        if (rows && a.bottom != b.bottom) return a.bottom > b.bottom;
        if (a.left != b.left) return a.left < b.left;
        return a.bottom > b.bottom;
    });
    for (const Bar& bar : order) addBox(*layer, bar.s, bar.c);
    if (layer->isError()) return copyError(layer->getError());
    layerMng.addLayer(std::move(layer));
}

void vxBarChart1D::addBox(vxLayer& layer, long s, long c) {
    float r[4];
    getBarRect(s, c, r);
    float x[8], y[8];
    getDepthInfo().project(r, 0.0f, 0.0f, x, y);
    const Look look = getAreaLook(s, c);
    const bool opaque = look.fill && look.fill->isOpaque();
    const float angle = getDepthInfo().getDepthAngle();
    const Face& side = (angle < 1.5707964f || angle > 4.712389f) ? kLeft : kRight;
    const Face* faces[6];
    int n = 0;
    if (opaque) {
        faces[n++] = &side;
        faces[n++] = &kTop;
        faces[n++] = &kFront;
    } else {
        for (const Face* f : {&kBack, &kLeft, &kBottom, &kRight, &kTop, &kFront}) faces[n++] = f;
    }
    for (int i = 0; i < n; ++i) {
        layer.addShape(
            vxMakeLookedPolygon(x, y, faces[i]->corners, 4, look, faces[i]->darkening, true));
    }
}

}  // namespace Velarix
