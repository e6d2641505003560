// HMAC-SHA256 and base64 on OpenSSL (host builds).
#include "cloud/zlCloudCrypto.h"

#include <climits>

#include <openssl/evp.h>
#include <openssl/hmac.h>

#include "cloud/zlConnectionString.h"

namespace Zelto {

bool zlHmacSha256(const std::string& key, const std::string& data, std::string& out) {
    out.clear();
    if (key.size() > INT_MAX) {
        return false;
    }
    unsigned char mac[EVP_MAX_MD_SIZE];
    unsigned int length = 0;
    const unsigned char* done =
        HMAC(EVP_sha256(), key.data(), static_cast<int>(key.size()),
             reinterpret_cast<const unsigned char*>(data.data()), data.size(), mac, &length);
    if (done == nullptr || length != 32) {
        return false;
    }
    out.assign(reinterpret_cast<const char*>(mac), length);
    return true;
}

bool zlBase64Encode(const std::string& bytes, std::string& out) {
    out.clear();
    if (bytes.size() > INT_MAX / 2) {
        return false;
    }
    std::string text(4 * ((bytes.size() + 2) / 3) + 1, '\0');
    const int length = EVP_EncodeBlock(reinterpret_cast<unsigned char*>(&text[0]),
                                       reinterpret_cast<const unsigned char*>(bytes.data()),
                                       static_cast<int>(bytes.size()));
    if (length < 0) {
        return false;
    }
    text.resize(static_cast<size_t>(length));
    out.swap(text);
    return true;
}

bool zlBase64Decode(const std::string& text, std::string& out) {
    out.clear();
    if (!zlIsBase64(text) || text.size() > INT_MAX) {
        return false;
    }
    std::string bytes(text.size() / 4 * 3, '\0');
    const int length = EVP_DecodeBlock(reinterpret_cast<unsigned char*>(&bytes[0]),
                                       reinterpret_cast<const unsigned char*>(text.data()),
                                       static_cast<int>(text.size()));
    if (length < 0) {
        return false;
    }
    // EVP_DecodeBlock counts the padding as zero bytes.
    size_t padding = 0;
    while (padding < 2 && text[text.size() - 1 - padding] == '=') {
        ++padding;
    }
    bytes.resize(static_cast<size_t>(length) - padding);
    out.swap(bytes);
    return true;
}

}  // namespace Zelto
