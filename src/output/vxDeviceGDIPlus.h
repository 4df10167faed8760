// The raster device: the drawing as a picture of width by height pixels,
// drawn with cairo, and written at close to every target in the target's
// picture format.
//
// Two routes, chosen by the drawing's bitmap flag when the device opens:
//   - bitmap: the shapes go straight into an ARGB32 picture cleared to
//     transparent white. Coordinates are rounded to whole pixels, which a
//     stroke of an odd width takes as pixel centres so that a thin line
//     covers whole pixels; a rectangle clip narrower or lower than one
//     pixel is passed over;
//   - recorded (the default): the shapes are recorded at their exact
//     coordinates, and close plays the record into a picture cleared with
//     transparent white.
// Either way a format without alpha (GIF, JPEG, BMP) gets the picture laid
// on opaque white by its encoder, row by row.
//
// Shapes and text are antialiased unless `antialiasing` is 0; setUp takes
// it from the user's rendering settings, where text has a flag of its own.
//
// Paints: a colour; a hatch of 8 by 8 pixels repeated from the drawing's
// origin; gradients laid over the bounds of the shape, their stops with
// alpha; a texture number's built-in picture repeated from the origin; a
// texture paint's picture repeated from where its mapping lays it. Dashes
// keep the lengths of their pattern on lines of any width. A combined
// stroke draws its strokes one over the other; a wave is drawn as a plain
// line.
//
// Text is drawn with the very font face that measured it, each glyph at
// the position that the summed advances of the measure give, so that a
// line is as wide as the layout made room for; without fractional metrics
// each advance is fitted to whole pixels. Lines stand as on SVG: the
// first baseline at the top of the bounds plus the line height minus the
// descent.
//
// Clips combine by their mode: 1 intersect, 2 exclude, 3 union, other
// values replace the clip. Intersections are cairo clips; once a clip has
// been excluded or united, the clip is kept as a coverage mask instead,
// and each shape is drawn through it.
#pragma once

#include <memory>
#include <ostream>
#include <string>
#include <vector>

#include "output/vxCairoFontFaces.h"
#include "output/vxCairoPictures.h"
#include "output/vxCairoPointers.h"
#include "output/vxShapeDevice.h"
#include "platform/vxImageEncoder.h"

namespace Velarix {

class vxBasicPaint;
class vxColorOLD;
class vxFontFace;
class vxGradientPaint;
class vxUserSettings;

class vxDeviceGDIPlus : public vxShapeDevice {
public:
    explicit vxDeviceGDIPlus(const vxUserSettings* settings = nullptr);
    ~vxDeviceGDIPlus() override;

    short getDeviceID() const override { return kGDIPlus; }
    // The size and bitmap flag, then the antialiasing and the fractional
    // metrics of the user's rendering settings.
    void setUp(const vxDrawingSpecs& specs) override;
    void open() override;
    void close() override;

    using vxDevice::setClipRegion;
    void resetClipRegion() override;
    void setClipRegion(float x, float y, float w, float h, short mode) override;
    // Replaces the clip with the rectangle.
    void setClipRegion(const float rect[4]) override;
    void setClipRegion(const vxVerbs& verbs, const vxPoints& x, const vxPoints& y,
                       const float bounds[4], short mode) override;

    using vxDevice::drawString2D;
    void drawString2D(const std::wstring& text, const vxFontOLD& font, const vxPaintOLD& paint,
                      const float bounds[4], short hAlignment, short vAlignment,
                      float orientation) override;

    // The picture placed by the image's mapping, tile by tile, through the
    // clip; an empty image draws nothing.
    void drawImage(const vxImage& image) override;
    // A grey frame through the four corners when there are more than three
    // knobs, and a black square of 5 by 5 pixels at each knob.
    void drawSelectionKnobs(const vxSelectionKnobs& knobs) override;

    // One stream for each picture format that a stream target asks for, in
    // the order GIF, JPEG, TIFF, PNG, BMP.
    long getNumOfStreams() const override;
    const vxStreamRecord* getStream(long index) const override;

    // The finished picture after close, an ARGB32 image surface with alpha
    // owned by the device; the encoders of the formats without alpha lay it
    // on white. Null before close and after a failure.
    cairo_surface_t* getPicture();

    void dump(short depth, std::ostream& out) const override;

private:
    // The stroke settings of the context, kept so that a shape that
    // strokes like the one before changes none of them.
    struct Pen {
        bool isKnown = false;  // false: the context's settings are unknown
        double width = 1.0;
        cairo_line_cap_t cap = CAIRO_LINE_CAP_BUTT;
        cairo_line_join_t join = CAIRO_LINE_JOIN_MITER;
        double miterLimit = 10.0;
        std::vector<double> dashes;
        double dashOffset = 0.0;
    };

    // Setup and close (vxDeviceGDIPlus.cpp).
    bool createCanvas();
    void setUpContext();
    void makePicture();
    void writeTargets();
    bool writeTarget(vxWriteExternal& target);
    // The picture in the target's format; false after reporting a fault.
    bool encode(const vxWriteExternal& target, const vxByteSink& write);
    // Drops the picture and the drawing state of an earlier run.
    void discard();
    // The one funnel of the device's faults; the first fault stays.
    void fail(short code, const wchar_t* method, int number, const std::wstring& info = L"");
    // Reports a fault of the context, if it has one.
    bool checkStatus(const wchar_t* method, int number = 1);
    bool reportCairoStatus(cairo_status_t status, const wchar_t* method, int number);
    bool isDrawing() const { return cr != nullptr && !isError(); }
    void useAliasedShapes(bool value) override;
    // A coordinate as the route takes it: whole pixels on a bitmap.
    double at(float value) const;
    bool isTextAntialiased() const;

