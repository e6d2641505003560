#pragma once

#include <cstddef>
#include <cstring>

namespace Zelto {

// Overwrites key material and plain text with zeros. The call goes through a volatile pointer,
// so the optimiser cannot drop it as a dead store.
inline void secure_wipe(void* data, size_t size) {
    static void* (*const volatile wipe)(void*, int, size_t) = std::memset;
    if (size != 0) {
        wipe(data, 0, size);
    }
}

}  // namespace Zelto
