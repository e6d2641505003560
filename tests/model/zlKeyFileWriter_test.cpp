#include <gtest/gtest.h>

#include "core/dm_system.h"
#include "model/zlFileFormat.h"
#include "support/test_util.h"

using namespace Zelto;
using dunmar::dm_utf8_str;

namespace {

zlFileItemSettings* addSettings(zlKeyFile& f) {
    auto* s = new zlFileItemSettings(&f);
    s->verify = "0A1B";
    f.root().appendChild(s);
    return s;
}

zlFileItemKey* addKey(zlFileItem& list, char prefix) {
    auto* key = new zlFileItemKey(list.owner());
    for (int type = zlTypeKeyName; type <= zlTypeKeyNote; ++type) {
        const char value[] = {prefix, static_cast<char>('1' + type - zlTypeKeyName), 0};
        EXPECT_TRUE(key->setField(type, dm_utf8_str(value)));
    }
    list.appendChild(key);
    return key;
}

void expectFile(const char* expected, const dm_utf8_str& text) {
    EXPECT_EQ(ztest::readBytes(ztest::dataFile(expected)), text.str()) << expected;
}

class WriterTest : public ::testing::Test {
  protected:
    void SetUp() override { ASSERT_EQ(0, file.set_pass_phrase(ztest::kLongPass)); }
    zlKeyFile file;
};

TEST_F(WriterTest, EmptyKeyListIsOneLine) {
    addSettings(file);
    file.root().appendChild(new zlFileItemKeys(&file));
    expectFile("WriterEmptyTree.xml", file.buildFileText(dm_utf8_str("English")));
}

TEST_F(WriterTest, OneKeyWithAllFieldsAndUserData) {
    zlFileItemSettings* s = addSettings(file);
    s->setUserFirstName(dm_utf8_str("11"), false);
    s->setUserLastName(dm_utf8_str("22"), false);
    s->setUserEmail(dm_utf8_str("33"), false);
    s->version = "2.0";  // every save stamps the program's own version
    auto* keys = new zlFileItemKeys(&file);
    file.root().appendChild(keys);
    addKey(*keys, 'A');
    expectFile("WriterOneKey.xml", file.buildFileText(dm_utf8_str("English")));
}

TEST_F(WriterTest, TrashWithAnEmptyKeyAndClampedNumbers) {
    zlFileItemSettings* s = addSettings(file);
    s->autolock = 0;
    s->autoClearClipboard = 600;
    s->showSelectedKey = 30;
    s->language = "English";  // replaced by the interface language at save time
    auto* keys = new zlFileItemKeys(&file);
    file.root().appendChild(keys);
    addKey(*keys, 'A');
    auto* trash = new zlFileItemTrash(&file);
    file.root().appendChild(trash);
    trash->appendChild(new zlFileItemKey(&file));
    addKey(*trash, 'B');
    expectFile("WriterTrash.xml", file.buildFileText(dm_utf8_str("Deutsch")));
}

TEST_F(WriterTest, SettingsMadeAtSaveTimeFollowTheKeyList) {
    auto* keys = new zlFileItemKeys(&file);
    file.root().appendChild(keys);
    addKey(*keys, 'A');
    expectFile("WriterSettingsAfterKeys.xml", file.buildFileText(dm_utf8_str("English")));
    // The settings item now belongs to the tree.
    ASSERT_NE(nullptr, file.settings());
    EXPECT_EQ(file.settings(), file.root().child(1));
}

TEST_F(WriterTest, SkeletonIsWrittenOnlyWhereNoFileIs) {
    ztest::TempDir dir;
    expectFile("WriterSkeleton.xml", zlSkeletonText(dm_utf8_str("0A1B")));

    file.setPath(ztest::widePath(dir / "Zelto.xml"));
    ASSERT_TRUE(file.writeSkeleton(dm_utf8_str("0A1B")));
    EXPECT_EQ(ztest::readBytes(ztest::dataFile("WriterSkeleton.xml")),
              ztest::readBytes(dir / "Zelto.xml"));
    EXPECT_FALSE(file.writeSkeleton(dm_utf8_str("FFFF")));  // never overwrites
    EXPECT_EQ(ztest::readBytes(ztest::dataFile("WriterSkeleton.xml")),
              ztest::readBytes(dir / "Zelto.xml"));

    file.setPath(ztest::widePath(dir / "missing-folder" / "Zelto.xml"));
    EXPECT_FALSE(file.writeSkeleton(dm_utf8_str("0A1B")));
}

TEST(zlFileFormat, SubstringTestIgnoresAMatchAtTheVeryEnd) {
    EXPECT_TRUE(zlContainsBeforeEnd(dm_utf8_str("xencryptedx"), "encrypted"));
    EXPECT_FALSE(zlContainsBeforeEnd(dm_utf8_str("xencrypted"), "encrypted"));
    EXPECT_FALSE(zlContainsBeforeEnd(dm_utf8_str("encrypted"), "encrypted"));
    EXPECT_FALSE(zlContainsBeforeEnd(dm_utf8_str("Encrypted!"), "encrypted"));
    EXPECT_FALSE(zlContainsBeforeEnd(dm_utf8_str(""), "a"));
}

TEST(zlFileFormat, OlderFormatNeedsAMissingTagAndTheWord) {
    const char* all = "<version><verify><autolock>";
    EXPECT_FALSE(zlIsOlderFormat(dm_utf8_str(std::string(all) + " encrypted ")));
    EXPECT_TRUE(zlIsOlderFormat(dm_utf8_str("<version><verify> encrypted ")));
    EXPECT_TRUE(zlIsOlderFormat(dm_utf8_str("<pw>x</pw><name encrypted=\"true\">")));
    // The skeleton lacks <autolock> but has no "encrypted": read as current.
    EXPECT_FALSE(zlIsOlderFormat(zlSkeletonText(dm_utf8_str("AB"))));
    // A tag that ends the text is not seen, so the file counts as older.
    EXPECT_TRUE(zlIsOlderFormat(dm_utf8_str("encrypted <version><verify><autolock>")));
    // ... and the word at the very end is not seen either.
    EXPECT_FALSE(zlIsOlderFormat(dm_utf8_str("<version><verify> encrypted")));
}

}  // namespace
