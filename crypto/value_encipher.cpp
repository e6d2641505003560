#include "crypto/value_encipher.h"

#include <cstdint>
#include <cstring>

#include "crypto/aes256.h"
#include "crypto/cipher_key.h"
#include "crypto/secure_wipe.h"

namespace Zelto {

namespace {

inline char* put_code(char* out, const char (&codes)[kCodeTableSize][kCodeSize], uint8_t byte) {
    out[0] = codes[byte][0];
    out[1] = codes[byte][1];
    return out + 2;
}

}  // namespace

bool encipher_value(const std::string& pass_phrase, const char (&codes)[kCodeTableSize][kCodeSize],
                    zlSaltRandom& salt_source, const char* plain, size_t size, std::string& text) {
    const size_t key_part = key_part_size(pass_phrase.size());
    const size_t salt = salt_size(pass_phrase.size());
    const size_t blocks = (size + kCipherBlockSize - 1) / kCipherBlockSize;
    const uint8_t padding =
        static_cast<uint8_t>((kCipherBlockSize - size % kCipherBlockSize) % kCipherBlockSize);

    text.resize(2 * (salt + 1 + blocks * kCipherBlockSize));
    char* out = &text[0];

    uint8_t key[kCipherKeySize];
    for (size_t i = 0; i < key_part; ++i) {
        key[i] = static_cast<uint8_t>(pass_phrase[i]);
    }
    // A local copy keeps the generator's state out of memory that the text writes may alias.
    zlSaltRandom random = salt_source;
    for (size_t i = 0; i < salt; ++i) {
        key[key_part + i] = random.next_byte();
        out = put_code(out, codes, key[key_part + i]);
    }
    salt_source = random;
    out = put_code(out, codes, padding);

    zlAes256 aes;
    bool ok = aes.set_key(key);
    secure_wipe(key, sizeof key);

    uint8_t block[kCipherBlockSize];
    for (size_t b = 0; ok && b < blocks; ++b) {
        const size_t start = b * kCipherBlockSize;
        const size_t take = size - start < kCipherBlockSize ? size - start : kCipherBlockSize;
        std::memcpy(block, plain + start, take);
        std::memset(block + take, 0, kCipherBlockSize - take);
        ok = aes.encrypt_block(block);
        for (size_t i = 0; ok && i < kCipherBlockSize; ++i) {
            out = put_code(out, codes, block[i]);
        }
    }
    secure_wipe(block, sizeof block);
    if (!ok) {
        text.clear();
    }
    return ok;
}

}  // namespace Zelto
