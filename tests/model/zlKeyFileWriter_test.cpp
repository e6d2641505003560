// The writer's text, byte for byte against checked-in files, and the format check.
#include <gtest/gtest.h>

#include "model/zlFileFormat.h"
#include "support/test_util.h"

using namespace Zelto;
using dunmar::dm_utf8_str;

namespace {

// Adds the container with one key a character: fields prefix + 1..7, none for a blank.
void addKeys(zlKeyFile& f, zlFileItem* list, const char* prefixes) {
    f.root().appendChild(list);
    for (const char* p = prefixes; *p; ++p) {
        auto* key = new zlFileItemKey(&f);
        for (int type = zlTypeKeyName; *p != ' ' && type <= zlTypeKeyNote; ++type) {
            const char value[] = {*p, static_cast<char>('1' + type - zlTypeKeyName), 0};
            EXPECT_TRUE(key->setField(type, dm_utf8_str(value)));
        }
        list->appendChild(key);
    }
}

TEST(KeyFileWriter, TextsAreExactlyTheFixtures) {
    const struct {
        const char* fixture;
        const char* language;
        bool settings, user;
        int32_t numbers[3];
        const char *keys, *trash;  // null: no trash
    } cases[] = {
        {"WriterEmptyTree.xml", "English", true, false, {30, 30, 2}, "", nullptr},
        {"WriterOneKey.xml", "English", true, true, {30, 30, 2}, "A", nullptr},
        // Numbers are written as they stand; the language is the one given at save time.
        {"WriterTrash.xml", "Deutsch", true, false, {0, 600, 30}, "A", " B"},
        // Settings made at save time follow the key list.
        {"WriterSettingsAfterKeys.xml", "English", false, false, {}, "A", nullptr},
    };
    for (const auto& c : cases) {
        zlKeyFile file;
        ASSERT_EQ(0, file.set_pass_phrase(ztest::kLongPass));
        if (c.settings) {
            auto* s = new zlFileItemSettings(&file);
            file.root().appendChild(s);
            s->verify = "0A1B";
            s->version = "2.0";  // every save stamps the program's own version
            s->language = "English";
            s->autolock = c.numbers[0];
            s->autoClearClipboard = c.numbers[1];
            s->showSelectedKey = c.numbers[2];
            if (c.user) {
                s->setUserFirstName(dm_utf8_str("11"), false);
                s->setUserLastName(dm_utf8_str("22"), false);
                s->setUserEmail(dm_utf8_str("33"), false);
            }
        }
        addKeys(file, new zlFileItemKeys(&file), c.keys);
        if (c.trash)
            addKeys(file, new zlFileItemTrash(&file), c.trash);
        EXPECT_EQ(ztest::readBytes(ztest::dataFile(c.fixture)),
                  file.buildFileText(dm_utf8_str(c.language)).str())
            << c.fixture;
        EXPECT_EQ(file.settings(), file.root().child(c.settings ? 0 : 1));
    }
}

TEST(KeyFileWriter, SkeletonIsWrittenOnlyWhereNoFileIs) {
    const std::string skeleton = ztest::readBytes(ztest::dataFile("WriterSkeleton.xml"));
    EXPECT_EQ(skeleton, zlSkeletonText(dm_utf8_str("0A1B")).str());
    ztest::TempDir dir;
    zlKeyFile file;
    EXPECT_FALSE(file.writeSkeleton(dm_utf8_str("0A1B")));  // no path
    file.setPath(ztest::widePath(dir / "Zelto.xml"));
    ASSERT_TRUE(file.writeSkeleton(dm_utf8_str("0A1B")));
    EXPECT_FALSE(file.writeSkeleton(dm_utf8_str("FFFF")));  // never overwrites
    EXPECT_EQ(skeleton, ztest::readBytes(dir / "Zelto.xml"));
    file.setPath(ztest::widePath(dir / "missing-folder" / "Zelto.xml"));
    EXPECT_FALSE(file.writeSkeleton(dm_utf8_str("0A1B")));
}

// Older: one of the three tags missing and the word present. Only a match that ends before
// the text's last byte is seen.
TEST(KeyFileFormat, OlderFormatNeedsAMissingTagAndTheWord) {
    const std::pair<const char*, bool> cases[] = {
        {"<version><verify><autolock> encrypted ", false},
        {"<version><verify> encrypted ", true},
        {"<version><autolock> encrypted ", true},
        {"<verify><autolock> encrypted ", true},
        {"<pw>x</pw><name encrypted=\"true\">", true},
        {"encrypted <version><verify><autolock>", true},  // the last tag ends the text
        {"<version><verify> encrypted", false},           // the word ends the text
        {"<version><verify> Encrypted!", false},
        {"", false},
    };
    for (const auto& c : cases)
        EXPECT_EQ(c.second, zlIsOlderFormat(dm_utf8_str(c.first))) << c.first;
    EXPECT_FALSE(zlIsOlderFormat(zlSkeletonText(dm_utf8_str("AB"))));
    EXPECT_FALSE(zlContainsBeforeEnd(dm_utf8_str("abc"), ""));
    EXPECT_TRUE(zlContainsBeforeEnd(dm_utf8_str("xax"), "a"));
}

}  // namespace
