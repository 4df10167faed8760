// The root of an object's look: paints, strokes and shadows. Each part has a
// state (1 normal, 2 or 3) and copies itself by going back to its defaults
// and then taking the fields of a part of its own class.
#pragma once

#include <memory>
#include <ostream>
#include <string>

#include "settings/vxErrorHolder.h"

namespace Velarix {

class vxAppearance : public vxErrorHolder {
public:
    explicit vxAppearance(const wchar_t* name);
    ~vxAppearance() override;

    short getState() const { return state; }
    // 1, 2 or 3; any other value is stored as 0.
    void setState(short value);
    bool isState2() const { return state == 2; }
    bool isState3() const { return state == 3; }

    void setDefaults();
    // Resets, then takes the state and fields of `from`. A part of another
    // class is not copied: the defaults stay and the answer is false. Null
    // only resets.
    bool copy(const vxAppearance* from);

    void dump(short depth, std::ostream& out) const;

protected:
    // Each class resets and copies its own fields after those of its base.
    virtual void resetFields() = 0;
    virtual void copyFields(const vxAppearance& from) = 0;
    virtual void dumpFields(short depth, std::ostream& out) const;

    // A new T with the fields of `self`. A failed allocation throws
    // std::bad_alloc, which the caller's create step turns into its error.
    template <class Base, class T>
    static std::unique_ptr<Base> cloneOf(const T& self) {
        auto part = std::make_unique<T>();
        part->copy(&self);
        return part;
    }

private:
    short state = 1;
};

}  // namespace Velarix
