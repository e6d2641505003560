#pragma once

#include <cstddef>

namespace Zelto {

// Overwrites key material with zeros in a way the optimiser may not drop.
inline void secure_wipe(void* data, size_t size) {
    volatile unsigned char* p = static_cast<volatile unsigned char*>(data);
    while (size--) {
        *p++ = 0;
    }
}

}  // namespace Zelto
