#include "crypto/value_decipher.h"

#include <cstdint>
#include <cstring>

#include "crypto/aes256.h"
#include "crypto/cipher_key.h"
#include "crypto/secure_wipe.h"

namespace Zelto {

namespace {

// Turns code pairs into bytes at the front of `bytes` (room for size / 2); returns the count.
size_t decode_pairs(const zlCodeIndex& index, const char* text, size_t size, uint8_t* bytes) {
    size_t count = 0;
    for (size_t i = 0; i + 1 < size; i += 2) {
        const int byte = index.find(text[i], text[i + 1]);
        if (byte >= 0) {
            bytes[count++] = static_cast<uint8_t>(byte);
        }
    }
    return count;
}

// Deciphers the binary form in `data` in place and returns the number of plain bytes at its
// front. Each plain byte lies before the block it came from, so writing never overtakes reading.
bool decipher_in_place(const std::string& pass_phrase, uint8_t* data, size_t count,
                       size_t& plain_size) {
    plain_size = 0;
    const size_t key_part = key_part_size(pass_phrase.size());
    const size_t salt = salt_size(pass_phrase.size());
    if (count < salt + 1) {
        return true;
    }

    uint8_t key[kCipherKeySize];
    std::memcpy(key, pass_phrase.data(), key_part);
    std::memcpy(key + key_part, data, salt);
    zlAes256 aes;
    const bool keyed = aes.set_key(key);
    secure_wipe(key, sizeof key);
    if (!keyed) {
        return false;
    }

    // Unsigned on purpose: a corrupt padding count wraps it below zero, and every further byte
    // then passes. Bytes after the last whole block still count towards it.
    size_t remaining = count - salt;
    remaining -= static_cast<size_t>(data[salt]) + 1;

    uint8_t block[kCipherBlockSize];
    bool ok = true;
    for (size_t at = salt + 1; ok && count - at >= kCipherBlockSize; at += kCipherBlockSize) {
        std::memcpy(block, data + at, kCipherBlockSize);
        ok = aes.decrypt_block(block);
        const size_t take = remaining < kCipherBlockSize ? remaining : kCipherBlockSize;
        if (ok && take != 0) {
            std::memcpy(data + plain_size, block, take);
            plain_size += take;
            remaining -= take;
        }
    }
    secure_wipe(block, sizeof block);
    return ok;
}

}  // namespace

bool decipher_value(const std::string& pass_phrase, const zlCodeIndex& index, const char* text,
                    size_t size, std::string& plain) {
    plain.resize(size / 2);
    uint8_t* data = reinterpret_cast<uint8_t*>(&plain[0]);
    const size_t count = size < 2 ? 0 : decode_pairs(index, text, size, data);
    size_t plain_size = 0;
    const bool ok = count != 0 ? decipher_in_place(pass_phrase, data, count, plain_size) : true;
    if (!ok) {
        secure_wipe(data, plain_size);
        plain_size = 0;
    }
    // What lies beyond the plain bytes is cipher text, nothing secret.
    plain.resize(plain_size);
    return ok;
}

}  // namespace Zelto
