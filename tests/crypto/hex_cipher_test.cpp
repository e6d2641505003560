#include <gtest/gtest.h>

#include <cstdio>
#include <string>

#include "core/dm_utf8_str.h"
#include "crypto/aes256.h"
#include "crypto/zlEncrypt.h"
#include "crypto/zlHexCipher.h"
#include "code_text.h"

namespace {

using dunmar::dm_utf8_str;
using zelto_test::Bytes;

std::string hex_of(const Bytes& bytes) {
    std::string hex;
    char pair[3];
    for (uint8_t b : bytes) {
        std::snprintf(pair, sizeof pair, "%02X", b);
        hex += pair;
    }
    return hex;
}

// A value enciphered by zlEncrypt, rewritten with plain hexadecimal pairs.
std::string hex_value_of(const std::string& phrase, const std::string& plain) {
    return hex_of(
        zelto_test::to_bytes(zelto_test::text_of(zelto_test::cipher_with(phrase), plain)));
}

std::string decrypt_hex(const std::string& phrase, const std::string& text, int expected = 0) {
    Zelto::zlHexCipher cipher;
    EXPECT_EQ(0, cipher.set_pass_phrase(phrase.c_str()));
    dm_utf8_str plain("left over");
    EXPECT_EQ(expected, cipher.decrypt(dm_utf8_str(text), plain));
    return plain.str();
}

TEST(HexCipher, ReadsTheConstructionWrittenInHexadecimal) {
    const std::string plain(
        "f\xC3\xBCr Stra\xC3\x9F"
        "e\r\nline two, and a few more bytes: 0123456789");
    for (const std::string& phrase : {std::string("8 bytes!"), std::string(20, 'k'),
                                      std::string(32, 'k'), std::string(128, 'z')}) {
        SCOPED_TRACE(phrase.size());
        for (size_t n : {size_t{1}, size_t{15}, size_t{16}, size_t{17}, plain.size()}) {
            const std::string part = plain.substr(0, n);
            EXPECT_EQ(part, decrypt_hex(phrase, hex_value_of(phrase, part)));
        }
    }
}

// Without salt the text is the padding count and the ECB blocks under the pass phrase itself.
TEST(HexCipher, KnownBlockUnderAThirtyTwoBytePhrase) {
    const std::string phrase = "correct horse battery staple 32b";
    Bytes block = zelto_test::from_hex("00112233445566778899AABBCCDDEE00");
    Zelto::zlAes256 aes;
    ASSERT_TRUE(aes.set_key(reinterpret_cast<const uint8_t*>(phrase.data())));
    ASSERT_TRUE(aes.encrypt_block(block.data()));
    const std::string text = "01" + hex_of(block);
    const Bytes plain = zelto_test::from_hex("00112233445566778899AABBCCDDEE");
    EXPECT_EQ(std::string(plain.begin(), plain.end()), decrypt_hex(phrase, text));
}

TEST(HexCipher, WrongOrUnusablePhrase) {
    const std::string text = hex_value_of("right phrase", "value");
    EXPECT_NE("value", decrypt_hex("wrong phrase", text));
    EXPECT_EQ("", decrypt_hex("right phrase", ""));

    Zelto::zlHexCipher cipher;
    EXPECT_EQ(1, cipher.set_pass_phrase("7 bytes"));
    EXPECT_EQ(1, cipher.set_pass_phrase(std::string(129, 'x').c_str()));
    EXPECT_EQ(1, cipher.set_pass_phrase(nullptr));
    dm_utf8_str plain("left over");
    EXPECT_EQ(1, cipher.decrypt(dm_utf8_str("00112233"), plain));
    EXPECT_TRUE(plain.empty());
}

}  // namespace
