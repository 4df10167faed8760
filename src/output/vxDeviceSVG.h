// The SVG device: the drawing as one SVG 1.1 text document, built in memory
// as a wide string and handed to every target when the device closes. It
// needs no platform service.
//
// The document:
//   1. open() writes the prolog: the XML declaration, the SVG 1.1 doctype,
//      an empty line, the <svg> element with the drawing's width and height
//      (no xmlns, no viewBox), then the title, description and comment when
//      they are set, unescaped;
//   2. every draw operation appends its elements, each element preceded by
//      the definition of the gradient it uses; a definition is written anew
//      for every use, under the next id of its counter (lg1, lg2, ... and
//      rg1, rg2, ...);
//   3. close() appends "</svg>" and an empty line and writes the document to
//      each clipboard and file target; the first fault of a target is
//      copied to the device and ends the writing.
//
// Every number goes through the locale-free general form of vxNumberWriter.
// Line ends are single line feeds. Text is written as numeric character
// references only, so the body of the document is ASCII whatever the
// labels hold.
//
// SVG has no way to combine clips: every clip mode replaces the clip. A
// clip is active from its definition up to resetClipRegion, and every
// element written meanwhile refers to it. A hatch or a texture number is a
// <pattern> of its tile, repeated from the drawing's origin as the raster
// device lays it, written once and shared by every element that fills or
// strokes with it; text takes its plain colour instead. A texture picture
// fills an area stretched over its anchor, or with its gradient when it is
// a gradient resource; lines and text get nothing from it. Shadows are
// hard-edged copies; text has none.
//
// Pictures (drawImage) by the kind of their source: a gradient resource is
// its gradient's definition and one filled <rect> per tile; a file is one
// <image> per tile, referring to the file's path; any other resource, the
// clipboard and a URL write nothing, and a fault of a clipboard or URL
// source is copied to the device. Tiles come row by row, columns inside.
#pragma once

#include <map>
#include <memory>
#include <ostream>
#include <string>
#include <vector>

#include "output/vxShapeDevice.h"

namespace Velarix {

class vxBasicPaint;
class vxTexturePaintOLD;

class vxGradientPaint;
class vxImageMapping;
class vxLinearGradient;
class vxRadialGradient;
class vxUserSettings;

class vxDeviceSVG : public vxShapeDevice {
public:
    explicit vxDeviceSVG(const vxUserSettings* settings = nullptr);
    ~vxDeviceSVG() override;

    short getDeviceID() const override { return kSVG; }
    void open() override;
    void close() override;

    // Written into the prolog by open(), so they are set before it.
    void setTitle(const std::wstring& text) override { title = text; }
    void setDescription(const std::wstring& text) override { description = text; }
    void setComment(const std::wstring& text) override { comment = text; }
    const std::wstring& getTitle() const { return title; }
    const std::wstring& getDescription() const { return description; }
    const std::wstring& getComment() const { return comment; }

    // The document as far as it is written.
    const std::wstring& getDocument() const { return document; }

    using vxDevice::setClipRegion;
    void resetClipRegion() override;
    void setClipRegion(float x, float y, float w, float h, short mode) override;
    // Does nothing: on SVG a clip comes only with a mode.
    void setClipRegion(const float rect[4]) override {}
    void setClipRegion(const vxVerbs& verbs, const vxPoints& x, const vxPoints& y,
                       const float bounds[4], short mode) override;

    using vxDevice::drawString2D;
    // One <text> element per line of the text, lines split at carriage
    // returns. The first baseline lies at the top of the bounds plus the
    // font's line height minus its descent; each later line one line height
    // lower. A rotation turns every line about the centre of the bounds.
    void drawString2D(const std::wstring& text, const vxFontOLD& font, const vxPaintOLD& paint,
                      const float bounds[4], short hAlignment, short vAlignment,
                      float orientation) override;

    void drawImage(const vxImage& image) override;

    long getNumOfStreams() const override { return 0; }
    const vxStreamRecord* getStream(long index) const override { return nullptr; }

    void dump(short depth, std::ostream& out) const override;

private:
    // Style strings (vxDeviceSVGStyle.cpp). Each part ends with "; " and
    // each style with a blank after its closing quote.
    std::wstring clipPart() const;
    std::wstring fillPart(const vxPaintOLD& paint) const;
    std::wstring textFillPart(const vxPaintOLD& paint) const;
    std::wstring strokePaintPart(const vxPaintOLD& paint) const;
    enum class PaintUse { kArea, kStroke, kText };
    std::wstring paintPart(const wchar_t* property, const vxPaintOLD& paint, PaintUse use) const;
    static std::wstring strokeParts(const vxStrokeOLD& stroke);
    std::wstring strokeStyle(const vxStrokeOLD& stroke, const vxPaintOLD& paint) const;
    std::wstring fillStyle(const vxPaintOLD& paint, short windingRule) const;
    // With `withClip` false the style leaves out the clip path.
    std::wstring textStyle(const vxFontOLD& font, const vxPaintOLD& paint, short hAlignment,
                           bool withClip = true) const;

