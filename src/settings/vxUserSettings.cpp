#include "settings/vxUserSettings.h"

#include "host/vxLog.h"

namespace Velarix {

namespace {

// Copies one group; a group missing on either side is left as it is.
template <class T>
void copyGroup(const std::unique_ptr<T>& to, const std::unique_ptr<T>& from) {
    if (to && from) to->copy(from.get());
}

template <class T>
void clearGroup(const std::unique_ptr<T>& group) {
    if (group) group->clear();
}

template <class T>
void dumpGroup(const std::unique_ptr<T>& group, short depth, std::ostream& out) {
    if (group) group->dump(depth, out);
}

}  // namespace

vxUserSettings::vxUserSettings(const std::wstring& appPath, const std::wstring& second,
                               short languageID, short appType)
    : vxErrorHolder(L"vxUserSettings"),
      mAppPath(appPath),
      mSecondText(second),
      mLanguageID(languageID),
      mAppType(appType) {
    if (isError()) return;
    createGroups();
}

vxUserSettings::~vxUserSettings() = default;

bool vxUserSettings::createGroups() {
    return createRenderingSettings() && createFormatSettings() && createFontSettings() &&
           createStyleSettings() && createErrorSettings() && createSystemSettings();
}

bool vxUserSettings::createRenderingSettings() {
    return create(mRenderingSettings, L"createRenderingSettings");
}

bool vxUserSettings::createFormatSettings() {
    return create(mFormatSettings, L"createFormatSettings");
}

bool vxUserSettings::createFontSettings() {
    return create(mFontSettings, L"createFontSettings");
}

bool vxUserSettings::createStyleSettings() {
    return create(mStyleSettings, L"createStyleSettings");
}

bool vxUserSettings::createErrorSettings() {
    return create(mErrorSettings, L"createErrorSettings");
}

bool vxUserSettings::createSystemSettings() {
    return create(mSystemSettings, L"createSystemSettings");
}

// The style settings keep their own defaults.
void vxUserSettings::setDefaults() {
    setDefaultRenderingSettings();
    setDefaultFontSettings();
    setDefaultFormatSettings();
    setDefaultErrorSettings();
}

void vxUserSettings::setDefaultRenderingSettings() {
    if (mRenderingSettings) mRenderingSettings->setDefaults();
}

void vxUserSettings::setDefaultFontSettings() {
    if (mFontSettings) mFontSettings->setDefaults();
}

void vxUserSettings::setDefaultFormatSettings() {
    if (mFormatSettings) mFormatSettings->setDefaults(mLanguageID, mSystemSettings.get());
}

void vxUserSettings::setDefaultErrorSettings() {
    if (mErrorSettings) mErrorSettings->setDefaults();
}

void vxUserSettings::clear() {
    clearGroup(mRenderingSettings);
    clearGroup(mFormatSettings);
    clearGroup(mFontSettings);
    clearGroup(mStyleSettings);
    clearGroup(mErrorSettings);
    clearGroup(mSystemSettings);
}

void vxUserSettings::copy(const vxUserSettings* from) {
    if (from == this) return;
    if (!from) {
        clear();
        return;
    }
    mAppPath = from->mAppPath;
    mSecondText = from->mSecondText;
    mLanguageName = from->mLanguageName;
    mLanguageID = from->mLanguageID;
    mAppType = from->mAppType;
    copyGroup(mRenderingSettings, from->mRenderingSettings);
    copyGroup(mFormatSettings, from->mFormatSettings);
    copyGroup(mFontSettings, from->mFontSettings);
    copyGroup(mStyleSettings, from->mStyleSettings);
    copyGroup(mErrorSettings, from->mErrorSettings);
    copyGroup(mSystemSettings, from->mSystemSettings);
}

void vxUserSettings::dump(short depth, std::ostream& out) const {
    vxDumpHeader(out, vxNarrow(className));
    vxDumpLine(out, "wstring appPath: ", mAppPath);
    vxDumpLine(out, "wstring secondText: ", mSecondText);
    vxDumpLine(out, "wstring languageName: ", mLanguageName);
    vxDumpLine(out, "short languageID: ", mLanguageID);
    vxDumpLine(out, "short appType: ", mAppType);
    if (depth > 0) {
        dumpGroup(error, depth - 1, out);
        dumpGroup(mRenderingSettings, depth - 1, out);
        dumpGroup(mFormatSettings, depth - 1, out);
        dumpGroup(mFontSettings, depth - 1, out);
        dumpGroup(mStyleSettings, depth - 1, out);
        dumpGroup(mErrorSettings, depth - 1, out);
        dumpGroup(mSystemSettings, depth - 1, out);
    }
    vxDumpEnd(out);
}

}  // namespace Velarix
