#include "app/zlKeyFields.h"

#include <gtest/gtest.h>

#include "app/zlKeyFileStore.h"
#include "support/test_util.h"

using namespace Zelto;
using dunmar::dm_utf8_str;

namespace {

zlKeyFields fields(const char* name, const char* label, const char* pw, const char* note) {
    zlKeyFields f;
    *f.of(zlTypeKeyName) = name;
    *f.of(zlTypeKeyLabel) = label;
    *f.of(zlTypeKeyUser) = "ada";
    *f.of(zlTypeKeyPW) = pw;
    *f.of(zlTypeKeyNote) = note;
    return f;
}

TEST(zlKeyFields, AddedKeysSurviveASaveAndARead) {
    ztest::TempDir dir;
    zlKeyFile file;
    file.setPath(ztest::widePath(dir / "Zelto.xml"));
    ASSERT_EQ(0, file.set_pass_phrase(ztest::kShortPass));
    // No key list yet: the first key makes one.
    ASSERT_EQ(nullptr, file.keys());
    zlFileItemKey* first = zlAddKey(file, fields("bank", "money", "pin 1234", "a\r\nb <&>"));
    ASSERT_NE(nullptr, first);
    ASSERT_NE(nullptr, file.keys());
    ASSERT_NE(nullptr, zlAddKey(file, fields("", "", "", "")));
    EXPECT_EQ(2u, file.keys()->childCount());
    // All seven items, in field order, even the empty ones.
    ASSERT_EQ(7u, first->childCount());
    for (size_t i = 0; i < zlKeyFieldCount; ++i)
        EXPECT_EQ(zlKeyFieldTypes[i], first->child(i)->typeCode());
    ASSERT_EQ(zlSaved, zlSaveKeyFile(file));

    zlKeyFile again;
    again.set_pass_phrase(ztest::kShortPass);
    ASSERT_EQ(1, again.readFile(file.path()));
    ASSERT_EQ(2u, again.keys()->childCount());
    zlKeyFields read;
    ASSERT_TRUE(zlReadKeyFields(*static_cast<zlFileItemKey*>(again.keys()->child(0)), read));
    EXPECT_TRUE(read.equals(fields("bank", "money", "pin 1234", "a\r\nb <&>")));
    EXPECT_EQ("bank", static_cast<zlFileItemKey*>(again.keys()->child(0))->plainName().str());
}

TEST(zlKeyFields, StoringReplacesValuesAndFillsMissingFields) {
    zlKeyFile file;
    ASSERT_EQ(0, file.set_pass_phrase(ztest::kShortPass));
    zlFileItemKey key(&file);
    key.setName(ztest::enc(file, "old"));
    key.setPassword(ztest::enc(file, "secret"));
    zlKeyFields before;
    ASSERT_TRUE(zlReadKeyFields(key, before));
    EXPECT_EQ("old", before.of(zlTypeKeyName)->str());
    EXPECT_EQ("secret", before.of(zlTypeKeyPW)->str());
    EXPECT_TRUE(before.of(zlTypeKeyUrl)->empty());
    // Only the seven field codes have a slot; 5 is none of them.
    EXPECT_EQ(nullptr, before.of(zlTypeKey));
    EXPECT_EQ(nullptr, before.of(5));

    zlKeyFields after = before;
    *after.of(zlTypeKeyName) = "new";
    *after.of(zlTypeKeyUrl) = "https://example.org/";
    ASSERT_TRUE(zlStoreKeyFields(key, after));
    EXPECT_EQ(7u, key.childCount());
    EXPECT_EQ("new", key.plainName().str());
    zlKeyFields read;
    ASSERT_TRUE(zlReadKeyFields(key, read));
    EXPECT_TRUE(read.equals(after));
    EXPECT_FALSE(read.equals(before));
}

TEST(zlKeyFields, AnUnusableCipherChangesNothing) {
    zlKeyFile file;  // no pass phrase
    EXPECT_EQ(nullptr, zlAddKey(file, fields("n", "", "", "")));
    EXPECT_EQ(nullptr, file.keys());
    zlFileItemKey key(&file);
    EXPECT_FALSE(zlStoreKeyFields(key, fields("n", "", "", "")));
    EXPECT_EQ(0u, key.childCount());
}

}  // namespace