    // Gradient definitions (vxDeviceSVGStyle.cpp). The gradient a paint
    // fills with, or null: a texture's is that of its gradient resource.
    static const vxGradientPaint* gradientOf(const vxPaintOLD& paint);
    // Writes the definition of the paint's gradient, if it has one, under
    // the next id of its counter; with `withTiles` that of its hatch or
    // texture number too, the first time it is used.
    void writeDefinition(const vxPaintOLD& paint, bool withTiles = true);
    void writeLinearGradient(const vxLinearGradient& gradient);
    void writeRadialGradient(const vxRadialGradient& gradient);
    // A picture laid over its anchor, for areas filled with it; null for
    // a texture without one.
    static const vxTexturePaintOLD* anchoredPicture(const vxPaintOLD& paint);
    void writePattern(const vxTexturePaintOLD& paint);
    // Tiles of hatches and texture numbers (vxDeviceSVGPatterns.cpp): the
    // pattern id of a paint's tile, 0 where it has none written.
    long tilePatternOf(const vxPaintOLD& paint) const;
    void writeTilePattern(const vxBasicPaint& paint);
    static std::wstring gradientTail(const vxGradientPaint& gradient);

    // Elements (vxDeviceSVGShapes.cpp). The writers apply none of the
    // common rules: the draw operations have done so.
    void writeLine(const std::wstring& style, float x1, float y1, float x2, float y2, Offset at);
    void writeLineArray(const std::wstring& style, const Points& x, const Points& y, Offset at);
    void writePoints(const wchar_t* element, const std::wstring& style, const Points& x,
                     const Points& y, Offset at);
    void writePath(const std::wstring& style, const vxVerbs& verbs, const Points& x,
                   const Points& y, Offset at);
    void writeCircle(const std::wstring& style, float x, float y, float r);
    // Appends the data of a path element, without its quotes.
    static void appendPathData(std::wstring& out, const vxVerbs& verbs, const Points& x,
                               const Points& y, Offset at);

    // One stroked element of each kind, with its definition, after the
    // common rules.
    void strokeLine(const vxStrokeOLD& stroke, const vxPaintOLD& paint, float x1, float y1,
                    float x2, float y2, Offset at) override;
    void strokeLines(const vxStrokeOLD& stroke, const vxPaintOLD& paint, const Points& x,
                     const Points& y, Offset at) override;
    void strokePolygon(const vxStrokeOLD& stroke, const vxPaintOLD& paint, const Points& x,
                       const Points& y, const float bounds[4], bool doClose, Offset at) override;
    void fillPolygon(const vxPaintOLD& paint, const Points& x, const Points& y,
                     const float bounds[4], short windingRule, Offset at) override;
    void strokePath(const vxStrokeOLD& stroke, const vxPaintOLD& paint, const vxVerbs& verbs,
                    const Points& x, const Points& y, const float bounds[4], Offset at) override;
    void fillPath(const vxPaintOLD& paint, const vxVerbs& verbs, const Points& x, const Points& y,
                  const float bounds[4], short windingRule, Offset at) override;

    // Symbols (vxDeviceSVGShapes.cpp), the fill before the outline: a
    // stroke or paint that draws nothing skips the outline. A size not
    // above 0 draws nothing.
    void drawSymbolAt(const vxStrokeOLD& stroke, const vxPaintOLD& paint,
                      const vxPaintOLD* fillPaint, short symbolType, float size, float x, float y,
                      Offset at) override;
    bool writeSymbolShape(const vxStrokeOLD& stroke, const vxPaintOLD& paint,
                          const vxPaintOLD* fillPaint, short symbolType, float size, float x,
                          float y, Offset at);

    // Pictures (vxDeviceSVGImage.cpp). A tile narrower or lower than 1 is
    // error 5010 and nothing is written.
    void writeGradientTiles(const vxImageMapping& mapping, const vxGradientPaint& gradient);
    void writeFileTiles(const vxImageMapping& mapping, const std::wstring& path);
    bool hasDrawableTiles(const vxImageMapping& mapping);
    // A path as an attribute value: "&" escaped, characters beyond ASCII
    // as percent-escaped UTF-8, so that the document stays ASCII.
    static std::wstring hrefOf(const std::wstring& path);

    // The text of one line as character references (vxDeviceSVGText.cpp).
    static std::wstring characterReferences(const std::wstring& line);

    // Clipboard (1) and file (3) targets only.
    bool acceptsTarget(short targetType) const override;
    void writeTargets();

    const vxUserSettings* userSettings;  // not owned
    std::wstring document;
    std::wstring title;
    std::wstring description;
    std::wstring comment;
    bool isClipActive = false;
    long clipCounter = 0;
    long linearGradientCounter = 0;
    long radialGradientCounter = 0;
    long patternCounter = 0;
    // The pattern of each tile written, by hatch and colour or by texture
    // number; 0 for a tile that couldn't be made.
    std::map<std::wstring, long> tilePatterns;
};

}  // namespace Velarix
