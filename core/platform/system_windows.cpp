#include <windows.h>

#include <io.h>
#include <sys/stat.h>
#include <sys/types.h>

#include <cstdio>

#include "core/dm_system.h"
#include "core/platform/system_platform.h"

namespace dunmar {

namespace platform {

std::FILE* open_file(const dm_string& path, file_mode mode) {
    return _wfopen(path.c_str(), mode == file_mode::read ? L"rb" : L"wb");
}

}  // namespace platform

bool dm_system::file_exists(const dm_string& path) {
    if (path.empty())
        return false;
    if (_waccess(path.c_str(), 0) != 0)
        return false;
    struct _stat64 status;
    if (_wstat64(path.c_str(), &status) != 0)
        return false;
    // Exact comparison on purpose: only a bare directory flag is refused.
    return status.st_mode != _S_IFDIR;
}

bool dm_system::get_this_exe_path(dm_string& out) {
    constexpr DWORD kCapacity = 5200;
    wchar_t buffer[kCapacity] = {};
    const DWORD length = GetModuleFileNameW(nullptr, buffer, kCapacity);
    if (length < 4 || length >= kCapacity) {
        out.clear();
        return false;
    }
    out.assign(buffer, length);
    return true;
}

}  // namespace dunmar
