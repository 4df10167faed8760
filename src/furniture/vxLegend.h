// The legend of a chart: one marker and one text per entry, laid out in
// rows and columns inside a background of its own. The chart makes it at
// the first Legend... call, sets it up once the series are read, reserves
// room for it or places it in the plot, and then asks for its layer.
//
// Entries: one per series of the chart, or, once LegendTexts has given
// texts, one per text; an entry whose text is left out shows the default
// word of the language and its number ("Series 2"). The entry of number k
// takes the look of series k, whatever the number of series.
//
// Script calls:
//   LegendOptions: place (keypad 1 to 9, 0 automatic: centre right),
//     inside the plot, x and y offsets, a list of rows, columns and five
//     flags (column by column, reversed, equal column widths, equal row
//     heights, centre incomplete rows), marker type, marker width and
//     height, marker gap, row gap, column gap, the text's place by the
//     marker, the area's shape. A void argument keeps its value. A
//     negative gap is a percentage of the font size.
//   LegendStyle: the font, colour, alignment, orientation and limits of
//     the texts. LegendTexts: the texts.
//   LegendBackground, LegendBackgroundOptions: the look of the background,
//     its margins (with the flag, percentages of the font size) and shape.
//
// The layout (vxLegendLayout.cpp): the grid of vxLegendGrid; each column
// as wide as its widest entry and each row as high as its highest (all as
// the largest with the equal flags); columns and rows apart by the gaps,
// the margins around them. An entry sits in the cell of its column and
// row; an incomplete row (column by column: column) may stand centred.
#pragma once

#include <memory>
#include <optional>
#include <ostream>
#include <string>
#include <vector>

#include "furniture/vxChartBox.h"
#include "furniture/vxLegendGrid.h"
#include "furniture/vxLegendItem.h"
#include "settings/vxErrorHolder.h"

namespace Velarix {

class vxAssign;
class vxBaseChart;
class vxChart;
class vxLabel;
class vxLayerManager;
class vxStyleManager;
class vxText;
class vxUserSettings;

class vxLegend : public vxErrorHolder, public vxChartBox {
public:
    static constexpr short kAutomaticLocation = 6;
    static constexpr long kDefaultNumOfRows = 10;
    static constexpr float kDefaultMarkerSize = 12.0f;
    static constexpr float kDefaultMarkerGap = 4.0f;
    static constexpr float kDefaultRowGap = 8.0f;
    static constexpr float kDefaultColumnGap = 6.0f;
    static constexpr float kDefaultMargin = 3.0f;

    explicit vxLegend(vxUserSettings* owner);
    ~vxLegend() override;

    // LegendOptions, LegendStyle, LegendTexts, LegendBackground,
    // LegendBackgroundOptions.
    void assign(vxAssign& assign);
    // Makes the entries for the chart's series and measures the legend.
    void setUp(const vxChart& chart);
    // A layer of type 51 with the background and the entries; nothing for
    // a legend without entries.
    void setUpLayer(vxLayerManager* layerMng);

    // ---- the steps of setUp -------------------------------------------------
    // The texts of the entries: those of LegendTexts, or one default text
    // for each of the series. Error 5000 at "/setUpTexts/1".
    void setUpTexts(long numOfSeries);
    // An entry for each text, its marker in the look of its series from the
    // chart class, or without one from the styles alone; marker type 0
    // takes the chart class's default. Error 5000 at "/createItems/1".
    void createItems(const vxBaseChart* chartType, const vxStyleManager* styles);
    // Arranges the entries, drops those the grid has no place for, lays
    // them out and measures the legend from (0, 0).
    void setUpBounds();

    // ---- results ---------------------------------------------------------
    long getNumOfEntries() const { return static_cast<long>(items.size()); }
    const vxLegendGrid& getGrid() const { return grid; }
    const std::vector<std::wstring>& getTexts() const { return texts; }
    const std::vector<float>& getColumnWidths() const { return columnWidthsDC; }
    const std::vector<float>& getRowHeights() const { return rowHeightsDC; }
    vxLegendItem* getItem(long index) const;
    const float* getBounds() const { return bounds; }
    const vxText* getReferenceText() const { return referenceText.get(); }
    const vxLabel* getBackground() const { return background.get(); }
    // The marker type in force: the one set, else the chart class's.
    short getMarkerType() const { return effectiveMarkerType; }

