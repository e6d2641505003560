#include <cstdint>
#include <cstdio>

#include "core/dm_format.h"
#include "core/dm_guid.h"

namespace dunmar {

bool dm_new_guid_text(dm_string& out) {
    out.clear();
    uint8_t bytes[16] = {};
    std::FILE* source = std::fopen("/dev/urandom", "rb");
    if (source == nullptr)
        return false;
    const bool filled = std::fread(bytes, 1, sizeof bytes, source) == sizeof bytes;
    std::fclose(source);
    if (!filled)
        return false;
    dm_guid_set_version4(bytes);
    out = dm_string(dm_format_guid(dm_guid_from_bytes(bytes)));
    return true;
}

}  // namespace dunmar
