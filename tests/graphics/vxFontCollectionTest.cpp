#include <gtest/gtest.h>

#include <sstream>
#include <string>

#include "graphics/vxFontCollection.h"

namespace Velarix {
namespace {

TEST(vxFontCollection, KeysAreLowerCaseNamesWithStyleLetters) {
    EXPECT_EQ(vxFontCollection::makeKey(L"Arial Bold"), L"arialB");
    EXPECT_EQ(vxFontCollection::makeKey(L"Arial Bold Italic"), L"arialBI");
    EXPECT_EQ(vxFontCollection::makeKey(L"DejaVu Sans Bold Oblique"), L"dejavu sansBI");
    // Only the endings count, italic before bold.
    EXPECT_EQ(vxFontCollection::makeKey(L"Arial Italic Bold"), L"arial italicB");
    EXPECT_EQ(vxFontCollection::makeKey(L"Verdana", true, true), L"verdanaBI");
}

TEST(vxFontCollection, TakesTrueTypeAndOpenTypeFilesFirstComeFirst) {
    const vxFontCollection fonts({
        {"/fonts/a/Sample-Bold.ttf", 0, L"Sample Bold", L"Sample"},
        {"/fonts/a/Sample.TTF", 0, L"Sample", L"Sample"},
        {"/fonts/b/Sample.ttf", 0, L"Sample", L"Sample"},
        {"/fonts/Other-Italic.otf", 0, L"Other Italic", L"Other"},
        {"/fonts/Collection.ttc", 0, L"Boxed", L"Boxed"},
        {"/fonts/Second.ttf", 1, L"Second Face", L"Second"},
        {"/fonts/Bitmap.pcf.gz", 0, L"Bitmap", L"Bitmap"},
    });
    EXPECT_EQ(fonts.getFile(L"sampleB"), "/fonts/a/Sample-Bold.ttf");
    EXPECT_EQ(fonts.getFile(L"sample"), "/fonts/a/Sample.TTF");
    EXPECT_EQ(fonts.getFile(L"otherI"), "/fonts/Other-Italic.otf");
    EXPECT_EQ(fonts.getFiles().size(), 3u);

    std::ostringstream out;
    fonts.dump(1, out);
    EXPECT_NE(out.str().find("List of installed fonts files:\n"), std::string::npos);
    EXPECT_NE(out.str().find("otherI -> /fonts/Other-Italic.otf\n"), std::string::npos);
}

TEST(vxFontCollection, ThePlatformListHoldsTheInstalledFamilies) {
    const vxFontCollection& fonts = vxFontCollection::get();
    EXPECT_EQ(&fonts, &vxFontCollection::get());
    ASSERT_TRUE(fonts.hasFont(L"dejavu sans")) << "fonts-dejavu-core is missing";
    EXPECT_TRUE(fonts.hasFont(L"dejavu sansB"));
    EXPECT_TRUE(fonts.hasFont(L"dejavu sansBI"));
    EXPECT_NE(fonts.getFile(L"dejavu sansB"), fonts.getFile(L"dejavu sans"));
    EXPECT_EQ(fonts.getFamilies().count(L"dejavu sans"), 1u);
}

}  // namespace
}  // namespace Velarix
