// One axis drawn by itself through the SVG device, kept as a golden file,
// and axes of charts drawn by the command, kept as golden cases.
#include <gtest/gtest.h>

#include "axes/vxAxisItem.h"
#include "axes/vxAxisLabel.h"
#include "axes/vxAxisScaling.h"
#include "drawing/vxLayer.h"
#include "output/vxDeviceSVG.h"
#include "platform/vxTextCodec.h"
#include "script/vxAssign.h"
#include "script/vxFunctionIds.h"
#include "settings/vxUserSettings.h"
#include "support/vxGoldenSections.h"
#include "support/vxTestRun.h"

namespace Velarix::test {
namespace {

// A value axis up the left side of a plot of 200 by 200 at (60, 20), over
// data from 3 to 97, with minor marks and a title.
TEST(AxisGolden, ValueAxisDrawnAlone) {
    vxUserSettings settings(L"", L"", 1, 1);
    settings.setDefaults();
    vxAxisItem axis(&settings, 2);
    vxAssign title;
    title.setFunction(kAxisLabelText);
    title.addString(L"Sales in EUR");
    axis.getAxisLabel()->assignText(title);
    axis.getScaling()->setNumOfMinorIntervals(2);
    axis.getScaling()->setOrigNumOfMinorIntervals(2);
    const float plot[4] = {60, 20, 260, 220};
    axis.setUpVScaling(plot, 3, 97, false, false, false, 9);
    axis.setUpTickMarks(plot, plot[0]);
    axis.setUpLabels(settings.getFormatSettings());
    axis.placeTitle(plot);
    ASSERT_FALSE(axis.isError());
    EXPECT_EQ(axis.getScaling()->getMajorValues(), (std::vector<double>{0, 20, 40, 60, 80, 100}));

    const float clip[4] = {0, 0, 300, 240};
    vxLayer layer(40, 1, clip);
    ASSERT_TRUE(axis.addTo(layer));
    vxDeviceSVG device;
    device.setSize(300, 240);
    device.open();
    layer.draw(device);
    device.close();
    ASSERT_FALSE(device.isError());
    const std::string path = goldenPath("axes", "value-axis.svg");
    const std::string actual = vxToUtf8(device.getDocument());
    offerUpdate(path, actual);
    EXPECT_EQ(actual, readFile(path));
}

TEST(AxisGolden, ChartAxesByTheCommand) {
    checkDrawingGoldenFile("axes", "chart-axes.txt");
}

}  // namespace
}  // namespace Velarix::test
