#pragma once

// The text form of enciphered values done the slow and obvious way, so that the fast paths of
// the layer are checked against it.

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

#include "core/dm_utf8_str.h"
#include "crypto/code_table.h"
#include "crypto/zlEncrypt.h"

namespace zelto_test {

using Bytes = std::vector<uint8_t>;

// Pairs from the start, each searched in the table from entry 0; unknown pairs dropped.
inline Bytes to_bytes(const std::string& text) {
    Bytes bytes;
    for (size_t i = 0; i + 1 < text.size(); i += 2) {
        for (unsigned entry = 0; entry < Zelto::kCodeTableSize; ++entry) {
            if (text.compare(i, 2, Zelto::kCodeTable[entry]) == 0) {
                bytes.push_back(static_cast<uint8_t>(entry));
                break;
            }
        }
    }
    return bytes;
}

// Pairs of hexadecimal digits, either case.
inline Bytes from_hex(const std::string& hex) {
    Bytes bytes;
    for (size_t i = 0; i + 1 < hex.size(); i += 2)
        bytes.push_back(static_cast<uint8_t>(std::stoul(hex.substr(i, 2), nullptr, 16)));
    return bytes;
}

inline Zelto::zlEncrypt cipher_with(const std::string& phrase) {
    Zelto::zlEncrypt cipher;
    EXPECT_EQ(0, cipher.set_pass_phrase(phrase.c_str()));
    return cipher;
}

inline std::string text_of(const Zelto::zlEncrypt& cipher, const std::string& plain) {
    dunmar::dm_utf8_str text("stale");
    EXPECT_EQ(0, cipher.encrypt(dunmar::dm_utf8_str(plain.data(), plain.size()), text));
    return text.str();
}

// Starts from stale text so that a result left unset shows.
inline std::string plain_of(const Zelto::zlEncrypt& cipher, const std::string& text) {
    dunmar::dm_utf8_str plain("stale");
    EXPECT_EQ(0, cipher.decrypt(dunmar::dm_utf8_str(text), plain));
    return plain.str();
}

}  // namespace zelto_test
