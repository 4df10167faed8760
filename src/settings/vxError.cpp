#include "settings/vxError.h"

#include <new>
#include <sstream>

#include "host/vxLog.h"
#include "settings/vxErrorCodes.h"
#include "settings/vxErrorSettings.h"
#include "settings/vxMessageTable.h"

namespace Velarix {

namespace {

// The flags text of getMessage, read by position.
struct MessageFlags {
    bool withCode = false;
    wchar_t level = L'3';  // '1' to '5'; any other character: no description
    std::wstring literal;

    bool withDescription() const { return level >= L'1' && level <= L'5'; }
};

MessageFlags readFlags(const std::wstring& flags) {
    MessageFlags result;
    result.withCode = !flags.empty() && flags[0] == L'1';
    if (flags.size() >= 2) result.level = flags[1];
    if (flags.size() > 2) result.literal = flags.substr(2);
    return result;
}

struct LocationWords {
    const wchar_t* line;
    const wchar_t* function;
    const wchar_t* argument;
};

constexpr LocationWords kEnglishWords{L"Line", L"Function", L"Argument #"};
constexpr LocationWords kGermanWords{L"Zeile", L"Funktion", L"Argument "};

void writeParsingLocation(std::wostream& out, const vxParsingError& parsing, short languageID) {
    const LocationWords& words = languageID == kLanguageGerman ? kGermanWords : kEnglishWords;
    if (parsing.lineNumber != -1) {
        out << words.line << L' ' << std::to_wstring(parsing.lineNumber) << L": ";
    }
    if (!parsing.fnName.empty()) {
        out << words.function << L' ' << L'"' << parsing.fnName << L'"' << L": ";
    }
    if (parsing.argIndex != -1) {
        out << words.argument << L' ' << std::to_wstring(parsing.argIndex) << L": ";
    }
}

void writeParsingError(std::wostream& out, const vxParsingError& parsing, const std::wstring& text,
                       short languageID, wchar_t level) {
    if (level > L'1') writeParsingLocation(out, parsing, languageID);
    out << text << L'\n';
    if (level >= L'3' && !parsing.errScriptPart.empty()) out << parsing.errScriptPart << L'\n';
}

void writeRuntimeError(std::wostream& out, const vxRuntimeError& runtime,
                       const std::wstring& text) {
    out << text;
    if (runtime.errorCode != 0) out << L' ' << std::to_wstring(runtime.errorCode);
    out << L'\n';
}

void writeDescription(std::wostream& out, const vxError& error, short languageID, wchar_t level) {
    const std::wstring text = vxErrorDescription(error.getErrorCode(), languageID);
    if (const vxParsingError* parsing = error.getParsingError()) {
        writeParsingError(out, *parsing, text, languageID, level);
    } else if (const vxRuntimeError* runtime = error.getRuntimeError()) {
        writeRuntimeError(out, *runtime, text);
    } else {
        out << text << L'\n';
    }
    if (level >= L'4') out << error.getLocation() << L'\n';
    if (level == L'5') out << error.getAddlInfo() << L'\n';
}

}  // namespace

vxError::vxError() = default;

const std::wstring& vxError::getClassName() const {
    static const std::wstring name = L"vxError";
    return name;
}

vxError::~vxError() = default;

void vxError::getMessage(std::wstring& dest, short languageID, const std::wstring& flags) const {
    if (errorCode == kErrPlainText) {
        dest = addlInfo;
        return;
    }
    const MessageFlags parsed = readFlags(flags);
    const bool describe = errorCode > 0 && parsed.withDescription();
    std::wostringstream out;
    out << parsed.literal;
    if (parsed.withCode) out << std::to_wstring(errorCode) << (describe ? L": " : L"\n");
    if (describe) writeDescription(out, *this, languageID, parsed.level);
    dest = out.str();
}

void vxError::clear() {
    reset();
}

void vxError::reset() {
    parsingError.reset();
    runtimeError.reset();
    errorCode = kNoError;
    messagePrefix.clear();
    location.clear();
    addlInfo.clear();
}

bool vxError::createParsingError() {
    parsingError.reset();
    try {
        parsingError = std::make_unique<vxParsingError>();
    } catch (const std::bad_alloc&) {
        setError(vxErrRuntime::kOutOfMemory, getClassName() + L"/createParsingError/1");
        return false;
    }
    return true;
}

bool vxError::createRuntimeError() {
    runtimeError.reset();
    try {
        runtimeError = std::make_unique<vxRuntimeError>();
    } catch (const std::bad_alloc&) {
        setError(vxErrRuntime::kOutOfMemory, getClassName() + L"/createRuntimeError/1");
        return false;
    }
    return true;
}

void vxError::setCallPlace(long line, const std::wstring& fnName, const std::wstring& scriptPart) {
    if (!createParsingError()) return;
    parsingError->lineNumber = line;
    parsingError->fnName = fnName;
    parsingError->errScriptPart = scriptPart;
}

// The setters copy their texts before the reset: a caller may pass the
// record's own fields.
void vxError::setParsingError(short code, long line, const std::wstring& fnName, long argIndex,
                              const std::wstring& scriptPart, const std::wstring& info) {
    vxParsingError filled;
    filled.lineNumber = line;
    filled.argIndex = argIndex;
    filled.fnName = fnName;
    filled.errScriptPart = scriptPart;
    std::wstring newInfo = info;
    reset();
    errorCode = code;
    addlInfo = std::move(newInfo);
    if (createParsingError()) parsingError->copy(&filled);
}

void vxError::setParsingError(short code, long line, const std::wstring& fnName, long argIndex,
                              const std::wstring& scriptPart) {
    setParsingError(code, line, fnName, argIndex, scriptPart, L"");
}

void vxError::setParsingError(short code, long line, const std::wstring& fnName,
                              const std::wstring& scriptPart) {
    setParsingError(code, line, fnName, -1, scriptPart, L"");
}

void vxError::setParsingError(short code, long line, const std::wstring& scriptPart) {
    setParsingError(code, line, L"", -1, scriptPart, L"");
}

void vxError::setRuntimeError(short code, short systemCode, const std::wstring& where,
                              const std::wstring& info) {
    setError(code, where, info);
    if (createRuntimeError()) runtimeError->errorCode = systemCode;
}

void vxError::setRuntimeError(short code, short systemCode, const std::wstring& where) {
    setRuntimeError(code, systemCode, where, L"");
}

void vxError::setRuntimeError(short code, short systemCode) {
    setRuntimeError(code, systemCode, L"", L"");
}

void vxError::setError(short code, const std::wstring& where, const std::wstring& info) {
    std::wstring newLocation = where;
    std::wstring newInfo = info;
    reset();
    errorCode = code;
    location = std::move(newLocation);
    addlInfo = std::move(newInfo);
}

void vxError::setError(short code, const std::wstring& where) {
    setError(code, where, L"");
}

void vxError::setError(short code) {
    setError(code, L"", L"");
}

void vxError::setMessagePrefix(const vxErrorSettings* settings) {
    messagePrefix = settings ? settings->getMessagePrefix() : std::wstring();
}

void vxError::copy(const vxError* from) {
    if (from == this) return;
    if (!from) {
        clear();
        return;
    }
    setError(from->errorCode, from->location, from->addlInfo);
    messagePrefix = from->messagePrefix;
    if (from->parsingError && createParsingError()) parsingError->copy(from->parsingError.get());
    if (from->runtimeError && createRuntimeError()) runtimeError->copy(from->runtimeError.get());
}

void vxError::clearText() {
    messagePrefix.clear();
    location.clear();
    addlInfo.clear();
}

void vxError::dump(short depth, std::ostream& out) const {
    if (errorCode == kNoError) {
        vxDumpLine(out, "vxError::errorCode: ", errorCode);
        return;
    }
    vxDumpHeader(out, vxNarrow(getClassName()));
    vxDumpLine(out, "short errorCode:        ", errorCode);
    vxDumpLine(out, "wstring messagePrefix:  ", messagePrefix);
    vxDumpLine(out, "wstring location:       ", location);
    vxDumpLine(out, "wstring addlInfo:      ", addlInfo);
    if (depth > 0 && parsingError) parsingError->dump(depth - 1, out);
    if (depth > 0 && runtimeError) runtimeError->dump(depth - 1, out);
    vxDumpEnd(out);
}

}  // namespace Velarix
