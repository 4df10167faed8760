// Clips: which clip a device is given, and how moving a clip moves it.
#include <gtest/gtest.h>

#include "graphics/vxClip2D.h"
#include "graphics/vxPath2DOLD.h"
#include "graphics/vxPathTestSupport.h"
#include "output/vxSVGTestSupport.h"
#include "support/vxRecordingDevice.h"

namespace Velarix::test {
namespace {

// Records the rectangle and mode of a clip as well.
class ClipRecorder : public vxRecordingDevice {
public:
    void setClipRegion(float x, float y, float w, float h, short m) override {
        vxRecordingDevice::setClipRegion(x, y, w, h, m);
        rect = {x, y, w, h};
        mode = m;
    }
    void setClipRegion(const vxVerbs& v, const vxPoints& x, const vxPoints& y, const float b[4],
                       short m) override {
        vxRecordingDevice::setClipRegion(v, x, y, b, m);
        verbs = v;
        mode = m;
    }
    using vxRecordingDevice::setClipRegion;

    std::vector<float> rect;
    vxVerbs verbs;
    short mode = -1;
};

TEST(vxClip2D, RectanglePathOrReset) {
    vxClip2D clip(nullptr, vxClip2D::kExclude);
    EXPECT_EQ(clip.getType(), kTypeClip);
    ClipRecorder device;
    clip.draw(device);
    EXPECT_EQ(device.calls, (std::vector<std::string>{"resetClip"}));

    clip.setRect(10, 20, 110, 70);
    clip.draw(device);
    EXPECT_EQ(device.rect, (std::vector<float>{10, 20, 100, 50}));
    EXPECT_EQ(device.mode, vxClip2D::kExclude);

    clip.createPath()->addOval(0, 0, 10, 10);
    clip.setMode(vxClip2D::kUnion);
    clip.draw(device);
    EXPECT_EQ(device.verbs, (Verbs{2, 5, 5, 5, 5, 1}));
    EXPECT_EQ(device.mode, vxClip2D::kUnion);
    EXPECT_EQ(device.calls, (std::vector<std::string>{"resetClip", "clip", "clipPath"}));
    EXPECT_EQ(clip.getRect(), nullptr);
}

TEST(vxClip2D, MovingTheClipMovesItsShape) {
    vxClip2D clip;
    clip.setRect(10, 20, 110, 70);
    clip.shift(5.0f, 0.0f);
    clip.flip(2, 0, 0);
    EXPECT_TRUE(hasBounds(clip, {15, -70, 115, -20}));
    auto device = openDevice();
    clip.draw(*device);
    EXPECT_EQ(bodyOf(*device),
              "<defs>\n"
              "<clipPath id=\"clipPath1\">\n"
              "\t<rect id=\"rect1\"\n"
              "\t\tx=\"15\" y=\"-70\" width=\"100\" height=\"50\"/>\n"
              "</clipPath>\n"
              "</defs>\n");

    // A turned rectangle is no longer a rectangle to the device.
    clip.rotate(0.5f);
    ClipRecorder recorder;
    clip.draw(recorder);
    EXPECT_EQ(recorder.verbs, (Verbs{2, 3, 3, 3, 1}));
    EXPECT_TRUE(recorder.rect.empty());
}

TEST(vxClip2D, CopyTakesModeAndShape) {
    vxClip2D path(nullptr, vxClip2D::kIntersect), rect;
    vxPath2DOLD triangle;
    triangle.addPolygon({0, 10, 5}, {0, 0, 8}, true);
    path.setPath(triangle);
    rect.setRect(1, 2, 3, 4);

    vxClip2D copy;
    copy.copy(&path);
    EXPECT_EQ(copy.getMode(), vxClip2D::kIntersect);
    ASSERT_NE(copy.getPath(), nullptr);
    EXPECT_EQ(copy.getPath()->getVerbs(), triangle.getVerbs());
    copy.copy(&rect);
    EXPECT_EQ(copy.getPath(), nullptr);
    EXPECT_TRUE(hasBounds(copy, {1, 2, 3, 4}));
    copy.copy(nullptr);
    EXPECT_FALSE(copy.hasShape());
    EXPECT_EQ(copy.getMode(), vxClip2D::kReplace);
}

}  // namespace
}  // namespace Velarix::test
