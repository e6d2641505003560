#pragma once

#include <cstddef>
#include <cstdint>

#include "core/dm_string.h"
#include "core/dm_utf8_str.h"

namespace dunmar {

// The file steps of a safe save, each its own call so that a test can make any one fail.
// One implementation per platform; failures are results, never exceptions.
class dm_file_layer {
  public:
    using handle = std::intptr_t;
    static constexpr handle no_file = -1;

    virtual ~dm_file_layer() = default;

    // Creates path for writing, emptying a file left there; no_file on failure.
    virtual handle create(const dm_string& path) = 0;
    // True only when all size bytes were written.
    virtual bool write(handle file, const char* data, size_t size) = 0;
    // Forces what was written onto the disk.
    virtual bool flush(handle file) = 0;
    virtual bool close(handle file) = 0;
    // Puts from in the place of to in one step and makes that last. Without overwrite an
    // existing to makes it fail.
    virtual bool rename(const dm_string& from, const dm_string& to, bool overwrite) = 0;
    virtual void remove(const dm_string& path) = 0;

    // The layer every save goes through: the system's unless a test set another (null
    // restores the system's). Process-wide.
    static dm_file_layer& current();
    static void set_current(dm_file_layer* layer);
    static dm_file_layer& system();
};

// Writes text to path + ".new", flushes it to the disk and only then puts it in the place
// of path. Any failure leaves path as it was, removes the new file and gives false. Without
// overwrite an existing path is a failure.
bool dm_save_file(const dm_string& path, const dm_utf8_str& text, bool overwrite = true);

// The name dm_save_file writes to first.
dm_string dm_save_file_temp(const dm_string& path);

}  // namespace dunmar
