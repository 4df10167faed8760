// The memory target of this platform: a byte buffer that the output hands
// to the host as a stream record. `open` starts an empty buffer, writes
// append to it, `storeData` replaces it at once; `close` keeps the data.
#pragma once

#include "output/vxWriteStream.h"

namespace Velarix {

class vxWriteStreamWIN : public vxWriteStream {
public:
    vxWriteStreamWIN();
    ~vxWriteStreamWIN() override;

    void open() override;
    void close() override;
    void writeString(const std::wstring& text) override;
    void writeBytes(const uint8_t* data, size_t size) override;
    void storeData(const std::vector<uint8_t>& data) override;

    unsigned long getNumOfBytes() const { return mRecord.bytes.size(); }
    // The data with the current format code and size.
    const vxStreamRecord* getStreamRecord() const override;

protected:
    void dumpFields(std::ostream& out) const override;

private:
    void append(const uint8_t* data, size_t size, const wchar_t* method);

    // Holds the bytes; format and size are copied in when it is read, so
    // that setters called after the data still count.
    mutable vxStreamRecord mRecord;
};

}  // namespace Velarix