    // Pens and brushes (vxDeviceGDIPlusBrushes.cpp). setUpBrush makes the
    // paint the context's source for a shape of the bounds, and answers
    // false when the paint draws nothing here.
    void setUpPen(const vxStrokeOLD& stroke);
    bool setUpBrush(const vxPaintOLD& paint, const float bounds[4], bool isText = false);
    void setUpSolidBrush(const vxColorOLD& color);
    bool setUpHatchBrush(const vxBasicPaint& paint);
    bool setUpLinearGradientBrush(const vxGradientPaint& paint, const float bounds[4]);
    bool setUpRadialGradientBrush(const vxGradientPaint& paint, const float bounds[4]);
    bool setUpGradientBrush(cairo_pattern_t* pattern, const vxGradientPaint& paint,
                            const float bounds[4], const wchar_t* method);
    // The context's state was changed behind the caches' backs.
    void forgetContextState();

    // Shapes (vxDeviceGDIPlusShapes.cpp). The path builders start a new
    // path; strokeShape and fillShape draw the current path and clear it.
    void addPolyline(const Points& x, const Points& y, bool doClose, Offset offset);
    void addPath(const vxVerbs& verbs, const Points& x, const Points& y, Offset offset);
    void strokeShape(const vxStrokeOLD& stroke, const vxPaintOLD& paint, const float bounds[4]);
    void fillShape(const vxPaintOLD& paint, const float bounds[4], short windingRule);
    void strokeLine(const vxStrokeOLD& stroke, const vxPaintOLD& paint, float x1, float y1,
                    float x2, float y2, Offset offset) override;
    void strokeLines(const vxStrokeOLD& stroke, const vxPaintOLD& paint, const Points& x,
                     const Points& y, Offset offset) override;
    void strokePolygon(const vxStrokeOLD& stroke, const vxPaintOLD& paint, const Points& x,
                       const Points& y, const float bounds[4], bool doClose,
                       Offset offset) override;
    void fillPolygon(const vxPaintOLD& paint, const Points& x, const Points& y,
                     const float bounds[4], short windingRule, Offset offset) override;
    void strokePath(const vxStrokeOLD& stroke, const vxPaintOLD& paint, const vxVerbs& verbs,
                    const Points& x, const Points& y, const float bounds[4],
                    Offset offset) override;
    void fillPath(const vxPaintOLD& paint, const vxVerbs& verbs, const Points& x, const Points& y,
                  const float bounds[4], short windingRule, Offset offset) override;
    // Around each drawing of a shape: through the clip mask, when there is
    // one.
    void beginShape();
    void endShape();

    // Clips (vxDeviceGDIPlusClip.cpp). applyClip combines the current path
    // with the clip by the mode and clears the path.
    void applyClip(short mode, const wchar_t* method);
    void intersectClip(const wchar_t* method);
    bool makeClipMask(const wchar_t* method);
    void combineClipMask(short mode, const wchar_t* method);

    // Text (vxDeviceGDIPlusText.cpp).
    bool setUpFont(const vxFontOLD& font, vxCairoFontFaces::Entry& entry);
    void setUpFontMetrics();
    double lineWidth(vxFontFace& face, const std::wstring& line, float size) const;
    void showLine(vxFontFace& face, const std::wstring& line, double x, double baseline,
                  float size);
    void underline(vxFontFace& face, double x, double baseline, double width, float size);

    // Pictures (vxDeviceGDIPlusImages.cpp). fillTiles fills the rectangle
    // x, y, w, h with the current source, through the clip.
    void fillTiles(double left, double top, double width, double height);
    vxCairoSurface gradientTile(const vxGradientPaint& gradient, long width, long height);
    bool setUpTextureIndexBrush(const vxBasicPaint& paint);
    bool setUpTextureBrush(const vxPaintOLD& paint, const float bounds[4]);

    // Symbols (vxDeviceGDIPlusSymbols.cpp): the centre moved by `at`.
    void drawSymbolAt(const vxStrokeOLD& stroke, const vxPaintOLD& paint,
                      const vxPaintOLD* fillPaint, short symbolType, float size, float x, float y,
                      Offset at) override;
    void addSymbolOutline(short shape, float size, float x, float y);

    const vxUserSettings* userSettings;  // not owned
    // The route of the current run, fixed when the device opens.
    bool isBitmapRoute = false;
    int pixelWidth = 0;
    int pixelHeight = 0;
    // Text antialiasing as the rendering settings give it; -1 follows
    // `antialiasing`.
    short textAntialiasing = -1;
    vxCairoSurface canvas;  // the picture itself, or the record
    vxCairoContext cr;
    vxCairoSurface picture;  // after close: as with alpha
    bool isClosed = false;

    // The clip: a cairo clip of intersections, or, once an exclusion or a
    // union came, the coverage mask.
    std::vector<vxCairoPath> clipPaths;
    vxCairoSurface clipMask;

    // The context's current state, for the hot paths.
    Pen pen;
    bool hasSolidSource = false;
    short fillRule = -1;  // -1: unknown
    double sourceRGBA[4] = {0, 0, 0, 0};
    vxCairoPattern hatch;
    short hatchIndex = 0;
    double hatchRGBA[4] = {0, 0, 0, 0};
    cairo_font_face_t* currentFontFace = nullptr;
    double currentFontSize = 0.0;
    vxCairoFontFaces fontFaces;
    // The pictures read in this run, and the brush of the last texture
    // number.
    vxCairoPictures pictures;
    vxCairoPattern texture;
    short textureIndex = 0;
    std::vector<cairo_glyph_t> glyphs;  // the glyphs of a line, reused
};

}  // namespace Velarix
