// A rectangle of the drawing that holds charts, tables, calendars,
// sub-views and added shapes in script order. The root view covers the
// drawing; OpenView nests further views, to a depth of 100.
//
// The view receives every script call of the layout, the charts and the
// added shapes through assign, which answers the view that is current from
// then on: OpenView moves down, CloseView up. The run then calls, in order:
//   1. setUp(bounds): the view's inner rectangle, then every object's
//      layout within it;
//   2. setUpLayers(layerMng): the view's layer with a clip one unit larger
//      than the inner rectangle, its shapes in script order, the
//      components' own layers;
//   3. setUpCurveFittingData(data): the charts' fitted curves.
#pragma once

#include <memory>
#include <ostream>
#include <vector>

#include "graphics/vxGObjectOLD.h"

namespace Velarix {

class vxAssign;
class vxBackground;
class vxChart;
class vxLayer;
class vxLayerManager;
class vxCurveFittingData;

class vxView : public vxGObjectOLD {
public:
    // The most objects one view holds.
    static constexpr long kMaxObjects = 100000;
    // The deepest sub-view level; the root has -1.
    static constexpr short kMaxSubViewLevel = 99;

    explicit vxView(vxUserSettings* owner, vxView* parent = nullptr, short subViewLevel = -1);
    ~vxView() override;

    short getType() const override { return kTypeView; }
    virtual vxView* assign(vxAssign& assign);
    virtual void setUp(const float bounds[4]);
    virtual void setUpLayers(vxLayerManager* layerMng);
    virtual void setUpCurveFittingData(vxCurveFittingData* data);

    void setBounds(float left, float top, float right, float bottom);
    const float* getViewBounds() const { return viewBounds; }
    vxView* getParent() const { return parent; }
    short getSubViewLevel() const { return subViewLevel; }
    long getNumOfObjects() const { return static_cast<long>(objects.size()); }
    vxGObjectOLD* getObject(long index) const;
    long getChartIndex() const { return chartIndex; }
    long getTableIndex() const { return tableIndex; }
    long getCalendarIndex() const { return calendarIndex; }
    // The rectangle the objects are laid out in.
    void getInnerRect(const float bounds[4], float inner[4]) const;
    vxBackground* getBackground() const { return background.get(); }

    void dump(short depth, std::ostream& out) const override;

protected:
    void transformGeometry(const vxTransform2DOLD& transform) override;
    void calculateBounds(float bounds[4]) const override;

private:
    vxView* assignLayout(vxAssign& assign);
    vxView* assignTableOrCalendar(vxAssign& assign);
    void assignAddition(vxAssign& assign);
    void assignBackground(vxAssign& assign);
    // The layer that takes the view's additions from here on, clipped to
    // `clip`, which its first shape sets on the device.
    std::unique_ptr<vxLayer> beginLayer(const float clip[4]);
    vxView* openView(vxAssign& assign);
    void openChart(vxAssign& assign, bool fixedPlotArea, const float frame[4]);
    void openComponent(short type, long& index);
    void assignChart(vxAssign& assign);
    void assignComponent(vxAssign& assign, long index);
    bool isComponentOpen() const;
    bool addObject(std::unique_ptr<vxGObjectOLD> object, const wchar_t* method);
    void frameFromArguments(const vxAssign& assign, float frame[4]) const;

    std::vector<float> x;
    std::vector<float> y;
    float viewAngle = 0.0f;
    float viewXPivot = 0.0f;
    float viewYPivot = 0.0f;
    short subViewLevel;
    long chartIndex = -1;
    long tableIndex = -1;
    long calendarIndex = -1;
    float viewBounds[4] = {0.0f, 0.0f, 0.0f, 0.0f};
    // The rectangle the view was set up in, that of its parent's inside;
    // until then unlimited.
    float outerBounds[4] = {-3.0e38f, -3.0e38f, 3.0e38f, 3.0e38f};
    std::vector<std::unique_ptr<vxGObjectOLD>> objects;
    std::unique_ptr<vxBackground> background;
    vxView* parent;  // not owned; null for the root
};

}  // namespace Velarix
