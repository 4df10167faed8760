#include "output/vxTextFile.h"

#include <fstream>
#include <iterator>

#include "output/vxWriteFileWIN.h"
#include "platform/vxFileSystem.h"
#include "platform/vxTextCodec.h"

namespace Velarix {

vxTextFile::vxTextFile() : vxErrorHolder(L"vxTextFile") {}

vxTextFile::~vxTextFile() {
    close();
}

void vxTextFile::createInputFile(const std::wstring& path) {
    text.clear();
    cursor = 0;
    if (!vxFileExists(path)) return setError(vxErrFile::kNotFound, where(L"createInputFile"), path);
    std::ifstream in(vxToUtf8(path), std::ios::binary);
    if (!in) return setError(vxErrFile::kOpen, where(L"createInputFile", 2), path);
    std::string bytes;
    try {
        bytes.assign(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
        if (in.bad()) return setError(vxErrFile::kRead, where(L"createInputFile", 3), path);
        text = vxDecodeText(bytes);
    } catch (const std::bad_alloc&) {
        setError(vxErrRuntime::kOutOfMemory, where(L"createInputFile", 4), path);
    }
}

void vxTextFile::createOutputFile(const std::wstring& path, short fileFlag) {
    if (!create(output, L"createOutputFile")) return;
    output->setFileName(path);
    output->setFileFlag(fileFlag);
    output->openTextFile();
    if (output->isError()) copyError(output->getError());
}

std::wstring vxTextFile::getFileName() const {
    return output ? output->getFileName() : std::wstring();
}

void vxTextFile::rewind(long, long) {
    cursor = 0;
}

size_t vxTextFile::recordEnd(size_t from, wchar_t rowSeparator, size_t& next) const {
    size_t end = text.find(rowSeparator, from);
    if (end == std::wstring::npos) {
        next = end = text.size();
    } else {
        next = end + 1;
    }
    if (rowSeparator == L'\n' && end > from && text[end - 1] == L'\r') --end;
    return end;
}

long vxTextFile::countRecords(wchar_t rowSeparator) const {
    long records = 0;
    size_t from = 0;
    while (from < text.size()) {
        recordEnd(from, rowSeparator, from);
        ++records;
    }
    return records;
}

long vxTextFile::countFields(wchar_t rowSeparator, wchar_t fieldSeparator) const {
    if (text.empty()) return 0;
    size_t next = 0;
    const size_t end = recordEnd(0, rowSeparator, next);
    long fields = 1;
    for (size_t i = 0; i < end; ++i) fields += text[i] == fieldSeparator;
    return fields;
}

bool vxTextFile::readRecord(wchar_t rowSeparator, std::wstring_view& record) {
    if (cursor >= text.size()) return false;
    const size_t from = cursor;
    const size_t end = recordEnd(from, rowSeparator, cursor);
    record = std::wstring_view(text).substr(from, end - from);
    return true;
}

void vxTextFile::writeText(const std::wstring& value) {
    if (!output) return setError(vxErrFile::kWrite, where(L"writeText"));
    output->writeString(value);
    if (output->isError()) copyError(output->getError());
}

wchar_t vxTextFile::separatorOf(const std::wstring& argument, wchar_t fallback) {
    return argument.empty() ? fallback : argument[0];
}

void vxTextFile::close() {
    if (!output || !output->isOpen()) return;
    output->close();
    if (output->isError() && !isError()) copyError(output->getError());
}

}  // namespace Velarix
