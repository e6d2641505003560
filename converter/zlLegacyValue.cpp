#include "converter/zlLegacyValue.h"

#include "crypto/cipher_key.h"

namespace Zelto {

namespace {

int hexDigit(char c) {
    if (c >= '0' && c <= '9')
        return c - '0';
    if (c >= 'A' && c <= 'F')
        return c - 'A' + 10;
    return -1;
}

}  // namespace

bool zlIsHexText(const dunmar::dm_utf8_str& text) {
    if (text.length() % 2 != 0)
        return false;
    for (size_t i = 0; i < text.length(); ++i) {
        if (hexDigit(text.c_str()[i]) < 0)
            return false;
    }
    return true;
}

bool zlIsLegacyValue(const dunmar::dm_utf8_str& text, size_t passLength) {
    if (text.empty())
        return true;
    if (!zlIsHexText(text))
        return false;
    const size_t bytes = text.length() / 2;
    const size_t salt = salt_size(passLength);
    if (bytes < salt + 1 + kCipherBlockSize || (bytes - salt - 1) % kCipherBlockSize != 0)
        return false;
    const char* padding = text.c_str() + 2 * salt;
    return hexDigit(padding[0]) * 16 + hexDigit(padding[1]) < static_cast<int>(kCipherBlockSize);
}

}  // namespace Zelto
