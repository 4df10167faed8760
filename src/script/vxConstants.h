// The keyword tables of the chart language. A word stands for a value text
// ("label" for "2", "aliceblue" for "240 248 255"); the parser converts that
// text as if it had been written in place of the word. Tables are known by
// their numbers, which the argument descriptors name.
#pragma once

#include <span>

namespace Velarix {

struct vxConstantWord {
    const wchar_t* word;  // lower case
    const wchar_t* value;
};

struct vxConstantTable {
    short constantType;
    std::span<const vxConstantWord> words;
};

// All tables but the colour names, in ascending order of their numbers.
std::span<const vxConstantTable> vxKeywordTables();

// The colour names, table 1102, sorted in code-unit order.
std::span<const vxConstantWord> vxColorNames();

class vxConstants {
public:
    static constexpr short kColorNames = 1102;
    // Words compared are cut to this many characters.
    static constexpr int kMaxWordLength = 39;

    // The index of `word` in any case mix, or -1 when the word or the table
    // is unknown. The first matching row wins.
    static short find(short constantType, const wchar_t* word);
    // Null for an unknown table or an index out of range.
    static const wchar_t* getValue(short constantType, short index);
    // 0 for an unknown table.
    static short getCount(short constantType);
    // True for the tables whose words may be added with "+".
    static bool isCombinable(short constantType);

private:
    static std::span<const vxConstantWord> table(short constantType);
};

}  // namespace Velarix
