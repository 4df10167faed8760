#include "platform/vxTexturePictures.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

#include "output/vxBitmap.h"
#include "platform/vxTextureColors.h"

namespace Velarix {

namespace {

constexpr double kPi = 3.14159265358979323846;
constexpr int kSize = static_cast<int>(vxTexturePictures::kSize);

enum Family { kWood, kMarble, kWeave, kBricks, kDots, kNoise, kChecks, kWaves };

uint32_t hash(uint32_t x, uint32_t y, uint32_t seed) {
    uint32_t h = x * 374761393u + y * 668265263u + seed * 2246822519u;
    h = (h ^ (h >> 13)) * 1274126177u;
    return h ^ (h >> 16);
}

// A hash as a number from 0 to 1.
double unit(uint32_t x, uint32_t y, uint32_t seed) {
    return (hash(x, y, seed) & 0xFFFFu) / 65535.0;
}

double smooth(double t) {
    return t * t * (3.0 - 2.0 * t);
}

// Value noise on a lattice of periodX by periodY cells across the picture;
// the lattice wraps, so the noise tiles.
double noise(double x, double y, int periodX, int periodY, uint32_t seed) {
    const double u = x * periodX / kSize, v = y * periodY / kSize;
    const int i = static_cast<int>(std::floor(u)), j = static_cast<int>(std::floor(v));
    const double fu = smooth(u - i), fv = smooth(v - j);
    auto at = [&](int a, int b) {
        return unit(static_cast<uint32_t>((a % periodX + periodX) % periodX),
                    static_cast<uint32_t>((b % periodY + periodY) % periodY), seed);
    };
    const double top = at(i, j) + (at(i + 1, j) - at(i, j)) * fu;
    const double bottom = at(i, j + 1) + (at(i + 1, j + 1) - at(i, j + 1)) * fu;
    return top + (bottom - top) * fv;
}

// Octaves of noise, each twice as fine and half as strong; 0 to 1.
double noise(double x, double y, int period, uint32_t seed) {
    return noise(x, y, period, period, seed);
}

double fractal(double x, double y, int period, int octaves, uint32_t seed) {
    double sum = 0.0, weight = 1.0, total = 0.0;
    for (int o = 0; o < octaves; ++o) {
        sum += noise(x, y, period << o, seed + static_cast<uint32_t>(o)) * weight;
        total += weight;
        weight *= 0.5;
    }
    return sum / total;
}

double wave(double turns) {
    return 0.5 + 0.5 * std::sin(2.0 * kPi * turns);
}

// Each family gives a shade from 0 (dark colour) to 1 (light colour).
// Frequencies are whole numbers of cycles across the picture and cell
// sizes divide it, which keeps every picture seamless.

double wood(int v, int x, int y, uint32_t seed) {
    if (v % 2 == 1) std::swap(x, y);
    const int rings = 2 + v / 2;
    const double warp = fractal(x, y, 2, 2, seed) * 1.5;
    const double ring = std::pow(wave(static_cast<double>(y) * rings / kSize + warp), 3.0);
    // Fine streaks along the rings.
    const double grain = noise(x, y, 2, 16, seed + 7);
    return 0.15 + 0.6 * (1.0 - ring) + 0.25 * grain;
}

double marble(int v, int x, int y, uint32_t seed) {
    const int kx = 1 + v % 2, ky = v / 2 % 2;
    const double turbulence = fractal(x, y, 2, 3, seed) * (2.0 + v / 4);
    const double phase = static_cast<double>(x * kx + y * ky) / kSize + turbulence;
    const double vein = std::fabs(std::sin(kPi * phase));
    return std::pow(vein, 0.35 + 0.1 * (v % 3));
}

double weave(int v, int x, int y, uint32_t seed) {
    const int cell = v < 4 ? 8 : 4;
    const int i = x / cell, j = y / cell;
    // Plain weave alternates every cell; twill shifts by one each row.
    const bool across = v % 2 == 0 ? (i + j) % 2 == 0 : (i + j) % 4 < 2;
    const double along = (across ? y % cell : x % cell) + 0.5;
    const double thread = std::sin(kPi * along / cell);
    const double fibre = 0.1 * noise(x, y, 16, seed);
    return std::clamp((across ? 0.95 : 0.7) * thread + fibre, 0.0, 1.0);
}

double bricks(int v, int x, int y, uint32_t seed) {
    static const int widths[] = {16, 16, 8, 32, 16, 8, 32, 16};
    static const int heights[] = {8, 4, 4, 8, 16, 8, 16, 8};
    const int w = widths[v], h = heights[v];
    const int mortar = v % 3 == 2 ? 2 : 1;
    const int row = y / h;
    const int shifted = (x + (row % 2) * (w / 2)) % kSize;
    if (y % h < mortar || shifted % w < mortar) return 1.0;
    const int brick = shifted / w;
    const double tone = unit(static_cast<uint32_t>(brick), static_cast<uint32_t>(row), seed);
    return 0.05 + 0.25 * tone + 0.12 * noise(x, y, 8, seed + 3);
}

double dots(int v, int x, int y) {
    const int spacing = v < 4 ? 8 : 16;
    const double radius = spacing * (0.2 + 0.05 * (v % 4));
    const int row = y / spacing;
    const int shift = (v % 2 == 1 && row % 2 == 1) ? spacing / 2 : 0;
    const double cx = ((x + shift) % spacing) + 0.5 - spacing * 0.5;
    const double cy = (y % spacing) + 0.5 - spacing * 0.5;
    return std::clamp(std::hypot(cx, cy) - radius + 0.5, 0.0, 1.0);
}

double speckle(int v, int x, int y, uint32_t seed) {
    static const int periods[] = {4, 8, 2, 4, 8, 16, 2, 4};
    const double value = fractal(x, y, periods[v], 3, seed);
    if (v >= 6)
        return unit(static_cast<uint32_t>(x), static_cast<uint32_t>(y), seed) < 0.15 ? 0.0 : value;
    return value;
}

double checks(int v, int x, int y) {
    const int cell = v % 3 == 0 ? 8 : (v % 3 == 1 ? 4 : 16);
    if (v >= 4) {
        // Diamonds: a check turned by 45 degrees.
        const int half = cell;
        const int dx = std::abs((x % (2 * half)) - half);
        const int dy = std::abs((y % (2 * half)) - half);
        return dx + dy < half ? 0.1 : 0.9;
    }
    const bool dark = (x / cell + y / cell) % 2 == 0;
    // A light bevel along the top and left edge of each check.
    const bool edge = x % cell == 0 || y % cell == 0;
    return (dark ? 0.1 : 0.85) + (edge ? 0.15 : 0.0);
}

double waves(int v, int x, int y) {
    const int period = v < 4 ? 8 : 16;
    if (v % 2 == 0) {
        // Diagonal stripes, up or down by the variant.
        const int d = (v % 4 == 0) ? x + y : x + kSize - y;
        return wave(static_cast<double>(d) / period);
    }
    const int cycles = 1 + v / 4;
    const double offset = 2.5 * std::sin(2.0 * kPi * cycles * x / kSize);
    return wave((y + offset) / period);
}

double shade(int index, int x, int y) {
    const int family = index / 8, variant = index % 8;
    const uint32_t seed = static_cast<uint32_t>(index + 1) * 7919u;
    switch (family) {
        case kWood:
            return wood(variant, x, y, seed);
        case kMarble:
            return marble(variant, x, y, seed);
        case kWeave:
            return weave(variant, x, y, seed);
        case kBricks:
            return bricks(variant, x, y, seed);
        case kDots:
            return dots(variant, x, y);
        case kNoise:
            return speckle(variant, x, y, seed);
        case kChecks:
            return checks(variant, x, y);
        default:
            return waves(variant, x, y);
    }
}

uint8_t mix(uint8_t dark, uint8_t light, double t) {
    return static_cast<uint8_t>(std::lround(dark + (light - dark) * std::clamp(t, 0.0, 1.0)));
}

}  // namespace

bool vxTexturePictures::make(short patternIndex, vxBitmap& bitmap) {
    bitmap.clear();
    if (patternIndex < kFirstIndex || patternIndex > kLastIndex) return false;
    if (!bitmap.allocateMemory(kSize, kSize)) return false;
    const int index = patternIndex - kFirstIndex;
    const vxTextureColors& colors = kTextureColors[index];
    for (int y = 0; y < kSize; ++y) {
        for (int x = 0; x < kSize; ++x) {
            const double t = shade(index, x, y);
            bitmap.setPixel(x, y, mix(colors.dark.red, colors.light.red, t),
                            mix(colors.dark.green, colors.light.green, t),
                            mix(colors.dark.blue, colors.light.blue, t));
        }
    }
    return true;
}

}  // namespace Velarix
