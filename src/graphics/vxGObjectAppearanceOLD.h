// The look of one graphic object: border stroke, border paint, fill paint
// and shadow, each made when first asked for. A part of another kind than
// the one asked for is replaced.
#pragma once

#include <memory>
#include <ostream>

#include "settings/vxErrorHolder.h"

namespace Velarix {

class vxStrokeOLD;
class vxPaintOLD;
class vxShadowOLD;
class vxUserSettings;

class vxGObjectAppearanceOLD : public vxErrorHolder {
public:
    // Stroke kinds that can be asked for.
    enum StrokeKind : short { kBasicStroke = 1, kCombinedStroke = 2, kWaveStroke = 3 };

    explicit vxGObjectAppearanceOLD(vxUserSettings* owner);
    ~vxGObjectAppearanceOLD() override;

    const vxStrokeOLD* getBorderStroke() const { return borderStroke.get(); }
    const vxPaintOLD* getBorderPaint() const { return borderPaint.get(); }
    const vxPaintOLD* getFillPaint() const { return fillPaint.get(); }
    const vxShadowOLD* getShadow() const { return shadow.get(); }
    vxStrokeOLD* borderStrokeOf(short kind);
    vxPaintOLD* borderPaintOf(short kind);
    vxPaintOLD* fillPaintOf(short kind);
    vxShadowOLD* shadowPart();

    bool setBorderStroke(const vxStrokeOLD& from);
    bool setBorderPaint(const vxPaintOLD& from);
    bool setFillPaint(const vxPaintOLD& from);
    bool setShadow(const vxShadowOLD& from);

    // A border paint that isn't none.
    bool hasBorder() const;
    // A fill paint that isn't none.
    bool hasFill() const;
    // A shadow that is set to show.
    bool hasShadow() const;

    void reset();
    void copy(const vxGObjectAppearanceOLD* from);
    void dump(short depth, std::ostream& out) const;

private:
    vxUserSettings* ownerSettings;  // not owned
    std::unique_ptr<vxStrokeOLD> borderStroke;
    std::unique_ptr<vxPaintOLD> borderPaint;
    std::unique_ptr<vxPaintOLD> fillPaint;
    std::unique_ptr<vxShadowOLD> shadow;
};

}  // namespace Velarix
