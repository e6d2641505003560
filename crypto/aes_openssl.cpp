// zlAes256 on OpenSSL's EVP interface (host builds).
#include "crypto/aes256.h"

#include <new>

#include <openssl/crypto.h>
#include <openssl/evp.h>

namespace Zelto {

namespace {

// Fetched once: an implicit fetch on every initialisation costs more than the cipher itself.
const EVP_CIPHER* aes_256_ecb() {
#if OPENSSL_VERSION_NUMBER >= 0x30000000L
    static const EVP_CIPHER* cipher = EVP_CIPHER_fetch(nullptr, "AES-256-ECB", nullptr);
    return cipher;
#else
    return EVP_aes_256_ecb();
#endif
}

// Contexts kept per thread for the next value: making a fresh one for every value costs
// about as much as the key expansion. A context is reset (its key material cleansed) before
// it is kept.
class ContextCache {
  public:
    ~ContextCache() {
        for (EVP_CIPHER_CTX* c : free_) {
            EVP_CIPHER_CTX_free(c);
        }
    }
    EVP_CIPHER_CTX* take() {
        if (count_ == 0) {
            return EVP_CIPHER_CTX_new();
        }
        return free_[--count_];
    }
    void give(EVP_CIPHER_CTX* c) {
        if (c == nullptr) {
            return;
        }
        if (count_ == kSlots || EVP_CIPHER_CTX_reset(c) != 1) {
            EVP_CIPHER_CTX_free(c);
            return;
        }
        free_[count_++] = c;
    }

  private:
    static constexpr unsigned kSlots = 4;
    EVP_CIPHER_CTX* free_[kSlots] = {};
    unsigned count_ = 0;
};

ContextCache& context_cache() {
    thread_local ContextCache cache;
    return cache;
}

}  // namespace

struct zlAes256::Impl {
    EVP_CIPHER_CTX* ctx[2] = {nullptr, nullptr};  // [0] decrypt, [1] encrypt
    bool ready[2] = {false, false};
    bool has_key = false;
    uint8_t key[kKeySize] = {};

    ~Impl() {
        context_cache().give(ctx[0]);
        context_cache().give(ctx[1]);
        OPENSSL_cleanse(key, sizeof key);
    }

    // Expands the key for one direction the first time that direction is used.
    EVP_CIPHER_CTX* prepare(int encrypt) {
        if (!has_key) {
            return nullptr;
        }
        if (ready[encrypt]) {
            return ctx[encrypt];
        }
        const EVP_CIPHER* cipher = aes_256_ecb();
        if (cipher == nullptr) {
            return nullptr;
        }
        if (ctx[encrypt] == nullptr) {
            ctx[encrypt] = context_cache().take();
            if (ctx[encrypt] == nullptr) {
                return nullptr;
            }
        }
        if (EVP_CipherInit_ex(ctx[encrypt], cipher, nullptr, key, nullptr, encrypt) != 1 ||
            EVP_CIPHER_CTX_set_padding(ctx[encrypt], 0) != 1) {
            return nullptr;
        }
        ready[encrypt] = true;
        return ctx[encrypt];
    }

    bool run(uint8_t* block, int encrypt) {
        EVP_CIPHER_CTX* c = prepare(encrypt);
        if (c == nullptr) {
            return false;
        }
        uint8_t out[kBlockSize];
        int out_len = 0;
        if (EVP_CipherUpdate(c, out, &out_len, block, kBlockSize) != 1 ||
            out_len != static_cast<int>(kBlockSize)) {
            return false;
        }
        for (unsigned i = 0; i < kBlockSize; ++i) {
            block[i] = out[i];
        }
        return true;
    }
};

zlAes256::zlAes256() : impl_(new (std::nothrow) Impl) {}

zlAes256::~zlAes256() {
    delete impl_;
}

bool zlAes256::set_key(const uint8_t key[kKeySize]) {
    if (impl_ == nullptr || aes_256_ecb() == nullptr) {
        return false;
    }
    for (unsigned i = 0; i < kKeySize; ++i) {
        impl_->key[i] = key[i];
    }
    impl_->has_key = true;
    impl_->ready[0] = impl_->ready[1] = false;
    return true;
}

bool zlAes256::encrypt_block(uint8_t block[kBlockSize]) {
    return impl_ != nullptr && impl_->run(block, 1);
}

bool zlAes256::decrypt_block(uint8_t block[kBlockSize]) {
    return impl_ != nullptr && impl_->run(block, 0);
}

}  // namespace Zelto
