// Reading texts that are damaged, foreign or of the older hexadecimal form.
#include <gtest/gtest.h>

#include <cstdio>
#include <random>
#include <string>

#include "code_text.h"
#include "crypto/zlHexCipher.h"

namespace {

using zelto_test::Bytes;
using zelto_test::cipher_with;
using zelto_test::plain_of;
using zelto_test::text_of;

const Zelto::zlEncrypt& short_phrase() {
    static const Zelto::zlEncrypt cipher = cipher_with("8 bytes!");
    return cipher;
}

// No salt: byte 0 of the binary form is the padding count.
const Zelto::zlEncrypt& long_phrase() {
    static const Zelto::zlEncrypt cipher = cipher_with("correct horse battery staple, and more!!");
    return cipher;
}

// Length of any text's decipherment: the bytes of the whole blocks, less the padding count, the
// remaining length being unsigned (a corrupt count wraps and lets every block byte through).
size_t expected_length(size_t salt, const Bytes& bytes) {
    if (bytes.size() < salt + 1)
        return 0;
    const size_t whole = 16 * ((bytes.size() - salt - 1) / 16);
    const size_t remaining = bytes.size() - salt - bytes[salt] - 1;
    return remaining < whole ? remaining : whole;
}

// Random texts decipher to the right number of bytes without fault; pairs that are no code
// (lower case too) and a last single character are dropped from a real value unnoticed.
TEST(Decipher, DamagedAndForeignTexts) {
    const char letters[] = "0123456789ABCDEF0123456789ABCDEFabcdefxyz!\xC3\x00 ";
    const std::string alphabet(letters, sizeof letters - 1);
    const char* noise[] = {"zz", "6e", "\xC3\xBC", "G0"};
    std::mt19937 random(20240601);
    for (int round = 0; round < 2000; ++round) {
        std::string text(random() % 260, ' ');
        for (char& c : text)
            c = alphabet[random() % alphabet.size()];
        const Bytes bytes = zelto_test::to_bytes(text);
        EXPECT_EQ(expected_length(24, bytes), plain_of(short_phrase(), text).size()) << text;
        EXPECT_EQ(expected_length(0, bytes), plain_of(long_phrase(), text).size()) << text;

        const std::string plain = text.substr(0, round % 40);
        const Zelto::zlEncrypt& cipher = round % 2 ? short_phrase() : long_phrase();
        const std::string clean = text_of(cipher, plain);
        std::string noisy;
        for (size_t i = 0; i < clean.size(); i += 2)
            noisy += clean.substr(i, 2) + (random() % 3 ? "" : noise[random() % 4]);
        EXPECT_EQ(plain, plain_of(cipher, noisy + (round % 3 ? "" : "7"))) << noisy;
    }
}

// The raw form does not read beyond its size, even where one more character would complete a
// code (here revealing a padding byte).
TEST(Decipher, RawTextEndsAtItsSize) {
    const std::string buffer = text_of(long_phrase(), "thirteen byte") + "6E";
    std::string plain;
    ASSERT_EQ(0, long_phrase().decrypt_bytes(buffer.data(), buffer.size() - 1, plain));
    EXPECT_EQ("thirteen byte", plain);
    ASSERT_EQ(0, long_phrase().decrypt_bytes(buffer.data(), buffer.size(), plain));
    EXPECT_EQ(std::string("thirteen byte\0", 14), plain);
}

// The older form: the same construction, each byte as its plain hexadecimal pair.
TEST(HexCipher, ReadsValuesWrittenInHexadecimal) {
    for (const std::string& phrase : {std::string("8 bytes!"), std::string(32, 'k')}) {
        const Zelto::zlEncrypt cipher = cipher_with(phrase);
        Zelto::zlHexCipher hex;
        ASSERT_EQ(0, hex.set_pass_phrase(phrase.c_str()));
        for (size_t n = 0; n <= 33; ++n) {
            const std::string plain = std::string(
                                          "f\xC3\xBCr Stra\xC3\x9F"
                                          "e\r\n\0 0123456789 abcdefghijklmn",
                                          34)
                                          .substr(0, n);
            std::string text;
            char pair[3];
            for (uint8_t b : zelto_test::to_bytes(text_of(cipher, plain))) {
                std::snprintf(pair, sizeof pair, "%02X", b);
                text += pair;
            }
            dunmar::dm_utf8_str out("stale");
            EXPECT_EQ(0, hex.decrypt(dunmar::dm_utf8_str(text), out));
            EXPECT_EQ(plain, out.str()) << phrase.size() << " / " << n;
        }
    }
    Zelto::zlHexCipher hex;
    EXPECT_EQ(1, hex.set_pass_phrase("7 bytes"));
    dunmar::dm_utf8_str out("stale");
    EXPECT_EQ(1, hex.decrypt(dunmar::dm_utf8_str("00112233"), out));
    EXPECT_TRUE(out.empty());
}

}  // namespace
