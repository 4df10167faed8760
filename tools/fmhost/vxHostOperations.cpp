// The host's operations as libFMWrapper.so provides them to plug-ins. Each
// one first asks whether it is to fail (faultFor); then it works on the
// objects of vxHostObjects.h.
#include <algorithm>
#include <cmath>
#include <cstring>

#include "fmhost/vxHostObjects.h"

using namespace Velarix;
using namespace Velarix::fmhost;

namespace {

// The answer of an operation that reports failure by its result.
constexpr errcode kRefused = 1;
// The host's answer to a calculation it can't evaluate.
constexpr errcode kCalculationError = 1200;

// The fault for this call: a positive code is put into the record.
int32_t enter(const char* operation, FMXcpt& x) {
    x.code = FMXcpt::kNone;
    const int32_t fault = faultFor(operation);
    if (fault > 0) x.code = fault;
    return fault;
}

template <typename T>
T* made(T* object) {
    ++hostRecord().liveObjects;
    return object;
}

template <typename T>
void destroyed(void* object) {
    if (!object) return;
    --hostRecord().liveObjects;
    delete static_cast<T*>(object);
}

bool isEmpty(const fmx::Data& data) {
    switch (data.type) {
        case fmx::kDTInvalid:
            return true;
        case fmx::kDTBinary:
            return data.binary.streams.empty();
        case fmx::kDTText:
            return data.text.units.empty();
        default:
            return false;
    }
}

// A position past the end is the host's exception.
const fmx::Data* itemAt(const void* self, uint32_t position, FMXcpt& x) {
    const auto& items = static_cast<const fmx::DataVect*>(self)->items;
    if (position < items.size()) return items[position].get();
    x.code = FMXcpt::kUnknown;
    return nullptr;
}

}  // namespace

