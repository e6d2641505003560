#pragma once

#include <cstdio>

#include "core/dm_string.h"

// The few system calls behind dm_system; one implementation per platform.
namespace dunmar::platform {

enum class file_mode { read, write };

// Opens for binary reading, or for binary writing with truncation. Null on failure,
// including a path that cannot be represented on this system.
std::FILE* open_file(const dm_string& path, file_mode mode);

}  // namespace dunmar::platform
