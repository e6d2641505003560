#pragma once

#include "core/dm_string.h"

namespace dunmar {

// A new GUID from the system as "XXXXXXXX-XXXX-XXXX-XXXX-XXXXXXXXXXXX". On failure returns
// false and leaves `out` empty.
bool dm_new_guid_text(dm_string& out);

}  // namespace dunmar
