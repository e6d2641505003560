#pragma once

#include <cstddef>

namespace Zelto {

// The cipher key is the first 32 bytes of the pass phrase (its key part), filled up to 32
// bytes with salt when the pass phrase is shorter.
constexpr size_t kCipherKeySize = 32;
constexpr size_t kCipherBlockSize = 16;

inline size_t key_part_size(size_t pass_phrase_size) {
    return pass_phrase_size < kCipherKeySize ? pass_phrase_size : kCipherKeySize;
}

inline size_t salt_size(size_t pass_phrase_size) {
    return kCipherKeySize - key_part_size(pass_phrase_size);
}

}  // namespace Zelto
