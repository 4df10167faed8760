// The reader's conversions as the model receives them: each case reads a
// script and looks at the values of its last call.
#include <gtest/gtest.h>

#include <cmath>

#include "Utilities/Sources/vxFormatDateTime.h"
#include "data/vxDataManager.h"
#include "data/vxDataRawInput.h"
#include "drawing/vxChart.h"
#include "drawing/vxDrawingSpecs.h"
#include "drawing/vxView.h"
#include "host/vxInterface.h"
#include "output/vxOutputWIN.h"
#include "script/vxAssign.h"
#include "script/vxScript.h"
#include "settings/vxErrorSettings.h"
#include "settings/vxFormatSettings.h"
#include "settings/vxRenderingSettings.h"
#include "settings/vxUserSettings.h"

namespace Velarix {
namespace {

class Reader : public ::testing::Test {
protected:
    Reader() { settings.setDefaults(); }

    const vxAssign& read(const std::wstring& text) {
        script.tokenize(L"OpenDrawing(400; 300)\n" + text);
        EXPECT_FALSE(script.isError()) << describe();
        // The view has read the call's arguments; look at them from the start.
        vxAssign& assign = *script.getAssign();
        assign.addToArgumentOffset(-assign.getArgumentOffset());
        return assign;
    }

    std::string describe() const {
        std::wstring message;
        if (script.getError()) script.getError()->getMessage(message, 1, L"13");
        return std::string(message.begin(), message.end());
    }

