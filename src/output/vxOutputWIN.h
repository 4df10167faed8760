// The output of a drawing: the script's SaveAs functions become devices
// with targets, and after layout every device draws the layers and writes
// its targets.
//
// The run uses it in this order:
//   1. reset(): forget the devices of an earlier run;
//   2. assign(call): one call per output function of the script;
//   3. setUp(specs): a drawing for the host gets its PDF stream, and every
//      device learns the drawing's size;
//   4. write(layerMng): for each device in the order of creation: open,
//      the layers draw into it, close; the first error ends the run.
// Memory streams for the host are read afterwards with getStream.
#pragma once

#include <memory>
#include <ostream>
#include <vector>

#include "output/vxStreamRecord.h"
#include "settings/vxErrorHolder.h"

namespace Velarix {

class vxAssign;
class vxDevice;
class vxDrawingSpecs;
class vxLayerManager;
class vxUserSettings;

class vxOutputWIN : public vxErrorHolder {
public:
    // At most this many targets over all devices.
    static constexpr long kMaxTargets = 100;
    // The drawing's rendering code that sends the picture to the host.
    static constexpr short kHostTarget = -1;

    explicit vxOutputWIN(vxUserSettings* settings = nullptr);
    ~vxOutputWIN() override;

    virtual void reset();
    virtual void assign(vxAssign& assign);
    virtual void setUp(const vxDrawingSpecs* specs);
    virtual void write(vxLayerManager* layerMng);
    virtual long getNumOfStreams() const;
    // The stream of the given index, in the order the script asked for
    // them; null when there is none.
    virtual const vxStreamRecord* getStream(long index) const;

    long getNumOfDevices() const { return static_cast<long>(devices.size()); }
    vxDevice* getDevice(long index) const;
    long getNumOfTargets() const;

    virtual void dump(short depth, std::ostream& out) const;

private:
    void addTarget(vxAssign& assign);
    vxDevice* addDevice(short deviceID);
    vxDevice* findDevice(short deviceID) const;
    void setUpFileTarget(vxDevice& device, const vxAssign& assign, short format);
    void setMetadata(vxDevice& device, const vxAssign& assign, short format);
    bool writeDevice(vxDevice& device, vxLayerManager* layerMng);
    void addHostStream();

    short defaultDeviceID = 4;
    vxUserSettings* userSettings;  // not owned
    std::vector<std::unique_ptr<vxDevice>> devices;
};

}  // namespace Velarix
