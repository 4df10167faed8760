// The binary interface between a FileMaker host and its plug-ins, as far as
// Velarix uses it: the call block of the entry point, the host's value
// types and its operations (FM_*), which libFMWrapper.so provides with C
// linkage. The host's objects are opaque: a plug-in holds pointers to them
// and never looks inside. The test host (tools/fmhost) defines them.
//
// Every operation takes the object first (references are pointers in the
// ABI) and the host's exception record last; the caller checks the record
// after each call. Texts are UTF-16.
#pragma once

#include <cstddef>
#include <cstdint>

namespace Velarix::fmx {

class Text;
class Data;
class DataVect;
class FixPt;
class QuadChar;
class BinaryData;
class ExprEnv;
class Locale;
class DateTime;

using errcode = short;
using unichar16 = uint16_t;

// The host's exception record: a version, then a code.
struct Exception {
    enum Code : int32_t { kNone = 0, kBadAlloc = 1, kUnknown = 2 };
    int32_t version = 1;
    int32_t code = kNone;
};

// The native types of a Data value.
enum DataType : int32_t {
    kDTInvalid = 0,
    kDTText = 1,
    kDTNumber = 2,
    kDTDate = 3,
    kDTTime = 4,
    kDTTimeStamp = 5,
    kDTBinary = 6,
    kDTBoolean = 7
};

constexpr int kDefaultFixedPrecision = 16;
constexpr uint32_t kSizeEnd = 0xFFFFFFFF;  // "to the end" for positions and sizes
constexpr int32_t kLocaleSystem = 1;

// An external function as the host calls it; 0 is no error.
using ExternalFunction = errcode (*)(short functionId, const ExprEnv& env, const DataVect& args,
                                     Data& result);

}  // namespace Velarix::fmx

extern "C" {

// The messages of the entry point.
enum : uint8_t {
    kFMXT_Init = 0,
    kFMXT_Idle = 1,
    kFMXT_Shutdown = 4,
    kFMXT_DoAppPreferences = 5,
    kFMXT_GetString = 7,
    kFMXT_SessionShutdown = 8,
    kFMXT_FileShutdown = 9
};

// The ids of the strings the host asks for.
enum : uint8_t { kFMXT_NameStr = 128, kFMXT_AppConfigStr = 129, kFMXT_OptionsStr = 131 };

// The answer to init that refuses the host.
constexpr int64_t kFMXT_BadExtnVersion = -1;

struct FMX_ExternCallStruct;
using FMX_ExternCallPtr = FMX_ExternCallStruct*;
using FMX_ExternCallProc = void (*)(FMX_ExternCallPtr);

// The call block, packed, 74 bytes on x86-64.
struct __attribute__((packed)) FMX_ExternCallStruct {
    int16_t extnVersion;  // the host's API version
    int32_t unusedID;
    FMX_ExternCallProc entryPoint;
    char unusedFlag;
    uint8_t whichCall;  // the message
    char unsafeCalls;
    uint8_t parm1;   // init: the application kind; get string: the string id
    uint64_t parm2;  // init: the version text (UTF-16, zero-ended); get string: language id
    uint64_t parm3;  // get string: the buffer's size in UTF-16 units
    uint64_t instanceID;
    uint64_t result;  // init: the API version answered; get string: the buffer
    uint64_t unused;
    void* cStartScript;
    void* cCurrentEnv;
};

static_assert(offsetof(FMX_ExternCallStruct, whichCall) == 15);
static_assert(offsetof(FMX_ExternCallStruct, parm2) == 18);
static_assert(offsetof(FMX_ExternCallStruct, result) == 42);
static_assert(sizeof(FMX_ExternCallStruct) == 74);

void FMExternCallProc(FMX_ExternCallPtr block);

}  // extern "C"

namespace vxfmx = Velarix::fmx;
using FMXcpt = Velarix::fmx::Exception;
using Velarix::fmx::errcode;

