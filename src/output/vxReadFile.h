// A file as a source: of a picture (through the platform's reader, see
// vxReadFileWIN) or of text for data files. The name arrives complete: a
// script's relative path has been joined with the database's folder. The
// file's type follows from its extension.
//
// Text files ("txt") open in text mode, all others in binary mode; here
// both read the same bytes, and the text reader itself treats a carriage
// return before a line feed separator as part of the line end. Text is
// read as UTF-8; a byte-order mark at the start is skipped.
#pragma once

#include <cstdint>
#include <cstdio>
#include <memory>
#include <string>
#include <vector>

#include "output/vxReadExternal.h"

namespace Velarix {

class vxReadFile : public vxReadExternal {
public:
    // Files larger than this aren't read (4012).
    static constexpr long kMaxFileSize = 256L * 1024L * 1024L;

    vxReadFile();
    ~vxReadFile() override;

    short getType() const override { return kSourceFile; }
    std::unique_ptr<vxReadExternal> clone() const override;

    // Takes the path and its type; an empty path is error 4011.
    bool createFName(const std::wstring& path);
    short getFileType() const { return fileType; }

    // Opens the file for the text functions below. A missing file is
    // error 4000, one that can't be opened 4003.
    bool open();
    bool close();
    bool isAtEnd() const;
    // Moves to a byte position from the start.
    bool setFilePointer(long position);
    // Counts the rows of the whole file (row separators plus one) and the
    // fields of its first row (field separators plus one), then goes back
    // to the start.
    bool count(wchar_t rowSeparator, wchar_t fieldSeparator, long& rows, long& columns);
    // The text up to the next row separator, or to the end; false when
    // nothing is left (or on a fault, which isError tells).
    bool readLine(wchar_t rowSeparator, std::wstring& line);

    // The file's bytes, all of them. A fault is recorded in `report` with a
    // location of this class.
    bool readBytes(std::vector<uint8_t>& bytes, vxErrorHolder& report) const;

protected:
    explicit vxReadFile(const wchar_t* name);
    void dumpFields(std::ostream& out) const override;
    void copyTo(vxReadFile& to) const;

private:
    struct FileCloser {
        void operator()(std::FILE* file) const;
    };

    // The bytes up to the next separator (its UTF-8 form), which is read
    // and dropped; false when the file was already at its end.
    bool readUntil(const std::string& separator, std::string& text);
    bool requireOpen(const wchar_t* method);
    void skipByteOrderMark();

    short fileType = 0;
    std::unique_ptr<std::FILE, FileCloser> file;
};

}  // namespace Velarix
