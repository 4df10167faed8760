// The abstract output device. Every graphic object draws itself through this
// one interface and knows nothing of the file format behind it.
//
// The run of a device, driven by the output and the layer manager:
//   1. setUp(drawingSpecs): the drawing's size and bitmap flag;
//   2. addTarget(type), once or more; the last target gets the file name;
//   3. open(): the document's prolog;
//   4. the layers draw their objects, each by its shadow step, then its
//      fill, its outline and its symbols;
//   5. close(): the document is finished and written to every target.
//
// Coordinates are floats in the drawing's space: origin top left, y
// downward. A rectangle is left, top, right, bottom unless a row says
// x, y, w, h. Angles are radians. A point list is a pair of vectors, x and
// y; where they differ in length the shorter one rules.
//
// Every concrete draw operation first applies the common rules, so that no
// object has to: a stroke of width at most 1e-10 and a paint that is none
// draw nothing, and neither does a line whose ends lie within 0.001 of each
// other in x and y.
#pragma once

#include <ostream>
#include <string>
#include <vector>

#include "settings/vxErrorHolder.h"

namespace Velarix {

class vxStrokeOLD;
class vxPaintOLD;
class vxShadowOLD;
class vxFontOLD;
class vxImage;
class vxSelectionKnobs;
class vxDrawingSpecs;
class vxWriteExternal;
struct vxStreamRecord;

using vxPoints = std::vector<float>;
using vxVerbs = std::vector<short>;

class vxDevice : public vxErrorHolder {
public:
    // The codes the output searches devices by.
    enum DeviceID : short { kGDIPlus = 4, kPDF = 5, kSVG = 6, kSWF = 7 };
    // Clip modes; anything else replaces the clip.
    enum ClipMode : short { kIntersect = 1, kExclude = 2, kUnion = 3 };

    explicit vxDevice(const wchar_t* name);
    ~vxDevice() override;

    virtual short getDeviceID() const = 0;
    virtual void addTarget(short targetType) = 0;
    virtual long getNumOfTargets() const = 0;
    virtual vxWriteExternal* getLastTarget() const = 0;
    virtual void open() = 0;
    virtual void close() = 0;

    virtual void resetClipRegion() = 0;
    virtual void setClipRegion(float x, float y, float w, float h, short mode) = 0;
    virtual void setClipRegion(const float rect[4], short mode);
    virtual void setClipRegion(const float rect[4]) = 0;
    virtual void setClipRegion(const vxVerbs& verbs, const vxPoints& x, const vxPoints& y,
                               const float bounds[4], short mode) = 0;

