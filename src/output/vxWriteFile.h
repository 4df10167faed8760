// A file target: the name to write to and what to do when a file of that
// name is already there. The name arrives complete; a script's relative
// path has been joined with the database's folder before.
//
// File flags, for a file that exists:
//   1  write to a new name with a counter: chart.pdf becomes chart-1.pdf
//   2  replace the file
//   3  report error 4001, as any other flag does
// A file that doesn't exist is always created, whatever the flag.
#pragma once

#include <string>

#include "output/vxWriteExternal.h"

namespace Velarix {

enum vxFileFlag : short {
    kFileFlagCounter = 1,
    kFileFlagReplace = 2,
    kFileFlagError = 3,
};

class vxWriteFile : public vxWriteExternal {
public:
    // A name of this many characters or more is refused (4011).
    static constexpr size_t kMaxPathLength = 260;
    // The same for a name made with a counter.
    static constexpr size_t kMaxUniquePathLength = 261;
    static constexpr long kMaxFileCounter = 32767;

    explicit vxWriteFile(const wchar_t* name);
    ~vxWriteFile() override;

    short getType() const override { return kTargetFile; }
    std::wstring getFileName() const override { return mFileName; }
    void setFileName(const std::wstring& name) override { mFileName = name; }
    short getFileFlag() const override { return mFileFlag; }
    void setFileFlag(short flag) override { mFileFlag = flag; }

    // Settles the name by the flag without opening the file, for writers
    // that open it themselves: the name stays, takes a counter, or an error
    // is reported.
    void prepareFileName();

    // The first name "stem-N.ext" with N from 1 that no file bears, the
    // path split at the last dot of its last name part ("a.d/chart" gets
    // "a.d/chart-1", not "a-1.d/chart"). An empty text after an error:
    // 4011 when the name gets too long, 4001 when every counter is taken.
    std::wstring findUniqueFileName(const std::wstring& path);

protected:
    void dumpFields(std::ostream& out) const override;
    // Reports 4011 at method/number when the file name has `limit`
    // characters or more.
    bool isNameTooLong(size_t limit, const wchar_t* method, int number);

private:
    short mFileFlag = kFileFlagCounter;
    std::wstring mFileName;
};

}  // namespace Velarix
