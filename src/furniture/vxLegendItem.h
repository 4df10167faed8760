// One entry of a legend: a marker and a text beside, above, below or over
// it. The marker is made of up to three parts in a box of the legend's
// marker size: an area, a line across the box and a symbol in its middle;
// derived classes make them for what the entry stands for.
//
// The text stands by the marker as a keypad place says (1 to 9, another
// number is 6): the middle row puts it left of the marker (4), over it (5)
// or right of it (6); the top and bottom rows put it above or below, the
// two aligned to the left, the middle or the right.
//
// An entry is laid out in the cell the legend gives it, which is at least
// as large as its size, and centred in it across the marker and the text:
// beside the marker, the marker keeps to the cell's edge and the text
// stands in the rest of the cell by its own alignment.
#pragma once

#include <memory>
#include <ostream>
#include <string>

#include "settings/vxErrorHolder.h"

namespace Velarix {

class vxBasicSymbol;
class vxLayer;
class vxLine2DOLD;
class vxPath2DOLD;
class vxText;
class vxUserSettings;

class vxLegendItem : public vxErrorHolder {
public:
    // The measures every entry of a legend shares, in points.
    struct Layout {
        float markerWidth = 12.0f;
        float markerHeight = 12.0f;
        float markerGap = 4.0f;
        short textLocation = 6;
    };

    // `className` is a literal that outlives the item.
    explicit vxLegendItem(vxUserSettings* owner, const wchar_t* className = L"vxLegendItem");
    ~vxLegendItem() override;

    // The text: a copy of `reference` (font, paint, alignment, limits,
    // orientation) that shows `text`. Error 5000 at "/addText/1".
    bool addText(const vxText& reference, const std::wstring& text);
    // Width and height of marker and text together.
    void getSize(const Layout& layout, float size[2]);
    // Lays marker and text out in the cell, left, top, right, bottom.
    void place(const float cell[4], const Layout& layout);
    void shift(float dx, float dy);
    // Puts the marker's parts, then the text, into the layer, which draws
    // them where they stand; false with the layer's error.
    bool addTo(vxLayer& layer);

    // The marker and the text, as placed.
    const float* getBounds();
    const float* getMarkerBox() const { return markerBox; }
    const vxText* getText() const { return text.get(); }
    const vxPath2DOLD* getArea() const { return area.get(); }
    const vxLine2DOLD* getLine() const { return line.get(); }
    const vxBasicSymbol* getSymbol() const { return symbol.get(); }

    virtual void dump(short depth, std::ostream& out) const;

protected:
    // The marker's parts lie in the box from (0, 0) to (markerBox[2],
    // markerBox[3]) when made: the size of the box goes there first.
    void setMarkerSize(float width, float height);

    vxUserSettings* owner;  // not owned
    std::unique_ptr<vxText> text;
    std::unique_ptr<vxPath2DOLD> area;
    std::unique_ptr<vxLine2DOLD> line;
    std::unique_ptr<vxBasicSymbol> symbol;

private:
    bool hasText() const;
    // The text's extent (its turned box), 0 without a text.
    void getTextSize(float size[2]);
    // The top left corners of marker and text in the cell, `t` the text's
    // size, by the column or the row of the text's place.
    void placeBeside(const float cell[4], const Layout& layout, int column, const float t[2],
                     float marker[2], float at[2]) const;
    void placeAcross(const float cell[4], const Layout& layout, int row, int column,
                     const float t[2], float marker[2], float at[2]) const;
    void moveMarkerTo(float left, float top);
    void moveTextTo(float left, float top);
    // A picture fill lies on the marker box.
    void anchorPicture();

    float markerBox[4] = {};
    float bounds[4] = {};
    bool doRecalcBounds = true;
};

}  // namespace Velarix