    virtual void drawLine2D(const vxStrokeOLD& stroke, const vxShadowOLD& shadow, float x1,
                            float y1, float x2, float y2) = 0;
    virtual void drawLine2D(const vxStrokeOLD& stroke, const vxPaintOLD& paint, float x1, float y1,
                            float x2, float y2) = 0;
    virtual void drawLineArray2D(const vxStrokeOLD& stroke, const vxShadowOLD& shadow,
                                 const vxPoints& x, const vxPoints& y) = 0;
    virtual void drawLineArray2D(const vxStrokeOLD& stroke, const vxPaintOLD& paint,
                                 const vxPoints& x, const vxPoints& y) = 0;
    virtual void drawPolygon2D(const vxStrokeOLD& stroke, const vxShadowOLD& shadow,
                               const vxPoints& x, const vxPoints& y, const float bounds[4],
                               bool doClose) = 0;
    virtual void drawPolygon2D(const vxStrokeOLD& stroke, const vxPaintOLD& paint,
                               const vxPoints& x, const vxPoints& y, const float bounds[4],
                               bool doClose) = 0;
    virtual void fillPolygon2D(const vxShadowOLD& shadow, const vxPoints& x, const vxPoints& y,
                               const float bounds[4], short windingRule) = 0;
    virtual void fillPolygon2D(const vxPaintOLD& paint, const vxPoints& x, const vxPoints& y,
                               const float bounds[4], short windingRule) = 0;
    virtual void drawPath2D(const vxStrokeOLD& stroke, const vxShadowOLD& shadow,
                            const vxVerbs& verbs, const vxPoints& x, const vxPoints& y,
                            const float bounds[4]) = 0;
    virtual void drawPath2D(const vxStrokeOLD& stroke, const vxPaintOLD& paint,
                            const vxVerbs& verbs, const vxPoints& x, const vxPoints& y,
                            const float bounds[4]) = 0;
    virtual void fillPath2D(const vxShadowOLD& shadow, const vxVerbs& verbs, const vxPoints& x,
                            const vxPoints& y, const float bounds[4], short windingRule) = 0;
    virtual void fillPath2D(const vxPaintOLD& paint, const vxVerbs& verbs, const vxPoints& x,
                            const vxPoints& y, const float bounds[4], short windingRule) = 0;
    // Text has no shadow on any device.
    virtual void drawString2D(const std::wstring& text, const vxFontOLD& font,
                              const vxShadowOLD& shadow, const float bounds[4], short hAlignment,
                              short vAlignment, float orientation) {}
    virtual void drawString2D(const std::wstring& text, const vxFontOLD& font,
                              const vxPaintOLD& paint, const float bounds[4], short hAlignment,
                              short vAlignment, float orientation) = 0;
    virtual void drawSymbol(const vxStrokeOLD& stroke, const vxPaintOLD& paint,
                            const vxShadowOLD& shadow, short symbolType, float size, float x,
                            float y) = 0;
    virtual void drawSymbol(const vxStrokeOLD& stroke, const vxPaintOLD& paint,
                            const vxPaintOLD& fillPaint, short symbolType, float size, float x,
                            float y) = 0;
    virtual void drawImage(const vxImage& image) = 0;
    virtual void drawSelectionKnobs(const vxSelectionKnobs& knobs) {}

    virtual long getNumOfStreams() const = 0;
    virtual const vxStreamRecord* getStream(long index) const = 0;

    // Document metadata; a device whose format has no place for a field
    // passes it over.
    virtual void setTitle(const std::wstring& text) {}
    virtual void setDescription(const std::wstring& text) {}
    virtual void setComment(const std::wstring& text) {}
    virtual void setAuthor(const std::wstring& text) {}
    virtual void setSubject(const std::wstring& text) {}
    virtual void setKeywords(const std::wstring& text) {}
    virtual void setCreator(const std::wstring& text) {}

    virtual void setUp(const vxDrawingSpecs& specs);
    // Shapes too fine for smoothing (bars a few pixels wide) are drawn with
    // hard edges for a while, where the device smooths at all; text keeps
    // its own setting.
    virtual void useAliasedShapes(bool value) {}
    virtual float getWidth() const;
    virtual float getHeight() const;
    virtual void getSize(float size[2]) const;
    short getBitDepth() const { return bitDepth; }
    short getAntialiasing() const { return antialiasing; }
    bool isBitmap() const { return bitmap; }
    bool getUseFractionalMetrics() const { return useFractionalMetrics; }
    void setWidth(float w) { width = w; }
    void setHeight(float h) { height = h; }
    void setSize(float w, float h);
    void setBitDepth(short depth) { bitDepth = depth; }
    void setAntialiasing(short value) { antialiasing = value; }
    void setIsBitmap(bool value) { bitmap = value; }
    void setUseFractionalMetrics(bool value) { useFractionalMetrics = value; }

    // An angle counts as a rotation above 0.0001745 radians (0.01 degree).
    static bool isAngle(float angle);

    virtual void dump(short depth, std::ostream& out) const;

protected:
    // The common rules of the draw operations.
    static bool drawsNothing(const vxStrokeOLD& stroke);
    static bool drawsNothing(const vxPaintOLD& paint);
    static bool isDegenerateLine(float x1, float y1, float x2, float y2);
    // A rectangular clip outside these limits is ignored on SVG and raster.
    static bool isClipOutOfLimits(float x, float y, float w, float h);

private:
    float width = 0.0f;
    float height = 0.0f;
    short bitDepth = 0;
    short antialiasing = 0;
    bool bitmap = false;
    bool useFractionalMetrics = false;
};

}  // namespace Velarix
