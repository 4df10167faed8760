// A place a finished drawing goes to: a file, the clipboard or a memory
// stream for the host. A device keeps its targets in one vector and drives
// them all through this interface: open, write the document, close, then
// test the target's error.
//
// Operations that don't apply to a kind of target do nothing there: a
// clipboard has no file name, only a stream keeps the data it is given.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "output/vxExternal.h"
#include "output/vxStreamRecord.h"

namespace Velarix {

// The kinds of target, as a device's addTarget takes them.
enum vxTargetType : short {
    kTargetClipboard = 1,
    kTargetFile = 3,
    kTargetStream = 4,
};

class vxWriteExternal : public vxExternal {
public:
    explicit vxWriteExternal(const wchar_t* name);
    ~vxWriteExternal() override;

    // A new target of this platform for a type code; null for a code that
    // names no target. Only std::bad_alloc leaves it.
    static std::unique_ptr<vxWriteExternal> makeTarget(short targetType);

    virtual short getType() const = 0;
    virtual void open() = 0;
    virtual void close() = 0;
    // Each character's low byte, no conversion to UTF-8: the documents are
    // built from characters below 256.
    virtual void writeString(const std::wstring& text) = 0;
    virtual void writeBytes(const uint8_t* data, size_t size) = 0;
    // Replaces the data that a stream keeps; other targets ignore it.
    virtual void storeData(const std::vector<uint8_t>& data) {}
    // What a stream hands to the host; null for other targets.
    virtual const vxStreamRecord* getStreamRecord() const { return nullptr; }

    virtual std::wstring getFileName() const { return L""; }
    virtual void setFileName(const std::wstring& name) {}
    virtual short getFileFlag() const { return 0; }
    virtual void setFileFlag(short flag) {}

    short getResolution() const { return mResolution; }
    void setResolution(short value) { mResolution = value; }
    short getDepth() const { return mDepth; }
    void setDepth(short value) { mDepth = value; }
    short getCompressionMethod() const { return mCompressionMethod; }
    void setCompressionMethod(short value) { mCompressionMethod = value; }
    short getCompressionQuality() const { return mCompressionQuality; }
    void setCompressionQuality(short value) { mCompressionQuality = value; }
    short getInterlaceStyle() const { return mInterlaceStyle; }
    void setInterlaceStyle(short value) { mInterlaceStyle = value; }

protected:
    void dumpFields(std::ostream& out) const override;
    // The text as bytes, each character cut to its low 8 bits.
    static std::string lowBytes(const std::wstring& text);

private:
    short mResolution = 0;
    short mDepth = 0;
    short mCompressionMethod = 0;
    short mCompressionQuality = 0;
    short mInterlaceStyle = 0;
};

}  // namespace Velarix
