#include <gtest/gtest.h>

#include <cstdint>
#include <random>
#include <string>

#include "core/dm_utf8_str.h"
#include "crypto/zlEncrypt.h"
#include "code_text.h"

namespace {

using zelto_test::Bytes;
using zelto_test::to_bytes;
using zelto_test::to_text;

// No salt with this phrase: byte 0 of the binary form is the padding count.
const char kPhrase40[] = "correct horse battery staple, and more!!";
const char kPhrase8[] = "8 bytes!";

using zelto_test::cipher_with;
using zelto_test::plain_of;
using zelto_test::text_of;

class Decrypt : public ::testing::Test {
  protected:
    // The text of `plain` under the long phrase with its padding count replaced.
    std::string with_padding_count(const std::string& plain, uint8_t count) {
        Bytes bytes = to_bytes(text_of(long_phrase_, plain));
        bytes[0] = count;
        return to_text(bytes);
    }

    const Zelto::zlEncrypt long_phrase_ = cipher_with(kPhrase40);
    const Zelto::zlEncrypt short_phrase_ = cipher_with(kPhrase8);
};

TEST_F(Decrypt, OddLengthIgnoresTheLastCharacter) {
    const std::string text = text_of(short_phrase_, "odd one");
    EXPECT_EQ("odd one", plain_of(short_phrase_, text + "7"));
    EXPECT_EQ("odd one", plain_of(short_phrase_, text + "x"));
    // Cutting one character loses the last byte, hence the last (now partial) block.
    EXPECT_EQ(plain_of(short_phrase_, text.substr(0, text.size() - 2)),
              plain_of(short_phrase_, text.substr(0, text.size() - 1)));
    EXPECT_EQ("", plain_of(short_phrase_, "A"));
}

// The raw form must not read the character beyond the given size, even when it would
// complete a code: here one more byte would reveal a padding byte.
TEST_F(Decrypt, RawTextEndsAtItsSize) {
    const std::string buffer = text_of(long_phrase_, "thirteen byte") + "6E";
    std::string plain;
    ASSERT_EQ(0, long_phrase_.decrypt_bytes(buffer.data(), buffer.size() - 1, plain));
    EXPECT_EQ("thirteen byte", plain);
    ASSERT_EQ(0, long_phrase_.decrypt_bytes(buffer.data(), buffer.size(), plain));
    EXPECT_EQ(std::string("thirteen byte\0", 14), plain);
}

TEST_F(Decrypt, PairsOutsideTheTableAreDropped) {
    const std::string text = text_of(short_phrase_, "with noise");
    std::string noisy;
    for (size_t i = 0; i < text.size(); i += 2) {
        noisy += text.substr(i, 2);
        if (i % 6 == 0) {
            noisy += i % 12 == 0 ? "zz" : "6e";  // lower case is no code either
        }
    }
    noisy += "\xC3\xBC";
    EXPECT_EQ("with noise", plain_of(short_phrase_, noisy));
}

TEST_F(Decrypt, PaddingIsRemovedByCountNotByValue) {
    const std::string zeros_13("ab\0\0c\0\0\0\0\0\0\0\0", 13);
    const std::string zeros_32 = std::string("thirty-two bytes of which last ") + '\0';
    ASSERT_EQ(32u, zeros_32.size());
    for (const std::string& plain : {zeros_13, zeros_32, std::string(16, '\0')}) {
        SCOPED_TRACE(plain.size());
        EXPECT_EQ(plain, plain_of(long_phrase_, text_of(long_phrase_, plain)));
        EXPECT_EQ(plain, plain_of(short_phrase_, text_of(short_phrase_, plain)));
    }
}

// The remaining length is unsigned: too large a count either shortens the value or wraps and
// lets every block byte through.
TEST_F(Decrypt, CorruptPaddingCount) {
    const std::string plain13 = "thirteen byte";
    const std::string block13 = plain13 + std::string(3, '\0');
    EXPECT_EQ(block13, plain_of(long_phrase_, with_padding_count(plain13, 0)));
    EXPECT_EQ("t", plain_of(long_phrase_, with_padding_count(plain13, 15)));
    EXPECT_EQ("", plain_of(long_phrase_, with_padding_count(plain13, 16)));
    EXPECT_EQ(block13, plain_of(long_phrase_, with_padding_count(plain13, 17)));
    EXPECT_EQ(block13, plain_of(long_phrase_, with_padding_count(plain13, 255)));

    const std::string plain20 = "twenty bytes of text";
    // 33 bytes less the count and itself leave 12.
    EXPECT_EQ(plain20.substr(0, 12), plain_of(long_phrase_, with_padding_count(plain20, 20)));
    EXPECT_EQ(plain20 + std::string(12, '\0'),
              plain_of(long_phrase_, with_padding_count(plain20, 200)));
}

TEST_F(Decrypt, BytesAfterTheLastWholeBlockAreIgnoredButCounted) {
    // Five more bytes raise the remaining length past the padding of a 13-byte value.
    const std::string text13 = text_of(long_phrase_, "thirteen byte");
    EXPECT_EQ(std::string("thirteen byte\0\0\0", 16),
              plain_of(long_phrase_, text13 + "6E6E6E6E6E"));

    const std::string text16 = text_of(long_phrase_, "sixteen bytes!!!");
    EXPECT_EQ("sixteen bytes!!!", plain_of(long_phrase_, text16 + "6E6E6E6E6E"));

    // A last block short of one byte is dropped entirely.
    const std::string text20 = text_of(long_phrase_, "twenty bytes of text");
    EXPECT_EQ("twenty bytes of ", plain_of(long_phrase_, text20.substr(0, text20.size() - 2)));
}

TEST_F(Decrypt, WrongPhraseGivesOtherBytesWithoutError) {
    const Zelto::zlEncrypt wrong = cipher_with("8 bytes?");
    const std::string plain = "the real secret, 32 bytes long!!";
    const std::string deciphered = plain_of(wrong, text_of(short_phrase_, plain));
    EXPECT_NE(plain, deciphered);
    EXPECT_EQ(std::string::npos, deciphered.find("real"));
}

TEST_F(Decrypt, ItemUsesTheSameDecipherment) {
    const std::string text = text_of(short_phrase_, "item value");
    dunmar::dm_utf8_str item;
    ASSERT_EQ(0, short_phrase_.decrypt_item(dunmar::dm_utf8_str(text), item));
    EXPECT_STREQ("item value", item.c_str());
}

// Expected length of any text's decipherment, worked out on the slow helper's bytes.
size_t expected_length(size_t salt, const Bytes& bytes) {
    if (bytes.size() < salt + 1) {
        return 0;
    }
    const size_t whole = 16 * ((bytes.size() - salt - 1) / 16);
    const size_t remaining = bytes.size() - salt - bytes[salt] - 1;  // may wrap
    return remaining < whole ? remaining : whole;
}

// Damaged and foreign texts must decipher to something of the right size and never fault.
TEST_F(Decrypt, ArbitraryTextsAreSafe) {
    const char letters[] = "0123456789ABCDEF0123456789ABCDEFabcdefxyz!\xC3\x00 ";
    const std::string alphabet(letters, sizeof letters - 1);
    std::mt19937 random(20240601);
    for (int round = 0; round < 3000; ++round) {
        std::string text(random() % 260, ' ');
        for (char& c : text) {
            c = alphabet[random() % alphabet.size()];
        }
        const Bytes bytes = to_bytes(text);
        EXPECT_EQ(expected_length(24, bytes), plain_of(short_phrase_, text).size()) << text;
        EXPECT_EQ(expected_length(0, bytes), plain_of(long_phrase_, text).size()) << text;
    }
}

}  // namespace
