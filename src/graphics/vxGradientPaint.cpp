#include "graphics/vxGradientPaint.h"

#include <algorithm>
#include <cmath>
#include <new>
#include <string>

#include "host/vxLog.h"
#include "script/vxAssign.h"

namespace Velarix {

namespace {

constexpr float kOffsetTolerance = 0.0001f;

// The spread code of a script number; one far outside the codes must not
// wrap round into one of them.
short spreadCode(float number) {
    if (!(number > 0.0f && number < 100.0f)) return 0;
    return static_cast<short>(std::lround(number));
}

}  // namespace

vxGradientPaint::vxGradientPaint(const wchar_t* name) : vxPaintOLD(name) {}

vxGradientPaint::~vxGradientPaint() = default;

template <class Test>
bool vxGradientPaint::isTrueForAll(Test test) const {
    return !colors.empty() && std::all_of(colors.begin(), colors.end(), test);
}

bool vxGradientPaint::isNone() const {
    return colors.empty() || isTrueForAll([](const vxColorOLD& c) { return c.isTransparent(); });
}

bool vxGradientPaint::isTranslucent() const {
    return isTrueForAll([](const vxColorOLD& c) { return c.isTranslucent(); });
}

bool vxGradientPaint::isOpaque() const {
    return isTrueForAll([](const vxColorOLD& c) { return c.isOpaque(); });
}

void vxGradientPaint::brighten(float factor) {
    for (vxColorOLD& c : colors) c.brighten(factor);
}

void vxGradientPaint::darken(float factor) {
    for (vxColorOLD& c : colors) c.darken(factor);
}

bool vxGradientPaint::insertColor(long position, const vxColorOLD& color, float offset) {
    try {
        colors.insert(colors.begin() + position, color);
        offsets.insert(offsets.begin() + position, std::clamp(offset, 0.0f, 1.0f));
    } catch (const std::bad_alloc&) {
        if (colors.size() > offsets.size()) colors.erase(colors.begin() + position);
        setError(vxErrRuntime::kOutOfMemory, where(L"addColor"));
        return false;
    }
    return true;
}

bool vxGradientPaint::addColor(const vxColorOLD& color, float offset) {
    return insertColor(getNumOfColors(), color, offset);
}

bool vxGradientPaint::addColor(short red, short green, short blue, float offset) {
    return addColor(red, green, blue, 255, offset);
}

bool vxGradientPaint::addColor(short red, short green, short blue, short alpha, float offset) {
    return addColor(vxColorOLD(red, green, blue, alpha), offset);
}

void vxGradientPaint::clearColors() {
    colors.clear();
    offsets.clear();
}

void vxGradientPaint::padStops() {
    if (colors.empty()) return;
    if (offsets.front() > kOffsetTolerance) insertColor(0, vxColorOLD(colors.front()), 0.0f);
    if (offsets.back() < 1.0f - kOffsetTolerance) addColor(vxColorOLD(colors.back()), 1.0f);
}

const vxColorOLD* vxGradientPaint::getColor(long index) const {
    if (index < 0 || index >= getNumOfColors()) return nullptr;
    return &colors[static_cast<size_t>(index)];
}

const vxColorOLD* vxGradientPaint::getFirstColor() const {
    return getColor(0);
}

const vxColorOLD* vxGradientPaint::getLastColor() const {
    return getColor(getNumOfColors() - 1);
}

float vxGradientPaint::getOffset(long index) const {
    if (index < 0 || index >= static_cast<long>(offsets.size())) return 0.0f;
    return offsets[static_cast<size_t>(index)];
}

float vxGradientPaint::getFirstOffset() const {
    return getOffset(0);
}

float vxGradientPaint::getLastOffset() const {
    return getOffset(static_cast<long>(offsets.size()) - 1);
}

std::wstring vxGradientPaint::stopText(long index) const {
    const vxColorOLD& c = colors[static_cast<size_t>(index)];
    return c.toDecimalText() + L" " + std::to_wstring(c.getAlpha()) + L" " +
           std::to_wstring(offsets[static_cast<size_t>(index)]);
}

float vxGradientPaint::getAverageAlpha() const {
    if (colors.empty()) return 0.0f;
    float sum = 0.0f;
    for (const vxColorOLD& c : colors) sum += c.getAlphaF();
    return sum / static_cast<float>(colors.size());
}

void vxGradientPaint::setSpread(short value) {
    spread = (value == kRepeat || value == kReflect) ? value : kPad;
}

bool vxGradientPaint::assign(vxAssign& assign, const vxUserSettings*) {
    const std::vector<float> numbers = assign.getFloatArray(0);
    const long count = static_cast<long>(numbers.size());
    const long leading = getNumOfLeadingNumbers();
    if (count >= leading && (count - leading) % kNumbersPerStop == 0) {
        setGeometry(numbers.data());
        setSpread(spreadCode(numbers[leading - 1]));
        assignStops(numbers);
    }
    skipArguments(assign);
    return !isError();
}

void vxGradientPaint::assignStops(const std::vector<float>& numbers) {
    clearColors();
    const size_t first = static_cast<size_t>(getNumOfLeadingNumbers());
    for (size_t i = first; i + kNumbersPerStop <= numbers.size(); i += kNumbersPerStop) {
        const float* stop = &numbers[i];
        if (!addColor(toComponent(stop[0]), toComponent(stop[1]), toComponent(stop[2]),
                      toComponent(stop[3]), stop[4])) {
            return;
        }
    }
    padStops();
}

void vxGradientPaint::resetFields() {
    clearColors();
    spread = kPad;
    useGammaCorrection = true;
}

void vxGradientPaint::copyFields(const vxAppearance& from) {
    const auto& gradient = static_cast<const vxGradientPaint&>(from);
    for (long i = 0; i < gradient.getNumOfColors(); ++i) {
        if (!addColor(*gradient.getColor(i), gradient.getOffset(i))) return;
    }
    spread = gradient.spread;
    useGammaCorrection = gradient.useGammaCorrection;
}

void vxGradientPaint::dumpFields(short depth, std::ostream& out) const {
    vxPaintOLD::dumpFields(depth, out);
    vxDumpLine(out, "short spread:  ", spread);
    vxDumpLine(out, "bool useGammaCorrection:  ", useGammaCorrection);
    vxDumpLine(out, "long numOfColors:  ", getNumOfColors());
    for (long i = 0; i < getNumOfColors(); ++i) {
        const std::string label = "color " + std::to_string(i) + ":  ";
        vxDumpLine(out, label.c_str(), stopText(i));
    }
}

}  // namespace Velarix
