// How an error message is composed for the user: which parts it shows and
// how the excerpt of the script is marked.
#pragma once

#include <ostream>
#include <string>

namespace Velarix {

class vxErrorSettings {
public:
    vxErrorSettings() = default;
    virtual ~vxErrorSettings() = default;

    // All flags off, the texts empty, no limit on the script excerpt.
    void clear();
    // The values the engine starts a drawing with.
    void setDefaults();
    void copy(const vxErrorSettings* from);  // null clears
    void dump(short depth, std::ostream& out) const;

    bool doPlayAlertSound() const { return mDoPlayAlertSound; }
    void setDoPlayAlertSound(bool value) { mDoPlayAlertSound = value; }
    bool doShowErrorCode() const { return mDoShowErrorCode; }
    void setDoShowErrorCode(bool value) { mDoShowErrorCode = value; }
    bool doShowDescription() const { return mDoShowDescription; }
    void setDoShowDescription(bool value) { mDoShowDescription = value; }
    bool doShowLocation() const { return mDoShowLocation; }
    void setDoShowLocation(bool value) { mDoShowLocation = value; }
    bool doShowAddlInfo() const { return mDoShowAddlInfo; }
    void setDoShowAddlInfo(bool value) { mDoShowAddlInfo = value; }
    bool doShowParsingErrorLocation() const { return mDoShowParsingErrorLocation; }
    void setDoShowParsingErrorLocation(bool value) { mDoShowParsingErrorLocation = value; }
    bool doShowErrScriptPart() const { return mDoShowErrScriptPart; }
    void setDoShowErrScriptPart(bool value) { mDoShowErrScriptPart = value; }
    bool doShowSystemErrorCode() const { return mDoShowSystemErrorCode; }
    void setDoShowSystemErrorCode(bool value) { mDoShowSystemErrorCode = value; }

    const std::wstring& getMessagePrefix() const { return mMessagePrefix; }
    void setMessagePrefix(const std::wstring& value) { mMessagePrefix = value; }
    const std::wstring& getErrPartPrefix() const { return mErrPartPrefix; }
    void setErrPartPrefix(const std::wstring& value) { mErrPartPrefix = value; }
    const std::wstring& getErrPartPostfix() const { return mErrPartPostfix; }
    void setErrPartPostfix(const std::wstring& value) { mErrPartPostfix = value; }
    // -1: no limit.
    short getMaxCharsOfErrScriptPart() const { return mMaxCharsOfErrScriptPart; }
    void setMaxCharsOfErrScriptPart(short value) { mMaxCharsOfErrScriptPart = value; }

private:
    bool mDoPlayAlertSound = false;
    bool mDoShowErrorCode = false;
    bool mDoShowDescription = false;
    bool mDoShowLocation = false;
    bool mDoShowAddlInfo = false;
    bool mDoShowParsingErrorLocation = false;
    bool mDoShowErrScriptPart = false;
    bool mDoShowSystemErrorCode = false;
    std::wstring mMessagePrefix;
    std::wstring mErrPartPrefix;
    std::wstring mErrPartPostfix;
    short mMaxCharsOfErrScriptPart = -1;
};

}  // namespace Velarix
