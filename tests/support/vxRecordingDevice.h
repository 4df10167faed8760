// A device that writes nothing and records the operations called on it, one
// line each, for tests of the order in which objects draw.
#pragma once

#include <string>
#include <vector>

#include "output/vxDevice.h"
#include "output/vxStreamRecord.h"

namespace Velarix::test {

class vxRecordingDevice : public vxDevice {
public:
    vxRecordingDevice() : vxDevice(L"vxRecordingDevice") {}

    short getDeviceID() const override { return 99; }
    void addTarget(short) override { calls.push_back("addTarget"); }
    long getNumOfTargets() const override { return 0; }
    vxWriteExternal* getLastTarget() const override { return nullptr; }
    void open() override { calls.push_back("open"); }
    void close() override { calls.push_back("close"); }
    void resetClipRegion() override { calls.push_back("resetClip"); }
    void setClipRegion(float, float, float, float, short) override { calls.push_back("clip"); }
    void setClipRegion(const float[4]) override { calls.push_back("clipRect"); }
    void setClipRegion(const vxVerbs&, const vxPoints&, const vxPoints&, const float[4],
                       short) override {
        calls.push_back("clipPath");
    }
    void drawLine2D(const vxStrokeOLD&, const vxShadowOLD&, float, float, float, float) override {
        calls.push_back("line shadow");
    }
    void drawLine2D(const vxStrokeOLD&, const vxPaintOLD&, float, float, float, float) override {
        calls.push_back("line");
    }
    void drawLineArray2D(const vxStrokeOLD&, const vxShadowOLD&, const vxPoints&,
                         const vxPoints&) override {
        calls.push_back("lines shadow");
    }
    void drawLineArray2D(const vxStrokeOLD&, const vxPaintOLD&, const vxPoints&,
                         const vxPoints&) override {
        calls.push_back("lines");
    }
    void drawPolygon2D(const vxStrokeOLD&, const vxShadowOLD&, const vxPoints&, const vxPoints&,
                       const float[4], bool) override {
        calls.push_back("outline shadow");
    }
    void drawPolygon2D(const vxStrokeOLD&, const vxPaintOLD&, const vxPoints&, const vxPoints&,
                       const float[4], bool) override {
        calls.push_back("outline");
    }
    void fillPolygon2D(const vxShadowOLD&, const vxPoints&, const vxPoints&, const float[4],
                       short) override {
        calls.push_back("fill shadow");
    }
    void fillPolygon2D(const vxPaintOLD&, const vxPoints&, const vxPoints&, const float[4],
                       short) override {
        calls.push_back("fill");
    }
    void drawPath2D(const vxStrokeOLD&, const vxShadowOLD&, const vxVerbs&, const vxPoints&,
                    const vxPoints&, const float[4]) override {
        calls.push_back("path shadow");
    }
    void drawPath2D(const vxStrokeOLD&, const vxPaintOLD&, const vxVerbs&, const vxPoints&,
                    const vxPoints&, const float[4]) override {
        calls.push_back("path");
    }
    void fillPath2D(const vxShadowOLD&, const vxVerbs&, const vxPoints&, const vxPoints&,
                    const float[4], short) override {
        calls.push_back("fill path shadow");
    }
    void fillPath2D(const vxPaintOLD&, const vxVerbs&, const vxPoints&, const vxPoints&,
                    const float[4], short) override {
        calls.push_back("fill path");
    }
    void drawString2D(const std::wstring&, const vxFontOLD&, const vxPaintOLD&, const float[4],
                      short, short, float) override {
        calls.push_back("text");
    }
    void drawSymbol(const vxStrokeOLD&, const vxPaintOLD&, const vxShadowOLD&, short, float, float,
                    float) override {
        calls.push_back("symbol shadow");
    }
    void drawSymbol(const vxStrokeOLD&, const vxPaintOLD&, const vxPaintOLD&, short, float, float,
                    float) override {
        calls.push_back("symbol");
    }
    void drawImage(const vxImage&) override { calls.push_back("image"); }
    long getNumOfStreams() const override { return 0; }
    const vxStreamRecord* getStream(long) const override { return nullptr; }

    std::vector<std::string> calls;
};

}  // namespace Velarix::test
