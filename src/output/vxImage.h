// The picture object: where a picture comes from (its source), how it maps
// onto a box (its mapping), the pixels when they are needed (its bitmap),
// a transform, and a list of further images. Each part is owned and made
// when first needed. Backgrounds, texture paints, texture symbols and
// added pictures use it; devices read it in drawImage.
//
// A picture that can't be read leaves its source with the fault and the
// image with a copy of it; such an image, like one of zero size, is empty,
// and devices skip empty images.
//
// In a script the picture functions give, from the argument offset on:
//   AddPicture, BackgroundPict, ChartBackgroundPict: the source kind
//     (1 clipboard, 2 resource, 3 file; default 1), the source, the
//     location (0 to 9, default 4), the adjustment ("crop" 1, "reduce" 2,
//     "enlarge" 3, "reduceorenlarge" 4, "tile" 5, which are the mapping's
//     keep, shrink, grow, fit and tile; left out, the picture fills its
//     box) and whether the ratio is kept (default no);
//   PictureStyle: the source kind and the source;
//   any other function: a name alone, which names a resource.
#pragma once

#include <memory>
#include <ostream>
#include <string>
#include <vector>

#include "settings/vxErrorHolder.h"

namespace Velarix {

class vxAssign;
class vxBitmap;
class vxDevice;
class vxGradientPaint;
class vxImageMapping;
class vxReadExternal;
class vxTransform2DOLD;

class vxImage : public vxErrorHolder {
public:
    vxImage();
    ~vxImage() override;

    // A new source of the kind, told the name; its size goes to the
    // mapping. An unknown kind is error 1130 at "/setSource/1"; a fault of
    // the source is copied here and the source is kept with it.
    bool setSource(short kind, const std::wstring& name);
    const vxReadExternal* getSource() const { return source.get(); }
    // The source's kind code; 0 without a source.
    short getSourceType() const;

    // Copies bitmap, source, mapping, transform and the list of images of
    // `from`, in this order, and stops at the first fault. Null resets.
    bool set(const vxImage* from);
    void setDefaults();

    // The anchor box, left, top, right, bottom.
    bool setMapping(const float bounds[4]);
    // Adjustment, location and whether the ratio is kept.
    bool setMapping(short adjustment, short location, bool isProportional);
    // A part of the picture onto a box, both left, top, right, bottom.
    bool setMapping(const float sourceBounds[4], const float destBounds[4]);
    const vxImageMapping* getMapping() const { return mapping.get(); }

    bool setTransform(const vxTransform2DOLD& transform);
    const vxTransform2DOLD* getTransform() const { return transform.get(); }

    // Pixels given by the caller, which then stand for the picture.
    bool setBitmap(const vxBitmap& bitmap);
    const vxBitmap* getBitmap() const { return bitmap.get(); }
    // Reads the source's pixels into the image's own bitmap.
    bool loadBitmap();
    // The pixels into `into`: a copy of the image's bitmap when it has one,
    // else read from the source. A fault is recorded in `into`.
    bool readBitmap(vxBitmap& into) const;

    bool addImage(const vxImage& image);
    long getNumOfImages() const { return static_cast<long>(images.size()); }
    const vxImage* getImage(long index) const;

    // The gradient of a gradient resource; null for any other picture.
    const vxGradientPaint* getGradient() const;
    // Nothing to draw: no picture, or one of zero width or height.
    bool isEmpty() const;
    // The size of one tile as the mapping places it; without a mapping the
    // picture's own size. False, with 0 and 0, for an empty picture.
    bool getTextureSize(float size[2]) const;

    // Reads the script form at the argument offset (see above) and moves
    // the offset past it.
    bool assign(vxAssign& assign);

    void draw(vxDevice& device) const;

    void dump(short depth, std::ostream& out) const;

private:
    bool createBitmap();
    bool createSource(short kind);
    bool createMapping();
    bool createTransform();
    bool copySource(const vxReadExternal& from);
    bool copyImages(const vxImage& from);
    // The script's adjustment (1 to 5, void for none) as a mapping code.
    static short toMappingAdjustment(const vxAssign& assign, long index);

    std::unique_ptr<vxBitmap> bitmap;
    std::unique_ptr<vxReadExternal> source;
    std::unique_ptr<vxImageMapping> mapping;
    std::unique_ptr<vxTransform2DOLD> transform;
    std::vector<std::unique_ptr<vxImage>> images;
};

}  // namespace Velarix
