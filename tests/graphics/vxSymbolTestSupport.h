// Helpers of the symbol tests: a device that records each call with its
// numbers ("fill 100 50 84 46 ...", "symbol shadow 2 7 at 10 20"), a paint
// that is none told as "none"; and the reader, to get the arguments of a
// script call as a drawing would.
#pragma once

#include <gtest/gtest.h>

#include <cmath>
#include <sstream>
#include <string>
#include <vector>

#include "drawing/vxDrawingSpecs.h"
#include "drawing/vxView.h"
#include "graphics/vxColorOLD.h"
#include "graphics/vxGObjectOLD.h"
#include "graphics/vxPaintOLD.h"
#include "output/vxOutputWIN.h"
#include "script/vxAssign.h"
#include "script/vxScript.h"
#include "settings/vxUserSettings.h"
#include "support/vxRecordingDevice.h"

namespace Velarix::test {

class vxGeometryRecorder : public vxRecordingDevice {
public:
    void drawLine2D(const vxStrokeOLD&, const vxShadowOLD&, float x1, float y1, float x2,
                    float y2) override {
        calls.push_back("line shadow" + numbers({x1, y1, x2, y2}));
    }
    void drawLine2D(const vxStrokeOLD&, const vxPaintOLD& paint, float x1, float y1, float x2,
                    float y2) override {
        calls.push_back("line" + numbers({x1, y1, x2, y2}) + none(paint));
    }
    void drawPolygon2D(const vxStrokeOLD&, const vxShadowOLD&, const vxPoints& x, const vxPoints& y,
                       const float[4], bool) override {
        calls.push_back("outline shadow" + points(x, y));
    }
    void drawPolygon2D(const vxStrokeOLD&, const vxPaintOLD& paint, const vxPoints& x,
                       const vxPoints& y, const float[4], bool) override {
        calls.push_back("outline" + points(x, y) + none(paint));
    }
    void fillPolygon2D(const vxShadowOLD&, const vxPoints& x, const vxPoints& y, const float[4],
                       short) override {
        calls.push_back("fill shadow" + points(x, y));
    }
    void fillPolygon2D(const vxPaintOLD& paint, const vxPoints& x, const vxPoints& y,
                       const float[4], short) override {
        calls.push_back("fill" + points(x, y) + none(paint));
    }
    void drawSymbol(const vxStrokeOLD&, const vxPaintOLD& paint, const vxShadowOLD&, short type,
                    float size, float x, float y) override {
        calls.push_back("symbol shadow" + numbers({float(type), size, x, y}) + none(paint));
    }
    void drawSymbol(const vxStrokeOLD&, const vxPaintOLD& paint, const vxPaintOLD& fillPaint,
                    short type, float size, float x, float y) override {
        calls.push_back("symbol" + numbers({float(type), size, x, y}) + none(paint) +
                        none(fillPaint));
    }

    // Six significant digits, and 0 for what is nearly so, hide the last
    // bits of the trigonometry.
    static std::string numbers(std::initializer_list<float> values) {
        std::ostringstream out;
        for (float v : values) out << ' ' << (std::fabs(v) < 1e-4f ? 0.0f : v);
        return out.str();
    }

private:
    static std::string points(const vxPoints& x, const vxPoints& y) {
        std::string text;
        for (size_t i = 0; i < x.size() && i < y.size(); ++i) text += numbers({x[i], y[i]});
        return text;
    }
    static std::string none(const vxPaintOLD& paint) { return paint.isNone() ? " none" : ""; }
};

inline std::vector<std::string> drawn(vxGObjectOLD& object) {
    vxGeometryRecorder device;
    object.draw(device);
    return device.calls;
}

inline std::vector<float> boundsOf(vxGObjectOLD& object) {
    float b[4];
    object.getBounds(b);
    return {b[0], b[1], b[2], b[3]};
}

inline std::wstring colorOf(const vxPaintOLD* paint) {
    return paint && paint->getColor() ? paint->getColor()->toHashText() : L"(none)";
}

class vxScriptReader : public ::testing::Test {
protected:
    vxScriptReader() { settings.setDefaults(); }

    // The arguments of `call`, with the offset where the caller's own
    // arguments end.
    vxAssign& read(const std::wstring& call, long offset) {
        script.tokenize(L"OpenDrawing(400; 300)\n" + call);
        EXPECT_FALSE(script.isError());
        vxAssign& assign = *script.getAssign();
        assign.addToArgumentOffset(offset - assign.getArgumentOffset());
        return assign;
    }

    vxUserSettings settings{L"", L"", 1, 1};
    vxDrawingSpecs specs;
    vxView view{&settings};
    vxOutputWIN output;
    vxScript script{&settings, &specs, &view, &output};
};

}  // namespace Velarix::test
