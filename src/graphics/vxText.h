// A positioned text: a string in a font and a paint, anchored at a point,
// aligned about it, possibly turned, and fitted into a width and a height.
// Lines are separated by carriage returns (character 13).
//
// Layout runs lazily in two steps, each behind its own flag:
//   1. string dimensions: the input string is wrapped to maxWidth, the
//      result shortened to maxHeight, and what is left measured. With a
//      maxWidth set, the string width is maxWidth, so that alignment refers
//      to the box that is available.
//   2. bounds: the string's box is aligned about the anchor (stringBounds);
//      when the orientation counts as an angle, bounds is that box turned
//      about its own centre, otherwise the box itself.
// Every setter that changes what is measured sets both flags; the anchor,
// the alignments and the orientation set only the second.
//
// The text draws with one drawString2D call and has no shadow.
#pragma once

#include <memory>
#include <ostream>
#include <string>

#include "graphics/vxGObjectOLD.h"

namespace Velarix {

class vxAssign;
class vxFontOLD;

class vxText : public vxGObjectOLD {
public:
    enum HAlignment : short { kLeft = 1, kCenter = 2, kRight = 3 };
    enum VAlignment : short { kTop = 1, kMiddle = 2, kBottom = 3, kBaseline = 4 };
    // Where shortening puts the ellipsis; kNoEllipsis cuts without a mark.
    enum EllipsisPosition : short {
        kNoEllipsis = 0,
        kEllipsisAtStart = 1,
        kEllipsisInMiddle = 2,
        kEllipsisAtEnd = 3
    };
    // A maxWidth or maxHeight below 0 sets no limit.
    static constexpr float kNoLimit = -1.0f;
    static constexpr wchar_t kLineBreak = 13;
    static constexpr wchar_t kEllipsis = 0x2026;

    // The font starts from the owner's font settings when there are any.
    explicit vxText(vxUserSettings* owner);
    vxText(vxUserSettings* owner, const std::wstring& text);
    ~vxText() override;
    vxText(const vxText&) = delete;
    vxText& operator=(const vxText&) = delete;

    short getType() const override { return kTypeText; }
    void drawBody(vxDevice& device) override;
    using vxGObjectOLD::rotate;
    // Turns the anchor about the point and adds the angle to the orientation.
    void rotate(float angle, float x, float y) override;
    void setDefaults() override;
    // Resets, then copies every field of `from`; null leaves the defaults.
    bool copy(const vxText* from);
    void dump(short depth, std::ostream& out) const override;

    const std::wstring& getText() const { return inputString; }
    void setText(const std::wstring& text);
    // The string argument at the argument offset becomes the text; the
    // offset moves past it.
    bool assignString(vxAssign& assign);
    // The script form at the argument offset; the offset moves past it.
    // AddText reads x, y, the text, the font name, size and style, the
    // colour, hAlignment, vAlignment, orientation, maxWidth, maxHeight and
    // ellipsisPosition. Every other function starts at the font name and
    // has no anchor, text nor vAlignment. A void font name, size or style
    // takes the font's default, any other void argument leaves its field.
    bool assign(vxAssign& assign, const vxUserSettings* settings = nullptr);

    // The font to measure and draw with; setting it copies it.
    const vxFontOLD* getFont() const { return font.get(); }
    bool setFont(const vxFontOLD& from);
    void setFontName(const std::wstring& name);
    void setFontSize(float size);
    void setFontStyle(short style);
    // A new font with the owner's defaults.
    bool createFont();

    const vxPaintOLD* getPaint() const { return paint.get(); }
    bool setPaint(const vxPaintOLD& from);
    // A new basic paint: opaque black.
    bool createPaint();

