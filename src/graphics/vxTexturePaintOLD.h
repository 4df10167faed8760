// A paint that tiles or places a picture. Bars that stack pictures tell by
// the stack values how much data one picture stands for (stackValueUC) and
// how much drawing length (stackValueDC).
//
// The picture is an owned vxImage, made by createImage; copying the paint
// copies it.
#pragma once

#include <memory>
#include <ostream>

#include "graphics/vxPaintOLD.h"

namespace Velarix {

class vxImage;

class vxTexturePaintOLD : public vxPaintOLD {
public:
    vxTexturePaintOLD();
    ~vxTexturePaintOLD() override;

    short getType() const override { return kTexture; }
    // A picture is drawn as it is: never none, always opaque.
    bool isNone() const override { return false; }
    bool isTranslucent() const override { return false; }
    bool isOpaque() const override { return true; }
    void brighten(float) override {}
    void darken(float) override {}
    const vxColorOLD* getColor() const override { return nullptr; }

    // An image and anchor bounds of some width and height.
    bool hasImage() const;
    vxImage* getImage() const { return image.get(); }
    // A new, empty image in place of the old one; error 5000 at
    // "/createImage/1" when it can't be made.
    bool createImage();
    // A copy of `from`; null drops the image.
    bool setImage(const vxImage* from);
    // The picture of a script call (vxImage::assign) into a new image.
    bool assignImage(vxAssign& assign);
    bool hasStackValue() const { return stackValueUC > 1e-10; }
    double getStackValueUC() const { return stackValueUC; }
    void setStackValueUC(double value) { stackValueUC = value; }
    float getStackValueDC() const { return stackValueDC; }
    void setStackValueDC(float value) { stackValueDC = value; }
    short getAlignment() const { return alignment; }
    void setAlignment(short value) { alignment = value; }
    // Left, top, right, bottom.
    void getAnchorBounds(float bounds[4]) const;
    void setAnchorBounds(const float bounds[4]);

    std::unique_ptr<vxPaintOLD> clone() const override;
    // Colour numbers don't apply to a picture: the arguments are passed over.
    bool assign(vxAssign& assign, const vxUserSettings* settings) override;

protected:
    void resetFields() override;
    void copyFields(const vxAppearance& from) override;
    void dumpFields(short depth, std::ostream& out) const override;

private:
    std::unique_ptr<vxImage> image;
    double stackValueUC = 0.0;
    float stackValueDC = 0.0f;
    short alignment = -1;
    float anchorBounds[4] = {0.0f, 0.0f, 0.0f, 0.0f};
};

}  // namespace Velarix
