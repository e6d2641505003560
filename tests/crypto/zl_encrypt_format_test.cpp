#include <gtest/gtest.h>

#include <string>

#include "core/dm_utf8_str.h"
#include "crypto/aes256.h"
#include "crypto/zlEncrypt.h"
#include "code_text.h"

namespace {

using zelto_test::Bytes;
using zelto_test::to_bytes;

const char kPhrase8[] = "8 bytes!";
const char kPhrase40[] = "correct horse battery staple, and more!!";

using zelto_test::cipher_with;
using zelto_test::plain_of;
using zelto_test::text_of;

// The text, read back through the table, must be: salt, padding count, then each zero-padded
// block enciphered alone under the key part followed by that salt. Two characters a byte.
TEST(CipherFormat, BinaryFormIsSaltPaddingCountAndEcbBlocks) {
    for (const std::string& phrase :
         {std::string(kPhrase8), std::string(20, 'k'), std::string(31, 's'), std::string(32, 'k'),
          std::string(kPhrase40)}) {
        const Zelto::zlEncrypt cipher = cipher_with(phrase);
        const size_t salt = phrase.size() < 32 ? 32 - phrase.size() : 0;
        for (size_t n : {1u, 13u, 16u, 17u, 33u}) {
            SCOPED_TRACE(phrase + " / " + std::to_string(n));
            std::string plain;
            for (size_t i = 0; i < n; ++i) {
                plain.push_back(static_cast<char>(i * 37 + 5));
            }
            const std::string text = text_of(cipher, plain);
            const Bytes bytes = to_bytes(text);
            ASSERT_EQ(text.size(), 2 * bytes.size()) << "a code outside the table";
            const size_t blocks = (n + 15) / 16;
            ASSERT_EQ(salt + 1 + 16 * blocks, bytes.size());
            EXPECT_EQ((16 - n % 16) % 16, bytes[salt]);

            uint8_t key[32];
            for (size_t i = 0; i < 32; ++i) {
                key[i] = i < 32 - salt ? static_cast<uint8_t>(phrase[i]) : bytes[i - (32 - salt)];
            }
            Zelto::zlAes256 aes;
            ASSERT_TRUE(aes.set_key(key));
            for (size_t b = 0; b < blocks; ++b) {
                uint8_t block[16] = {};
                for (size_t i = 0; i < 16 && b * 16 + i < n; ++i) {
                    block[i] = static_cast<uint8_t>(plain[b * 16 + i]);
                }
                ASSERT_TRUE(aes.encrypt_block(block));
                EXPECT_EQ(Bytes(block, block + 16), Bytes(bytes.begin() + salt + 1 + 16 * b,
                                                          bytes.begin() + salt + 1 + 16 * (b + 1)))
                    << "block " << b;
            }
        }
    }
}

TEST(CipherFormat, SaltMakesEachTextNewUnlessThePhraseFillsTheKey) {
    const Zelto::zlEncrypt short_phrase = cipher_with(kPhrase8);
    const std::string first = text_of(short_phrase, "same value");
    const std::string second = text_of(short_phrase, "same value");
    EXPECT_NE(first, second);
    EXPECT_EQ("same value", plain_of(short_phrase, first));
    EXPECT_EQ("same value", plain_of(short_phrase, second));

    const Zelto::zlEncrypt long_phrase = cipher_with(kPhrase40);
    EXPECT_EQ(text_of(long_phrase, "same value"), text_of(long_phrase, "same value"));
}

TEST(CipherFormat, OnlyTheFirst32BytesOfThePhraseCount) {
    const std::string head = "0123456789abcdef0123456789ABCDEF";
    const Zelto::zlEncrypt exact = cipher_with(head);
    const Zelto::zlEncrypt longer = cipher_with(head + "tail one");
    const Zelto::zlEncrypt longest = cipher_with(head + std::string(96, 'z'));
    const std::string text = text_of(exact, "shared key part");
    EXPECT_EQ(text, text_of(longer, "shared key part"));
    EXPECT_EQ(text, text_of(longest, "shared key part"));
    EXPECT_EQ("shared key part", plain_of(longest, text));

    const Zelto::zlEncrypt other = cipher_with("0123456789abcdef0123456789ABCDEx");
    EXPECT_NE(text, text_of(other, "shared key part"));
}

// Stored files depend on these exact characters: AES, padding and the code table together.
TEST(CipherFormat, FrozenFixture) {
    const Zelto::zlEncrypt cipher = cipher_with(kPhrase40);
    const std::string plain =
        "Gr\xC3\xBC\xC3\x9F"
        "e aus Z\xC3\xBCrich, user@example.org";
    const std::string text =
        "9DC2168FE37234371772F94E5D50FBEF60E8FF6EBC0A8C4839E85DA07C481B6471BE577FB348D6DEFC5FDD37E9"
        "E83F91D3";
    EXPECT_EQ(text, text_of(cipher, plain));
    EXPECT_EQ(plain, plain_of(cipher, text));
}

TEST(CipherFormat, ArbitraryBytesRoundTrip) {
    for (const char* phrase : {kPhrase8, kPhrase40}) {
        const Zelto::zlEncrypt cipher = cipher_with(phrase);
        for (size_t n = 1; n <= 70; ++n) {
            SCOPED_TRACE(n);
            std::string plain;
            for (size_t i = 0; i < n; ++i) {
                plain.push_back(static_cast<char>((i * 151 + n) % 256));  // zeros and 0xFF too
            }
            EXPECT_EQ(plain, plain_of(cipher, text_of(cipher, plain)));
        }
    }
    // The result may be the input object.
    const Zelto::zlEncrypt cipher = cipher_with(kPhrase8);
    dunmar::dm_utf8_str value("in place");
    ASSERT_EQ(0, cipher.encrypt(value, value));
    EXPECT_EQ(2u * (24 + 1 + 16), value.length());
    ASSERT_EQ(0, cipher.decrypt(value, value));
    EXPECT_STREQ("in place", value.c_str());
}

}  // namespace
