#include "Utilities/Sources/vxDateTime.h"

#include <time.h>
#include <cmath>
#include <limits>
#include <new>

#include "host/vxLog.h"

namespace Velarix {

namespace {

constexpr long long kMsPerDay = 86400000;
constexpr double kEpsilon = std::numeric_limits<double>::epsilon();
// The last day a short year can name: 31 December 32767.
constexpr long long kMaxJulianDay = 13689325;

// Division rounded down, for b > 0.
long long floorDiv(long long a, long long b) {
    return a >= 0 ? a / b : -((b - 1 - a) / b);
}

long long floorMod(long long a, long long b) {
    return a - floorDiv(a, b) * b;
}

// A stored value taken apart into whole days and milliseconds. The end of
// a day alone (1.0) is day 0 with a full day of milliseconds. Whole parts
// beyond the calendar's reach are held at its ends.
struct DaysAndMs {
    long long days = 0;
    long long ms = 0;
};

DaysAndMs split(double value) {
    const double magnitude = std::fabs(value);
    if (std::fabs(magnitude - 1.0) < kEpsilon) return {0, kMsPerDay};
    if (!(magnitude < double(kMaxJulianDay + 1))) {
        return {std::isnan(magnitude) ? 0 : kMaxJulianDay, 0};
    }
    const double whole = std::floor(magnitude);
    return {static_cast<long long>(whole), std::llround((magnitude - whole) * 1e8)};
}

double compose(long long days, long long ms) {
    return double(days) + double(ms) * 1e-8;
}

long long timeMs(const vxDateTime::Components& c) {
    using DT = vxDateTime;
    return ((c[DT::kHour] * 60LL + c[DT::kMinute]) * 60 + c[DT::kSecond]) * 1000 +
           c[DT::kMillisecond];
}

void setTimeComponents(long long ms, vxDateTime::Components& out) {
    using DT = vxDateTime;
    out[DT::kMillisecond] = short(ms % 1000);
    out[DT::kSecond] = short(ms / 1000 % 60);
    out[DT::kMinute] = short(ms / 60000 % 60);
    out[DT::kHour] = short(ms / 3600000);
}

// The civil date of a Julian Day Number, by the integer inverse that
// Fliegel and Van Flandern published.
void setDateComponents(long long julianDay, vxDateTime::Components& out) {
    long long l = julianDay + 68569;
    const long long n = 4 * l / 146097;
    l -= (146097 * n + 3) / 4;
    const long long i = 4000 * (l + 1) / 1461001;
    l = l - 1461 * i / 4 + 31;
    const long long j = 80 * l / 2447;
    const long long g = j / 11;
    out[vxDateTime::kDay] = short(l - 2447 * j / 80);
    out[vxDateTime::kMonth] = short(j + 2 - 12 * g);
    out[vxDateTime::kYear] = short(100 * (n - 49) + i + g);
}

// The year of the clock is read again once a minute at most, so that the
// date test doesn't ask the time zone for every token.
long fixedYear = 0;
long clockYear = 0;
time_t clockYearReadAt = 0;

long readClockYear() {
    const time_t now = time(nullptr);
    if (clockYear != 0 && now >= clockYearReadAt && now - clockYearReadAt < 60) return clockYear;
    struct tm local {};
    if (localtime_r(&now, &local) == nullptr) return clockYear != 0 ? clockYear : 2000;
    clockYear = local.tm_year + 1900L;
    clockYearReadAt = now;
    return clockYear;
}

}  // namespace

vxDateTime::vxDateTime() : vxPrimitive(L"vxDateTime") {}

vxDateTime::vxDateTime(double v) : vxPrimitive(L"vxDateTime"), value(v), hasValue(true) {}

std::unique_ptr<vxPrimitive> vxDateTime::clone() const {
    auto copy = std::make_unique<vxDateTime>();
    copy->components = components;
    copy->value = value;
    copy->hasComponents = hasComponents;
    copy->hasValue = hasValue;
    return copy;
}

void vxDateTime::dump(short depth, std::ostream& out) const {
    vxDumpHeader(out, vxNarrow(className));
    try {
        vxDumpLine(out, "vector<short> components: ",
                   std::vector<short>(components.begin(), components.end()));
    } catch (const std::bad_alloc&) {
        // The log does without the line.
    }
    vxDumpLine(out, "double value: ", value);
    vxDumpLine(out, "bool hasComponents: ", hasComponents);
    vxDumpLine(out, "bool hasValue: ", hasValue);
    vxDumpEnd(out);
}

void vxDateTime::init() {
    components.fill(0);
    value = 0.0;
    hasComponents = false;
    hasValue = false;
}

// ---------------------------------------------------------------------------
// The lazy pair

void vxDateTime::updateValue() {
    value = hasComponents ? toValue(components) : 0.0;
    hasValue = true;
}

void vxDateTime::updateComponents() {
    if (hasValue) {
        toComponents(value, components);
    } else {
        components.fill(0);
    }
    hasComponents = true;
}

double vxDateTime::getValue() {
    if (!hasValue) updateValue();
    return value;
}

long vxDateTime::getWholeDays() {
    const double v = getValue();
    return hasDate(v) ? long(split(v).days) : 0;
}

void vxDateTime::getComponents(Components& out) {
    if (!hasComponents) updateComponents();
    out = components;
}

void vxDateTime::getComponents(std::vector<short>& out) {
    if (!hasComponents) updateComponents();
    out.assign(components.begin(), components.end());
}

short vxDateTime::getComponent(Component index) {
    if (!hasComponents) updateComponents();
    return components[index];
}

short vxDateTime::getYear() {
    return getComponent(kYear);
}
short vxDateTime::getMonth() {
    return getComponent(kMonth);
}
short vxDateTime::getDay() {
    return getComponent(kDay);
}
short vxDateTime::getHour() {
    return getComponent(kHour);
}
short vxDateTime::getMinute() {
    return getComponent(kMinute);
}
short vxDateTime::getSecond() {
    return getComponent(kSecond);
}
short vxDateTime::getMillisecond() {
    return getComponent(kMillisecond);
}

bool vxDateTime::hasDate() {
    if (hasValue) return hasDate(value);
    return components[kYear] != 0 || components[kMonth] != 0 || components[kDay] != 0;
}

bool vxDateTime::hasTime() {
    if (hasValue) return hasTime(value);
    return timeMs(components) != 0;
}

void vxDateTime::setValue(double v) {
    value = v;
    hasValue = true;
    hasComponents = false;
}

void vxDateTime::setComponents(const Components& c) {
    components = c;
    hasComponents = true;
    hasValue = false;
}

void vxDateTime::setComponents(const std::vector<short>& c) {
    components.fill(0);
    for (size_t i = 0; i < c.size() && i < components.size(); ++i) components[i] = c[i];
    components[kSpare] = 0;
    hasComponents = true;
    hasValue = false;
}

void vxDateTime::setDate(short year, short month, short day) {
    setComponents(Components{year, month, day, 0, 0, 0, 0, 0});
}

// ---------------------------------------------------------------------------
// Arithmetic. Both keep the mark of a date written with a time.

void vxDateTime::addDays(long days) {
    const double v = getValue();
    if (!hasDate(v)) return;
    const DaysAndMs parts = split(v);
    const double sum = compose(parts.days + days, parts.ms);
    setValue(v < 0 ? -sum : sum);
}

void vxDateTime::addTime(long hours, long minutes, long seconds, long milliseconds) {
    const double v = getValue();
    DaysAndMs parts = split(v);
    long long ms = ((hours * 60LL + minutes) * 60 + seconds) * 1000 + milliseconds + parts.ms;
    if (hasDate(v)) parts.days += floorDiv(ms, kMsPerDay);
    parts.ms = floorMod(ms, kMsPerDay);
    const double sum = compose(parts.days, parts.ms);
    setValue(v < 0 ? -sum : sum);
}

// ---------------------------------------------------------------------------
// Stored values

bool vxDateTime::hasDate(double v) {
    return std::fabs(v) > 1.0 + kEpsilon;
}

bool vxDateTime::hasTime(double v) {
    const double magnitude = std::fabs(v);
    if (std::fabs(magnitude - 1.0) < kEpsilon) return true;
    return magnitude != std::floor(magnitude);
}

double vxDateTime::toPlainDays(double stored) {
    const double whole = std::floor(stored);
    return whole + (stored - whole) / kStoredDay;
}

double vxDateTime::toStoredForm(double plainDays) {
    const double whole = std::floor(plainDays);
    return whole + (plainDays - whole) * kStoredDay;
}

double vxDateTime::toValue(const Components& c) {
    long long ms = timeMs(c);
    if (c[kYear] == 0 && c[kMonth] == 0 && c[kDay] == 0) {
        // A time alone is stored as written; 24:00 is the end of the day.
        return ms == kMsPerDay ? 1.0 : double(ms) * 1e-8;
    }
    const long long days = julianDay(c[kYear], c[kMonth], c[kDay]) + floorDiv(ms, kMsPerDay);
    return compose(days, floorMod(ms, kMsPerDay));
}

void vxDateTime::toComponents(double v, Components& out) {
    out.fill(0);
    DaysAndMs parts = split(v);
    if (hasDate(v)) {
        parts.days += parts.ms / kMsPerDay;
        parts.ms %= kMsPerDay;
        setDateComponents(parts.days, out);
    }
    setTimeComponents(parts.ms, out);
}

// ---------------------------------------------------------------------------
// Calendar helpers

bool vxDateTime::isLeapYear(long year) {
    return (year % 4 == 0 && year % 100 != 0) || year % 400 == 0;
}

short vxDateTime::daysInMonth(long year, short month) {
    static constexpr short kLengths[12] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    if (month < 1 || month > 12) return 0;
    return short(kLengths[month - 1] + (month == 2 && isLeapYear(year) ? 1 : 0));
}

bool vxDateTime::isValidDate(long year, short month, short day) {
    return day >= 1 && day <= daysInMonth(year, month);
}

short vxDateTime::dayOfYear(long year, short month, short day) {
    static constexpr short kDaysBefore[2][12] = {
        {0, 31, 59, 90, 120, 151, 181, 212, 243, 273, 304, 334},
        {0, 31, 60, 91, 121, 152, 182, 213, 244, 274, 305, 335}};
    if (month < 1 || month > 12) return 0;
    return short(kDaysBefore[isLeapYear(year) ? 1 : 0][month - 1] + day);
}

short vxDateTime::weekday(long year, short month, short day) {
    // Julian Day 0 was a Monday.
    return short(floorMod(julianDay(year, month, day) + 2, 7));
}

short vxDateTime::weekOfYear(long year, short month, short day, short weekStart) {
    // The place of 1 January in its week, 0 for the week's first day.
    auto firstPlace = [weekStart](long y) {
        return short(floorMod((weekday(y, 1, 1) + 6) % 7 - weekStart, 7));
    };
    const short first = firstPlace(year);
    const short week = short((dayOfYear(year, month, day) - 1 + first) / 7 + (first < 4 ? 1 : 0));
    if (week == 0) return weekOfYear(year - 1, 12, 31, weekStart);
    if (week == 53 && firstPlace(year + 1) < 4) return 1;
    return week;
}

long vxDateTime::julianDay(long year, short month, short day) {
    // Months outside 1 to 12 count on into the years around.
    long long y = year + floorDiv(month - 1, 12);
    long long m = floorMod(month - 1, 12) + 1;
    if (m <= 2) {
        y -= 1;
        m += 13;
    } else {
        m += 1;
    }
    const long long century = floorDiv(y, 100);
    return long(floorDiv(1461 * y, 4) + 306001 * m / 10000 + day + 1720995 + 2 +
                floorDiv(century, 4) - century);
}

short vxDateTime::toHour12(short hour) {
    const short h = short(hour % 12);
    return h == 0 ? short(12) : h;
}

long vxDateTime::currentYear() {
    return fixedYear != 0 ? fixedYear : readClockYear();
}

void vxDateTime::setCurrentYear(long year) {
    fixedYear = year;
}

long vxDateTime::expandTwoDigitYear(long year) {
    const long current = currentYear();
    const long century = current / 100 * 100;
    return year > current % 100 + 30 ? century - 100 + year : century + year;
}

}  // namespace Velarix
