// The title of a chart: a title line and a subtitle below it, aligned to
// each other, in an optional background. TitleText gives the two texts,
// TitleStyle and TitleSubStyle their fonts, TitleOptions the place, the
// shift, the gap between the two texts and their alignment, and
// TitleBackground and TitleBackgroundOptions the background and its margins.
//
// The title stands at the top centre of the chart unless its place says
// otherwise; outside the plot it takes a band of the chart's room (see
// vxChartBoxPlacement). A text wider than the room it may take is wrapped,
// and one that then grows too high is cut with an ellipsis, so that the
// plot keeps its room.
#pragma once

#include <memory>
#include <ostream>

#include "furniture/vxChartBox.h"
#include "settings/vxErrorHolder.h"

namespace Velarix {

class vxAssign;
class vxLabel;
class vxLayerManager;
class vxText;
class vxUserSettings;

class vxTitle : public vxErrorHolder, public vxChartBox {
public:
    // The gap between title and subtitle, and the margins of the box.
    static constexpr float kDefaultSubTitleOffset = 2.0f;
    static constexpr float kDefaultMargin = 3.0f;
    // The title's font is this much larger than the default font.
    static constexpr float kTitleFontScale = 1.4f;

    explicit vxTitle(vxUserSettings* owner);
    ~vxTitle() override;

    void assign(vxAssign& assign);
    bool isEmpty() const;
    // Lays out the texts in a box of at most `maxWidth` by `maxHeight` and
    // measures it: each text takes at most a quarter of that height.
    void setUp(float maxWidth, float maxHeight);
    // A layer of type 52: the background, the title, the subtitle.
    void setUpLayer(vxLayerManager* layerMng);
    // Inside the box, edges included.
    bool containsPoint(float x, float y) const;

    short getBoxLocation() const override;
    bool isBoxInside() const override { return doPlaceInside; }
    void getBoxOffsets(float offsets[2]) const override;
    void getBoxSize(float size[2]) const override;
    void moveBoxTo(float left, float top) override;

    const vxText* getTitle() const { return title.get(); }
    const vxText* getSubTitle() const { return subTitle.get(); }
    const float* getBounds() const { return bounds; }

    void dump(short depth, std::ostream& out) const;

private:
    bool createText(std::unique_ptr<vxText>& text, const wchar_t* method);
    bool createBackground();
    void assignTexts(vxAssign& assign);
    void assignOptions(vxAssign& assign);
    void fitText(vxText& text, float maxWidth, float maxHeight);
    void layOutTexts();
    bool hasText(const std::unique_ptr<vxText>& text) const;

    vxUserSettings* owner;  // not owned
    bool doPlaceInside = false;
    short location = 0;
    float xOffsetDC = 0.0f;
    float yOffsetDC = 0.0f;
    short titleAlignment = 2;
    float subTitleOffsetDC = kDefaultSubTitleOffset;
    float bounds[4] = {};
    bool doRecalcBounds = true;
    std::unique_ptr<vxText> title;
    std::unique_ptr<vxText> subTitle;
    // The frame of the box: its text stays empty, its content is the two
    // texts.
    std::unique_ptr<vxLabel> background;
};

}  // namespace Velarix
