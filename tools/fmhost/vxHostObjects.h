// The test host's side of the plug-in interface: its value objects, which
// plug-ins see only as opaque pointers, and the record of what the host
// knows: the functions registered with it, the answers to calculations and
// the faults it is told to report.
#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "host/vxFMXInterface.h"

namespace Velarix::fmx {

class Text {
public:
    std::u16string units;
};

class Locale {
public:
    int32_t type = kLocaleSystem;
};

class FixPt {
public:
    double value = 0.0;
    int precision = kDefaultFixedPrecision;
};

class QuadChar {
public:
    char chars[4] = {0, 0, 0, 0};
    std::string str() const { return std::string(chars, 4); }
};

class BinaryData {
public:
    struct Stream {
        std::string type;
        std::vector<uint8_t> bytes;
    };
    std::vector<Stream> streams;
};

// A value with its native type; its text and number forms are kept beside.
class Data {
public:
    int32_t type = kDTInvalid;
    Text text;
    FixPt number;
    BinaryData binary;
    Locale locale;
};

class DataVect {
public:
    std::vector<std::unique_ptr<Data>> items;
};

class ExprEnv {};

}  // namespace Velarix::fmx

namespace Velarix::fmhost {

struct Registration {
    std::string pluginID;
    short functionID = 0;
    std::string name;
    std::string prototype;
    short minArgs = 0;
    short maxArgs = 0;
    uint32_t flags = 0;
    fmx::ExternalFunction function = nullptr;
};

// A host operation that fails: the nth call (0: every call) reports the
// exception code, or, with code 0, answers an error.
struct Fault {
    std::string operation;
    int nth = 0;
    int32_t code = 0;
};

struct HostRecord {
    std::vector<Registration> registered;
    // Every function ever registered, by name, for calls after unregistering.
    std::map<std::string, Registration> known;
    std::map<std::u16string, std::u16string> calculations;
    std::vector<Fault> faults;
    std::map<std::string, int> callCounts;
    // The function ids in the order the plug-in unregistered them.
    std::vector<short> unregistered;
    // Objects the plug-in made and hasn't deleted yet.
    long liveObjects = 0;
};

HostRecord& hostRecord();

// The fault for this call of the operation: 0 none, 1 or 2 an exception
// code, -1 an error answer.
int32_t faultFor(const char* operation);

std::u16string fromUtf8(const std::string& text);
std::string toUtf8(const std::u16string& text);
// The text form of a number as the host shows it.
std::u16string numberText(double value);
// The number of a text: its digits and first point, negative with a minus
// before them; 0 when there are no digits.
double textNumber(const std::u16string& text);

}  // namespace Velarix::fmhost
