// The error protocol shared by the engine's main classes: each owns one
// vxError and forwards the setters to it. A holder whose record could not
// be made counts as failed.
#pragma once

#include <memory>
#include <new>
#include <string>

#include "settings/vxError.h"
#include "settings/vxErrorCodes.h"

namespace Velarix {

class vxErrorHolder {
public:
    // The name is a literal that outlives the holder.
    explicit vxErrorHolder(const wchar_t* name);
    virtual ~vxErrorHolder();

    std::wstring getClassName() const { return className; }
    vxError* getError() const { return error.get(); }
    virtual bool isError() const { return !error || error->isError(); }

    virtual void setParsingError(short code, long line, const std::wstring& fnName, long argIndex,
                                 const std::wstring& scriptPart, const std::wstring& addlInfo);
    void setRuntimeError(short code, short systemCode, const std::wstring& location,
                         const std::wstring& addlInfo = L"");
    void setError(short code, const std::wstring& location, const std::wstring& addlInfo);
    void setError(short code, const std::wstring& location);
    void setError(short code);
    void copyError(const vxError* from);
    void clearError();

    // The location text of this class: "className/method/number".
    std::wstring where(const wchar_t* method, int number = 1) const;

protected:
    // Replaces `slot` with a new T; a failed allocation becomes error 5000
    // at "className/method/1". Returns false on failure.
    template <class T, class... Args>
    bool create(std::unique_ptr<T>& slot, const wchar_t* method, Args&&... args) {
        slot.reset();
        try {
            slot = std::make_unique<T>(std::forward<Args>(args)...);
        } catch (const std::bad_alloc&) {
            setError(vxErrRuntime::kOutOfMemory, where(method));
            return false;
        }
        return true;
    }

    const wchar_t* className;
    std::unique_ptr<vxError> error;
};

}  // namespace Velarix
