#include "script/vxFunction.h"

#include <new>

#include "host/vxLog.h"
#include "script/vxFunctionTable.h"

namespace Velarix {

vxFunction::vxFunction(short group, long id) : vxErrorHolder(L"vxFunction"), group(group), id(id) {
    createArguments();
}

vxFunction::~vxFunction() = default;

void vxFunction::createArguments() {
    arguments.clear();
    if (getFunctionGroup(id) != group) return;
    try {
        for (const vxArgumentRow& row : vxFunctionArguments(id)) {
            arguments.push_back(std::make_unique<vxArgument>(row.type, row.minValue, row.maxValue,
                                                             row.maxRepeat, row.isRequired,
                                                             row.constantType));
        }
    } catch (const std::bad_alloc&) {
        arguments.clear();
        setError(vxErrRuntime::kOutOfMemory, where(L"createArguments"));
    }
}

long vxFunction::getMaxNumOfArguments() const {
    long sum = 0;
    for (const auto& argument : arguments) sum += argument->maxRepeat;
    return sum;
}

long vxFunction::getNumOfRequiredArguments() const {
    long count = 0;
    for (const auto& argument : arguments) {
        if (argument->isRequired) ++count;
    }
    return count;
}

const vxArgument* vxFunction::getArgument(long k) const {
    if (arguments.empty()) return nullptr;
    if (k < 0) k = 0;
    const long last = getNumOfArguments() - 1;
    return arguments[k > last ? last : k].get();
}

short vxFunction::getArgumentType(long k) const {
    const vxArgument* argument = getArgument(k);
    return argument ? argument->type : 0;
}

double vxFunction::getMinValue(long k) const {
    const vxArgument* argument = getArgument(k);
    return argument ? argument->minValue : 0.0;
}

double vxFunction::getMaxValue(long k) const {
    const vxArgument* argument = getArgument(k);
    return argument ? argument->maxValue : 0.0;
}

long vxFunction::getMaxRepeat(long k) const {
    const vxArgument* argument = getArgument(k);
    return argument ? argument->maxRepeat : 0;
}

bool vxFunction::isArgumentRequired(long k) const {
    const vxArgument* argument = getArgument(k);
    return argument ? argument->isRequired : false;
}

short vxFunction::getConstantType(long k) const {
    const vxArgument* argument = getArgument(k);
    return argument ? argument->constantType : 0;
}

void vxFunction::dump(short depth, std::ostream& out) const {
    const wchar_t* name = vxFunctionName(id);
    vxDumpHeader(out, "vxFunction", name ? vxNarrow(name) : "");
    vxDumpLine(out, "short  group:        ", group);
    vxDumpLine(out, "long   id:           ", id);
    vxDumpLine(out, "long   numOfArgs:    ", getNumOfArguments());
    if (depth > 0) {
        for (const auto& argument : arguments) argument->dump(depth - 1, out);
    }
    vxDumpEnd(out);
}

}  // namespace Velarix
