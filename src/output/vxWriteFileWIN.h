// The file target of this platform: a C stream opened in text or binary
// mode. The name actually written to, which may carry a counter, replaces
// the name given.
#pragma once

#include <cstdio>
#include <memory>

#include "output/vxWriteFile.h"

namespace Velarix {

class vxWriteFileWIN : public vxWriteFile {
public:
    vxWriteFileWIN();
    ~vxWriteFileWIN() override;

    // Text for SVG, whose document is a text; binary for every other format.
    void open() override;
    void close() override;
    void openTextFile();
    void openBinaryFile();

    void writeString(const std::wstring& text) override;
    void writeBytes(const uint8_t* data, size_t size) override;

private:
    struct FileCloser {
        void operator()(std::FILE* file) const;
    };

    // The one open procedure of both modes: `newMode` for a file that
    // doesn't exist, `existingMode` for one that does; errors at `method`
    // numbered 1 to 7.
    void openFile(const wchar_t* method, const char* newMode, const char* existingMode);
    // Opens an existing file by the file flag.
    bool openExisting(const wchar_t* method, const char* mode);
    bool openAs(const char* mode, short code, const wchar_t* method, int number);
    void writeRaw(const void* data, size_t size, const wchar_t* method);
    // The name actually opened, for the log.
    void logFileName(const wchar_t* method) const;

    std::unique_ptr<std::FILE, FileCloser> mFile;
};

}  // namespace Velarix
