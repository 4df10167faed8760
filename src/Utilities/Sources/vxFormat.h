// The common ground of the number and date formats. A format text is a
// specifier alone ("f2", "D.M.YYYY") or a prefix, "|", the specifier, "|"
// and a postfix ("Total: |f2| EUR"); prefix and postfix are copied around
// the value as they stand. A text with a single "|" is no format; with more
// than two, the second ends the specifier and the postfix keeps the rest.
// An empty text has three empty parts and prints nothing.
//
// Label styles pass kNoFormatMarker to say that no format was given; it is
// no format text, and the code that meets it puts a derived format in its
// place, kFallbackFormat where nothing better is known.
#pragma once

#include <ostream>
#include <string>

#include "settings/vxErrorHolder.h"

namespace Velarix {

class vxFormat : public vxErrorHolder {
public:
    static constexpr const wchar_t* kNoFormatMarker = L"DEFAULT_FORMAT";
    static constexpr const wchar_t* kFallbackFormat = L"|u|";

    ~vxFormat() override;

    // Clears the error record, splits the text and checks the specifier.
    // Returns 0 and keeps the parts, or raises the class's format error
    // (2001 numbers, 2002 dates) with the text as detail, empties the parts
    // and returns the code.
    [[nodiscard]] short setFormat(const std::wstring& text);
    // The check of setFormat, keeping and raising nothing.
    bool isValid(const std::wstring& text) const;

    // The value in the kept format; the empty string while it is in error.
    std::wstring toString(double value);
    // Sets the format first; an empty text prints the value as "u" does.
    std::wstring toString(double value, const std::wstring& text);
    // Appends what toString(value) returns. For long runs of values: a
    // buffer that is used again keeps its capacity.
    void appendString(double value, std::wstring& out);

    const std::wstring& getPrefixString() const { return prefixString; }
    const std::wstring& getFormatSpecifier() const { return formatSpecifier; }
    const std::wstring& getPostfixString() const { return postfixString; }

    virtual void dump(short depth, std::ostream& out) const;

    // Cuts a text into its three parts; false for a text with one "|".
    static bool splitFormat(const std::wstring& text, std::wstring& prefix, std::wstring& specifier,
                            std::wstring& postfix);
    // The value with 9 significant digits, as "u" prints it.
    static void appendPlain(double value, std::wstring& out);
    // Appends the characters of a number, which are ASCII.
    static void appendChars(const char* first, const char* last, std::wstring& out);

protected:
    // `formatCode` is 2001 or 2002; `specifier` is the class's default.
    vxFormat(const wchar_t* name, short formatCode, const wchar_t* specifier);

    // 0 for a specifier the class can print, else the running number of the
    // failed check; the location is "className/checkMethod()/number".
    virtual short checkSpecifier(const std::wstring& specifier) const = 0;
    virtual const wchar_t* checkMethod() const = 0;
    // Makes ready to print by formatSpecifier, which has passed the check.
    virtual void keepSpecifier() = 0;
    // Appends the value by the kept specifier, without prefix and postfix.
    virtual void appendValue(double value, std::wstring& out) = 0;
    // Whether the value prints at all; the date format leaves some out whole.
    virtual bool printsValue(double value) const { return true; }

    std::wstring prefixString;
    std::wstring formatSpecifier;
    std::wstring postfixString;

private:
    void emptyParts();

    short formatCode;
};

}  // namespace Velarix
