// A text with an optional background shape and an optional auxiliary line
// to the item it labels.
//
// The label's box surrounds the text with its margins: each margin is a
// number of points, or, with useRelativeMargins, a percentage of the
// font's string height; both are rounded to whole points. The box is
//   width  = left + right + border width + text width
//   height = top + bottom + border width + text height
// where the text's extent is that of its bounds (the turned box for a
// turned text) and the border width is that of the background's border
// stroke, whether or not the border shows (0 without a background). The
// box is centred on the text's bounds, so unequal margins on opposite
// sides share their sum evenly.
//
// The background is one of seven shapes built on a frame of 100 by 100 and
// scaled from that frame onto the box; setUpBackground rebuilds it for the
// current text, and the placing operations call it. A background given as
// a path of its own is scaled from its bounds onto the box.
//
// Drawing, when the label is visible:
//   drawShadow: 1. the background's shadow; 2. the auxiliary line's
//               shadow, or, when the line has none of its own, the line in
//               the background's shadow.
//   drawBody:   1. the auxiliary line; 2. the background; 3. the text.
// Each step stops the drawing when its part reports an error, which the
// label then holds.
//
// The bounds are the union of those of the text, the background and the
// auxiliary line. shift, rotate, flip and the other geometric operations
// move all three parts; a turn also turns the text's orientation.
#pragma once

#include <memory>
#include <ostream>
#include <vector>

#include "graphics/vxGObjectOLD.h"

namespace Velarix {

class vxAssign;
class vxAuxiliaryLine2D;
class vxPath2DOLD;
class vxText;

class vxLabel : public vxGObjectOLD {
public:
    // Background shapes; kGivenShape is a path set from outside.
    enum BackgroundShape : short {
        kGivenShape = 0,
        kRectangle = 1,
        kEllipse = 2,
        kRoundRect = 3,
        kDiamond = 4,  // 4 corners, a corner at the top
        kHexagon = 5,  // 6 corners, flat top and bottom
        kOctagon = 6,  // 8 corners, flat sides
        kPolygon = 7,  // n corners from a start angle
    };
    // Places about an anchor point: a row (above, level, below) by a column
    // (left, centred, right), as on a phone's keypad.
    enum Position : short {
        kTopLeft = 1,
        kTopCenter = 2,
        kTopRight = 3,
        kCenterLeft = 4,
        kCenterCenter = 5,
        kCenterRight = 6,
        kBottomLeft = 7,
        kBottomCenter = 8,
        kBottomRight = 9,
    };
    // Places of a label at a bar. The smart forms fall back to the other
    // side of the bar's far end when the label doesn't fit and the other
    // side has room.
    enum BarLocation : short {
        kSmartBegin = 1,
        kSmartCenter = 2,
        kSmartEnd = 3,
        kBegin = 4,
        kCenter = 5,
        kEnd = 6,
        kEdge = 7,
        kSmartOut = 8,
        kOut = 9,
    };
    // The way a bar grows from its base to its far end.
    enum BarDirection : short { kUp = 1, kDown = 2, kToLeft = 3, kToRight = 4 };

    // The side of the frame the background shapes are built on.
    static constexpr float kFrameSize = 100.0f;
    // The corner radius of a rounded rectangle on the frame.
    static constexpr float kDefaultCornerRadius = 20.0f;

    explicit vxLabel(vxUserSettings* owner = nullptr);
    ~vxLabel() override;
    vxLabel(const vxLabel&) = delete;
    vxLabel& operator=(const vxLabel&) = delete;

    short getType() const override { return kTypeLabel; }
    void drawShadow(vxDevice& device) override;
    void drawBody(vxDevice& device) override;

    using vxGObjectOLD::flip;
    using vxGObjectOLD::rotate;
    void rotate(float angle, float x, float y) override;
    void flip(short mode, float x, float y) override;
    // Applies a map to the text's anchor, the background and the line.
    void transform(const vxTransform2DOLD& transform);

    // ---- parts -----------------------------------------------------------
    // A part handed out for change marks the bounds for recalculation.
    vxText* getText();
    const vxText* getText() const { return text.get(); }
    // A new text with the owner's defaults; error 5000 at
    // "vxLabel/createText/1" when memory runs out.
    bool createText();

    vxPath2DOLD* getBackground();
    const vxPath2DOLD* getBackground() const { return background.get(); }
    bool hasBackground() const { return background != nullptr; }
    // A new rectangle with the default look: a border stroke of width 1, a
    // border paint and a fill paint that are none. Error 5000 at
    // "vxLabel/createBackground/1".
    bool createBackground();
    // A copy of `from` as the background, scaled from its bounds onto the
    // box. Error 5000 at "vxLabel/createBackground/2".
    bool createBackground(const vxPath2DOLD& from);
    void removeBackground();

    vxAuxiliaryLine2D* getAuxiliaryLine();
    const vxAuxiliaryLine2D* getAuxiliaryLine() const { return auxiliaryLine.get(); }
    bool hasAuxiliaryLine() const { return auxiliaryLine != nullptr; }
    // A new line with its default look, or a copy of `from`. Error 5000 at
    // "vxLabel/createAuxiliaryLine/1" or ".../2".
    bool createAuxiliaryLine();
    bool createAuxiliaryLine(const vxAuxiliaryLine2D& from);
    void removeAuxiliaryLine();

