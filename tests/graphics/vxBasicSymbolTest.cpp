// Point marks: what they hand to the device, their shadows, their geometry
// and their script form.
#include <gtest/gtest.h>

#include "graphics/vxBasicPaint.h"
#include "graphics/vxBasicSymbol.h"
#include "graphics/vxGObjectAppearanceOLD.h"
#include "graphics/vxShadowOLD.h"
#include "graphics/vxStrokeOLD.h"
#include "graphics/vxSymbolTestSupport.h"
#include "script/vxFunctionIds.h"

namespace Velarix::test {
namespace {

using Calls = std::vector<std::string>;
using Bounds = std::vector<float>;

// A mark of size 9 at (10, 20) with a black border, red fill and shadow, as
// asked for.
std::unique_ptr<vxBasicSymbol> mark(short type, bool border, bool fill, bool shadow) {
    auto symbol = std::make_unique<vxBasicSymbol>(type, 9.0f, 10.0f, 20.0f);
    if (border) symbol->getAppearance()->setBorderPaint(vxBasicPaint(0, 0, 0));
    if (fill) symbol->getAppearance()->setFillPaint(vxBasicPaint(255, 0, 0));
    if (shadow) symbol->getAppearance()->shadowPart();
    return symbol;
}

TEST(BasicSymbol, DefaultsToACircleOfSizeSeven) {
    vxBasicSymbol symbol;
    EXPECT_EQ(symbol.getType(), 151);
    EXPECT_EQ(symbol.getSymbolType(), 2);
    EXPECT_EQ(boundsOf(symbol), (Bounds{-3.5f, -3.5f, 3.5f, 3.5f}));
    symbol.setSize(-1.0f);
    EXPECT_FLOAT_EQ(symbol.getSymbolWidth(), 0.0f);
    symbol.setDefaults();
    EXPECT_FLOAT_EQ(symbol.getSymbolHeight(), 7.0f);
}

TEST(BasicSymbol, WhatReachesTheDevice) {
    auto symbol = mark(4, true, true, true);
    symbol->setOffsets(2.0f, -3.0f);
    // The device moves the shadow: the symbol gives the same centre twice.
    EXPECT_EQ(drawn(*symbol), (Calls{"symbol shadow 4 9 12 17", "symbol 4 9 12 17"}));
    for (short type : {0, 19, -1}) EXPECT_TRUE(drawn(*mark(type, true, true, true)).empty());
    EXPECT_TRUE(drawn(*mark(2, false, false, true)).empty());
    symbol->setVisible(false);
    EXPECT_TRUE(drawn(*symbol).empty());
}

TEST(BasicSymbol, ShadowCastsOnlyWhatTheBodyDraws) {
    // A filled shape without a fill casts the shadow of its outline form.
    EXPECT_EQ(drawn(*mark(3, true, false, true)),
              (Calls{"symbol shadow 9 9 10 20", "symbol 3 9 10 20 none"}));
    EXPECT_EQ(drawn(*mark(3, false, true, true)),
              (Calls{"symbol shadow 3 9 10 20 none", "symbol 3 9 10 20 none"}));
    // A cross has no fill: without a border it casts nothing.
    EXPECT_EQ(drawn(*mark(1, false, true, true)), (Calls{"symbol 1 9 10 20 none"}));
}

TEST(BasicSymbol, BoundsFollowTheShapeAndMovesTakeTheCentreOnly) {
    auto at = [](short type) {
        vxBasicSymbol symbol(type, 4.0f, 10.0f, 10.0f);
        return boundsOf(symbol);
    };
    EXPECT_EQ(at(3), (Bounds{8, 8, 12, 12}));
    EXPECT_EQ(at(13), (Bounds{8, 10, 12, 10}));
    EXPECT_EQ(at(15), (Bounds{6, 10, 10, 10}));
    EXPECT_EQ(at(18), (Bounds{10, 10, 10, 14}));

    vxBasicSymbol tick(16, 4.0f, 10.0f, 20.0f);
    tick.shift(5.0f, -5.0f);
    // Turning or mirroring a mark by itself leaves it where it is, even a
    // tick whose bounds lie to one side of its centre.
    tick.rotate(1.0f);
    tick.flip(3);
    EXPECT_EQ(boundsOf(tick), (Bounds{15, 15, 19, 15}));
    tick.flip(1, 0.0f, 0.0f);
    tick.setWidth(100.0f);
    EXPECT_EQ(boundsOf(tick), (Bounds{-15, 15, -11, 15}));
}

using BasicSymbolScript = vxScriptReader;

TEST_F(BasicSymbolScript, TheBorderColourFillsASymbolWithoutFill) {
    vxBasicSymbol symbol;
    vxAssign& assign = read(L"AddSymbol(10; 20; diamond; 9; 2; 255 0 0)", 2);
    ASSERT_TRUE(symbol.assign(assign, &settings));
    EXPECT_EQ(assign.getArgumentOffset(), 7);
    EXPECT_EQ(drawn(symbol), (Calls{"symbol 4 9 0 0"}));
    EXPECT_FLOAT_EQ(symbol.getBorderStroke()->getLineWidth(), 2.0f);
    EXPECT_EQ(colorOf(symbol.getBorderPaint()), L"#ff0000");
    EXPECT_EQ(colorOf(symbol.getFillPaint()), L"#ff0000");

    // A fill the symbol has stays; a type alone gives a black mark.
    vxBasicSymbol styled;
    styled.getAppearance()->setFillPaint(vxBasicPaint(0, 0, 255));
    ASSERT_TRUE(styled.assign(read(L"AddSymbol(10; 20; bullet; ; ; 0 255 0)", 2), &settings));
    EXPECT_EQ(colorOf(styled.getBorderPaint()), L"#00ff00");
    EXPECT_EQ(colorOf(styled.getFillPaint()), L"#0000ff");
    vxBasicSymbol plain;
    ASSERT_TRUE(plain.assign(read(L"AddSymbol(10; 20; uptriangle)", 2), &settings));
    EXPECT_EQ(drawn(plain), (Calls{"symbol 6 7 0 0"}));
}

TEST_F(BasicSymbolScript, AFillGivenIsTaken) {
    vxAssign assign;
    assign.setFunction(kSymbolStyle);
    assign.addShort(3);
    assign.addFloat(5.0f);
    assign.addFloatArray(std::vector<float>{1.0f});
    assign.addFloatArray(std::vector<float>{0, 0, 0});
    assign.addVoid();
    assign.addFloatArray(std::vector<float>{0, 128, 0});
    vxBasicSymbol symbol;
    symbol.getAppearance()->setFillPaint(vxBasicPaint(0, 0, 255));
    ASSERT_TRUE(symbol.assign(assign, &settings));
    EXPECT_EQ(colorOf(symbol.getBorderPaint()), L"#000000");
    EXPECT_EQ(colorOf(symbol.getFillPaint()), L"#008000");
}

}  // namespace
}  // namespace Velarix::test