    vxUserSettings settings{L"", L"", 1, 1};
    vxDrawingSpecs specs;
    vxView view{&settings};
    vxOutputWIN output;
    vxScript script{&settings, &specs, &view, &output};
};

TEST_F(Reader, NumbersKeywordsAndDefaults) {
    EXPECT_EQ(read(L"BarChart(label+shadow)").getShort(0), 3);
    EXPECT_EQ(read(L"BarChart(label + shadow + horizontal)").getShort(0), 11);
    EXPECT_EQ(read(L"BarChart(3)").getShort(0), 3);
    EXPECT_EQ(read(L"AddSymbol(1; 2; HollowDiamond)").getShort(2), 10);

    const vxAssign& arc = read(L"AddArc(0; 0; 10; 10; ; 90)");
    EXPECT_EQ(arc.getNumOfArguments(), 6);
    EXPECT_TRUE(arc.isVoid(4));
    EXPECT_FLOAT_EQ(arc.getFloat(4, -1.0f), -1.0f);
    EXPECT_FLOAT_EQ(arc.getFloat(5), 90.0f * 0.01745329238474369f);

    EXPECT_FLOAT_EQ(read(L"AddRect(0,5; 1; 2; 3)").getFloat(0), 0.5f);
    EXPECT_DOUBLE_EQ(read(L"HistogramRange(-1.5e3; 2; 10)").getDouble(0), -1500.0);
    EXPECT_DOUBLE_EQ(read(L"Scaling(x; log; 1; 100; ; ; e)").getDouble(6), 2.7182818284590452);
}

TEST_F(Reader, StringsQuotesAndEscapes) {
    EXPECT_EQ(read(L"AddText(1; 2; \"a\"\"b\")").getString(2), L"a\"b");
    EXPECT_EQ(read(L"AddText(1; 2; \u201Elow\u201C)").getString(2), L"low");
    EXPECT_EQ(read(L"AddText(1; 2; \u2018it\u2019)").getString(2), L"it");
    EXPECT_EQ(read(L"AddText(1; 2; \"\\x41\\x1F\\xff\\u20ac\")").getString(2), L"A\u00ff\u20ac");
    EXPECT_EQ(read(L"AddText(1; 2; \"a\\nb\\r\\t\\\\\\\"\")").getString(2), L"a\rb\r\t\\\"");
    EXPECT_EQ(read(L"AddText(1; 2; \"x;y)z\")").getString(2), L"x;y)z");
    // A line feed escape in the data file functions is a real line feed.
    const vxAssign& write =
        read(L"ChartDataWrite(\"out.txt\"; replace; \"abcd\"; on; \"\\t\"; \"\\n\")");
    EXPECT_EQ(write.getString(4), L"\t");
    EXPECT_EQ(write.getString(5), L"\n");
}

TEST_F(Reader, EmptyArgumentsAndComments) {
    EXPECT_EQ(read(L"SaveAsSVGFile(\"a.svg\";)").getNumOfArguments(), 2);
    EXPECT_EQ(read(L"BackgroundOptions( /* nothing */ )").getNumOfArguments(), 0);
    const vxAssign& a = read(L"AddRect(1; /* the top */ 2; // the width\n 3;\n 4) // last line");
    EXPECT_FLOAT_EQ(a.getFloat(1), 2.0f);
    EXPECT_FLOAT_EQ(a.getFloat(3), 4.0f);
}

TEST_F(Reader, ArraysColoursAndSeriesLists) {
    EXPECT_EQ(read(L"AddRect(1; 2; 3; 4; #abc)").getFloatArray(4),
              (std::vector<float>{170, 187, 204}));
    EXPECT_EQ(read(L"AddRect(1; 2; 3; 4; \"#aabbcc80\")").getFloatArray(4),
              (std::vector<float>{170, 187, 204, 128}));
    EXPECT_EQ(read(L"AddRect(1; 2; 3; 4; AliceBlue)").getFloatArray(4),
              (std::vector<float>{240, 248, 255}));
    EXPECT_EQ(read(L"AddRect(1; 2; 3; 4; 5)").getFloatArray(4), (std::vector<float>{5}));
    EXPECT_EQ(read(L"AddRect(1; 2; 3; 4; 1 2 3 4)").getFloatArray(4),
              (std::vector<float>{1, 2, 3, 4}));
    EXPECT_EQ(read(L"LabelStyle(stacked; ; 12)").getLongArray(0), (std::vector<long>{-1}));
    EXPECT_EQ(read(L"FillStyle(1 -5 7; red)").getLongArray(0), (std::vector<long>{1, -5, 7}));
    EXPECT_EQ(read(L"LineStyle(all; jump 1 2 0.5 1)").getFloatArray(1),
              (std::vector<float>{1, 1, 2, 0.5f, 1}));
    EXPECT_EQ(read(L"BarChart(label; 1; 2; 5   6\n7)").getFloatArray(3),
              (std::vector<float>{5, 6, 7}));
}

TEST_F(Reader, ChartValuesAndDates) {
    // The texts as the chart's data input has taken them.
    read(L"ChartData(null 1 2,5; \"2004-01-05 12:00\" 2004-5-12 NULL; ; 4/* c */5)");
    const auto* chart = dynamic_cast<const vxChart*>(view.getObject(view.getChartIndex()));
    ASSERT_TRUE(chart && chart->getDataManager());
    EXPECT_EQ(chart->getDataManager()->getRawInput()->getInputStrings(),
              (std::vector<std::wstring>{L"NULL 1 2,5", L"2004-01-05&12:00 2004-5-12 NULL", L"NULL",
                                         L"45"}));
    EXPECT_DOUBLE_EQ(read(L"LineChart()\nLineChartOptions(24:00:00)").getDouble(0), 1.0);
    EXPECT_DOUBLE_EQ(read(L"LineChart()\nLineChartOptions(24'00)").getDouble(0), 1.0);
    EXPECT_DOUBLE_EQ(read(L"LineChart()\nLineChartOptions(0,25)").getDouble(0), 0.25);
}

TEST_F(Reader, OpenDrawingSetsTheDrawingParameters) {
    script.tokenize(L"OpenDrawing(100,4; 50,6; 1; 2; 1)");
    ASSERT_FALSE(script.isError()) << describe();
    EXPECT_FLOAT_EQ(specs.getWidth(), 100.0f);
    EXPECT_FLOAT_EQ(specs.getHeight(), 51.0f);
    EXPECT_EQ(specs.getRenderingInfo(), 1);
    const vxRenderingSettings* r = settings.getRenderingSettings();
    EXPECT_EQ(r->getShapeAntialiasing(), 0);
    EXPECT_EQ(r->getTextAntialiasing(), 1);
    EXPECT_EQ(r->getFractionalMetrics(), 1);
}

// The format functions write into the format settings, and an argument left
// empty keeps what was there.
TEST_F(Reader, FormatFunctionsSetTheFormatSettings) {
    const vxFormatSettings* f = settings.getFormatSettings();
    script.tokenize(L"OpenDrawing(9; 9) NumberOptions(\",\"; \".\"; 4) DateTimeOptions(dmy; 2)");
    ASSERT_FALSE(script.isError()) << describe();
    EXPECT_EQ(f->getDecimalPoint(), L',');
    EXPECT_EQ(f->getThousandsSep(), L'.');
    EXPECT_EQ(f->getThousandsGroupSize(), 4);
    EXPECT_EQ(f->getDateOrderID(), 3);
    EXPECT_EQ(f->getWeekStartIndex(), 1);

    script.tokenize(
        L"OpenDrawing(9; 9) NumberOptions(; ; 2) DateTimeOptions(; 1) SetThousandsSep(\"'\")");
    ASSERT_FALSE(script.isError()) << describe();
    EXPECT_EQ(f->getDecimalPoint(), L',');
    EXPECT_EQ(f->getThousandsSep(), L'\'');
    EXPECT_EQ(f->getThousandsGroupSize(), 2);
    EXPECT_EQ(f->getDateOrderID(), 3);
    EXPECT_EQ(f->getWeekStartIndex(), 0);

    script.tokenize(L"OpenDrawing(9; 9) SetThousandsSep(\"\"; 3) SetDecimalPoint(\".\")");
    ASSERT_FALSE(script.isError()) << describe();
    EXPECT_EQ(f->getThousandsSep(), 0);
    EXPECT_EQ(f->getThousandsGroupSize(), 3);
    EXPECT_EQ(f->getDecimalPoint(), L'.');

    // Date and time formats are checked as they come; an empty one goes
    // back to the derived format.
    script.tokenize(L"OpenDrawing(9; 9) SetDateFormat(\"D. Month YYYY\") SetTimeFormat(\"hh'mm\")");
    ASSERT_FALSE(script.isError()) << describe();
    EXPECT_EQ(f->getDateFormat(), L"D. Month YYYY");
    EXPECT_EQ(f->getTimeFormat(), L"hh'mm");
    vxFormatDateTime date(f);
    EXPECT_EQ(date.getDefaultFormat(std::vector<double>{-2453010.3270325}), L"D. Month YYYY hh'mm");
    script.tokenize(L"OpenDrawing(9; 9) SetDateFormat(\"\") SetTimeFormat(\"a|b\")");
    ASSERT_TRUE(script.isError());
    EXPECT_EQ(script.getError()->getErrorCode(), 2002);
    EXPECT_TRUE(f->getDateFormat().empty());
    EXPECT_EQ(f->getTimeFormat(), L"hh'mm");
}

TEST_F(Reader, DrawingFlagsFollowOpenAndClose) {
    script.tokenize(L"SaveAsSVGFile(\"a.svg\")");
    EXPECT_FALSE(script.isDrawingOpened());
    script.tokenize(L"OpenDrawing(1; 1)");
    EXPECT_TRUE(script.isDrawingOpened());
    EXPECT_FALSE(script.isDrawingClosed());
    script.tokenize(L"OpenDrawing(1; 1) CloseDrawing() SendToClipboard()");
    EXPECT_FALSE(script.isError()) << describe();
    EXPECT_FALSE(script.isDrawingOpened());
    EXPECT_TRUE(script.isDrawingClosed());
}

// A long line is cut to a window around its middle, marked with ellipses.
TEST_F(Reader, ScriptPartIsCutToItsLimit) {
    settings.getErrorSettings()->setMaxCharsOfErrScriptPart(20);
    script.tokenize(L"OpenDrawing(400; 300)\nAddRect(1; 2; 3; 4; 5; 6; 7; 8; 9)\n");
    ASSERT_TRUE(script.isError());
    const std::wstring part = script.getError()->getParsingError()->errScriptPart;
    EXPECT_EQ(part.size(), 20u);
    EXPECT_EQ(part, L"2; 3; 4; 5; 6; --->7");
    settings.getErrorSettings()->setMaxCharsOfErrScriptPart(-1);
    script.tokenize(L"OpenDrawing(400; 300)\nAddRect(1; 2; 3; 4; 5; 6; 7; 8; 9)\nCloseView()");
    EXPECT_EQ(script.getError()->getParsingError()->errScriptPart,
              L"AddRect(1; 2; 3; 4; 5; 6; --->7; 8; 9<---)");
}

// Pieces before each "@@" are run; a piece after the last one is not.
TEST(Interface, RunScriptsRunsThePiecesBeforeEachSeparator) {
    vxInterface ran(L"", L"", 1, 1);
    ran.runScripts(L"OpenDrawing(1; 1)@@Foo()@@");
    ASSERT_TRUE(ran.isError());
    EXPECT_EQ(ran.getError()->getErrorCode(), 1200);

    vxInterface notRun(L"", L"", 1, 1);
    notRun.runScripts(L"Foo()");
    EXPECT_FALSE(notRun.isError());
}

TEST(Interface, FailedRunDropsTheDrawing) {
    vxInterface engine(L"", L"", 1, 1);
    engine.run(L"OpenDrawing(0; 1)");
    EXPECT_TRUE(engine.isError());
    EXPECT_EQ(engine.getDrawing(), nullptr);
    EXPECT_EQ(engine.getNumOfStreams(), 0);
    EXPECT_FALSE(engine.hasCurveFittingData());
    std::wstring message;
    engine.getErrorMessage(message, 1, L"01");
    EXPECT_EQ(message, L"Value out of range.\r");
}

}  // namespace
}  // namespace Velarix
