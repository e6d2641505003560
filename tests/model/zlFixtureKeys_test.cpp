// A key file written once with a known password and checked in. It must keep reading to the
// same plain texts in every build: a change to the code table, the verify text, the salt
// layout or the cipher breaks it.
#include <gtest/gtest.h>

#include "model/zlVerify.h"
#include "support/test_util.h"
#include "tree_text.h"

using namespace Zelto;

namespace {

TEST(FixtureKeys, DeciphersToTheKnownTexts) {
    zlKeyFile file;
    ASSERT_EQ(0, file.set_pass_phrase("Fixture1"));
    ASSERT_EQ(zlReadOk, file.readFile(ztest::widePath(ztest::dataFile("FixtureKeys.xml"))));
    EXPECT_EQ(zlPasswordRight, zlCheckPassword(file));
    const zlFileItemSettings& s = *file.settings();
    EXPECT_EQ("120,Deutsch,Ada,Lovelace,ada@example.org",
              std::to_string(s.autolock) + "," + s.language.str() + "," +
                  s.userFirstName(true).str() + "," + s.userLastName(true).str() + "," +
                  s.userEmail(true).str());
    EXPECT_EQ(
        "keys[(name=Bank label=money, home user=ada pw=pin-4711 email=ada@bank.example "
        "url=https://bank.example/login note=branch: \xC3\x9C"
        "berlingen) "
        "(name=Mail label=work user=ada.l pw=hunter2! email= url=https://mail.example "
        "note=two\r\nlines) "
        "(name=Shop \xE2\x82\xAC label=home user= pw=s3cret<&>\"' email=shop@example.org url= "
        "note=)]",
        ztest::treeText(*file.keys(), true));
    ASSERT_NE(nullptr, file.trash());
    EXPECT_EQ("trash[(name=Old account pw=gone4ever)]", ztest::treeText(*file.trash(), true));

    ASSERT_EQ(0, file.set_pass_phrase("Fixture2"));
    EXPECT_EQ(zlPasswordWrong, zlCheckPassword(file));
}

}  // namespace
