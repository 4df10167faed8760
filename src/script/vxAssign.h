// The checked values of one script call. The parser adds one value per
// argument written (a null holder for an argument left empty); the model's
// assign methods read them back by index, each getter with a default for an
// argument that is missing or void.
#pragma once

#include <map>
#include <memory>
#include <ostream>
#include <string>
#include <vector>

#include "Utilities/Sources/vxPrimitive.h"
#include "settings/vxErrorHolder.h"

namespace Velarix {

class vxStringArray;
class vxShortArray;
class vxLongArray;
class vxFloatArray;
class vxDoubleArray;

class vxAssign : public vxErrorHolder {
public:
    vxAssign();
    ~vxAssign() override;

    void setFunction(long id);  // also clears
    long getFunction() const { return fnIndex; }

    // Each add returns false (with error 5000 at "vxAssign/add.../n") when
    // memory runs out.
    bool addVoid();
    bool addString(const std::wstring& value);
    bool addString(std::wstring&& value);
    bool addShort(short value);
    bool addLong(long value);
    bool addFloat(float value);
    bool addDouble(double value);
    bool addStringArray(const vxStringArray& values);
    bool addStringArray(const std::vector<std::wstring>& values);
    bool addShortArray(const vxShortArray& values);
    bool addShortArray(const std::vector<short>& values);
    bool addLongArray(const vxLongArray& values);
    bool addLongArray(const std::vector<long>& values);
    bool addFloatArray(const vxFloatArray& values);
    bool addFloatArray(const std::vector<float>& values);
    bool addDoubleArray(const vxDoubleArray& values);
    bool addDoubleArray(const std::vector<double>& values);

    void clear();
    void addToArgumentOffset(long n) { argumentOffset += n; }
    long getArgumentOffset() const { return argumentOffset; }
    short getFunctionGroup() const;
    long getNumOfArguments() const { return static_cast<long>(arguments.size()); }

    // Indexes below are relative to the argument offset.
    bool isArgumentOutOfRange(long index) const;
    bool isEmpty() const { return arguments.empty(); }
    bool isVoid(long index) const;
    bool isString(long index) const;
    bool isShort(long index) const;
    bool isLong(long index) const;
    bool isFloat(long index) const;
    bool isDouble(long index) const;
    bool isStringArray(long index) const;
    bool isShortArray(long index) const;
    bool isLongArray(long index) const;
    bool isFloatArray(long index) const;
    bool isDoubleArray(long index) const;
    long getArraySize(long index) const;  // 0 for a scalar, void or missing argument

    // Scalar getters convert between the numeric kinds; a string argument
    // gives the default to a numeric getter and vice versa.
    bool getBool(long index, bool def = false) const;
    short getShort(long index, short def = 0) const;
    long getLong(long index, long def = 0) const;
    float getFloat(long index, float def = 0.0f) const;
    double getDouble(long index, double def = 0.0) const;
    std::wstring getString(long index, const std::wstring& def = L"") const;
    // The string of a text argument, moved out: the argument is left empty.
    // For receivers that keep long texts, such as the chart data.
    std::wstring takeString(long index);

    // Array getters give an empty vector for a missing argument.
    std::vector<std::wstring> getStringArray(long index) const;
    std::vector<short> getShortArray(long index) const;
    std::vector<long> getLongArray(long index) const;
    std::vector<float> getFloatArray(long index) const;
    std::vector<double> getDoubleArray(long index) const;

    // The source text of a date argument, as written.
    void setNote(long index, const std::wstring& text);
    std::wstring getNote(long index) const;

    // Where the call stands in the script: its first line, its name and its
    // text marked as a message shows it. Receivers that find a fault only
    // later, when the chart is laid out, keep it to point at the call.
    struct CallPlace {
        long line = -1;
        std::wstring fnName;
        std::wstring scriptPart;
    };
    void setCallPlace(CallPlace place) { callPlace = std::move(place); }
    const CallPlace& getCallPlace() const { return callPlace; }

    const vxPrimitive* at(long index) const;  // null when void or out of range
    void dump(short depth, std::ostream& out) const;

private:
    bool push(std::unique_ptr<vxPrimitive> value);
    template <class T, class V>
    bool addValue(V&& value, const wchar_t* method, int number);

    long argumentOffset = 0;
    long fnIndex = -1;
    std::vector<std::unique_ptr<vxPrimitive>> arguments;
    std::map<long, std::wstring> notes;
    CallPlace callPlace;
};

}  // namespace Velarix
