#include "styles/vxStyleManager.h"

#include <utility>

#include <new>

#include "host/vxLog.h"

namespace Velarix {

namespace {

constexpr long kNumOfDefaultBarStyles = 1;
constexpr long kNumOfDefaultSymbolStyles = 12;
constexpr long kNumOfDefaultLineStyles = 16;
constexpr long kNumOfDefaultBorderStyles = 1;
constexpr long kNumOfDefaultFillStyles = 16;
constexpr long kNumOfDefaultArrowStyles = 1;
constexpr long kNumOfDefaultShadowStyles = 1;
constexpr long kNumOfDefaultLabelStyles = 1;

template <class T>
void dumpAll(const std::vector<std::unique_ptr<T>>& styles, short depth, std::ostream& out) {
    for (const auto& style : styles) style->dump(depth, out);
}

}  // namespace

vxStyleManager::vxStyleManager(vxUserSettings* owner)
    : vxErrorHolder(L"vxStyleManager"), owner(owner) {
    makeDefaults(barStyles, kNumOfDefaultBarStyles, L"createBarStyles") &&
        makeDefaults(symbolStyles, kNumOfDefaultSymbolStyles, L"createSymbolStyles") &&
        makeDefaults(lineStyles, kNumOfDefaultLineStyles, L"createLineStyles") &&
        makeDefaults(borderStyles, kNumOfDefaultBorderStyles, L"createBorderStyles") &&
        makeDefaults(fillStyles, kNumOfDefaultFillStyles, L"createFillStyles") &&
        makeDefaults(arrowStyles, kNumOfDefaultArrowStyles, L"createArrowStyles") &&
        makeDefaults(shadowStyles, kNumOfDefaultShadowStyles, L"createShadowStyles") &&
        makeDefaults(labelStyles, kNumOfDefaultLabelStyles, L"createLabelStyles");
}

vxStyleManager::~vxStyleManager() = default;

// Default i (from 0) is built with the number i + 1.
template <class T>
bool vxStyleManager::makeDefaults(Records<T>& records, long count, const wchar_t* method) {
    try {
        for (long i = 0; i < count; ++i) {
            records.defaults.push_back(std::make_unique<T>(owner, i + 1));
            if (records.defaults.back()->isError()) {
                copyError(records.defaults.back()->getError());
                return false;
            }
        }
    } catch (const std::bad_alloc&) {
        setError(vxErrRuntime::kOutOfMemory, where(method));
        return false;
    }
    return true;
}

template <class T>
const T* vxStyleManager::find(const Records<T>& records, long series, long item) const {
    const T* wholeSeries = nullptr;
    for (const auto& style : records.script) {
        if (style->getSeriesIndex() != series) continue;
        if (style->hasItem(item)) return style.get();
        if (!style->hasItems()) wholeSeries = style.get();
    }
    if (wholeSeries) return wholeSeries;
    if (records.defaults.empty()) return nullptr;
    const long count = static_cast<long>(records.defaults.size());
    const long index = series < 1 ? 0 : (series - 1) % count;
    return records.defaults[static_cast<size_t>(index)].get();
}

const vxBarStyle* vxStyleManager::getBarStyle(long series, long item) const {
    return find(barStyles, series, item);
}

const vxSymbolStyle* vxStyleManager::getSymbolStyle(long series, long item) const {
    return find(symbolStyles, series, item);
}

const vxLineStyle* vxStyleManager::getLineStyle(long series, long item) const {
    return find(lineStyles, series, item);
}

const vxBorderStyle* vxStyleManager::getBorderStyle(long series, long item) const {
    return find(borderStyles, series, item);
}

const vxFillStyle* vxStyleManager::getFillStyle(long series, long item) const {
    return find(fillStyles, series, item);
}

const vxArrowStyle* vxStyleManager::getArrowStyle(long series, long item) const {
    return find(arrowStyles, series, item);
}

const vxShadowStyle* vxStyleManager::getShadowStyle(long series, long item) const {
    return find(shadowStyles, series, item);
}

const vxLabelStyle* vxStyleManager::getLabelStyle(long series, long item) const {
    return find(labelStyles, series, item);
}

// The numbers of default and of script records of a kind.
std::pair<long, long> vxStyleManager::sizesOf(Kind kind) const {
    auto sizes = [](const auto& records) {
        return std::pair<long, long>(long(records.defaults.size()), long(records.script.size()));
    };
    switch (kind) {
        case kBar:
            return sizes(barStyles);
        case kSymbol:
            return sizes(symbolStyles);
        case kLine:
            return sizes(lineStyles);
        case kBorder:
            return sizes(borderStyles);
        case kFill:
            return sizes(fillStyles);
        case kArrow:
            return sizes(arrowStyles);
        case kShadow:
            return sizes(shadowStyles);
        default:
            return sizes(labelStyles);
    }
}

long vxStyleManager::getNumOfDefaultStyles(Kind kind) const {
    return sizesOf(kind).first;
}

long vxStyleManager::getNumOfScriptStyles(Kind kind) const {
    return sizesOf(kind).second;
}

// Both managers have the same number of defaults of each kind.
template <class T>
bool vxStyleManager::copyRecords(Records<T>& to, const Records<T>& from) {
    to.script.clear();
    for (size_t i = 0; i < to.defaults.size() && i < from.defaults.size(); ++i) {
        if (!to.defaults[i]->set(from.defaults[i].get())) {
            copyError(to.defaults[i]->getError());
            return false;
        }
    }
    for (const auto& style : from.script) {
        to.script.push_back(std::make_unique<T>(owner));
        if (!to.script.back()->set(style.get())) {
            copyError(to.script.back()->getError());
            return false;
        }
    }
    return true;
}

bool vxStyleManager::set(const vxStyleManager* from) {
    if (from == this) return !isError();
    clear();
    if (!from || isError()) return !isError();
    try {
        maxNumOfStyles = from->maxNumOfStyles;
        numOfStyles = from->numOfStyles;
        bool done = copyRecords(barStyles, from->barStyles) &&
                    copyRecords(symbolStyles, from->symbolStyles) &&
                    copyRecords(lineStyles, from->lineStyles) &&
                    copyRecords(borderStyles, from->borderStyles) &&
                    copyRecords(fillStyles, from->fillStyles) &&
                    copyRecords(arrowStyles, from->arrowStyles) &&
                    copyRecords(shadowStyles, from->shadowStyles) &&
                    copyRecords(labelStyles, from->labelStyles);
        if (done && from->stackedLabelStyle) {
            stackedLabelStyle = std::make_unique<vxLabelStyle>(owner);
            if (!stackedLabelStyle->set(from->stackedLabelStyle.get())) {
                copyError(stackedLabelStyle->getError());
            }
        }
    } catch (const std::bad_alloc&) {
        setError(vxErrRuntime::kOutOfMemory, where(L"set"));
    }
    return !isError();
}

template <class T>
void vxStyleManager::resetRecords(Records<T>& records) {
    records.script.clear();
    for (size_t i = 0; i < records.defaults.size() && !isError(); ++i) {
        T& style = *records.defaults[i];
        if (!style.setDefaults(static_cast<long>(i) + 1)) copyError(style.getError());
    }
}

void vxStyleManager::clear() {
    numOfStyles = 0;
    stackedLabelStyle.reset();
    resetRecords(barStyles);
    resetRecords(symbolStyles);
    resetRecords(lineStyles);
    resetRecords(borderStyles);
    resetRecords(fillStyles);
    resetRecords(arrowStyles);
    resetRecords(shadowStyles);
    resetRecords(labelStyles);
}

void vxStyleManager::dump(short depth, std::ostream& out) const {
    if (depth <= 0) return;
    vxDumpHeader(out, "vxStyleManager");
    vxDumpLine(out, "long maxNumOfStyles:  ", maxNumOfStyles);
    vxDumpLine(out, "long numOfStyles:     ", numOfStyles);
    vxDumpLine(out, "numOfDefaultSymbolStyles: ", getNumOfDefaultStyles(kSymbol));
    vxDumpLine(out, "numOfDefaultLineStyles: ", getNumOfDefaultStyles(kLine));
    vxDumpLine(out, "numOfDefaultBorderStyles: ", getNumOfDefaultStyles(kBorder));
    vxDumpLine(out, "numOfDefaultFillStyles: ", getNumOfDefaultStyles(kFill));
    vxDumpLine(out, "numOfDefaultArrowStyles: ", getNumOfDefaultStyles(kArrow));
    vxDumpLine(out, "numOfDefaultShadowStyles: ", getNumOfDefaultStyles(kShadow));
    vxDumpLine(out, "numOfDefaultLabelStyles: ", getNumOfDefaultStyles(kLabel));
    vxDumpLine(out, "numOfSymbolStyles: ", getNumOfScriptStyles(kSymbol));
    vxDumpLine(out, "numOfLineStyles: ", getNumOfScriptStyles(kLine));
    vxDumpLine(out, "numOfBorderStyles: ", getNumOfScriptStyles(kBorder));
    vxDumpLine(out, "numOfFillStyles: ", getNumOfScriptStyles(kFill));
    vxDumpLine(out, "numOfArrowStyles: ", getNumOfScriptStyles(kArrow));
    vxDumpLine(out, "numOfShadowStyles: ", getNumOfScriptStyles(kShadow));
    vxDumpLine(out, "numOfLabelStyles: ", getNumOfScriptStyles(kLabel));
    vxDumpLine(out, "numOfDefaultBarStyles: ", getNumOfDefaultStyles(kBar));
    vxDumpLine(out, "numOfBarStyles: ", getNumOfScriptStyles(kBar));
    vxDumpEnd(out);
    const short next = static_cast<short>(depth - 1);
    dumpAll(barStyles.script, next, out);
    dumpAll(symbolStyles.script, next, out);
    dumpAll(lineStyles.script, next, out);
    dumpAll(borderStyles.script, next, out);
    dumpAll(fillStyles.script, next, out);
    dumpAll(arrowStyles.script, next, out);
    dumpAll(shadowStyles.script, next, out);
    dumpAll(labelStyles.script, next, out);
    if (stackedLabelStyle) stackedLabelStyle->dump(next, out);
}

}  // namespace Velarix
