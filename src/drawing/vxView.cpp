#include "drawing/vxView.h"

#include <algorithm>
#include <cmath>

#include "drawing/vxAdditionBuilder.h"
#include "drawing/vxCalendar.h"
#include "drawing/vxChart.h"
#include "drawing/vxLayer.h"
#include "drawing/vxLayerManager.h"
#include "drawing/vxTable.h"
#include "furniture/vxBackground.h"
#include "graphics/vxTransform2DOLD.h"
#include "host/vxLog.h"
#include "script/vxAssign.h"
#include "script/vxFunctionIds.h"

namespace Velarix {

vxView::vxView(vxUserSettings* owner, vxView* parentView, short level)
    : vxGObjectOLD(L"vxView", owner), subViewLevel(level), parent(parentView) {}

vxView::~vxView() = default;

vxGObjectOLD* vxView::getObject(long index) const {
    if (index < 0 || index >= getNumOfObjects()) return nullptr;
    return objects[static_cast<size_t>(index)].get();
}

void vxView::setBounds(float left, float top, float right, float bottom) {
    viewBounds[0] = left;
    viewBounds[1] = top;
    viewBounds[2] = right;
    viewBounds[3] = bottom;
    x = {left, right, right, left};
    y = {top, top, bottom, bottom};
    invalidateBounds();
}

void vxView::transformGeometry(const vxTransform2DOLD& transform) {
    transform.transform(x, y);
}

void vxView::calculateBounds(float b[4]) const {
    for (int i = 0; i < 4; ++i) b[i] = viewBounds[i];
}

vxView* vxView::assign(vxAssign& a) {
    switch (a.getFunctionGroup()) {
        case kGroupLayout:
            return assignLayout(a);
        case kGroupTables:
        case kGroupCalendars:
            return assignTableOrCalendar(a);
        case kGroupBackground:
            assignBackground(a);
            return this;
        case kGroupPrimitives:
            assignAddition(a);
            return this;
        default:
            assignChart(a);
            return this;
    }
}

// The open and close functions of tables and calendars are layout; the
// others go to the open component.
vxView* vxView::assignTableOrCalendar(vxAssign& a) {
    switch (a.getFunction()) {
        case kOpenTable:
        case kCloseTable:
        case kOpenCalendar:
        case kCloseCalendar:
            return assignLayout(a);
        default:
            assignComponent(a, a.getFunctionGroup() == kGroupTables ? tableIndex : calendarIndex);
            return this;
    }
}

// An Add... call: the open chart takes it, otherwise the view.
void vxView::assignAddition(vxAssign& a) {
    if (chartIndex >= 0) {
        auto* chart = static_cast<vxChart*>(getObject(chartIndex));
        chart->assignAddition(a, viewBounds[0], viewBounds[1]);
        if (chart->isError()) copyError(chart->getError());
        return;
    }
    if (getNumOfObjects() >= kMaxObjects) {
        setError(vxErrLimits::kTooManyObjects, L"vxView/tooManyObjects/1");
        return;
    }
    vxAdditionBuilder builder(getOwnerSettings(), viewBounds[0], viewBounds[1]);
    std::unique_ptr<vxGObjectOLD> object = builder.build(a);
    if (!object) return copyError(builder.getError());
    addObject(std::move(object), L"assignAdditions");
}

void vxView::assignBackground(vxAssign& a) {
    if (!background && !create(background, L"createBackground", getOwnerSettings())) return;
    background->assign(a);
    if (background->isError()) copyError(background->getError());
}

bool vxView::isComponentOpen() const {
    return chartIndex >= 0 || tableIndex >= 0 || calendarIndex >= 0;
}

bool vxView::addObject(std::unique_ptr<vxGObjectOLD> object, const wchar_t* method) {
    if (getNumOfObjects() >= kMaxObjects) {
        setError(vxErrLimits::kTooManyObjects, L"vxView/tooManyObjects/1");
        return false;
    }
    if (!object || object->isError()) {
        if (object) copyError(object->getError());
        return false;
    }
    try {
        objects.push_back(std::move(object));
    } catch (const std::bad_alloc&) {
        setError(vxErrRuntime::kOutOfMemory, where(method));
        return false;
    }
    return true;
}

// x, y, width and height of the call, relative to this view.
void vxView::frameFromArguments(const vxAssign& a, float frame[4]) const {
    frame[0] = a.getFloat(0) + viewBounds[0];
    frame[1] = a.getFloat(1) + viewBounds[1];
    frame[2] = frame[0] + a.getFloat(2);
    frame[3] = frame[1] + a.getFloat(3);
}

vxView* vxView::assignLayout(vxAssign& a) {
    float frame[4];
    switch (a.getFunction()) {
        case kOpenDrawing:
            setBounds(0.0f, 0.0f, std::round(a.getFloat(0)), std::round(a.getFloat(1)));
            return this;
        case kOpenView:
            return openView(a);
        case kCloseView:
            if (!parent) {
                setError(vxErrLayout::kOpenViewMissing, where(L"assignLayout", 7));
                return this;
            }
            return parent;
        case kOpenChart:
            if (isComponentOpen()) {
                setError(vxErrLayout::kNestedChart, where(L"assignLayout", 2));
                return this;
            }
            frameFromArguments(a, frame);
            openChart(a, a.getShort(4, 0) == 1, frame);
            return this;
        case kCloseChart:
            if (chartIndex < 0) setError(vxErrLayout::kOpenChartMissing, where(L"assignLayout", 3));
            chartIndex = -1;
            return this;
        case kOpenTable:
            openComponent(kTypeTable, tableIndex);
            return this;
        case kCloseTable:
            if (tableIndex < 0) setError(vxErrLayout::kOpenTableMissing, where(L"assignLayout", 4));
            tableIndex = -1;
            return this;
        case kOpenCalendar:
            openComponent(kTypeCalendar, calendarIndex);
            return this;
        case kCloseCalendar:
            // Closing an open calendar is refused and leaves it open; closing
            // when none is open passes. Scripts rely on this order.
            if (calendarIndex >= 0) {
                setError(vxErrLayout::kOpenCalendarMissing, where(L"assignLayout", 5));
                return this;
            }
            calendarIndex = -1;
            return this;
        default:
            return this;
    }
}

vxView* vxView::openView(vxAssign& a) {
    if (isComponentOpen()) {
        setError(vxErrLayout::kCannotOpenView, where(L"assignLayout", 1));
        return this;
    }
    if (subViewLevel >= kMaxSubViewLevel) {
        setError(vxErrLimits::kTooManySubViews, L"vxView/tooManySubViews/1");
        return this;
    }
    std::unique_ptr<vxView> view;
    if (!create(view, L"openView", getOwnerSettings(), this,
                static_cast<short>(subViewLevel + 1))) {
        return this;
    }
    float frame[4];
    frameFromArguments(a, frame);
    view->setBounds(std::round(frame[0]), std::round(frame[1]), std::round(frame[2]),
                    std::round(frame[3]));
    vxView* child = view.get();
    return addObject(std::move(view), L"openView") ? child : this;
}

void vxView::openChart(vxAssign&, bool fixedPlotArea, const float frame[4]) {
    std::unique_ptr<vxChart> chart;
    if (!create(chart, L"openChart", getOwnerSettings(), frame, fixedPlotArea)) return;
    if (addObject(std::move(chart), L"openChart")) chartIndex = getNumOfObjects() - 1;
}

void vxView::openComponent(short type, long& index) {
    if (isComponentOpen()) {
        const short code =
            type == kTypeTable ? vxErrLayout::kNestedTable : vxErrLayout::kNestedCalendar;
        setError(code, where(L"assignLayout", 6));
        return;
    }
    std::unique_ptr<vxGObjectOLD> component;
    try {
        if (type == kTypeTable) {
            component = std::make_unique<vxTable>(getOwnerSettings(), viewBounds);
        } else {
            component = std::make_unique<vxCalendar>(getOwnerSettings(), viewBounds);
        }
    } catch (const std::bad_alloc&) {
        setError(vxErrRuntime::kOutOfMemory, where(L"openComponent"));
        return;
    }
    if (addObject(std::move(component), L"openComponent")) index = getNumOfObjects() - 1;
}

// A chart function outside an open chart makes a chart that fills the view.
void vxView::assignChart(vxAssign& a) {
    if (chartIndex < 0) openChart(a, false, viewBounds);
    if (isError()) return;
    assignComponent(a, chartIndex);
}

void vxView::assignComponent(vxAssign& a, long index) {
    auto* component = dynamic_cast<vxComponent*>(getObject(index));
    if (!component) return;
    component->assign(a);
    if (component->isError()) copyError(component->getError());
}

// The view's rectangle, less half the width of a visible background
// border on each side, within `b`.
void vxView::getInnerRect(const float b[4], float inner[4]) const {
    const float border = background ? background->getBorderWidth() * 0.5f : 0.0f;
    inner[0] = std::max(viewBounds[0] + border, b[0]);
    inner[1] = std::max(viewBounds[1] + border, b[1]);
    inner[2] = std::min(viewBounds[2] - border, b[2]);
    inner[3] = std::min(viewBounds[3] - border, b[3]);
}

void vxView::setUp(const float b[4]) {
    if (background) {
        background->setUp(viewBounds);
        if (background->isError()) return copyError(background->getError());
    }
    std::copy(b, b + 4, outerBounds);
    float inner[4];
    getInnerRect(b, inner);
    for (auto& object : objects) {
        if (object->getType() == kTypeView) {
            static_cast<vxView*>(object.get())->setUp(inner);
        } else if (auto* component = dynamic_cast<vxComponent*>(object.get())) {
            component->setUp(inner);
        }
        if (object->isError()) return copyError(object->getError());
    }
}

std::unique_ptr<vxLayer> vxView::beginLayer(const float clip[4]) {
    std::unique_ptr<vxLayer> layer;
    if (!create(layer, L"setUpLayers", kTypeView, 0, clip)) return nullptr;
    if (!layer->addClipShape(getOwnerSettings())) {
        copyError(layer->getError());
        return nullptr;
    }
    return layer;
}

// The background's layer, then the view's objects in script order: the
// additions on layers of the view, each begun with the view's clip, and
// charts, tables, calendars and sub-views on layers of their own. A layer
// that holds no addition is not handed on.
void vxView::setUpLayers(vxLayerManager* layerMng) {
    if (!layerMng) return;
    if (background) {
        const float border = background->getBorderWidth() * 0.5f + 1.0f;
        const float planeClip[4] = {viewBounds[0] - border, viewBounds[1] - border,
                                    viewBounds[2] + border, viewBounds[3] + border};
        background->setUpLayer(layerMng, planeClip);
        if (background->isError()) return copyError(background->getError());
    }
    float clip[4];
    getInnerRect(outerBounds, clip);
    clip[0] -= 1.0f;
    clip[1] -= 1.0f;
    clip[2] += 1.0f;
    clip[3] += 1.0f;
    std::unique_ptr<vxLayer> layer;
    auto flush = [&] {
        if (layer) layerMng->addLayer(std::move(layer));
        layer.reset();
        return !layerMng->isError() || (copyError(layerMng->getError()), false);
    };
    for (long i = 0; i < getNumOfObjects(); ++i) {
        vxGObjectOLD* object = getObject(i);
        layerMng->setCurrentObjectIndex(i);
        layerMng->setCurrentClipRect(clip);
        if (object->getType() == kTypeView || dynamic_cast<vxComponent*>(object)) {
            if (!flush()) return;
            if (object->getType() == kTypeView) {
                static_cast<vxView*>(object)->setUpLayers(layerMng);
            } else {
                static_cast<vxComponent*>(object)->setUpLayers(layerMng);
            }
        } else {
            if (!layer && !(layer = beginLayer(clip))) return;
            layer->addAddition(object);
            if (layer->isError()) return copyError(layer->getError());
        }
        if (object->isError()) return copyError(object->getError());
        if (layerMng->isError()) return copyError(layerMng->getError());
    }
    flush();
}

void vxView::setUpCurveFittingData(vxCurveFittingData* data) {
    for (auto& object : objects) {
        if (object->getType() == kTypeView) {
            static_cast<vxView*>(object.get())->setUpCurveFittingData(data);
        } else if (object->getType() == kTypeChart) {
            static_cast<vxChart*>(object.get())->setUpCurveFittingData(data);
        }
        if (object->isError()) return copyError(object->getError());
    }
}

void vxView::dump(short depth, std::ostream& out) const {
    if (depth <= 0) return;
    vxDumpHeader(out, "vxView");
    vxDumpLine(out, "vector<float> x,y:    ", x.data(), x.size());
    vxDumpLine(out, "                      ", y.data(), y.size());
    vxDumpLine(out, "float viewAngle:      ", viewAngle);
    vxDumpLine(out, "float viewXPivot:     ", viewXPivot);
    vxDumpLine(out, "float viewYPivot:     ", viewYPivot);
    vxDumpLine(out, "short subViewLevel:   ", subViewLevel);
    vxDumpLine(out, "long chartIndex:      ", chartIndex);
    vxDumpLine(out, "long tableIndex:      ", tableIndex);
    vxDumpLine(out, "long calendarIndex:   ", calendarIndex);
    vxDumpLine(out, "float bounds[4]:      ", viewBounds, 4);
    vxDumpLine(out, "bool doRecalcBounds:  ", doesRecalcBounds());
    vxDumpLine(out, "Num of objects: ", getNumOfObjects());
    for (const auto& object : objects) object->dump(static_cast<short>(depth - 1), out);
    vxDumpEnd(out);
}

}  // namespace Velarix
