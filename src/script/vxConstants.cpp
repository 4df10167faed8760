#include "script/vxConstants.h"

#include <algorithm>
#include <cstddef>
#include <cwchar>
#include <string>

namespace Velarix {

namespace {

std::wstring loweredKey(const wchar_t* word) {
    std::wstring key(word, std::wcslen(word));
    if (key.size() > static_cast<std::size_t>(vxConstants::kMaxWordLength)) {
        key.resize(vxConstants::kMaxWordLength);
    }
    for (wchar_t& c : key) {
        if (c >= L'A' && c <= L'Z') c = static_cast<wchar_t>(c + (L'a' - L'A'));
    }
    return key;
}

short findSorted(std::span<const vxConstantWord> words, const std::wstring& key) {
    const auto it = std::lower_bound(
        words.begin(), words.end(), key,
        [](const vxConstantWord& row, const std::wstring& k) { return k.compare(row.word) > 0; });
    if (it == words.end() || key.compare(it->word) != 0) return -1;
    return static_cast<short>(it - words.begin());
}

short findInOrder(std::span<const vxConstantWord> words, const std::wstring& key) {
    for (std::size_t i = 0; i < words.size(); ++i) {
        if (key.compare(words[i].word) == 0) return static_cast<short>(i);
    }
    return -1;
}

}  // namespace

std::span<const vxConstantWord> vxConstants::table(short constantType) {
    if (constantType == kColorNames) return vxColorNames();
    const auto tables = vxKeywordTables();
    const auto it = std::lower_bound(
        tables.begin(), tables.end(), constantType,
        [](const vxConstantTable& t, short type) { return t.constantType < type; });
    if (it == tables.end() || it->constantType != constantType) return {};
    return it->words;
}

short vxConstants::find(short constantType, const wchar_t* word) {
    const auto words = table(constantType);
    if (word == nullptr || words.empty()) return -1;
    const std::wstring key = loweredKey(word);
    return constantType == kColorNames ? findSorted(words, key) : findInOrder(words, key);
}

const wchar_t* vxConstants::getValue(short constantType, short index) {
    const auto words = table(constantType);
    if (index < 0 || static_cast<std::size_t>(index) >= words.size()) return nullptr;
    return words[index].value;
}

short vxConstants::getCount(short constantType) {
    return static_cast<short>(table(constantType).size());
}

bool vxConstants::isCombinable(short constantType) {
    if (constantType >= 1500 && constantType <= 1620) return true;
    return constantType == 1105 || constantType == 1107 || constantType == 1701 ||
           constantType == 2000;
}

}  // namespace Velarix
