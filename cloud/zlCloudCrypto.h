#pragma once

#include <string>

namespace Zelto {

// The platform's pieces that Shared Key signing needs: CNG and CryptoAPI on Windows,
// OpenSSL elsewhere. Each returns false, with `out` empty, when the platform fails.

// The 32-byte HMAC-SHA256 of data under key.
bool zlHmacSha256(const std::string& key, const std::string& data, std::string& out);

// Standard base64 with padding, on one line.
bool zlBase64Encode(const std::string& bytes, std::string& out);

// Decodes standard base64; false for anything else (see zlIsBase64).
bool zlBase64Decode(const std::string& text, std::string& out);

}  // namespace Zelto
