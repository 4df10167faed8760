#include "output/vxWriteStreamWIN.h"

#include <new>

#include "host/vxLog.h"

namespace Velarix {

vxWriteStreamWIN::vxWriteStreamWIN() : vxWriteStream(L"vxWriteStreamWIN") {}

vxWriteStreamWIN::~vxWriteStreamWIN() = default;

void vxWriteStreamWIN::open() {
    mRecord.bytes.clear();
    setIsOpen(true);
}

void vxWriteStreamWIN::close() {
    setIsOpen(false);
}

void vxWriteStreamWIN::writeString(const std::wstring& text) {
    const std::string bytes = lowBytes(text);
    append(reinterpret_cast<const uint8_t*>(bytes.data()), bytes.size(), L"writeString");
}

void vxWriteStreamWIN::writeBytes(const uint8_t* data, size_t size) {
    append(data, size, L"writeBytes");
}

void vxWriteStreamWIN::storeData(const std::vector<uint8_t>& data) {
    mRecord.bytes.clear();
    append(data.data(), data.size(), L"storeData");
}

const vxStreamRecord* vxWriteStreamWIN::getStreamRecord() const {
    mRecord.formatCode = getFormat();
    mRecord.width = getWidth();
    mRecord.height = getHeight();
    return &mRecord;
}

void vxWriteStreamWIN::dumpFields(std::ostream& out) const {
    vxWriteStream::dumpFields(out);
    vxDumpLine(out, "unsigned long numOfBytes: ", static_cast<long>(getNumOfBytes()));
}

void vxWriteStreamWIN::append(const uint8_t* data, size_t size, const wchar_t* method) {
    if (size == 0) return;
    try {
        mRecord.bytes.insert(mRecord.bytes.end(), data, data + size);
    } catch (const std::bad_alloc&) {
        setError(vxErrRuntime::kOutOfMemory, where(method));
    }
}

}  // namespace Velarix
