#include <gtest/gtest.h>

#include <string>

#include "core/dm_utf8_str.h"
#include "crypto/salt_random.h"
#include "crypto/zlEncrypt.h"
#include "code_text.h"

namespace {

TEST(SaltRandom, FollowsTheUnseededRuntimeSequence) {
    Zelto::zlSaltRandom random;
    const int expected[] = {41, 18467, 6334, 26500, 19169, 15724, 11478, 29358, 26962, 24464};
    for (int value : expected) {
        EXPECT_EQ(value, random.next_value());
    }
}

TEST(SaltRandom, BytesAreTheLowBitsOfSuccessiveValues) {
    Zelto::zlSaltRandom values;
    Zelto::zlSaltRandom bytes;
    for (int i = 0; i < 5000; ++i) {
        const int value = values.next_value();
        ASSERT_GE(value, 0);
        ASSERT_LE(value, 0x7fff);
        ASSERT_EQ(value & 0xff, bytes.next_byte()) << "draw " << i;
    }
}

// The salt of a value comes from the process generator, 24 draws for an 8-byte pass phrase,
// none when the pass phrase fills the key.
TEST(SaltRandom, EncryptionDrawsItsSaltFromTheProcessGenerator) {
    Zelto::zlEncrypt short_phrase;
    ASSERT_EQ(0, short_phrase.set_pass_phrase("8 bytes!"));
    Zelto::zlEncrypt long_phrase;
    ASSERT_EQ(0, long_phrase.set_pass_phrase("a pass phrase of thirty-two bytes"));

    Zelto::zlSaltRandom expected = Zelto::process_salt_random();
    dunmar::dm_utf8_str text;
    ASSERT_EQ(0, short_phrase.encrypt("value", text));
    const zelto_test::Bytes bytes = zelto_test::to_bytes(text.str());
    ASSERT_EQ(24u + 1u + 16u, bytes.size());
    for (size_t i = 0; i < 24; ++i) {
        EXPECT_EQ(expected.next_byte(), bytes[i]) << "salt byte " << i;
    }

    ASSERT_EQ(0, long_phrase.encrypt("value", text));
    EXPECT_EQ(expected.next_value(), Zelto::process_salt_random().next_value());
}

}  // namespace
