#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <string>

#include "core/dm_file_layer.h"
#include "core/dm_system.h"
#include "core/platform/native_path_posix.h"

namespace dunmar {

using platform::native_path;

namespace {

// A rename lasts only once its folder's entry is on the disk too.
void flush_folder_of(const dm_string& path) {
    dm_string folder;
    std::string name = ".";
    if (dm_system::dir_of_path(path, folder) && !native_path(folder, name))
        return;
    const int fd = open(name.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (fd < 0)
        return;
    fsync(fd);
    ::close(fd);
}

class posix_file_layer : public dm_file_layer {
  public:
    handle create(const dm_string& path) override {
        std::string name;
        if (!native_path(path, name))
            return no_file;
        // Only the user may read a key file.
        const int fd = open(name.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0600);
        return fd < 0 ? no_file : fd;
    }

    bool write(handle file, const char* data, size_t size) override {
        while (size > 0) {
            const ssize_t n = ::write(static_cast<int>(file), data, size);
            if (n < 0 && errno == EINTR)
                continue;
            if (n <= 0)
                return false;
            data += n;
            size -= static_cast<size_t>(n);
        }
        return true;
    }

    bool flush(handle file) override { return fsync(static_cast<int>(file)) == 0; }

    bool close(handle file) override { return ::close(static_cast<int>(file)) == 0; }

    bool rename(const dm_string& from, const dm_string& to, bool overwrite) override {
        std::string source, target;
        if (!native_path(from, source) || !native_path(to, target))
            return false;
        if (overwrite) {
            if (std::rename(source.c_str(), target.c_str()) != 0)
                return false;
        } else {
            // A link fails when the name is taken: no window in which a file there is lost.
            if (link(source.c_str(), target.c_str()) != 0)
                return false;
            unlink(source.c_str());
        }
        // The new name is in place; a failure to flush the folder cannot undo that.
        flush_folder_of(to);
        return true;
    }

    void remove(const dm_string& path) override {
        std::string name;
        if (native_path(path, name))
            unlink(name.c_str());
    }
};

}  // namespace

dm_file_layer& dm_file_layer::system() {
    static posix_file_layer layer;
    return layer;
}

}  // namespace dunmar
