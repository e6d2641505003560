#pragma once

#include "core/dm_string.h"

namespace Zelto {

// Copies source to destination. True at once when both paths are equal (nothing is
// touched); false when either is empty. Without overwrite an existing destination fails.
bool zlCopyFile(const dunmar::dm_string& source, const dunmar::dm_string& destination,
                bool overwrite);

// Removes a file; true when it is gone afterwards (also when it never was there).
bool zlDeleteFile(const dunmar::dm_string& path);

// Local date and time to the millisecond.
struct zlLocalTime {
    int year = 0, month = 0, day = 0, hour = 0, minute = 0, second = 0, millisecond = 0;
};
zlLocalTime zlNow();

}  // namespace Zelto
