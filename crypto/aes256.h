#pragma once

#include <cstdint>

namespace Zelto {

// One AES-256 key and single 16-byte block operations under it, backed by the platform's
// cipher (Windows CNG or OpenSSL). The key is expanded once per direction after set_key, so a
// value of many blocks pays for one expansion.
class zlAes256 {
  public:
    static constexpr unsigned kKeySize = 32;
    static constexpr unsigned kBlockSize = 16;

    zlAes256();
    ~zlAes256();
    zlAes256(const zlAes256&) = delete;
    zlAes256& operator=(const zlAes256&) = delete;

    // False when the platform cipher is unavailable; the object then has no key.
    bool set_key(const uint8_t key[kKeySize]);

    // Both work in place; false (block untouched) without a key or when the platform fails.
    bool encrypt_block(uint8_t block[kBlockSize]);
    bool decrypt_block(uint8_t block[kBlockSize]);

  private:
    struct Impl;
    Impl* impl_;
};

}  // namespace Zelto
