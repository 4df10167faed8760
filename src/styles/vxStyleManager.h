// How each data series and each data item of one chart looks. A chart has
// one manager; its chart type asks for the style of a series and an item
// when it builds its shapes, and the script's style calls change it.
//
// For each kind of style the manager keeps default records and the records
// the script has set. The defaults are numbered from 1 and take their
// colour (and symbol type) by their number: 1 bar style, 12 symbol styles,
// 16 line styles, 1 border style, 16 fill styles, 1 arrow style, 1 shadow
// style, 1 label style. A getter answers for series s (from 1) and item i
// (from 1, as the script numbers items) with, in this order:
//   1. the script's record for s whose items hold i;
//   2. the script's record for the whole of s;
//   3. the default (s - 1) modulo the number of defaults of the kind, so
//      that series 13 has the symbol of series 1 and series 17 its fill;
//      a series below 1 takes the first default.
//
// A style call begins with a selection: the series ("stacked" -1, "all"
// 0; left out, "all"), then item numbers. By the selection:
//   - stacked: the label style of a stack's total, made on the first call
//     as a copy of the default label style; only label calls allow it,
//     any other is error 1120 at "vxStyleManager/assign/1";
//   - all: every default, every record of the script and the stacked
//     label style take the call;
//   - all with items: the call goes, with the items, to each series that
//     the script has given a record of the kind, as below;
//   - series s: the whole-series record of s takes the call, and so does
//     the item record of s when there is one (a later call for the whole
//     series overrides the fields it names for every item). With items,
//     the item record of s merges them and takes the call. A missing
//     record is added first: a whole-series record as a copy of the
//     default of s, an item record as a copy of the series' record or,
//     without one, of that default.
// A series thus has at most two records of a kind. LabelBackgroundOptions
// has no selection and changes every label style.
//
// Each addition counts against maxNumOfStyles (-1 for no limit); beyond
// it, error 3005 at "vxStyleManager/tooManyStyles/1".
#pragma once

#include <memory>
#include <ostream>
#include <utility>
#include <vector>

#include "settings/vxErrorHolder.h"
#include "styles/vxArrowStyle.h"
#include "styles/vxBarStyle.h"
#include "styles/vxBorderStyle.h"
#include "styles/vxFillStyle.h"
#include "styles/vxLabelStyle.h"
#include "styles/vxLineStyle.h"
#include "styles/vxShadowStyle.h"
#include "styles/vxSymbolStyle.h"

namespace Velarix {

class vxAssign;
class vxUserSettings;

class vxStyleManager : public vxErrorHolder {
public:
    enum Kind : short { kBar, kSymbol, kLine, kBorder, kFill, kArrow, kShadow, kLabel };
    static constexpr long kNoLimit = -1;
    static constexpr long kStacked = -1;
    static constexpr long kAll = 0;

    // Makes the defaults; a failure leaves isError() true.
    explicit vxStyleManager(vxUserSettings* owner);
    ~vxStyleManager() override;
    vxStyleManager(const vxStyleManager&) = delete;
    vxStyleManager& operator=(const vxStyleManager&) = delete;

    // A style call, routed by its function.
    void assign(vxAssign& assign);
    // Reads the selection at the argument offset and moves past it: the
    // series is returned, the item numbers go to `items`.
    long getIndices(vxAssign& assign, std::vector<long>& items);

    const vxBarStyle* getBarStyle(long series, long item) const;
    const vxSymbolStyle* getSymbolStyle(long series, long item) const;
    const vxLineStyle* getLineStyle(long series, long item) const;
    const vxBorderStyle* getBorderStyle(long series, long item) const;
    const vxFillStyle* getFillStyle(long series, long item) const;
    const vxArrowStyle* getArrowStyle(long series, long item) const;
    const vxShadowStyle* getShadowStyle(long series, long item) const;
    const vxLabelStyle* getLabelStyle(long series, long item) const;
    // Null until a label call has named "stacked".
    const vxLabelStyle* getStackedLabelStyle() const { return stackedLabelStyle.get(); }

    long getMaxNumOfStyles() const { return maxNumOfStyles; }
    void setMaxNumOfStyles(long value) { maxNumOfStyles = value; }
    long getNumOfStyles() const { return numOfStyles; }
    long getNumOfDefaultStyles(Kind kind) const;
    long getNumOfScriptStyles(Kind kind) const;

    // A deep copy of `from`; null clears.
    bool set(const vxStyleManager* from);
    // Drops the script's records and the stacked label style and puts the
    // defaults back; the limit stays.
    void clear();
    void dump(short depth, std::ostream& out) const;

private:
    // The numbers of default and of script records of a kind.
    std::pair<long, long> sizesOf(Kind kind) const;
    template <class T>
    struct Records {
        std::vector<std::unique_ptr<T>> defaults;
        std::vector<std::unique_ptr<T>> script;
    };

    template <class T>
    bool makeDefaults(Records<T>& records, long count, const wchar_t* method);
    template <class T>
    const T* find(const Records<T>& records, long series, long item) const;
    template <class T>
    bool copyRecords(Records<T>& to, const Records<T>& from);
    template <class T>
    void resetRecords(Records<T>& records);

    template <class T>
    void assignKind(Records<T>& records, vxAssign& a, long series, const std::vector<long>& items,
                    const wchar_t* addMethod);
    template <class T>
    void assignSeries(Records<T>& records, vxAssign& a, long series, const std::vector<long>& items,
                      const wchar_t* addMethod);
    template <class T>
    T* addStyle(Records<T>& records, long series, const std::vector<long>& items, const T& base,
                const wchar_t* method);
    template <class T>
    void assignAll(Records<T>& records, vxAssign& a);
    // The record takes the call from `offset`; false, with its error, when
    // it fails.
    bool assignTo(vxStyle& style, vxAssign& a, long offset);
    void assignStacked(vxAssign& a);
    void assignLabelBackgroundOptions(vxAssign& a);
    bool tooManyStyles();
    void raiseOutOfRange(const vxAssign& a);
    bool isLabelCall(long fn) const;

    vxUserSettings* owner;  // not owned
    long maxNumOfStyles = kNoLimit;
    long numOfStyles = 0;
    Records<vxBarStyle> barStyles;
    Records<vxSymbolStyle> symbolStyles;
    Records<vxLineStyle> lineStyles;
    Records<vxBorderStyle> borderStyles;
    Records<vxFillStyle> fillStyles;
    Records<vxArrowStyle> arrowStyles;
    Records<vxShadowStyle> shadowStyles;
    Records<vxLabelStyle> labelStyles;
    std::unique_ptr<vxLabelStyle> stackedLabelStyle;
};

}  // namespace Velarix
