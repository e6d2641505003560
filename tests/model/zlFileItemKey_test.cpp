#include "model/zlFileItemKey.h"

#include <gtest/gtest.h>

#include "support/test_util.h"

using namespace Zelto;
using dunmar::dm_utf8_str;
using ztest::dec;
using ztest::enc;

namespace {

const int kFields[] = {zlTypeKeyName,  zlTypeKeyLabel, zlTypeKeyUser, zlTypeKeyPW,
                       zlTypeKeyEmail, zlTypeKeyUrl,   zlTypeKeyNote};

TEST(zlFileItemKey, SettersReplaceTheFirstItemOrAppendOne) {
    zlKeyFile f;
    ASSERT_EQ(0, f.set_pass_phrase(ztest::kShortPass));
    zlFileItemKey key(&f);
    ASSERT_TRUE(key.setName(enc(f, "mail")));
    ASSERT_TRUE(key.setPassword(enc(f, "s3cret")));
    ASSERT_TRUE(key.setUser(enc(f, "joe")));
    EXPECT_EQ(3u, key.childCount());
    EXPECT_EQ("mail", key.plainName().str());

    ASSERT_TRUE(key.setName(enc(f, "webmail")));
    ASSERT_TRUE(key.setPassword(enc(f, "n3w")));
    EXPECT_EQ(3u, key.childCount());
    EXPECT_EQ("webmail", key.plainName().str());
    dm_utf8_str pw;
    ASSERT_TRUE(key.plainField(zlTypeKeyPW, pw));
    EXPECT_EQ("n3w", pw.str());
    // Field order is the order of first setting.
    EXPECT_EQ(zlTypeKeyPW, key.child(1)->typeCode());

    dm_utf8_str missing("junk");
    EXPECT_TRUE(key.plainField(zlTypeKeyNote, missing));
    EXPECT_TRUE(missing.empty());
    EXPECT_FALSE(key.setField(zlTypeKey, dm_utf8_str("AA")));
}

TEST(zlFileItemKey, NameSetterRefusesWhatCannotBeDeciphered) {
    zlKeyFile f;  // no usable pass phrase: nothing deciphers
    zlFileItemKey key(&f);
    EXPECT_FALSE(key.setName(dm_utf8_str("0102")));
    EXPECT_EQ(0u, key.childCount());
    // The other setters take any text.
    EXPECT_TRUE(key.setLabel(dm_utf8_str("0102")));
    EXPECT_EQ(1u, key.childCount());
}

TEST(zlFileItemKey, PlainNameIsDecipheredOnDemandAndNotForAnEmptyValue) {
    zlKeyFile f;
    ASSERT_EQ(0, f.set_pass_phrase(ztest::kLongPass));
    zlFileItemKeyName fromFile(&f, enc(f, "bank"), dm_utf8_str());
    EXPECT_EQ("bank", fromFile.plainName().str());

    // A value set without its plain form is deciphered anew.
    zlFileItemKeyItem& asField = fromFile;
    asField.setValue(enc(f, "shop"));
    EXPECT_EQ("shop", fromFile.plainName().str());

    zlFileItemKeyName empty(&f, dm_utf8_str(), dm_utf8_str());
    EXPECT_TRUE(empty.plainName().empty());

    zlKeyFile locked;  // cannot decipher: the name stays empty, without error
    zlFileItemKeyName unreadable(&locked, enc(f, "bank"), dm_utf8_str());
    EXPECT_TRUE(unreadable.plainName().empty());
}

// Every field comes over re-enciphered, in field order; a field the source lacks comes over
// empty.
TEST(zlFileItemKey, CopyFromReEnciphersEveryFieldUnderTheNewOwner) {
    zlKeyFile oldFile;
    zlKeyFile newFile;
    ASSERT_EQ(0, oldFile.set_pass_phrase("old password"));
    ASSERT_EQ(0, newFile.set_pass_phrase("new password"));

    zlFileItemKey source(&oldFile);
    const char* plain[] = {"", "a, b", "user", "pw", "e@x", "https://x", "line1\r\nline2"};
    for (int i = 6; i > 0; --i)  // not in field order, and no name
        ASSERT_TRUE(source.setField(kFields[i], enc(oldFile, plain[i])));

    zlFileItemKey copy(&newFile);
    ASSERT_TRUE(copy.copyFrom(source));
    ASSERT_EQ(7u, copy.childCount());
    EXPECT_TRUE(copy.fieldValue(zlTypeKeyName).empty());
    for (int i = 0; i < 7; ++i) {
        EXPECT_EQ(kFields[i], copy.child(i)->typeCode());
        const dm_utf8_str value = copy.fieldValue(kFields[i]);
        EXPECT_EQ(plain[i], dec(newFile, value)) << i;
        if (i > 0) {
            EXPECT_NE(plain[i], dec(oldFile, value)) << i;
        }
    }

    zlKeyFile locked;  // the new owner cannot encipher: the copy fails
    zlFileItemKey refused(&locked);
    EXPECT_FALSE(refused.copyFrom(source));
}

TEST(zlFileItemKeys, CopyKeysFromTakesOnlyKeysInOrder) {
    zlKeyFile a, b;
    ASSERT_EQ(0, a.set_pass_phrase("password a"));
    ASSERT_EQ(0, b.set_pass_phrase("password b"));
    zlFileItemKeys source(&a);
    for (const char* n : {"one", "two", "three"}) {
        auto* k = new zlFileItemKey(&a);
        k->setName(enc(a, n));
        source.appendChild(k);
    }
    source.appendChild(static_cast<zlFileItem*>(nullptr));
    source.appendChild(new zlFileItemTrash(&a));  // not a key: skipped

    zlFileItemTrash target(&b);
    ASSERT_TRUE(target.copyKeysFrom(source));
    ASSERT_EQ(3u, target.childCount());
    EXPECT_EQ("three", static_cast<zlFileItemKey*>(target.child(2))->plainName().str());
    EXPECT_EQ(&b, target.child(0)->owner());
}

TEST(zlFileItemSettings, UserFieldsWithAndWithoutEnciphering) {
    zlKeyFile f;
    ASSERT_EQ(0, f.set_pass_phrase(ztest::kShortPass));
    zlFileItemSettings s(&f);
    ASSERT_TRUE(s.setUserFirstName(dm_utf8_str("Ada"), true));
    EXPECT_NE("Ada", s.userFirstName(false).str());
    EXPECT_EQ("Ada", s.userFirstName(true).str());
    ASSERT_TRUE(s.setUserLastName(dm_utf8_str("stored as is"), false));
    EXPECT_EQ("stored as is", s.userLastName(false).str());

    zlKeyFile locked;
    zlFileItemSettings failing(&locked);
    ASSERT_TRUE(failing.setUserEmail(dm_utf8_str("old"), false));
    EXPECT_FALSE(failing.setUserEmail(dm_utf8_str("new"), true));
    EXPECT_TRUE(failing.userEmail(false).empty());  // emptied first, left empty
    EXPECT_TRUE(s.userEmail(true).empty());
}

TEST(zlFileItemSettings, AssignFromCopiesPlainValuesAndReEnciphersUserFields) {
    zlKeyFile a, b;
    ASSERT_EQ(0, a.set_pass_phrase("password a"));
    ASSERT_EQ(0, b.set_pass_phrase("password b"));
    zlFileItemSettings src(&a);
    src.verify = "ABCDEF";
    src.version = "2.0";
    src.autolock = 0;
    src.autoClearClipboard = 600;
    src.showSelectedKey = 30;
    src.language = "Deutsch";
    src.setUserFirstName(dm_utf8_str("Ada"), true);
    src.setUserLastName(dm_utf8_str("Lovelace"), true);
    src.setUserEmail(dm_utf8_str("ada@example.org"), true);

    zlFileItemSettings dst(&b);
    ASSERT_TRUE(dst.assignFrom(src));
    EXPECT_EQ("ABCDEF", dst.verify.str());
    EXPECT_EQ("2.0", dst.version.str());
    EXPECT_EQ(0, dst.autolock);
    EXPECT_EQ(600, dst.autoClearClipboard);
    EXPECT_EQ(30, dst.showSelectedKey);
    EXPECT_EQ("Deutsch", dst.language.str());
    EXPECT_EQ("Lovelace", dst.userLastName(true).str());
    EXPECT_EQ("ada@example.org", dec(b, dst.userEmail(false)));
    EXPECT_NE("Ada", dec(a, dst.userFirstName(false)));
}

}  // namespace
