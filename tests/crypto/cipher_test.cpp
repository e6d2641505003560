// The cipher's text form: code table, salt, pass phrase rules and the layout of every value.
#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>
#include <string>

#include "code_text.h"
#include "crypto/aes256.h"
#include "crypto/salt_random.h"

namespace {

using namespace Zelto;
using zelto_test::Bytes;
using zelto_test::cipher_with;
using zelto_test::plain_of;
using zelto_test::text_of;

// Any reordering breaks every stored file. Both indexes must answer what a scan of their
// table from entry 0 answers, for every pair of characters.
TEST(CodeTable, OrderIsFrozenAndIndexesAgreeWithAScan) {
    uint64_t weighted = 0;
    for (unsigned i = 0; i < kCodeTableSize; ++i)
        weighted = weighted * 31 + static_cast<unsigned char>(kCodeTable[i][0]) * 256 +
                   static_cast<unsigned char>(kCodeTable[i][1]);
    EXPECT_EQ(0xf79cf69371a079e6ull, weighted);
    const char* digits = "0123456789ABCDEF";
    for (int first = 0; first < 256; ++first) {
        for (int second = 0; second < 256; ++second) {
            const char pair[3] = {static_cast<char>(first), static_cast<char>(second), 0};
            int scanned = -1;
            for (unsigned i = 0; i < kCodeTableSize && scanned < 0; ++i)
                scanned = std::strcmp(kCodeTable[i], pair) == 0 ? static_cast<int>(i) : -1;
            const char* high = first ? std::strchr(digits, first) : nullptr;
            const char* low = second ? std::strchr(digits, second) : nullptr;
            const int hex =
                high && low ? static_cast<int>((high - digits) * 16 + (low - digits)) : -1;
            ASSERT_EQ(scanned, code_index().find(pair[0], pair[1])) << first << "," << second;
            ASSERT_EQ(hex, hex_index().find(pair[0], pair[1])) << first << "," << second;
        }
    }
}

TEST(PassPhrase, LengthInBytesAndRefusals) {
    // Bytes count: four two-byte letters are 8 bytes. A refused phrase keeps the one before.
    const std::pair<std::string, int> cases[] = {{std::string(7, 'p'), 1},
                                                 {std::string(8, 'p'), 0},
                                                 {std::string(128, 'p'), 0},
                                                 {std::string(129, 'p'), 1},
                                                 {"", 1},
                                                 {"\xC3\xA4\xC3\xA4\xC3\xA4\xC3\xA4", 0}};
    for (const auto& c : cases) {
        zlEncrypt cipher;
        ASSERT_EQ(0, cipher.set_pass_phrase("previous"));
        EXPECT_EQ(c.second, cipher.set_pass_phrase(c.first.c_str())) << c.first.size();
        EXPECT_EQ(c.second == 0 ? c.first : "previous", cipher.pass_phrase());
    }
    zlEncrypt cipher;
    EXPECT_EQ(1, cipher.set_pass_phrase(nullptr));
    EXPECT_EQ("", cipher.pass_phrase());

    // Without a phrase every direction refuses, except that nothing to encipher is no failure.
    // The result is emptied either way.
    const zlEncrypt with = cipher_with("8 bytes!");
    const struct {
        const zlEncrypt& cipher;
        int direction;  // 0 encrypt, 1 decrypt, 2 decrypt item
        const char* input;
        int expected;
    } uses[] = {{cipher, 0, "secret", 1}, {cipher, 1, "6E6E6E6E", 1}, {cipher, 1, "", 1},
                {cipher, 2, "6E6E", 1},   {cipher, 0, "", 0},         {with, 0, "", 0},
                {with, 1, "", 0},         {with, 1, "6E", 0},         {with, 2, "", 0}};
    for (const auto& u : uses) {
        dunmar::dm_utf8_str out("stale");
        const dunmar::dm_utf8_str in(u.input);
        EXPECT_EQ(u.expected, u.direction == 0   ? u.cipher.encrypt(in, out)
                              : u.direction == 1 ? u.cipher.decrypt(in, out)
                                                 : u.cipher.decrypt_item(in, out))
            << u.direction << " " << u.input;
        EXPECT_TRUE(out.empty());
    }
}

// For every length 0..80 and pass phrases with and without salt: the salt drawn from the
// process generator, the padding count, then each zero-padded block enciphered alone under the
// phrase's first 32 bytes filled up with the salt; two characters a byte. It reads back.
TEST(CipherFormat, EveryValueIsSaltPaddingCountAndBlocksAndReadsBack) {
    for (const std::string& phrase : {std::string("8 bytes!"), std::string(31, 's'),
                                      std::string(32, 'k'), std::string(128, 'z')}) {
        const zlEncrypt cipher = cipher_with(phrase);
        const size_t salt = phrase.size() < 32 ? 32 - phrase.size() : 0;
        for (size_t n = 0; n <= 80; ++n) {
            SCOPED_TRACE(std::to_string(phrase.size()) + " / " + std::to_string(n));
            std::string plain;
            for (size_t i = 0; i < n; ++i)
                plain.push_back(static_cast<char>((i * 151 + n) % 256));  // zeros and 0xFF too
            zlSaltRandom expected = process_salt_random();
            const std::string text = text_of(cipher, plain);
            EXPECT_EQ(plain, plain_of(cipher, text));

            const Bytes bytes = zelto_test::to_bytes(text);
            const size_t blocks = (n + 15) / 16;
            ASSERT_EQ(text.size(), 2 * bytes.size());
            ASSERT_EQ(n == 0 ? 0 : salt + 1 + 16 * blocks, bytes.size());
            uint8_t key[32];
            std::memcpy(key, phrase.data(), 32 - salt);
            for (size_t i = 0; i < salt && n != 0; ++i) {
                key[32 - salt + i] = expected.next_byte();
                EXPECT_EQ(key[32 - salt + i], bytes[i]) << "salt byte " << i;
            }
            zlSaltRandom after = process_salt_random();
            EXPECT_EQ(expected.next_value(), after.next_value()) << "draws";
            if (n == 0)
                continue;
            EXPECT_EQ((16 - n % 16) % 16, bytes[salt]);
            zlAes256 aes;
            ASSERT_TRUE(aes.set_key(key));
            for (size_t b = 0; b < blocks; ++b) {
                uint8_t block[16] = {};
                plain.copy(reinterpret_cast<char*>(block), 16, b * 16);
                ASSERT_TRUE(aes.encrypt_block(block));
                EXPECT_EQ(Bytes(block, block + 16), Bytes(bytes.begin() + salt + 1 + 16 * b,
                                                          bytes.begin() + salt + 17 + 16 * b))
                    << "block " << b;
            }
        }
    }
    // The result may be the input object.
    const zlEncrypt cipher = cipher_with("8 bytes!");
    dunmar::dm_utf8_str value("in place");
    ASSERT_EQ(0, cipher.encrypt(value, value));
    ASSERT_EQ(0, cipher.decrypt(value, value));
    EXPECT_STREQ("in place", value.c_str());
}

}  // namespace
