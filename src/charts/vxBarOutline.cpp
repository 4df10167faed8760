// Each cap is drawn in the frame of its own end (vxBarCapTable.h) and
// taken onto the drawing by that end's frame: the start cap from the down
// side to the up side, then the end cap, mirrored, from the up side back to
// the down side, and the close runs down the down side to the start.
#include "charts/vxBarOutline.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <new>

#include "charts/vxBarCapTable.h"
#include "graphics/vxPath2DOLD.h"
#include "settings/vxErrorCodes.h"
#include "styles/vxBarStyle.h"

namespace Velarix {

namespace {

constexpr float kQuarterTurn = 1.5707964f;
// A cap below this size is drawn straight.
constexpr float kNoCap = 0.001f;
// Points this close count as one, as they do for the path.
constexpr float kSamePoint = 0.001f;

// Clock positions on the drawing, as the path's arcs count their angles.
enum Clock : short { kTwelve = 0, kThree = 1, kSix = 2, kNine = 3 };

// One end of a bar on the drawing. Across the bar runs along x when
// `acrossX`, else along y; along the bar the other way.
struct Frame {
    bool acrossX;
    float downSide, upSide;  // the sides, across the bar
    float toUp;              // 1 when the up side has the larger coordinate, else -1
    float edge;              // the end's edge, along the bar
    float inward;            // 1 when going into the bar makes the coordinate larger, else -1

    // The other end of the bar: the same sides, the edge at `farEdge`,
    // going in the other way.
    Frame mirrored(float farEdge) const {
        Frame far = *this;
        far.edge = farEdge;
        far.inward = -inward;
        return far;
    }
};

// The frames of a bar's base and of its far end, from the normalised
// rectangle l, t, r, b.
void framesOf(short direction, float l, float t, float r, float b, Frame& base, Frame& far) {
    switch (direction) {
        case vxBarOutline::kDown:
            base = {true, l, r, 1.0f, t, 1.0f};
            far = base.mirrored(b);
            break;
        case vxBarOutline::kToLeft:
            base = {false, b, t, -1.0f, r, -1.0f};
            far = base.mirrored(l);
            break;
        case vxBarOutline::kToRight:
            base = {false, b, t, -1.0f, l, 1.0f};
            far = base.mirrored(r);
            break;
        default:
            base = {true, l, r, 1.0f, b, -1.0f};
            far = base.mirrored(t);
            break;
    }
}

// The form of a cap type for a cap of size `cap` on an end `width` wide.
const vxCapForm& formOf(short capType, float cap, float width) {
    const vxCapShape& shape = vxCapShapeOf(cap < kNoCap ? 0 : capType);
    return cap < shape.wideFrom * width ? shape.narrow : shape.wide;
}

// Writes the steps of one cap into the path.
class CapWriter {
public:
    CapWriter(vxPath2DOLD& path, const Frame& frame, float cap)
        : path(path), frame(frame), cap(cap) {}

    // Starts the outline with the cap, from the down side to the up side.
    void forward(const vxCapForm& form) {
        float x = 0.0f, y = 0.0f;
        pointOf(form.steps[0], x, y);
        path.moveTo(x, y);
        for (int i = 1; i < form.numOfSteps; ++i) {
            const vxCapStep& step = form.steps[i];
            if (step.isArc) {
                arc(step, step.from, step.quarters);
            } else {
                pointOf(step, x, y);
                path.lineTo(x, y);
            }
        }
    }

    // Goes on with the cap from the up side back to the down side.
    void backward(const vxCapForm& form) {
        float x = 0.0f, y = 0.0f;
        endOf(form.steps[form.numOfSteps - 1], x, y);
        path.lineTo(x, y);
        for (int i = form.numOfSteps - 1; i > 0; --i) {
            const vxCapStep& step = form.steps[i];
            endOf(form.steps[i - 1], x, y);
            if (step.isArc) {
                arc(step, step.from + step.quarters, -step.quarters);
                joinTo(x, y);
            } else {
                path.lineTo(x, y);
            }
        }
    }

private:
    float across(vxCapLength u) const {
        float side = frame.downSide + u.ofWidth * (frame.upSide - frame.downSide);
        if (u.ofWidth == 0.0f) side = frame.downSide;
        if (u.ofWidth == 1.0f) side = frame.upSide;
        return side + frame.toUp * u.ofCap * cap;
    }

    float along(float vOfCap) const { return frame.edge + frame.inward * vOfCap * cap; }

    void place(float a, float b, float& x, float& y) const {
        x = frame.acrossX ? a : b;
        y = frame.acrossX ? b : a;
    }

    void pointOf(const vxCapStep& step, float& x, float& y) const {
        place(across(step.u), along(step.vOfCap), x, y);
    }

