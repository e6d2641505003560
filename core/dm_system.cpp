#include "core/dm_system.h"

#include <cstdio>
#include <algorithm>

#include "core/platform/system_platform.h"

namespace dunmar {

bool dm_system::file_readable(const dm_string& path) {
    std::FILE* file = path.empty() ? nullptr : platform::open_file(path, platform::file_mode::read);
    if (file == nullptr)
        return false;
    std::fclose(file);
    return true;
}

bool dm_system::file_size(const dm_string& path, unsigned long long& size) {
    size = 0;
    std::FILE* file = path.empty() ? nullptr : platform::open_file(path, platform::file_mode::read);
    if (file == nullptr)
        return false;
    bool ok = false;
    if (std::fseek(file, 0, SEEK_END) == 0) {
        const long end = std::ftell(file);
        ok = end >= 0;
        if (ok)
            size = static_cast<unsigned long long>(end);
    }
    std::fclose(file);
    return ok;
}

bool dm_system::read_file(const dm_string& path, dm_utf8_str& out) {
    out.clear();
    if (path.empty())
        return false;
    std::FILE* file = platform::open_file(path, platform::file_mode::read);
    if (file == nullptr)
        return false;
    bool ok = false;
    if (std::fseek(file, 0, SEEK_END) == 0) {
        const long size = std::ftell(file);
        if (size == 0) {
            ok = true;
        } else if (size > 0 && std::fseek(file, 0, SEEK_SET) == 0) {
            std::string bytes(static_cast<size_t>(size), '\0');
            ok = std::fread(&bytes[0], 1, bytes.size(), file) == bytes.size();
            // The content is taken as zero-terminated text.
            if (ok)
                out.append(bytes.c_str());
        }
    }
    std::fclose(file);
    return ok;
}

bool dm_system::write_file(const dm_string& path, const dm_utf8_str& text) {
    if (path.empty())
        return false;
    std::FILE* file = platform::open_file(path, platform::file_mode::write);
    if (file == nullptr)
        return false;
    bool ok = true;
    if (!text.empty()) {
        // Unbuffered, so that the single write goes straight to the file.
        std::setvbuf(file, nullptr, _IONBF, 0);
        ok = std::fwrite(text.c_str(), 1, text.length(), file) == text.length();
    }
    if (std::fclose(file) != 0)
        ok = false;
    return ok;
}

bool dm_system::get_this_exe_dir(dm_string& out) {
    dm_string exe;
    if (!get_this_exe_path(exe)) {
        out.clear();
        return false;
    }
    return dir_of_path(exe, out);
}

bool dm_system::dir_of_path(const dm_string& path, dm_string& out) {
    const long cut = std::max(path.find_last(DM_W('\\')), path.find_last(DM_W('/')));
    if (cut < 0) {
        out.clear();
        return false;
    }
    out = path.substring(0, cut + 1);
    return true;
}

}  // namespace dunmar
