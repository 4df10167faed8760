#include <gtest/gtest.h>

#include <memory>
#include <vector>

#include "output/vxWriteStreamWIN.h"

namespace Velarix {
namespace {

TEST(vxWriteTarget, MadeByTypeCodeAndDrivenAlike) {
    std::vector<std::unique_ptr<vxWriteExternal>> targets;
    for (short type : {kTargetClipboard, kTargetFile, kTargetStream}) {
        targets.push_back(vxWriteExternal::makeTarget(type));
        ASSERT_NE(targets.back(), nullptr);
        EXPECT_EQ(targets.back()->getType(), type);
    }
    EXPECT_EQ(vxWriteExternal::makeTarget(2), nullptr);
    EXPECT_EQ(vxWriteExternal::makeTarget(0), nullptr);

    // Only the file keeps a name and flag; only the stream keeps data.
    for (auto& target : targets) {
        target->setFormat(kFormatNone);
        target->setFileName(L"ignored.pdf");
        target->setFileFlag(2);
    }
    EXPECT_EQ(targets[0]->getFileName(), L"");
    EXPECT_EQ(targets[0]->getFileFlag(), 0);
    EXPECT_EQ(targets[1]->getFileName(), L"ignored.pdf");
    EXPECT_EQ(targets[1]->getFileFlag(), 2);
    EXPECT_EQ(targets[2]->getFileName(), L"");
    EXPECT_EQ(targets[0]->getStreamRecord(), nullptr);
    EXPECT_EQ(targets[1]->getStreamRecord(), nullptr);
    ASSERT_NE(targets[2]->getStreamRecord(), nullptr);
    EXPECT_EQ(static_cast<unsigned short>(targets[2]->getFormat()), 65535);

    // Without a clipboard on this platform, its target takes all quietly.
    targets[0]->open();
    targets[0]->writeString(L"<svg/>");
    targets[0]->storeData({4, 5});
    targets[0]->close();
    EXPECT_FALSE(targets[0]->isError());
}

TEST(vxWriteStream, RecordCarriesFormatSizeAndBytes) {
    vxWriteStreamWIN stream;
    stream.setFormat(kFormatPDF);
    stream.setSize(400.5f, 300.0f);
    stream.storeData({0x25, 0x50, 0x44, 0x46});
    const vxStreamRecord* record = stream.getStreamRecord();
    EXPECT_EQ(record->formatCode, kStreamPDF);
    EXPECT_EQ(record->bytes, (std::vector<uint8_t>{0x25, 0x50, 0x44, 0x46}));
    EXPECT_FLOAT_EQ(record->width, 400.5f);
    EXPECT_FLOAT_EQ(record->height, 300.0f);
    EXPECT_EQ(stream.getNumOfBytes(), 4ul);

    // Later setters reach the record; a second store replaces the data.
    stream.setFormat(kFormatPNG);
    stream.storeData({9});
    record = stream.getStreamRecord();
    EXPECT_EQ(record->formatCode, kStreamPNG);
    EXPECT_EQ(record->bytes, std::vector<uint8_t>{9});
    EXPECT_FALSE(stream.isError());
}

TEST(vxWriteStream, OpenStartsAnewAndWritesAppend) {
    vxWriteStreamWIN stream;
    stream.storeData({1, 2, 3});
    stream.open();
    EXPECT_TRUE(stream.isOpen());
    EXPECT_EQ(stream.getNumOfBytes(), 0ul);
    stream.writeString(L"A\u00e9\u20ac");
    const uint8_t tail[] = {0, 0xFF};
    stream.writeBytes(tail, sizeof tail);
    stream.close();
    EXPECT_FALSE(stream.isOpen());
    EXPECT_EQ(stream.getStreamRecord()->bytes,
              (std::vector<uint8_t>{0x41, 0xE9, 0xAC, 0x00, 0xFF}));
}

}  // namespace
}  // namespace Velarix
