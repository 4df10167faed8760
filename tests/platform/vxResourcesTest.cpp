#include "platform/vxResources.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <set>
#include <vector>

#include "graphics/vxLinearGradient.h"
#include "graphics/vxRadialGradient.h"
#include "output/vxBitmap.h"
#include "platform/vxTexturePictures.h"

namespace Velarix {
namespace {

constexpr long kBase = 23436;

std::vector<uint32_t> pixelsOf(const vxBitmap& bitmap) {
    const uint32_t* data = bitmap.getData();
    return std::vector<uint32_t>(data, data + bitmap.getWidth() * bitmap.getHeight());
}

TEST(vxResources, NumbersAndKinds) {
    EXPECT_EQ(vxResources::calculateResourceID(3), 23300);
    EXPECT_EQ(vxResources::calculateResourceID(64), 23300);
    EXPECT_EQ(vxResources::calculateResourceID(65), kBase + 65);
    EXPECT_EQ(vxResources::calculateResourceID(128), kBase + 128);
    EXPECT_EQ(vxResources::calculateResourceID(1), kBase + 1);

    EXPECT_TRUE(vxResourceExists(23300));
    for (long code : {1L, 32L, 33L, 42L, 65L, 128L}) EXPECT_TRUE(vxResourceExists(kBase + code));
    // Hatch codes have no resource of their own; nothing lies around.
    for (long id : {kBase + 43, kBase + 64, kBase, kBase + 129, 23299L, 0L, -23300L}) {
        EXPECT_FALSE(vxResourceExists(id)) << id;
    }

    EXPECT_EQ(vxResources::getKind(1), 2);
    EXPECT_EQ(vxResources::getKind(32), 2);
    EXPECT_EQ(vxResources::getKind(33), 3);
    EXPECT_EQ(vxResources::getKind(42), 3);
    EXPECT_EQ(vxResources::getKind(43), 0);
    EXPECT_EQ(vxResources::getKind(65), 0);
    EXPECT_EQ(vxResources::getKind(0), 0);
    EXPECT_EQ(vxResources::getIndexCode(kBase + 40), 40);
    EXPECT_EQ(vxResources::getIndexCode(23300), 0);
}

TEST(vxResources, GradientsAreTwoStopsWhiteToGreyFirst) {
    const auto first = vxResources::makeGradient(kBase + 1);
    ASSERT_NE(first, nullptr);
    ASSERT_EQ(first->getType(), vxPaintOLD::kLinearGradient);
    ASSERT_EQ(first->getNumOfColors(), 2);
    EXPECT_EQ(first->getColor(0)->toHashText(), L"#ffffff");
    EXPECT_EQ(first->getColor(1)->toHashText(), L"#b8b8b8");
    EXPECT_FLOAT_EQ(first->getOffset(0), 0.0f);
    EXPECT_FLOAT_EQ(first->getOffset(1), 1.0f);
    const auto& linear = static_cast<const vxLinearGradient&>(*first);
    EXPECT_FLOAT_EQ(linear.getX1(), 0.0f);
    EXPECT_FLOAT_EQ(linear.getX2(), 1.0f);

    const auto radial = vxResources::makeGradient(kBase + 33);
    ASSERT_NE(radial, nullptr);
    ASSERT_EQ(radial->getType(), vxPaintOLD::kRadialGradient);
    const auto& r = static_cast<const vxRadialGradient&>(*radial);
    EXPECT_FLOAT_EQ(r.getCX(), 0.5f);
    EXPECT_FLOAT_EQ(r.getCY(), 0.5f);
    EXPECT_FLOAT_EQ(r.getRadius(), 0.5f);
    EXPECT_EQ(radial->getColor(0)->toHashText(), L"#ffffff");

    // Each of the 42 is a two-stop gradient of its kind, and no two alike.
    std::set<std::vector<float>> seen;
    for (long code = 1; code <= 42; ++code) {
        const auto g = vxResources::makeGradient(kBase + code);
        ASSERT_NE(g, nullptr) << code;
        EXPECT_EQ(g->getType(), vxResources::getKind(static_cast<short>(code)));
        EXPECT_EQ(g->getNumOfColors(), 2);
        std::vector<float> key = {static_cast<float>(g->getSpread()), g->getRed(),
                                  g->getLastColor()->getRedF(), g->getLastColor()->getBlueF()};
        if (g->getType() == vxPaintOLD::kLinearGradient) {
            const auto& l = static_cast<const vxLinearGradient&>(*g);
            key.insert(key.end(), {1, l.getX1(), l.getY1(), l.getX2(), l.getY2()});
        } else {
            const auto& c = static_cast<const vxRadialGradient&>(*g);
            key.insert(key.end(), {2, c.getCX(), c.getCY(), c.getRadius(), c.getFX(), c.getFY()});
        }
        EXPECT_TRUE(seen.insert(key).second) << "gradient " << code << " repeats another";
    }
    EXPECT_EQ(vxResources::makeGradient(kBase + 65), nullptr);
    EXPECT_EQ(vxResources::makeGradient(23300), nullptr);
}

TEST(vxResources, TexturePicturesAreDistinctDeterministicAndOpaque) {
    std::set<std::vector<uint32_t>> seen;
    for (short index = 65; index <= 128; ++index) {
        vxBitmap first, second;
        ASSERT_TRUE(vxResources::makePicture(kBase + index, first)) << index;
        ASSERT_TRUE(vxTexturePictures::make(index, second));
        EXPECT_EQ(first.getWidth(), 32);
        EXPECT_EQ(first.getHeight(), 32);
        EXPECT_EQ(pixelsOf(first), pixelsOf(second)) << index;
        EXPECT_TRUE(seen.insert(pixelsOf(first)).second) << "texture " << index << " repeats";
        std::set<uint32_t> colors;
        for (uint32_t word : pixelsOf(first)) {
            EXPECT_EQ(word >> 24, 0xFFu);
            colors.insert(word);
        }
        EXPECT_GT(colors.size(), 1u) << "texture " << index << " is flat";
    }
    vxBitmap none;
    EXPECT_FALSE(vxTexturePictures::make(64, none));
    EXPECT_FALSE(vxResources::makePicture(kBase + 5, none));  // a gradient
    EXPECT_TRUE(none.isEmpty());
    EXPECT_FALSE(none.isError());
}

// A texture repeats without a seam: the step from the last column to the
// first is no larger than the largest step inside the picture.
TEST(vxResources, TexturePicturesTileWithoutSeams) {
    auto step = [](uint32_t a, uint32_t b) {
        int most = 0;
        for (int shift = 0; shift < 24; shift += 8) {
            most = std::max(most, std::abs(static_cast<int>((a >> shift) & 0xFF) -
                                           static_cast<int>((b >> shift) & 0xFF)));
        }
        return most;
    };
    for (short index = 65; index <= 128; ++index) {
        vxBitmap t;
        ASSERT_TRUE(vxTexturePictures::make(index, t));
        int inner = 0, seam = 0;
        for (long i = 0; i < 32; ++i) {
            for (long j = 0; j + 1 < 32; ++j) {
                inner = std::max({inner, step(t.getPixel(j, i), t.getPixel(j + 1, i)),
                                  step(t.getPixel(i, j), t.getPixel(i, j + 1))});
            }
            seam = std::max({seam, step(t.getPixel(31, i), t.getPixel(0, i)),
                             step(t.getPixel(i, 31), t.getPixel(i, 0))});
        }
        EXPECT_LE(seam, inner) << "texture " << index;
    }
}

TEST(vxResources, HatchPictureIsTheMediumGreyHatch) {
    vxBitmap hatch;
    ASSERT_TRUE(vxResources::makePicture(23300, hatch));
    ASSERT_EQ(hatch.getWidth(), 8);
    EXPECT_EQ(hatch.getPixel(0, 0), 0xFFFFFFFFu);
    EXPECT_EQ(hatch.getPixel(1, 0), 0xFF000000u);
    EXPECT_EQ(hatch.getPixel(0, 1), 0xFF000000u);
    EXPECT_EQ(vxResources::getPictureSize(23300), 8);
    EXPECT_EQ(vxResources::getPictureSize(kBase + 70), 32);
}

}  // namespace
}  // namespace Velarix
