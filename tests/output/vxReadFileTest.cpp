// The text side of a file source, as data files read it.
#include "output/vxReadFile.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <vector>

#include "output/vxFileType.h"
#include "platform/vxTextCodec.h"
#include "support/vxTestRun.h"

namespace Velarix {
namespace {

TEST(vxFileType, ByExtensionWhateverTheCase) {
    const struct {
        const wchar_t* path;
        vxFileType type;
    } cases[] = {
        {L"a.jpeg", kFileTypeJPEG},    {L"a.JPG", kFileTypeJPEG},
        {L"/x/y.TiFf", kFileTypeTIFF}, {L"b.tif", kFileTypeTIFF},
        {L"c.Png", kFileTypePNG},      {L"d.bmp", kFileTypeBMP},
        {L"e.gif", kFileTypeGIF},      {L"f.pict", kFileTypePICT},
        {L"f.pct", kFileTypePICT},     {L"g.wmf", kFileTypeWMF},
        {L"g.emf", kFileTypeEMF},      {L"h.pdf", kFileTypePDF},
        {L"h.svg", kFileTypeSVG},      {L"i.swf", kFileTypeSWF},
        {L"i.dwg", kFileTypeDWG},      {L"j.TXT", kFileTypeTXT},
        {L"k.jpe", kFileTypeUnknown},  {L"pictures.png/chart", kFileTypeUnknown},
        {L"noext", kFileTypeUnknown},  {L"trailing.", kFileTypeUnknown},
    };
    for (const auto& c : cases) EXPECT_EQ(vxFileTypeOf(c.path), c.type) << vxToUtf8(c.path);
}

class vxReadFileText : public ::testing::Test {
protected:
    void SetUp() override { folder = test::makeTempFolder("read-file"); }
    void TearDown() override { std::filesystem::remove_all(folder); }

    std::wstring put(const std::string& name, const std::string& text) const {
        test::writeFile(folder + "/" + name, text);
        return vxFromUtf8(folder + "/" + name);
    }
    static std::vector<std::wstring> lines(vxReadFile& file, wchar_t separator) {
        std::vector<std::wstring> all;
        std::wstring line;
        while (file.readLine(separator, line)) all.push_back(line);
        return all;
    }

    std::string folder;
};

TEST_F(vxReadFileText, CountsRowsAndFieldsOfTheFirstRow) {
    vxReadFile file;
    ASSERT_TRUE(file.createFName(put("data.txt", "a\tb\tc\r\nd\te\r\nf")));
    EXPECT_EQ(file.getFileType(), kFileTypeTXT);
    ASSERT_TRUE(file.open());
    long rows = 0, columns = 0;
    ASSERT_TRUE(file.count(L'\n', L'\t', rows, columns));
    EXPECT_EQ(rows, 3);
    EXPECT_EQ(columns, 3);
    // Counting leaves the file at its start; a CR before the LF separator
    // belongs to the line end.
    EXPECT_EQ(lines(file, L'\n'), (std::vector<std::wstring>{L"a\tb\tc", L"d\te", L"f"}));
    EXPECT_TRUE(file.isAtEnd());
    EXPECT_TRUE(file.close());

    // A separator at the very end opens one more, empty row; an empty file
    // has none.
    vxReadFile trailing;
    trailing.createFName(put("t.txt", "1;2\n3;4\n"));
    ASSERT_TRUE(trailing.open());
    ASSERT_TRUE(trailing.count(L'\n', L';', rows, columns));
    EXPECT_EQ(rows, 3);
    EXPECT_EQ(columns, 2);
    vxReadFile empty;
    empty.createFName(put("e.txt", ""));
    ASSERT_TRUE(empty.open());
    ASSERT_TRUE(empty.count(L'\n', L';', rows, columns));
    EXPECT_EQ(rows, 0);
    EXPECT_EQ(columns, 0);
    std::wstring line;
    EXPECT_FALSE(empty.readLine(L'\n', line));
    EXPECT_FALSE(empty.isError());
}

TEST_F(vxReadFileText, Utf8WithByteOrderMarkAndWideSeparators) {
    vxReadFile file;
    file.createFName(put("u.txt", "\xEF\xBB\xBFK\xC3\xB6ln\xC2\xA7M\xC3\xBCnchen"));
    ASSERT_TRUE(file.open());
    long rows = 0, columns = 0;
    ASSERT_TRUE(file.count(L'\u00A7', L',', rows, columns));
    EXPECT_EQ(rows, 2);
    EXPECT_EQ(lines(file, L'\u00A7'), (std::vector<std::wstring>{L"K\u00F6ln", L"M\u00FCnchen"}));
    ASSERT_TRUE(file.setFilePointer(0));
    std::wstring line;
    ASSERT_TRUE(file.readLine(L'\u00A7', line));
    EXPECT_EQ(line, L"K\u00F6ln");
}

TEST_F(vxReadFileText, FaultsOfOpeningAndReading) {
    vxReadFile missing;
    missing.createFName(vxFromUtf8(folder + "/none.txt"));
    EXPECT_FALSE(missing.open());
    EXPECT_EQ(missing.getError()->getErrorCode(), 4000);
    EXPECT_EQ(missing.getError()->getLocation(), L"vxReadFile/open/1");

    vxReadFile folderAsFile;
    folderAsFile.createFName(vxFromUtf8(folder));
    EXPECT_FALSE(folderAsFile.open());

    vxReadFile closed;
    closed.createFName(put("c.txt", "x"));
    std::wstring line;
    EXPECT_FALSE(closed.readLine(L'\n', line));
    EXPECT_EQ(closed.getError()->getErrorCode(), 4004);
    EXPECT_EQ(closed.getError()->getLocation(), L"vxReadFile/readLine/1");
}

}  // namespace
}  // namespace Velarix
