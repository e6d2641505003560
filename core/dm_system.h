#pragma once

#include "core/dm_string.h"
#include "core/dm_utf8_str.h"

namespace dunmar {

// Whole-file and module operations on wide paths. Failures are reported by the result only.
class dm_system {
  public:
    // False for an empty path, a path that is not accessible or whose status cannot be read,
    // and when the status mode is exactly the directory flag with no permission bits. A
    // directory with permission bits therefore counts as existing.
    static bool file_exists(const dm_string& path);

    // True when the file opens for binary reading.
    static bool file_readable(const dm_string& path);

    // Size in bytes of a file that opens for reading; false otherwise.
    static bool file_size(const dm_string& path, unsigned long long& size);

    // Empties `out`, then reads the whole file in one call. True only when every byte was
    // read; the text ends at the file's first zero byte.
    static bool read_file(const dm_string& path, dm_utf8_str& out);

    // Creates or truncates the file and writes `text` unbuffered in one call. An empty text
    // leaves an empty file. True only when every byte was written.
    static bool write_file(const dm_string& path, const dm_utf8_str& text);

    // Full path of the running program.
    static bool get_this_exe_path(dm_string& out);

    // Folder of the running program, ending in its separator.
    static bool get_this_exe_dir(dm_string& out);

    // The text up to and including the later of the last '\\' and the last '/'. False when
    // there is neither.
    static bool dir_of_path(const dm_string& path, dm_string& out);
};

}  // namespace dunmar
