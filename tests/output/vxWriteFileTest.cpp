#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <sstream>
#include <string>
#include <vector>

#include "output/vxWriteFileWIN.h"
#include "platform/vxTextCodec.h"
#include "support/vxTestRun.h"

namespace Velarix {
namespace {

namespace fs = std::filesystem;

class vxWriteFileTarget : public ::testing::Test {
protected:
    void SetUp() override {
        const auto* info = ::testing::UnitTest::GetInstance()->current_test_info();
        folderText = test::makeTempFolder(std::string("write-file-") + info->name());
        folder = vxFromUtf8(folderText);
    }
    void TearDown() override { fs::remove_all(folderText); }

    std::wstring path(const std::wstring& name) const { return folder + L"/" + name; }
    void put(const std::wstring& name, const std::string& text) const {
        test::writeFile(vxToUtf8(path(name)), text);
    }
    std::string read(const std::wstring& fullPath) const {
        return test::readFile(vxToUtf8(fullPath));
    }
    std::vector<std::string> names() const {
        std::vector<std::string> found;
        for (const auto& entry : fs::directory_iterator(folderText)) {
            found.push_back(entry.path().filename().string());
        }
        std::sort(found.begin(), found.end());
        return found;
    }
    // Opens, writes the text and closes, stopping at an error as a device
    // does; returns the name written to.
    std::wstring writeTo(vxWriteFileWIN& target, const std::wstring& name, short flag,
                         const std::string& text) {
        target.setFileName(name);
        target.setFileFlag(flag);
        target.open();
        if (target.isError()) return target.getFileName();
        target.writeBytes(reinterpret_cast<const uint8_t*>(text.data()), text.size());
        target.close();
        return target.getFileName();
    }

    static short code(const vxWriteFileWIN& t) { return t.getError()->getErrorCode(); }
    static std::wstring location(const vxWriteFileWIN& t) { return t.getError()->getLocation(); }

