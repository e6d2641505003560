#include "crypto/zlEncrypt.h"

#include "crypto/salt_random.h"
#include "crypto/secure_wipe.h"
#include "crypto/value_decipher.h"
#include "crypto/value_encipher.h"

namespace Zelto {

zlEncrypt::zlEncrypt() {
    for (unsigned i = 0; i < kCodeTableSize; ++i) {
        for (unsigned k = 0; k < kCodeSize; ++k) {
            code_table_[i][k] = kCodeTable[i][k];
        }
    }
}

zlEncrypt::~zlEncrypt() {
    if (!pass_phrase_.empty()) {
        secure_wipe(&pass_phrase_[0], pass_phrase_.size());
    }
}

int zlEncrypt::set_pass_phrase(const char* pass_phrase) {
    if (pass_phrase == nullptr) {
        return kCipherPassPhraseUnusable;
    }
    // Stop counting past the limit: the length beyond it does not matter.
    size_t size = 0;
    while (size <= kMaxPassPhrase && pass_phrase[size] != '\0') {
        ++size;
    }
    if (size < kMinPassPhrase || size > kMaxPassPhrase) {
        return kCipherPassPhraseUnusable;
    }
    if (!pass_phrase_.empty()) {
        secure_wipe(&pass_phrase_[0], pass_phrase_.size());
    }
    pass_phrase_.assign(pass_phrase, size);
    return kCipherOk;
}

bool zlEncrypt::pass_phrase_usable() const {
    return pass_phrase_.size() >= kMinPassPhrase && pass_phrase_.size() <= kMaxPassPhrase;
}

int zlEncrypt::encrypt_bytes(const char* plain, size_t size, std::string& out) const {
    out.clear();
    if (size == 0) {
        return kCipherOk;
    }
    if (!pass_phrase_usable()) {
        return kCipherPassPhraseUnusable;
    }
    return encipher_value(pass_phrase_, code_table_, process_salt_random(), plain, size, out)
               ? kCipherOk
               : kCipherFailed;
}

int zlEncrypt::decrypt_bytes(const char* text, size_t size, std::string& out) const {
    out.clear();
    if (!pass_phrase_usable()) {
        return kCipherPassPhraseUnusable;
    }
    return decipher_value(pass_phrase_, code_index(), text, size, out) ? kCipherOk : kCipherFailed;
}

int zlEncrypt::encrypt(const dunmar::dm_utf8_str& plain, dunmar::dm_utf8_str& out) const {
    std::string text;
    const int result = encrypt_bytes(plain.c_str(), plain.length(), text);
    out.swap_bytes(text);
    return result;
}

int zlEncrypt::decrypt(const dunmar::dm_utf8_str& text, dunmar::dm_utf8_str& out) const {
    std::string plain;
    const int result = decrypt_bytes(text.c_str(), text.length(), plain);
    out.swap_bytes(plain);
    secure_wipe(&plain[0], plain.size());  // what `out` held before, perhaps another secret
    return result;
}

int zlEncrypt::decrypt_item(const dunmar::dm_utf8_str& enciphered,
                            dunmar::dm_utf8_str& plain_out) const {
    return decrypt(enciphered, plain_out);
}

}  // namespace Zelto
