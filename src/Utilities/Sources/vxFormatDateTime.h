// Dates and times as text. A date specifier is free text in which the
// tokens of vxDateFormatTokens.h are replaced by the items of the value
// ("D.M.YYYY h:mm" gives "5.1.2004 9:05"); all else is copied. A specifier
// that holds no token is error 2002 at "vxFormatDateTime/setFormat/2".
//
// The value is in the stored form of vxDateTime; its magnitude is printed,
// so the mark of a date written with a time does not show. Without a date
// (or with components that make no date of the calendar) the date tokens
// print nothing, and a specifier without hour, minute, second or
// millisecond tokens prints nothing at all. Names, separators, the date
// order and the first day of the week come from the format settings, which
// are read at every use.
#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

#include "Utilities/Sources/vxFormat.h"

namespace Velarix {

class vxFormatSettings;

class vxFormatDateTime : public vxFormat {
public:
    // The interval kinds of a date axis, as its scaling keeps them: the
    // value of the `Scaling` keyword less one ("year" -1 is kind -2).
    enum Interval : short {
        kYearInterval = -2,
        kQuarterInterval = -3,
        kMonthInterval = -4,
        kWeekInterval = -5,
        kDayInterval = -6,
        kHourInterval = -7,
    };

    // Values whose whole part reaches this lie beyond the years a short can
    // hold: they print nothing.
    static constexpr double kBeyondTheCalendar = 13000000.0;

    // The settings stay the caller's; without them the defaults are used.
    explicit vxFormatDateTime(const vxFormatSettings* settings);
    ~vxFormatDateTime() override;

    // The format a value is written in when none is given: the date items
    // in the order, forms and separator of the settings, and a time of
    // hours and minutes, with seconds and milliseconds where the values have
    // them. A date with a time joins the two with a blank. The text reads
    // back through vxDateTime::parse with the order of the settings.
    std::wstring getDefaultFormat(double value) const;
    // One format for all values: a date part when one has a date or the mark
    // of a date with a time, a time part when one has a time, the mark, or
    // no value has a date; seconds and digits of milliseconds as the most
    // exact value needs them.
    std::wstring getDefaultFormat(const std::vector<double>& values) const;
    // The labels of the ticks of a date axis. Order 1, the major ticks: by
    // the major interval "YYYY", "Q/YYYY", "M/YYYY", "WY/YYYY", otherwise the
    // format of the values. Order 2, the minor ticks, for these pairs of
    // major and minor interval only: year and quarter "Q", year and month
    // "Mo", month and day "D", week and day "WD1", day and hour "h:mm";
    // other pairs and orders get no labels (the empty text).
    std::wstring getDefaultFormat(const std::vector<double>& values, short majorBase,
                                  short minorBase, short order) const;

    // The time from one stored value to the other: whole days when neither
    // has a time, else the hours ("50:30"), with ":ss" and ".zzz" where they
    // are not 0.
    std::wstring getDurationString(double first, double second) const;
    // The same by a format, which is kept as setFormat keeps it: its year
    // and month are 0 and its day is the number of whole days.
    std::wstring getDurationString(double first, double second, const std::wstring& format);

    // Whether the specifier holds an hour, minute, second or millisecond
    // token.
    static bool isTimeFormat(const std::wstring& specifier);

    void dump(short depth, std::ostream& out) const override;

protected:
    short checkSpecifier(const std::wstring& specifier) const override;
    const wchar_t* checkMethod() const override { return L"setFormat"; }
    void keepSpecifier() override;
    void appendValue(double value, std::wstring& out) override;
    bool printsValue(double value) const override;

private:
    // A run of the specifier: a token, or text to copy (token -1).
    struct Piece {
        short token;
        std::size_t start;
        std::size_t length;
    };
    // The items that a value prints. Date numbers show with `showsDate`;
    // names, weekdays, weeks, days of the year and quarters need a date of
    // the calendar as well.
    struct Items {
        long year = 0;
        short month = 0;
        long day = 0;
        short hour = 0;
        short minute = 0;
        short second = 0;
        short millisecond = 0;
        bool showsDate = false;
        bool showsCalendar = false;
    };

    static Items itemsOf(double value);
    // At least `width` digits, with zeros in front.
    static void appendNumber(long n, int width, std::wstring& out);
    static Items durationOf(double first, double second);

    const vxFormatSettings& getSettings() const { return *settings; }
    void appendPieces(const Items& date, std::wstring& out) const;
    void appendToken(const Items& date, short token, std::wstring& out) const;
    void appendTimeToken(const Items& date, short token, std::wstring& out) const;
    void appendDateNumber(const Items& date, short token, std::wstring& out) const;
    void appendCalendarToken(const Items& date, short token, std::wstring& out) const;
    void appendWeekdayToken(const Items& date, short token, std::wstring& out) const;
    void appendMonthToken(const Items& date, short token, std::wstring& out) const;
    std::wstring defaultFormatOf(const double* values, std::size_t count) const;
    std::wstring datePart() const;
    std::wstring timePart(bool seconds, short millisecondDigits) const;

    const vxFormatSettings* settings;
    std::unique_ptr<vxFormatSettings> ownSettings;
    std::vector<Piece> pieces;
    bool keptTimeFormat = false;
};

}  // namespace Velarix
