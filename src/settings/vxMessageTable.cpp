#include "settings/vxMessageTable.h"

#include <string>
#include <vector>

#include "settings/vxMessageTexts.h"

namespace Velarix {

namespace {

constexpr const wchar_t* kRuntimeErrorEnglish = L"Runtime error.";
constexpr const wchar_t* kRuntimeErrorGerman = L"Runtime Fehler.";
constexpr const char* kRuntimeErrorException = "Runtime error.";

const vxMessageText* findText(long code) {
    for (const vxMessageText& entry : vxMessageTexts()) {
        if (entry.code == code) return &entry;
    }
    return nullptr;
}

// The English descriptions in narrow form, made once; all texts are ASCII.
const std::vector<std::string>& narrowEnglishTexts() {
    static const std::vector<std::string> texts = [] {
        std::vector<std::string> result;
        for (const vxMessageText& entry : vxMessageTexts()) {
            std::wstring wide = entry.english ? entry.english : L"";
            result.emplace_back(wide.begin(), wide.end());
        }
        return result;
    }();
    return texts;
}

const char* narrowEnglish(const vxMessageText& entry) {
    return narrowEnglishTexts()[&entry - vxMessageTexts().data()].c_str();
}

}  // namespace

const wchar_t* vxErrorDescription(short code, short languageID) {
    const vxMessageText* entry = findText(code);
    bool german = languageID == kLanguageGerman;
    if (!entry || !entry->english) return german ? kRuntimeErrorGerman : kRuntimeErrorEnglish;
    return german ? entry->german : entry->english;
}

bool vxHasErrorDescription(short code) {
    const vxMessageText* entry = findText(code);
    return entry && entry->english;
}

const char* vxExceptionText(long code) {
    const vxMessageText* entry = findText(code);
    if (!entry) return kRuntimeErrorException;
    if (entry->exception) return entry->exception;
    return narrowEnglish(*entry);
}

}  // namespace Velarix
