// Setup and close of the PDF device: targets, metadata, the content's
// start, and the finished file handed to the targets and the host.
#include "output/vxDevicePDF.h"

#include <new>
#include <string>

#include "host/vxLog.h"
#include "output/vxNumberWriter.h"
#include "output/vxPDFFonts.h"
#include "output/vxWriteExternal.h"
#include "output/vxWriteStream.h"

namespace Velarix {

vxDevicePDF::vxDevicePDF(const vxUserSettings* settings)
    : vxShapeDevice(L"vxDevicePDF"),
      userSettings(settings),
      fonts(std::make_unique<vxPDFFonts>()) {}

vxDevicePDF::~vxDevicePDF() = default;

void vxDevicePDF::setTitle(const std::wstring& text) {
    if (!text.empty()) title = text;
}

void vxDevicePDF::setAuthor(const std::wstring& text) {
    if (!text.empty()) author = text;
}

void vxDevicePDF::setSubject(const std::wstring& text) {
    if (!text.empty()) subject = text;
}

void vxDevicePDF::setKeywords(const std::wstring& text) {
    if (!text.empty()) keywords = text;
}

void vxDevicePDF::setCreator(const std::wstring& text) {
    if (!text.empty()) creator = text;
}

// The first line turns the page's coordinates into the drawing's: origin
// at the top left, y downward.
void vxDevicePDF::open() {
    resources.clear();
    fonts->clear();
    file.clear();
    offsets.clear();
    pageState.clear();
    creationDate = modDate = dateText();
    try {
        content = "1 0 0 -1 0 " + vxNumberWriter::pdf(getHeight()) + " cm\r\n";
    } catch (const std::bad_alloc&) {
        setError(vxErrRuntime::kOutOfMemory, where(L"open"));
        return;
    }
    isOpenDocument = true;
}

void vxDevicePDF::close() {
    if (!isOpenDocument) return;
    isOpenDocument = false;
    try {
        fonts->finish(resources);
        writeFile();
    } catch (const std::bad_alloc&) {
        file.clear();
        setError(vxErrRuntime::kOutOfMemory, where(L"close"));
        return;
    }
    if (isError()) return;
    writeTargets();
}

void vxDevicePDF::block(const std::string& text) {
    try {
        content += text;
    } catch (const std::bad_alloc&) {
        setError(vxErrRuntime::kOutOfMemory, where(L"block"));
    }
}

std::string vxDevicePDF::addResource(vxPDFResources::Table table, const std::string& dictionary,
                                     const std::vector<uint8_t>& stream) {
    try {
        return resources.add(table, dictionary, stream);
    } catch (const std::bad_alloc&) {
        setError(vxErrRuntime::kOutOfMemory, where(L"addResource"));
        return std::string();
    }
}

// Clipboard targets have nothing to take on this platform.
void vxDevicePDF::writeTargets() {
    for (const auto& target : targets) {
        switch (target->getType()) {
            case kTargetFile:
                if (!vxDeviceTargets::writeBytes(*target, *this, file)) return;
                break;
            case kTargetStream:
                writeToStream(*target);
                if (isError()) return;
                break;
            default:
                break;
        }
    }
}

// The file goes to the host as a PDF picture of the drawing's size.
void vxDevicePDF::writeToStream(vxWriteExternal& target) {
    if (auto* stream = dynamic_cast<vxWriteStream*>(&target)) {
        stream->setSize(getWidth(), getHeight());
    }
    target.setFormat(kFormatPDF);
    target.storeData(file);
    if (vxDeviceTargets::takeFault(target, *this)) return;
    if (vxLog::isOn()) {
        vxLog::write("[vxDevicePDF::writeToStream] bytesWritten: " + std::to_string(file.size()));
    }
}

long vxDevicePDF::getNumOfStreams() const {
    long count = 0;
    for (const auto& target : targets) {
        if (target->getType() == kTargetStream) ++count;
    }
    return count;
}

const vxStreamRecord* vxDevicePDF::getStream(long index) const {
    for (const auto& target : targets) {
        if (target->getType() != kTargetStream) continue;
        if (index == 0) return target->getStreamRecord();
        --index;
    }
    return nullptr;
}

void vxDevicePDF::dump(short depth, std::ostream& out) const {
    if (depth <= 0) return;
    vxDevice::dump(depth, out);
    vxDumpLine(out, "wstring title:     ", title);
    vxDumpLine(out, "wstring author:    ", author);
    vxDumpLine(out, "wstring subject:   ", subject);
    vxDumpLine(out, "wstring keywords:  ", keywords);
    vxDumpLine(out, "wstring creator:   ", creator);
    vxDumpLine(out, "wstring producer:  ", producer);
    vxDumpLine(out, "bool  doCompress:  ", doCompress);
    vxDumpLine(out, "long  numOfResources: ", resources.getNumOfEntries());
    vxDumpLine(out, "long  numOfBytes:  ", static_cast<long>(file.size()));
    targets.dump(static_cast<short>(depth - 1), out);
}

}  // namespace Velarix
