// Data texts read from delimited files: which records or columns become
// series, what happens to empty fields, line ends and encodings, and the
// errors of a file that isn't there.
#include <gtest/gtest.h>

#include "data/vxDataFromFile.h"
#include "data/vxDataTestSupport.h"
#include "settings/vxError.h"
#include "support/vxTestRun.h"

namespace Velarix::test {
namespace {

struct Read {
    std::vector<std::wstring> strings;
    vxDataFromFile file;
};

// Reads `contents` as a file with the call's further arguments: transposed,
// row separator, field separator, series indices.
std::vector<std::wstring> readAs(const std::string& contents, bool transposed = false,
                                 std::vector<long> indices = {},
                                 const std::wstring& rowSeparator = L"",
                                 const std::wstring& fieldSeparator = L"") {
    const std::string path = makeTempFolder("data-read") + "/data.txt";
    writeFile(path, contents);
    vxAssign a;
    a.setFunction(kChartDataRead);
    a.addString(std::wstring(path.begin(), path.end()));
    a.addShort(transposed ? 1 : 0);
    rowSeparator.empty() ? a.addVoid() : a.addString(rowSeparator);
    fieldSeparator.empty() ? a.addVoid() : a.addString(fieldSeparator);
    for (long i : indices) a.addLong(i);
    Read read;
    read.file.assign(a, read.strings);
    EXPECT_FALSE(read.file.isError()) << contents;
    return read.strings;
}

using Texts = std::vector<std::wstring>;

TEST(DataFromFile, RecordsChosenByIndex) {
    const std::string file = "1\t2\t3\n4\t5\t6\n7\t8\t9\n";
    struct Case {
        std::vector<long> indices;
        Texts expected;
    };
    const Case cases[] = {
        {{}, {L"1 2 3", L"4 5 6", L"7 8 9"}},
        {{2}, {L"4 5 6"}},
        {{-1}, {L"7 8 9"}},
        {{3, 0}, {L"1 2 3", L"4 5 6", L"7 8 9"}},  // a 0 means all
        {{3, 1}, {L"1 2 3", L"7 8 9"}},            // file order, not list order
        {{4}, {L""}},                              // no such record
        {{2, 2}, {L"4 5 6", L""}},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(readAs(file, false, c.indices), c.expected) << c.indices.size();
    }
}

TEST(DataFromFile, ColumnsWhenTransposed) {
    const std::string file = "1\t2\t3\n4\t\t6\n7\t8\t9";
    EXPECT_EQ(readAs(file, true), (Texts{L"1 4 7", L"2 8", L"3 6 9"}));
    EXPECT_EQ(readAs(file, true, {-1}), (Texts{L"3 6 9"}));
    EXPECT_EQ(readAs(file, true, {3, 1}), (Texts{L"1 4 7", L"3 6 9"}));
}

TEST(DataFromFile, EmptyFieldsDropOut) {
    EXPECT_EQ(readAs("1\t\t3\t\n\t5\n"), (Texts{L"1 3", L"5"}));
}

TEST(DataFromFile, LineEndsAndSeparators) {
    EXPECT_EQ(readAs("1\t2\r\n3\t4\r\n"), (Texts{L"1 2", L"3 4"}));
    EXPECT_EQ(readAs("1;2|3;4|", false, {}, L"|", L";"), (Texts{L"1 2", L"3 4"}));
    EXPECT_EQ(readAs("1, 2, 3\n", false, {}, L"", L","), (Texts{L"1  2  3"}));
    EXPECT_EQ(readAs(""), Texts{});
    EXPECT_EQ(readAs("\n\n"), (Texts{L"", L""}));
}

TEST(DataFromFile, Encodings) {
    EXPECT_EQ(readAs("\xEF\xBB\xBF"
                     "1\t2\n"),
              (Texts{L"1 2"}));
    EXPECT_EQ(readAs(std::string("\xFF\xFE"
                                 "1\0\t\0"
                                 "2\0",
                                 8)),
              (Texts{L"1 2"}));
    EXPECT_EQ(readAs("M\xC3\xA4rz\n"), (Texts{L"M\u00e4rz"}));  // UTF-8
    EXPECT_EQ(readAs("M\xE4rz\n"), (Texts{L"M\u00e4rz"}));      // Latin-1
}

TEST(DataFromFile, MissingFile) {
    vxAssign a;
    a.setFunction(kChartDataRead);
    a.addString(L"/no/such/folder/data.txt");
    std::vector<std::wstring> strings{L"kept"};
    vxDataFromFile file;
    file.assign(a, strings);
    ASSERT_TRUE(file.isError());
    EXPECT_EQ(file.getError()->getErrorCode(), 4000);
    EXPECT_EQ(file.getError()->getLocation(), L"vxTextFile/createInputFile/1");
    EXPECT_EQ(strings, Texts{L"kept"});
}

}  // namespace
}  // namespace Velarix::test
