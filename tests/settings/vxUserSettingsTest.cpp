// The user settings: their groups, the defaults a drawing starts with, and
// copying and clearing.
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "settings/vxUserSettings.h"

namespace Velarix {
namespace {

using Names = std::vector<std::wstring>;

std::unique_ptr<vxUserSettings> makeDefaults(short languageID) {
    auto settings = std::make_unique<vxUserSettings>(L"/data/Charts.fp7", L"", languageID, 4);
    settings->setDefaults();
    return settings;
}

TEST(vxUserSettingsTest, ConstructorKeepsItsValuesAndMakesEveryGroup) {
    const vxUserSettings settings(L"/data/Charts.fp7", L"second", 2, 4);
    EXPECT_FALSE(settings.isError());
    EXPECT_EQ(settings.getClassName(), L"vxUserSettings");
    EXPECT_EQ(settings.getAppPath(), L"/data/Charts.fp7");
    EXPECT_EQ(settings.getSecondText(), L"second");
    EXPECT_EQ(settings.getLanguageName(), L"English");
    EXPECT_EQ(settings.getLanguageID(), 2);
    EXPECT_EQ(settings.getAppType(), 4);
    EXPECT_NE(settings.getRenderingSettings(), nullptr);
    EXPECT_NE(settings.getFormatSettings(), nullptr);
    EXPECT_NE(settings.getFontSettings(), nullptr);
    EXPECT_NE(settings.getStyleSettings(), nullptr);
    EXPECT_NE(settings.getErrorSettings(), nullptr);
    EXPECT_NE(settings.getSystemSettings(), nullptr);
}

TEST(vxUserSettingsTest, DefaultsOfRenderingFontsStylesAndErrors) {
    const auto settings = makeDefaults(1);
    const vxRenderingSettings& r = *settings->getRenderingSettings();
    EXPECT_EQ(r.getShapeAntialiasing(), 1);
    EXPECT_EQ(r.getTextAntialiasing(), 1);
    EXPECT_EQ(r.getFractionalMetrics(), 1);
    EXPECT_EQ(r.getCompositingMode() + r.getPixelInterpolation() + r.getAlphaInterpolation() +
                  r.getColorRendering() + r.getDithering(),
              0);

    const vxFontSettings& f = *settings->getFontSettings();
    EXPECT_EQ(f.getNameWinOS(), L"Verdana");
    EXPECT_FLOAT_EQ(f.getSizeWinOS(), 10.0f);
    EXPECT_EQ(f.getNameMacOSX(), L"Geneva");
    EXPECT_FLOAT_EQ(f.getSizeMacOSX(), 9.0f);
    EXPECT_EQ(f.getNameMacOSClassic(), L"Geneva");
    EXPECT_FLOAT_EQ(f.getSizeMacOSClassic(), 9.0f);
    EXPECT_EQ(f.getStyleWinOS() + f.getStyleMacOSX() + f.getStyleMacOSClassic(), 0);
    EXPECT_EQ(f.getMissingFontFlag(), 0);
    EXPECT_EQ(f.getEmbedPDFFontFlag(), 0);

    EXPECT_EQ(settings->getStyleSettings()->getColorPaletteID(), 1);
    EXPECT_TRUE(settings->getStyleSettings()->getUserDefinedColors().empty());

    const vxErrorSettings& e = *settings->getErrorSettings();
    EXPECT_TRUE(e.doPlayAlertSound());
    EXPECT_FALSE(e.doShowErrorCode());
    EXPECT_TRUE(e.doShowDescription() && e.doShowLocation() && e.doShowAddlInfo());
    EXPECT_TRUE(e.doShowParsingErrorLocation() && e.doShowErrScriptPart());
    EXPECT_TRUE(e.doShowSystemErrorCode());
    EXPECT_TRUE(e.getMessagePrefix().empty());
    EXPECT_EQ(e.getErrPartPrefix(), L"--->");
    EXPECT_EQ(e.getErrPartPostfix(), L"<---");
    EXPECT_EQ(e.getMaxCharsOfErrScriptPart(), -1);
}

TEST(vxUserSettingsTest, EnglishFormatDefaults) {
    const auto settings = makeDefaults(1);
    const vxFormatSettings& f = *settings->getFormatSettings();
    EXPECT_EQ(f.getMonthNames(),
              (Names{L"January", L"February", L"March", L"April", L"May", L"June", L"July",
                     L"August", L"September", L"October", L"November", L"December"}));
    EXPECT_EQ(f.getShortMonthNames(), (Names{L"Jan", L"Feb", L"Mar", L"Apr", L"May", L"Jun", L"Jul",
                                             L"Aug", L"Sep", L"Oct", L"Nov", L"Dec"}));
    // Weeks begin on Sunday in the tables, as the date formats count them.
    EXPECT_EQ(f.getWeekdayNames(), (Names{L"Sunday", L"Monday", L"Tuesday", L"Wednesday",
                                          L"Thursday", L"Friday", L"Saturday"}));
    EXPECT_EQ(f.getShortWeekdayNames(),
              (Names{L"Sun", L"Mon", L"Tue", L"Wed", L"Thu", L"Fri", L"Sat"}));
    EXPECT_EQ(f.getDecimalPoint(), L'.');
    EXPECT_EQ(f.getThousandsSep(), 0);
    EXPECT_EQ(f.getThousandsGroupSize(), 3);
    EXPECT_EQ(f.getDateSeparatorID(), 1);
    EXPECT_EQ(f.getTimeSeparatorID(), 0);
    EXPECT_EQ(f.getDateOrderID(), -1);
    EXPECT_TRUE(f.getDateFormat().empty());
    EXPECT_TRUE(f.getTimeFormat().empty());
}

TEST(vxUserSettingsTest, GermanNamesFollowTheLanguageID) {
    vxUserSettings settings(L"", L"", 1, 0);
    settings.setLanguageID(2);
    settings.setDefaults();
    const vxFormatSettings& f = *settings.getFormatSettings();
    EXPECT_EQ(f.getMonthNames(),
              (Names{L"Januar", L"Februar", L"Maerz", L"April", L"Mai", L"Juni", L"Juli", L"August",
                     L"September", L"Oktober", L"November", L"Dezember"}));
    EXPECT_EQ(f.getShortMonthNames(), (Names{L"Jan", L"Feb", L"Mae", L"Apr", L"Mai", L"Jun", L"Jul",
                                             L"Aug", L"Sep", L"Okt", L"Nov", L"Dez"}));
    EXPECT_EQ(f.getWeekdayNames(), (Names{L"Sonntag", L"Montag", L"Dienstag", L"Mittwoch",
                                          L"Donnerstag", L"Freitag", L"Samstag"}));
    EXPECT_EQ(f.getShortWeekdayNames(),
              (Names{L"Son", L"Mon", L"Die", L"Mit", L"Don", L"Fre", L"Sam"}));
    EXPECT_EQ(f.getDecimalPoint(), L'.');
}

TEST(vxUserSettingsTest, SeparatorIDsOfCharacters) {
    EXPECT_EQ(vxFormatSettings::dateSeparatorIDOf(L'-'), 0);
    EXPECT_EQ(vxFormatSettings::dateSeparatorIDOf(L'/'), 1);
    EXPECT_EQ(vxFormatSettings::dateSeparatorIDOf(L'.'), 2);
    EXPECT_EQ(vxFormatSettings::timeSeparatorIDOf(L':'), 0);
    EXPECT_EQ(vxFormatSettings::timeSeparatorIDOf(L'\''), 1);
}

TEST(vxUserSettingsTest, SystemAnswersOfThisPlatform) {
    const vxSystemSettings system;
    EXPECT_EQ(system.getDateOrder(), L"MDY");
    EXPECT_EQ(system.getDateSeparator(), L'/');
    EXPECT_EQ(system.getTimeSeparator(), L':');
    EXPECT_FALSE(system.fontExists(L"No Such Font"));
    EXPECT_TRUE(system.fontExists(L"systemfont"));
    EXPECT_FALSE(system.isWindowsOS());
    EXPECT_EQ(system.getMonthNames().front(), L"January");
}

TEST(vxUserSettingsTest, GroupsCopyAndClear) {
    vxFormatSettings format;
    format.setDefaults(2, nullptr);
    format.setDecimalPoint(L',');
    format.setThousandsSep(L'.');
    format.setDateFormat(L"DD.MM.YYYY");
    vxFormatSettings copy;
    copy.copy(&format);
    EXPECT_EQ(copy.getDecimalPoint(), L',');
    EXPECT_EQ(copy.getThousandsSep(), L'.');
    EXPECT_EQ(copy.getDateFormat(), L"DD.MM.YYYY");
    EXPECT_EQ(copy.getMonthNames()[2], L"Maerz");
    copy.copy(nullptr);
    EXPECT_EQ(copy.getDecimalPoint(), L'.');
    EXPECT_EQ(copy.getThousandsSep(), 0);
    EXPECT_TRUE(copy.getDateFormat().empty());
    EXPECT_EQ(copy.getMonthNames()[2], L"March");

    vxErrorSettings errors;
    errors.setDefaults();
    errors.setMaxCharsOfErrScriptPart(40);
    vxErrorSettings errorCopy;
    errorCopy.copy(&errors);
    EXPECT_EQ(errorCopy.getErrPartPrefix(), L"--->");
    EXPECT_EQ(errorCopy.getMaxCharsOfErrScriptPart(), 40);
    errorCopy.clear();
    EXPECT_FALSE(errorCopy.doPlayAlertSound());
    EXPECT_TRUE(errorCopy.getErrPartPrefix().empty());
    EXPECT_EQ(errorCopy.getMaxCharsOfErrScriptPart(), -1);

    vxStyleSettings style;
    style.setColorPaletteID(3);
    style.setUserDefinedColors({255, 0, 0, 255});
    vxStyleSettings styleCopy;
    styleCopy.copy(&style);
    EXPECT_EQ(styleCopy.getUserDefinedColors(), (std::vector<short>{255, 0, 0, 255}));
    styleCopy.copy(nullptr);
    EXPECT_EQ(styleCopy.getColorPaletteID(), 1);
    EXPECT_TRUE(styleCopy.getUserDefinedColors().empty());
}

TEST(vxUserSettingsTest, CopyOfTheWholeBundleIsDeep) {
    const auto source = makeDefaults(2);
    source->getFormatSettings()->setDecimalPoint(L',');
    source->getFontSettings()->setMissingFontFlag(1);
    vxUserSettings target(L"", L"", 1, 0);
    target.copy(source.get());
    EXPECT_EQ(target.getAppPath(), L"/data/Charts.fp7");
    EXPECT_EQ(target.getLanguageID(), 2);
    EXPECT_EQ(target.getFormatSettings()->getDecimalPoint(), L',');
    EXPECT_EQ(target.getFontSettings()->getMissingFontFlag(), 1);
    EXPECT_EQ(target.getErrorSettings()->getErrPartPostfix(), L"<---");
    EXPECT_NE(target.getFormatSettings(), source->getFormatSettings());

    source->getFormatSettings()->setDecimalPoint(L';');
    EXPECT_EQ(target.getFormatSettings()->getDecimalPoint(), L',');
    target.copy(nullptr);
    EXPECT_EQ(target.getFormatSettings()->getDecimalPoint(), L'.');
    EXPECT_EQ(target.getRenderingSettings()->getShapeAntialiasing(), 0);
}

}  // namespace
}  // namespace Velarix
