// Makes the graphic object of one Add... call of a script: shapes, lines,
// arrows, paths, clips, symbols, text and pictures. Positions in the call
// are relative to the view that takes the object; the builder moves them
// by the view's origin.
//
// Rectangles are given as x, y, width and height. Angles arrive in radians
// from the script reader: 0 at twelve o'clock, growing clockwise.
#pragma once

#include <memory>

#include "settings/vxErrorHolder.h"

namespace Velarix {

class vxAssign;
class vxGObjectOLD;
class vxPath2DOLD;
class vxUserSettings;

class vxAdditionBuilder : public vxErrorHolder {
public:
    vxAdditionBuilder(vxUserSettings* settings, float originX, float originY);
    ~vxAdditionBuilder() override;

    // The object of the call; null when the call is no Add... function or
    // the object failed, which the builder's error then tells.
    std::unique_ptr<vxGObjectOLD> build(vxAssign& assign);

private:
    std::unique_ptr<vxGObjectOLD> buildBox(vxAssign& assign);
    std::unique_ptr<vxGObjectOLD> buildLine(vxAssign& assign);
    std::unique_ptr<vxGObjectOLD> buildPointList(vxAssign& assign);
    std::unique_ptr<vxGObjectOLD> buildPath(vxAssign& assign);
    std::unique_ptr<vxGObjectOLD> buildClip(vxAssign& assign);
    std::unique_ptr<vxGObjectOLD> buildSymbol(vxAssign& assign);
    std::unique_ptr<vxGObjectOLD> buildText(vxAssign& assign);
    std::unique_ptr<vxGObjectOLD> buildPicture(vxAssign& assign);

    // Left, top, right and bottom of the four arguments at the offset, which
    // moves past them.
    // A border for outlined shapes, otherwise a fill; black when none is given.
    void readLook(vxGObjectOLD& object, vxAssign& a, bool outlined) const;
    void readBox(vxAssign& assign, float box[4]) const;
    // The outline of a box function into a path: rectangle, oval, rounded
    // rectangle, arc or slice, with the shape's own numbers after the box.
    bool makeBoxShape(vxAssign& assign, vxPath2DOLD& path, short shape);
    // Takes the object's error over; null after a failure.
    std::unique_ptr<vxGObjectOLD> checked(std::unique_ptr<vxGObjectOLD> object);

    vxUserSettings* settings;  // not owned
    float originX;
    float originY;
};

}  // namespace Velarix
