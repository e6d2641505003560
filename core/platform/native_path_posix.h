#pragma once

#include <string>

#include "core/dm_convert.h"
#include "core/dm_string.h"

namespace dunmar::platform {

// UTF-8 file name of a wide path; false when part of it would be lost.
inline bool native_path(const dm_string& path, std::string& out) {
    bool complete = false;
    out = utf16_to_utf8(path.c_str(), path.length(), &complete);
    return complete && !out.empty();
}

}  // namespace dunmar::platform
