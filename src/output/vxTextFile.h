// A delimited text file, as the data functions read and write it. Reading
// takes the whole file at once and hands out its records; writing goes
// through a text file target with its file flag.
//
// Records end at the row separator. A separator at the very end of the file
// closes the last record and opens none, and with a line feed as the row
// separator a carriage return before it is no part of the record, so that
// files written on any system read alike.
#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "settings/vxErrorHolder.h"

namespace Velarix {

class vxWriteFileWIN;

class vxTextFile : public vxErrorHolder {
public:
    vxTextFile();
    ~vxTextFile() override;

    // Reads the file: 4000 when it isn't there, 4003 when it can't be
    // opened, 4004 when it can't be read.
    void createInputFile(const std::wstring& path);
    // Opens the file for writing by the file flag (1 counter, 2 replace,
    // 3 error when it exists).
    void createOutputFile(const std::wstring& path, short fileFlag);
    // The name actually written to.
    std::wstring getFileName() const;

    // Back to the first record.
    void rewind(long record = 0, long field = 0);
    long countRecords(wchar_t rowSeparator) const;
    // The fields of the first record.
    long countFields(wchar_t rowSeparator, wchar_t fieldSeparator) const;
    // The next record, false after the last.
    bool readRecord(wchar_t rowSeparator, std::wstring_view& record);

    void writeText(const std::wstring& text);
    void close();

    // The separator a call's argument names: its first character, or the
    // fallback for an argument left empty.
    static wchar_t separatorOf(const std::wstring& argument, wchar_t fallback);

private:
    // The end of the record that starts at `from`, and where the next one
    // starts.
    size_t recordEnd(size_t from, wchar_t rowSeparator, size_t& next) const;

    std::wstring text;
    size_t cursor = 0;
    std::unique_ptr<vxWriteFileWIN> output;
};

}  // namespace Velarix