    void boxOf(const vxCapStep& step, float box[4]) const {
        float x1 = 0.0f, y1 = 0.0f, x2 = 0.0f, y2 = 0.0f;
        place(across(step.u), along(step.vOfCap), x1, y1);
        place(across(step.u2), along(step.v2OfCap), x2, y2);
        box[0] = std::min(x1, x2);
        box[1] = std::min(y1, y2);
        box[2] = std::max(x1, x2);
        box[3] = std::max(y1, y2);
    }

    // Where an end of the frame's ellipse axes lies on the drawing's clock.
    short clockOf(int end) const {
        const int e = ((end % 4) + 4) % 4;
        const bool isAcross = e % 2 == 1;
        const float sign = (isAcross ? frame.toUp : frame.inward) * (e >= 2 ? -1.0f : 1.0f);
        const bool isX = isAcross == frame.acrossX;
        if (isX) return sign > 0.0f ? kThree : kNine;
        return sign > 0.0f ? kSix : kTwelve;
    }

    // The point of the box's ellipse at an end of its axes, as the path
    // works it out.
    void pointOnEllipse(const float box[4], int end, float& x, float& y) const {
        const float cx = static_cast<float>((box[0] + static_cast<double>(box[2])) * 0.5);
        const float cy = static_cast<float>((box[1] + static_cast<double>(box[3])) * 0.5);
        const short clock = clockOf(end);
        x = clock == kThree ? box[2] : clock == kNine ? box[0] : cx;
        y = clock == kTwelve ? box[1] : clock == kSix ? box[3] : cy;
    }

    // The last point of a step.
    void endOf(const vxCapStep& step, float& x, float& y) const {
        if (!step.isArc) return pointOf(step, x, y);
        float box[4];
        boxOf(step, box);
        pointOnEllipse(box, step.from + step.quarters, x, y);
    }

    // A line to x, y unless the path is there already.
    void joinTo(float x, float y) {
        float cx = 0.0f, cy = 0.0f;
        path.getCurrentPoint(cx, cy);
        if (std::fabs(x - cx) < kSamePoint && std::fabs(y - cy) < kSamePoint) return;
        path.lineTo(x, y);
    }

    // The arc of a step from one end of its axes, by `quarters` turns of
    // the frame; it joins on where the path stands.
    void arc(const vxCapStep& step, int from, int quarters) {
        float box[4], x = 0.0f, y = 0.0f;
        boxOf(step, box);
        pointOnEllipse(box, from, x, y);
        joinTo(x, y);
        const short start = clockOf(from);
        const short next = clockOf(from + (quarters > 0 ? 1 : -1));
        const float sense = next == (start + 1) % 4 ? 1.0f : -1.0f;
        path.addArc(box[0], box[1], box[2], box[3], start * kQuarterTurn,
                    sense * static_cast<float>(std::abs(quarters)) * kQuarterTurn);
    }

    vxPath2DOLD& path;
    Frame frame;
    float cap;
};

}  // namespace

void vxBarOutline::build(vxPath2DOLD& path, const float rect[4], short direction,
                         const vxBarStyle& style) {
    path.clear();
    const float l = std::min(rect[0], rect[2]), r = std::max(rect[0], rect[2]);
    const float t = std::min(rect[1], rect[3]), b = std::max(rect[1], rect[3]);
    const bool isUpright = direction != kToLeft && direction != kToRight;
    const float width = isUpright ? r - l : b - t;
    const float height = isUpright ? b - t : r - l;
    float startSize = 0.0f, endSize = 0.0f;
    getCapSizes(height, width, width, style, startSize, endSize);
    Frame base{}, far{};
    framesOf(direction, l, t, r, b, base, far);
    try {
        CapWriter(path, base, startSize).forward(formOf(style.getStartCapType(), startSize, width));
        CapWriter(path, far, endSize).backward(formOf(style.getEndCapType(), endSize, width));
        path.close();
    } catch (const std::bad_alloc&) {
        path.setError(vxErrRuntime::kOutOfMemory, L"vxBarOutline/build/1");
    }
}

void vxBarOutline::getCapSizes(float h, float w, float wTop, const vxBarStyle& style,
                               float& startSize, float& endSize) {
    startSize = std::max(style.getStartCapSizePercent(), 0.0f) * 0.01f * std::fabs(w);
    endSize = std::max(style.getEndCapSizePercent(), 0.0f) * 0.01f * std::fabs(wTop);
    h = std::max(h, 0.0f);
    const float sum = startSize + endSize;
    if (sum <= h) return;
    const float scale = h / sum;
    startSize = std::min(startSize * scale, h);
    endSize = std::min(endSize * scale, h);
}

}  // namespace Velarix
