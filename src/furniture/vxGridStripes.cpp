#include "furniture/vxGridStripes.h"

#include <algorithm>
#include <cmath>

#include "graphics/vxBasicPaint.h"
#include "graphics/vxGObjectAppearanceOLD.h"
#include "graphics/vxGObjectOLD.h"
#include "host/vxLog.h"
#include "script/vxAssign.h"

namespace Velarix {

namespace {

// Ticks closer than this make no piece of a minor stripe.
constexpr float kNoSpan = 0.0001f;

}  // namespace

vxGridStripes::vxGridStripes(vxUserSettings* owner, short planeIndex, short direction, short order)
    : vxGridItem(L"vxGridStripes", owner, planeIndex, direction, order) {
    setDefaults();
}

vxGridStripes::~vxGridStripes() = default;

void vxGridStripes::setDefaults() {
    if (setDefaultPaints(fillPaints)) fillPatterns.assign(1, 0);
}

bool vxGridStripes::assignColors(vxAssign& a) {
    if (!readColors(a, fillPaints)) return false;
    return !fillPaints.empty() || setDefaultPaints(fillPaints);
}

bool vxGridStripes::assignPatterns(vxAssign& a) {
    if (!readPatterns(a, fillPatterns)) return false;
    if (fillPatterns.empty()) fillPatterns.assign(1, 0);
    return true;
}

std::unique_ptr<vxBasicPaint> vxGridStripes::getFillPaint(long index) const {
    return paintAt(fillPaints, fillPatterns, index);
}

std::vector<vxGridStripes::Span> vxGridStripes::stripeSpans(const std::vector<float>& major,
                                                            const std::vector<float>& minor,
                                                            short order) {
    if (order == kMinor) return minorSpans(major, minor);
    std::vector<Span> spans;
    for (size_t k = 0; 2 * k + 1 < major.size(); ++k) {
        spans.push_back({major[2 * k], major[2 * k + 1]});
    }
    return spans;
}

// The ticks of both orders in the order of the major ones; the pieces
// count anew from each major tick. An axis without minor ticks has no
// minor stripes.
std::vector<vxGridStripes::Span> vxGridStripes::minorSpans(const std::vector<float>& major,
                                                           const std::vector<float>& minor) {
    struct Mark {
        float at;
        bool isMajor;
    };
    std::vector<Span> spans;
    if (major.size() < 2 || minor.empty()) return spans;
    const bool down = major.front() > major.back();
    std::vector<Mark> marks;
    marks.reserve(major.size() + minor.size());
    for (float m : major) marks.push_back({m, true});
    for (float m : minor) {
        if (std::isfinite(m)) marks.push_back({m, false});
    }
    std::stable_sort(marks.begin(), marks.end(), [down](const Mark& a, const Mark& b) {
        return down ? a.at > b.at : a.at < b.at;
    });
    size_t majorsSeen = 0;
    long piece = 0;
    for (size_t i = 0; i + 1 < marks.size(); ++i) {
        if (marks[i].isMajor) {
            ++majorsSeen;
            piece = 0;
        }
        if (majorsSeen == 0 || majorsSeen == major.size()) continue;
        if (std::fabs(marks[i + 1].at - marks[i].at) <= kNoSpan) continue;
        if (piece++ % 2 == 0) spans.push_back({marks[i].at, marks[i + 1].at});
    }
    return spans;
}

std::array<long, 3> vxGridStripes::lookKey(long index) const {
    const auto at = [index](size_t size) { return size ? long(size_t(index) % size) : 0L; };
    return {0L, at(fillPaints.size()), at(fillPatterns.size())};
}

bool vxGridStripes::applyLook(vxGObjectOLD& shape, long index) {
    vxGObjectAppearanceOLD* look = shape.getAppearance();
    const std::unique_ptr<vxBasicPaint> paint = getFillPaint(index);
    if (look && paint && look->setFillPaint(*paint)) return true;
    if (look && look->isError()) return takeError(*look);
    setError(vxErrRuntime::kOutOfMemory, where(L"add"));
    return false;
}

void vxGridStripes::dump(short depth, std::ostream& out) const {
    if (depth <= 0) return;
    vxDumpHeader(out, "vxGridStripes");
    vxGridItem::dump(depth, out);
    vxDumpLine(out, "long numOfFillPaints: ", getNumOfFillPaints());
    vxDumpLine(out, "vector<short> fillPatterns: ", fillPatterns);
    vxDumpEnd(out);
}

}  // namespace Velarix
