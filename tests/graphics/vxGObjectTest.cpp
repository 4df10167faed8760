// The draw protocol, bounds and geometry of graphic objects, and the layers
// that hold them, seen through a device that records its calls.
#include <gtest/gtest.h>

#include "drawing/vxLayer.h"
#include "drawing/vxLayerManager.h"
#include "graphics/vxBasicPaint.h"
#include "graphics/vxGObject2D.h"
#include "graphics/vxGObjectAppearanceOLD.h"
#include "graphics/vxShadowOLD.h"
#include "graphics/vxTransform2DOLD.h"
#include "support/vxRecordingDevice.h"

namespace Velarix {
namespace {

using test::vxRecordingDevice;
using Calls = std::vector<std::string>;

// A rectangle drawn as a polygon, as the quads of the engine are.
class TestQuad : public vxGObject2D {
public:
    TestQuad(float l, float t, float r, float b)
        : vxGObject2D(L"TestQuad", nullptr), x{l, r, r, l}, y{t, t, b, b} {}
    short getType() const override { return kTypeQuad; }

protected:
    void fillShape(vxDevice& d, const vxPaintOLD& p, const float b[4]) override {
        d.fillPolygon2D(p, x, y, b, 1);
    }
    void fillShape(vxDevice& d, const vxShadowOLD& s, const float b[4]) override {
        d.fillPolygon2D(s, x, y, b, 1);
    }
    void outlineShape(vxDevice& d, const vxStrokeOLD& st, const vxPaintOLD& p,
                      const float b[4]) override {
        d.drawPolygon2D(st, p, x, y, b, true);
    }
    void outlineShape(vxDevice& d, const vxStrokeOLD& st, const vxShadowOLD& s,
                      const float b[4]) override {
        d.drawPolygon2D(st, s, x, y, b, true);
    }
    void transformGeometry(const vxTransform2DOLD& t) override { t.transform(x, y); }
    void calculateBounds(float b[4]) const override {
        b[0] = std::min(x[0], x[1]);
        b[2] = std::max(x[0], x[1]);
        b[1] = std::min(y[0], y[2]);
        b[3] = std::max(y[0], y[2]);
    }

private:
    std::vector<float> x, y;
};

std::unique_ptr<TestQuad> quad(bool fill, bool border, bool shadow) {
    auto q = std::make_unique<TestQuad>(10, 10, 60, 40);
    if (fill) q->getAppearance()->setFillPaint(vxBasicPaint(255, 0, 0));
    if (border) q->getAppearance()->setBorderPaint(vxBasicPaint(0, 0, 0));
    if (shadow) q->getAppearance()->shadowPart();
    return q;
}

Calls drawn(vxGObjectOLD& object) {
    vxRecordingDevice device;
    object.draw(device);
    return device.calls;
}

TEST(GObject, ShadowBelowFillBelowBorder) {
    EXPECT_EQ(drawn(*quad(true, true, true)),
              (Calls{"fill shadow", "outline shadow", "fill", "outline"}));
    EXPECT_EQ(drawn(*quad(true, false, false)), (Calls{"fill"}));
    EXPECT_EQ(drawn(*quad(false, true, false)), (Calls{"outline"}));
}

TEST(GObject, InvisibleOrNonePartsDrawNothing) {
    auto hidden = quad(true, true, true);
    hidden->setVisible(false);
    EXPECT_TRUE(drawn(*hidden).empty());

    auto nonePaint = quad(false, true, false);
    vxBasicPaint none(0, 0, 0);
    none.setPatternIndex(1);
    nonePaint->getAppearance()->setFillPaint(none);
    EXPECT_EQ(drawn(*nonePaint), (Calls{"outline"}));

    auto hiddenShadow = quad(true, false, true);
    hiddenShadow->getAppearance()->shadowPart()->setShow(false);
    EXPECT_EQ(drawn(*hiddenShadow), (Calls{"fill"}));
}

TEST(GObject, GeometryAndBounds) {
    auto q = quad(true, false, false);
    q->shift(5.0f, -5.0f);
    float b[4];
    q->getBounds(b);
    EXPECT_EQ(std::vector<float>(b, b + 4), (std::vector<float>{15, 5, 65, 35}));
    q->setWidth(100);
    EXPECT_FLOAT_EQ(q->getLeft(), 15.0f);
    EXPECT_FLOAT_EQ(q->getWidth(), 100.0f);
    q->flip(1, 0, 0);
    EXPECT_FLOAT_EQ(q->getLeft(), -115.0f);
    EXPECT_TRUE(q->isInside(-115, 5, -15, 35));
    EXPECT_FALSE(q->isInside(-114, 5, -15, 35));

    TestQuad flat(10, 10, 10, 40);
    flat.setWidth(50);
    EXPECT_FLOAT_EQ(flat.getWidth(), 0.0f);
}

TEST(Layer, ClipsThenDrawsItsShapesInOrder) {
    const float clip[4] = {0, 0, 100, 100};
    vxLayer layer(1, 0, clip);
    layer.addShape(quad(true, false, false));
    layer.addShape(quad(false, true, false));
    vxRecordingDevice device;
    layer.draw(device);
    EXPECT_EQ(device.calls, (Calls{"clipRect", "fill", "outline"}));
    layer.setVisible(false);
    device.calls.clear();
    layer.draw(device);
    EXPECT_TRUE(device.calls.empty());
}

TEST(LayerManager, DropsEmptyLayersAndDrawsInIndexOrder) {
    vxLayerManager manager;
    manager.addLayer(std::make_unique<vxLayer>(1));
    EXPECT_EQ(manager.getNumOfLayers(), 0);
    for (long type : {1, 2, 3}) {
        auto layer = std::make_unique<vxLayer>(type);
        layer->addShape(quad(type == 1, type != 1, false));
        manager.setCurrentObjectIndex(type * 10);
        manager.addLayer(std::move(layer));
    }
    EXPECT_EQ(manager.findLayer(20, 2, 0), 1);
    EXPECT_EQ(manager.findLayer(20, 3, 0), -1);
    manager.moveToFront(2);
    EXPECT_EQ(manager.getDrawingIndices(), (std::vector<long>{2, 0, 1}));
    manager.moveBehind(0, 2);
    EXPECT_EQ(manager.getDrawingIndices(), (std::vector<long>{0, 1, 2}));

    vxRecordingDevice device;
    device.setUseFractionalMetrics(true);
    manager.getLayer(0)->setFractionalMetricsOverride(0);
    manager.write(device);
    EXPECT_EQ(device.calls,
              (Calls{"clipRect", "fill", "clipRect", "outline", "clipRect", "outline"}));
    EXPECT_TRUE(device.getUseFractionalMetrics());
}

}  // namespace
}  // namespace Velarix
