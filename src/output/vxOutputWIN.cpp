#include "output/vxOutputWIN.h"

#include "drawing/vxDrawingSpecs.h"
#include "drawing/vxLayerManager.h"
#include "host/vxLog.h"
#include "output/vxDevice.h"
#include "output/vxDeviceGDIPlus.h"
#include "output/vxDevicePDF.h"
#include "output/vxDeviceSVG.h"
#include "output/vxExternal.h"
#include "output/vxWriteExternal.h"
#include "output/vxWriteFile.h"
#include "script/vxAssign.h"
#include "script/vxFunctionIds.h"

namespace Velarix {

namespace {

// The file format of an output function and the device that writes it.
struct OutputKind {
    short format;
    short deviceID;
};

OutputKind outputKindOf(long function) {
    switch (function) {
        case kSaveAsGIFFile:
            return {kFormatGIF, vxDevice::kGDIPlus};
        case kSaveAsJPGFile:
            return {kFormatJPEG, vxDevice::kGDIPlus};
        case kSaveAsTIFFile:
            return {kFormatTIFF, vxDevice::kGDIPlus};
        case kSaveAsPNGFile:
            return {kFormatPNG, vxDevice::kGDIPlus};
        case kSaveAsBMPFile:
            return {kFormatBMP, vxDevice::kGDIPlus};
        case kSaveAsPCTFile:
            return {kFormatPICT, 0};
        // EMF needs a recorder of vector commands, which this platform
        // lacks: like PICT it is passed over.
        case kSaveAsEMFFile:
            return {kFormatEMF, 0};
        case kSaveAsPDFFile:
            return {kFormatPDF, vxDevice::kPDF};
        case kSaveAsSVGFile:
            return {kFormatSVG, vxDevice::kSVG};
        case kSaveAsSWFFile:
            return {kFormatSWF, vxDevice::kSWF};
        default:
            return {0, 0};
    }
}

}  // namespace

vxOutputWIN::vxOutputWIN(vxUserSettings* settings)
    : vxErrorHolder(L"vxOutputWIN"), userSettings(settings) {}

vxOutputWIN::~vxOutputWIN() = default;

void vxOutputWIN::reset() {
    devices.clear();
    clearError();
}

vxDevice* vxOutputWIN::getDevice(long index) const {
    if (index < 0 || index >= getNumOfDevices()) return nullptr;
    return devices[static_cast<size_t>(index)].get();
}

long vxOutputWIN::getNumOfTargets() const {
    long count = 0;
    for (const auto& device : devices) count += device->getNumOfTargets();
    return count;
}

vxDevice* vxOutputWIN::findDevice(short deviceID) const {
    for (const auto& device : devices) {
        if (device->getDeviceID() == deviceID) return device.get();
    }
    return nullptr;
}

// A new device of the kind; formats whose device this build doesn't have
// are reported as unknown.
vxDevice* vxOutputWIN::addDevice(short deviceID) {
    std::unique_ptr<vxDevice> device;
    try {
        if (deviceID == vxDevice::kSVG) device = std::make_unique<vxDeviceSVG>(userSettings);
        if (deviceID == vxDevice::kPDF) device = std::make_unique<vxDevicePDF>(userSettings);
        if (deviceID == vxDevice::kGDIPlus) {
            device = std::make_unique<vxDeviceGDIPlus>(userSettings);
        }
    } catch (const std::bad_alloc&) {
        setError(vxErrRuntime::kOutOfMemory, where(L"addDevice"));
        return nullptr;
    }
    if (!device) {
        setError(vxErrFile::kUnknownFormat, where(L"addDevice", 2));
        return nullptr;
    }
    devices.push_back(std::move(device));
    return devices.back().get();
}

void vxOutputWIN::assign(vxAssign& a) {
    if (a.getFunction() == kSendToClipboard) return;  // no clipboard on this platform
    addTarget(a);
}

void vxOutputWIN::addTarget(vxAssign& a) {
    if (getNumOfTargets() >= kMaxTargets) {
        setError(vxErrLimits::kTooManyOutputFiles, where(L"tooManyTargets"));
        return;
    }
    const OutputKind kind = outputKindOf(a.getFunction());
    if (kind.deviceID == 0) return;
    vxDevice* device = nullptr;
    if (kind.deviceID == vxDevice::kGDIPlus) device = findDevice(vxDevice::kGDIPlus);
    if (!device) device = addDevice(kind.deviceID);
    if (!device) return;
    device->addTarget(kTargetFile);
    if (device->isError()) return copyError(device->getError());
    setUpFileTarget(*device, a, kind.format);
    setMetadata(*device, a, kind.format);
}

void vxOutputWIN::setUpFileTarget(vxDevice& device, const vxAssign& a, short format) {
    vxWriteExternal* target = device.getLastTarget();
    if (!target) return;
    target->setFileName(a.getString(0));
    target->setFileFlag(a.getShort(1, kFileFlagCounter));
    target->setFormat(format);
    if (format == kFormatJPEG && !a.isVoid(3)) {
        target->setCompressionQuality(static_cast<short>(a.getShort(3) * 20));
    }
}

void vxOutputWIN::setMetadata(vxDevice& device, const vxAssign& a, short format) {
    if (format == kFormatPDF) {
        if (!a.isVoid(3)) device.setTitle(a.getString(3));
        if (!a.isVoid(4)) device.setAuthor(a.getString(4));
        if (!a.isVoid(5)) device.setSubject(a.getString(5));
        if (!a.isVoid(6)) device.setKeywords(a.getString(6));
        if (!a.isVoid(7)) device.setCreator(a.getString(7));
    } else if (format == kFormatSVG) {
        if (!a.isVoid(3)) device.setTitle(a.getString(3));
        if (!a.isVoid(4)) device.setDescription(a.getString(4));
        if (!a.isVoid(5)) device.setComment(a.getString(5));
    }
}

// A drawing that goes back to the host as its picture gets a PDF device
// with a stream target, unless the script made one already.
void vxOutputWIN::setUp(const vxDrawingSpecs* specs) {
    if (!specs) return;
    if (specs->getRenderingInfo() == kHostTarget) addHostStream();
    if (isError()) return;
    for (auto& device : devices) device->setUp(*specs);
}

void vxOutputWIN::addHostStream() {
    for (const auto& device : devices) {
        if (device->getDeviceID() != vxDevice::kPDF) continue;
        for (long i = 0; i < device->getNumOfStreams(); ++i) {
            if (device->getStream(i)) return;
        }
    }
    vxDevice* device = addDevice(vxDevice::kPDF);
    if (!device) return;
    device->addTarget(kTargetStream);
    if (device->isError()) return copyError(device->getError());
    if (vxWriteExternal* target = device->getLastTarget()) target->setFormat(kFormatPDF);
}

bool vxOutputWIN::writeDevice(vxDevice& device, vxLayerManager* layerMng) {
    device.open();
    if (device.isError()) {
        copyError(device.getError());
        return false;
    }
    if (layerMng) {
        layerMng->write(device);
        if (layerMng->isError()) {
            copyError(layerMng->getError());
            device.close();
            return false;
        }
    }
    device.close();
    if (device.isError()) {
        copyError(device.getError());
        return false;
    }
    return true;
}

void vxOutputWIN::write(vxLayerManager* layerMng) {
    for (auto& device : devices) {
        if (!writeDevice(*device, layerMng)) return;
    }
}

long vxOutputWIN::getNumOfStreams() const {
    long count = 0;
    for (const auto& device : devices) count += device->getNumOfStreams();
    return count;
}

const vxStreamRecord* vxOutputWIN::getStream(long index) const {
    for (const auto& device : devices) {
        const long count = device->getNumOfStreams();
        if (index < count) return device->getStream(index);
        index -= count;
    }
    return nullptr;
}

void vxOutputWIN::dump(short depth, std::ostream& out) const {
    if (depth <= 0) return;
    vxDumpHeader(out, "vxOutputWIN");
    vxDumpLine(out, "short defaultDeviceID: ", defaultDeviceID);
    vxDumpLine(out, "Num of devices: ", getNumOfDevices());
    vxDumpLine(out, "Num of streams: ", getNumOfStreams());
    for (const auto& device : devices) device->dump(static_cast<short>(depth - 1), out);
    vxDumpEnd(out);
}

}  // namespace Velarix
