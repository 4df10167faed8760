#include "settings/vxErrorHolder.h"

namespace Velarix {

vxErrorHolder::vxErrorHolder(const wchar_t* name) : className(name) {
    try {
        error = std::make_unique<vxError>();
    } catch (const std::bad_alloc&) {
        error.reset();
    }
}

vxErrorHolder::~vxErrorHolder() = default;

void vxErrorHolder::setParsingError(short code, long line, const std::wstring& fnName,
                                    long argIndex, const std::wstring& scriptPart,
                                    const std::wstring& addlInfo) {
    if (error) error->setParsingError(code, line, fnName, argIndex, scriptPart, addlInfo);
}

void vxErrorHolder::setRuntimeError(short code, short systemCode, const std::wstring& location,
                                    const std::wstring& addlInfo) {
    if (error) error->setRuntimeError(code, systemCode, location, addlInfo);
}

void vxErrorHolder::setError(short code, const std::wstring& location,
                             const std::wstring& addlInfo) {
    if (error) error->setError(code, location, addlInfo);
}

void vxErrorHolder::setError(short code, const std::wstring& location) {
    if (error) error->setError(code, location);
}

void vxErrorHolder::setError(short code) {
    if (error) error->setError(code);
}

void vxErrorHolder::copyError(const vxError* from) {
    if (error) error->copy(from);
}

void vxErrorHolder::clearError() {
    if (error) error->clear();
}

std::wstring vxErrorHolder::where(const wchar_t* method, int number) const {
    return std::wstring(className) + L"/" + method + L"/" + std::to_wstring(number);
}

}  // namespace Velarix