extern "C" {

// Text
vxfmx::Text* FM_Text_Constructor1(FMXcpt& x) noexcept;
uint32_t FM_Text_GetSize(const void* self, FMXcpt& x) noexcept;
void FM_Text_AssignUnicodeWithLength(void* self, const uint16_t* s, uint32_t length,
                                     FMXcpt& x) noexcept;
void FM_Text_GetUnicode(const void* self, uint16_t* s, uint32_t position, uint32_t size,
                        FMXcpt& x) noexcept;
void FM_Text_Delete(void* self, FMXcpt& x) noexcept;

// FixPt
vxfmx::FixPt* FM_FixPt_Constructor1(int32_t value, int precision, FMXcpt& x) noexcept;
void FM_FixPt_AssignInt(void* self, int32_t value, FMXcpt& x) noexcept;
void FM_FixPt_AssignDouble(void* self, double value, FMXcpt& x) noexcept;
int32_t FM_FixPt_AsLong(const void* self, FMXcpt& x) noexcept;
double FM_FixPt_AsFloat(const void* self, FMXcpt& x) noexcept;
void FM_FixPt_Delete(void* self, FMXcpt& x) noexcept;

// QuadChar and Locale
vxfmx::QuadChar* FM_QuadChar_Constructor2(char c0, char c1, char c2, char c3, FMXcpt& x) noexcept;
void FM_QuadChar_Delete(void* self, FMXcpt& x) noexcept;
vxfmx::Locale* FM_Locale_Constructor1(int32_t type, FMXcpt& x) noexcept;
void FM_Locale_Delete(void* self, FMXcpt& x) noexcept;

// Data
vxfmx::Data* FM_Data_Constructor1(FMXcpt& x) noexcept;
bool FM_Data_IsEmpty(const void* self, FMXcpt& x) noexcept;
const vxfmx::Text* FM_Data_GetAsText(const void* self, FMXcpt& x) noexcept;
const vxfmx::Locale* FM_Data_GetLocale(const void* self, FMXcpt& x) noexcept;
int32_t FM_Data_GetNativeType(const void* self, FMXcpt& x) noexcept;
errcode FM_Data_SetAsText(void* self, const vxfmx::Text& text, const vxfmx::Locale& locale,
                          int32_t nativeType, FMXcpt& x) noexcept;
void FM_Data_SetAsNumber(void* self, const vxfmx::FixPt& number, int32_t nativeType,
                         FMXcpt& x) noexcept;
void FM_Data_SetBinaryData(void* self, const vxfmx::BinaryData& data, bool forceBinaryNativeType,
                           FMXcpt& x) noexcept;
void FM_Data_Delete(void* self, FMXcpt& x) noexcept;

// DataVect
uint32_t FM_DataVect_Size(const void* self, FMXcpt& x) noexcept;
bool FM_DataVect_IsEmpty(const void* self, FMXcpt& x) noexcept;
const vxfmx::Data* FM_DataVect_At(const void* self, uint32_t position, FMXcpt& x) noexcept;
const vxfmx::Text* FM_DataVect_AtAsText(const void* self, uint32_t position, FMXcpt& x) noexcept;
const vxfmx::FixPt* FM_DataVect_AtAsNumber(const void* self, uint32_t position, FMXcpt& x) noexcept;

// BinaryData
vxfmx::BinaryData* FM_BinaryData_Constructor1(FMXcpt& x) noexcept;
errcode FM_BinaryData_Add(void* self, const vxfmx::QuadChar& dataType, uint32_t amount,
                          void* buffer, FMXcpt& x) noexcept;
errcode FM_BinaryData_AddFNAMData(void* self, const vxfmx::Text& filePathList, FMXcpt& x) noexcept;
errcode FM_BinaryData_AddSIZEData(void* self, short width, short height, FMXcpt& x) noexcept;
void FM_BinaryData_Delete(void* self, FMXcpt& x) noexcept;

// ExprEnv
errcode FM_ExprEnv_Evaluate(const void* self, const vxfmx::Text& expression, vxfmx::Data& result,
                            FMXcpt& x) noexcept;
errcode FM_ExprEnv_RegisterExternalFunction(const vxfmx::QuadChar& pluginId, short functionId,
                                            const vxfmx::Text& functionName,
                                            const vxfmx::Text& functionPrototype, short minArgs,
                                            short maxArgs, uint32_t compatibleOnFlags,
                                            vxfmx::ExternalFunction function, FMXcpt& x) noexcept;
errcode FM_ExprEnv_UnRegisterExternalFunction(const vxfmx::QuadChar& pluginId, short functionId,
                                              FMXcpt& x) noexcept;

}  // extern "C"
