// HMAC-SHA256 on CNG and base64 on CryptoAPI (Windows builds).
#include "cloud/zlCloudCrypto.h"

#include <vector>

#include <windows.h>
#include <bcrypt.h>
#include <wincrypt.h>

#include "cloud/zlConnectionString.h"

namespace Zelto {

namespace {

BCRYPT_ALG_HANDLE openHmacProvider() {
    BCRYPT_ALG_HANDLE handle = nullptr;
    if (!BCRYPT_SUCCESS(BCryptOpenAlgorithmProvider(&handle, BCRYPT_SHA256_ALGORITHM, nullptr,
                                                    BCRYPT_ALG_HANDLE_HMAC_FLAG))) {
        return nullptr;
    }
    return handle;
}

// Opened once and kept for the process, like the AES provider.
BCRYPT_ALG_HANDLE hmacProvider() {
    static const BCRYPT_ALG_HANDLE provider = openHmacProvider();
    return provider;
}

}  // namespace

bool zlHmacSha256(const std::string& key, const std::string& data, std::string& out) {
    out.clear();
    BCRYPT_ALG_HANDLE provider = hmacProvider();
    if (provider == nullptr || key.size() > MAXDWORD || data.size() > MAXDWORD) {
        return false;
    }
    BCRYPT_HASH_HANDLE hash = nullptr;
    // CNG wants writable buffers, though it only reads them.
    std::vector<UCHAR> secret(key.begin(), key.end());
    std::vector<UCHAR> input(data.begin(), data.end());
    if (!BCRYPT_SUCCESS(BCryptCreateHash(provider, &hash, nullptr, 0, secret.data(),
                                         static_cast<ULONG>(secret.size()), 0))) {
        return false;
    }
    UCHAR mac[32];
    const bool done =
        BCRYPT_SUCCESS(BCryptHashData(hash, input.data(), static_cast<ULONG>(input.size()), 0)) &&
        BCRYPT_SUCCESS(BCryptFinishHash(hash, mac, sizeof mac, 0));
    BCryptDestroyHash(hash);
    SecureZeroMemory(secret.data(), secret.size());
    if (!done) {
        return false;
    }
    out.assign(reinterpret_cast<const char*>(mac), sizeof mac);
    return true;
}

bool zlBase64Encode(const std::string& bytes, std::string& out) {
    out.clear();
    if (bytes.empty()) {
        return true;
    }
    if (bytes.size() > MAXDWORD / 2) {
        return false;
    }
    const DWORD flags = CRYPT_STRING_BASE64 | CRYPT_STRING_NOCRLF;
    const auto* data = reinterpret_cast<const BYTE*>(bytes.data());
    DWORD length = 0;
    if (!CryptBinaryToStringA(data, static_cast<DWORD>(bytes.size()), flags, nullptr, &length)) {
        return false;
    }
    std::string text(length, '\0');
    if (!CryptBinaryToStringA(data, static_cast<DWORD>(bytes.size()), flags, &text[0], &length)) {
        return false;
    }
    // The second call counts without the terminating zero.
    text.resize(length);
    while (!text.empty() && (text.back() == '\0' || text.back() == '\r' || text.back() == '\n')) {
        text.pop_back();
    }
    out.swap(text);
    return true;
}

bool zlBase64Decode(const std::string& text, std::string& out) {
    out.clear();
    // CryptoAPI passes over white space and other odd input; the strict check comes first.
    if (!zlIsBase64(text) || text.size() > MAXDWORD) {
        return false;
    }
    DWORD length = 0;
    if (!CryptStringToBinaryA(text.data(), static_cast<DWORD>(text.size()), CRYPT_STRING_BASE64,
                              nullptr, &length, nullptr, nullptr)) {
        return false;
    }
    std::string bytes(length, '\0');
    if (length != 0 &&
        !CryptStringToBinaryA(text.data(), static_cast<DWORD>(text.size()), CRYPT_STRING_BASE64,
                              reinterpret_cast<BYTE*>(&bytes[0]), &length, nullptr, nullptr)) {
        return false;
    }
    bytes.resize(length);
    out.swap(bytes);
    return true;
}

}  // namespace Zelto
