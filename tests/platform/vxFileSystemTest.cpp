#include <gtest/gtest.h>

#include <unistd.h>
#include <filesystem>
#include <fstream>
#include <string>

#include "platform/vxFileSystem.h"
#include "platform/vxTextCodec.h"

namespace Velarix {
namespace {

TEST(vxFileSystem, ForbiddenFileNameCharacters) {
    struct Case {
        std::wstring path;
        bool forbidden;
    };
    const Case cases[] = {
        {L"/data/chart 1.pdf", false},
        {L"C:\\data\\chart.pdf", false},  // separators and the drive colon
        {L"caf\u00e9/\u20ac.svg", false},
        {L"", false},
        {L"a<b", true},
        {L"a>b", true},
        {L"a\"b", true},
        {L"a|b", true},
        {L"what?.pdf", true},
        {L"*.pdf", true},
        {L"tab\there", true},
        {L"line\rbreak", true},
        {std::wstring(L"x") + wchar_t(0x1F), true},
        {std::wstring(L"x") + wchar_t(0x20), false},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(vxHasForbiddenFileNameChars(c.path), c.forbidden) << vxToUtf8(c.path);
    }
}

TEST(vxFileSystem, JoiningPaths) {
    EXPECT_EQ(vxJoinPath(L"/db", L"out/x.pdf"), L"/db/out/x.pdf");
    EXPECT_EQ(vxJoinPath(L"/db/", L"x.pdf"), L"/db/x.pdf");
    EXPECT_EQ(vxJoinPath(L"/db", L"/abs/x.pdf"), L"/abs/x.pdf");
    EXPECT_EQ(vxJoinPath(L"", L"x.pdf"), L"x.pdf");
    EXPECT_TRUE(vxIsAbsolutePath(L"/x"));
    EXPECT_FALSE(vxIsAbsolutePath(L"x/y"));
    EXPECT_FALSE(vxIsAbsolutePath(L""));
}

TEST(vxFileSystem, FolderOfAPath) {
    EXPECT_EQ(vxFolderOf(L"/a/b/c.txt"), L"/a/b");
    EXPECT_EQ(vxFolderOf(L"/c.txt"), L"/");
    EXPECT_EQ(vxFolderOf(L"c.txt"), L"");
    EXPECT_EQ(vxFolderOf(L"a/"), L"a");
}

class vxFileSystemOnDisk : public ::testing::Test {
protected:
    void SetUp() override {
        // A non-ASCII name makes the UTF-8 conversion matter.
        folder = vxFromUtf8(std::filesystem::temp_directory_path().string()) +
                 L"/velarix_fs_\u00e9_" + std::to_wstring(getpid());
        std::filesystem::create_directories(vxToUtf8(folder));
        file = folder + L"/data \u20ac.csv";
        std::ofstream(vxToUtf8(file)) << "1 2 3\n";
    }
    void TearDown() override { std::filesystem::remove_all(vxToUtf8(folder)); }

    std::wstring folder;
    std::wstring file;
};

TEST_F(vxFileSystemOnDisk, FileExistsOnlyForRegularFiles) {
    EXPECT_TRUE(vxFileExists(file));
    EXPECT_FALSE(vxFileExists(folder));
    EXPECT_FALSE(vxFileExists(folder + L"/missing.csv"));
    EXPECT_FALSE(vxFileExists(L""));
}

TEST_F(vxFileSystemOnDisk, FolderExistsTestsTheFolderPart) {
    EXPECT_TRUE(vxFolderExists(folder + L"/new.pdf"));
    EXPECT_TRUE(vxFolderExists(file));
    EXPECT_FALSE(vxFolderExists(folder + L"/missing/new.pdf"));
    EXPECT_FALSE(vxFolderExists(file + L"/new.pdf"));  // a file is no folder
    EXPECT_TRUE(vxFolderExists(L"new.pdf"));           // the current folder
}

}  // namespace
}  // namespace Velarix
