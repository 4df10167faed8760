// The PDF device: the drawing as a PDF 1.3 file of one page. The device
// collects the page's content stream and its resources while the layers
// draw, and writes the whole file at close, then hands the bytes to every
// target: a file, the clipboard (which this platform passes over) or a
// memory stream for the host.
//
// The file, objects in this order:
//   header "%PDF-1.3"; 3 the page; 4 the content stream; 1 the page tree
//   with the media box; the resources from 5 on, table by table (colour
//   spaces, graphics states, fonts, images, patterns, shadings); 2 the
//   resource dictionary; the info record; the catalog, which has the
//   highest number; the cross-reference table and the trailer. Lines end
//   with CR LF.
//
// The content starts with "1 0 0 -1 0 H cm", which puts the origin at the
// top left with y downward, so that every operator works in the drawing's
// own coordinates. Each shape is one "q ... Q" block on a line of its own:
// the stroke state, the page state (the current clip), the path, the paint
// state and the painting operator. A number is written with six
// significant digits, in fixed form with six decimals where that would
// need an exponent, and as 0 below 1e-6.
//
// Paints: a colour with its alpha as a graphics state; a hatch as an
// uncoloured tiling pattern laid over white; a texture number as a
// coloured tiling pattern of its picture; a gradient as a shading clipped
// to the shape, always opaque. A stroke with a gradient or a picture
// keeps the current stroke colour. Shadows are hard copies.
//
// Text is set in Windows-1252 codes, in the standard font of its family
// or in the TrueType font the layout measured it with, embedded when the
// font asks for it and its licence allows; a family that isn't installed
// falls back to Helvetica. A line with characters beyond that code page
// is set in a composite font of the layout's font file, embedded, with a
// map back to Unicode. Lines are placed by the widths the document gives
// its fonts. Pictures: a JPEG file keeps its compressed data;
// every other picture is written as its pixels, deflated, with a soft mask
// where it has transparency.
//
// The content stream is deflated only when the compression flag is set;
// by default it stays readable.
#pragma once

#include <cstdint>
#include <memory>
#include <ostream>
#include <string>
#include <vector>

#include "output/vxPDFResources.h"
#include "output/vxShapeDevice.h"

namespace Velarix {

class vxBasicPaint;
class vxBitmap;
class vxColorOLD;
class vxGradientPaint;
class vxImageMapping;
class vxPDFFontABC;
class vxPDFFonts;
class vxTexturePaintOLD;
class vxUserSettings;

class vxDevicePDF : public vxShapeDevice {
public:
    // Open actions of the catalog: fit the page, fit its width, or 100 %;
    // a positive code is a zoom in percent.
    enum OpenAction : short { kFit = -1, kFitWidth = -2, kActualSize = -3 };
    enum PageLayout : short { kSinglePage = 1, kOneColumn = 2, kTwoColumnLeft = 3 };

    explicit vxDevicePDF(const vxUserSettings* settings = nullptr);
    ~vxDevicePDF() override;

    short getDeviceID() const override { return kPDF; }
    // Starts the content and takes the moment of the info record's dates.
    void open() override;
    // Writes the file and hands it to every target.
    void close() override;

    // Info fields; an empty text leaves the field as it is.
    void setTitle(const std::wstring& text) override;
    void setAuthor(const std::wstring& text) override;
    void setSubject(const std::wstring& text) override;
    void setKeywords(const std::wstring& text) override;
    void setCreator(const std::wstring& text) override;
    const std::wstring& getTitle() const { return title; }
    const std::wstring& getAuthor() const { return author; }
    const std::wstring& getSubject() const { return subject; }
    const std::wstring& getKeywords() const { return keywords; }
    const std::wstring& getCreator() const { return creator; }

    bool getCompression() const { return doCompress; }
    void setCompression(bool value) { doCompress = value; }
    short getOpenAction() const { return openAction; }
    void setOpenAction(short code) { openAction = code; }
    short getPageLayout() const { return pageLayout; }
    void setPageLayout(short code) { pageLayout = code; }

    // The content stream as far as it is written, uncompressed.
    const std::string& getContent() const { return content; }
    // The file after close.
    const std::vector<uint8_t>& getFile() const { return file; }

    using vxDevice::setClipRegion;
    // Drops the clip: later blocks start without it.
    void resetClipRegion() override;
    // The clip replaces the one before whatever the mode; it starts every
    // later block until it is reset.
    void setClipRegion(float x, float y, float w, float h, short mode) override;
    void setClipRegion(const float rect[4]) override;
    // A path clip with the even-odd rule.
    void setClipRegion(const vxVerbs& verbs, const vxPoints& x, const vxPoints& y,
                       const float bounds[4], short mode) override;

    using vxDevice::drawString2D;
    // Lines split at carriage returns; the first baseline at the top of the
    // bounds plus the line height minus the descent, each further line one
    // line height lower; a rotation turns the block about the centre of
    // the bounds. Patterns and gradients draw text in their first colour.
    void drawString2D(const std::wstring& text, const vxFontOLD& font, const vxPaintOLD& paint,
                      const float bounds[4], short hAlignment, short vAlignment,
                      float orientation) override;

    // The picture placed tile by tile by the image's mapping; a gradient
    // resource fills the tiles with its gradient. An empty image draws
    // nothing; a picture that can't be read is the device's fault.
    void drawImage(const vxImage& image) override;

