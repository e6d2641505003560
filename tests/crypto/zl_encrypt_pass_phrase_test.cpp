#include <gtest/gtest.h>

#include <string>

#include "core/dm_utf8_str.h"
#include "crypto/zlEncrypt.h"

namespace {

TEST(PassPhrase, LengthLimitsInBytes) {
    struct Case {
        std::string phrase;
        int expected;
    };
    const Case cases[] = {
        {std::string(7, 'p'), 1},
        {std::string(8, 'p'), 0},
        {std::string(128, 'p'), 0},
        {std::string(129, 'p'), 1},
        {std::string(5000, 'p'), 1},
        {"", 1},
        // Bytes count, not characters: four two-byte letters are 8 bytes.
        {"\xC3\xA4\xC3\xA4\xC3\xA4\xC3\xA4", 0},
        {"\xC3\xA4\xC3\xA4\xC3\xA4x", 1},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.phrase.size());
        Zelto::zlEncrypt cipher;
        EXPECT_EQ(c.expected, cipher.set_pass_phrase(c.phrase.c_str()));
        EXPECT_EQ(c.expected == 0 ? c.phrase : std::string(), cipher.pass_phrase());
    }
}

TEST(PassPhrase, RefusedPhraseKeepsThePreviousOne) {
    Zelto::zlEncrypt cipher;
    ASSERT_EQ(0, cipher.set_pass_phrase("first phrase"));
    EXPECT_EQ(1, cipher.set_pass_phrase(nullptr));
    EXPECT_EQ(1, cipher.set_pass_phrase("short"));
    EXPECT_EQ(1, cipher.set_pass_phrase(std::string(129, 'x').c_str()));
    EXPECT_EQ("first phrase", cipher.pass_phrase());

    ASSERT_EQ(0, cipher.set_pass_phrase("second phrase"));
    EXPECT_EQ("second phrase", cipher.pass_phrase());
}

TEST(PassPhrase, WithoutUsablePhraseBothDirectionsRefuseAndEmptyTheResult) {
    Zelto::zlEncrypt cipher;
    dunmar::dm_utf8_str out("stale");
    EXPECT_EQ(1, cipher.encrypt("secret", out));
    EXPECT_TRUE(out.empty());

    out = dunmar::dm_utf8_str("stale");
    EXPECT_EQ(1, cipher.decrypt("6E6E6E6E", out));
    EXPECT_TRUE(out.empty());

    out = dunmar::dm_utf8_str("stale");
    EXPECT_EQ(1, cipher.decrypt("", out));
    EXPECT_TRUE(out.empty());

    out = dunmar::dm_utf8_str("stale");
    EXPECT_EQ(1, cipher.decrypt_item("6E6E6E6E", out));
    EXPECT_TRUE(out.empty());
}

// Nothing to encipher is not a failure, with or without a pass phrase.
TEST(PassPhrase, EmptyValuesGiveEmptyResults) {
    Zelto::zlEncrypt without;
    Zelto::zlEncrypt with;
    ASSERT_EQ(0, with.set_pass_phrase("8 bytes!"));
    dunmar::dm_utf8_str out("stale");
    EXPECT_EQ(0, without.encrypt("", out));
    EXPECT_TRUE(out.empty());

    out = dunmar::dm_utf8_str("stale");
    EXPECT_EQ(0, with.encrypt("", out));
    EXPECT_TRUE(out.empty());

    out = dunmar::dm_utf8_str("stale");
    EXPECT_EQ(0, with.decrypt("", out));
    EXPECT_TRUE(out.empty());
}

}  // namespace
