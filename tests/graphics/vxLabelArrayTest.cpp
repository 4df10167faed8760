// A list of labels: a new label copies the last one, the bounds take all
// labels, and all shadows draw before the first body.
#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <vector>

#include "graphics/vxBasicPaint.h"
#include "graphics/vxFontOLD.h"
#include "graphics/vxGObjectAppearanceOLD.h"
#include "graphics/vxLabel.h"
#include "graphics/vxLabelArray.h"
#include "graphics/vxPath2DOLD.h"
#include "graphics/vxText.h"
#include "support/vxRecordingDevice.h"

namespace Velarix {
namespace {

TEST(vxLabelArray, AddLabelCopiesTheLastLabel) {
    vxLabelArray labels;
    vxLabel* first = labels.addLabel();
    ASSERT_NE(first, nullptr);
    EXPECT_TRUE(first->getText()->getText().empty());
    first->getText()->setText(L"Q1");
    first->getText()->setFontSize(14.0f);
    first->setMargins(1, 2, 3, 4);
    ASSERT_TRUE(first->setBackgroundShape(vxLabel::kEllipse));

    vxLabel* second = labels.addLabel();
    ASSERT_NE(second, first);
    EXPECT_EQ(second->getText()->getText(), L"Q1");
    EXPECT_FLOAT_EQ(second->getText()->getFont()->getSize(), 14.0f);
    EXPECT_EQ(second->getBackgroundShape(), vxLabel::kEllipse);
    second->getText()->setText(L"Q2");
    EXPECT_EQ(labels.getLabel(0)->getText()->getText(), L"Q1");

    vxLabel given;
    ASSERT_NE(labels.addLabel(given), nullptr);
    EXPECT_FALSE(labels.getLabel(2)->hasBackground());
    EXPECT_EQ(labels.getLabel(3), nullptr);
    std::ostringstream out;
    labels.dump(1, out);
    EXPECT_NE(out.str().find("Num of labels: 3"), std::string::npos) << out.str();
}

TEST(vxLabelArray, DrawsAllShadowsFirst) {
    vxLabelArray labels;
    vxLabel* label = labels.addLabel();
    label->getText()->setText(L"x");
    ASSERT_TRUE(label->setBackgroundShape(vxLabel::kRectangle));
    label->getBackground()->getAppearance()->setFillPaint(vxBasicPaint(200, 200, 200));
    label->getBackground()->getAppearance()->shadowPart();
    labels.addLabel();
    test::vxRecordingDevice device;
    labels.draw(device);
    EXPECT_EQ(device.calls, (std::vector<std::string>{"fill path shadow", "fill path shadow",
                                                      "fill path", "text", "fill path", "text"}));
}

}  // namespace
}  // namespace Velarix
