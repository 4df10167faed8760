#include "furniture/vxLegend.h"

#include <algorithm>
#include <cmath>

#include "graphics/vxFontOLD.h"
#include "graphics/vxLabel.h"
#include "graphics/vxText.h"
#include "host/vxLog.h"
#include "script/vxAssign.h"
#include "script/vxFunctionIds.h"

namespace Velarix {

namespace {

// The arguments of LegendOptions.
enum OptionArgument : long {
    kLocationArg = 0,
    kInsideArg,
    kXOffsetArg,
    kYOffsetArg,
    kArrangementArg,
    kMarkerTypeArg,
    kMarkerWidthArg,
    kMarkerHeightArg,
    kMarkerGapArg,
    kRowGapArg,
    kColumnGapArg,
    kTextLocationArg,
    kMarkerShapeArg,
};

// Places in the list of the arrangement argument.
enum ArrangementEntry : size_t {
    kRowsEntry = 0,
    kColumnsEntry,
    kByColumnEntry,
    kReversedEntry,
    kEqualWidthsEntry,
    kEqualHeightsEntry,
    kCenterEntry,
};

}  // namespace

vxLegend::vxLegend(vxUserSettings* ownerSettings)
    : vxErrorHolder(L"vxLegend"), owner(ownerSettings) {}

vxLegend::~vxLegend() = default;

bool vxLegend::createReferenceText() {
    if (referenceText) return true;
    if (!create(referenceText, L"createReferenceText", owner)) return false;
    referenceText->setHAlignment(vxText::kLeft);
    referenceText->setVAlignment(vxText::kTop);
    return true;
}

bool vxLegend::createBackground() {
    if (background) return true;
    if (!create(background, L"createBackground", owner)) return false;
    background->setMargins(margins[0], margins[1], margins[2], margins[3]);
    background->setUseRelativeMargins(false);
    return true;
}

void vxLegend::assign(vxAssign& a) {
    doRecalcBounds = true;
    switch (a.getFunction()) {
        case kLegendOptions:
            return assignOptions(a);
        case kLegendStyle:
            if (createReferenceText() && !referenceText->assign(a, owner)) {
                copyError(referenceText->getError());
            }
            return;
        case kLegendTexts:
            return assignTexts(a);
        case kLegendBackground:
            if (createBackground() && !background->assignBackground(a, owner)) {
                copyError(background->getError());
            }
            return;
        case kLegendBackgroundOptions:
            return assignBackgroundOptions(a);
        default:
            return;
    }
}

void vxLegend::assignOptions(vxAssign& a) {
    if (!a.isVoid(kLocationArg)) location = a.getShort(kLocationArg);
    doPlaceInside = a.getBool(kInsideArg, doPlaceInside);
    xOffsetDC = a.getFloat(kXOffsetArg, xOffsetDC);
    yOffsetDC = a.getFloat(kYOffsetArg, yOffsetDC);
    assignArrangement(a.getShortArray(kArrangementArg));
    markerType = a.getShort(kMarkerTypeArg, markerType);
    markerWidthDC = std::max(0.0f, a.getFloat(kMarkerWidthArg, markerWidthDC));
    markerHeightDC = std::max(0.0f, a.getFloat(kMarkerHeightArg, markerHeightDC));
    assignGap(a, kMarkerGapArg, markerGap, useRelativeMarkerGap);
    assignGap(a, kRowGapArg, rowGap, useRelativeRowGap);
    assignGap(a, kColumnGapArg, columnGap, useRelativeColumnGap);
    textLocation = a.getShort(kTextLocationArg, textLocation);
    markerShape = a.getShort(kMarkerShapeArg, markerShape);
}

// Rows and columns, then the flags; a list that stops early keeps the rest.
void vxLegend::assignArrangement(const std::vector<short>& list) {
    auto flag = [&list](size_t entry, bool& value) {
        if (list.size() > entry) value = list[entry] != 0;
    };
    if (list.size() > kRowsEntry) numOfRows = std::max<long>(list[kRowsEntry], -1);
    if (list.size() > kColumnsEntry) numOfColumns = std::max<long>(list[kColumnsEntry], -1);
    flag(kByColumnEntry, arrangeColumnByColumn);
    flag(kReversedEntry, arrangeReversed);
    flag(kEqualWidthsEntry, useEquidstantColumnWidths);
    flag(kEqualHeightsEntry, useEquidstantRowHeights);
    flag(kCenterEntry, centerIfIncomplete);
}

void vxLegend::assignGap(const vxAssign& a, long index, float& gap, bool& relative) {
    if (a.isVoid(index)) return;
    const float value = a.getFloat(index);
    relative = value < 0.0f;
    gap = std::fabs(value);
}

// Each call gives all texts anew.
void vxLegend::assignTexts(vxAssign& a) {
    try {
        givenTexts.clear();
        for (long k = 0; k < a.getNumOfArguments(); ++k) {
            givenTexts.push_back(a.isVoid(k) ? std::nullopt
                                             : std::optional<std::wstring>(a.getString(k)));
        }
    } catch (const std::bad_alloc&) {
        givenTexts.clear();
        setError(vxErrRuntime::kOutOfMemory, where(L"assignTexts"));
    }
}

// The background's margins are the legend's: a list given there sets them.
void vxLegend::assignBackgroundOptions(vxAssign& a) {
    const bool hasMargins = !a.isVoid(0);
    if (!createBackground()) return;
    if (!background->assignBackgroundOptions(a)) return copyError(background->getError());
    if (!hasMargins) return;
    background->getMargins(margins);
    useRelativeMargins = background->getUseRelativeMargins();
}

float vxLegend::fontSize() const {
    const vxFontOLD* font = referenceText ? referenceText->getFont() : nullptr;
    return font ? font->getSize() : 0.0f;
}

float vxLegend::toDC(float value, bool relative) const {
    return relative ? 0.01f * value * fontSize() : value;
}

vxLegendItem::Layout vxLegend::getItemLayout() const {
    vxLegendItem::Layout layout;
    layout.markerWidth = markerWidthDC;
    layout.markerHeight = markerHeightDC;
    layout.markerGap = toDC(markerGap, useRelativeMarkerGap);
    layout.textLocation = textLocation;
    return layout;
}

float vxLegend::getRowGapDC() const {
    return toDC(rowGap, useRelativeRowGap);
}

float vxLegend::getColumnGapDC() const {
    return toDC(columnGap, useRelativeColumnGap);
}

vxLegendItem* vxLegend::getItem(long index) const {
    if (index < 0 || index >= getNumOfEntries()) return nullptr;
    return items[static_cast<size_t>(index)].get();
}

void vxLegend::dump(short depth, std::ostream& out) const {
    if (depth <= 0) return;
    vxDumpHeader(out, "vxLegend");
    vxDumpLine(out, "short languageID:          ", languageID);
    vxDumpLine(out, "bool doPlaceInside:        ", doPlaceInside);
    vxDumpLine(out, "short location:            ", location);
    vxDumpLine(out, "float xOffsetDC,yOffsetDC: ", xOffsetDC, yOffsetDC);
    vxDumpLine(out, "long numOfRows:            ", numOfRows);
    vxDumpLine(out, "long numOfColumns:         ", numOfColumns);
    vxDumpLine(out, "bool doArrangeColumnByColumn: ", arrangeColumnByColumn);
    vxDumpLine(out, "bool doArrangeReversed:    ", arrangeReversed);
    vxDumpLine(out, "bool useEquidstantColumnWidths: ", useEquidstantColumnWidths);
    vxDumpLine(out, "bool useEquidstantRowHeights: ", useEquidstantRowHeights);
    vxDumpLine(out, "bool doCenterIfIncomplete: ", centerIfIncomplete);
    vxDumpLine(out, "short markerType:          ", markerType);
    vxDumpLine(out, "short markerShape:         ", markerShape);
    vxDumpLine(out, "float markerWidthDC,markerHeightDC: ", markerWidthDC, markerHeightDC);
    vxDumpLine(out, "short textLocation:        ", textLocation);
    vxDumpLine(out, "float markerGap:           ", markerGap);
    vxDumpLine(out, "float rowGap:              ", rowGap);
    vxDumpLine(out, "float columnGap:           ", columnGap);
    vxDumpLine(out, "bool useRelativeMarkerGap: ", useRelativeMarkerGap);
    vxDumpLine(out, "bool useRelativeRowGap:    ", useRelativeRowGap);
    vxDumpLine(out, "bool useRelativeColumnGap: ", useRelativeColumnGap);
    vxDumpLine(out, "float margins[4]:          ", margins, 4);
    vxDumpLine(out, "bool useRelativeMargins:   ", useRelativeMargins);
    vxDumpLine(out, "float bounds[4]:           ", bounds, 4);
    vxDumpLine(out, "bool doRecalcBounds:       ", doRecalcBounds);
    vxDumpLine(out, "float rowHeightsDC:        ", rowHeightsDC.data(), rowHeightsDC.size());
    vxDumpLine(out, "float columnWidthsDC:      ", columnWidthsDC.data(), columnWidthsDC.size());
    vxDumpLine(out, "wstring texts:             ", texts);
    vxDumpEnd(out);
    const short next = static_cast<short>(depth - 1);
    if (referenceText) referenceText->dump(next, out);
    if (background) background->dump(next, out);
    for (const auto& item : items) item->dump(next, out);
}

}  // namespace Velarix
