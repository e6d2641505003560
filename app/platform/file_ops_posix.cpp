#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <ctime>
#include <string>

#include "app/zlFileOps.h"
#include "core/dm_convert.h"

namespace Zelto {

using dunmar::dm_string;

namespace {

bool nativePath(const dm_string& path, std::string& out) {
    bool complete = false;
    out = dunmar::utf16_to_utf8(path.c_str(), path.length(), &complete);
    return complete && !out.empty();
}

bool writeAll(int fd, const char* data, ssize_t size) {
    while (size > 0) {
        const ssize_t n = write(fd, data, static_cast<size_t>(size));
        if (n < 0 && errno == EINTR)
            continue;
        if (n <= 0)
            return false;
        data += n;
        size -= n;
    }
    return true;
}

}  // namespace

bool zlCopyFile(const dm_string& source, const dm_string& destination, bool overwrite) {
    if (source.equals(destination))
        return true;
    std::string from, to;
    if (source.empty() || destination.empty())
        return false;
    if (!nativePath(source, from) || !nativePath(destination, to))
        return false;
    const int in = open(from.c_str(), O_RDONLY);
    if (in < 0)
        return false;
    struct stat st;
    if (fstat(in, &st) != 0 || !S_ISREG(st.st_mode)) {
        close(in);
        return false;
    }
    // Without overwrite the destination must not exist: O_EXCL makes that one atomic step.
    const int flags = O_WRONLY | O_CREAT | (overwrite ? O_TRUNC : O_EXCL);
    const int out = open(to.c_str(), flags, 0600);
    if (out < 0) {
        close(in);
        return false;
    }
    bool ok = true;
    char buffer[65536];
    for (;;) {
        const ssize_t n = read(in, buffer, sizeof buffer);
        if (n < 0 && errno == EINTR)
            continue;
        if (n < 0)
            ok = false;
        if (n <= 0)
            break;
        if (!writeAll(out, buffer, n)) {
            ok = false;
            break;
        }
    }
    close(in);
    if (close(out) != 0)
        ok = false;
    return ok;
}

bool zlDeleteFile(const dm_string& path) {
    std::string name;
    if (!nativePath(path, name))
        return false;
    if (unlink(name.c_str()) == 0)
        return true;
    return errno == ENOENT;
}

zlLocalTime zlNow() {
    timespec ts{};
    clock_gettime(CLOCK_REALTIME, &ts);
    std::tm tm{};
    localtime_r(&ts.tv_sec, &tm);
    zlLocalTime t;
    t.year = tm.tm_year + 1900;
    t.month = tm.tm_mon + 1;
    t.day = tm.tm_mday;
    t.hour = tm.tm_hour;
    t.minute = tm.tm_min;
    t.second = tm.tm_sec;
    t.millisecond = static_cast<int>(ts.tv_nsec / 1000000);
    return t;
}

}  // namespace Zelto
