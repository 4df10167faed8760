// The record of one failure. Every main object owns one; the first error
// raised in a run is the one that reaches the user.
//
// Composition of the user-visible text (getMessage) is driven by a flags
// text read by position:
//   0     "1": the numeric code comes first
//   1     level of detail, "1" to "5" (see vxError.cpp); shorter text: "3"
//   2...  a literal put at the very front
#pragma once

#include <memory>
#include <ostream>
#include <string>

#include "settings/vxParsingError.h"
#include "settings/vxRuntimeError.h"

namespace Velarix {

class vxErrorSettings;

class vxError {
public:
    vxError();
    virtual ~vxError();

    virtual bool isError() const { return errorCode > 0; }
    virtual const std::wstring& getClassName() const;
    virtual void getMessage(std::wstring& dest, short languageID, const std::wstring& flags) const;
    virtual void clear();

    // Parsing errors: the argument index is stored as given.
    void setParsingError(short code, long line, const std::wstring& fnName, long argIndex,
                         const std::wstring& scriptPart, const std::wstring& addlInfo);
    void setParsingError(short code, long line, const std::wstring& fnName, long argIndex,
                         const std::wstring& scriptPart);
    void setParsingError(short code, long line, const std::wstring& fnName,
                         const std::wstring& scriptPart);
    void setParsingError(short code, long line, const std::wstring& scriptPart);

    void setRuntimeError(short code, short systemCode, const std::wstring& location,
                         const std::wstring& addlInfo);
    void setRuntimeError(short code, short systemCode, const std::wstring& location);
    void setRuntimeError(short code, short systemCode);

    void setError(short code, const std::wstring& location, const std::wstring& addlInfo);
    void setError(short code, const std::wstring& location);
    void setError(short code);

    // Places the error at a script call, keeping code, location and
    // additional information.
    void setCallPlace(long line, const std::wstring& fnName, const std::wstring& scriptPart);
    void setMessagePrefix(const vxErrorSettings* settings);
    void copy(const vxError* from);  // null clears
    void clearText();
    void dump(short depth, std::ostream& out) const;

    short getErrorCode() const { return errorCode; }
    const std::wstring& getLocation() const { return location; }
    const std::wstring& getAddlInfo() const { return addlInfo; }
    const std::wstring& getMessagePrefix() const { return messagePrefix; }
    const vxParsingError* getParsingError() const { return parsingError.get(); }
    const vxRuntimeError* getRuntimeError() const { return runtimeError.get(); }

private:
    void reset();
    // Each makes its sub-record anew; a failed allocation becomes error 5000.
    bool createParsingError();
    bool createRuntimeError();

    std::unique_ptr<vxParsingError> parsingError;
    std::unique_ptr<vxRuntimeError> runtimeError;
    short errorCode = 0;
    std::wstring messagePrefix;
    std::wstring location;
    std::wstring addlInfo;
};

}  // namespace Velarix
