#pragma once

#include "cloud/zlCloudResult.h"
#include "core/dm_string.h"

namespace Zelto {

// Longest partition or row key the service takes: 1 KiB of UTF-16.
constexpr size_t zlMaxTableKeyUnits = 512;

// Checks a value for use as partition or row key: at most 1 KiB; none of '/', '\\', '#',
// '?', the control characters U+0000..U+001F and U+007F..U+009F; no '%', which the service
// decodes a second time; well-formed UTF-16. An empty key is allowed. `what` names the
// value in the reason ("last name").
zlCloudResult zlCheckTableKey(const dunmar::dm_string& key, const char* what);

}  // namespace Zelto
