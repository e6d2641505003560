#include <sys/stat.h>
#include <sys/types.h>
#include <unistd.h>

#include <cstdio>
#include <string>

#include "core/dm_system.h"
#include "core/platform/native_path_posix.h"
#include "core/platform/system_platform.h"

namespace dunmar {
namespace platform {

std::FILE* open_file(const dm_string& path, file_mode mode) {
    std::string name;
    if (!native_path(path, name))
        return nullptr;
    std::FILE* file = std::fopen(name.c_str(), mode == file_mode::read ? "rb" : "wb");
    if (file == nullptr)
        return nullptr;
    // A directory opens for reading here but not on Windows; refuse it on both.
    struct stat status;
    if (fstat(fileno(file), &status) != 0 || S_ISDIR(status.st_mode)) {
        std::fclose(file);
        return nullptr;
    }
    return file;
}

}  // namespace platform

bool dm_system::file_exists(const dm_string& path) {
    std::string name;
    if (!platform::native_path(path, name))
        return false;
    if (access(name.c_str(), F_OK) != 0)
        return false;
    struct stat status;
    if (stat(name.c_str(), &status) != 0)
        return false;
    // Exact comparison on purpose: only a bare directory flag is refused.
    return status.st_mode != S_IFDIR;
}

bool dm_system::get_this_exe_path(dm_string& out) {
    constexpr size_t kCapacity = 5200;
    char buffer[kCapacity] = {};
    const ssize_t read = readlink("/proc/self/exe", buffer, kCapacity);
    out.clear();
    if (read < 0 || static_cast<size_t>(read) >= kCapacity)
        return false;
    bool complete = false;
    const dm_wstring wide = utf8_to_utf16(buffer, static_cast<size_t>(read), &complete);
    if (!complete || wide.size() < 4 || wide.size() >= kCapacity)
        return false;
    out = dm_string(wide);
    return true;
}

}  // namespace dunmar
