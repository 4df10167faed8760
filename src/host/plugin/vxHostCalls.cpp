#include "host/plugin/vxHostCalls.h"

#include <new>

#include "host/vxPluginStrings.h"

namespace Velarix {

namespace {

// Calls a host operation with a fresh exception record and checks it.
template <typename Operation, typename... Args>
auto hostCall(Operation operation, Args&&... args) {
    FMXcpt x;
    if constexpr (std::is_void_v<decltype(operation(std::forward<Args>(args)..., x))>) {
        operation(std::forward<Args>(args)..., x);
        vxCheckHost(x);
    } else {
        auto result = operation(std::forward<Args>(args)..., x);
        vxCheckHost(x);
        return result;
    }
}

// Deletes without throwing: a destructor must not.
template <typename Operation>
void hostDelete(Operation operation, void* object) {
    if (!object) return;
    FMXcpt x;
    operation(object, x);
}

std::u16string toUnits(const std::wstring& text) {
    std::u16string units(text.size(), u'\0');
    for (size_t i = 0; i < text.size(); ++i) units[i] = static_cast<char16_t>(text[i]);
    return units;
}

}  // namespace

void vxCheckHost(const FMXcpt& x) {
    if (x.code == FMXcpt::kBadAlloc) throw std::bad_alloc();
    if (x.code != FMXcpt::kNone) throw vxHostException();
}

vxHostText::vxHostText(const std::wstring& value) {
    text = hostCall(FM_Text_Constructor1);
    if (value.empty()) return;
    const std::u16string units = toUnits(value);
    FMXcpt x;
    FM_Text_AssignUnicodeWithLength(text, reinterpret_cast<const uint16_t*>(units.data()),
                                    static_cast<uint32_t>(units.size()), x);
    if (x.code != FMXcpt::kNone) hostDelete(FM_Text_Delete, text);
    vxCheckHost(x);
}

vxHostText::~vxHostText() {
    hostDelete(FM_Text_Delete, text);
}

vxHostQuadChar::vxHostQuadChar(const char* chars) {
    quad = hostCall(FM_QuadChar_Constructor2, chars[0], chars[1], chars[2], chars[3]);
}

vxHostQuadChar::~vxHostQuadChar() {
    hostDelete(FM_QuadChar_Delete, quad);
}

vxHostBinaryData::vxHostBinaryData() {
    data = hostCall(FM_BinaryData_Constructor1);
}

vxHostBinaryData::~vxHostBinaryData() {
    hostDelete(FM_BinaryData_Delete, data);
}

errcode vxHostBinaryData::add(const char* type, const std::vector<uint8_t>& bytes) {
    vxHostQuadChar quad(type);
    std::vector<uint8_t> copy = bytes;  // the host takes a non-const buffer
    return hostCall(FM_BinaryData_Add, data, quad.get(), static_cast<uint32_t>(copy.size()),
                    copy.data());
}

errcode vxHostBinaryData::addSize(short width, short height) {
    return hostCall(FM_BinaryData_AddSIZEData, data, width, height);
}

void vxHostBinaryData::putInto(vxfmx::Data& result) const {
    hostCall(FM_Data_SetBinaryData, &result, *data, true);
}

std::wstring vxReadHostText(const vxfmx::Text& text) {
    const uint32_t size = hostCall(FM_Text_GetSize, &text);
    std::vector<uint16_t> units(size + 1, 0);
    if (size > 0) hostCall(FM_Text_GetUnicode, &text, units.data(), 0u, size);
    return std::wstring(units.begin(), units.begin() + size);
}

uint32_t vxArgCount(const vxfmx::DataVect& args) {
    return hostCall(FM_DataVect_Size, &args);
}

bool vxArgIsEmpty(const vxfmx::DataVect& args, uint32_t index) {
    if (index >= vxArgCount(args)) return true;
    const vxfmx::Data* data = hostCall(FM_DataVect_At, &args, index);
    return data == nullptr || hostCall(FM_Data_IsEmpty, data);
}

std::wstring vxArgText(const vxfmx::DataVect& args, uint32_t index) {
    if (index >= vxArgCount(args)) return L"";
    const vxfmx::Text* text = hostCall(FM_DataVect_AtAsText, &args, index);
    return text ? vxReadHostText(*text) : L"";
}

long vxArgLong(const vxfmx::DataVect& args, uint32_t index) {
    if (index >= vxArgCount(args)) return 0;
    const vxfmx::FixPt* number = hostCall(FM_DataVect_AtAsNumber, &args, index);
    return number ? hostCall(FM_FixPt_AsLong, number) : 0;
}

void vxSetResultText(vxfmx::Data& result, const std::wstring& text) {
    vxHostText value(text);
    const vxfmx::Locale* locale = hostCall(FM_Data_GetLocale, &result);
    if (locale) {
        hostCall(FM_Data_SetAsText, &result, value.get(), *locale, vxfmx::kDTText);
        return;
    }
    vxfmx::Locale* system = hostCall(FM_Locale_Constructor1, vxfmx::kLocaleSystem);
    FMXcpt x;
    FM_Data_SetAsText(&result, value.get(), *system, vxfmx::kDTText, x);
    hostDelete(FM_Locale_Delete, system);
    vxCheckHost(x);
}

void vxSetResultNumber(vxfmx::Data& result, long number) {
    vxfmx::FixPt* fixed = hostCall(FM_FixPt_Constructor1, static_cast<int32_t>(number),
                                   vxfmx::kDefaultFixedPrecision);
    FMXcpt x;
    FM_Data_SetAsNumber(&result, *fixed, vxfmx::kDTNumber, x);
    hostDelete(FM_FixPt_Delete, fixed);
    vxCheckHost(x);
}

bool vxEvaluate(const vxfmx::ExprEnv& env, const std::wstring& calculation, std::wstring& value) {
    value.clear();
    vxHostText expression(calculation);
    vxfmx::Data* data = hostCall(FM_Data_Constructor1);
    FMXcpt x;
    const errcode answer = FM_ExprEnv_Evaluate(&env, expression.get(), *data, x);
    if (x.code == FMXcpt::kNone && answer == 0) {
        const vxfmx::Text* text = FM_Data_GetAsText(data, x);
        if (x.code == FMXcpt::kNone && text) value = vxReadHostText(*text);
    }
    hostDelete(FM_Data_Delete, data);
    vxCheckHost(x);
    return answer == 0;
}

errcode vxRegisterFunction(short functionID, const std::wstring& signature, short minArgs,
                           short maxArgs, vxfmx::ExternalFunction function) {
    vxHostQuadChar plugin(kPluginID);
    vxHostText name(signature.substr(0, signature.find(L'(')));
    vxHostText prototype(signature);
    return hostCall(FM_ExprEnv_RegisterExternalFunction, plugin.get(), functionID, name.get(),
                    prototype.get(), minArgs, maxArgs, static_cast<uint32_t>(kFunctionFlags),
                    function);
}

errcode vxUnregisterFunction(short functionID) {
    vxHostQuadChar plugin(kPluginID);
    return hostCall(FM_ExprEnv_UnRegisterExternalFunction, plugin.get(), functionID);
}

}  // namespace Velarix
