#pragma once

// Test helpers: the text form of enciphered values, done the slow and obvious way so that the
// fast paths of the layer are checked against it.

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

#include "core/dm_utf8_str.h"
#include "crypto/code_table.h"
#include "crypto/zlEncrypt.h"

namespace zelto_test {

using Bytes = std::vector<uint8_t>;

inline std::string to_text(const Bytes& bytes) {
    std::string text;
    for (uint8_t b : bytes) {
        text += Zelto::kCodeTable[b];
    }
    return text;
}

// Pairs from the start, each searched in the table from entry 0; unknown pairs dropped.
inline Bytes to_bytes(const std::string& text) {
    Bytes bytes;
    for (size_t i = 0; i + 1 < text.size(); i += 2) {
        for (unsigned entry = 0; entry < Zelto::kCodeTableSize; ++entry) {
            if (text[i] == Zelto::kCodeTable[entry][0] &&
                text[i + 1] == Zelto::kCodeTable[entry][1]) {
                bytes.push_back(static_cast<uint8_t>(entry));
                break;
            }
        }
    }
    return bytes;
}

inline int hex_value(char c) {
    return c <= '9' ? c - '0' : (c | 0x20) - 'a' + 10;
}

// Test vectors as written in the standards: pairs of hexadecimal digits.
inline Bytes from_hex(const std::string& hex) {
    Bytes bytes;
    for (size_t i = 0; i + 1 < hex.size(); i += 2) {
        bytes.push_back(static_cast<uint8_t>(hex_value(hex[i]) * 16 + hex_value(hex[i + 1])));
    }
    return bytes;
}

inline Zelto::zlEncrypt cipher_with(const std::string& phrase) {
    Zelto::zlEncrypt cipher;
    EXPECT_EQ(0, cipher.set_pass_phrase(phrase.c_str()));
    return cipher;
}

inline std::string text_of(const Zelto::zlEncrypt& cipher, const std::string& plain) {
    dunmar::dm_utf8_str text;
    EXPECT_EQ(0, cipher.encrypt(dunmar::dm_utf8_str(plain), text));
    return text.str();
}

// Starts from stale text so that a result left unset shows.
inline std::string plain_of(const Zelto::zlEncrypt& cipher, const std::string& text) {
    dunmar::dm_utf8_str plain("stale");
    EXPECT_EQ(0, cipher.decrypt(dunmar::dm_utf8_str(text), plain));
    return plain.str();
}

}  // namespace zelto_test
