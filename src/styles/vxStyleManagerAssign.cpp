// The style calls of the script: the selection and the records that take a
// call.
#include <algorithm>
#include <new>
#include <type_traits>

#include "script/vxAssign.h"
#include "script/vxFunctionIds.h"
#include "styles/vxStyleManager.h"

namespace Velarix {

namespace {

// The default that a series starts from.
template <class T>
const T& defaultOf(const std::vector<std::unique_ptr<T>>& defaults, long series) {
    return *defaults[static_cast<size_t>((series - 1) % static_cast<long>(defaults.size()))];
}

}  // namespace

// A manager that holds an error takes no more calls.
void vxStyleManager::assign(vxAssign& a) {
    if (isError()) return;
    const long fn = a.getFunction();
    if (fn == kLabelBackgroundOptions) return assignLabelBackgroundOptions(a);
    std::vector<long> items;
    const long series = getIndices(a, items);
    if (isError()) return;
    if (series == kStacked) {
        if (isLabelCall(fn)) return assignStacked(a);
        return raiseOutOfRange(a);
    }
    switch (fn) {
        case kBarStyle:
            return assignKind(barStyles, a, series, items, L"addBarStyle");
        case kSymbolStyle:
            return assignKind(symbolStyles, a, series, items, L"addSymbolStyle");
        case kLineStyle:
            return assignKind(lineStyles, a, series, items, L"addLineStyle");
        case kBorderStyle:
            return assignKind(borderStyles, a, series, items, L"addBorderStyle");
        case kFillStyle:
        case kPictureStyle:
            return assignKind(fillStyles, a, series, items, L"addFillStyle");
        case kArrowStyle:
            return assignKind(arrowStyles, a, series, items, L"addArrowStyle");
        case kShadowStyle:
            return assignKind(shadowStyles, a, series, items, L"addShadowStyle");
        default:
            if (isLabelCall(fn)) assignKind(labelStyles, a, series, items, L"addLabelStyle");
            return;
    }
}

long vxStyleManager::getIndices(vxAssign& a, std::vector<long>& items) {
    long series = kAll;
    items.clear();
    try {
        std::vector<long> selection = a.getLongArray(0);
        if (selection.empty() && !a.isVoid(0)) selection.push_back(a.getLong(0));
        if (!selection.empty()) {
            series = selection.front();
            items.assign(selection.begin() + 1, selection.end());
        }
    } catch (const std::bad_alloc&) {
        setError(vxErrRuntime::kOutOfMemory, where(L"getIndices"));
    }
    a.addToArgumentOffset(1);
    return series;
}

// The reader lets the word "stacked" pass for every style call; only the
// label calls take it.
void vxStyleManager::raiseOutOfRange(const vxAssign& a) {
    setError(vxErrScript::kOutOfRange, where(L"assign"));
    const vxAssign::CallPlace& place = a.getCallPlace();
    if (error && place.line > 0) error->setCallPlace(place.line, place.fnName, place.scriptPart);
}

bool vxStyleManager::isLabelCall(long fn) const {
    return fn == kLabelStyle || fn == kLabelOptions || fn == kLabelTexts ||
           fn == kLabelBackground || fn == kLabelBackgroundOptions;
}

bool vxStyleManager::assignTo(vxStyle& style, vxAssign& a, long offset) {
    a.addToArgumentOffset(offset - a.getArgumentOffset());
    if (style.assign(a)) return true;
    if (!isError()) copyError(style.getError());
    return false;
}

template <class T>
void vxStyleManager::assignKind(Records<T>& records, vxAssign& a, long series,
                                const std::vector<long>& items, const wchar_t* addMethod) {
    if (series > kAll) return assignSeries(records, a, series, items, addMethod);
    if (items.empty()) return assignAll(records, a);
    std::vector<long> named;
    try {
        for (const auto& style : records.script) named.push_back(style->getSeriesIndex());
    } catch (const std::bad_alloc&) {
        return setError(vxErrRuntime::kOutOfMemory, where(L"assignKind"));
    }
    std::sort(named.begin(), named.end());
    named.erase(std::unique(named.begin(), named.end()), named.end());
    const long offset = a.getArgumentOffset();
    for (long each : named) {
        if (isError()) return;
        a.addToArgumentOffset(offset - a.getArgumentOffset());
        assignSeries(records, a, each, items, addMethod);
    }
}

// Every default, every record of the script and, for labels, the stacked
// label style, each from the same argument on.
template <class T>
void vxStyleManager::assignAll(Records<T>& records, vxAssign& a) {
    const long offset = a.getArgumentOffset();
    for (auto* list : {&records.defaults, &records.script}) {
        for (const auto& style : *list) {
            if (!assignTo(*style, a, offset)) return;
        }
    }
    if constexpr (std::is_same_v<T, vxLabelStyle>) {
        if (stackedLabelStyle) assignTo(*stackedLabelStyle, a, offset);
    }
}

template <class T>
void vxStyleManager::assignSeries(Records<T>& records, vxAssign& a, long series,
                                  const std::vector<long>& items, const wchar_t* addMethod) {
    const long offset = a.getArgumentOffset();
    T* whole = nullptr;
    T* itemised = nullptr;
    for (const auto& style : records.script) {
        if (style->getSeriesIndex() != series) continue;
        (style->hasItems() ? itemised : whole) = style.get();
    }
    const T& base = defaultOf(records.defaults, series);
    if (items.empty()) {
        if (!whole) whole = addStyle(records, series, items, base, addMethod);
        if (whole && assignTo(*whole, a, offset) && itemised) assignTo(*itemised, a, offset);
        return;
    }
    if (!itemised) {
        itemised = addStyle(records, series, items, whole ? *whole : base, addMethod);
    } else if (!itemised->mergeItems(items)) {
        return copyError(itemised->getError());
    }
    if (itemised) assignTo(*itemised, a, offset);
}

// A copy of `base` for the series and items, counted against the limit.
template <class T>
T* vxStyleManager::addStyle(Records<T>& records, long series, const std::vector<long>& items,
                            const T& base, const wchar_t* method) {
    if (tooManyStyles()) return nullptr;
    try {
        auto style = std::make_unique<T>(owner);
        if (!style->set(&base) || !style->mergeItems(items)) {
            copyError(style->getError());
            return nullptr;
        }
        style->setSeriesIndex(series);
        records.script.push_back(std::move(style));
    } catch (const std::bad_alloc&) {
        setError(vxErrRuntime::kOutOfMemory, where(method));
        return nullptr;
    }
    ++numOfStyles;
    return records.script.back().get();
}

bool vxStyleManager::tooManyStyles() {
    if (maxNumOfStyles == kNoLimit || numOfStyles < maxNumOfStyles) return false;
    setError(vxErrLimits::kTooManyStyles, where(L"tooManyStyles"));
    return true;
}

void vxStyleManager::assignStacked(vxAssign& a) {
    if (!stackedLabelStyle) {
        if (!create(stackedLabelStyle, L"createStackedLabelStyle", owner)) return;
        if (!stackedLabelStyle->set(labelStyles.defaults.front().get())) {
            return copyError(stackedLabelStyle->getError());
        }
        stackedLabelStyle->setSeriesIndex(kStacked);
    }
    assignTo(*stackedLabelStyle, a, a.getArgumentOffset());
}

void vxStyleManager::assignLabelBackgroundOptions(vxAssign& a) {
    assignAll(labelStyles, a);
}

}  // namespace Velarix
