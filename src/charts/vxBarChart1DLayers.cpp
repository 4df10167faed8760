// The bars on their layers: flat bars a layer per series, the last series
// first; bars with depth in one layer, in an order by which a later bar
// hides the side of an earlier one.
#include <algorithm>
#include <cmath>
#include <memory>
#include <vector>

#include "axes/vxAxisItem.h"
#include "axes/vxAxisScaling.h"
#include "charts/vxBarChart1D.h"
#include "charts/vxBarOutline.h"
#include "charts/vxBarSolid.h"
#include "charts/vxChartLayerTypes.h"
#include "charts/vxChartShapes.h"
#include "drawing/vxLayer.h"
#include "drawing/vxLayerManager.h"
#include "graphics/vxPaintOLD.h"
#include "graphics/vxPath2DOLD.h"
#include "graphics/vxTexturePaintOLD.h"
#include "styles/vxBarStyle.h"
#include "styles/vxStyleManager.h"

namespace Velarix {

namespace {

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

// Pictures stand on the bar's base: the anchor's edge at the base, by the
// direction the bar grows.
constexpr short kPictureAlignment[5] = {0, 8, 2, 6, 4};

// Bars of one look go to the device in shapes of this many: a colour
// change every so many bars, and outlines short enough for the raster's
// stroker, whose work grows faster than the number of pieces of a shape.
constexpr long kBarsPerShape = 256;

}  // namespace

void vxBarChart1D::setUpLayers(vxLayerManager* layerMng) {
    if (!layerMng || isError()) return;
    setUpClipRect(0.5f);
    try {
        if (getParameters().doShowShadows()) addShadows(*layerMng);
        for (long s = getNumOfChartSeries() - 1; s >= 0 && !isError(); --s) {
            addCurveFittingShadow(*layerMng, s);
        }
        if (!isError() && showConnectingLines) addConnectingLines(*layerMng);
        if (isError()) return;
        // A series' fitted curves and symbols lie right over its bars and
        // under the next series; stacks and solids show them over all bars.
        const bool overEach = !getDepthInfo().isDepth() && !getParameters().isStacked();
        if (getDepthInfo().isDepth()) {
            addDepthBars(*layerMng);
        } else {
            for (long s = getNumOfChartSeries() - 1; s >= 0 && !isError(); --s) {
                addFlatBars(*layerMng, s);
                if (overEach) addCurveFitting(*layerMng, s);
                if (overEach && !isError()) addSymbols(*layerMng, s);
            }
            for (long s = getNumOfChartSeries() - 1; s >= 0 && getParameters().isStacked(); --s) {
                if (!isError()) addSymbols(*layerMng, s);
            }
        }
        for (long s = getNumOfChartSeries() - 1; s >= 0 && !overEach; --s) {
            addCurveFitting(*layerMng, s);
        }
        if (!isError()) addLabels(*layerMng);
    } catch (const std::bad_alloc&) {
        setError(vxErrRuntime::kOutOfMemory, where(L"setUpLayers"));
    }
}

long vxBarChart1D::getStyleSeries(long s, long c) const {
    if (!splitColors) return s;
    const bool below = getValue(s, 1, c) < getParameters().getReferenceValue();
    return 2 * s + (below ? 1 : 0);
}

vxBaseChart::Look vxBarChart1D::getBarLook(long s, long c) const {
    return getAreaLook(getStyleSeries(s, c), c);
}

vxBaseChart::SeriesLook vxBarChart1D::getSeriesLook(long s) const {
    SeriesLook look = vxBaseChart::getSeriesLook(s);
    if (splitColors) look.area = getAreaLook(2 * s, -1);
    return look;
}

float vxBarChart1D::getItemOffsetDC(long s) const {
    const int k = getParameters().isHorizontal() ? 1 : 0;
    for (long c = 0; c < numOfCategories; ++c) {
        float r[4], point[2];
        if (!isDrawable(s, c) || !getBarRect(s, c, r) || !getPointDC(s, 1, c, point)) continue;
        return 0.5f * (r[k] + r[k + 2]) - point[k];
    }
    return 0.0f;
}

// Bars a few pixels wide, close together, are drawn with hard edges.
bool vxBarChart1D::doUseAliasedShapes() const {
    const long nS = getNumOfChartSeries();
    if (nS == 1 || getParameters().isStacked()) {
        return barWidthDC < 5.0f && categoryGapDC < 5.0f && numOfCategories >= 3;
    }
    return barWidthDC < 5.0f && seriesGapDC < 5.0f && nS >= 3;
}

void vxBarChart1D::addFlatBars(vxLayerManager& layerMng, long s) {
    auto layer = std::make_unique<vxLayer>(kBarLayer, s, getPlotBounds());
    layer->addClipShape(nullptr);
    layer->setUseAliasedShapes(doUseAliasedShapes());
    if (haveOneLook(s)) {
        for (long from = 0; from < numOfCategories; from += kBarsPerShape) {
            if (auto bars = makeMergedBars(s, from, from + kBarsPerShape)) {
                layer->addShape(std::move(bars));
            }
        }
    } else {
        for (long c = 0; c < numOfCategories; ++c) {
            if (isDrawable(s, c)) layer->addShape(makeFlatBar(s, c));
        }
    }
    handOver(layerMng, std::move(layer));
}

// Whether the series' bars share their styles and a fill of plain colour:
// then they are one shape, filled at once and outlined at once. Bars of a
// series never overlap, so that draws what bar after bar would, but it
// spares the device a change of colour at every bar.
bool vxBarChart1D::haveOneLook(long s) const {
    const vxStyleManager* styles = getStyleManager();
    if (!styles) return false;
    const Look* first = nullptr;
    Look look;
    const vxBarStyle* shape = nullptr;
    for (long c = 0; c < numOfCategories; ++c) {
        if (!isDrawable(s, c)) continue;
        const Look next = getBarLook(s, c);
        const vxBarStyle* nextShape = styles->getBarStyle(s + 1, c + 1);
        if (!first) {
            if (next.fill && next.fill->getType() != vxPaintOLD::kBasic) return false;
            look = next;
            shape = nextShape;
            first = &look;
        } else if (next.fill != look.fill || next.border != look.border ||
                   next.stroke != look.stroke || nextShape != shape) {
            return false;
        }
    }
    return first != nullptr;
}

// The bars of items from `from` up to `to`, or null for none.
std::unique_ptr<vxGObjectOLD> vxBarChart1D::makeMergedBars(long s, long from, long to) const {
    auto path = std::make_unique<vxPath2DOLD>();
    vxPath2DOLD bar;
    long first = -1;
    for (long c = from; c < std::min(to, numOfCategories); ++c) {
        if (!isDrawable(s, c)) continue;
        if (first < 0) first = c;
        outlineBar(bar, s, c);
        path->addPath(bar);
        if (bar.isError()) throw std::bad_alloc();
    }
    if (first < 0) return nullptr;
    vxApplyLook(*path, getBarLook(s, first));
    return path;
}

void vxBarChart1D::outlineBar(vxPath2DOLD& path, long s, long c) const {
    float r[4];
    getBarRect(s, c, r);
    const vxStyleManager* styles = getStyleManager();
    const vxBarStyle* style = styles ? styles->getBarStyle(s + 1, c + 1) : nullptr;
    if (style) return vxBarOutline::build(path, r, getBarDirection(s, c), *style);
    path.clear();
    path.moveTo(r[0], r[3]);
    path.lineTo(r[2], r[3]);
    path.lineTo(r[2], r[1]);
    path.lineTo(r[0], r[1]);
    path.close();
}

std::unique_ptr<vxGObjectOLD> vxBarChart1D::makeFlatBar(long s, long c) const {
    auto path = std::make_unique<vxPath2DOLD>();
    outlineBar(*path, s, c);
    Look look = getBarLook(s, c);
    const std::unique_ptr<vxPaintOLD> picture = barPicture(s, c, look);
    if (picture) look.fill = picture.get();
    vxApplyLook(*path, look);
    return path;
}

std::unique_ptr<vxPaintOLD> vxBarChart1D::barPicture(long s, long c, const Look& look) const {
    if (!look.fill || look.fill->getType() != vxPaintOLD::kTexture) return nullptr;
    std::unique_ptr<vxPaintOLD> paint = look.fill->clone();
    auto& texture = static_cast<vxTexturePaintOLD&>(*paint);
    float r[4];
    getBarRect(s, c, r);
    const short direction = getBarDirection(s, c);
    texture.setAlignment(kPictureAlignment[direction]);
    const vxAxisItem* value = getValueAxis();
    if (texture.hasStackValue() && value) {
        const float unit = std::fabs(value->toDC(texture.getStackValueUC()) - value->toDC(0.0));
        texture.setStackValueDC(unit);
        // One picture a stack unit, the first on the base.
        if (unit > 0.5f) {
            if (direction == kUp) r[1] = r[3] - unit;
            if (direction == kDown) r[3] = r[1] + unit;
            if (direction == kToRight) r[2] = r[0] + unit;
            if (direction == kToLeft) r[0] = r[2] - unit;
        }
    }
    texture.setAnchorBounds(r);
    return paint;
}

// The boxes recede up and to the right, so a box hides parts of those on
// its left and below it: they are painted first. Upright bars go column by
// column from the left, each column from the bottom; horizontal bars row by
// row from the bottom, each row from the left.
void vxBarChart1D::addDepthBars(vxLayerManager& layerMng) {
    auto layer = std::make_unique<vxLayer>(kBarLayer, 0, getExtendedPlotBounds());
    layer->addClipShape(nullptr);
    layer->setUseAliasedShapes(doUseAliasedShapes());
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
    for (const Bar& bar : order) addDepthBar(*layer, bar.s, bar.c);
    handOver(layerMng, std::move(layer));
}

// A box, or a solid of the bar style's profile.
void vxBarChart1D::addDepthBar(vxLayer& layer, long s, long c) const {
    float r[4];
    getBarRect(s, c, r);
    Look look = getBarLook(s, c);
    const std::unique_ptr<vxPaintOLD> picture = barPicture(s, c, look);
    if (picture) look.fill = picture.get();
    const vxStyleManager* styles = getStyleManager();
    const vxBarStyle* style = styles ? styles->getBarStyle(s + 1, c + 1) : nullptr;
    if (!style || style->getBarShape() == 0) return addBox(layer, r, look);
    std::vector<std::unique_ptr<vxGObjectOLD>> faces;
    if (!vxBarSolid::addFaces(faces, r, getBarDirection(s, c), *style, look, getDepthInfo())) {
        throw std::bad_alloc();
    }
    for (auto& face : faces) layer.addShape(std::move(face));
}

// Each box shows its side, its top and its front, or all six faces when
// its fill lets light through.
void vxBarChart1D::addBox(vxLayer& layer, const float r[4], const Look& look) const {
    float x[8], y[8];
    getDepthInfo().project(r, 0.0f, 0.0f, x, y);
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

void vxBarChart1D::handOver(vxLayerManager& layerMng, std::unique_ptr<vxLayer> layer) {
    if (layer->isError()) return copyError(layer->getError());
    if (layer->getNumOfShapes() <= 1) return;
    layerMng.addLayer(std::move(layer));
    if (layerMng.isError()) copyError(layerMng.getError());
}

}  // namespace Velarix
