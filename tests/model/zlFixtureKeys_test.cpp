// A key file written once with a known password and checked in. It must keep reading to
// the same plain texts in every build: a change to the code table, the verify text, the
// salt layout or the cipher breaks it.
#include <gtest/gtest.h>

#include "model/zlVerify.h"
#include "support/test_util.h"

using namespace Zelto;
using dunmar::dm_utf8_str;

namespace {

std::string field(const zlFileItem* list, size_t key, int type) {
    dm_utf8_str plain;
    EXPECT_TRUE(static_cast<const zlFileItemKey*>(list->child(key))->plainField(type, plain));
    return plain.str();
}

TEST(FixtureKeys, DeciphersToTheKnownTexts) {
    zlKeyFile file;
    ASSERT_EQ(0, file.set_pass_phrase("Fixture1"));
    ASSERT_EQ(1, file.readFile(ztest::widePath(ztest::dataFile("FixtureKeys.xml"))));
    ASSERT_EQ(1, zlCheckPassword(file));

    const zlFileItemSettings& s = *file.settings();
    EXPECT_EQ(120, s.autolock);
    EXPECT_EQ("Deutsch", s.language.str());
    EXPECT_EQ("Ada", s.userFirstName(true).str());
    EXPECT_EQ("Lovelace", s.userLastName(true).str());
    EXPECT_EQ("ada@example.org", s.userEmail(true).str());

    const char* rows[3][7] = {
        {"Bank", "money, home", "ada", "pin-4711", "ada@bank.example", "https://bank.example/login",
         "branch: \xC3\x9C"
         "berlingen"},
        {"Mail", "work", "ada.l", "hunter2!", "", "https://mail.example", "two\r\nlines"},
        {"Shop \xE2\x82\xAC", "home", "", "s3cret<&>\"'", "shop@example.org", "", ""}};
    ASSERT_EQ(3u, file.keys()->childCount());
    for (size_t k = 0; k < 3; ++k) {
        for (int f = 0; f < 7; ++f) {
            EXPECT_EQ(rows[k][f], field(file.keys(), k, zlTypeKeyName + f)) << k << "/" << f;
        }
    }
    ASSERT_NE(nullptr, file.trash());
    ASSERT_EQ(1u, file.trash()->childCount());
    EXPECT_EQ("Old account", field(file.trash(), 0, zlTypeKeyName));
    EXPECT_EQ("gone4ever", field(file.trash(), 0, zlTypeKeyPW));
}

TEST(FixtureKeys, AnotherPasswordIsWrong) {
    zlKeyFile file;
    ASSERT_EQ(0, file.set_pass_phrase("Fixture2"));
    ASSERT_EQ(1, file.readFile(ztest::widePath(ztest::dataFile("FixtureKeys.xml"))));
    EXPECT_EQ(-12, zlCheckPassword(file));
    EXPECT_NE("Bank", static_cast<const zlFileItemKey*>(file.keys()->child(0))->plainName().str());
}

}  // namespace
