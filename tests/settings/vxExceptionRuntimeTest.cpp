#include <gtest/gtest.h>

#include <cstring>
#include <string>

#include "settings/vxExceptionRuntime.h"

namespace Velarix {
namespace {

TEST(vxExceptionRuntimeTest, KeepsCodeLineAndTheFileNameWithoutPath) {
    const vxExceptionRuntime e(1150, 42, "/work/src/output/vxWriteClipboard.cpp");
    EXPECT_EQ(e.getCode(), 1150);
    EXPECT_EQ(e.getLine(), 42);
    EXPECT_STREQ(e.getFileName(), "vxWriteClipboard.cpp");
    EXPECT_STREQ(e.getMessage(), "Clipboard contains invalid data.");
    EXPECT_STREQ(e.what(), "Clipboard contains invalid data.");
    EXPECT_STREQ(e.getLocationText(), "File: vxWriteClipboard.cpp, Line: 42");
}

TEST(vxExceptionRuntimeTest, FileNamesWithoutSlashOrNullAreKept) {
    EXPECT_STREQ(vxExceptionRuntime(0, 1, "main.cpp").getFileName(), "main.cpp");
    EXPECT_STREQ(vxExceptionRuntime(0, 1, "dir/").getFileName(), "");
    const vxExceptionRuntime none(-1, -7, nullptr);
    EXPECT_STREQ(none.getFileName(), "");
    EXPECT_STREQ(none.what(), "Unknown error.");
    EXPECT_STREQ(none.getLocationText(), "File: , Line: -7");
}

TEST(vxExceptionRuntimeTest, LongFileNamesAreCutTo79) {
    const std::string name(120, 'a');
    const std::string path = "/tmp/" + name;
    const vxExceptionRuntime e(5000, 123456789, path.c_str());
    EXPECT_EQ(std::string(e.getFileName()), name.substr(0, 79));
    EXPECT_EQ(std::string(e.getLocationText()),
              "File: " + name.substr(0, 79) + ", Line: 123456789");
    EXPECT_STREQ(e.what(), "Out of memory.");
}

TEST(vxExceptionRuntimeTest, IsCaughtAsStdException) {
    try {
        throw vxExceptionRuntime(9999, 3, "a/b.cpp");
    } catch (const std::exception& e) {
        EXPECT_STREQ(e.what(), "Runtime error.");
    }
}

}  // namespace
}  // namespace Velarix
