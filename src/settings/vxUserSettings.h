// What a user or the platform can change, bundled for one interface: the
// rendering, format, font, style and error settings, and the platform's own
// answers. It lives across the drawings of that interface.
#pragma once

#include <memory>
#include <ostream>
#include <string>

#include "settings/vxErrorHolder.h"
#include "settings/vxErrorSettings.h"
#include "settings/vxFontSettings.h"
#include "settings/vxFormatSettings.h"
#include "settings/vxRenderingSettings.h"
#include "settings/vxStyleSettings.h"
#include "settings/vxSystemSettings.h"

namespace Velarix {

class vxUserSettings : public vxErrorHolder {
public:
    // A group that can't be made leaves isError() true.
    vxUserSettings(const std::wstring& appPath, const std::wstring& second, short languageID,
                   short appType);
    ~vxUserSettings() override;

    // The values a drawing starts with; the names follow the language ID.
    void setDefaults();
    void clear();                           // clears each group; paths and IDs stay
    void copy(const vxUserSettings* from);  // null clears
    void dump(short depth, std::ostream& out) const;

    vxRenderingSettings* getRenderingSettings() const { return mRenderingSettings.get(); }
    vxFormatSettings* getFormatSettings() const { return mFormatSettings.get(); }
    vxFontSettings* getFontSettings() const { return mFontSettings.get(); }
    vxStyleSettings* getStyleSettings() const { return mStyleSettings.get(); }
    vxErrorSettings* getErrorSettings() const { return mErrorSettings.get(); }
    vxSystemSettings* getSystemSettings() const { return mSystemSettings.get(); }

    const std::wstring& getAppPath() const { return mAppPath; }
    void setAppPath(const std::wstring& value) { mAppPath = value; }
    const std::wstring& getSecondText() const { return mSecondText; }
    void setSecondText(const std::wstring& value) { mSecondText = value; }
    const std::wstring& getLanguageName() const { return mLanguageName; }
    void setLanguageName(const std::wstring& value) { mLanguageName = value; }
    short getLanguageID() const { return mLanguageID; }
    void setLanguageID(short value) { mLanguageID = value; }
    short getAppType() const { return mAppType; }
    void setAppType(short value) { mAppType = value; }

private:
    bool createGroups();
    bool createRenderingSettings();
    bool createFormatSettings();
    bool createFontSettings();
    bool createStyleSettings();
    bool createErrorSettings();
    bool createSystemSettings();

    void setDefaultRenderingSettings();
    void setDefaultFontSettings();
    void setDefaultFormatSettings();
    void setDefaultErrorSettings();

    std::wstring mAppPath;
    std::wstring mSecondText;
    std::wstring mLanguageName = L"English";
    short mLanguageID = 1;
    short mAppType = 0;
    std::unique_ptr<vxRenderingSettings> mRenderingSettings;
    std::unique_ptr<vxFormatSettings> mFormatSettings;
    std::unique_ptr<vxFontSettings> mFontSettings;
    std::unique_ptr<vxStyleSettings> mStyleSettings;
    std::unique_ptr<vxErrorSettings> mErrorSettings;
    std::unique_ptr<vxSystemSettings> mSystemSettings;
};

}  // namespace Velarix
