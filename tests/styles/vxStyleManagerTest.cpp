// The style manager fed by real script calls: each call is read by the
// script reader and its vxAssign handed to the manager, as a chart does.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <functional>
#include <sstream>
#include <string>

#include "drawing/vxDrawingSpecs.h"
#include "drawing/vxView.h"
#include "graphics/vxArrowSymbol.h"
#include "graphics/vxBasicPaint.h"
#include "graphics/vxBasicStroke.h"
#include "graphics/vxBasicSymbol.h"
#include "graphics/vxFontOLD.h"
#include "graphics/vxLabel.h"
#include "graphics/vxShadowOLD.h"
#include "graphics/vxText.h"
#include "graphics/vxTexturePaintOLD.h"
#include "output/vxOutputWIN.h"
#include "script/vxAssign.h"
#include "script/vxScript.h"
#include "settings/vxUserSettings.h"
#include "styles/vxStyleManager.h"
#include "support/vxPictureFiles.h"

namespace Velarix {
namespace {

class StyleManager : public ::testing::Test {
protected:
    StyleManager() { settings.setDefaults(); }

    // Reads the calls, one a line, and gives each to the manager; the code
    // of the first error of the reader or the manager, else 0.
    short run(const std::wstring& calls, vxStyleManager& target) {
        size_t start = 0;
        while (start < calls.size()) {
            size_t end = calls.find(L'\n', start);
            if (end == std::wstring::npos) end = calls.size();
            script.tokenize(L"OpenDrawing(400; 300)\n" + calls.substr(start, end - start));
            if (script.isError()) return script.getError()->getErrorCode();
            vxAssign& assign = *script.getAssign();
            assign.addToArgumentOffset(-assign.getArgumentOffset());
            target.assign(assign);
            if (target.isError()) return target.getError()->getErrorCode();
            start = end + 1;
        }
        return 0;
    }
    short run(const std::wstring& calls) { return run(calls, manager); }

    static const vxBasicPaint& basic(const vxPaintOLD* paint) {
        return dynamic_cast<const vxBasicPaint&>(*paint);
    }
    static std::wstring hashOf(const vxPaintOLD* paint) {
        return basic(paint).getColor()->toHashText();
    }
    std::wstring fillOf(long series, long item) const {
        return hashOf(manager.getFillStyle(series, item)->getPaint());
    }

