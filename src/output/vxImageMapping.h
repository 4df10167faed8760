// How a picture of sourceWidth by sourceHeight pixels maps into a target
// box, the anchor. The adjustment gives the destination's size:
//   1 keep    the source size;
//   2 shrink  scaled down by the smaller of the two box-to-source factors
//             when the source is larger than the box, else as 1;
//   3 grow    scaled up by that factor when the source is smaller than the
//             box in both directions, else as 1;
//   4 fit     each direction by its own factor, both by the smaller one
//             when the ratio is kept (isProportional);
//   5 fill    the destination is the anchor;
//   6 tile    tiles of the source size, as many as cover the anchor.
// The location puts the destination (or the block of tiles) on a 3 by 3
// grid of the anchor: 1 top left, 2 top centre, 3 top right, 4 middle
// left, 5 centre, 6 middle right, 7 bottom left, 8 bottom centre, 9 bottom
// right. 0 is automatic: a single picture is centred, tiles start at the
// top left.
//
// Devices walk the tiles row by row, columns inside rows: tile (r, c) lies
// at destLeft + c * destWidth, destTop + r * destHeight and has the
// destination's size. A mapping that isn't tiled has one tile, the
// destination; one with no source size or no anchor has none.
#pragma once

#include <ostream>

namespace Velarix {

class vxImageMapping {
public:
    enum Adjustment : short { kKeep = 1, kShrink = 2, kGrow = 3, kFit = 4, kFill = 5, kTile = 6 };
    enum Location : short { kAutomatic = 0, kTopLeft = 1, kCenter = 5, kBottomRight = 9 };
    static constexpr short kDefaultAdjustment = kFill;
    static constexpr short kDefaultLocation = 4;  // middle left

    void setSourceSize(long width, long height);
    // Left, top, right, bottom.
    void setAnchor(const float bounds[4]);
    void setAnchor(float left, float top, float width, float height);
    // Codes 1 to 6; any other becomes 5.
    void setAdjustment(short code);
    // Codes 0 to 9; any other becomes 4.
    void setLocation(short code);
    void setIsProportional(bool value);
    // A part of a picture onto a box, both left, top, right, bottom. The
    // right and bottom edges are first brought to whole numbers (each less
    // 0.001, then rounded), the sizes taken from them; the adjustment
    // becomes fill.
    void set(const float sourceBounds[4], const float destBounds[4]);
    void setDefaults();

    long getSourceWidth() const { return sourceWidth; }
    long getSourceHeight() const { return sourceHeight; }
    float getAnchorLeft() const { return anchorLeft; }
    float getAnchorTop() const { return anchorTop; }
    float getAnchorWidth() const { return anchorWidth; }
    float getAnchorHeight() const { return anchorHeight; }
    float getDestLeft() const { return destLeft; }
    float getDestTop() const { return destTop; }
    float getDestWidth() const { return destWidth; }
    float getDestHeight() const { return destHeight; }
    short getAdjustment() const { return adjustment; }
    short getLocation() const { return location; }
    bool getIsProportional() const { return isProportional; }

    // The tile loop.
    bool isEmpty() const { return numOfRows < 1 || numOfColumns < 1; }
    long getNumOfRows() const { return numOfRows; }
    long getNumOfColumns() const { return numOfColumns; }
    void getFirstTile(float& x, float& y) const;
    // x, y, width, height of one tile.
    void getTile(long row, long column, float rect[4]) const;

    void dump(short depth, std::ostream& out) const;

private:
    // Works out the destination and the tile counts after every change.
    void calculate();
    void calculateSize(float& width, float& height) const;
    // The start of a length placed in the anchor along one direction:
    // `cell` 0 at its start, 1 centred, 2 at its end.
    static float place(float anchorStart, float anchorLength, float length, int cell);

    long sourceWidth = 0;
    long sourceHeight = 0;
    float anchorLeft = 0.0f;
    float anchorTop = 0.0f;
    float anchorWidth = 0.0f;
    float anchorHeight = 0.0f;
    float destLeft = 0.0f;
    float destTop = 0.0f;
    float destWidth = 0.0f;
    float destHeight = 0.0f;
    short adjustment = kDefaultAdjustment;
    short location = kDefaultLocation;
    bool isProportional = false;
    long numOfRows = 0;
    long numOfColumns = 0;
};

}  // namespace Velarix
