#include <windows.h>

#include "core/dm_file_layer.h"

namespace dunmar {

namespace {

HANDLE native(dm_file_layer::handle file) {
    return reinterpret_cast<HANDLE>(file);
}

class windows_file_layer : public dm_file_layer {
  public:
    handle create(const dm_string& path) override {
        // Not shared: a second save at the same moment fails instead of mixing its bytes in.
        HANDLE file = CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS,
                                  FILE_ATTRIBUTE_NORMAL, nullptr);
        return file == INVALID_HANDLE_VALUE ? no_file : reinterpret_cast<handle>(file);
    }

    bool write(handle file, const char* data, size_t size) override {
        while (size > 0) {
            const DWORD chunk = size > 0x40000000u ? 0x40000000u : static_cast<DWORD>(size);
            DWORD written = 0;
            if (!WriteFile(native(file), data, chunk, &written, nullptr) || written == 0)
                return false;
            data += written;
            size -= written;
        }
        return true;
    }

    bool flush(handle file) override { return FlushFileBuffers(native(file)) != FALSE; }

    bool close(handle file) override { return CloseHandle(native(file)) != FALSE; }

    bool rename(const dm_string& from, const dm_string& to, bool overwrite) override {
        const DWORD flags = MOVEFILE_WRITE_THROUGH | (overwrite ? MOVEFILE_REPLACE_EXISTING : 0);
        return MoveFileExW(from.c_str(), to.c_str(), flags) != FALSE;
    }

    void remove(const dm_string& path) override { DeleteFileW(path.c_str()); }
};

}  // namespace

dm_file_layer& dm_file_layer::system() {
    static windows_file_layer layer;
    return layer;
}

}  // namespace dunmar
