// zlAes256 on Windows CNG (Windows builds).
#include "crypto/aes256.h"

#include <new>

#include <windows.h>
#include <bcrypt.h>

namespace Zelto {

namespace {

BCRYPT_ALG_HANDLE open_aes_ecb_provider() {
    BCRYPT_ALG_HANDLE handle = nullptr;
    if (!BCRYPT_SUCCESS(BCryptOpenAlgorithmProvider(&handle, BCRYPT_AES_ALGORITHM, nullptr, 0))) {
        return nullptr;
    }
    // Keys made from this provider inherit the chaining mode.
    wchar_t mode[] = BCRYPT_CHAIN_MODE_ECB;
    if (!BCRYPT_SUCCESS(BCryptSetProperty(handle, BCRYPT_CHAINING_MODE,
                                          reinterpret_cast<PUCHAR>(mode), sizeof mode, 0))) {
        BCryptCloseAlgorithmProvider(handle, 0);
        return nullptr;
    }
    return handle;
}

// Opened once per process and kept: opening a provider costs far more than a key.
BCRYPT_ALG_HANDLE aes_ecb_provider() {
    static const BCRYPT_ALG_HANDLE provider = open_aes_ecb_provider();
    return provider;
}

}  // namespace

struct zlAes256::Impl {
    BCRYPT_KEY_HANDLE key = nullptr;

    ~Impl() { drop_key(); }

    void drop_key() {
        if (key != nullptr) {
            BCryptDestroyKey(key);
            key = nullptr;
        }
    }

    bool run(uint8_t* block, bool encrypt) {
        if (key == nullptr) {
            return false;
        }
        UCHAR out[kBlockSize];
        ULONG out_len = 0;
        NTSTATUS status = encrypt ? BCryptEncrypt(key, block, kBlockSize, nullptr, nullptr, 0, out,
                                                  kBlockSize, &out_len, 0)
                                  : BCryptDecrypt(key, block, kBlockSize, nullptr, nullptr, 0, out,
                                                  kBlockSize, &out_len, 0);
        if (!BCRYPT_SUCCESS(status) || out_len != kBlockSize) {
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
    if (impl_ == nullptr) {
        return false;
    }
    impl_->drop_key();
    BCRYPT_ALG_HANDLE provider = aes_ecb_provider();
    if (provider == nullptr) {
        return false;
    }
    // CNG copies the secret into its own key object and never writes to it.
    NTSTATUS status = BCryptGenerateSymmetricKey(provider, &impl_->key, nullptr, 0,
                                                 const_cast<PUCHAR>(key), kKeySize, 0);
    if (!BCRYPT_SUCCESS(status)) {
        impl_->key = nullptr;
        return false;
    }
    return true;
}

bool zlAes256::encrypt_block(uint8_t block[kBlockSize]) {
    return impl_ != nullptr && impl_->run(block, true);
}

bool zlAes256::decrypt_block(uint8_t block[kBlockSize]) {
    return impl_ != nullptr && impl_->run(block, false);
}

}  // namespace Zelto
