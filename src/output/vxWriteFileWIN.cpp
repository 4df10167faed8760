#include "output/vxWriteFileWIN.h"

#include "host/vxLog.h"
#include "platform/vxFileSystem.h"
#include "platform/vxTextCodec.h"

namespace Velarix {

void vxWriteFileWIN::FileCloser::operator()(std::FILE* file) const {
    if (file) std::fclose(file);
}

vxWriteFileWIN::vxWriteFileWIN() : vxWriteFile(L"vxWriteFileWIN") {}

vxWriteFileWIN::~vxWriteFileWIN() = default;

void vxWriteFileWIN::open() {
    if (getFormat() == kFormatSVG) {
        openTextFile();
    } else {
        openBinaryFile();
    }
}

void vxWriteFileWIN::openTextFile() {
    openFile(L"openTextFile", "w", "w+");
}

void vxWriteFileWIN::openBinaryFile() {
    openFile(L"openBinaryFile", "wb", "w+b");
}

void vxWriteFileWIN::close() {
    setIsOpen(false);
    if (!mFile) return;
    // The last buffered bytes reach the disk only here.
    const bool failed = std::fclose(mFile.release()) != 0;
    if (failed) setError(vxErrFile::kClose, where(L"close"), getFileName());
}

void vxWriteFileWIN::writeString(const std::wstring& text) {
    const std::string bytes = lowBytes(text);
    writeRaw(bytes.data(), bytes.size(), L"writeString");
}

void vxWriteFileWIN::writeBytes(const uint8_t* data, size_t size) {
    writeRaw(data, size, L"writeBytes");
}

void vxWriteFileWIN::openFile(const wchar_t* method, const char* newMode,
                              const char* existingMode) {
    if (isOpen()) close();
    if (isNameTooLong(kMaxPathLength, method, 1)) return;
    const bool opened = vxFileExists(getFileName())
                            ? openExisting(method, existingMode)
                            : openAs(newMode, vxErrFile::kCreate, method, 7);
    if (!opened) return;
    setIsOpen(true);
    logFileName(method);
}

void vxWriteFileWIN::logFileName(const wchar_t* method) const {
    if (!vxLog::isOn()) return;
    std::string line = "[";
    line.append(vxNarrow(className)).append("::").append(vxNarrow(method));
    line.append("] fileName: ").append(vxNarrow(getFileName()));
    vxLog::write(line);
}

bool vxWriteFileWIN::openExisting(const wchar_t* method, const char* mode) {
    switch (getFileFlag()) {
        case kFileFlagCounter: {
            const std::wstring unique = findUniqueFileName(getFileName());
            if (unique.empty()) return false;
            setFileName(unique);
            return openAs(mode, vxErrFile::kOpen, method, 3);
        }
        case kFileFlagReplace:
            return openAs(mode, vxErrFile::kOpen, method, 4);
        case kFileFlagError:
            setError(vxErrFile::kExists, where(method, 5), getFileName());
            return false;
        default:
            setError(vxErrFile::kExists, where(method, 6), getFileName());
            return false;
    }
}

bool vxWriteFileWIN::openAs(const char* mode, short code, const wchar_t* method, int number) {
    mFile.reset(std::fopen(vxToUtf8(getFileName()).c_str(), mode));
    if (mFile) return true;
    setError(code, where(method, number), getFileName());
    return false;
}

void vxWriteFileWIN::writeRaw(const void* data, size_t size, const wchar_t* method) {
    if (!isOpen() || !mFile) {
        setError(vxErrFile::kWrite, where(method, 1), getFileName());
        return;
    }
    if (size == 0) return;
    if (std::fwrite(data, 1, size, mFile.get()) != size) {
        setError(vxErrFile::kWrite, where(method, 2), getFileName());
    }
}

}  // namespace Velarix
