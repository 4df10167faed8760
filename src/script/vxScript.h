// The reader of the chart language. One pass over the text: a call is cut
// out, its arguments are checked and converted into the vxAssign, and it is
// handed to the model before the next call is looked at. The first error
// stops the pass; everything before it has already reached the model.
//
// The pass, in order, for each call:
//   1. extractFunctionName: the name up to "(", its id, the order check of
//      OpenDrawing / CloseDrawing;
//   2. extractArguments: the raw argument texts, with their positions;
//   3. assignArguments: the count check and the conversion of each argument
//      by its descriptor's type;
//   4. dispatch: the call goes to the output, the format settings or the
//      current view.
#pragma once

#include <memory>
#include <ostream>
#include <string>
#include <vector>

#include "script/vxAssign.h"
#include "script/vxFunction.h"
#include "settings/vxErrorHolder.h"

namespace Velarix {

class vxUserSettings;
class vxErrorSettings;
class vxFormatSettings;
class vxSystemSettings;
class vxDrawingSpecs;
class vxView;
class vxOutputWIN;
class vxArgument;

class vxScript : public vxErrorHolder {
public:
    vxScript(vxUserSettings* settings, vxDrawingSpecs* specs, vxView* view, vxOutputWIN* output);
    ~vxScript() override;

    void clear();
    void setText(const std::wstring& s);
    void setText(const std::string& s);  // UTF-8
    void tokenize(const std::wstring& s);
    void parse();

    vxAssign* getAssign() const { return assign.get(); }
    const vxFunction* getFunction(long id) const;
    vxView* getCurrentView() const { return currentView; }
    bool isDrawingOpened() const { return drawingOpened; }
    bool isDrawingClosed() const { return drawingClosed; }

    // The script's forwarder takes a zero-based argument index and stores
    // it one-based; -1 stays "none".
    void setParsingError(short code, long line, const std::wstring& name, long argIndex,
                         const std::wstring& scriptPart, const std::wstring& addlInfo) override;

    // The line of the script around [begin, end) with the span marked by
    // the error settings' prefix and postfix.
    std::wstring errScriptPart(long begin, long end) const;

    void dump(short depth, std::ostream& out) const;

private:
    // Reading
    bool atEnd() const { return charIndex > maxCharIndex; }
    wchar_t current() const { return srcString[static_cast<size_t>(charIndex)]; }
    void normalise();
    void extractFunctionName();
    void lookUpFunction();
    void checkOrder(long begin, long end);
    void extractArguments();
    void extractSingleArgument();
    void extractString();
    void extractEscape();
    void extractHexEscape(int digits);
    bool skipComment();
    bool isLiteralSlash() const;

    // Assigning and dispatch
    void assignArguments();
    void checkArgumentCount();
    void dispatch();
    void dispatchMisc();
    void setDateTimeFormat(const std::wstring& text);
    void setThousandsSep(const vxAssign& a, long index);
    void setGroupSize(const vxAssign& a, long index);
    void dispatchToView();

    // Errors, located in the script text
    void raise(short code, long begin, long end);
    void raise(short code, long begin, long end, long argumentIndex);
    void raiseAtArgument(short code, long argument, long element);
    void raiseWithoutLocation(short code);
    long argumentBegin(long argument) const;
    long argumentEnd(long argument) const;
    void elementSpan(long argument, long element, long& begin, long& end) const;

    std::vector<std::unique_ptr<vxFunction>> functions;
    std::wstring srcString;
    std::wstring fnName;
    std::wstring argument;
    std::vector<std::wstring> arguments;
    std::vector<long> charPositions;
    bool drawingOpened = false;
    bool drawingClosed = false;
    long maxCharIndex = -1;
    long charIndex = 0;
    long fnIndex = -1;
    long argIndex = 0;
    long lineNumber = 1;
    unsigned short stringSpecifierType = 0xFFFF;

    // Where the pass stands; decides what an error reports of its place.
    enum class Phase { kTopLevel, kName, kOrder, kArguments, kAssign, kDispatch };
    Phase phase = Phase::kTopLevel;
    long lineOfError = 1;  // the line an error reports
    long bracketPos = 0;   // behind the "(" of the current call
    long closePos = 0;     // at the ")" of the current call
    long callBegin = 0;    // at the first character of the current call's name
    long callLine = 1;     // the line the current call begins on

    vxUserSettings* userSettings;
    vxErrorSettings* errorSettings = nullptr;
    vxFormatSettings* formatSettings = nullptr;
    vxSystemSettings* systemSettings = nullptr;
    vxDrawingSpecs* drawingSpecs;
    vxView* rootView;
    vxView* currentView;
    vxOutputWIN* output;
    std::unique_ptr<vxAssign> assign;
};

}  // namespace Velarix
