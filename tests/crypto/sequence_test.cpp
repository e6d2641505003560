// Runs in a process of its own: the salt generator is process-wide and never reseeded, so a
// fixed sequence of calls from program start must give exactly these texts in every build.
#include <gtest/gtest.h>

#include "core/dm_utf8_str.h"
#include "crypto/zlEncrypt.h"

namespace {

const char kShortPhrase[] = "Sesame#8";
const char kLongPhrase[] = "correct horse battery staple, and more!!";

TEST(CipherSequence, TextsFromProgramStartAreFrozen) {
    Zelto::zlEncrypt short_phrase;
    ASSERT_EQ(0, short_phrase.set_pass_phrase(kShortPhrase));
    Zelto::zlEncrypt long_phrase;
    ASSERT_EQ(0, long_phrase.set_pass_phrase(kLongPhrase));
    Zelto::zlEncrypt no_phrase;

    dunmar::dm_utf8_str t1, t2, t3, t4, empty, refused;
    // Draws 24 salt bytes.
    ASSERT_EQ(0, short_phrase.encrypt("alpha", t1));
    // None of these three draws any.
    ASSERT_EQ(0, short_phrase.encrypt("", empty));
    ASSERT_EQ(0, long_phrase.encrypt("beta", t2));
    ASSERT_EQ(1, no_phrase.encrypt("delta", refused));
    // The next 24, then the 24 after them.
    ASSERT_EQ(0, short_phrase.encrypt("gamma sixteen 16", t3));
    ASSERT_EQ(0, short_phrase.encrypt("epsilon", t4));

    EXPECT_STREQ(
        "F083DF4978161A544D13F5929205037944F9AF2AC0679C389D2CB1DEAAD4D6BAD8B45F80CD681E2C0E",
        t1.c_str());
    EXPECT_STREQ("67D68884A5FDEBFFF472FFF73155B8A7B0", t2.c_str());
    EXPECT_STREQ(
        "74CE8261B2B4BFD04450E77FDD0500F9C42D0CAE71C3C9C46ED3BB82B90AD71DEB93E1BC254C662CD5",
        t3.c_str());
    EXPECT_STREQ(
        "A764704BE953F4E0B0828B9161AF54EF26087A36A1760AEE71CB03CAED661EE90DC77FCA1138D06F8C",
        t4.c_str());
    EXPECT_TRUE(empty.empty());
    EXPECT_TRUE(refused.empty());

    dunmar::dm_utf8_str back;
    ASSERT_EQ(0, short_phrase.decrypt(t3, back));
    EXPECT_STREQ("gamma sixteen 16", back.c_str());
    ASSERT_EQ(0, long_phrase.decrypt(t2, back));
    EXPECT_STREQ("beta", back.c_str());
}

}  // namespace
