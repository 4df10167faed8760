#include "script/vxAssign.h"

#include <cmath>
#include <concepts>
#include <limits>
#include <new>
#include <utility>

#include "Utilities/Sources/vxDouble.h"
#include "Utilities/Sources/vxDoubleArray.h"
#include "Utilities/Sources/vxFloat.h"
#include "Utilities/Sources/vxFloatArray.h"
#include "Utilities/Sources/vxLong.h"
#include "Utilities/Sources/vxLongArray.h"
#include "Utilities/Sources/vxShort.h"
#include "Utilities/Sources/vxShortArray.h"
#include "Utilities/Sources/vxStringArray.h"
#include "Utilities/Sources/vxStringOLD.h"
#include "host/vxLog.h"
#include "script/vxFunctionTable.h"

namespace Velarix {

namespace {

using Kind = vxPrimitive::Kind;

bool hasKind(const vxPrimitive* p, Kind kind) {
    return p && p->getKind() == kind;
}

// A numeric value in another numeric type. Values beyond the target's range
// stop at its bounds instead of wrapping; a NaN becomes 0 in an integer.
template <class R, class S>
R convertNumber(S v) {
    using Limits = std::numeric_limits<R>;
    if constexpr (std::integral<R> && std::integral<S>) {
        if (std::cmp_less(v, Limits::min())) return Limits::min();
        if (std::cmp_greater(v, Limits::max())) return Limits::max();
    } else if constexpr (std::integral<R>) {
        if (std::isnan(v)) return 0;
        if (v <= static_cast<S>(Limits::min())) return Limits::min();
        if (v >= static_cast<S>(Limits::max())) return Limits::max();
    } else if constexpr (std::floating_point<S> && sizeof(S) > sizeof(R)) {
        if (std::isfinite(v) && std::fabs(v) > Limits::max())
            return std::copysign(Limits::max(), v);
    }
    return static_cast<R>(v);
}

template <class R>
bool readNumber(const vxPrimitive* p, R& out) {
    if (!p) return false;
    switch (p->getKind()) {
        case Kind::Short:
            out = convertNumber<R>(static_cast<const vxShort*>(p)->value);
            return true;
        case Kind::Long:
            out = convertNumber<R>(static_cast<const vxLong*>(p)->value);
            return true;
        case Kind::Float:
            out = convertNumber<R>(static_cast<const vxFloat*>(p)->value);
            return true;
        case Kind::Double:
            out = convertNumber<R>(static_cast<const vxDouble*>(p)->value);
            return true;
        default:
            return false;
    }
}

template <class R, class S>
std::vector<R> convertValues(const std::vector<S>& from) {
    std::vector<R> to;
    to.reserve(from.size());
    for (S v : from) to.push_back(convertNumber<R>(v));
    return to;
}

// The values of any numeric array, element by element in type R; empty for
// anything else.
template <class R>
std::vector<R> readNumbers(const vxPrimitive* p) {
    if (!p) return {};
    switch (p->getKind()) {
        case Kind::ShortArray:
            return convertValues<R>(static_cast<const vxShortArray*>(p)->values);
        case Kind::LongArray:
            return convertValues<R>(static_cast<const vxLongArray*>(p)->values);
        case Kind::FloatArray:
            return convertValues<R>(static_cast<const vxFloatArray*>(p)->values);
        case Kind::DoubleArray:
            return convertValues<R>(static_cast<const vxDoubleArray*>(p)->values);
        default:
            return {};
    }
}

}  // namespace

vxAssign::vxAssign() : vxErrorHolder(L"vxAssign") {}

vxAssign::~vxAssign() = default;

void vxAssign::setFunction(long id) {
    clear();
    fnIndex = id;
}

bool vxAssign::push(std::unique_ptr<vxPrimitive> value) {
    try {
        arguments.push_back(std::move(value));
    } catch (const std::bad_alloc&) {
        return false;
    }
    return true;
}

template <class T, class V>
bool vxAssign::addValue(V&& value, const wchar_t* method, int number) {
    std::unique_ptr<vxPrimitive> holder;
    try {
        holder = std::make_unique<T>(std::forward<V>(value));
    } catch (const std::bad_alloc&) {
        holder.reset();
    }
    if (holder && push(std::move(holder))) return true;
    setError(vxErrRuntime::kOutOfMemory, where(method, number));
    return false;
}

bool vxAssign::addVoid() {
    if (push(nullptr)) return true;
    setError(vxErrRuntime::kOutOfMemory, where(L"addVoid"));
    return false;
}

bool vxAssign::addString(const std::wstring& value) {
    return addValue<vxStringOLD>(value, L"addString", 1);
}

bool vxAssign::addString(std::wstring&& value) {
    return addValue<vxStringOLD>(std::move(value), L"addString", 1);
}

bool vxAssign::addShort(short value) {
    return addValue<vxShort>(value, L"addShort", 1);
}

bool vxAssign::addLong(long value) {
    return addValue<vxLong>(value, L"addLong", 1);
}

bool vxAssign::addFloat(float value) {
    return addValue<vxFloat>(value, L"addFloat", 1);
}

bool vxAssign::addDouble(double value) {
    return addValue<vxDouble>(value, L"addDouble", 1);
}

bool vxAssign::addStringArray(const vxStringArray& values) {
    return addValue<vxStringArray>(values.values, L"addStringArray", 1);
}

bool vxAssign::addStringArray(const std::vector<std::wstring>& values) {
    return addValue<vxStringArray>(values, L"addStringArray", 2);
}

bool vxAssign::addShortArray(const vxShortArray& values) {
    return addValue<vxShortArray>(values.values, L"addShortArray", 1);
}

bool vxAssign::addShortArray(const std::vector<short>& values) {
    return addValue<vxShortArray>(values, L"addShortArray", 2);
}

bool vxAssign::addLongArray(const vxLongArray& values) {
    return addValue<vxLongArray>(values.values, L"addLongArray", 1);
}

bool vxAssign::addLongArray(const std::vector<long>& values) {
    return addValue<vxLongArray>(values, L"addLongArray", 2);
}

bool vxAssign::addFloatArray(const vxFloatArray& values) {
    return addValue<vxFloatArray>(values.values, L"addFloatArray", 1);
}

bool vxAssign::addFloatArray(const std::vector<float>& values) {
    return addValue<vxFloatArray>(values, L"addFloatArray", 2);
}

bool vxAssign::addDoubleArray(const vxDoubleArray& values) {
    return addValue<vxDoubleArray>(values.values, L"addDoubleArray", 1);
}

bool vxAssign::addDoubleArray(const std::vector<double>& values) {
    return addValue<vxDoubleArray>(values, L"addDoubleArray", 2);
}

void vxAssign::clear() {
    argumentOffset = 0;
    arguments.clear();
    notes.clear();
    callPlace = CallPlace();
}

short vxAssign::getFunctionGroup() const {
    return Velarix::getFunctionGroup(fnIndex);
}

bool vxAssign::isArgumentOutOfRange(long index) const {
    long i = index + argumentOffset;
    return i < 0 || i >= getNumOfArguments();
}

const vxPrimitive* vxAssign::at(long index) const {
    if (isArgumentOutOfRange(index)) return nullptr;
    return arguments[static_cast<std::size_t>(index + argumentOffset)].get();
}

bool vxAssign::isVoid(long index) const {
    return at(index) == nullptr;
}

bool vxAssign::isString(long index) const {
    return hasKind(at(index), Kind::String);
}

bool vxAssign::isShort(long index) const {
    return hasKind(at(index), Kind::Short);
}

bool vxAssign::isLong(long index) const {
    return hasKind(at(index), Kind::Long);
}

bool vxAssign::isFloat(long index) const {
    return hasKind(at(index), Kind::Float);
}

bool vxAssign::isDouble(long index) const {
    return hasKind(at(index), Kind::Double);
}

bool vxAssign::isStringArray(long index) const {
    return hasKind(at(index), Kind::StringArray);
}

bool vxAssign::isShortArray(long index) const {
    return hasKind(at(index), Kind::ShortArray);
}

bool vxAssign::isLongArray(long index) const {
    return hasKind(at(index), Kind::LongArray);
}

bool vxAssign::isFloatArray(long index) const {
    return hasKind(at(index), Kind::FloatArray);
}

bool vxAssign::isDoubleArray(long index) const {
    return hasKind(at(index), Kind::DoubleArray);
}

long vxAssign::getArraySize(long index) const {
    const vxPrimitive* p = at(index);
    return p ? static_cast<long>(p->getSize()) : 0;
}

bool vxAssign::getBool(long index, bool def) const {
    double v = 0.0;
    return readNumber(at(index), v) ? v != 0.0 : def;
}

short vxAssign::getShort(long index, short def) const {
    short v = 0;
    return readNumber(at(index), v) ? v : def;
}

long vxAssign::getLong(long index, long def) const {
    long v = 0;
    return readNumber(at(index), v) ? v : def;
}

float vxAssign::getFloat(long index, float def) const {
    float v = 0.0f;
    return readNumber(at(index), v) ? v : def;
}

double vxAssign::getDouble(long index, double def) const {
    double v = 0.0;
    return readNumber(at(index), v) ? v : def;
}

std::wstring vxAssign::getString(long index, const std::wstring& def) const {
    const vxPrimitive* p = at(index);
    return hasKind(p, Kind::String) ? static_cast<const vxStringOLD*>(p)->value : def;
}

std::wstring vxAssign::takeString(long index) {
    vxPrimitive* p = const_cast<vxPrimitive*>(at(index));
    if (!hasKind(p, Kind::String)) return std::wstring();
    return std::move(static_cast<vxStringOLD*>(p)->value);
}

std::vector<std::wstring> vxAssign::getStringArray(long index) const {
    const vxPrimitive* p = at(index);
    if (!hasKind(p, Kind::StringArray)) return {};
    return static_cast<const vxStringArray*>(p)->values;
}

std::vector<short> vxAssign::getShortArray(long index) const {
    return readNumbers<short>(at(index));
}

std::vector<long> vxAssign::getLongArray(long index) const {
    return readNumbers<long>(at(index));
}

std::vector<float> vxAssign::getFloatArray(long index) const {
    return readNumbers<float>(at(index));
}

std::vector<double> vxAssign::getDoubleArray(long index) const {
    return readNumbers<double>(at(index));
}

void vxAssign::setNote(long index, const std::wstring& text) {
    try {
        notes[index + argumentOffset] = text;
    } catch (const std::bad_alloc&) {
        setError(vxErrRuntime::kOutOfMemory, where(L"setNote"));
    }
}

std::wstring vxAssign::getNote(long index) const {
    auto it = notes.find(index + argumentOffset);
    return it == notes.end() ? std::wstring() : it->second;
}

void vxAssign::dump(short depth, std::ostream& out) const {
    vxDumpHeader(out, vxNarrow(className));
    vxDumpLine(out, "long argumentOffset: ", argumentOffset);
    vxDumpLine(out, "long fnIndex:        ", fnIndex);
    for (const auto& argument : arguments) {
        if (argument) {
            argument->dump(static_cast<short>(depth - 1), out);
        } else {
            vxDumpLine(out, "/NULL", std::string());
        }
    }
    vxDumpEnd(out);
}

}  // namespace Velarix