    float getXAnchor() const { return xAnchor; }
    float getYAnchor() const { return yAnchor; }
    void setAnchor(float x, float y);
    short getHAlignment() const { return hAlignment; }
    void setHAlignment(short value);
    short getVAlignment() const { return vAlignment; }
    void setVAlignment(short value);
    // Radians; an angle below 0 is stored with a full turn added.
    float getOrientation() const { return orientation; }
    void setOrientation(float value);
    float getMaxWidth() const { return maxWidth; }
    void setMaxWidth(float value);
    float getMaxHeight() const { return maxHeight; }
    void setMaxHeight(float value);
    void setMaxSize(float width, float height);
    short getEllipsisPosition() const { return ellipsisPosition; }
    void setEllipsisPosition(short value);

    // Sets maxWidth and maxHeight so that the text, turned by its
    // orientation, stays inside a box of this size with a margin: the width
    // loses 0.65 and the height 0.35 of the string height, and for an angle
    // nearer a right angle than 0 the box's sides change places. Neither
    // limit falls below 1.
    void fitToBox(float width, float height);

    // The results of the layout, computed when asked for.
    const std::wstring& getOutputString() const;
    long getNumOfLines() const;
    float getStringWidth() const;
    float getStringHeight() const;
    void getStringBounds(float bounds[4]) const;

    // The two passes of step 1, with this text's font.
    //
    // wrap: an empty text, or one without a limit (below 0), passes as it
    // is; below a limit of 0.5 nothing is left. Lines are filled until the
    // next character would make them wider than the limit and are broken
    // at the last blank, whose blanks are dropped; a word longer than a
    // line is cut, with one character a line at least. Written line breaks
    // stand, and trailing blanks of the text go. With the ellipsis at the
    // start the lines are filled from the end of the text.
    std::wstring wrap(const std::wstring& text, float limit) const;
    // shorten: an empty text, or one without a height limit, passes as it
    // is; below a height of 0.5 nothing is left. The number of lines that
    // fit is floor((limitHeight + leading) / (oneLineHeight + leading)), 1
    // at least, and a text of no more lines (or of one line that is no
    // wider than limitWidth) is returned unchanged. Otherwise the lines are
    // cut by the ellipsis position:
    //   0: the first lines stand, the last is cut at the width, no mark;
    //   1: the last lines stand, the first ends the text before them and
    //      starts with the ellipsis;
    //   2: the text is cut in the middle line, which holds the start up to
    //      half the width, the ellipsis, and the end; with two lines the
    //      first ends and the second starts with an ellipsis;
    //   3 and others: the first lines stand, the last holds the rest of
    //      the text and ends with the ellipsis.
    // Without limitWidth the width is that of the widest line.
    std::wstring shorten(const std::wstring& text, float limitWidth, float limitHeight,
                         float oneLineHeight, float leading, short position) const;

protected:
    void transformGeometry(const vxTransform2DOLD& transform) override;
    void calculateBounds(float bounds[4]) const override;

private:
    void resetFields();
    void takeFontDefaults(const vxUserSettings* settings);
    void invalidateStringDimension();
    void invalidateTextBounds();
    void setUpStringDimension() const;
    void setUpBounds() const;
    void assignFont(const vxAssign& assign);
    void assignColor(vxAssign& assign, const vxUserSettings* settings);

    std::wstring inputString;
    mutable std::wstring outputString;
    std::unique_ptr<vxFontOLD> font;
    std::unique_ptr<vxPaintOLD> paint;
    float xAnchor = 0.0f;
    float yAnchor = 0.0f;
    short hAlignment = kLeft;
    short vAlignment = kBaseline;
    float orientation = 0.0f;
    float maxWidth = kNoLimit;
    float maxHeight = kNoLimit;
    mutable long numOfLines = 0;
    short ellipsisPosition = kEllipsisAtEnd;
    mutable float stringWidth = 0.0f;
    mutable float stringHeight = 0.0f;
    mutable float stringBounds[4];
    mutable bool doRecalcStringDimension = true;
    mutable float textBounds[4];
    mutable bool doRecalcBounds = true;
};

}  // namespace Velarix