    // One stream for each stream target.
    long getNumOfStreams() const override;
    const vxStreamRecord* getStream(long index) const override;

    void dump(short depth, std::ostream& out) const override;

private:
    // The document (vxDevicePDFDocument.cpp).
    void writeFile();
    void append(const std::string& text);
    void beginObject(long number);
    void writeObject(long number, const std::string& body);
    void writeContentObject();
    void writeResourceObjects();
    std::string resourceDictionary() const;
    std::string infoDictionary() const;
    std::string catalogDictionary() const;
    void writeCrossReference(long numOfObjects);
    long objectNumberOf(const std::string& name) const;
    static std::string dateText();

    // Paths (vxDevicePDFShapes.cpp): the path operators of a point list
    // or of path verbs, moved by the offset.
    static std::string polygonPath(const Points& x, const Points& y, bool doClose, Offset at);
    static std::string verbPath(const vxVerbs& verbs, const Points& x, const Points& y, Offset at);
    static std::string rectanglePath(float x, float y, float w, float h);
    static std::string strokeState(const vxStrokeOLD& stroke);

    // The shapes after the common rules (vxDevicePDFShapes.cpp).
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

    // Painting a path in its paint (vxDevicePDFPaints.cpp). `bounds` are
    // those of the shape as drawn, for gradients.
    void strokeWith(const vxStrokeOLD& stroke, const vxPaintOLD& paint, const std::string& path);
    void fillWith(const vxPaintOLD& paint, const std::string& path, const float bounds[4],
                  short windingRule);
    void fillWithBasic(const vxBasicPaint& paint, const std::string& path, short windingRule);
    void fillWithGradient(const vxGradientPaint& paint, const std::string& path,
                          const float bounds[4], short windingRule);
    void fillWithTexture(const vxTexturePaintOLD& paint, const std::string& path,
                         const float bounds[4], short windingRule);
    // The colour operators of a basic paint, with its graphics state when
    // it isn't opaque; `isStroke` picks the stroking operators.
    std::string colorState(const vxColorOLD& color, bool isStroke);
    std::string alphaState(float alpha, bool isStroke);
    // The pattern colour of a hatch or a texture number; empty when the
    // pattern can't be made.
    std::string patternState(const vxBasicPaint& paint, bool isStroke);
    std::string hatchPattern(short patternIndex);
    std::string texturePattern(short patternIndex);
    std::string shadingOf(const vxGradientPaint& paint);
    static std::string gradientFunction(const vxGradientPaint& paint);
    static std::string gradientMatrix(const vxGradientPaint& paint, const float bounds[4]);

    // Symbols (vxDevicePDFShapes.cpp).
    void drawSymbolAt(const vxStrokeOLD& stroke, const vxPaintOLD& paint,
                      const vxPaintOLD* fillPaint, short symbolType, float size, float x, float y,
                      Offset at) override;
    void writeSymbolLines(const vxStrokeOLD& stroke, const vxPaintOLD& paint, short symbolType,
                          float size, float x, float y, Offset at);
    static std::string circlePath(float x, float y, float r);

    // Pictures (vxDevicePDFImages.cpp): the image resource of a picture,
    // or an empty name after a fault.
    std::string imageOf(const vxImage& image);
    std::string jpegImage(const std::vector<uint8_t>& bytes);
    std::string pixelImage(const vxBitmap& bitmap);
    void placeTiles(const vxImageMapping& mapping, const std::string& name);

    // Lines of a text at their places (vxDevicePDFText.cpp).
    std::string lineText(const std::wstring& line, const vxFontOLD& font,
                         const vxPDFFontABC& pdfFont, const float bounds[4], short hAlignment,
                         float y);
    std::string otherLineText(const std::wstring& line, const vxFontOLD& font,
                              const float bounds[4], short hAlignment, float y);
    static std::string underline(const vxFontOLD& font, float position, float thickness, float x,
                                 float y, float width);

    // Adds a resource; a failed allocation is error 5000 and gives an empty
    // name.
    std::string addResource(vxPDFResources::Table table, const std::string& dictionary,
                            const std::vector<uint8_t>& stream = {});
    // The stream's bytes deflated; false with error 5000 when zlib can't.
    bool deflate(const std::vector<uint8_t>& in, std::vector<uint8_t>& out);
    // Appends one block of the content.
    void block(const std::string& text);

    void writeTargets();
    void writeToStream(vxWriteExternal& target);

    const vxUserSettings* userSettings;  // not owned
    std::vector<uint8_t> file;
    std::vector<long> offsets;  // of each object by number; 0 unused
    vxPDFResources resources;
    std::unique_ptr<vxPDFFonts> fonts;  // the document's fonts, by family and style
    std::string content;
    std::string pageState;  // what starts every block: the clip
    bool doCompress = false;
    bool isOpenDocument = false;

    std::wstring author;
    std::wstring creator;
    std::wstring producer = L"Velarix 3.3";
    std::wstring title;
    std::wstring subject;
    std::wstring keywords;
    std::string creationDate;
    std::string modDate;
    short trapped = -1;
    short openAction = kFitWidth;
    short pageLayout = kOneColumn;
};

}  // namespace Velarix
