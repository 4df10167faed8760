// The common part of a style record: the series and the items it is for,
// and the making and copying of the paints and strokes that records hold.
//
// Series are numbered from 1, as in the script. A record without item
// numbers is for its whole series; item numbers are those of the script's
// selection (1 is the first item of a series) and are kept sorted, each
// once. The default records of a chart have series 0.
//
// A record's assign reads a style call from the argument behind the
// selection; a void argument leaves its field as it stands, so that a call
// changes only what it names.
#pragma once

#include <memory>
#include <ostream>
#include <vector>

#include "graphics/vxColorOLD.h"
#include "settings/vxErrorHolder.h"

namespace Velarix {

class vxAssign;
class vxGObjectOLD;
class vxPaintOLD;
class vxStrokeOLD;
class vxUserSettings;

class vxStyle : public vxErrorHolder {
public:
    // Stroke kinds a record can hold.
    enum StrokeKind : short { kBasicStroke = 1, kCombinedStroke = 2, kWaveStroke = 3 };

    vxStyle(const wchar_t* name, vxUserSettings* owner);
    ~vxStyle() override;
    vxStyle(const vxStyle&) = delete;
    vxStyle& operator=(const vxStyle&) = delete;

    long getSeriesIndex() const { return seriesIndex; }
    void setSeriesIndex(long value) { seriesIndex = value; }
    const std::vector<long>& getItemIndices() const { return itemIndices; }
    bool hasItems() const { return !itemIndices.empty(); }
    bool hasItem(long item) const;
    // Adds the numbers not yet held; false, with error 5000 at
    // "/mergeItems/1", when memory runs out.
    bool mergeItems(const std::vector<long>& items);

    vxUserSettings* getOwnerSettings() const { return owner; }

    // Reads the call at the argument offset (behind the selection).
    virtual bool assign(vxAssign& assign) = 0;
    virtual void dump(short depth, std::ostream& out) const;

    // The colour of the default record `number`: the colour that the
    // script's palette index number + 1 gives in the owner's palette. The
    // first colour of the standard palette is white, the page's own colour;
    // counting from the second, record 1 is black and no default series is
    // drawn white on white.
    static vxColorOLD colorOfNumber(long number, const vxUserSettings* settings);

protected:
    // The series and items of `from`; null clears them.
    bool copySelection(const vxStyle* from);
    void dumpSelection(std::ostream& out) const;
    // Takes the error of a part when it has one; false then.
    bool takeError(const vxErrorHolder* part);
    // Gives the object a border of width 1 and a border and fill in the
    // colour of `number`; false, with the error taken, on failure.
    bool paintInNumber(vxGObjectOLD& object, long number);

    // A new paint of a kind (vxPaintOLD's codes) at "/createBasicPaint/1",
    // "/createLinearGradient/1", "/createRadialGradient/1" or
    // "/createTexturePaint/1"; a copy of `from` the same way, null for none.
    bool createPaint(std::unique_ptr<vxPaintOLD>& slot, short kind);
    bool copyPaint(std::unique_ptr<vxPaintOLD>& slot, const vxPaintOLD* from);
    // A basic paint of the colour of default record `number`.
    bool createNumberedPaint(std::unique_ptr<vxPaintOLD>& slot, long number);
    // The colour and pattern at the argument offset; a colour of another
    // kind replaces the paint. The offset moves past both.
    bool assignPaint(std::unique_ptr<vxPaintOLD>& slot, vxAssign& assign);

    // A new stroke of a StrokeKind at "/createBasicStroke/1",
    // "/createCombinedStroke/1" or "/createWaveStroke/1"; a copy of `from`
    // the same way, null for none.
    bool createStroke(std::unique_ptr<vxStrokeOLD>& slot, short kind);
    bool copyStroke(std::unique_ptr<vxStrokeOLD>& slot, const vxStrokeOLD* from);

    vxUserSettings* owner;  // not owned

private:
    long seriesIndex = 0;
    std::vector<long> itemIndices;
};

}  // namespace Velarix
