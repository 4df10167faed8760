#include "platform/vxPaletteMapper.h"

#include <algorithm>
#include <climits>

namespace Velarix {

namespace {

constexpr int kCacheBits = 16;
constexpr uint32_t kFilled = 0x1000000;

uint32_t cacheSlot(uint32_t rgb) {
    return (rgb * 2654435761u) >> (32 - kCacheBits);
}

}  // namespace

vxPaletteMapper::vxPaletteMapper(const std::vector<uint32_t>& palette)
    : mCacheKeys(size_t(1) << kCacheBits, 0), mCacheIndex(size_t(1) << kCacheBits, 0) {
    for (size_t i = 0; i < palette.size() && i < 256; ++i) {
        uint32_t c = palette[i];
        mByGreen.push_back({int(c >> 16 & 0xFF), int(c >> 8 & 0xFF), int(c & 0xFF),
                            static_cast<unsigned char>(i)});
    }
    std::stable_sort(mByGreen.begin(), mByGreen.end(),
                     [](const Entry& a, const Entry& b) { return a.green < b.green; });
}

unsigned char vxPaletteMapper::nearest(uint32_t rgb) {
    rgb &= 0xFFFFFF;
    uint32_t slot = cacheSlot(rgb);
    if (mCacheKeys[slot] != (rgb | kFilled)) {
        mCacheKeys[slot] = rgb | kFilled;
        mCacheIndex[slot] = search(rgb);
    }
    return mCacheIndex[slot];
}

// Walks outward from the entries of the nearest green and stops on each side
// once the green difference alone is no better than the best match.
unsigned char vxPaletteMapper::search(uint32_t rgb) const {
    const int red = int(rgb >> 16), green = int(rgb >> 8 & 0xFF), blue = int(rgb & 0xFF);
    auto start = std::lower_bound(mByGreen.begin(), mByGreen.end(), green,
                                  [](const Entry& e, int g) { return e.green < g; });
    int best = INT_MAX;
    unsigned char bestIndex = 0;
    auto consider = [&](const Entry& e) {
        int dr = e.red - red, dg = e.green - green, db = e.blue - blue;
        int d = dr * dr + dg * dg + db * db;
        if (d < best || (d == best && e.index < bestIndex)) {
            best = d;
            bestIndex = e.index;
        }
    };
    for (auto it = start; it != mByGreen.end(); ++it) {
        int dg = it->green - green;
        if (dg * dg > best) break;
        consider(*it);
    }
    for (auto it = start; it != mByGreen.begin();) {
        --it;
        int dg = green - it->green;
        if (dg * dg > best) break;
        consider(*it);
    }
    return bestIndex;
}

}  // namespace Velarix
