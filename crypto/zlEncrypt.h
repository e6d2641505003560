#pragma once

#include <cstddef>
#include <string>

#include "core/dm_utf8_str.h"
#include "crypto/code_table.h"

namespace Zelto {

// Result codes of the cipher.
enum : int {
    kCipherOk = 0,
    kCipherPassPhraseUnusable = 1,  // pass phrase absent, shorter than 8 or longer than 128 bytes
    kCipherFailed = 2,              // the platform cipher failed; nothing was produced
};

// Holds the master password (its UTF-8 bytes) and turns secret values into printable text and
// back: AES-256 per 16-byte block under the pass phrase filled up to 32 bytes with salt, each
// byte written as a two-character code.
class zlEncrypt {
  public:
    static constexpr size_t kMinPassPhrase = 8;
    static constexpr size_t kMaxPassPhrase = 128;

    zlEncrypt();
    zlEncrypt(const zlEncrypt&) = default;
    zlEncrypt& operator=(const zlEncrypt&) = default;
    virtual ~zlEncrypt();

    // kCipherPassPhraseUnusable (the stored pass phrase unchanged) when `pass_phrase` is null or
    // its length is outside 8..128 bytes; else stores it and returns kCipherOk.
    int set_pass_phrase(const char* pass_phrase);
    const std::string& pass_phrase() const { return pass_phrase_; }

    // Both replace `out`; on any result other than kCipherOk `out` is empty. `out` may be the
    // same object as the input. An empty input gives an empty output and kCipherOk.
    int encrypt(const dunmar::dm_utf8_str& plain, dunmar::dm_utf8_str& out) const;
    // Never detects a wrong pass phrase or a damaged text: those give other bytes.
    int decrypt(const dunmar::dm_utf8_str& text, dunmar::dm_utf8_str& out) const;
    // Deciphers the stored text of one item into the value of another; codes as decrypt.
    int decrypt_item(const dunmar::dm_utf8_str& enciphered, dunmar::dm_utf8_str& plain_out) const;

    // The same on raw bytes.
    int encrypt_bytes(const char* plain, size_t size, std::string& out) const;
    int decrypt_bytes(const char* text, size_t size, std::string& out) const;

  private:
    bool pass_phrase_usable() const;

    std::string pass_phrase_;
    char code_table_[kCodeTableSize][kCodeSize];
};

}  // namespace Zelto
