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

// Without a usable phrase every direction refuses; nothing to encipher is no failure, with or
// without a phrase. The result is emptied either way.
TEST(PassPhrase, RefusalsAndEmptyValuesEmptyTheResult) {
    Zelto::zlEncrypt without;
    Zelto::zlEncrypt with;
    ASSERT_EQ(0, with.set_pass_phrase("8 bytes!"));
    using Step = int (*)(const Zelto::zlEncrypt&, dunmar::dm_utf8_str&);
    const struct {
        const char* name;
        const Zelto::zlEncrypt& cipher;
        Step step;
        int expected;
    } cases[] = {
        {"encrypt, without", without, [](auto& c, auto& o) { return c.encrypt("secret", o); }, 1},
        {"decrypt, without", without, [](auto& c, auto& o) { return c.decrypt("6E6E6E6E", o); }, 1},
        {"decrypt empty, without", without, [](auto& c, auto& o) { return c.decrypt("", o); }, 1},
        {"decrypt item, without", without,
         [](auto& c, auto& o) { return c.decrypt_item("6E6E6E6E", o); }, 1},
        {"encrypt empty, without", without, [](auto& c, auto& o) { return c.encrypt("", o); }, 0},
        {"encrypt empty, with", with, [](auto& c, auto& o) { return c.encrypt("", o); }, 0},
        {"decrypt empty, with", with, [](auto& c, auto& o) { return c.decrypt("", o); }, 0},
    };
    for (const auto& c : cases) {
        dunmar::dm_utf8_str out("stale");
        EXPECT_EQ(c.expected, c.step(c.cipher, out)) << c.name;
        EXPECT_TRUE(out.empty()) << c.name;
    }
}

}  // namespace
