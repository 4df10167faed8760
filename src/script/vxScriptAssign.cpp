// The count check and the conversion of a call's arguments.
#include "script/vxArgument.h"
#include "script/vxArgumentConverter.h"
#include "script/vxScript.h"

namespace Velarix {

void vxScript::checkArgumentCount() {
    const vxFunction* function = getFunction(fnIndex);
    const long n = static_cast<long>(arguments.size());
    const long maxArgs = function->getMaxNumOfArguments();
    lineOfError = lineNumber;
    if (n > maxArgs) {
        return raise(vxErrScript::kTooManyArguments, argumentBegin(maxArgs), argumentEnd(n - 1),
                     maxArgs);
    }
    if (n < function->getNumOfRequiredArguments()) {
        const long begin = n > 0 ? argumentBegin(0) : bracketPos;
        const long end = n > 0 ? argumentEnd(n - 1) : closePos;
        raise(vxErrScript::kTooFewArguments, begin, end, -1);
    }
}

void vxScript::assignArguments() {
    phase = Phase::kAssign;
    checkArgumentCount();
    if (isError()) return;
    const vxFunction* function = getFunction(fnIndex);
    assign->setFunction(fnIndex);
    vxArgumentConverter converter(*assign, userSettings);
    const long n = static_cast<long>(arguments.size());
    for (argIndex = 0; argIndex < n; ++argIndex) {
        const vxArgument* descriptor = function->getArgument(argIndex);
        const vxConversion result = converter.convert(fnIndex, argIndex, *descriptor,
                                                      arguments[static_cast<size_t>(argIndex)]);
        if (assign->isError()) return copyError(assign->getError());
        if (result.code != 0) return raiseAtArgument(result.code, argIndex, result.element);
    }
}

}  // namespace Velarix