    // ---- margins and size ------------------------------------------------
    // Left, top, right, bottom, as set: points or percentages.
    void getMargins(float margins[4]) const;
    void setMargins(float left, float top, float right, float bottom);
    bool getUseRelativeMargins() const { return useRelativeMargins; }
    void setUseRelativeMargins(bool value) { useRelativeMargins = value; }

    // The margins in points, rounded.
    void getMarginsDC(float margins[4]) const;
    // The width of the background's border stroke, shown or not; 0 without
    // a background.
    float getBorderWidth() const;
    // The extent of the box, width and height.
    void getLabelSize(float size[2]) const;
    // The box: left, top, right, bottom.
    void getLabelBounds(float bounds[4]) const;

    // The shape of the background and its options, on the frame:
    //   kRoundRect: one radius, or radii in x and y (default 20);
    //   kPolygon:   the number of corners (3 and more, default 3) and the
    //               angle of the first corner in degrees, clockwise from
    //               the top (default 0).
    // Makes the background when there is none. A code outside 1 to 7
    // changes nothing and answers false.
    bool setBackgroundShape(short shape, const std::vector<float>& options = {});
    short getBackgroundShape() const { return mBackgroundShape; }
    const std::vector<float>& getBackgroundOptions() const { return mBackgroundOptions; }
    // Fits the background to the box of the current text.
    void setUpBackground();
    // A box around other content than the label's text (the entries of a
    // legend, the two lines of a title): these bounds stand for the text's
    // in the box's size and place, and move with the box.
    void setContentBounds(const float bounds[4]);
    bool hasContentBounds() const { return useContentBounds; }

    // ---- placing ---------------------------------------------------------
    // Moves the text so that the box's top left corner is at left, top, and
    // fits the background; the auxiliary line stays where it is.
    void setLocation(float left, float top);
    // Places the box by a code of Position about `anchor` (x, y), with the
    // gaps h = 0.3 and v = 0.15 times the font's string height between the
    // anchor and the box. The offset (x, y) moves the box further away
    // from the anchor on the sides of the anchor and along the axes
    // otherwise. Another code leaves the label and answers false.
    bool setPosition(short code, const float anchor[2], const float offset[2]);
    // Places the label at a bar by a BarLocation and the bar's
    // BarDirection, centred across the bar.
    //   rect:   the bar in the plane of the plot; a 3D bar's front face lies
    //           depth x to the left and depth y lower. The inside places,
    //           and the outside place of a bar growing down or to the left,
    //           go to the front face.
    //   limits: the area a label must keep to.
    //   gap:    the half width of the bar's border plus the depth's share.
    //   depth:  the oblique depth (x, y) of a 3D bar.
    //   offset: the label's own shift (x, y); its part along the bar counts
    //           in the way the bar grows, the part across it as it is.
    // The gaps to the bar's edges are 0.3 (in x) and 0.15 (in y) times the
    // font size. A smart place stays on its side when the label fits there
    // or doesn't fit on the other side either. The corner is rounded to
    // whole points. Another location or direction leaves the label and
    // answers false.
    bool placeBarLabel(short location, short direction, const float rect[4], const float limits[4],
                       float gap, const float depth[2], const float offset[2]);

    // ---- script ----------------------------------------------------------
    // The background options at the argument offset; the offset moves past
    // the three arguments, given or void:
    //   1. a list: the flag useRelativeMargins, then the margins: one for
    //      all sides; two for left and right, top and bottom; three for
    //      left and right, top, bottom; four for left, top, right, bottom;
    //   2. the shape code, 1 to 7;
    //   3. the shape's options as in setBackgroundShape.
    // Options without a shape code apply to the current shape.
    bool assignBackgroundOptions(vxAssign& assign);
    // The look of the background at the argument offset: fill colour and
    // pattern, border widths, colour and pattern, shadow offsets, colour and
    // pattern; a part whose colour is void stays as it is. Makes the
    // background when there is none.
    bool assignBackground(vxAssign& assign, const vxUserSettings* settings = nullptr);

    // ---- copy and defaults -----------------------------------------------
    // Resets, then copies state, appearance, the text, the background with
    // its shape, the line and the margins of `from`; null only resets.
    bool set(const vxLabel* from);
    // A text with the owner's defaults, no background, no line, margins
    // 20, 10, 20, 10 in percent.
    void setDefaults() override;
    void dump(short depth, std::ostream& out) const override;

protected:
    void transformGeometry(const vxTransform2DOLD& transform) override;
    void calculateBounds(float bounds[4]) const override;

private:
    void resetFields();
    // Takes the first error of a part; false when the label holds one.
    bool takeError(const vxErrorHolder* part);
    // The font's string height, 0 without a font.
    float fontStringHeight() const;
    float fontSize() const;
    // Builds the background's shape on the frame.
    void buildBackgroundShape();
    // Maps the background from `from` onto `to`, both left, top, right,
    // bottom; an extent of `from` below 0.0001 is left as it is.
    void mapBackground(const float from[4], const float to[4]);
    void setBackgroundLook();
    void applyMarginList(const std::vector<float>& numbers);

    std::unique_ptr<vxText> text;
    std::unique_ptr<vxPath2DOLD> background;
    std::unique_ptr<vxAuxiliaryLine2D> auxiliaryLine;
    float margins[4] = {};
    bool useRelativeMargins = true;
    short mBackgroundShape = kRectangle;
    std::vector<float> mBackgroundOptions;
    bool useContentBounds = false;
    float contentBounds[4] = {};
};

}  // namespace Velarix
