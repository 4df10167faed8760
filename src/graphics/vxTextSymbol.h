// A mark made of a short text, centred on the symbol's centre plus its
// offsets. Without a text it draws nothing.
#pragma once

#include <memory>

#include "graphics/vxSymbol.h"

namespace Velarix {

class vxText;

class vxTextSymbol : public vxSymbol {
public:
    explicit vxTextSymbol(vxUserSettings* owner = nullptr);
    ~vxTextSymbol() override;

    short getType() const override { return kTypeTextSymbol; }
    void drawBody(vxDevice& device) override;

    vxText* getText() const { return text.get(); }
    // Makes the text when there is none; false when memory runs out.
    bool createText();
    bool setText(const vxText& from);

protected:
    void calculateBounds(float bounds[4]) const override;
    void resetFields() override;
    void copyFields(const vxSymbol& from) override;

private:
    // Puts the text's anchor on the drawing point, centred.
    void placeText() const;

    std::unique_ptr<vxText> text;
};

}  // namespace Velarix