    std::string folderText;
    std::wstring folder;
};

TEST_F(vxWriteFileTarget, ExistingNamesTakeTheNextFreeCounter) {
    put(L"chart.pdf", "first");
    vxWriteFileWIN a, b;
    EXPECT_EQ(a.getFileFlag(), kFileFlagCounter);
    EXPECT_EQ(writeTo(a, path(L"chart.pdf"), a.getFileFlag(), "second"), path(L"chart-1.pdf"));
    EXPECT_EQ(writeTo(b, path(L"chart.pdf"), 1, "third"), path(L"chart-2.pdf"));
    EXPECT_FALSE(a.isError());
    EXPECT_FALSE(b.isError());
    EXPECT_EQ(read(path(L"chart.pdf")), "first");
    EXPECT_EQ(read(path(L"chart-1.pdf")), "second");
    EXPECT_EQ(read(path(L"chart-2.pdf")), "third");

    // The log sees the name actually written to.
    std::ostringstream out;
    b.dump(2, out);
    EXPECT_NE(out.str().find("wstring fileName: " + vxToUtf8(path(L"chart-2.pdf"))),
              std::string::npos);
}

TEST_F(vxWriteFileTarget, CounterPlacement) {
    fs::create_directories(folderText + "/x.d");
    struct Case {
        std::wstring name;
        std::wstring unique;
    };
    // Only a dot in the last name part starts an extension: a dot in a
    // folder's name must not move the file into another folder.
    const Case cases[] = {
        {L"chart", L"chart-2"},
        {L"x.d/chart", L"x.d/chart-1"},
        {L"x.d/chart.svg", L"x.d/chart-1.svg"},
        {L"chart.tar.gz", L"chart.tar-1.gz"},
        {L"caf\u00e9.svg", L"caf\u00e9-1.svg"},
    };
    put(L"chart-1", "x");  // a taken counter is skipped
    for (const Case& c : cases) {
        put(c.name, "x");
        vxWriteFileWIN target;
        EXPECT_EQ(target.findUniqueFileName(path(c.name)), path(c.unique)) << vxToUtf8(c.name);
        EXPECT_FALSE(target.isError());
    }
}

TEST_F(vxWriteFileTarget, ReplaceFlagOverwritesTheWholeFile) {
    put(L"chart.svg", "a much longer old content");
    vxWriteFileWIN target;
    target.setFormat(kFormatSVG);
    EXPECT_EQ(writeTo(target, path(L"chart.svg"), 2, "new"), path(L"chart.svg"));
    EXPECT_FALSE(target.isError());
    EXPECT_EQ(read(path(L"chart.svg")), "new");
}

TEST_F(vxWriteFileTarget, OpenFailuresLeaveFilesAlone) {
    put(L"chart.pdf", "old");
    struct Case {
        const wchar_t* name;
        short format;
        short flag;
        short code;
        const wchar_t* location;
    };
    const Case cases[] = {
        {L"chart.pdf", kFormatPDF, 3, vxErrFile::kExists, L"openBinaryFile/5"},
        {L"chart.pdf", kFormatPDF, 0, vxErrFile::kExists, L"openBinaryFile/6"},
        {L"chart.pdf", kFormatPDF, 7, vxErrFile::kExists, L"openBinaryFile/6"},
        {L"chart.pdf", kFormatSVG, 3, vxErrFile::kExists, L"openTextFile/5"},
        {L"chart.pdf", kFormatSVG, -1, vxErrFile::kExists, L"openTextFile/6"},
        {L"missing/chart.pdf", kFormatPDF, 1, vxErrFile::kCreate, L"openBinaryFile/7"},
        {L"missing/chart.svg", kFormatSVG, 1, vxErrFile::kCreate, L"openTextFile/7"},
    };
    for (const Case& c : cases) {
        vxWriteFileWIN target;
        target.setFormat(c.format);
        writeTo(target, path(c.name), c.flag, "new");
        EXPECT_EQ(code(target), c.code) << c.flag;
        EXPECT_EQ(location(target), std::wstring(L"vxWriteFileWIN/") + c.location);
        EXPECT_FALSE(target.isOpen());
    }
    EXPECT_EQ(read(path(L"chart.pdf")), "old");
    EXPECT_EQ(names(), std::vector<std::string>{"chart.pdf"});

    // A file that doesn't exist is created whatever the flag.
    vxWriteFileWIN fresh;
    writeTo(fresh, path(L"new.pdf"), 3, "data");
    EXPECT_FALSE(fresh.isError());
    EXPECT_EQ(read(path(L"new.pdf")), "data");
}

TEST_F(vxWriteFileTarget, PathLengthLimits) {
    // The whole path counts, folder included; the file name itself must
    // stay within what the file system allows.
    if (folder.size() > 180) GTEST_SKIP() << "temporary folder path too long";
    auto nameOfPathLength = [&](size_t length) {
        return std::wstring(length - folder.size() - 5, L'n') + L".pdf";
    };
    vxWriteFileWIN fits;
    writeTo(fits, path(nameOfPathLength(259)), 1, "x");
    EXPECT_FALSE(fits.isError());

    vxWriteFileWIN tooLong;
    writeTo(tooLong, path(nameOfPathLength(260)), 1, "x");
    EXPECT_EQ(code(tooLong), vxErrFile::kName);
    EXPECT_EQ(location(tooLong), L"vxWriteFileWIN/openBinaryFile/1");
    EXPECT_EQ(names().size(), 1u);

    // A counter may take a name to 260 characters, not to 261.
    vxWriteFileWIN counted;
    const std::wstring name258 = path(nameOfPathLength(258));
    put(nameOfPathLength(258), "x");
    EXPECT_EQ(writeTo(counted, name258, 1, "y").size(), 260u);
    EXPECT_FALSE(counted.isError());

    vxWriteFileWIN countedTooLong;
    writeTo(countedTooLong, path(nameOfPathLength(259)), 1, "z");
    EXPECT_EQ(code(countedTooLong), vxErrFile::kName);
    EXPECT_EQ(location(countedTooLong), L"vxWriteFileWIN/findUniqueFileName/1");
    EXPECT_EQ(names().size(), 3u);
}

TEST_F(vxWriteFileTarget, PrepareFileNameSettlesTheNameOnly) {
    put(L"chart.png", "old");
    struct Case {
        std::wstring name;
        short flag;
        std::wstring expected;
        short code;
        const wchar_t* location;
    };
    const std::wstring longName = std::wstring(260, L'p');
    const Case cases[] = {
        {path(L"new.png"), 3, path(L"new.png"), kNoError, L""},
        {path(L"chart.png"), 1, path(L"chart-1.png"), kNoError, L""},
        {path(L"chart.png"), 2, path(L"chart.png"), kNoError, L""},
        {path(L"chart.png"), 3, path(L"chart.png"), vxErrFile::kExists,
         L"vxWriteFileWIN/prepareFileName/2"},
        {longName, 1, longName, vxErrFile::kName, L"vxWriteFileWIN/prepareFileName/1"},
    };
    for (const Case& c : cases) {
        vxWriteFileWIN target;
        target.setFileName(c.name);
        target.setFileFlag(c.flag);
        target.prepareFileName();
        EXPECT_EQ(target.getFileName(), c.expected);
        EXPECT_EQ(code(target), c.code) << c.flag;
        EXPECT_EQ(location(target), c.location);
    }
    EXPECT_EQ(names(), std::vector<std::string>{"chart.png"});
}

TEST_F(vxWriteFileTarget, WriteStringWritesLowBytes) {
    vxWriteFileWIN target;
    target.setFormat(kFormatSVG);
    target.setFileName(path(L"chart.svg"));
    target.open();
    EXPECT_TRUE(target.isOpen());
    target.writeString(L"A\u00e9\u20ac\n");
    target.writeString(L"");
    target.close();
    EXPECT_FALSE(target.isError());
    EXPECT_EQ(read(path(L"chart.svg")), std::string("A\xE9\xAC\n"));
}

TEST_F(vxWriteFileTarget, WriteFailures) {
    vxWriteFileWIN notOpen;
    notOpen.setFileName(path(L"chart.svg"));
    notOpen.writeString(L"x");
    EXPECT_EQ(code(notOpen), vxErrFile::kWrite);
    EXPECT_EQ(location(notOpen), L"vxWriteFileWIN/writeString/1");

    if (!fs::exists("/dev/full")) GTEST_SKIP() << "no /dev/full";
    vxWriteFileWIN large;
    large.setFileName(L"/dev/full");
    large.open();
    ASSERT_FALSE(large.isError());
    large.writeString(std::wstring(1 << 20, L'x'));
    EXPECT_EQ(code(large), vxErrFile::kWrite);
    EXPECT_EQ(location(large), L"vxWriteFileWIN/writeString/2");
    large.close();

    // A small write stays in the buffer until the file is closed.
    vxWriteFileWIN small;
    small.setFileName(L"/dev/full");
    small.open();
    small.writeString(L"x");
    EXPECT_FALSE(small.isError());
    small.close();
    EXPECT_EQ(code(small), vxErrFile::kClose);
    EXPECT_EQ(location(small), L"vxWriteFileWIN/close/1");
}

}  // namespace
}  // namespace Velarix
