// Small drawings, one kind of shape, paint or text each, for the comparison
// of our PNG with what librsvg and poppler show of our SVG and PDF.
#pragma once

#include "output/vxReaderComparison.h"

namespace Velarix::test {

struct ReaderScript {
    const char* name;
    const char* script;
    CompareWith compare;
};

// Each script opens its drawing and closes it; the saves are added.
inline const ReaderScript kReaderScripts[] = {
    {"boxes",
     "OpenDrawing(200; 120)\nBackground(white)\n"
     "AddRect(10; 10; 50; 40; \"#ffcc00\")\nAddFrame(70; 10; 50; 40; 2; darkblue)\n"
     "AddRoundRect(130; 10; 60; 40; 20; 30; seagreen)\n"
     "AddRoundFrame(10; 60; 80; 50; 15; 15; 3; firebrick)\n"
     "AddOval(110; 60; 80; 50; 255 51 0 200)\nCloseDrawing()\n",
     CompareWith::kBoth},
    {"round-shapes",
     "OpenDrawing(200; 120)\nBackground(white)\n"
     "AddEllipse(10; 10; 80; 50; 1; black)\nAddArc(100; 10; 80; 50; 0; 270; 4; royalblue)\n"
     "AddSlice(10; 65; 50; 50; 30; 120; 0; orange)\n"
     "AddSlice(100; 65; 50; 50; 0; 240; 50; purple)\nCloseDrawing()\n",
     CompareWith::kBoth},
    {"lines-and-arrows",
     "OpenDrawing(200; 120)\nBackground(white)\n"
     "AddLine(10; 15; 190; 15; 3; darkgreen)\nAddArrow(10; 45; 190; 45; 2; black; ; end)\n"
     "AddArrow(10; 75; 190; 75; 1; red; ; begin + end; 10; 8)\n"
     "AddLine(10; 105; 190; 105; 3 4; #1f2d3d)\nCloseDrawing()\n",
     CompareWith::kBoth},
    {"point-lists",
     "OpenDrawing(200; 120)\nBackground(white)\n"
     "AddPolygon(xyxy; 10 110 50 20 90 110; steelblue)\n"
     "AddPolyline(xxyy; 100 120 140 160 110 30 100 40; 2; darkred)\n"
     "AddSmoothPolygon(xyxy; 110 110 140 60 190 100 160 115; lightgreen)\n"
     "AddSmoothPolyline(xyxy; 100 60 130 20 160 50 190 10; 2; navy)\nCloseDrawing()\n",
     CompareWith::kBoth},
    {"cubic-path",
     "OpenDrawing(200; 120)\nBackground(white)\n"
     "AddPath(2 20 110 3 40 20 5 90 0 130 60 190 110 1; gold; ; 2; black)\nCloseDrawing()\n",
     CompareWith::kBoth},
    {"quadratic-path",
     "OpenDrawing(200; 120)\nBackground(white)\n"
     "AddPath(2 10 110 4 100 -60 190 110 1; gold; ; 2; black)\nCloseDrawing()\n",
     CompareWith::kBoth},
    {"symbols",
     "OpenDrawing(200; 60)\nBackground(white)\n"
     "AddSymbol(20; 30; diamond; 20; ; red)\nAddSymbol(60; 30; hollowuptriangle; 20; 1; blue)\n"
     "AddSymbol(100; 30; circle; 20; ; green)\nAddSymbol(140; 30; plus; 20; 2; black)\n"
     "AddSymbol(180; 30; square; 20; ; orange)\nCloseDrawing()\n",
     CompareWith::kBoth},
    {"clips",
     "OpenDrawing(200; 120)\nBackground(white)\n"
     "AddClipOval(sect; 10; 10; 80; 100)\nAddRect(0; 0; 200; 60; tomato)\n"
     "AddRect(0; 60; 200; 60; teal)\nAddClipReset()\n"
     "AddClipRect(sect; 110; 20; 60; 60)\nAddOval(100; 10; 100; 100; navy)\nAddClipReset()\n"
     "CloseDrawing()\n",
     CompareWith::kBoth},
    {"translucent",
     "OpenDrawing(200; 120)\nBackground(white)\n"
     "AddRect(10; 10; 110; 70; 255 0 0 128)\nAddRect(60; 40; 110; 70; 0 0 255 100)\n"
     "AddLine(10; 110; 190; 10; 6; 0 128 0 90)\nCloseDrawing()\n",
     CompareWith::kBoth},
    // Gradients between near colours: the PNG blends gamma-corrected, SVG
    // and PDF linearly, which parts them by more than the tolerance only
    // where the ends are far apart.
    {"linear-gradient",
     "OpenDrawing(200; 120)\nBackground(white)\n"
     "AddRect(10; 10; 180; 45; 0 0 1 0 1 255 255 255 255 0 184 184 184 255 1)\n"
     "AddRect(10; 65; 180; 45; 0 0 0 1 1 40 80 160 255 0 70 120 200 255 1)\n"
     "CloseDrawing()\n",
     CompareWith::kBoth},
    {"radial-gradient",
     "OpenDrawing(200; 120)\nBackground(white)\n"
     "AddOval(20; 10; 160; 100; 0.5 0.5 0.5 0.5 0.5 1 250 250 250 255 0 190 190 190 255 1)\n"
     "CloseDrawing()\n",
     CompareWith::kBoth},
    {"hatch-and-texture",
     "OpenDrawing(200; 120)\nBackground(white)\n"
     "AddRect(10; 10; 85; 100; #3366cc; 6)\nAddRect(105; 10; 85; 100; 0 0 0; 70)\n"
     "CloseDrawing()\n",
     CompareWith::kBoth},
    {"shadows",
     "OpenDrawing(200; 120)\nBackground(white)\n"
     "AddPath(2 20 100 3 60 20 3 100 100 1; #3366cc; ; 1; #1f2d3d; ; 4 4)\n"
     "AddPath(2 120 30 3 180 30 3 180 100 3 120 100 1; #ffd700; ; 2 3; #1f2d3d; ; 5 5; gray)\n"
     "CloseDrawing()\n",
     CompareWith::kBoth},
    {"text-alignment",
     "OpenDrawing(240; 120)\nBackground(white)\n"
     "AddText(10; 10; \"Left\"; \"Liberation Sans\"; 16; plain; black; left; top)\n"
     "AddText(120; 50; \"Centre\"; \"Liberation Sans\"; 16; bold; darkblue; center; center)\n"
     "AddText(230; 110; \"Right\"; \"Liberation Sans\"; 16; italic; darkred; right; bottom)\n"
     "CloseDrawing()\n",
     CompareWith::kBoth},
    // Times is a standard font of the PDF, placed by its own widths.
    {"text-in-times",
     "OpenDrawing(240; 120)\nBackground(white)\n"
     "AddText(120; 30; \"Centred 1,234.56\"; \"Times\"; 18; plain; black; center; center)\n"
     "AddText(230; 110; \"Right Wavy\"; \"Times\"; 18; bold + italic; navy; right; bottom)\n"
     "CloseDrawing()\n",
     CompareWith::kBoth},
    {"text-rotated-and-shortened",
     "OpenDrawing(240; 140)\nBackground(white)\n"
     "AddText(60; 70; \"Turned\"; \"Liberation Sans\"; 16; bold; black; center; center; 90)\n"
     "AddText(150; 40; \"Slanted\"; \"Liberation Serif\"; 14; plain; gray; center; center; 30)\n"
     "AddText(100; 100; \"A long line that does not fit\"; \"Liberation Sans\"; 11; plain; "
     "black; left; top; 0; 120; 14; 3)\nCloseDrawing()\n",
     CompareWith::kBoth},
    {"picture",
     "OpenDrawing(200; 120)\nBackground(white)\n"
     "AddPicture(20; 10; 100; 100; file; \"coin.png\")\nCloseDrawing()\n",
     CompareWith::kBoth},
    // A picture on each wall of a chart with depth, clipped to the wall.
    {"wall-pictures",
     "OpenDrawing(240; 180)\nBackground(white)\nBarChart(; ; ; 60)\nChartData(10 20 30)\n"
     "AxisOptions(all; none)\nChartBackground(all; #eeeeee; ; 0.5; #777777)\n"
     "ChartBackgroundPict(all; file; \"coin.png\"; 5; crop)\nCloseDrawing()\n",
     CompareWith::kBoth},
};

}  // namespace Velarix::test
