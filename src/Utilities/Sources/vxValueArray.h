// A vector of typed values with the label its dump writes. The named array
// classes derive from it and add the construction and the copy. A failed
// allocation leaves the values as they were and records error 5000.
#pragma once

#include <cstddef>
#include <locale>
#include <new>
#include <ostream>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "Utilities/Sources/vxPrimitive.h"
#include "host/vxLog.h"

namespace Velarix {

template <class T, vxPrimitive::Kind K>
class vxValueArray : public vxPrimitive {
public:
    Kind getKind() const override { return K; }
    std::size_t getSize() const override { return values.size(); }

    bool set(const std::vector<T>& from) {
        return guard(L"set", [&] {
            std::vector<T> copy(from);
            values.swap(copy);
        });
    }

    bool addValue(const T& v) {
        return guard(L"addValue", [&] { values.push_back(v); });
    }

    bool addValues(const std::vector<T>& more) {
        return guard(L"addValues", [&] {
            std::vector<T> grown;
            grown.reserve(values.size() + more.size());
            grown.insert(grown.end(), values.begin(), values.end());
            grown.insert(grown.end(), more.begin(), more.end());
            values.swap(grown);
        });
    }

    void dump(short depth, std::ostream& out) const override {
        vxDumpHeader(out, vxNarrow(className));
        if constexpr (requires { vxDumpLine(out, label, values); }) {
            vxDumpLine(out, label, values);
        } else {
            vxDumpLine(out, label, joined());
        }
        vxDumpEnd(out);
    }

    std::vector<T> values;

protected:
    vxValueArray(const wchar_t* name, const char* dumpLabel, std::vector<T> v)
        : vxPrimitive(name), values(std::move(v)), label(dumpLabel) {}

private:
    template <class Fn>
    bool guard(const wchar_t* method, Fn&& fn) {
        try {
            fn();
        } catch (const std::bad_alloc&) {
            setError(vxErrRuntime::kOutOfMemory, where(method));
            return false;
        }
        return true;
    }

    // The values, each after a blank, for element types without a dump line.
    std::string joined() const {
        std::ostringstream text;
        text.imbue(std::locale::classic());
        for (const T& v : values) text << " " << v;
        return text.str();
    }

    const char* label;
};

}  // namespace Velarix
