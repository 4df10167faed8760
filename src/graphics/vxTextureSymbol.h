// A mark made of a picture, placed in the square of the symbol's size
// around its centre plus its offsets. Without a picture it draws nothing.
#pragma once

#include <memory>

#include "graphics/vxSymbol.h"

namespace Velarix {

class vxImage;

class vxTextureSymbol : public vxSymbol {
public:
    static constexpr float kDefaultSize = 16.0f;

    explicit vxTextureSymbol(vxUserSettings* owner = nullptr);
    ~vxTextureSymbol() override;

    short getType() const override { return kTypeTextureSymbol; }
    void drawBody(vxDevice& device) override;

    vxImage* getImage() const { return image.get(); }
    bool setImage(const vxImage& from);
    // Width and height of the square the picture is fitted into.
    void setSize(float size);

protected:
    void resetFields() override;
    void copyFields(const vxSymbol& from) override;

private:
    std::unique_ptr<vxImage> image;
};

}  // namespace Velarix
