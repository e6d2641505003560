#include "cloud/zlHttpDate.h"

#include <cstdio>
#include <ctime>

namespace Zelto {

namespace {

// Proleptic Gregorian date of a day count since 1970-01-01 (days-from-civil inverted).
void civilFromDays(int64_t days, int64_t& year, unsigned& month, unsigned& day) {
    days += 719468;
    const int64_t era = (days >= 0 ? days : days - 146096) / 146097;
    const auto dayOfEra = static_cast<unsigned>(days - era * 146097);
    const unsigned yearOfEra =
        (dayOfEra - dayOfEra / 1460 + dayOfEra / 36524 - dayOfEra / 146096) / 365;
    const unsigned dayOfYear = dayOfEra - (365 * yearOfEra + yearOfEra / 4 - yearOfEra / 100);
    const unsigned monthIndex = (5 * dayOfYear + 2) / 153;
    day = dayOfYear - (153 * monthIndex + 2) / 5 + 1;
    month = monthIndex < 10 ? monthIndex + 3 : monthIndex - 9;
    year = static_cast<int64_t>(yearOfEra) + era * 400 + (month <= 2 ? 1 : 0);
}

}  // namespace

std::string zlHttpDate(int64_t unixSeconds) {
    static const char* const weekdays[] = {"Thu", "Fri", "Sat", "Sun", "Mon", "Tue", "Wed"};
    static const char* const months[] = {"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                         "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};
    int64_t days = unixSeconds / 86400;
    int64_t seconds = unixSeconds % 86400;
    if (seconds < 0) {
        seconds += 86400;
        --days;
    }
    int64_t year = 0;
    unsigned month = 0;
    unsigned day = 0;
    civilFromDays(days, year, month, day);
    const int64_t weekday = ((days % 7) + 7) % 7;  // 1970-01-01 was a Thursday
    char text[64];
    std::snprintf(text, sizeof text, "%s, %02u %s %04lld %02d:%02d:%02d GMT", weekdays[weekday],
                  day, months[month - 1], static_cast<long long>(year),
                  static_cast<int>(seconds / 3600), static_cast<int>(seconds / 60 % 60),
                  static_cast<int>(seconds % 60));
    return text;
}

std::string zlHttpDateNow() {
    return zlHttpDate(static_cast<int64_t>(std::time(nullptr)));
}

}  // namespace Zelto