    vxUserSettings settings{L"", L"", 1, 1};
    vxDrawingSpecs specs;
    vxOutputWIN output;
    // No view: the calls are read, and reach only the manager of the test.
    vxScript script{&settings, &specs, nullptr, &output};
    vxStyleManager manager{&settings};
};

TEST_F(StyleManager, DefaultsAreNumberedFromThePalettesSecondColour) {
    EXPECT_EQ(manager.getNumOfDefaultStyles(vxStyleManager::kSymbol), 12);
    EXPECT_EQ(manager.getNumOfDefaultStyles(vxStyleManager::kLine), 16);
    EXPECT_EQ(manager.getNumOfDefaultStyles(vxStyleManager::kFill), 16);
    for (auto kind : {vxStyleManager::kBar, vxStyleManager::kBorder, vxStyleManager::kArrow,
                      vxStyleManager::kShadow, vxStyleManager::kLabel}) {
        EXPECT_EQ(manager.getNumOfDefaultStyles(kind), 1) << kind;
    }
    // Series 1 is black, not the white of the page; then the palette's row.
    EXPECT_EQ(fillOf(1, 1), L"#000000");
    EXPECT_EQ(fillOf(2, 1), L"#440000");
    EXPECT_EQ(hashOf(manager.getLineStyle(3, 1)->getPaint()), L"#663300");
    EXPECT_EQ(hashOf(manager.getBorderStyle(1, 1)->getPaint()), L"#000000");
    for (long series = 1; series <= 12; ++series) {
        EXPECT_EQ(manager.getSymbolStyle(series, 1)->getSymbol()->getSymbolType(), series);
    }
    const vxLabelStyle* label = manager.getLabelStyle(1, 1);
    EXPECT_EQ(label->getLocation(), -1);
    EXPECT_EQ(label->getText(4), L"DEFAULT_FORMAT");
    EXPECT_FLOAT_EQ(manager.getBarStyle(1, 1)->getEndCapSizePercent(), 50.0f);
    EXPECT_EQ(manager.getStackedLabelStyle(), nullptr);
}

TEST_F(StyleManager, TheDefaultsFollowThePaletteOfTheSettings) {
    settings.getStyleSettings()->setColorPaletteID(2);
    vxStyleManager web(&settings);
    EXPECT_EQ(hashOf(web.getFillStyle(1, 1)->getPaint()), L"#000033");
    EXPECT_EQ(hashOf(web.getSymbolStyle(2, 1)->getSymbol()->getFillPaint()), L"#000066");
}

// Each style function of the catalogue reaches its record.
struct CallCase {
    const wchar_t* call;
    std::function<void(const vxStyleManager&)> check;
};

TEST_F(StyleManager, EveryStyleFunctionReachesItsRecord) {
    const CallCase cases[] = {
        {L"BarStyle(2; round; 10; pike; 20; oval; 30; 2)",
         [](const vxStyleManager& m) {
             const vxBarStyle* bar = m.getBarStyle(2, 1);
             EXPECT_EQ(bar->getStartCapType(), 5);
             EXPECT_FLOAT_EQ(bar->getStartCapSizePercent(), 10.0f);
             EXPECT_EQ(bar->getEndCapType(), 1);
             EXPECT_FLOAT_EQ(bar->getEndCapSizePercent(), 20.0f);
             EXPECT_EQ(bar->getBarShape(), 1);
             EXPECT_FLOAT_EQ(bar->getProfileAngle(), 30.0f);
             EXPECT_EQ(bar->getProfileFlag(), 2);
             EXPECT_EQ(m.getBarStyle(1, 1)->getStartCapType(), 0);
         }},
        {L"SymbolStyle(2; square; 9; 2; #ff0000)",
         [](const vxStyleManager& m) {
             const vxBasicSymbol* symbol = m.getSymbolStyle(2, 1)->getSymbol();
             EXPECT_EQ(symbol->getSymbolType(), 3);
             EXPECT_FLOAT_EQ(symbol->getSize(), 9.0f);
             EXPECT_FLOAT_EQ(symbol->getBorderStroke()->getLineWidth(), 2.0f);
             EXPECT_EQ(hashOf(symbol->getBorderPaint()), L"#ff0000");
             EXPECT_EQ(hashOf(symbol->getFillPaint()), L"#ff0000");
         }},
        {L"LineStyle(2; smooth; 3; #00ff00)",
         [](const vxStyleManager& m) {
             const vxLineStyle* line = m.getLineStyle(2, 1);
             EXPECT_EQ(line->getShape().getType(), vxLineShape::kSmooth);
             EXPECT_FLOAT_EQ(line->getStroke()->getLineWidth(), 3.0f);
             EXPECT_EQ(hashOf(line->getPaint()), L"#00ff00");
         }},
        {L"BorderStyle(2; step; 2 1; #0000ff; 5)",
         [](const vxStyleManager& m) {
             const vxBorderStyle* border = m.getBorderStyle(2, 1);
             EXPECT_EQ(border->getShape().getType(), vxLineShape::kStep);
             EXPECT_TRUE(border->getStroke()->hasDashStyle());
             EXPECT_EQ(basic(border->getPaint()).getPatternIndex(), 5);
         }},
        {L"FillStyle(2; red; 7)",
         [](const vxStyleManager& m) {
             EXPECT_EQ(hashOf(m.getFillStyle(2, 1)->getPaint()), L"#ff3300");
             EXPECT_EQ(basic(m.getFillStyle(2, 1)->getPaint()).getPatternIndex(), 7);
         }},
        {L"ArrowStyle(2; 2; red; ; begin; 20; 10; 5; on)",
         [](const vxStyleManager& m) {
             const vxArrowStyle* arrow = m.getArrowStyle(2, 1);
             EXPECT_TRUE(arrow->hasArrowAtBegin());
             EXPECT_FALSE(arrow->hasArrowAtEnd());
             EXPECT_FLOAT_EQ(arrow->getArrow()->getHeadLength(), 20.0f);
             EXPECT_FLOAT_EQ(arrow->getArrow()->getHeadWidth(), 10.0f);
             EXPECT_FLOAT_EQ(arrow->getArrow()->getHeadInset(), 5.0f);
             EXPECT_TRUE(arrow->getArrow()->isHeadHollow());
             EXPECT_EQ(hashOf(arrow->getArrow()->getBorderPaint()), L"#ff3300");
         }},
        {L"ShadowStyle(2; 5 6; #0000ff)",
         [](const vxStyleManager& m) {
             const vxShadowOLD* shadow = m.getShadowStyle(2, 1)->getShadow();
             EXPECT_FLOAT_EQ(shadow->getXOffset(), 5.0f);
             EXPECT_FLOAT_EQ(shadow->getYOffset(), 6.0f);
             EXPECT_EQ(hashOf(shadow->getPaint()), L"#0000ff");
         }},
        {L"LabelStyle(2; \"DejaVu Sans\"; 14; bold; #ff0000; center; 90)",
         [](const vxStyleManager& m) {
             const vxText* text = m.getLabelStyle(2, 1)->getLabel()->getText();
             EXPECT_EQ(text->getFont()->getName(), L"DejaVu Sans");
             EXPECT_FLOAT_EQ(text->getFont()->getSize(), 14.0f);
             EXPECT_EQ(text->getHAlignment(), vxText::kCenter);
             EXPECT_EQ(hashOf(text->getPaint()), L"#ff0000");
         }},
        {L"LabelOptions(2; topright; 3; 4; 0; 100)",
         [](const vxStyleManager& m) {
             const vxLabelStyle* label = m.getLabelStyle(2, 1);
             EXPECT_EQ(label->getLocation(), 3);
             EXPECT_FLOAT_EQ(label->getYOffset(), 4.0f);
             EXPECT_TRUE(label->isInLimits(100.0));
             EXPECT_FALSE(label->isInLimits(-0.5));
         }},
        {L"LabelTexts(2; \"|0.0|\"; \"none\"; \"\")",
         [](const vxStyleManager& m) {
             const vxLabelStyle* label = m.getLabelStyle(2, 1);
             EXPECT_EQ(label->getText(1), L"|0.0|");
             EXPECT_EQ(label->getText(3), L"");
             EXPECT_EQ(label->getText(4), L"|0.0|");
         }},
        {L"LabelBackground(2; yellow)",
         [](const vxStyleManager& m) {
             EXPECT_TRUE(m.getLabelStyle(2, 1)->getLabel()->hasBackground());
             EXPECT_FALSE(m.getLabelStyle(1, 1)->getLabel()->hasBackground());
         }},
        {L"LabelBackgroundOptions(1 5; 2)",
         [](const vxStyleManager& m) {
             EXPECT_EQ(m.getLabelStyle(1, 1)->getLabel()->getBackgroundShape(), vxLabel::kEllipse);
         }},
    };
    for (const CallCase& c : cases) {
        vxStyleManager fresh(&settings);
        ASSERT_EQ(run(c.call, fresh), 0) << c.call;
        c.check(fresh);
    }
}

TEST_F(StyleManager, PictureStyleMakesATextureWithItsStackValue) {
    const auto path = std::filesystem::temp_directory_path() / "vxStyleManagerTest.png";
    std::ofstream(path, std::ios::binary) << test::encodePNG(test::makePicture(4, 4));
    ASSERT_EQ(run(L"PictureStyle(1; file; \"" + path.wstring() + L"\"; 25)"), 0);
    auto* texture = dynamic_cast<const vxTexturePaintOLD*>(manager.getFillStyle(1, 1)->getPaint());
    ASSERT_NE(texture, nullptr);
    EXPECT_DOUBLE_EQ(texture->getStackValueUC(), 25.0);
    // A void stack value keeps the one held; a colour makes a plain paint again.
    ASSERT_EQ(run(L"PictureStyle(1; file; \"" + path.wstring() + L"\")"), 0);
    texture = dynamic_cast<const vxTexturePaintOLD*>(manager.getFillStyle(1, 1)->getPaint());
    EXPECT_DOUBLE_EQ(texture->getStackValueUC(), 25.0);
    ASSERT_EQ(run(L"FillStyle(1; red)"), 0);
    EXPECT_EQ(fillOf(1, 1), L"#ff3300");
    std::filesystem::remove(path);
}

TEST_F(StyleManager, AVoidArgumentLeavesItsField) {
    ASSERT_EQ(run(L"BarStyle(1; round; 10)\nBarStyle(1; ; ; notch)"), 0);
    EXPECT_EQ(manager.getBarStyle(1, 1)->getStartCapType(), 5);
    EXPECT_EQ(manager.getBarStyle(1, 1)->getEndCapType(), 4);
    ASSERT_EQ(run(L"LabelStyle(1; \"DejaVu Sans\"; 14)\nLabelStyle(1; ; ; italic)"), 0);
    const vxFontOLD* font = manager.getLabelStyle(1, 1)->getLabel()->getText()->getFont();
    EXPECT_EQ(font->getName(), L"DejaVu Sans");
    EXPECT_FLOAT_EQ(font->getSize(), 14.0f);
    EXPECT_EQ(font->getStyle(), vxFontOLD::kItalic);
    ASSERT_EQ(run(L"FillStyle(1; blue)\nFillStyle(1; ; 9)\nSymbolStyle(1; ; 12)"), 0);
    EXPECT_EQ(fillOf(1, 1), L"#0000dd");
    EXPECT_EQ(manager.getSymbolStyle(1, 1)->getSymbol()->getSymbolType(), 1);
    EXPECT_EQ(hashOf(manager.getSymbolStyle(1, 1)->getSymbol()->getFillPaint()), L"#000000");
}

TEST_F(StyleManager, GettersFallBackFromItemToSeriesToTheRepeatingDefaults) {
    ASSERT_EQ(run(L"FillStyle(2; red)\nFillStyle(2 3; blue)"), 0);
    EXPECT_EQ(fillOf(2, 3), L"#0000dd");
    EXPECT_EQ(fillOf(2, 1), L"#ff3300");
    EXPECT_EQ(fillOf(3, 3), L"#663300");
    EXPECT_EQ(fillOf(17, 1), fillOf(1, 1));
    EXPECT_EQ(fillOf(18, 1), L"#440000");
    EXPECT_EQ(manager.getSymbolStyle(13, 1), manager.getSymbolStyle(1, 1));
    EXPECT_EQ(manager.getNumOfStyles(), 2);
    // A later call for the whole series reaches its items too.
    ASSERT_EQ(run(L"FillStyle(2; ; 9)"), 0);
    EXPECT_EQ(basic(manager.getFillStyle(2, 3)->getPaint()).getPatternIndex(), 9);
    EXPECT_EQ(fillOf(2, 3), L"#0000dd");
}

TEST_F(StyleManager, AllReachesDefaultsAndRecordsBeforeAndAfter) {
    ASSERT_EQ(run(L"FillStyle(all; red)\nFillStyle(2; ; 5)"), 0);
    for (long series = 1; series <= 16; ++series) EXPECT_EQ(fillOf(series, 1), L"#ff3300");
    // The record was made from the changed default.
    EXPECT_EQ(basic(manager.getFillStyle(2, 1)->getPaint()).getPatternIndex(), 5);
    ASSERT_EQ(run(L"FillStyle(; blue)"), 0);
    EXPECT_EQ(fillOf(2, 1), L"#0000dd");
    EXPECT_EQ(fillOf(5, 1), L"#0000dd");
    EXPECT_EQ(basic(manager.getFillStyle(2, 1)->getPaint()).getPatternIndex(), 5);
}

TEST_F(StyleManager, ItemsAreMergedIntoOneRecordPerSeries) {
    ASSERT_EQ(run(L"FillStyle(2 3; red)\nFillStyle(2 5 3; blue)"), 0);
    EXPECT_EQ(manager.getNumOfScriptStyles(vxStyleManager::kFill), 1);
    EXPECT_EQ(manager.getFillStyle(2, 3)->getItemIndices(), (std::vector<long>{3, 5}));
    EXPECT_EQ(fillOf(2, 3), L"#0000dd");
    EXPECT_EQ(fillOf(2, 4), L"#440000");
    // All with items: the items of every series the script has named.
    ASSERT_EQ(run(L"FillStyle(4; green)\nFillStyle(0 1; yellow)"), 0);
    EXPECT_EQ(fillOf(2, 1), L"#ffff00");
    EXPECT_EQ(fillOf(4, 1), L"#ffff00");
    EXPECT_EQ(fillOf(4, 2), L"#008800");
    EXPECT_EQ(fillOf(3, 1), L"#663300");
}

TEST_F(StyleManager, StackedIsForLabelsOnly) {
    ASSERT_EQ(run(L"LabelOptions(all; ; 7)\nLabelStyle(stacked; ; 20)"), 0);
    const vxLabelStyle* stacked = manager.getStackedLabelStyle();
    ASSERT_NE(stacked, nullptr);
    EXPECT_FLOAT_EQ(stacked->getXOffset(), 7.0f);
    EXPECT_FLOAT_EQ(stacked->getLabel()->getText()->getFont()->getSize(), 20.0f);
    EXPECT_NE(manager.getLabelStyle(1, 1)->getLabel()->getText()->getFont()->getSize(), 20.0f);
    ASSERT_EQ(run(L"LabelOptions(all; ; 8)"), 0);
    EXPECT_FLOAT_EQ(stacked->getXOffset(), 8.0f);
    EXPECT_EQ(run(L"FillStyle(stacked; red)"), 1120);
    EXPECT_EQ(manager.getError()->getLocation(), L"vxStyleManager/assign/1");
    manager.clearError();
    EXPECT_EQ(run(L"BarStyle(-1; round)"), 1120);
}

TEST_F(StyleManager, TheLimitCountsAdditionsOfAllKinds) {
    manager.setMaxNumOfStyles(2);
    ASSERT_EQ(run(L"FillStyle(1; red)\nLineStyle(1; ; 2)\nFillStyle(1; blue)"), 0);
    EXPECT_EQ(run(L"SymbolStyle(3; square)"), 3005);
    EXPECT_EQ(manager.getError()->getLocation(), L"vxStyleManager/tooManyStyles/1");
    EXPECT_EQ(manager.getNumOfStyles(), 2);
}

TEST_F(StyleManager, ACopyIsDeepAndIndependent) {
    ASSERT_EQ(run(L"FillStyle(2 3; red)\nLabelTexts(stacked; \"|0|\")\nFillStyle(all; ; 4)"), 0);
    vxStyleManager copy(&settings);
    ASSERT_TRUE(copy.set(&manager));
    EXPECT_EQ(copy.getNumOfStyles(), 1);
    EXPECT_NE(copy.getFillStyle(2, 3), manager.getFillStyle(2, 3));
    EXPECT_EQ(hashOf(copy.getFillStyle(2, 3)->getPaint()), L"#ff3300");
    EXPECT_EQ(basic(copy.getFillStyle(9, 1)->getPaint()).getPatternIndex(), 4);
    ASSERT_NE(copy.getStackedLabelStyle(), nullptr);
    EXPECT_EQ(copy.getStackedLabelStyle()->getText(1), L"|0|");

    ASSERT_EQ(run(L"FillStyle(2 3; blue)\nFillStyle(all; ; 6)"), 0);
    EXPECT_EQ(hashOf(copy.getFillStyle(2, 3)->getPaint()), L"#ff3300");
    EXPECT_EQ(basic(copy.getFillStyle(9, 1)->getPaint()).getPatternIndex(), 4);

    copy.clear();
    EXPECT_EQ(copy.getNumOfScriptStyles(vxStyleManager::kFill), 0);
    EXPECT_EQ(copy.getStackedLabelStyle(), nullptr);
    EXPECT_EQ(basic(copy.getFillStyle(9, 1)->getPaint()).getPatternIndex(), 0);
    EXPECT_EQ(hashOf(copy.getFillStyle(2, 3)->getPaint()), L"#440000");
}

TEST_F(StyleManager, LabelBackgroundOptionsReachEveryLabelStyle) {
    ASSERT_EQ(run(L"LabelStyle(3; ; 9)\nLabelTexts(stacked; \"|0|\")\nLabelBackgroundOptions(; 3)"),
              0);
    for (const vxLabelStyle* label : {manager.getLabelStyle(1, 1), manager.getLabelStyle(3, 1),
                                      manager.getStackedLabelStyle()}) {
        EXPECT_EQ(label->getLabel()->getBackgroundShape(), vxLabel::kRoundRect);
    }
}

TEST_F(StyleManager, TheDumpCountsTheRecordsAndWritesEach) {
    ASSERT_EQ(run(L"BarStyle(1; round)\nSymbolStyle(2; square)\nLineStyle(2; smooth)\n"
                  L"BorderStyle(2; ; 2)\nFillStyle(2 4; red)\nArrowStyle(2; 1)\n"
                  L"ShadowStyle(2; 4)\nLabelOptions(stacked; totalsout)"),
              0);
    std::ostringstream out;
    manager.dump(3, out);
    const std::string text = out.str();
    EXPECT_NE(text.find("long numOfStyles:     7\n"), std::string::npos);
    EXPECT_NE(text.find("numOfDefaultSymbolStyles: 12\n"), std::string::npos);
    EXPECT_NE(text.find("numOfFillStyles: 1\n"), std::string::npos);
    EXPECT_NE(text.find("long seriesIndex:  -1\n"), std::string::npos);
    for (const char* name : {"vxBarStyle", "vxSymbolStyle", "vxLineStyle", "vxBorderStyle",
                             "vxFillStyle", "vxArrowStyle", "vxShadowStyle", "vxLabelStyle"}) {
        EXPECT_NE(text.find(name), std::string::npos) << name;
    }
}

}  // namespace
}  // namespace Velarix