    // ---- options -----------------------------------------------------------
    short getLocation() const { return location; }
    long getNumOfRows() const { return numOfRows; }
    long getNumOfColumns() const { return numOfColumns; }
    bool doArrangeColumnByColumn() const { return arrangeColumnByColumn; }
    bool doArrangeReversed() const { return arrangeReversed; }
    bool doCenterIfIncomplete() const { return centerIfIncomplete; }
    short getTextLocation() const { return textLocation; }
    short getMarkerShape() const { return markerShape; }
    // The measures of the entries in points, gaps worked out.
    vxLegendItem::Layout getItemLayout() const;
    float getRowGapDC() const;
    float getColumnGapDC() const;

    short getBoxLocation() const override;
    bool isBoxInside() const override { return doPlaceInside; }
    void getBoxOffsets(float offsets[2]) const override;
    void getBoxSize(float size[2]) const override;
    void moveBoxTo(float left, float top) override;

    void dump(short depth, std::ostream& out) const;

private:
    bool createReferenceText();
    bool createBackground();
    void assignOptions(vxAssign& assign);
    void assignArrangement(const std::vector<short>& list);
    void assignTexts(vxAssign& assign);
    void assignBackgroundOptions(vxAssign& assign);
    // A gap at `index`: a negative one is a percentage of the font size.
    static void assignGap(const vxAssign& assign, long index, float& gap, bool& relative);
    float fontSize() const;
    float toDC(float value, bool relative) const;
    // ---- layout (vxLegendLayout.cpp) ----
    void dropEntriesBeyondGrid();
    bool measureItems(const vxLegendItem::Layout& layout, std::vector<float>& widths,
                      std::vector<float>& heights);
    void setUpColumnsWidths(const std::vector<float>& widths);
    void setUpRowHeights(const std::vector<float>& heights);
    void placeItems(const vxLegendItem::Layout& layout, float contentWidth, float contentHeight);
    void centerInLine(long entry, float cell[4], const std::vector<float>& lefts,
                      const std::vector<float>& tops, float contentWidth,
                      float contentHeight) const;
    void setUpBackground(float contentWidth, float contentHeight);
    void clearEntries();

    vxUserSettings* owner;  // not owned
    short languageID = 1;
    bool doPlaceInside = false;
    short location = 0;
    float xOffsetDC = 0.0f;
    float yOffsetDC = 0.0f;
    long numOfRows = kDefaultNumOfRows;
    long numOfColumns = vxLegendGrid::kAsNeeded;
    bool arrangeColumnByColumn = false;
    bool arrangeReversed = false;
    bool useEquidstantColumnWidths = false;
    bool useEquidstantRowHeights = false;
    bool centerIfIncomplete = false;
    short markerType = 0;
    short markerShape = 0;
    float markerWidthDC = kDefaultMarkerSize;
    float markerHeightDC = kDefaultMarkerSize;
    short textLocation = 0;
    float markerGap = kDefaultMarkerGap;
    float rowGap = kDefaultRowGap;
    float columnGap = kDefaultColumnGap;
    bool useRelativeMarkerGap = false;
    bool useRelativeRowGap = false;
    bool useRelativeColumnGap = false;
    float margins[4] = {kDefaultMargin, kDefaultMargin, kDefaultMargin, kDefaultMargin};
    bool useRelativeMargins = false;
    float bounds[4] = {};
    bool doRecalcBounds = true;
    std::vector<float> rowHeightsDC;
    std::vector<float> columnWidthsDC;
    std::vector<std::wstring> texts;
    // LegendTexts: an empty optional for a text left out.
    std::vector<std::optional<std::wstring>> givenTexts;
    short effectiveMarkerType = 0;
    vxLegendGrid grid;
    // The sample of the font and look of the texts.
    std::unique_ptr<vxText> referenceText;
    // The frame of the box: its text stays empty, its content is the grid.
    std::unique_ptr<vxLabel> background;
    std::vector<std::unique_ptr<vxLegendItem>> items;
};

}  // namespace Velarix
