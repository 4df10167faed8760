// The plug-in's calls into the host, in C++ form: every operation's
// exception record is checked after the call, and a host exception is
// thrown on, as std::bad_alloc for the host's out-of-memory code and as
// vxHostException for any other. Objects the plug-in makes are deleted
// through the host. Texts pass as wide strings of UTF-16 code units.
#pragma once

#include <cstdint>
#include <exception>
#include <string>
#include <vector>

#include "host/vxFMXInterface.h"

namespace Velarix {

class vxHostException : public std::exception {
public:
    const char* what() const noexcept override { return "host exception"; }
};

// Throws for a record that reports an exception.
void vxCheckHost(const FMXcpt& x);

// A text made by the plug-in.
class vxHostText {
public:
    explicit vxHostText(const std::wstring& text = L"");
    ~vxHostText();
    vxHostText(const vxHostText&) = delete;
    vxHostText& operator=(const vxHostText&) = delete;

    const vxfmx::Text& get() const { return *text; }

private:
    vxfmx::Text* text = nullptr;
};

// A four-character type or identifier made by the plug-in.
class vxHostQuadChar {
public:
    explicit vxHostQuadChar(const char* chars);
    ~vxHostQuadChar();
    vxHostQuadChar(const vxHostQuadChar&) = delete;
    vxHostQuadChar& operator=(const vxHostQuadChar&) = delete;

    const vxfmx::QuadChar& get() const { return *quad; }

private:
    vxfmx::QuadChar* quad = nullptr;
};

// A container value under construction: typed streams and the SIZE pair.
class vxHostBinaryData {
public:
    vxHostBinaryData();
    ~vxHostBinaryData();
    vxHostBinaryData(const vxHostBinaryData&) = delete;
    vxHostBinaryData& operator=(const vxHostBinaryData&) = delete;

    // The host's answer; 0 is success.
    errcode add(const char* type, const std::vector<uint8_t>& bytes);
    errcode addSize(short width, short height);
    void putInto(vxfmx::Data& result) const;

private:
    vxfmx::BinaryData* data = nullptr;
};

// The text of a host text object.
std::wstring vxReadHostText(const vxfmx::Text& text);

// Arguments: a missing one reads as empty, its number as 0.
uint32_t vxArgCount(const vxfmx::DataVect& args);
bool vxArgIsEmpty(const vxfmx::DataVect& args, uint32_t index);
std::wstring vxArgText(const vxfmx::DataVect& args, uint32_t index);
long vxArgLong(const vxfmx::DataVect& args, uint32_t index);

// Results.
void vxSetResultText(vxfmx::Data& result, const std::wstring& text);
void vxSetResultNumber(vxfmx::Data& result, long number);

// Evaluates a calculation in the host; false, and `value` empty, when the
// host reports an error.
bool vxEvaluate(const vxfmx::ExprEnv& env, const std::wstring& calculation, std::wstring& value);

// Registration of the plug-in's external functions under its identifier.
errcode vxRegisterFunction(short functionID, const std::wstring& signature, short minArgs,
                           short maxArgs, vxfmx::ExternalFunction function);
errcode vxUnregisterFunction(short functionID);

}  // namespace Velarix
