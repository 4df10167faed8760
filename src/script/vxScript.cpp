#include "script/vxScript.h"

#include <algorithm>

#include "host/vxLog.h"
#include "platform/vxTextCodec.h"
#include "script/vxFunctionIds.h"
#include "script/vxFunctionTable.h"
#include "script/vxScriptChars.h"
#include "settings/vxUserSettings.h"

namespace Velarix {

using namespace vxScriptChars;

vxScript::vxScript(vxUserSettings* settings, vxDrawingSpecs* specs, vxView* view, vxOutputWIN* out)
    : vxErrorHolder(L"vxScript"),
      userSettings(settings),
      drawingSpecs(specs),
      rootView(view),
      currentView(view),
      output(out) {
    if (userSettings) {
        errorSettings = userSettings->getErrorSettings();
        formatSettings = userSettings->getFormatSettings();
        systemSettings = userSettings->getSystemSettings();
    }
    if (isError()) return;
    if (!create(assign, L"createAssign")) return;
    try {
        functions.reserve(kNumOfFunctions);
        for (long id = 0; id < kNumOfFunctions; ++id) {
            functions.push_back(std::make_unique<vxFunction>(getFunctionGroup(id), id));
            if (functions.back()->isError()) {
                copyError(functions.back()->getError());
                return;
            }
        }
    } catch (const std::bad_alloc&) {
        setError(vxErrRuntime::kOutOfMemory, where(L"createFunctions"));
    }
}

vxScript::~vxScript() = default;

void vxScript::clear() {
    srcString.clear();
    fnName.clear();
    argument.clear();
    arguments.clear();
    charPositions.clear();
    drawingOpened = drawingClosed = false;
    maxCharIndex = -1;
    charIndex = 0;
    fnIndex = -1;
    argIndex = 0;
    lineNumber = 1;
    stringSpecifierType = 0xFFFF;
    currentView = rootView;
    if (assign) assign->clear();
}

const vxFunction* vxScript::getFunction(long id) const {
    if (id < 0 || id >= static_cast<long>(functions.size())) return nullptr;
    return functions[static_cast<size_t>(id)].get();
}

void vxScript::setText(const std::wstring& s) {
    try {
        srcString.reserve(s.size() + 1);
        srcString = s;
        srcString.push_back(kLineEnd);
    } catch (const std::bad_alloc&) {
        srcString.clear();
        setError(vxErrRuntime::kOutOfMemory, where(L"setText", 2));
        return;
    }
    maxCharIndex = static_cast<long>(srcString.size()) - 1;
}

void vxScript::setText(const std::string& s) {
    try {
        setText(vxFromUtf8(s));
    } catch (const std::bad_alloc&) {
        setError(vxErrRuntime::kOutOfMemory, where(L"setText", 3));
    }
}

void vxScript::tokenize(const std::wstring& s) {
    clearError();
    setText(s);
    if (!isError()) parse();
}

void vxScript::normalise() {
    for (wchar_t& c : srcString) {
        if (c == 0x000A || c == 0x000B) c = kLineEnd;
    }
}

void vxScript::parse() {
    if (!assign) return;
    normalise();
    maxCharIndex = static_cast<long>(srcString.size()) - 1;
    assign->clear();
    fnIndex = -1;
    argIndex = 0;
    charIndex = 0;
    lineNumber = 1;
    drawingOpened = drawingClosed = false;
    currentView = rootView;

    while (!atEnd()) {
        phase = Phase::kTopLevel;
        wchar_t c = current();
        if (c == L'/') {
            skipComment();
        } else if (isBlank(c)) {
            ++charIndex;
        } else if (isLineEnd(c)) {
            ++charIndex;
            ++lineNumber;
        } else {
            extractFunctionName();
            if (!isError()) extractArguments();
            if (!isError()) assignArguments();
            if (!isError()) dispatch();
        }
        if (isError()) return;
    }
}

void vxScript::extractFunctionName() {
    phase = Phase::kName;
    const long begin = charIndex;
    callBegin = begin;
    callLine = lineNumber;
    long end = charIndex;
    bool inName = true;
    bool lineBreakSeen = false;
    auto fail = [&]() {
        lineOfError = lineBreakSeen ? lineNumber - 1 : lineNumber;
        raise(vxErrScript::kSyntax, begin, std::min(charIndex + 1, maxCharIndex));
    };
    while (true) {
        if (atEnd()) return fail();
        const wchar_t c = current();
        if (c == L'(') {
            if (end == begin) return fail();
            ++charIndex;
            fnName = srcString.substr(static_cast<size_t>(begin), static_cast<size_t>(end - begin));
            lookUpFunction();
            return checkOrder(begin, end);
        }
        if (isNameChar(c)) {
            if (!inName) return fail();
            ++charIndex;
            ++end;
        } else if (c == L'/') {
            skipComment();
            if (isError()) return;
            inName = false;
        } else if (isBlank(c)) {
            ++charIndex;
            inName = false;
        } else if (isLineEnd(c)) {
            if (lineBreakSeen) return fail();
            ++charIndex;
            ++lineNumber;
            inName = false;
            lineBreakSeen = true;
        } else {
            return fail();
        }
    }
}

void vxScript::lookUpFunction() {
    fnIndex = vxFindFunction(fnName);
}

static bool isOutputFunction(long id) {
    switch (id) {
        case kSaveAsBMPFile:
        case kSaveAsEMFFile:
        case kSaveAsGIFFile:
        case kSaveAsJPGFile:
        case kSaveAsPDFFile:
        case kSaveAsPCTFile:
        case kSaveAsPNGFile:
        case kSaveAsSVGFile:
        case kSaveAsSWFFile:
        case kSaveAsTIFFile:
        case kSendToClipboard:
            return true;
        default:
            return false;
    }
}

void vxScript::checkOrder(long begin, long end) {
    phase = Phase::kOrder;
    lineOfError = lineNumber;
    if (fnIndex == kOpenDrawing) {
        if (drawingOpened || drawingClosed)
            return raise(vxErrLayout::kOpenDrawingTwice, begin, end);
        drawingOpened = true;
    } else if (fnIndex == kCloseDrawing) {
        if (drawingClosed) return raise(vxErrLayout::kCloseDrawingTwice, begin, end);
        if (!drawingOpened) return raiseWithoutLocation(vxErrLayout::kOpenDrawingMissing);
        drawingClosed = true;
    } else if (drawingOpened) {
        if (fnIndex == kUnknown) raise(vxErrScript::kFunctionName, begin, end);
    } else if (!isOutputFunction(fnIndex)) {
        raiseWithoutLocation(vxErrLayout::kOpenDrawingMissing);
    }
}

void vxScript::extractArguments() {
    phase = Phase::kArguments;
    charPositions.clear();
    arguments.clear();
    bracketPos = charIndex;
    argIndex = 0;
    while (true) {
        if (atEnd()) {
            lineOfError = lineNumber;
            return raise(vxErrScript::kString, bracketPos, maxCharIndex);
        }
        const wchar_t c = current();
        if (c == L'/') {
            skipComment();
            if (isError()) return;
        } else if (isBlank(c)) {
            ++charIndex;
        } else if (isLineEnd(c)) {
            ++charIndex;
            ++lineNumber;
        } else {
            charPositions.push_back(charIndex);
            extractSingleArgument();
            if (isError()) return;
            charPositions.push_back(charIndex);
            if (current() == L')') break;
            ++charIndex;
            ++argIndex;
        }
    }
    if (arguments.size() == 1 && arguments[0].empty()) arguments.clear();
    closePos = charIndex;
    ++charIndex;
}

void vxScript::extractSingleArgument() {
    argument.clear();
    bool afterString = false;
    const long start = charIndex;
    try {
        while (true) {
            lineOfError = lineNumber;
            if (atEnd()) return raise(vxErrScript::kString, start, maxCharIndex);
            const wchar_t c = current();
            if (c == L';' || c == L')') break;
            if (isOpeningQuote(c)) {
                if (afterString) return raise(vxErrScript::kString, start, charIndex + 1);
                extractString();
                if (isError()) return;
                if (fnIndex != kChartData) afterString = true;
            } else if (c == L'/') {
                if (skipComment()) argument.push_back(L'/');
                if (isError()) return;
            } else if (isBlank(c) || isLineEnd(c)) {
                if (isLineEnd(c)) ++lineNumber;
                ++charIndex;
                if (!afterString) argument.push_back(L' ');
            } else {
                if (afterString) return raise(vxErrScript::kString, start, charIndex + 1);
                argument.push_back(c);
                ++charIndex;
            }
        }
        while (argument.size() > 1 && argument.back() == L' ') argument.pop_back();
        arguments.push_back(argument);
    } catch (const std::bad_alloc&) {
        setError(vxErrRuntime::kOutOfMemory, where(L"extractSingleArgument"));
    }
}

void vxScript::extractString() {
    argument.push_back(L'"');
    const wchar_t opening = current();
    const long openingAt = charIndex;
    stringSpecifierType = static_cast<unsigned short>(opening);
    ++charIndex;
    while (true) {
        if (charIndex >= maxCharIndex) {
            lineOfError = lineNumber;
            return raise(vxErrScript::kString, openingAt, maxCharIndex);
        }
        const wchar_t c = current();
        const wchar_t next = srcString[static_cast<size_t>(charIndex) + 1];
        if (c == next && isQuote(c)) {
            argument.push_back(c);
            charIndex += 2;
        } else if (c == L'\\') {
            extractEscape();
            if (isError()) return;
        } else if (closesString(opening, c)) {
            break;
        } else {
            argument.push_back(c);
            ++charIndex;
        }
    }
    argument.push_back(L'"');
    ++charIndex;
    stringSpecifierType = 0xFFFF;
}

void vxScript::extractEscape() {
    const long at = charIndex;
    const wchar_t next = srcString[static_cast<size_t>(charIndex) + 1];
    wchar_t value = 0;
    switch (next) {
        case L'n':
            value = (fnIndex == kChartDataRead || fnIndex == kChartDataWrite) ? 0x000A : 0x000D;
            break;
        case L'r':
            value = 0x000D;
            break;
        case L't':
            value = 0x0009;
            break;
        case L'\\':
            value = L'\\';
            break;
        case L'"':
            value = 0x0022;
            break;
        case L'x':
            return extractHexEscape(2);
        case L'u':
            return extractHexEscape(4);
        default:
            lineOfError = lineNumber;
            return raise(vxErrScript::kString, at, at + 2);
    }
    argument.push_back(value);
    charIndex += 2;
}

void vxScript::extractHexEscape(int digits) {
    const long at = charIndex;
    lineOfError = lineNumber;
    if (at + 1 + digits > maxCharIndex - 1) return raise(vxErrScript::kSyntax, at, maxCharIndex);
    unsigned value = 0;
    for (int i = 0; i < digits; ++i) {
        const wchar_t c = srcString[static_cast<size_t>(at + 2 + i)];
        if (!isHexDigit(c)) return raise(vxErrScript::kSyntax, at, at + 2 + digits);
        value = value * 16 + static_cast<unsigned>(hexValue(c));
    }
    if (digits == 4 || (value >= 32 && value <= 255))
        argument.push_back(static_cast<wchar_t>(value));
    charIndex = at + 2 + digits;
}

bool vxScript::isLiteralSlash() const {
    if (phase != Phase::kArguments) return false;
    switch (fnIndex) {
        case kChartData:
            return true;
        case kScaling:
            return argIndex == 2 || argIndex == 3;
        case kBarChartOptions:
        case kAreaChartOptions:
            return argIndex == 1;
        default:
            return false;
    }
}

bool vxScript::skipComment() {
    lineOfError = lineNumber;
    if (charIndex >= maxCharIndex) {
        raise(vxErrScript::kSyntax, charIndex, charIndex + 1);
        return false;
    }
    const long start = charIndex;
    ++charIndex;
    const wchar_t c = current();
    if (c == L'/') {
        size_t lineEnd = srcString.find(kLineEnd, static_cast<size_t>(charIndex));
        charIndex = static_cast<long>(lineEnd) + 1;
        ++lineNumber;
        return false;
    }
    if (c == L'*' && charIndex < maxCharIndex) {
        size_t close = srcString.find(L"*/", static_cast<size_t>(charIndex) + 1);
        if (close == std::wstring::npos) {
            raise(vxErrScript::kComment, start, maxCharIndex);
            return false;
        }
        lineNumber += static_cast<long>(std::count(
            srcString.begin() + charIndex, srcString.begin() + static_cast<long>(close), kLineEnd));
        charIndex = static_cast<long>(close) + 2;
        return false;
    }
    if (isLiteralSlash()) return true;
    raise(vxErrScript::kSyntax, start, start + 1);
    return false;
}

void vxScript::dump(short depth, std::ostream& out) const {
    if (depth <= 0) return;
    vxDumpHeader(out, "vxScript");
    vxDumpLine(out, "Num of functions: ", static_cast<long>(functions.size()));
    vxDumpLine(out, "Num of arguments: ", static_cast<long>(arguments.size()));
    vxDumpLine(out, "wstring fnName: ", fnName);
    vxDumpLine(out, "vector<wstring> arguments: ", arguments);
    vxDumpLine(out, "vector<long> charPositions: ", charPositions);
    vxDumpLine(out, "bool isDrawingOpened: ", drawingOpened);
    vxDumpLine(out, "bool isDrawingClosed: ", drawingClosed);
    vxDumpLine(out, "long maxCharIndex: ", maxCharIndex);
    vxDumpLine(out, "long charIndex: ", charIndex);
    vxDumpLine(out, "long fnIndex: ", fnIndex);
    vxDumpLine(out, "long argIndex: ", argIndex);
    vxDumpLine(out, "long lineNumber: ", lineNumber);
    if (assign) assign->dump(static_cast<short>(depth - 1), out);
    if (error) error->dump(static_cast<short>(depth - 1), out);
    vxDumpEnd(out);
}

}  // namespace Velarix
