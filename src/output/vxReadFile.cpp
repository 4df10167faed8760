#include "output/vxReadFile.h"

#include <algorithm>

#include "host/vxLog.h"
#include "output/vxFileType.h"
#include "platform/vxFileSystem.h"
#include "platform/vxTextCodec.h"

namespace Velarix {

namespace {

constexpr char kByteOrderMark[] = "\xEF\xBB\xBF";

bool endsWith(const std::string& text, const std::string& tail) {
    return text.size() >= tail.size() &&
           text.compare(text.size() - tail.size(), tail.size(), tail) == 0;
}

// How often `part` stands in text[begin, end).
long occurrences(const std::string& text, const std::string& part, size_t begin, size_t end) {
    long n = 0;
    end = std::min(end, text.size());
    for (size_t at = text.find(part, begin); at != std::string::npos && at + part.size() <= end;
         at = text.find(part, at + part.size())) {
        ++n;
    }
    return n;
}

std::string separatorBytes(wchar_t separator) {
    return vxToUtf8(std::wstring(1, separator));
}

}  // namespace

void vxReadFile::FileCloser::operator()(std::FILE* f) const {
    if (f) std::fclose(f);
}

vxReadFile::vxReadFile() : vxReadFile(L"vxReadFile") {}

vxReadFile::vxReadFile(const wchar_t* name) : vxReadExternal(name) {}

vxReadFile::~vxReadFile() = default;

std::unique_ptr<vxReadExternal> vxReadFile::clone() const {
    auto copy = std::make_unique<vxReadFile>();
    copyTo(*copy);
    return copy;
}

void vxReadFile::copyTo(vxReadFile& to) const {
    vxReadExternal::copyTo(to);
    to.fileType = fileType;
}

bool vxReadFile::createFName(const std::wstring& path) {
    close();
    vxReadExternal::setName(path);
    fileType = vxFileTypeOf(path);
    if (!path.empty()) return true;
    setError(vxErrFile::kName, where(L"createFName"));
    return false;
}

bool vxReadFile::open() {
    close();
    const char* mode = fileType == kFileTypeTXT ? "rt" : "rb";
    if (!vxFileExists(getName())) {
        setError(vxErrFile::kNotFound, where(L"open", 1), getName());
        return false;
    }
    file.reset(std::fopen(vxToUtf8(getName()).c_str(), mode));
    if (!file) {
        setError(vxErrFile::kOpen, where(L"open", 2), getName());
        return false;
    }
    setIsOpen(true);
    skipByteOrderMark();
    return true;
}

bool vxReadFile::close() {
    setIsOpen(false);
    if (!file) return true;
    if (std::fclose(file.release()) == 0) return true;
    setError(vxErrFile::kClose, where(L"close"), getName());
    return false;
}

bool vxReadFile::isAtEnd() const {
    if (!file) return true;
    const int c = std::fgetc(file.get());
    if (c == EOF) return true;
    std::ungetc(c, file.get());
    return false;
}

bool vxReadFile::setFilePointer(long position) {
    if (!requireOpen(L"setFilePointer")) return false;
    if (std::fseek(file.get(), position, SEEK_SET) != 0) {
        setError(vxErrFile::kRead, where(L"setFilePointer", 2), getName());
        return false;
    }
    if (position == 0) skipByteOrderMark();
    return true;
}

bool vxReadFile::count(wchar_t rowSeparator, wchar_t fieldSeparator, long& rows, long& columns) {
    rows = columns = 0;
    if (!requireOpen(L"count")) return false;
    std::vector<uint8_t> bytes;
    if (!readBytes(bytes, *this)) return false;
    const std::string text(bytes.begin(), bytes.end());
    const std::string row = separatorBytes(rowSeparator);
    const std::string field = separatorBytes(fieldSeparator);
    if (!text.empty()) {
        rows = 1 + occurrences(text, row, 0, text.size());
        columns = 1 + occurrences(text, field, 0, text.find(row));
    }
    return setFilePointer(0);
}

bool vxReadFile::readLine(wchar_t rowSeparator, std::wstring& line) {
    line.clear();
    if (!requireOpen(L"readLine")) return false;
    std::string text;
    if (!readUntil(separatorBytes(rowSeparator), text)) return false;
    if (rowSeparator == L'\n' && !text.empty() && text.back() == '\r') text.pop_back();
    line = vxFromUtf8(text);
    return true;
}

bool vxReadFile::readUntil(const std::string& separator, std::string& text) {
    text.clear();
    std::FILE* f = file.get();
    int c = std::fgetc(f);
    if (c == EOF) {
        if (std::ferror(f)) setError(vxErrFile::kRead, where(L"readLine", 2), getName());
        return false;
    }
    for (; c != EOF; c = std::fgetc(f)) {
        text.push_back(static_cast<char>(c));
        if (endsWith(text, separator)) {
            text.resize(text.size() - separator.size());
            return true;
        }
    }
    if (std::ferror(f)) {
        setError(vxErrFile::kRead, where(L"readLine", 3), getName());
        return false;
    }
    return true;
}

bool vxReadFile::readBytes(std::vector<uint8_t>& bytes, vxErrorHolder& report) const {
    bytes.clear();
    if (!vxFileExists(getName())) {
        report.setError(vxErrFile::kNotFound, where(L"readBytes", 1), getName());
        return false;
    }
    std::unique_ptr<std::FILE, FileCloser> in(std::fopen(vxToUtf8(getName()).c_str(), "rb"));
    if (!in) {
        report.setError(vxErrFile::kOpen, where(L"readBytes", 2), getName());
        return false;
    }
    long size = -1;
    if (std::fseek(in.get(), 0, SEEK_END) == 0) size = std::ftell(in.get());
    if (size < 0 || std::fseek(in.get(), 0, SEEK_SET) != 0) {
        report.setError(vxErrFile::kRead, where(L"readBytes", 3), getName());
        return false;
    }
    if (size > kMaxFileSize) {
        report.setError(vxErrFile::kSize, where(L"readBytes", 4), getName());
        return false;
    }
    bytes.resize(static_cast<size_t>(size));
    if (size > 0 && std::fread(bytes.data(), 1, bytes.size(), in.get()) != bytes.size()) {
        bytes.clear();
        report.setError(vxErrFile::kRead, where(L"readBytes", 5), getName());
        return false;
    }
    return true;
}

bool vxReadFile::requireOpen(const wchar_t* method) {
    if (file) return true;
    setError(vxErrFile::kRead, where(method, 1), getName());
    return false;
}

void vxReadFile::skipByteOrderMark() {
    char head[3] = {};
    const size_t n = std::fread(head, 1, 3, file.get());
    if (n == 3 && std::string(head, 3) == kByteOrderMark) return;
    std::fseek(file.get(), 0, SEEK_SET);
}

void vxReadFile::dumpFields(std::ostream& out) const {
    vxReadExternal::dumpFields(out);
    vxDumpLine(out, "short fileType: ", fileType);
}

}  // namespace Velarix
