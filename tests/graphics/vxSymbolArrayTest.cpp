// Lists of symbols, and the symbols an object carries: copies by class,
// gaps, bounds, drawing order and geometry passed on.
#include <gtest/gtest.h>

#include "graphics/vxArrowSymbol.h"
#include "graphics/vxBasicPaint.h"
#include "graphics/vxBasicSymbol.h"
#include "graphics/vxGObject2D.h"
#include "graphics/vxGObjectAppearanceOLD.h"
#include "graphics/vxSymbolArray.h"
#include "graphics/vxSymbolTestSupport.h"
#include "graphics/vxTransform2DOLD.h"

namespace Velarix::test {
namespace {

using Calls = std::vector<std::string>;
using Bounds = std::vector<float>;

// An outlined mark.
std::unique_ptr<vxBasicSymbol> mark(short type, float size, float x, float y, bool shadow = false) {
    auto symbol = std::make_unique<vxBasicSymbol>(type, size, x, y);
    symbol->getAppearance()->setBorderPaint(vxBasicPaint(0, 0, 0));
    if (shadow) symbol->getAppearance()->shadowPart();
    return symbol;
}

// A filled and outlined segment from (l, t) to (r, b).
class TestShape : public vxGObject2D {
public:
    TestShape(float l, float t, float r, float b)
        : vxGObject2D(L"TestShape", nullptr), x{l, r}, y{t, b} {
        getAppearance()->setFillPaint(vxBasicPaint(255, 0, 0));
        getAppearance()->setBorderPaint(vxBasicPaint(0, 0, 0));
    }
    short getType() const override { return kTypePolygon; }

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
    void transformGeometry(const vxTransform2DOLD& t) override {
        vxGObject2D::transformGeometry(t);
        t.transform(x, y);
    }
    void calculateBounds(float b[4]) const override {
        b[0] = std::min(x[0], x[1]), b[2] = std::max(x[0], x[1]);
        b[1] = std::min(y[0], y[1]), b[3] = std::max(y[0], y[1]);
    }

private:
    std::vector<float> x, y;
};

TEST(SymbolArray, CopiesEachSymbolAsItsOwnClass) {
    vxSymbolArray array;
    const auto triangle = mark(5, 9, 1, 2);
    vxArrowSymbol head;
    head.setHeadIsHollow(true);
    ASSERT_TRUE(array.addSymbol(*triangle));
    ASSERT_TRUE(array.addGap());
    ASSERT_TRUE(array.addSymbol(head));
    triangle->setSymbolType(6);

    vxSymbolArray copy;
    ASSERT_TRUE(copy.copy(&array));
    for (const vxSymbolArray* list : {&array, &copy}) {
        ASSERT_EQ(list->getNumOfSymbols(), 3);
        auto* first = dynamic_cast<vxBasicSymbol*>(list->getSymbol(0));
        ASSERT_NE(first, nullptr);
        EXPECT_EQ(first->getSymbolType(), 5);
        EXPECT_TRUE(first->hasBorder());
        EXPECT_EQ(list->getSymbol(1), nullptr);
        auto* last = dynamic_cast<vxArrowSymbol*>(list->getSymbol(2));
        ASSERT_NE(last, nullptr);
        EXPECT_TRUE(last->isHeadHollow());
        EXPECT_EQ(list->getSymbol(3), nullptr);
    }
    EXPECT_NE(copy.getSymbol(0), array.getSymbol(0));
}

TEST(SymbolArray, BoundsDrawingAndMovesCoverAllSymbols) {
    vxSymbolArray array;
    EXPECT_EQ(boundsOf(array), (Bounds{0, 0, 0, 0}));
    array.addSymbol(*mark(1, 4, 10, 10, true));
    array.addGap();
    array.addSymbol(*mark(8, 2, 50, 30, true));
    EXPECT_EQ(boundsOf(array), (Bounds{8, 8, 51, 31}));
    EXPECT_EQ(drawn(array), (Calls{"symbol shadow 1 4 10 10", "symbol shadow 8 2 50 30",
                                   "symbol 1 4 10 10 none", "symbol 8 2 50 30 none"}));
    array.shift(5.0f, -5.0f);
    EXPECT_EQ(boundsOf(array), (Bounds{13, 3, 56, 26}));
    array.flip(1, 0.0f, 0.0f);
    EXPECT_FLOAT_EQ(array.getSymbol(0)->getXCenter(), -15.0f);
    array.setVisible(false);
    EXPECT_TRUE(drawn(array).empty());
}

TEST(ObjectSymbols, LieAboveTheBorderAndCastShadowsAfterTheObjects) {
    TestShape shape(10, 10, 60, 40);
    EXPECT_FALSE(shape.hasSymbols());
    EXPECT_EQ(shape.getSymbol(0), nullptr);
    ASSERT_TRUE(shape.addSymbol(*mark(2, 6, 10, 10, true)));
    EXPECT_EQ(shape.getNumOfSymbols(), 1);
    const Calls body{"fill 10 10 60 40", "outline 10 10 60 40", "symbol 2 6 10 10 none"};
    // Without a shadow of the object's own its symbols cast none; with one,
    // the unfilled circle casts the shadow of its outline.
    EXPECT_EQ(drawn(shape), body);
    shape.getAppearance()->shadowPart();
    Calls all{"fill shadow 10 10 60 40", "outline shadow 10 10 60 40", "symbol shadow 8 6 10 10"};
    all.insert(all.end(), body.begin(), body.end());
    EXPECT_EQ(drawn(shape), all);
    shape.setVisible(false);
    EXPECT_TRUE(drawn(shape).empty());
}

TEST(ObjectSymbols, MoveWithTheObjectButStayOutOfItsBounds) {
    TestShape shape(10, 10, 60, 40);
    shape.addSymbol(*mark(2, 6, 100, 100));
    EXPECT_EQ(boundsOf(shape), (Bounds{10, 10, 60, 40}));
    shape.shift(5.0f, -5.0f);
    EXPECT_EQ(boundsOf(shape), (Bounds{15, 5, 65, 35}));
    EXPECT_FLOAT_EQ(shape.getSymbol(0)->getYCenter(), 95.0f);
    shape.flip(1);  // about x = 40
    EXPECT_FLOAT_EQ(shape.getSymbol(0)->getXCenter(), -25.0f);
    shape.setWidth(100.0f);
    EXPECT_FLOAT_EQ(shape.getSymbol(0)->getXCenter(), -65.0f);
}

TEST(ObjectSymbols, CopiesFromAnotherObjectAreTheirOwn) {
    TestShape from(0, 0, 10, 10), to(0, 0, 10, 10), bare(0, 0, 1, 1);
    from.addSymbol(*mark(3, 4, 1, 1));
    to.addSymbol(*mark(4, 4, 2, 2));
    to.addSymbol(*mark(5, 4, 3, 3));
    ASSERT_TRUE(to.assignSymbols(from));
    ASSERT_EQ(to.getNumOfSymbols(), 1);
    from.shift(10.0f, 0.0f);
    EXPECT_FLOAT_EQ(to.getSymbol(0)->getXCenter(), 1.0f);
    ASSERT_TRUE(to.assignSymbols(bare));
    EXPECT_FALSE(to.hasSymbols());
}

}  // namespace
}  // namespace Velarix::test
