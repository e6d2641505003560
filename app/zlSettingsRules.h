#pragma once

#include <cstdint>

#include "core/dm_string.h"

namespace Zelto {

// A number of seconds as typed: blanks skipped, an optional sign, then the leading decimal
// digits; no digits (or an empty text) give 0. Values beyond the range of long saturate.
long zlSecondsFromText(const dunmar::dm_string& text);

// Automatic lock and clipboard clearing: below 5 is off (0), above 600 is 600.
int32_t zlClampAutoSeconds(long seconds);

// Display of the selected key: below 1 is off (0), above 30 is 30.
int32_t zlClampShowSelectedSeconds(long seconds);

}  // namespace Zelto
