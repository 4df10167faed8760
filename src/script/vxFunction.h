// One function of the chart language with the descriptors of its
// arguments, which the parser uses to check the count and the type of the
// arguments of every call. Every accessor by argument index treats an index
// beyond the last descriptor as the last descriptor, which covers the
// arguments that a repeated last descriptor takes.
#pragma once

#include <memory>
#include <ostream>
#include <vector>

#include "script/vxArgument.h"
#include "settings/vxErrorHolder.h"

namespace Velarix {

class vxFunction : public vxErrorHolder {
public:
    // The descriptors are those of `id` when `group` is its group; a
    // function asked for under another group takes no argument.
    vxFunction(short group, long id);
    ~vxFunction() override;

    short getGroup() const { return group; }
    long getId() const { return id; }

    long getNumOfArguments() const { return static_cast<long>(arguments.size()); }
    long getMaxNumOfArguments() const;
    long getNumOfRequiredArguments() const;

    // Null when the function takes no argument.
    const vxArgument* getArgument(long k) const;
    short getArgumentType(long k) const;
    double getMinValue(long k) const;
    double getMaxValue(long k) const;
    long getMaxRepeat(long k) const;
    bool isArgumentRequired(long k) const;
    short getConstantType(long k) const;

    void dump(short depth, std::ostream& out) const;

private:
    void createArguments();

    short group;
    long id;
    std::vector<std::unique_ptr<vxArgument>> arguments;
};

}  // namespace Velarix
