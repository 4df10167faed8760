// How the value labels of a series look and where they stand: a label with
// its text's font, colour and layout and its background, the location
// about the point or bar, an offset, the range of values that get a label,
// and the label texts.
//
// A label text is a number or date format, or a literal text; the marker
// "DEFAULT_FORMAT" says that no format was given. Several texts are given
// to the items in turn: item i (from 1) takes text (i - 1) modulo their
// number. An empty text shows no label.
//
// In a script:
//   LabelStyle: font name, size, style, colour, horizontal alignment,
//     angle, maximal width and height, ellipsis position;
//   LabelOptions: location, x and y offset, lower and upper value limit;
//   LabelTexts: the texts, one an argument;
//   LabelBackground: fill, border and shadow of the background;
//   LabelBackgroundOptions: margins, shape and the shape's options.
#pragma once

#include <memory>
#include <ostream>
#include <string>
#include <vector>

#include "styles/vxStyle.h"

namespace Velarix {

class vxLabel;

class vxLabelStyle : public vxStyle {
public:
    // The chart's default location stands for -1.
    static constexpr short kDefaultLocation = -1;
    static constexpr const wchar_t* kDefaultFormat = L"DEFAULT_FORMAT";

    // Every record starts as the default label: the owner's font, no
    // background, the default location and format, no value limits.
    explicit vxLabelStyle(vxUserSettings* owner, long number = 1);
    ~vxLabelStyle() override;

    bool setDefaults(long number);
    // A deep copy; null resets to the defaults.
    bool set(const vxLabelStyle* from);
    // Reads any of the label calls by the call's function.
    bool assign(vxAssign& assign) override;
    void dump(short depth, std::ostream& out) const override;

    const vxLabel* getLabel() const { return label.get(); }
    short getLocation() const { return location; }
    float getXOffset() const { return xOffset; }
    float getYOffset() const { return yOffset; }
    double getLowerLimit() const { return lowerLimit; }
    double getUpperLimit() const { return upperLimit; }
    // Whether a value lies in the limits, both ends included.
    bool isInLimits(double value) const { return value >= lowerLimit && value <= upperLimit; }
    const std::vector<std::wstring>& getTexts() const { return texts; }
    // The text of an item, numbered from 1; items below 1 take the first.
    const std::wstring& getText(long item) const;

private:
    bool createLabel();
    bool assignStyle(vxAssign& assign);
    void assignOptions(vxAssign& assign);
    bool assignTexts(vxAssign& assign);

    std::unique_ptr<vxLabel> label;
    short location = kDefaultLocation;
    float xOffset = 0.0f;
    float yOffset = 0.0f;
    double lowerLimit = 0.0;
    double upperLimit = 0.0;
    std::vector<std::wstring> texts;
};

}  // namespace Velarix
