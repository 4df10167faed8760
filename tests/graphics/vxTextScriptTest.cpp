// Texts from script calls, read by the script reader, and the check of
// font names that the reader makes.
#include <gtest/gtest.h>

#include <string>

#include "drawing/vxDrawingSpecs.h"
#include "drawing/vxView.h"
#include "graphics/vxFontOLD.h"
#include "graphics/vxPaintOLD.h"
#include "graphics/vxText.h"
#include "output/vxOutputWIN.h"
#include "platform/vxFontService.h"
#include "script/vxAssign.h"
#include "script/vxScript.h"
#include "settings/vxUserSettings.h"

namespace Velarix {
namespace {

class TextScript : public ::testing::Test {
protected:
    TextScript() { settings.setDefaults(); }

    // Reads one call; the text takes its values from the last call read.
    short read(const std::wstring& call) {
        script.tokenize(L"OpenDrawing(400; 300)\n" + call);
        return script.isError() ? script.getError()->getErrorCode() : 0;
    }

    void assignTo(vxText& text) {
        // The view has read the call already; read it again from its start.
        vxAssign& assign = *script.getAssign();
        assign.addToArgumentOffset(-assign.getArgumentOffset());
        ASSERT_TRUE(text.assign(assign));
    }

    vxUserSettings settings{L"", L"", 1, 1};
    vxDrawingSpecs specs;
    vxView view{&settings};
    vxOutputWIN output;
    vxScript script{&settings, &specs, &view, &output};
};

TEST_F(TextScript, AddTextReadsEveryArgument) {
    ASSERT_EQ(read(L"AddText(10; 20; \"Net\\nsales\"; \"Liberation Serif\"; 12; bold+italic; "
                   L"#ff0000; center; top; 90; 100; 40; 1)"),
              0);
    vxText text(&settings);
    assignTo(text);
    EXPECT_FLOAT_EQ(text.getXAnchor(), 10.0f);
    EXPECT_EQ(text.getText(), L"Net\rsales");
    EXPECT_EQ(text.getFont()->getName(), L"Liberation Serif");
    EXPECT_EQ(text.getFont()->getStyle(), 3);
    EXPECT_FLOAT_EQ(text.getPaint()->getRed(), 1.0f);
    EXPECT_EQ(text.getHAlignment(), vxText::kCenter);
    EXPECT_EQ(text.getVAlignment(), vxText::kTop);
    EXPECT_NEAR(text.getOrientation(), 1.5707964f, 1e-6f);
    EXPECT_FLOAT_EQ(text.getMaxHeight(), 40.0f);
    EXPECT_EQ(text.getEllipsisPosition(), vxText::kEllipsisAtStart);
    EXPECT_EQ(script.getAssign()->getArgumentOffset(), 13);
}

TEST_F(TextScript, MissingFontArgumentsTakeTheFontSettings) {
    settings.getFontSettings()->setNameWinOS(L"DejaVu Sans");
    settings.getFontSettings()->setSizeWinOS(9.0f);
    ASSERT_EQ(read(L"AddText(1; 2; \"x\"; ; ; ; ; ; ; -90)"), 0);
    vxText text(&settings);
    text.setFontStyle(vxFontOLD::kBold);
    assignTo(text);
    EXPECT_EQ(text.getFont()->getName(), L"DejaVu Sans");
    EXPECT_FLOAT_EQ(text.getFont()->getSize(), 9.0f);
    EXPECT_EQ(text.getFont()->getStyle(), vxFontOLD::kPlain);
    // A negative angle is stored as a positive one.
    EXPECT_NEAR(text.getOrientation(), 6.2831855f - 1.5707964f, 1e-6f);
}

TEST_F(TextScript, StyleFunctionsStartAtTheFontAndKeepTheAnchor) {
    vxText text(&settings, L"Title");
    text.setAnchor(5.0f, 6.0f);
    text.setVAlignment(vxText::kMiddle);
    ASSERT_EQ(read(L"TitleStyle(\"Liberation Sans\"; 14; italic; #0000ff; right; 45; 200; 30; 2)"),
              0);
    assignTo(text);
    EXPECT_FLOAT_EQ(text.getXAnchor(), 5.0f);
    EXPECT_EQ(text.getVAlignment(), vxText::kMiddle);
    EXPECT_EQ(text.getFont()->getStyle(), vxFontOLD::kItalic);
    EXPECT_FLOAT_EQ(text.getPaint()->getBlue(), 1.0f);
    EXPECT_EQ(text.getHAlignment(), vxText::kRight);
    EXPECT_NEAR(text.getOrientation(), 0.7853982f, 1e-6f);
    EXPECT_EQ(text.getEllipsisPosition(), vxText::kEllipsisInMiddle);
    EXPECT_EQ(script.getAssign()->getArgumentOffset(), 9);
}

TEST_F(TextScript, AMissingFontIsSubstitutedOrWithTheCheckRejected) {
    ASSERT_EQ(read(L"AddText(1; 2; \"Sales\"; \"No Such Font 123\")"), 0);
    vxText text(&settings);
    assignTo(text);
    EXPECT_GT(text.getStringWidth(), 0.0f);
    EXPECT_FALSE(text.isError());

    settings.getFontSettings()->setMissingFontFlag(1);
    EXPECT_EQ(read(L"AddText(1; 2; \"Sales\"; \"No Such Font 123\")"), 1020);
    EXPECT_EQ(read(L"TitleStyle(\"No Such Font 123\"; 14)"), 1020);
    EXPECT_EQ(read(L"AddText(1; 2; \"Sales\"; \"systemfont\")"), 0);
    EXPECT_EQ(read(L"AddText(1; 2; \"Sales\"; \"applfont\")"), 0);
    EXPECT_EQ(read(L"AddText(1; 2; \"Sales\"; \"DejaVu Sans\")"), 0);
    EXPECT_EQ(read(L"AddText(1; 2; \"Sales\")"), 0);
    if (!vxFontService::get().isInstalled(L"Liberation Sans")) {
        GTEST_SKIP() << "the metric-compatible stand-ins need the Liberation fonts";
    }
    for (const wchar_t* name :
         {L"Arial", L"Helvetica", L"Times New Roman", L"Times", L"Courier New", L"Courier"}) {
        EXPECT_EQ(read(std::wstring(L"AddText(1; 2; \"x\"; \"") + name + L"\")"), 0) << name;
    }
}

}  // namespace
}  // namespace Velarix
