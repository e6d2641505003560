// The reader: what tree each text gives, damaged texts included, and the results of a read.
#include "model/zlKeyFileReader.h"

#include <gtest/gtest.h>

#include "support/test_util.h"
#include "tree_text.h"

using namespace Zelto;
using dunmar::dm_utf8_str;

namespace {

const std::string kHead = "<?xml version=\"1.0\" encoding=\"utf-8\"?>\r\n<Zelto>\r\n";
const char* kBefore = "keys[(label=old)]";

// Each text is read into a tree that held one key before: a document element replaces it.
TEST(KeyFileReader, TreeOfEachText) {
    const struct {
        std::string text;  // a fixture's name when it ends in ".xml"
        const char* tree;
    } cases[] = {
        {"WriterSkeleton.xml", "settings{0A1B,30,30,2,} keys[]"},
        {"WriterTrash.xml",
         "settings{0A1B,0,600,30,Deutsch} keys[(name=A1 label=A2 user=A3 pw=A4 email=A5 url=A6 "
         "note=A7)] trash[() (name=B1 label=B2 user=B3 pw=B4 email=B5 url=B6 note=B7)]"},
        // An empty element takes the last text seen, white space included; repeated fields
        // are kept; "pw" is the verify value inside the settings.
        {kHead + "<settings><pw>0A0B</pw><language>Deutsch</language></settings>\r\n"
                 "<keys><key><name>4142</name>\r\n  <label></label><label>X</label>"
                 "<pw>0C0D</pw></key></keys></Zelto>",
         "settings{0A0B,30,30,2,Deutsch} keys[(name=4142 label=\r\n   label=X pw=0C0D)]"},
        // Only the extended list of references is decoded, upper-case hexadecimal included.
        {kHead + "<keys><key><label>a&#xA;b&#xa;c&#10;d&#x3C;&#x3c;&#92;&#x5C;&#63;&apos;&#x27;"
                 "&#9;&#13;&#7;&lt;&gt;&quot;&amp;x&foo;z</label></key></keys></Zelto>",
         "keys[(label=a\nb&#xa;c\nd<&#x3c;\\\\?''\t\r\a<>\"&x&foo;z)]"},
        // A second settings or key list is kept and lookups use the first.
        {kHead + "<settings><autolock>10</autolock></settings><keys></keys>"
                 "<settings><autolock>20</autolock></settings></Zelto>",
         "settings{,10,30,2,} keys[] settings{,20,30,2,}"},
        {"BrokenStrayKeys.xml", "settings{0A1B,30,30,2,} keys[(name=4142)] keys[(name=4344)]"},
        // Damaged files keep what was built before the damage.
        {"BrokenTruncated.xml", "settings{0A1B,45,30,2,} keys[(name=4142 label=4344) (name=4546)]"},
        {"BrokenMismatchedTags.xml", "settings{,30,30,2,}"},
        {"BrokenComment.xml", "settings{0A1B,30,30,2,} keys[(name=4142)]"},
        {"BrokenAttribute.xml", "settings{0A1B,30,30,2,} keys[()]"},
        {"BrokenClosingTag.xml", "keys[(name=4142)]"},
        // Without a document element the tree stays as it was.
        {"BrokenDeclaration.xml", kBefore},
        {"not xml", kBefore},
        {"", kBefore},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.text);
        zlKeyFile file;
        ASSERT_EQ(1,
                  file.readText(dm_utf8_str(kHead + "<keys><key><label>old</label></key></keys>")));
        const bool fixture = c.text.size() > 4 && c.text.compare(c.text.size() - 4, 4, ".xml") == 0;
        ASSERT_EQ(1, fixture ? file.readFile(ztest::widePath(ztest::dataFile(c.text.c_str())))
                             : file.readText(dm_utf8_str(c.text)));
        EXPECT_EQ(c.tree, ztest::treeText(file.root()));
    }
}

// Numbers are read the way the C library does and clamped like the settings dialog does.
TEST(KeyFileReader, NumbersAreClamped) {
    const struct {
        const char* text;
        int lock, show;
    } cases[] = {{"4", 0, 4}, {"5", 5, 5},      {"601", 600, 30}, {"abc", 0, 0},
                 {"0", 0, 0}, {"31", 31, 30},   {" 42x", 42, 30}, {"-7", 0, 0},
                 {"1", 0, 1}, {"\t+12", 12, 12}};
    for (const auto& c : cases) {
        zlKeyFile file;
        ASSERT_EQ(1, file.readText(dm_utf8_str(kHead + "<settings><autolock>" + c.text +
                                               "</autolock><autoClearClipboard>" + c.text +
                                               "</autoClearClipboard><showSelectedKey>" + c.text +
                                               "</showSelectedKey></settings></Zelto>")));
        ASSERT_NE(nullptr, file.settings());
        EXPECT_EQ(c.lock, file.settings()->autolock) << c.text;
        EXPECT_EQ(c.lock, file.settings()->autoClearClipboard) << c.text;
        EXPECT_EQ(c.show, file.settings()->showSelectedKey) << c.text;
    }
    EXPECT_EQ(0, zlClampSetting(nullptr, 5, 600));
}

TEST(KeyFileReader, ResultsOfReadingAFile) {
    ztest::TempDir dir;
    ztest::writeBytes(dir / "empty.xml", "");
    ztest::writeBytes(dir / "older.xml",
                      "<Zelto><settings><pw>AB</pw></settings><keys><key>"
                      "<name encrypted=\"true\">AB</name></key></keys></Zelto>");
    ztest::writeBytes(dir / "current.xml", ztest::readBytes(ztest::dataFile("WriterTrash.xml")));
    const struct {
        dunmar::dm_string path;
        int result;
    } cases[] = {
        {dunmar::dm_string(), zlReadEmptyPath},
        {ztest::widePath(dir / "missing.xml"), zlReadNoFile},
        {ztest::widePath(dir.path()), zlReadNotReadable},
        {ztest::widePath(dir / "empty.xml"), zlReadEmptyFile},
        {ztest::widePath(dir / "older.xml"), zlReadOlderFormat},
        {ztest::widePath(dir / "current.xml"), zlReadOk},
    };
    for (const auto& c : cases) {
        zlKeyFile file;
        file.setPath(dunmar::dm_string(DM_W("before")));
        file.root().appendChild(new zlFileItemKeys(&file));
        EXPECT_EQ(c.result, file.readFile(c.path));
        // Nothing is read unless the file is current; the path is kept once given.
        EXPECT_EQ(c.result == zlReadOk ? 3u : 1u, file.root().childCount()) << c.result;
        EXPECT_TRUE(
            file.path().equals(c.path.empty() ? dunmar::dm_string(DM_W("before")) : c.path));
    }
}

}  // namespace
