#include "app/zlSettingsRules.h"

#include <climits>

namespace Zelto {

using dunmar::dm_wchar;

namespace {

bool isBlank(dm_wchar c) {
    return c == ' ' || (c >= '\t' && c <= '\r');
}

int32_t clamp(long seconds, long lowest, long highest) {
    if (seconds < lowest)
        return 0;
    if (seconds > highest)
        return static_cast<int32_t>(highest);
    return static_cast<int32_t>(seconds);
}

}  // namespace

long zlSecondsFromText(const dunmar::dm_string& text) {
    const dm_wchar* p = text.c_str();
    while (isBlank(*p))
        ++p;
    bool negative = false;
    if (*p == '+' || *p == '-') {
        negative = *p == '-';
        ++p;
    }
    // Counted towards the negative side, which reaches one further than the positive.
    long value = 0;
    for (; *p >= '0' && *p <= '9'; ++p) {
        const long digit = *p - '0';
        if (value < (LONG_MIN + digit) / 10) {
            value = LONG_MIN;
            while (*p >= '0' && *p <= '9')
                ++p;
            break;
        }
        value = value * 10 - digit;
    }
    if (negative)
        return value;
    return value == LONG_MIN ? LONG_MAX : -value;
}

int32_t zlClampAutoSeconds(long seconds) {
    return clamp(seconds, 5, 600);
}

int32_t zlClampShowSelectedSeconds(long seconds) {
    return clamp(seconds, 1, 30);
}

}  // namespace Zelto
