#include "data/vxDataSorter.h"

#include <algorithm>
#include <array>
#include <cstring>

namespace Velarix {

namespace {

constexpr int kDigitBits = 11;
constexpr int kNumOfDigits = 6;  // 66 bits cover the 64 of a key
constexpr std::size_t kRadix = std::size_t{1} << kDigitBits;
constexpr std::uint64_t kSignBit = std::uint64_t{1} << 63;

using Histogram = std::array<std::size_t, kRadix>;

inline std::size_t digitOf(std::uint64_t key, int digit) {
    return static_cast<std::size_t>(key >> (digit * kDigitBits)) & (kRadix - 1);
}

// The columns of doubles hold keys during the passes; they are read and
// written as bits only.
inline std::uint64_t loadBits(const double* at) {
    std::uint64_t bits;
    std::memcpy(&bits, at, sizeof bits);
    return bits;
}

inline void storeBits(double* at, std::uint64_t bits) {
    std::memcpy(at, &bits, sizeof bits);
}

// Counts the digits of every key, and keeps the keys.
std::vector<Histogram> countDigits(const std::vector<double>& values,
                                   std::vector<std::uint64_t>& keys) {
    std::vector<Histogram> histograms(kNumOfDigits, Histogram{});
    for (std::size_t i = 0; i < values.size(); ++i) {
        std::uint64_t key = vxDataSorter::toKey(values[i]);
        keys[i] = key;
        for (int d = 0; d < kNumOfDigits; ++d) ++histograms[d][digitOf(key, d)];
    }
    return histograms;
}

// Turns the counts into the start of each bucket. False when all n keys
// share the digit, which then needs no pass.
bool toOffsets(Histogram& histogram, std::size_t n) {
    std::size_t start = 0;
    for (std::size_t& count : histogram) {
        if (count == n) return false;
        std::size_t c = count;
        count = start;
        start += c;
    }
    return true;
}

void scatterToColumn(const std::vector<std::uint64_t>& keys, double* column, Histogram& next,
                     int digit) {
    for (std::uint64_t key : keys) storeBits(column + next[digitOf(key, digit)]++, key);
}

void scatterToKeys(const double* column, std::vector<std::uint64_t>& keys, Histogram& next,
                   int digit) {
    for (std::size_t i = 0; i < keys.size(); ++i) {
        std::uint64_t key = loadBits(column + i);
        keys[next[digitOf(key, digit)]++] = key;
    }
}

}  // namespace

std::uint64_t vxDataSorter::toKey(double value) {
    std::uint64_t bits;
    std::memcpy(&bits, &value, sizeof bits);
    // Negative numbers grow downwards in their bits: all of them flip.
    return (bits & kSignBit) ? ~bits : (bits | kSignBit);
}

double vxDataSorter::fromKey(std::uint64_t key) {
    std::uint64_t bits = (key & kSignBit) ? (key & ~kSignBit) : ~key;
    double value;
    std::memcpy(&value, &bits, sizeof value);
    return value;
}

void vxDataSorter::sortAscending(std::vector<double>& values) {
    const std::size_t n = values.size();
    if (n < kMinRadixLength) {
        std::sort(values.begin(), values.end(),
                  [](double a, double b) { return toKey(a) < toKey(b); });
        return;
    }
    // Least significant digit first; the keys move between the scratch
    // column and the values' own storage.
    std::vector<std::uint64_t> keys(n);
    std::vector<Histogram> histograms = countDigits(values, keys);
    double* column = values.data();
    bool inScratch = true;
    for (int d = 0; d < kNumOfDigits; ++d) {
        if (!toOffsets(histograms[d], n)) continue;
        if (inScratch) {
            scatterToColumn(keys, column, histograms[d], d);
        } else {
            scatterToKeys(column, keys, histograms[d], d);
        }
        inScratch = !inScratch;
    }
    for (std::size_t i = 0; i < n; ++i) {
        values[i] = fromKey(inScratch ? keys[i] : loadBits(column + i));
    }
}

}  // namespace Velarix