extern "C" {

fmx::Text* FM_Text_Constructor1(FMXcpt& x) noexcept {
    if (enter(__func__, x) > 0) return nullptr;
    return made(new fmx::Text);
}

uint32_t FM_Text_GetSize(const void* self, FMXcpt& x) noexcept {
    if (enter(__func__, x) > 0) return 0;
    return static_cast<uint32_t>(static_cast<const fmx::Text*>(self)->units.size());
}

void FM_Text_AssignUnicodeWithLength(void* self, const uint16_t* s, uint32_t length,
                                     FMXcpt& x) noexcept {
    if (enter(__func__, x) > 0) return;
    auto& units = static_cast<fmx::Text*>(self)->units;
    units.assign(reinterpret_cast<const char16_t*>(s), length);
}

void FM_Text_GetUnicode(const void* self, uint16_t* s, uint32_t position, uint32_t size,
                        FMXcpt& x) noexcept {
    if (enter(__func__, x) > 0) return;
    const auto& units = static_cast<const fmx::Text*>(self)->units;
    if (position >= units.size()) return;
    const size_t count = std::min<size_t>(size, units.size() - position);
    std::memcpy(s, units.data() + position, count * sizeof(char16_t));
}

void FM_Text_Delete(void* self, FMXcpt& x) noexcept {
    enter(__func__, x);
    destroyed<fmx::Text>(self);
}

fmx::FixPt* FM_FixPt_Constructor1(int32_t value, int precision, FMXcpt& x) noexcept {
    if (enter(__func__, x) > 0) return nullptr;
    auto* fixed = made(new fmx::FixPt);
    fixed->value = value;
    fixed->precision = precision;
    return fixed;
}

void FM_FixPt_AssignInt(void* self, int32_t value, FMXcpt& x) noexcept {
    if (enter(__func__, x) > 0) return;
    static_cast<fmx::FixPt*>(self)->value = value;
}

void FM_FixPt_AssignDouble(void* self, double value, FMXcpt& x) noexcept {
    if (enter(__func__, x) > 0) return;
    static_cast<fmx::FixPt*>(self)->value = value;
}

int32_t FM_FixPt_AsLong(const void* self, FMXcpt& x) noexcept {
    if (enter(__func__, x) > 0) return 0;
    const double value = static_cast<const fmx::FixPt*>(self)->value;
    if (!(std::fabs(value) < 2147483647.0)) return value > 0 ? INT32_MAX : INT32_MIN;
    return static_cast<int32_t>(value);
}

double FM_FixPt_AsFloat(const void* self, FMXcpt& x) noexcept {
    if (enter(__func__, x) > 0) return 0.0;
    return static_cast<const fmx::FixPt*>(self)->value;
}

void FM_FixPt_Delete(void* self, FMXcpt& x) noexcept {
    enter(__func__, x);
    destroyed<fmx::FixPt>(self);
}

fmx::QuadChar* FM_QuadChar_Constructor2(char c0, char c1, char c2, char c3, FMXcpt& x) noexcept {
    if (enter(__func__, x) > 0) return nullptr;
    auto* quad = made(new fmx::QuadChar);
    const char chars[4] = {c0, c1, c2, c3};
    std::memcpy(quad->chars, chars, 4);
    return quad;
}

void FM_QuadChar_Delete(void* self, FMXcpt& x) noexcept {
    enter(__func__, x);
    destroyed<fmx::QuadChar>(self);
}

fmx::Locale* FM_Locale_Constructor1(int32_t type, FMXcpt& x) noexcept {
    if (enter(__func__, x) > 0) return nullptr;
    auto* locale = made(new fmx::Locale);
    locale->type = type;
    return locale;
}

void FM_Locale_Delete(void* self, FMXcpt& x) noexcept {
    enter(__func__, x);
    destroyed<fmx::Locale>(self);
}

fmx::Data* FM_Data_Constructor1(FMXcpt& x) noexcept {
    if (enter(__func__, x) > 0) return nullptr;
    return made(new fmx::Data);
}

bool FM_Data_IsEmpty(const void* self, FMXcpt& x) noexcept {
    if (enter(__func__, x) > 0) return true;
    return isEmpty(*static_cast<const fmx::Data*>(self));
}

const fmx::Text* FM_Data_GetAsText(const void* self, FMXcpt& x) noexcept {
    if (enter(__func__, x) > 0) return nullptr;
    return &static_cast<const fmx::Data*>(self)->text;
}

const fmx::Locale* FM_Data_GetLocale(const void* self, FMXcpt& x) noexcept {
    if (enter(__func__, x) > 0) return nullptr;
    return &static_cast<const fmx::Data*>(self)->locale;
}

int32_t FM_Data_GetNativeType(const void* self, FMXcpt& x) noexcept {
    if (enter(__func__, x) > 0) return fmx::kDTInvalid;
    return static_cast<const fmx::Data*>(self)->type;
}

errcode FM_Data_SetAsText(void* self, const fmx::Text& text, const fmx::Locale& locale,
                          int32_t nativeType, FMXcpt& x) noexcept {
    const int32_t fault = enter(__func__, x);
    if (fault != 0) return fault < 0 ? kRefused : 0;
    auto& data = *static_cast<fmx::Data*>(self);
    data.type = nativeType;
    data.text = text;
    data.number.value = textNumber(text.units);
    data.binary.streams.clear();
    data.locale = locale;
    return 0;
}

void FM_Data_SetAsNumber(void* self, const fmx::FixPt& number, int32_t nativeType,
                         FMXcpt& x) noexcept {
    if (enter(__func__, x) > 0) return;
    auto& data = *static_cast<fmx::Data*>(self);
    data.type = nativeType;
    data.number = number;
    data.text.units = numberText(number.value);
    data.binary.streams.clear();
}

void FM_Data_SetBinaryData(void* self, const fmx::BinaryData& binary, bool, FMXcpt& x) noexcept {
    if (enter(__func__, x) > 0) return;
    auto& data = *static_cast<fmx::Data*>(self);
    data.type = fmx::kDTBinary;
    data.binary = binary;
    data.text.units.clear();
    data.number.value = 0.0;
}

void FM_Data_Delete(void* self, FMXcpt& x) noexcept {
    enter(__func__, x);
    destroyed<fmx::Data>(self);
}

uint32_t FM_DataVect_Size(const void* self, FMXcpt& x) noexcept {
    if (enter(__func__, x) > 0) return 0;
    return static_cast<uint32_t>(static_cast<const fmx::DataVect*>(self)->items.size());
}

bool FM_DataVect_IsEmpty(const void* self, FMXcpt& x) noexcept {
    if (enter(__func__, x) > 0) return true;
    return static_cast<const fmx::DataVect*>(self)->items.empty();
}

const fmx::Data* FM_DataVect_At(const void* self, uint32_t position, FMXcpt& x) noexcept {
    if (enter(__func__, x) > 0) return nullptr;
    return itemAt(self, position, x);
}

const fmx::Text* FM_DataVect_AtAsText(const void* self, uint32_t position, FMXcpt& x) noexcept {
    if (enter(__func__, x) > 0) return nullptr;
    const fmx::Data* data = itemAt(self, position, x);
    return data ? &data->text : nullptr;
}

const fmx::FixPt* FM_DataVect_AtAsNumber(const void* self, uint32_t position, FMXcpt& x) noexcept {
    if (enter(__func__, x) > 0) return nullptr;
    const fmx::Data* data = itemAt(self, position, x);
    return data ? &data->number : nullptr;
}

fmx::BinaryData* FM_BinaryData_Constructor1(FMXcpt& x) noexcept {
    if (enter(__func__, x) > 0) return nullptr;
    return made(new fmx::BinaryData);
}

errcode FM_BinaryData_Add(void* self, const fmx::QuadChar& dataType, uint32_t amount, void* buffer,
                          FMXcpt& x) noexcept {
    const int32_t fault = enter(__func__, x);
    if (fault != 0) return fault < 0 ? kRefused : 0;
    const auto* bytes = static_cast<const uint8_t*>(buffer);
    static_cast<fmx::BinaryData*>(self)->streams.push_back(
        {dataType.str(), std::vector<uint8_t>(bytes, bytes + amount)});
    return 0;
}

errcode FM_BinaryData_AddFNAMData(void* self, const fmx::Text& filePathList, FMXcpt& x) noexcept {
    const int32_t fault = enter(__func__, x);
    if (fault != 0) return fault < 0 ? kRefused : 0;
    const std::string bytes = toUtf8(filePathList.units);
    static_cast<fmx::BinaryData*>(self)->streams.push_back(
        {"FNAM", std::vector<uint8_t>(bytes.begin(), bytes.end())});
    return 0;
}

// The pair is kept as width and height, two big-endian shorts.
errcode FM_BinaryData_AddSIZEData(void* self, short width, short height, FMXcpt& x) noexcept {
    const int32_t fault = enter(__func__, x);
    if (fault != 0) return fault < 0 ? kRefused : 0;
    const auto w = static_cast<uint16_t>(width);
    const auto h = static_cast<uint16_t>(height);
    static_cast<fmx::BinaryData*>(self)->streams.push_back(
        {"SIZE",
         {static_cast<uint8_t>(w >> 8), static_cast<uint8_t>(w & 0xFF),
          static_cast<uint8_t>(h >> 8), static_cast<uint8_t>(h & 0xFF)}});
    return 0;
}

void FM_BinaryData_Delete(void* self, FMXcpt& x) noexcept {
    enter(__func__, x);
    destroyed<fmx::BinaryData>(self);
}

errcode FM_ExprEnv_Evaluate(const void*, const fmx::Text& expression, fmx::Data& result,
                            FMXcpt& x) noexcept {
    const int32_t fault = enter(__func__, x);
    if (fault != 0) return fault < 0 ? kCalculationError : 0;
    const auto& calculations = hostRecord().calculations;
    const auto found = calculations.find(expression.units);
    if (found == calculations.end()) return kCalculationError;
    result.type = fmx::kDTText;
    result.text.units = found->second;
    result.number.value = textNumber(found->second);
    return 0;
}

errcode FM_ExprEnv_RegisterExternalFunction(const fmx::QuadChar& pluginId, short functionId,
                                            const fmx::Text& functionName,
                                            const fmx::Text& functionPrototype, short minArgs,
                                            short maxArgs, uint32_t compatibleOnFlags,
                                            fmx::ExternalFunction function, FMXcpt& x) noexcept {
    const int32_t fault = enter(__func__, x);
    if (fault != 0) return fault < 0 ? kRefused : 0;
    HostRecord& record = hostRecord();
    for (const Registration& r : record.registered) {
        if (r.pluginID == pluginId.str() && r.functionID == functionId) return kRefused;
    }
    Registration registration{
        pluginId.str(), functionId, toUtf8(functionName.units), toUtf8(functionPrototype.units),
        minArgs,        maxArgs,    compatibleOnFlags,          function};
    record.known[registration.name] = registration;
    record.registered.push_back(registration);
    return 0;
}

errcode FM_ExprEnv_UnRegisterExternalFunction(const fmx::QuadChar& pluginId, short functionId,
                                              FMXcpt& x) noexcept {
    const int32_t fault = enter(__func__, x);
    if (fault != 0) return fault < 0 ? kRefused : 0;
    auto& registered = hostRecord().registered;
    const auto found = std::find_if(registered.begin(), registered.end(), [&](const auto& r) {
        return r.pluginID == pluginId.str() && r.functionID == functionId;
    });
    if (found == registered.end()) return kRefused;
    registered.erase(found);
    hostRecord().unregistered.push_back(functionId);
    return 0;
}

}  // extern "C"
