#include "model/zlKeyFileReader.h"

#include <gtest/gtest.h>

#include "support/test_util.h"

using namespace Zelto;
using dunmar::dm_utf8_str;

namespace {

const char* kHead = "<?xml version=\"1.0\" encoding=\"utf-8\"?>\r\n<Zelto>\r\n";

class ReaderTest : public ::testing::Test {
  protected:
    void SetUp() override { ASSERT_EQ(0, file.set_pass_phrase(ztest::kLongPass)); }

    int parse(const std::string& text) { return file.readText(dm_utf8_str(text)); }

    int readFixture(const char* name) {
        return file.readFile(ztest::widePath(ztest::dataFile(name)));
    }

    const zlFileItemKey& key(size_t i) const {
        return *static_cast<const zlFileItemKey*>(file.keys()->child(i));
    }

    std::string label(size_t i) const { return key(i).fieldValue(zlTypeKeyLabel).str(); }

    zlKeyFile file;
};

TEST_F(ReaderTest, SkeletonGivesDefaultsAndAnEmptyKeyList) {
    ASSERT_EQ(1, readFixture("WriterSkeleton.xml"));
    ASSERT_NE(nullptr, file.settings());
    ASSERT_NE(nullptr, file.keys());
    EXPECT_EQ(0u, file.keys()->childCount());
    EXPECT_EQ("0A1B", file.settings()->verify.str());
    EXPECT_EQ(30, file.settings()->autolock);
    EXPECT_EQ(30, file.settings()->autoClearClipboard);
    EXPECT_EQ(2, file.settings()->showSelectedKey);
    EXPECT_TRUE(file.settings()->language.empty());
    EXPECT_EQ("2.2.1", file.settings()->version.str());  // the element is never read
    EXPECT_EQ(nullptr, file.trash());
}

TEST_F(ReaderTest, NumbersAreClampedLikeTheSettingsDialogDoes) {
    struct Case {
        const char* text;
        int lock, show;
    } cases[] = {{"4", 0, 4},      {"5", 5, 5},  {"601", 600, 30},
                 {"abc", 0, 0},    {"0", 0, 0},  {"31", 31, 30},
                 {" 42x", 42, 30}, {"-7", 0, 0}, {"99999999999999999999", 600, 30},
                 {"1", 0, 1}};
    for (const Case& c : cases) {
        std::string text = std::string(kHead) + "<settings><autolock>" + c.text +
                           "</autolock><autoClearClipboard>" + c.text +
                           "</autoClearClipboard><showSelectedKey>" + c.text +
                           "</showSelectedKey></settings></Zelto>";
        ASSERT_EQ(1, parse(text));
        ASSERT_NE(nullptr, file.settings());
        EXPECT_EQ(c.lock, file.settings()->autolock) << c.text;
        EXPECT_EQ(c.lock, file.settings()->autoClearClipboard) << c.text;
        EXPECT_EQ(c.show, file.settings()->showSelectedKey) << c.text;
    }
}

TEST_F(ReaderTest, AnEmptyElementTakesTheLastTextSeen) {
    const std::string text = std::string(kHead) +
                             "  <keys>\r\n    <key>\r\n      <name>4142</name>\r\n"
                             "      <label></label>\r\n    </key>\r\n  </keys>\r\n</Zelto>";
    ASSERT_EQ(1, parse(text));
    ASSERT_EQ(1u, file.keys()->childCount());
    // The white space before <label> is the last text: it is never emptied.
    EXPECT_EQ("\r\n      ", label(0));
    EXPECT_EQ("4142", key(0).fieldValue(zlTypeKeyName).str());
}

TEST_F(ReaderTest, ReferencesAreDecodedFromTheExtendedListOnly) {
    const std::string text = std::string(kHead) +
                             "<keys><key><label>a&#xA;b&#xa;c&#10;d&#x3C;&#x3c;&#92;&#x5C;"
                             "&#63;&apos;&#x27;&#9;&#13;&#7;&lt;&gt;&quot;&amp;x&foo;z</label>"
                             "</key></keys></Zelto>";
    ASSERT_EQ(1, parse(text));
    EXPECT_EQ("a\nb&#xa;c\nd<&#x3c;\\\\?''\t\r\a<>\"&x&foo;z", label(0));
}

TEST_F(ReaderTest, PwIsTheVerifyValueInsideSettingsAndThePasswordInsideAKey) {
    const std::string text = std::string(kHead) +
                             "<settings><pw>0A0B</pw></settings>"
                             "<keys><key><pw>0C0D</pw></key></keys></Zelto>";
    ASSERT_EQ(1, parse(text));
    EXPECT_EQ("0A0B", file.settings()->verify.str());
    EXPECT_EQ("0C0D", key(0).fieldValue(zlTypeKeyPW).str());
}

TEST_F(ReaderTest, StrayKeysAndFieldsAreDroppedAndSecondContainersKept) {
    ASSERT_EQ(1, readFixture("BrokenStrayKeys.xml"));
    ASSERT_EQ(1u, file.keys()->childCount());
    EXPECT_EQ("4142", key(0).fieldValue(zlTypeKeyName).str());
    size_t lists = 0, keysInAll = 0;
    for (size_t i = 0; i < file.root().childCount(); ++i) {
        const zlFileItem* c = file.root().child(i);
        if (c->typeCode() != zlTypeKeys)
            continue;
        ++lists;
        keysInAll += c->childCount();
    }
    EXPECT_EQ(2u, lists);
    EXPECT_EQ(2u, keysInAll);
}

TEST_F(ReaderTest, SecondSettingsAddsAnItemAndLookupsUseTheFirst) {
    const std::string text = std::string(kHead) +
                             "<settings><autolock>10</autolock></settings>"
                             "<settings><autolock>20</autolock></settings><keys></keys></Zelto>";
    ASSERT_EQ(1, parse(text));
    EXPECT_EQ(10, file.settings()->autolock);
    EXPECT_EQ(zlTypeSettings, file.root().child(1)->typeCode());
}

TEST_F(ReaderTest, MangledFilesGiveOneWithWhatWasBuiltSoFar) {
    ASSERT_EQ(1, readFixture("BrokenTruncated.xml"));
    ASSERT_NE(nullptr, file.settings());
    EXPECT_EQ(45, file.settings()->autolock);
    ASSERT_NE(nullptr, file.keys());
    ASSERT_GE(file.keys()->childCount(), 1u);
    EXPECT_EQ("4344", label(0));

    ASSERT_EQ(1, readFixture("BrokenMismatchedTags.xml"));
    ASSERT_NE(nullptr, file.settings());
    // <verify> was never closed, so its text went nowhere.
    EXPECT_TRUE(file.settings()->verify.empty());
    // No <keys> start was seen: the key and its name had nowhere to go.
    EXPECT_EQ(nullptr, file.keys());
}

TEST_F(ReaderTest, FilesCutOffInsideMarkupKeepWhatCameBefore) {
    ASSERT_EQ(1, readFixture("BrokenComment.xml"));
    EXPECT_EQ("0A1B", file.settings()->verify.str());
    ASSERT_EQ(1u, file.keys()->childCount());
    EXPECT_EQ("4142", key(0).fieldValue(zlTypeKeyName).str());

    ASSERT_EQ(1, readFixture("BrokenAttribute.xml"));
    EXPECT_EQ("0A1B", file.settings()->verify.str());
    ASSERT_EQ(1u, file.keys()->childCount());
    EXPECT_EQ(0u, key(0).childCount());

    ASSERT_EQ(1, readFixture("BrokenClosingTag.xml"));
    ASSERT_EQ(1u, file.keys()->childCount());
    EXPECT_EQ("4142", key(0).fieldValue(zlTypeKeyName).str());

    // Without a document element nothing replaces what the tree held.
    ASSERT_EQ(1, readFixture("BrokenDeclaration.xml"));
    ASSERT_EQ(1u, file.root().childCount());
    EXPECT_EQ(1u, file.keys()->childCount());
}

TEST_F(ReaderTest, ANewDocumentReplacesTheTree) {
    ASSERT_EQ(1, parse(std::string(kHead) + "<keys><key></key><key></key></keys></Zelto>"));
    ASSERT_EQ(2u, file.keys()->childCount());
    ASSERT_EQ(1, parse(std::string(kHead) + "<keys><key></key></keys></Zelto>"));
    EXPECT_EQ(1u, file.root().childCount());
    EXPECT_EQ(1u, file.keys()->childCount());
    // Text that is no XML at all leaves an empty walk, not an error.
    EXPECT_EQ(1, parse("not xml"));
}

TEST_F(ReaderTest, FileResultCodes) {
    ztest::TempDir dir;
    EXPECT_EQ(-1, file.readFile(dunmar::dm_string()));
    EXPECT_EQ(-2, file.readFile(ztest::widePath(dir / "missing.xml")));

    ztest::writeBytes(dir / "empty.xml", "");
    EXPECT_EQ(-4, file.readFile(ztest::widePath(dir / "empty.xml")));

    const std::string older =
        "<?xml version=\"1.0\" encoding=\"utf-8\"?>\r\n<Zelto><settings><pw>AB</pw>"
        "</settings><keys><key><name encrypted=\"true\">AB</name></key></keys></Zelto>";
    ztest::writeBytes(dir / "older.xml", older);
    file.root().appendChild(new zlFileItemKeys(&file));
    EXPECT_EQ(-9, file.readFile(ztest::widePath(dir / "older.xml")));
    EXPECT_EQ(1u, file.root().childCount());  // nothing was parsed

    // The tag test ignores a match that ends the file: a current file stays current
    // unless it also says "encrypted".
    ztest::writeBytes(dir / "current.xml", std::string(kHead) +
                                               "<settings><verify>A</verify><version>2</version>"
                                               "<autolock>5</autolock></settings></Zelto>");
    EXPECT_EQ(1, file.readFile(ztest::widePath(dir / "current.xml")));
    EXPECT_EQ(5, file.settings()->autolock);
}

// The reader's cases above cover the common values; these are the edges it cannot reach.
TEST(zlClampSetting, BoundsAreInclusive) {
    EXPECT_EQ(0, zlClampSetting("", 5, 600));
    EXPECT_EQ(0, zlClampSetting(nullptr, 5, 600));
    EXPECT_EQ(600, zlClampSetting("600", 5, 600));
    EXPECT_EQ(12, zlClampSetting("\t 12", 1, 30));
}

}  // namespace
