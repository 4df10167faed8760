// How the bars of a series look: the caps at their start and end and the
// profile (the cross section) of a 3D bar.
//
// Cap types: 0 straight, 1 pike, 2 skew up, 3 skew down, 4 notch, 5 round,
// 6 round up, 7 round down, 8 beak up, 9 beak down, 10 round notch; a
// cap's size is a percentage of the bar's width. Profile types: 0 rect,
// 1 oval, 2 plate, 3 triangle, 4 diamond, 5 pentagon, 6 hexagon.
//
// In a script: start cap type, start cap size, end cap type, end cap size,
// profile type, profile angle (degrees) and profile flag.
#pragma once

#include <ostream>

#include "styles/vxStyle.h"

namespace Velarix {

class vxBarStyle : public vxStyle {
public:
    static constexpr float kDefaultCapSizePercent = 50.0f;

    // The record numbered `number`; bars take their colours from the fill
    // styles, so the number changes nothing here.
    explicit vxBarStyle(vxUserSettings* owner, long number = 1);
    ~vxBarStyle() override;

    bool setDefaults(long number);
    // A deep copy; null resets to the defaults of record 1.
    bool set(const vxBarStyle* from);
    bool assign(vxAssign& assign) override;
    void dump(short depth, std::ostream& out) const override;

    short getProfileType() const { return profileType; }
    // The profile is the shape a 3D bar is drawn in.
    short getBarShape() const { return profileType; }
    float getProfileAngle() const { return profileAngle; }
    short getProfileFlag() const { return profileFlag; }
    short getStartCapType() const { return startCapType; }
    short getEndCapType() const { return endCapType; }
    float getStartCapSizePercent() const { return startCapSizePercent; }
    float getEndCapSizePercent() const { return endCapSizePercent; }

private:
    short profileType = 0;
    float profileAngle = 0.0f;
    short profileFlag = 0;
    short startCapType = 0;
    short endCapType = 0;
    float startCapSizePercent = kDefaultCapSizePercent;
    float endCapSizePercent = kDefaultCapSizePercent;
};

}  // namespace Velarix
