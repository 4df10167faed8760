// The output targets of a drawing: each SaveAs... call adds a target, and
// after layout every target gets a device that the layers draw into.
//
// The run uses it in this order:
//   1. reset(): forget the targets of an earlier run;
//   2. assign(call): one call per output function of the script;
//   3. setUp(specs): the drawing's size and rendering flags;
//   4. write(layerMng): each target's device is opened, drawn and closed.
// Memory streams for the host are read afterwards with getNumOfStreams.
#pragma once

#include <ostream>

#include "output/vxStreamRecord.h"
#include "settings/vxErrorHolder.h"

namespace Velarix {

class vxAssign;
class vxDrawingSpecs;
class vxLayerManager;

class vxOutputWIN : public vxErrorHolder {
public:
    vxOutputWIN();
    ~vxOutputWIN() override;

    virtual void reset();
    virtual void assign(vxAssign& assign);
    virtual void setUp(const vxDrawingSpecs* specs);
    virtual void write(vxLayerManager* layerMng);
    virtual long getNumOfStreams() const { return 0; }
    // The stream of the given index, in the order the script asked for
    // them; null when there is none.
    virtual const vxStreamRecord* getStream(long index) const { return nullptr; }
    virtual void dump(short depth, std::ostream& out) const;
};

}  // namespace Velarix
